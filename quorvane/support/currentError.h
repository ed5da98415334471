#pragma once

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The calling thread's current error: the last one with which a published procedure ended, whether
/// it raised it, reported it through an event or absorbed it. It stays until the next public call
/// on that thread begins. Null when there is none. The pointer is good until the next call into the
/// library.
const RtfError* currentError() noexcept;

/// Makes the error the thread's current one.
void setCurrentError(const RtfError& error);

/// Forgets the thread's current error.
void clearCurrentError() noexcept;

}  // namespace quorvane
