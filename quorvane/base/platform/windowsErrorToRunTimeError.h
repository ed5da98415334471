#pragma once

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The run-time error that stands for what `GetLastError` returns for a failed file operation: 75
/// not permitted, held open or a folder, 53 no such file, 76 no such folder, 61 disk full, 67 too
/// many open files, 57 anything else.
RunTimeError windowsErrorToRunTimeError(unsigned long code) noexcept;

}  // namespace quorvane
