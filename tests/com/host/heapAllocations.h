#pragma once

#include <cstddef>

namespace quorvane::host {

/// What is allocated on all heaps of the process.
struct HeapAllocations {
    std::size_t count = 0;
    std::size_t bytes = 0;
};

HeapAllocations heapAllocations();

}  // namespace quorvane::host
