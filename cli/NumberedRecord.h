#pragma once

#include <cstddef>
#include <cstdint>

#include "data/DataValue.h"

namespace quorvane::cli {

/// A record among others.
struct NumberedRecord {
    /// From 1.
    std::size_t number = 0;
    /// Of the file with the data, where it begins.
    std::int64_t line = 0;
    data::DataValue value = {};
};

}  // namespace quorvane::cli
