#pragma once

#include <optional>
#include <string_view>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {

/// The language of a file that can be formatted without harm: a description or a stylesheet;
/// nothing for any other file. The text is that of the file, in UTF-8.
///
/// A file named .rtfspec or .rtfss may lack much of its language, but it must not be written in
/// another one. Any other file is a description when its first line that is neither blank nor a
/// comment opens a node or is a leaf of a known key. It is a stylesheet when it begins with a
/// definition and one of its definitions has an item besides its name: many languages have braces,
/// and some have a name in them.
std::optional<CheckedLanguage> languageToFormat(std::string_view text, std::string_view fileName);

/// The same for a text without a file name, whose canonical form does not replace a file: a
/// stylesheet may begin with other text if one of its definitions has a name and a kind.
std::optional<CheckedLanguage> languageOfStreamToFormat(std::string_view text);

}  // namespace quorvane
