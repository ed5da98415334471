#include "quorvane/driver/picturesBeside.h"

#include <cstddef>
#include <string_view>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

namespace {

constexpr std::string_view separators = "/\\";

std::string folderOf(const std::string& path) {
    const std::size_t separator = path.find_last_of(separators);
    return separator == std::string::npos ? std::string() : path.substr(0, separator + 1);
}

/// True for a name that stays within the folder that it is looked up in.
bool staysWithinFolder(const std::string& name) {
    std::string_view rest = name;
    if (rest.empty() || separators.find(rest.front()) != std::string_view::npos ||
        rest.find(':') != std::string_view::npos) {
        return false;
    }
    for (;;) {
        const std::size_t end = rest.find_first_of(separators);
        if (rest.substr(0, end) == "..") {
            return false;
        }
        if (end == std::string_view::npos) {
            return true;
        }
        rest.remove_prefix(end + 1);
    }
}

}  // namespace

PictureSource picturesBeside(const std::string& path, Platform& platform) {
    return [folder = folderOf(path), &platform](const std::string& name) {
        if (!staysWithinFolder(name)) {
            raise(RtfError(
                static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall),
                "\"" + name + "\" is not in the folder of the description; move it there"));
        }
        return platform.readFile(folder + name);
    };
}

}  // namespace quorvane
