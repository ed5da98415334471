#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// What the value of a key that takes a number was most likely meant to be, such as a number with a
/// unit; the key is in its long form.
std::string numberHint(std::string_view key, std::string_view value);

}  // namespace quorvane
