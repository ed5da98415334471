#pragma once

#include <string_view>

#include "quorvane/diagnostics/diagnosticRules.h"

namespace quorvane {

/// The language that a text is written in, judged by its beginning, some thousand bytes of which
/// are enough: RTF begins with a brace and a backslash, a description has lines of the description
/// language, a stylesheet has braces. A text that is nothing of all this counts as a description.
CheckedLanguage languageOf(std::string_view beginning);

}  // namespace quorvane
