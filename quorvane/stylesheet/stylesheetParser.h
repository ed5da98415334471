#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// One definition of a stylesheet.
struct StyleDefinition {
    /// The names that share the definition, in lower case.
    std::vector<std::string> names;
    /// The definition as a record string, its subfields in the order of the items: "d" kind, "f"
    /// format, "b" based-on, "n" next, "a" additive.
    std::string record;
};

/// Reads a stylesheet and passes its definitions to `file` in order. Definitions before an error
/// are passed all the same. Errors: 31037 when the text does not have as many "{" as "}", 445 for a
/// bad keyword or value.
void parseStyleSheet(std::string_view text, const std::function<void(StyleDefinition)>& file);

}  // namespace quorvane
