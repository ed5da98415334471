#pragma once

#include <utility>

#include "quorvane/support/currentError.h"

namespace quorvane {

/// Runs the body of a published procedure that can fail: it begins without a current error, and an
/// error that leaves it is the thread's current one. Below, errors are exceptions and nothing else.
template <class Body>
decltype(auto) published(Body&& body) {
    clearCurrentError();
    try {
        return std::forward<Body>(body)();
    } catch (const RtfError& error) {
        setCurrentError(error);
        throw;
    }
}

}  // namespace quorvane
