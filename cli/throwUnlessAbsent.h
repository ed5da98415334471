#pragma once

#include <system_error>

namespace quorvane::cli {

/// Raises error 57 with its cause when a look at a path failed so that it is not known what is
/// there, as when a disk goes. A path that leads nowhere is an answer.
void throwUnlessAbsent(const std::error_code& failure);

}  // namespace quorvane::cli
