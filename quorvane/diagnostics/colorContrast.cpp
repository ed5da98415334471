#include "quorvane/diagnostics/colorContrast.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "quorvane/diagnostics/colorComponents.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

namespace {

double linear(int component) {
    const double share = component / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// Lightness of a color, from 0 to 1.
double lightness(std::int32_t color, double otherwise) {
    const std::optional<ColorComponents> components = componentsOf(color);
    return components ? 0.2126 * linear(components->red) + 0.7152 * linear(components->green) +
                            0.0722 * linear(components->blue)
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
