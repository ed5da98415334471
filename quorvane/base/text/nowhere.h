#pragma once

#include <cstddef>
#include <string_view>

namespace quorvane {

/// The position of what is not in a text.
inline constexpr std::size_t nowhere = std::string_view::npos;

}  // namespace quorvane
