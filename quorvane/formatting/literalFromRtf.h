#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// The literal text with the characters of a text in RTF and with its inline styles, where those
/// that are no styles of the stylesheet have no effect; nothing for a text with other control
/// words.
std::optional<std::string> literalFromRtf(
    std::string_view rtf, const std::function<bool(std::string_view name)>& isStyle);

/// The end of the words at the beginning of a text in RTF that format it.
std::size_t endOfLeadingFormat(std::string_view rtf);

/// True for a text of blanks and of characters that take up no room.
bool isInvisibleText(std::string_view utf8);

}  // namespace quorvane
