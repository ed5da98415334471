#pragma once

#include <string_view>

#include "quorvane/diagnostics/diagnosticRules.h"

namespace quorvane {

/// The language that a text is written in, judged by its beginning, some thousand bytes of which
/// are enough: RTF begins with a brace and a backslash, a description with a node and a
/// stylesheet with a brace, blank lines and comments aside. Where something else stands first, it
/// is a stylesheet when it has more braces than lines of the description language, and otherwise a
/// description.
CheckedLanguage languageOf(std::string_view beginning);

}  // namespace quorvane
