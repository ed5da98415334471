#pragma once

#include <string>

#include "quorvane/base/platform/Platform.h"

namespace quorvane {

/// The bytes of a file. Error "unreadable-file" with the reason of the system.
std::string readWholeFile(const std::string& path, Platform& platform);

/// The text of a file, in UTF-8 or Windows-1252, as UTF-8. Errors as for `readWholeFile`.
std::string readWholeText(const std::string& path, Platform& platform);

}  // namespace quorvane
