#include "quorvane/diagnostics/text/colorContrast.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

namespace {

double linear(std::uint8_t part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// Lightness of a color of the color table, from 0 to 1.
double lightness(std::int32_t number, double otherwise) {
    const std::optional<RgbColor> color = CRtfGrpColorTable::color(number);
    return color ? 0.2126 * linear(color->red) + 0.7152 * linear(color->green) +
                       0.0722 * linear(color->blue)
                 : otherwise;
}

}  // namespace

double contrastOf(std::int32_t textColor, std::int32_t background) {
    const double text = lightness(textColor, 0);
    const double ground = lightness(background, 1);
    return (std::max(text, ground) + 0.05) / (std::min(text, ground) + 0.05);
}

std::string textColorName(std::int32_t color) {
    const std::string name = CRtfGrpColorTable::colorName(color);
    return name.empty() ? "black" : name;
}

std::string backgroundName(std::int32_t color) {
    const std::string name = CRtfGrpColorTable::colorName(color);
    return name.empty() ? "white" : name;
}

}  // namespace quorvane
