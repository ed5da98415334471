#pragma once

#include <windows.h>

namespace quorvane::com {

/// Holds a lock of the system as long as it lives.
class Lock {
public:
    explicit Lock(SRWLOCK& lock) noexcept : lock_(lock) { AcquireSRWLockExclusive(&lock_); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock() { ReleaseSRWLockExclusive(&lock_); }

private:
    SRWLOCK& lock_;
};

}  // namespace quorvane::com
