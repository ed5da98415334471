#pragma once

#include <string>

#include "cli/CheckJob.h"

namespace quorvane::cli {

/// "3 errors, 2 warnings in 4 files" and a line break, preceded by the number of
/// fixes: "5 fixed, 1 warning in 1 file". Empty without diagnostics.
std::string checkSummary(const CheckCounts& counts);

}  // namespace quorvane::cli
