#pragma once

#include <string>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane {

/// Returns a source that reads pictures from the folder of a file and the folders in it. The path
/// need not exist. A name with "..", a drive or a root leads outside, which is error 5. The
/// platform must outlive the source.
PictureSource picturesBeside(const std::string& path, Platform& platform = systemPlatform());

}  // namespace quorvane
