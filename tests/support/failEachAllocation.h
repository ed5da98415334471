#pragma once

#include <cstddef>
#include <new>
#include <utility>

// How tests let memory run out, in a program one of whose files includes failingAllocations.h.

namespace quorvane {

namespace failingAllocations {

// Allocations that still succeed; negative while none is to fail.
inline thread_local long successesLeft = -1;

// Allocations of this thread that nobody gave back yet.
inline thread_local long living = 0;

// The memory in these, and the most that there was at once.
inline thread_local long livingBytes = 0;
inline thread_local long maxBytes = 0;

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

/// While it exists, memory does not run out.
class UnlimitedMemory {
public:
    UnlimitedMemory() : successesLeft_(std::exchange(failingAllocations::successesLeft, -1)) {}
    UnlimitedMemory(const UnlimitedMemory&) = delete;
    UnlimitedMemory& operator=(const UnlimitedMemory&) = delete;
    ~UnlimitedMemory() { failingAllocations::successesLeft = successesLeft_; }

private:
    long successesLeft_;
};

/// The most memory that a call has at once, beyond what is there before it.
template <class Call>
long mostMemoryOf(Call&& call) {
    const long before = failingAllocations::livingBytes;
    failingAllocations::maxBytes = before;
    call();
    return failingAllocations::maxBytes - before;
}

}  // namespace quorvane
