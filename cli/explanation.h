#pragma once

#include <string>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

/// The entry of a diagnostic for a person, with what `check` reports about its example.
std::string explanation(const DiagnosticRule& rule);

/// All diagnostics for a person: a line for each with its identifier, its severity and its title.
std::string diagnosticsList();

/// The same for a program: a JSON object a line with the fields `identifier`, `severity`,
/// `language`, `title` and `default`, which is false for one that is reported only on request.
std::string diagnosticsListJson();

}  // namespace quorvane::cli
