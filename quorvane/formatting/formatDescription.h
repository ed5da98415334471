#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The forms of names of nodes and keys: as they are, or the long or short ones.
enum class NameForm { Kept, Long, Short };

/// Returns the canonical form of a description (UTF-8). The lines of a node are indented by two
/// blanks more than the node; names of nodes are in lower case; there are no blanks around keys and
/// values, one blank before a comment, and at most one blank line in a row. If a line ends with CR
/// LF, all lines do. Comments stay, and so do lines that are not of the language. In the extended
/// language, values of several lines stay as they are, with the blanks at the ends of their lines.
///
/// The result has the same meaning, and formatting it again changes nothing: a driver builds the
/// same document from it and raises as many errors, whose texts may quote a line in its new form.
/// If names in another form or in lower case would change the meaning (the repair recognizes short
/// forms only), all names stay as they are.
std::string formattedDescription(std::string_view text, NameForm names = NameForm::Kept);

}  // namespace quorvane
