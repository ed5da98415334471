#pragma once

#include <cstdlib>
#include <new>

// Replaces the global operator new, so that tests can let memory run out. Include it in exactly one
// source file of a test program.

namespace quorvane {

namespace failingAllocations {

// Allocations that still succeed; negative while none is to fail.
inline thread_local long successesLeft = -1;

// Allocations of this thread that nobody gave back yet.
inline thread_local long living = 0;

inline void* allocate(std::size_t size) {
    if (successesLeft == 0) {
        return nullptr;
    }
    if (successesLeft > 0) {
        --successesLeft;
    }
    void* memory = std::malloc(size > 0 ? size : 1);
    living += memory ? 1 : 0;
    return memory;
}

inline void giveBack(void* memory) {
    living -= memory ? 1 : 0;
    std::free(memory);
}

}  // namespace failingAllocations

/// Runs an attempt again and again. In the first run its first allocation fails, in the second run
/// the second one, and so on until a run is not short of memory; so everything must be prepared
/// anew in `prepare`, whose result `attempt` and then, after a failure, `check` are called with.
/// Returns how many runs failed.
template <class Prepare, class Attempt, class Check>
int failEachAllocation(Prepare prepare, Attempt attempt, Check check) {
    for (int failures = 0;; ++failures) {
        auto subject = prepare();
        bool failed = false;
        failingAllocations::successesLeft = failures;
        try {
            attempt(subject);
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        failingAllocations::successesLeft = -1;
        if (!failed) {
            return failures;
        }
        check(subject);
    }
}

}  // namespace quorvane

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
