#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// What to write for a background that is given by its components, such as "#ff0000", or by a
/// number; empty for any other value.
Hint colorValueHint(std::string_view value, const Vocabulary& vocabulary);

/// What to write for a border that is given as a width, such as "1", "0.5pt" or "2px solid"; empty
/// for any other value.
Hint borderValueHint(std::string_view value, const Vocabulary& vocabulary);

}  // namespace quorvane
