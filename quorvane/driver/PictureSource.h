#pragma once

#include <functional>
#include <string>

namespace quorvane {

/// Returns the bytes of the picture file that a description names; throws an `RtfError` when there
/// is none or it may not be read.
using PictureSource = std::function<std::string(const std::string& name)>;

}  // namespace quorvane
