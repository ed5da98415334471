#pragma once

#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

// Comments such as "; quorvane: ignore empty-text, low-contrast". In a description one is about the
// next line that is neither blank nor a comment. In a stylesheet, where comments stand outside of
// braces, one is about the next definition, on a line of its own.

/// The diagnostics about a text (UTF-8) without those that its comments say to ignore.
std::vector<Diagnostic> withoutIgnored(std::vector<Diagnostic> diagnostics, std::string_view text,
                                       CheckedLanguage language);

/// Warns of comments that cannot be followed: identifiers that there are not, and other words than
/// "ignore".
void findWrongIgnoreComments(const SourceText& source, CheckedLanguage language,
                             DiagnosticEngine& engine);

}  // namespace quorvane
