#pragma once

#include <filesystem>

namespace quorvane::cli {

/// The path that a path leads to when it names a symbolic link, also when nothing is there yet. A
/// path that is no link is answered as it is, and so is one whose links lead in a circle. Error 57
/// when it cannot be told whether it is a link, as on a disk that fails.
std::filesystem::path followLinks(const std::filesystem::path& path);

}  // namespace quorvane::cli
