#pragma once

#include <span>
#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/stylesheet/ExtendedViolation.h"

namespace quorvane {

/// What to write instead of the part that violates a rule of extended stylesheets; empty when
/// nothing is known. `names` are those of the styles of the kind that the violation is about.
Hint extendedHint(const ExtendedViolation& violation, std::span<const std::string_view> names);

}  // namespace quorvane
