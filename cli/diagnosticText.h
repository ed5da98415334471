#pragma once

#include <string>

#include "cli/Diagnostic.h"

namespace quorvane::cli {

/// The error for a person, on one line without its end:
/// "letter.rtfspec:12: error[eWrongValue]: crimson isn't a recognized color." The brackets hold the
/// error's level, or its number where it has none; what lies behind the error follows in
/// parentheses.
std::string diagnosticText(const Diagnostic& diagnostic);

}  // namespace quorvane::cli
