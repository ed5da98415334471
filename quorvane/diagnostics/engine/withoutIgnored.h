#pragma once

#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Returns the diagnostics about a text without those that its comments say to ignore.
///
/// `checkDescription` and `checkStyleSheet` return all diagnostics; pass them through this function
/// to respect comments such as `; quorvane: ignore empty-text, low-contrast`. In a description,
/// such a comment is about the next line that is neither blank nor a comment. In a stylesheet,
/// where comments are outside braces, it is about the next definition. The text is the one that was
/// checked.
std::vector<Diagnostic> withoutIgnored(std::vector<Diagnostic> diagnostics, std::string_view text,
                                       CheckedLanguage language);

}  // namespace quorvane
