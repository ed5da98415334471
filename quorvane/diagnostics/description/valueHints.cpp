#include "quorvane/diagnostics/description/valueHints.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/units.h"
#include "quorvane/diagnostics/text/colorComponents.h"

namespace quorvane {

namespace {

/// A named border with its width in twips.
struct NamedBorder {
    std::string_view name;
    double width;
};

std::vector<NamedBorder> bordersOf(const Vocabulary& vocabulary) {
    std::vector<NamedBorder> borders;
    for (const std::string_view name : vocabulary.borderNames()) {
        const auto width = vocabulary.borderNamed(name).value_or(eNone);
        borders.push_back({name, std::max(0.0, static_cast<double>(width))});
    }
    return borders;
}

/// The border of the nearest width. A thin line is not meant to be none.
std::string_view nearestBorder(double width, const std::vector<NamedBorder>& borders) {
    const NamedBorder* nearest = nullptr;
    for (const NamedBorder& border : borders) {
        const bool isMeant = border.width > 0 || width <= 0;
        if (isMeant &&
            (!nearest || std::abs(border.width - width) < std::abs(nearest->width - width))) {
            nearest = &border;
        }
    }
    return nearest ? nearest->name : std::string_view();
}

/// "hair is 0.25 points wide, thin 0.5, normal 1 and thick 1.5"
std::string widthsOf(const std::vector<NamedBorder>& borders) {
    std::string text;
    for (const NamedBorder& border : borders) {
        if (border.width == 0) {
            continue;
        }
        const bool isFirst = text.empty();
        text += isFirst ? "" : (&border == &borders.back() ? " and " : ", ");
        text += border.name;
        text += (isFirst ? " is " : " ") + numberText(border.width / pointUnit.twips);
        text += isFirst ? " points wide" : "";
    }
    return text;
}

/// Twips of one unit of a border's width; a number alone counts points while it is small.
std::optional<double> twipsOfUnit(std::string_view unit, double number) {
    if (unit.empty()) {
        return number < static_cast<int>(eHair) ? pointUnit.twips : twipUnit.twips;
    }
    if (unit.starts_with("px")) {
        return pointUnit.twips * 0.75;
    }
    if (unit.starts_with("pt") || unit.starts_with("point")) {
        return pointUnit.twips;
    }
    return unit.starts_with("mm") ? std::optional(millimeterUnit.twips) : std::nullopt;
}

}  // namespace

Hint colorValueHint(std::string_view value, const Vocabulary& vocabulary) {
    if (const std::optional<RgbColor> components = componentsIn(value)) {
        return "colors have names; the nearest one to " + std::string(value) + " is " +
               nearestColorName(*components, vocabulary);
    }
    return readNumber(value) ? Hint("colors have names, such as dark-red or light-yellow") : Hint();
}

Hint borderValueHint(std::string_view value, const Vocabulary& vocabulary) {
    const std::string lower = lowerCase(trimWhitespace(value));
    const std::optional<NumberWithUnit> parts = readNumberWithUnit(lower);
    if (!parts) {
        return {};
    }
    const std::vector<NamedBorder> borders = bordersOf(vocabulary);
    const std::string names = "borders have names: " + widthsOf(borders);
    const std::optional<double> unit = twipsOfUnit(parts->unit, parts->number);
    return unit ? names + "; did you mean " +
                      std::string(nearestBorder(parts->number * *unit, borders)) + "?"
                : names;
}

}  // namespace quorvane
