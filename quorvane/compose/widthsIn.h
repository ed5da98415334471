#pragma once

#include <string_view>
#include <vector>

#include "quorvane/compose/Width.h"

namespace quorvane {

/// The widths that a text gives, with blanks or commas between them.
std::vector<Width> widthsIn(std::string_view text);

}  // namespace quorvane
