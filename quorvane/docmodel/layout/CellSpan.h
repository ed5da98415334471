#pragma once

#include <cstdint>

namespace quorvane {

/// How many columns and rows a cell takes.
struct CellSpan {
    std::int32_t columns = 1;
    std::int32_t rows = 1;
};

}  // namespace quorvane
