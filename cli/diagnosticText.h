#pragma once

#include <string>

#include "cli/DiagnosticExcerpt.h"
#include "cli/colors.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::cli {

/// A diagnostic for a person: a line "letter.rtfspec:12:5: error: crimson isn't a recognized color.
/// [wrong-color]", the line of the file, a line with a caret and a tilde under each further
/// character that it concerns, and the hint where there is one. One that was fixed is marked as
/// "fixed" in place of its severity, and shows what was written.
std::string diagnosticText(const std::string& file, const Diagnostic& diagnostic,
                           const DiagnosticExcerpt& excerpt, Colors colors);

}  // namespace quorvane::cli
