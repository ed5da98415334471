#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/compose/Error.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

// How the errors of the classes underneath become those of the modern interface.

namespace quorvane {

/// An error of the classes underneath.
Error composedError(const RtfError& error);

/// An error of a file, with the reason of the system.
Error fileError(const std::string& path, std::string_view identifier, const RtfError& error);

/// The error of a text that was refused: its first error. There is one at least.
Error contentError(const std::string& file, std::vector<Diagnostic> diagnostics);

/// An error of an index or a key that does not exist, or of an object that is no longer there.
[[noreturn]] void refuseCall(std::string message);

/// Runs the body of a function of the modern interface.
template <class Body>
decltype(auto) composing(Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (const RtfError& error) {
        throw composedError(error);
    }
}

}  // namespace quorvane
