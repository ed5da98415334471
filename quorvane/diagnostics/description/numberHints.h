#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// What the value of a key that takes a number was most likely meant to be, such as a number with a
/// unit; the key is in its long form. What it certainly was meant to be is the replacement.
Hint numberHint(std::string_view key, std::string_view value);

}  // namespace quorvane
