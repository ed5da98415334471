#pragma once

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "tests/support/failEachAllocation.h"

// Replaces the global operator new, so that tests can let memory run out. Include it in exactly one
// source file of a test program.

namespace quorvane::failingAllocations {

inline void* allocate(std::size_t size) {
    if (successesLeft == 0) {
        return nullptr;
    }
    if (successesLeft > 0) {
        --successesLeft;
    }
    void* memory = std::malloc(size > 0 ? size : 1);
    if (memory) {
        ++living;
        livingBytes += static_cast<long>(::malloc_usable_size(memory));
        maxBytes = std::max(maxBytes, livingBytes);
    }
    return memory;
}

inline void giveBack(void* memory) {
    if (memory) {
        --living;
        livingBytes -= static_cast<long>(::malloc_usable_size(memory));
    }
    std::free(memory);
}

}  // namespace quorvane::failingAllocations

void* operator new(std::size_t size) {
    if (void* memory = quorvane::failingAllocations::allocate(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return quorvane::failingAllocations::allocate(size);
}

void operator delete(void* memory) noexcept {
    quorvane::failingAllocations::giveBack(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    quorvane::failingAllocations::giveBack(memory);
}
