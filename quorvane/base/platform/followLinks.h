#pragma once

#include <filesystem>

namespace quorvane {

/// The path that a path leads to when it names a symbolic link, also when nothing is there yet. A
/// path that is not a link is returned unchanged, and so is one whose links form a circle. Error 57
/// if the system cannot say whether it is a link, as on a failing disk.
std::filesystem::path followLinks(const std::filesystem::path& path);

}  // namespace quorvane
