#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane::cli {

/// What a terminal is sent to show "2/12 letter.rtfspec" in place of its current line, or "2
/// letter.rtf" if the count is 0. The line is cut so that it stays one in so many columns.
std::string progressLine(std::size_t number, std::size_t count, std::string_view name,
                         std::size_t columns);

/// What a terminal is sent to empty its current line.
inline constexpr std::string_view erasedLine = "\r\x1b[K";

}  // namespace quorvane::cli
