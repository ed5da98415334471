#pragma once

#include <string>

namespace quorvane::cli {

/// A description of one cell with the text.
inline std::string descriptionOf(const std::string& text) {
    return "(doc\r\n(r\r\n(c\r\n(p\r\n(pt=" + text + ")\r\np)\r\nc)\r\nr)\r\ndoc)\r\n";
}

/// A description with one error, whether it is checked or not: line 3 has an unknown color.
inline const std::string descriptionWithBadColor =
    "(doc\n(r\n(rb=crimson)\n(c\n(p\n(pt=Text)\np)\nc)\nr)\ndoc)\n";

/// A stylesheet of one style, and one with an unknown keyword.
inline const std::string goodStyleSheet = "{name: normal; style-def: s; format: \\f0\\fs24\\cf3}";
inline const std::string badStyleSheet = "{nam: normal; style-def: s; format: \\f0\\fs24\\cf3}";

}  // namespace quorvane::cli
