#pragma once

#include <string>

#include "cli/CheckJob.h"

namespace quorvane::cli {

/// "3 errors, 2 warnings in 4 files" and a line break, with what was fixed where something was:
/// "5 fixed, 1 warning in 1 file". Empty when nothing was found.
std::string checkSummary(const CheckCounts& counts);

}  // namespace quorvane::cli
