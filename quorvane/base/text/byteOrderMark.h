#pragma once

#include <string_view>

namespace quorvane {

/// The text after the mark with which many programs begin a file in UTF-8: its bytes as they are
/// or as they read in Windows-1252. The whole text when it has no mark.
std::string_view afterByteOrderMark(std::string_view text);

}  // namespace quorvane
