#pragma once

#include <windows.h>

#include <ostream>
#include <string>

#include "tests/com/host/Variant.h"

namespace quorvane::host {

/// An error as a host gets it.
struct HostError {
    HRESULT number = S_OK;
    std::string source;
    std::string description;
    DWORD helpContext = 0;

    bool operator==(const HostError&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const HostError& error);

/// How a host sees a run-time error of that number.
constexpr HRESULT runTimeError(unsigned long number) {
    return static_cast<HRESULT>(0x800A0000UL + number);
}

/// What a call returns: a value, or an error.
struct Outcome {
    HostError error;
    Variant value;

    bool succeeded() const { return SUCCEEDED(error.number); }
};

/// The thread's error object, which reading removes, under the given number.
HostError takeErrorObject(HRESULT number);

/// The outcome of an early-bound call that returns a status.
Outcome outcomeOf(HRESULT status);

}  // namespace quorvane::host
