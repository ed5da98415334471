#pragma once

#include <string_view>

namespace quorvane {

/// True when the file name holds a wildcard, * or ?: it is a pattern of names.
bool hasWildcard(std::string_view text) noexcept;

/// True when the whole name matches the pattern: * stands for any number of characters, ? for one,
/// anything else for itself.
bool matchesFileNamePattern(std::string_view pattern, std::string_view name);

}  // namespace quorvane
