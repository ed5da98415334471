#pragma once

#include <string>

namespace quorvane::cli {

/// The license of Quorvane and the notices of what the command contains, as the files LICENSE and
/// THIRD-PARTY-NOTICES have them, without the last line break.
std::string licensesText();

}  // namespace quorvane::cli
