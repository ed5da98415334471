#pragma once

#include <string>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane {

/// Reads pictures from the folder of a file and the folders in it. A name with "..", a drive or a
/// root leads outside, which is error 5. The platform must outlive the source.
PictureSource picturesBeside(const std::string& path, Platform& platform);

/// True for a name that stays within the folder that it is looked up in.
bool staysWithinFolder(const std::string& name);

}  // namespace quorvane
