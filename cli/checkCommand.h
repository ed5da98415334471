#pragma once

#include "cli/CheckOptions.h"
#include "cli/ExitStatus.h"

namespace quorvane::cli {

/// Runs `quorvane check` on the standard streams: diagnostics go to standard output, files that
/// cannot be read or written to standard error. Where standard output is for a diff or for the
/// fixed text of standard input, diagnostics go to standard error too. Throws `UsageError`.
ExitStatus check(const CheckOptions& options);

}  // namespace quorvane::cli
