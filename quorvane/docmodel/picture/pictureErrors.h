#pragma once

#include <string>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// Error 5 with this description.
[[noreturn]] inline void refusePicture(const std::string& description) {
    raise(RunTimeError::InvalidProcedureCall, description);
}

}  // namespace quorvane
