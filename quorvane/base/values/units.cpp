#include "quorvane/base/values/units.h"

#include <algorithm>
#include <string>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

struct UnitWord {
    std::string_view word;
    const LengthUnit& unit;
};

constexpr UnitWord unitWords[] = {
    {"mm", millimeterUnit}, {"cm", centimeterUnit}, {"in", inchUnit},    {"inch", inchUnit},
    {"inches", inchUnit},   {"\"", inchUnit},       {"pt", pointUnit},   {"pc", picaUnit},
    {"tw", twipUnit},       {"twip", twipUnit},     {"twips", twipUnit},
};

}  // namespace

const LengthUnit* lengthUnitOf(std::string_view word) {
    const std::string lower = lowerCase(word);
    const auto* const found =
        std::find_if(std::begin(unitWords), std::end(unitWords),
                     [&](const UnitWord& unitWord) { return unitWord.word == lower; });
    return found == std::end(unitWords) ? nullptr : &found->unit;
}

std::optional<NumberWithUnit> readNumberWithUnit(std::string_view text) {
    const std::size_t end = std::min(text.find_first_not_of("+-.0123456789"), text.size());
    const std::optional<double> number = readNumber(text.substr(0, end));
    if (!number) {
        return std::nullopt;
    }
    return NumberWithUnit{*number, text.substr(0, end), trimWhitespace(text.substr(end))};
}

std::optional<double> lengthInTwips(std::string_view text) {
    const std::optional<NumberWithUnit> length = readNumberWithUnit(text);
    const LengthUnit* const unit = !length                ? nullptr
                                   : length->unit.empty() ? &twipUnit
                                                          : lengthUnitOf(length->unit);
    return unit ? std::optional(length->number * unit->twips) : std::nullopt;
}

}  // namespace quorvane
