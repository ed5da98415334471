#pragma once

#include "cli/CheckOptions.h"
#include "cli/ExitStatus.h"

namespace quorvane::cli {

/// Runs `quorvane check` on the standard streams: findings go to standard output, files that cannot
/// be read to standard error. Throws `UsageError`.
ExitStatus check(const CheckOptions& options);

}  // namespace quorvane::cli
