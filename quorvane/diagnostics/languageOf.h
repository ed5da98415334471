#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// The language that a text is written in, judged by its beginning, some thousand bytes of which
/// are enough: a description begins with a node, RTF with a brace and a backslash, and a stylesheet
/// with another brace, blank lines and comments aside. Where something else stands first, it is RTF
/// when a backslash follows its first brace, a stylesheet when it has more braces than lines of the
/// description language and is not named .rtfspec, and a description when it has such lines. Where
/// the content does not tell, the name of the file does, by its extension; without one it is a
/// description.
CheckedLanguage languageOf(std::string_view beginning, std::string_view fileName = {});

/// The first line that is neither blank nor a comment, without the blanks around it; empty when
/// there is none.
std::string_view firstLineOf(std::string_view text);

/// The first line that is neither blank nor a comment, where it is one of a description; empty
/// where it is not.
std::string_view openingOfDescription(std::string_view text);

}  // namespace quorvane
