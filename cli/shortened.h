#pragma once

#include <string>
#include <string_view>

namespace quorvane::cli {

/// The UTF-8 text as a person wants to read it: of one that is longer than 200 characters, such as
/// a message that repeats a long line, the beginning and the end with "…" between them.
std::string shortened(std::string_view text);

}  // namespace quorvane::cli
