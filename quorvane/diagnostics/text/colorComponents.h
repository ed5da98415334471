#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "quorvane/driver/Vocabulary.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

/// The color that a text such as "#ff0000", "#f00", "ff0000", "0xff0000", "255,0,0" or
/// "rgb(255, 0, 0)" gives by its components; nothing for any other text.
std::optional<RgbColor> componentsIn(std::string_view text);

/// The name of the description language whose color is nearest to the components.
std::string nearestColorName(const RgbColor& components, const Vocabulary& vocabulary);

}  // namespace quorvane
