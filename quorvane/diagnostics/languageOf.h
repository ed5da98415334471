#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// Returns the language of a text. Its beginning is enough, some thousand bytes. Apart from blank
/// lines and comments, a description begins with a node, RTF with a brace and a backslash, and a
/// stylesheet with any other brace. If the text begins with anything else, it is RTF if a backslash
/// follows its first brace; a stylesheet if it has more braces than lines of the description
/// language and is not named .rtfspec; and a description if it has such lines. If the content does
/// not decide, the extension of the file name does; without one, the text is a description.
CheckedLanguage languageOf(std::string_view beginning, std::string_view fileName = {});

/// The first line that is neither blank nor a comment, without the blanks around it; empty when
/// every line is one or the other.
std::string_view firstLineOf(std::string_view text);

/// The same line if it opens a node or is a leaf of a description; otherwise empty.
std::string_view openingOfDescription(std::string_view text);

}  // namespace quorvane
