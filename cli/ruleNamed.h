#pragma once

#include <string>
#include <string_view>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

/// The diagnostic of that identifier. Throws a `UsageError` with the nearest one when there is
/// none; the option is the one that the identifier was given to.
const DiagnosticRule& ruleNamed(std::string_view option, const std::string& identifier);

}  // namespace quorvane::cli
