#pragma once

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The calling thread's current error: the one raised last, readable until the next public call on
/// that thread begins. Null when there is none. An event handler finds here what it is told of. The
/// pointer is good until the next call into the library.
const RtfError* currentError() noexcept;

/// Makes the error the thread's current one.
void setCurrentError(const RtfError& error);

/// Forgets the thread's current error. Every public call that can fail begins with it.
void clearCurrentError() noexcept;

}  // namespace quorvane
