#pragma once

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The run-time error that stands for the system's error code of a failed file operation: 75 not
/// permitted, busy or a folder, 53 no such file, 76 a part of the path is not a folder, 61 disk
/// full, 67 too many open files, 57 anything else.
RunTimeError errnoToRunTimeError(int code) noexcept;

}  // namespace quorvane
