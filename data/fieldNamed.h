#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// The position of the field of that name. Error 5 if there is none, or more than one.
std::size_t fieldNamed(std::string_view name, const std::vector<std::string>& names);

}  // namespace quorvane::data
