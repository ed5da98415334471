#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quorvane::host {

/// How calls of the system that concern files fail.
struct Failure {
    /// Whether all later ones fail, too, as when a disk goes.
    bool isForGood;
    /// The system's error.
    DWORD error;
};

/// Runs an action with the call of that number (from 0) failing, of those that this program makes
/// to open, read, write, close, replace, move, remove or look at files. Returns the calls that were
/// made, by name.
std::vector<std::string> withFailingCall(std::size_t number, const Failure& failure,
                                         const std::function<void()>& action);

}  // namespace quorvane::host
