#pragma once

#include <system_error>

namespace quorvane {

/// Raises error 57 with the failure as its cause, unless the failure means that there is nothing at
/// the path. It is for failures that leave unknown what is there, as when a disk breaks.
void throwUnlessAbsent(const std::error_code& failure);

}  // namespace quorvane
