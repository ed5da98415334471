#include "quorvane/diagnostics/description/valueHints.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/text/colorComponents.h"

namespace quorvane {

namespace {

constexpr double twipsPerPoint = 20;

struct BorderName {
    std::string_view name;
    double twips;
};

constexpr BorderName borderNames[] = {
    {"none", 0}, {"hair", eHair}, {"thin", eThin}, {"normal", eNormal}, {"thick", eThick}};

std::string_view nearestBorder(double twips) {
    const BorderName* nearest = &borderNames[0];
    for (const BorderName& border : borderNames) {
        if (std::abs(border.twips - twips) < std::abs(nearest->twips - twips)) {
            nearest = &border;
        }
    }
    // A thin line is meant to be one.
    return twips > 0 && nearest->twips == 0 ? borderNames[1].name : nearest->name;
}

/// Twips of one unit of a border's width; a number alone counts points while it is small.
std::optional<double> twipsOfUnit(std::string_view unit, double number) {
    if (unit.empty()) {
        return number < static_cast<int>(eHair) ? twipsPerPoint : 1;
    }
    if (unit.starts_with("px")) {
        return twipsPerPoint * 0.75;
    }
    if (unit.starts_with("pt") || unit.starts_with("point")) {
        return twipsPerPoint;
    }
    return unit.starts_with("mm") ? std::optional(1440 / 25.4) : std::nullopt;
}

}  // namespace

Hint colorValueHint(std::string_view value, const Vocabulary& vocabulary) {
    if (const std::optional<RgbColor> components = componentsIn(value)) {
        return "colors have names; the nearest one to " + std::string(value) + " is " +
               nearestColorName(*components, vocabulary);
    }
    return readNumber(value) ? Hint("colors have names, such as dark-red or light-yellow") : Hint();
}

Hint borderValueHint(std::string_view value) {
    const std::string lower = lowerCase(trimWhitespace(value));
    const std::size_t end = std::min(lower.find_first_not_of("+-.0123456789"), lower.size());
    const std::optional<double> number = readNumber(lower.substr(0, end));
    if (!number) {
        return {};
    }
    const std::optional<double> unit =
        twipsOfUnit(trimWhitespace(std::string_view(lower).substr(end)), *number);
    const std::string names =
        "borders have names: hair is 0.25 points wide, thin 0.5, normal 1 and thick 1.5";
    return unit ? names + "; did you mean " + std::string(nearestBorder(*number * *unit)) + "?"
                : names;
}

}  // namespace quorvane
