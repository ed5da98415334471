#include "quorvane/driver/extendedValues.h"

#include <algorithm>
#include <cstddef>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/rounding.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/units.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/stylesheet/StyleValue.h"

namespace quorvane {

namespace {

constexpr std::int32_t longestPage = 22 * 1440;

[[noreturn]] void refuse(std::string_view text, const std::string& why) {
    throw LeafError(DriverFault::WrongValue,
                    (text.empty() ? "The value is missing" : '"' + std::string(text) + '"') + why);
}

std::string unlessEmpty(std::string_view text, std::string_view words) {
    return text.empty() ? std::string() : std::string(words);
}

[[noreturn]] void refuseLength(std::string_view text) {
    refuse(text, unlessEmpty(text, " is not a length") +
                     "; write a number with mm, cm, in or pt, or one of twips");
}

struct NamedPage {
    std::string_view name;
    PageSize size;
};

constexpr std::string_view landscape = "-landscape";

constexpr NamedPage namedPages[] = {
    {"a3", {16838, 23811}},    {"a4", {11906, 16838}},      {"a5", {8391, 11906}},
    {"a6", {5953, 8391}},      {"b5", {9978, 14173}},       {"letter", {12240, 15840}},
    {"legal", {12240, 20160}}, {"tabloid", {15840, 24480}}, {"executive", {10440, 15120}},
};

/// Calls `visit` with each part between the separators, without blanks at its ends.
template <class Visit>
void forEachPart(std::string_view text, std::string_view separators, Visit visit) {
    for (;;) {
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        visit(trimWhitespace(text.substr(0, end)));
        if (end == text.size()) {
            return;
        }
        text.remove_prefix(end + 1);
    }
}

}  // namespace

std::int32_t lengthOf(std::string_view text) {
    const std::optional<double> twips = lengthInTwips(text);
    if (!twips || !fitsInLong(*twips)) {
        refuseLength(text);
    }
    return roundToLong(*twips);
}

std::int32_t lengthFrom(std::int32_t min, std::string_view text) {
    const std::int32_t twips = lengthOf(text);
    if (twips < min || twips > longestPage) {
        refuse(text, twips < min ? std::string(" is too little; write ") +
                                       (min > 0 ? "more than 0" : "0 or more")
                                 : " is too much; a page has at most 22 inches (558.8 mm)");
    }
    return twips;
}

std::int32_t wholeNumber(std::string_view text, std::int32_t min, std::int32_t max) {
    const std::optional<double> number = readNumber(text);
    if (!number || *number < min || *number > max ||
        *number != static_cast<std::int32_t>(*number)) {
        refuse(text, unlessEmpty(text, " is not a whole number that can stand here") +
                         "; write one from " + std::to_string(min) + " to " + std::to_string(max));
    }
    return static_cast<std::int32_t>(*number);
}

bool yesOrNo(std::string_view text) {
    const std::string word = lowerCase(text);
    if (word != "yes" && word != "no") {
        refuse(text, "; write yes or no");
    }
    return word == "yes";
}

PageSize pageSizeNamed(std::string_view text) {
    const std::string word = lowerCase(text);
    const bool isTurned = word.ends_with(landscape);
    const std::string_view name =
        std::string_view(word).substr(0, word.size() - (isTurned ? landscape.size() : 0));
    for (const auto& [pageName, size] : namedPages) {
        if (name == pageName) {
            return isTurned ? PageSize{size.height, size.width} : size;
        }
    }
    std::string names;
    for (const NamedPage& page : namedPages) {
        names += (names.empty() ? "" : ", ") + std::string(page.name);
    }
    refuse(text, unlessEmpty(text, " is not a page") + "; write one of " + names +
                     ", each also with -landscape, or use paper-width and paper-height");
}

std::string pageName(const PageSize& size) {
    for (const auto& [name, upright] : namedPages) {
        if (upright.width == size.width && upright.height == size.height) {
            return std::string(name);
        }
        if (upright.width == size.height && upright.height == size.width) {
            return std::string(name) + std::string(landscape);
        }
    }
    return {};
}

ColumnWidth columnWidth(std::string_view text) {
    const std::optional<NumberWithUnit> width = readNumberWithUnit(text);
    if (!width || width->number <= 0 ||
        !(width->unit.empty() || width->unit == "%" || lengthUnitOf(width->unit))) {
        refuse(text, unlessEmpty(text, " is not the width of a column") +
                         "; write a number of percent, or one with mm, cm, in or pt");
    }
    if (width->unit.empty() || width->unit == "%") {
        return {width->number, true};
    }
    return {static_cast<double>(lengthFrom(1, text)), false};
}

std::vector<ColumnWidth> columnWidths(std::string_view text) {
    std::vector<ColumnWidth> widths;
    forEachPart(text, " ,\t", [&](std::string_view part) {
        if (!part.empty()) {
            widths.push_back(columnWidth(part));
        }
    });
    if (widths.empty()) {
        static_cast<void>(columnWidth({}));
    }
    return widths;
}

std::optional<RgbColor> colorComponents(std::string_view text) {
    if (!text.starts_with('#')) {
        return std::nullopt;
    }
    const std::optional<RgbColor> color = readColor(text);
    if (!color) {
        refuse(text, " is not a color; write # and six hexadecimal digits, such as #1f4e79");
    }
    return color;
}

std::array<std::string, 3> pageLineParts(std::string_view text) {
    std::array<std::string, 3> parts;
    std::size_t count = 0;
    forEachPart(text, "|", [&](std::string_view part) {
        if (count == parts.size()) {
            refuse(text, " has more than three parts; write left|center|right");
        }
        parts[count++] = part;
    });
    return parts;
}

std::vector<std::string_view> listedNames(std::string_view text) {
    std::vector<std::string_view> names;
    forEachPart(text, ",", [&](std::string_view part) {
        if (part.empty()) {
            refuse(text, "; write names with commas between them");
        }
        names.push_back(part);
    });
    return names;
}

}  // namespace quorvane
