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

}  // namespace

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

std::string noPictures(const std::string&) {
    raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall),
                   "a text that is not read from a file has no pictures beside it; set a source of "
                   "pictures"));
}

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
