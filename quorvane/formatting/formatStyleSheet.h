#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The stylesheet (UTF-8) in its canonical form: each definition on lines of its own, on one line
/// where it is no longer than a hundred characters, otherwise an item a line; keywords in lower
/// case, one blank behind ":" and ",", no empty items. The text between definitions stays, without
/// blanks at the ends of its lines and with no more than one blank line in a row. All lines end
/// with CR LF where one does.
///
/// The result means the same, and formatting it again changes nothing. A stylesheet whose braces
/// are not balanced, nested or the wrong way round stays as it is.
std::string formattedStyleSheet(std::string_view text);

}  // namespace quorvane
