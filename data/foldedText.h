#pragma once

#include <string>
#include <string_view>

namespace quorvane::data {

/// The text as it counts for its place in a sorted list: small letters, and Latin letters without
/// their accents; "ß" is "ss". All other characters stay as they are.
std::string foldedText(std::string_view utf8);

}  // namespace quorvane::data
