#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace quorvane::host {

/// Collects what this process writes to the debug output, as a debugger sees it: the system raises
/// an exception for each text. Only one object of this class can exist at a time.
class DebugOutput {
public:
    DebugOutput();
    DebugOutput(const DebugOutput&) = delete;
    DebugOutput& operator=(const DebugOutput&) = delete;
    ~DebugOutput();

    /// The texts in UTF-8, in order.
    const std::vector<std::string>& lines() const;

private:
    void* handler_;
};

}  // namespace quorvane::host
