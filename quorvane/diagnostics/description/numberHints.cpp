#include "quorvane/diagnostics/description/numberHints.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "quorvane/base/text/nowhere.h"
#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/units.h"
#include "quorvane/diagnostics/description/measureHints.h"
#include "quorvane/diagnostics/description/quotedValue.h"

namespace quorvane {

namespace {

/// True for the measures of the page.
bool isInTwips(std::string_view key) {
    return key.starts_with("paper-") || key.ends_with("-margin");
}

std::string acceptedNumber(std::string_view key) {
    if (isInTwips(key)) {
        return "write a number of twips: an inch is " + numberText(inchUnit.twips) +
               ", a centimeter " + numberText(std::round(centimeterUnit.twips));
    }
    return key == "cell-width" ? "write a percentage of the width between the margins, without a %"
                               : "write a number";
}

/// What to write for a number with one comma; empty for anything else.
Hint withoutComma(std::string_view key, std::string_view value) {
    const std::size_t comma = value.find(',');
    std::string text(value);
    if (comma == nowhere || text.find('.') != std::string::npos) {
        return {};
    }
    text[comma] = '.';
    const std::string withPoint = text;
    text.erase(comma, 1);
    const std::optional<double> number = readNumber(withPoint);
    if (!number || comma + 1 == value.size()) {
        return {};
    }
    // A length so short is one in another unit, which a point alone would hide.
    if (isTinyMeasure(key, *number)) {
        return tinyMeasureHint(key, *number);
    }
    // Three digits after a comma are thousandths to some and thousands to others.
    return value.size() - comma == 4
               ? Hint("write the number without a comma: " + text + " or " + withPoint)
               : Hint("write a point instead of the comma: " + withPoint, withPoint);
}

Hint lengthHint(std::string_view key, double number, const LengthUnit& unit,
                std::string_view value) {
    constexpr double max = std::numeric_limits<std::int32_t>::max();
    const bool isInTwipsAlready = &unit == &twipUnit;
    const double twips = isInTwipsAlready ? number : std::round(number * unit.twips);
    if (!isInTwips(key) || std::abs(twips) > max) {
        return acceptedNumber(key);
    }
    const std::string text = numberText(twips);
    return {isInTwipsAlready ? "write only the number: " + text
                             : std::string(value) + " is " + text + " twips; write " + text,
            text};
}

/// What to write for a number with a comma and a unit, such as "29,7cm"; empty for anything else.
Hint withPointAndUnit(std::string_view key, std::string_view value) {
    const std::size_t comma = value.find(',');
    if (comma == nowhere || value.find_first_of(",.", comma + 1) != nowhere) {
        return {};
    }
    const std::size_t end = value.find_first_not_of("0123456789", comma + 1);
    // Three digits after a comma may be meant as thousands.
    if (end == nowhere || end == comma + 1 || end == comma + 4) {
        return {};
    }
    std::string text(value);
    text[comma] = '.';
    Hint hint = numberHint(key, text);
    return hint.replacement ? hint : Hint();
}

/// What to write for a value that does not begin with a plain number, or has an exponent; empty for
/// any other value.
Hint wordHint(std::string_view key, std::string_view value) {
    if (value.empty()) {
        return "the value is missing; " + acceptedNumber(key);
    }
    if (lowerCase(value) == "a4" && key.starts_with("paper-")) {
        return "A4 is 11906 twips wide and 16838 high";
    }
    if (lowerCase(value) == "letter" && key.starts_with("paper-")) {
        return "US letter is 12240 twips wide and 15840 high";
    }
    if (value.find_first_not_of("+-.0123456789eE") == nowhere &&
        value.find_first_of("0123456789") != nowhere && value.find_first_of("eE") != nowhere) {
        return "the number is too large or malformed; write its digits without an exponent";
    }
    if (const std::string bare(withoutQuotes(value));
        bare.size() < value.size() && readNumber(bare)) {
        return {"write the number without quotation marks: " + bare, bare};
    }
    return {};
}

/// What to write for a number with something after it.
Hint unitHint(std::string_view key, std::string_view value, const NumberWithUnit& parts) {
    if (parts.unit.starts_with(',')) {
        return "a number has no comma and at most one decimal point; " + acceptedNumber(key);
    }
    if (parts.unit == "%" && key == "cell-width") {
        const std::string alone(parts.writtenNumber);
        return {"write only the number: " + alone, alone};
    }
    const LengthUnit* const unit = lengthUnitOf(parts.unit);
    if (key == "cell-width" && (unit || lowerCase(parts.unit) == "px")) {
        return "a cell width is a percentage of the width between the margins, not a length; write "
               "it without a unit";
    }
    return unit ? lengthHint(key, parts.number, *unit, value) : acceptedNumber(key);
}

}  // namespace

Hint numberHint(std::string_view key, std::string_view value) {
    if (Hint word = wordHint(key, value); !word.empty()) {
        return word;
    }
    const std::optional<NumberWithUnit> parts = readNumberWithUnit(value);
    if (!parts) {
        return acceptedNumber(key);
    }
    if (Hint written = withoutComma(key, value); !written.empty()) {
        return written;
    }
    if (Hint written = withPointAndUnit(key, value); !written.empty()) {
        return written;
    }
    return unitHint(key, value, *parts);
}

}  // namespace quorvane
