#pragma once

#include <optional>
#include <string_view>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// The language in whose form a file may be put without harm: a description or a stylesheet, none
/// for anything else. The text is the file's, in UTF-8.
///
/// A file named .rtfspec or .rtfss may lack much of its language, but not be written in another
/// one. Any other is a description when its first line that is neither blank nor a comment opens a
/// node or is a leaf of a known key, and a stylesheet when it begins with a definition, of which
/// one has an item beside its name: many languages have braces, and some a name in them.
std::optional<CheckedLanguage> languageToFormat(std::string_view text, std::string_view fileName);

/// The same of a text that has no name and whose canonical form takes no file's place: a stylesheet
/// may begin with other text where one of its definitions has a name and a kind.
std::optional<CheckedLanguage> languageOfStreamToFormat(std::string_view text);

}  // namespace quorvane
