#pragma once

#include <cstddef>
#include <limits>

namespace quorvane::cli {

/// The records from one number to another, counted from 1.
struct RecordRange {
    std::size_t first = 1;
    std::size_t last = std::numeric_limits<std::size_t>::max();

    bool operator==(const RecordRange&) const = default;
};

}  // namespace quorvane::cli
