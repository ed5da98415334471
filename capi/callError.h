#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "quorvane/base/values/RtfError.h"

namespace quorvane::capi {

/// A call with wrong arguments, or one that cannot be made at this point.
struct CallError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A callback stopped the call.
struct Stopped {};

/// A file that cannot be written.
struct FileFailure {
    std::string path;
    RtfError error;
};

/// Runs what writes a file; its errors are about the file.
template <class Action>
auto writingFile(const std::string& path, Action&& action) {
    try {
        return std::forward<Action>(action)();
    } catch (const RtfError& error) {
        throw FileFailure{path, error};
    }
}

}  // namespace quorvane::capi
