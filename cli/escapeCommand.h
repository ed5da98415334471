#pragma once

#include "cli/EscapeOptions.h"
#include "cli/ExitStatus.h"

namespace quorvane::cli {

/// Runs `quorvane escape`: writes each line of the files to standard output, escaped. Where a line
/// cannot be shown, nothing is written at all, so that no caller takes a part for the whole.
ExitStatus escape(const EscapeOptions& options);

}  // namespace quorvane::cli
