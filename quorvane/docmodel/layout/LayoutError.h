#pragma once

#include <cstddef>
#include <utility>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// Why rows cannot be laid out.
struct LayoutError : RtfError {
    LayoutError(RtfError error, std::size_t position) : RtfError(std::move(error)), row(position) {}

    /// Position of the row in which it shows, from 1.
    std::size_t row;
};

}  // namespace quorvane
