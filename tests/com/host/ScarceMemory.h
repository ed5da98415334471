#pragma once

#include <windows.h>

namespace quorvane::host {

/// Which allocations fail: one only, that one and the next, or all from that one on.
enum class Shortage { Once, Twice, FromThenOn };

/// Takes the place of what a module allocates with (the C library, and texts of automation), as
/// long as this lives, so that it can be made to fail. For one module and one thread at a time.
class ScarceMemory {
public:
    /// When the module allocates in some other way, the test ends with an exception.
    explicit ScarceMemory(HMODULE module);
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;
    ~ScarceMemory();

    /// The allocation of that number fails, and others as the shortage is; the next one is
    /// number 1.
    void begin(int number, Shortage shortage);
    /// Ends it; returns whether an allocation failed.
    bool end();

private:
    HMODULE module_;
};

}  // namespace quorvane::host
