#include "cli/followLinks.h"

#include <system_error>

namespace quorvane::cli {

std::filesystem::path followLinks(const std::filesystem::path& path) {
    constexpr int mostLinks = 40;
    std::filesystem::path target = path;
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code failure;
        if (!std::filesystem::is_symlink(target, failure)) {
            return target;
        }
        // A relative link begins at its own folder; an absolute one takes the whole path's place.
        target = target.parent_path() / std::filesystem::read_symlink(target, failure);
    }
    return path;
}

}  // namespace quorvane::cli
