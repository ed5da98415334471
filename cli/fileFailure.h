#pragma once

#include <string>

#include "cli/ReportedError.h"

namespace quorvane::cli {

/// A failure that has its cause in the system, which is the reason of a file's failure; any other
/// error has no reason.
ReportedError fileFailure(std::string shownName, RtfError error);

/// A file that cannot be read, reported under the name that is shown, with the system's reason,
/// which a look at its path gives in the same words on every system.
ReportedError unreadableFile(std::string shownName, const std::string& path, RtfError error);

/// A file that cannot be handled as requested, for a reason that is not the system's.
ReportedError refusal(const std::string& file, const std::string& why);

}  // namespace quorvane::cli
