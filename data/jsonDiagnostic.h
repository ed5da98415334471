#pragma once

#include <string_view>

#include "data/json.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::data {

/// The diagnostic about a JSON text (UTF-8) that cannot be read.
Diagnostic jsonDiagnostic(std::string_view text, const JsonError& error);

}  // namespace quorvane::data
