#pragma once

#include <string>
#include <utility>

#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

/// Throws the run-time error 5 for a request or a value that cannot be used. `why` is what is wrong
/// and what to write instead: sentences.
[[noreturn]] inline void refuse(std::string why) {
    raise(RunTimeError::InvalidProcedureCall, std::move(why));
}

}  // namespace quorvane::data
