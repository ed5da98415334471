#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// Appends the control words of a character in a group with `\uc1`: `\uN?` for each of its UTF-16
/// units, signed as readers expect them.
void appendUnicodeWords(char32_t code, std::string& rtf);

/// Returns the text with each run of characters that Windows-1252 lacks as a group `{\uc1\uN?…}`.
/// All others stay as they are, and so do bytes that are not UTF-8.
std::string withUnicodeWords(std::string_view text);

/// The same without groups, for a name at the end of an entry of a document's tables, where `\uc1`
/// holds as far as the group of the entry.
std::string nameWithUnicodeWords(std::string_view name);

/// Returns the first character of a text that Windows-1252 lacks; nothing when it has all of them.
std::optional<std::string_view> findBeyondCodePage1252(std::string_view text);

}  // namespace quorvane
