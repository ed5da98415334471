#include "quorvane/base/platform/followLinks.h"

#include <system_error>

#include "quorvane/base/platform/throwUnlessAbsent.h"

namespace quorvane {

std::filesystem::path followLinks(const std::filesystem::path& path) {
    constexpr int maxLinks = 40;
    std::filesystem::path target = path;
    for (int links = 0; links < maxLinks; ++links) {
        std::error_code failure;
        const bool isLink = std::filesystem::is_symlink(target, failure);
        throwUnlessAbsent(failure);
        if (!isLink) {
            return target;
        }
        // A relative link begins at its own folder; an absolute one takes the whole path's place.
        const std::filesystem::path next = std::filesystem::read_symlink(target, failure);
        throwUnlessAbsent(failure);
        target = target.parent_path() / next;
    }
    return path;
}

}  // namespace quorvane
