#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Returns the canonical form of a stylesheet (UTF-8). Each definition is on one line, or has one
/// item per line if it would be longer than a hundred characters; keywords are in lower case, one
/// blank follows ":" and ",", and there are no empty items. The text between definitions stays,
/// without blanks at the ends of its lines and with at most one blank line in a row. If a line ends
/// with CR LF, all lines do.
///
/// The result has the same meaning, and formatting it again changes nothing. A stylesheet with
/// unbalanced, nested or reversed braces stays as it is.
std::string formattedStyleSheet(std::string_view text);

}  // namespace quorvane
