#pragma once

#include <functional>
#include <string>

namespace quorvane {

/// Returns the bytes of the picture file that a description names; throws an `RtfError` when there
/// is none or it may not be read.
using PictureSource = std::function<std::string(const std::string& name)>;

/// The source of a text that is not in a folder: error 5 for every name.
std::string noPictures(const std::string& name);

}  // namespace quorvane
