#pragma once

#include <cstddef>
#include <string>

#include "cli/ReportedError.h"

namespace quorvane::cli {

/// The error for a person, on one line without its end:
/// "letter.rtfspec:12: error: crimson isn't a recognized color.", followed by its cause in
/// parentheses; or, for a file that cannot be read or written, the system's reason alone:
/// "letter.rtfspec: No such file or directory".
std::string errorText(const ReportedError& reported);

/// What a message about a record begins with: "record 17: "; empty for 0.
std::string recordText(std::size_t record);

}  // namespace quorvane::cli
