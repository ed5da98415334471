#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/stylesheet/ExtendedStyle.h"

namespace quorvane {

/// One definition of a stylesheet.
struct StyleDefinition {
    /// The names that share the definition, in lower case.
    std::vector<std::string> names;
    /// The definition as a record string, its subfields in the order of the items: "d" kind, "f"
    /// format, "b" based-on, "n" next, "a" additive, and "w" for the name as it is written.
    std::string record;
};

/// Reads a stylesheet and passes its definitions to `file` in order. Definitions before an error
/// are passed all the same. Errors: 31037 when the text does not have as many "{" as "}", 445 for a
/// bad keyword or value.
void parseStyleSheet(std::string_view text, const std::function<void(StyleDefinition)>& file);

/// Reads a stylesheet in the extended language. All of its styles are passed to `file`, one by one,
/// or none: the errors have the same numbers, and each has a line. Formats hold what the styles
/// inherit; that of a cell style is the color of its background. `tables` gives colors and fonts
/// their numbers, once the whole stylesheet has proved valid.
void parseExtendedStyleSheet(std::string_view text, DocumentTables& tables,
                             const std::function<void(StyleDefinition)>& file);

/// The styles of an extended stylesheet as definitions, for those who read one themselves.
StyleDefinition definitionOf(const ExtendedStyle& style, DocumentTables& tables);

}  // namespace quorvane
