#pragma once

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Warns of comments for the check that have no effect: identifiers that do not exist, and other
/// words than "ignore". `withoutIgnored` follows the others.
void findWrongIgnoreComments(const SourceText& source, CheckedLanguage language,
                             DiagnosticEngine& engine);

}  // namespace quorvane
