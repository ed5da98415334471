#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quorvane {

/// How a call of the system that concerns a file fails.
enum class Fault {
    /// It fails with the error number, this one call only.
    Once,
    /// It and all later ones fail, as when a disk goes.
    FromThenOn,
    /// It and all later ones are cut short: a transfer moves one byte only.
    ShortTransfers,
};

/// Runs an action with the call of that number (from 0) and those calls after it that the fault
/// take along failing. The calls of the library, the command and the C++ library count: opening,
/// reading, writing, closing, renaming, removing and looking at files, folders and links. Returns
/// the calls that were made, by name.
std::vector<std::string> withFailingCall(std::size_t number, Fault fault, int error,
                                         const std::function<void()>& action);

}  // namespace quorvane
