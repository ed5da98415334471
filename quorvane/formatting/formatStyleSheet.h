#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The stylesheet (UTF-8) in its canonical form: each definition on lines of its own, on one line
/// when that is no longer than a hundred characters, otherwise one line for each item; keywords in
/// lower case, one blank after ":" and ",", no empty items. The text between definitions stays,
/// without blanks at the ends of its lines and with no more than one blank line in a row. All lines
/// end with CR LF if one does.
///
/// The result means the same, and formatting it again changes nothing. A stylesheet whose braces
/// do not alternate stays as it is.
std::string formattedStyleSheet(std::string_view text);

}  // namespace quorvane
