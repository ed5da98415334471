#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The RTF of a text with the characters of `\u` as they are, and without the numbers of character
/// styles: as it can stand in an extended description.
std::string plainRawRtf(std::string_view rtf);

}  // namespace quorvane
