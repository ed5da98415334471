#pragma once

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// Throws the error of that number with the system's own one, a Windows error code, as its cause.
[[noreturn]] void raiseSystemError(RunTimeError number, unsigned long code);

/// The same, with the number that the system's error stands for.
[[noreturn]] void raiseSystemError(unsigned long code);

}  // namespace quorvane
