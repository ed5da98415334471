#pragma once

#include <string>
#include <system_error>

#include "cli/ReportedError.h"

namespace quorvane::cli {

/// A failure that has its cause in the system, which is the reason of a file's failure; any other
/// error has no reason.
ReportedError fileFailure(std::string shownName, RtfError error);

/// A file that cannot be read, reported under the name that is shown. Its path serves to find out
/// the system's reason where the error does not have it.
ReportedError unreadableFile(std::string shownName, const std::string& path, RtfError error);

/// Why the system does not let a file be read; no error when it is not the system that does not.
std::error_code whyUnreadable(const std::string& path);

}  // namespace quorvane::cli
