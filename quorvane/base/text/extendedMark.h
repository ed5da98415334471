#pragma once

#include <string_view>

namespace quorvane {

/// The first line of a text in the extended language. In the original language it is a comment.
inline constexpr std::string_view extendedMark = "; quorvane 2";

/// Returns whether the first line of a text is the mark of the extended language. There may be
/// blanks and tabs around it and after its ";", and a byte order mark of UTF-8 before it, as it is
/// or as it reads in Windows-1252.
bool isMarkedExtended(std::string_view text);

}  // namespace quorvane
