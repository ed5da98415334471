#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace quorvane {

/// The folder part of a path with its "/"; "./" for a path without one.
std::string folderOf(const std::string& path);

/// What a path leads to, past all links; nothing, with the reason in `errno`, where it leads
/// nowhere.
std::optional<struct stat> statusOf(const std::string& path) noexcept;

}  // namespace quorvane
