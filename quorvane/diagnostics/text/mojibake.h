#pragma once

#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// Keeps the first diagnostic of each kind about mojibake, which says that there are more: in a
/// file in UTF-8 there is one in every other line.
void keepFirstMojibake(std::vector<Diagnostic>& diagnostics);

}  // namespace quorvane
