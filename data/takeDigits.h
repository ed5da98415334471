#pragma once

#include <string_view>

namespace quorvane::data {

/// Takes the digits from the beginning of a text and returns them.
std::string_view takeDigits(std::string_view& text);

}  // namespace quorvane::data
