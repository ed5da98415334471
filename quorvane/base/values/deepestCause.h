#pragma once

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The error from which all others came, for its reason; the error itself if it has no cause.
inline const RtfError& deepestCause(const RtfError& error) {
    const RtfError* deepest = &error;
    while (deepest->cause) {
        deepest = deepest->cause.get();
    }
    return *deepest;
}

}  // namespace quorvane
