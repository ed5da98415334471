#pragma once

#include <string>
#include <string_view>

namespace quorvane::cli {

/// The UTF-8 text on one line, safe to show on a terminal: every run of line breaks, tabs and other
/// control characters becomes one blank.
std::string oneLine(std::string_view text);

}  // namespace quorvane::cli
