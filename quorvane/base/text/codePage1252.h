#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Returns the text in UTF-8 that bytes in code page 1252 stand for. The five bytes that the code
/// page leaves undefined (81, 8D, 8F, 90, 9D) stand for the control characters of the same number.
std::string utf8FromCodePage1252(std::string_view bytes);

/// Returns the text in code page 1252, the inverse of `utf8FromCodePage1252`. A character that the
/// code page lacks becomes "?", and so does each byte that is not well-formed UTF-8.
std::string codePage1252FromUtf8(std::string_view text);

/// Appends the text in code page 1252 to the bytes, as `codePage1252FromUtf8` gives it.
void appendCodePage1252(std::string_view text, std::string& bytes);

}  // namespace quorvane
