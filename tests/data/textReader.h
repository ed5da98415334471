#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

#include "data/recordsText.h"

namespace quorvane::data {

/// Reads these bytes, so many at a time at most.
inline BlockReader readerOf(std::string bytes, std::size_t atATime = std::string::npos) {
    return [bytes = std::move(bytes), atATime, at = std::size_t{0}](std::span<char> block) mutable {
        const std::size_t count = std::min({block.size(), atATime, bytes.size() - at});
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), count, block.begin());
        at += count;
        return count;
    };
}

}  // namespace quorvane::data
