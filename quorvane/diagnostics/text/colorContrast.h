#pragma once

#include <cstdint>
#include <string>

namespace quorvane {

/// How much two colors of the color table differ in lightness, from 1 to 21. As text, the color
/// 0 is black, as a background white; so is any number that the table does not have.
double contrastOf(std::int32_t textColor, std::int32_t background);

/// Name of a color of the color table, with "-" in place of its blanks; "black" for any other
/// number.
std::string textColorName(std::int32_t color);

/// The same for a background: "white" for any other number.
std::string backgroundName(std::int32_t color);

}  // namespace quorvane
