#pragma once

#include <string>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/compose/Error.h"
#include "quorvane/compose/composing.h"

namespace quorvane::com {

// The errors of `Quorvane.Document`. Their numbers are promised: hosts compare them.

/// The error as a host gets it: with a number of its own for each kind, this source, and a
/// description that says where it is and what to write instead.
RtfError documentError(const Error& error);

/// Throws an error "wrong-value" or "wrong-call".
[[noreturn]] void refuseValue(std::string message);
[[noreturn]] void refuseIndex(std::string message);

/// Runs the body of a method of `Quorvane.Document` or of a part of it.
template <class Body>
decltype(auto) withDocumentErrors(Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (const Error& error) {
        throw documentError(error);
    } catch (const RtfError& error) {
        throw documentError(composedError(error));
    }
}

}  // namespace quorvane::com
