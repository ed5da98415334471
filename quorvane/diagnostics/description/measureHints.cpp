#include "quorvane/diagnostics/description/measureHints.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "quorvane/base/text/numberText.h"

namespace quorvane {

namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerMillimeter = twipsPerInch / 25.4;

struct Unit {
    std::string_view name;
    double twips;
};

/// The unit in which a number is most likely meant.
Unit likelyUnit(std::string_view key, double number) {
    constexpr Unit inches{"inches", twipsPerInch};
    constexpr Unit centimeters{"centimeters", twipsPerMillimeter * 10};
    constexpr Unit millimeters{"millimeters", twipsPerMillimeter};
    constexpr Unit points{"points", 20};
    if (!key.starts_with("paper-")) {
        return number < 5 ? centimeters : (number > 50 ? points : millimeters);
    }
    constexpr double paperInInches[] = {8.5, 11, 14, 17};
    const bool isInInches = std::find(std::begin(paperInInches), std::end(paperInInches), number) !=
                            std::end(paperInInches);
    return isInInches ? inches
                      : (number < 60 ? centimeters : (number < 500 ? millimeters : points));
}

}  // namespace

bool isTinyMeasure(std::string_view key, double twips) {
    // A margin of 1 is the smallest there is.
    return key.starts_with("paper-") ? twips > 0 && twips < twipsPerInch
                                     : key.ends_with("-margin") && twips > 1 && twips < 100;
}

std::string millimeterText(double twips) {
    return numberText(std::round(twips / twipsPerMillimeter * 10) / 10);
}

Hint tinyMeasureHint(std::string_view key, double number) {
    const Unit unit = likelyUnit(key, number);
    const std::string twips = numberText(std::round(number * unit.twips));
    return "measures are in twips; did you mean " + numberText(number) + " " +
           std::string(unit.name) + "? Write " + twips;
}

}  // namespace quorvane
