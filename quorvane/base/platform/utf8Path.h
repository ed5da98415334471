#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvane {

/// The path that a name in UTF-8 stands for.
inline std::filesystem::path pathFromUtf8(std::string_view name) {
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

/// The path's name in UTF-8.
inline std::string utf8FromPath(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

}  // namespace quorvane
