#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// Returns the text that shows exactly the given UTF-8, for the object model:
/// `paragraph->setText(rtfText(name))`. The text of a paragraph is raw RTF, so a brace or a
/// backslash in a name would damage the document, and a `<` could begin an inline style: pass all
/// data through this function. The result can also stand within an inline style.
///
/// The result is ASCII: a backslash before `\`, `{` and `}`; `\'3C` and `\'3E` for `<` and `>`;
/// `\tab ` for a tab and `\line ` for a line break (CR, LF or both); an empty group between blanks
/// in a row, which LibreOffice would change otherwise; `\'A0` to `\'FF` for the characters of these
/// numbers, and `{\uc1\uN?}` for all others, with signed 16-bit units, two for a character beyond
/// U+FFFF.
///
/// Error 5 where `findUnshowable` finds something; its description says what and at which byte.
std::string rtfText(std::string_view utf8);

/// Appends `rtfText(utf8)` to a text. After an error, a part of it is appended.
void appendRtfText(std::string_view utf8, std::string& rtf);

/// Does the same for a text in a description: `"(pt=" + descriptionText(name) + ")"`. It also
/// writes `)`, which would end the value, as `\'29`, and empty groups beside blanks at the ends,
/// which a description leaves out.
std::string descriptionText(std::string_view utf8);

/// What keeps a text from being shown: a control character other than a tab, a carriage return or a
/// line feed, or bytes that are not UTF-8.
struct Unshowable {
    /// The byte where it begins, from 0.
    std::size_t position;
    /// A sentence about it, without a full stop.
    std::string message;
};

/// Returns the first such thing in a text; nothing when all of it can be shown.
std::optional<Unshowable> findUnshowable(std::string_view utf8);

}  // namespace quorvane
