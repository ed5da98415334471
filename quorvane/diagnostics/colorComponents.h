#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// Red, green and blue of a color, each from 0 to 255.
struct ColorComponents {
    int red = 0;
    int green = 0;
    int blue = 0;
};

/// The components of a color of the color table; nothing for 0 and a number that it does not have.
std::optional<ColorComponents> componentsOf(std::int32_t color);

/// The color that a text such as "#ff0000", "#f00", "ff0000", "0xff0000", "255,0,0" or
/// "rgb(255, 0, 0)" gives by its components; nothing for any other text.
std::optional<ColorComponents> componentsIn(std::string_view text);

/// The name of the description language whose color is nearest to the components.
std::string nearestColorName(const ColorComponents& components, const Vocabulary& vocabulary);

}  // namespace quorvane
