#pragma once

#include <string_view>

namespace quorvane {

/// What to do about a file in UTF-16, for hints.
inline constexpr std::string_view utf16Hint = "the file is in UTF-16; save it in Windows-1252";

/// True for the bytes of a file in UTF-16, as they are or as they read in Windows-1252.
bool isUtf16(std::string_view text);

}  // namespace quorvane
