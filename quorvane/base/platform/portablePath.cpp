#include "quorvane/base/platform/portablePath.h"

namespace quorvane {

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

std::optional<struct stat> statusOf(const std::string& path) noexcept {
    struct stat status {};
    if (::stat(path.c_str(), &status) == -1) {
        return std::nullopt;
    }
    return status;
}

}  // namespace quorvane
