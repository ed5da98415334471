#include "quorvane/diagnostics/description/measureHints.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/values/units.h"

namespace quorvane {

namespace {

/// The unit in which a number is most likely meant.
const LengthUnit& likelyUnit(std::string_view key, double number) {
    if (!key.starts_with("paper-")) {
        return number < 5 ? centimeterUnit : (number > 50 ? pointUnit : millimeterUnit);
    }
    constexpr double paperInInches[] = {8.5, 11, 14, 17};
    const bool isInInches = std::find(std::begin(paperInInches), std::end(paperInInches), number) !=
                            std::end(paperInInches);
    return isInInches
               ? inchUnit
               : (number < 60 ? centimeterUnit : (number < 500 ? millimeterUnit : pointUnit));
}

}  // namespace

bool isTinyMeasure(std::string_view key, double twips) {
    // A margin of 1 is the smallest there is.
    return key.starts_with("paper-") ? twips > 0 && twips < inchUnit.twips
                                     : key.ends_with("-margin") && twips > 1 && twips < 100;
}

std::string millimeterText(double twips) {
    return numberText(std::round(twips / millimeterUnit.twips * 10) / 10);
}

Hint tinyMeasureHint(std::string_view key, double number) {
    const LengthUnit& unit = likelyUnit(key, number);
    const std::string twips = numberText(std::round(number * unit.twips));
    return "measures are in twips; did you mean " + numberText(number) + " " +
           std::string(unit.name) + "? Write " + twips;
}

}  // namespace quorvane
