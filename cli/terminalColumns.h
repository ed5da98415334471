#pragma once

#include <cstddef>
#include <string_view>

namespace quorvane::cli {

/// Returns how many columns of a terminal a UTF-8 text without control characters takes up: two for
/// each character of East Asia and each emoji, none for a mark that combines with the character
/// before it, and one for any other character.
std::size_t terminalColumns(std::string_view text);

}  // namespace quorvane::cli
