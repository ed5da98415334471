#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Which forms the names of nodes and keys take: those that they have, or the long or short ones
/// where there are two.
enum class NameForm { Kept, Long, Short };

/// The description (UTF-8) in its canonical form: each node's lines two blanks further in than the
/// node, names of nodes in lower case, no blanks around keys and values, one blank before a
/// comment, no more than one blank line in a row, and CR LF at the ends of all lines where one has
/// it. Comments stay. Lines that are no lines of the language stay as they are.
///
/// The result means the same, and formatting it again changes nothing: a driver makes the same
/// document of it and raises as many errors, whose texts may repeat a line in its new form. Where
/// names in another form or in lower case would mean something else (the repair sees short forms
/// only), all names stay as they are.
std::string formattedDescription(std::string_view text, NameForm names = NameForm::Kept);

}  // namespace quorvane
