#pragma once

#include <string>
#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane {

/// Returns a source that reads pictures from the folder of a file and the folders in it. The path
/// need not exist. A name with "..", a drive or a root leads outside, which is error 5 unless the
/// file is in one of the allowed folders or below it, links followed. A device or a pipe is error 5
/// too: reading it might never end. The platform must outlive the source.
PictureSource picturesBeside(const std::string& path, Platform& platform = systemPlatform(),
                             std::vector<std::string> allowedFolders = {});

}  // namespace quorvane
