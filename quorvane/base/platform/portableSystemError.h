#pragma once

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// Throws the error of that number with the system's own one, an `errno` value, as its cause.
[[noreturn]] void raiseSystemError(RunTimeError number, int code);

/// The same, with the number that the system's error stands for.
[[noreturn]] void raiseSystemError(int code);

}  // namespace quorvane
