#include "quorvane/driver/picturesBeside.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

namespace {

constexpr std::string_view separators = "/\\";

std::filesystem::path pathOf(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string utf8Text(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
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
    return [folder = pathOf(path).parent_path(), &platform](const std::string& name) {
        if (!staysWithinFolder(name)) {
            raise(RtfError(
                static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall),
                "\"" + name + "\" is not in the folder of the description; move it there"));
        }
        return platform.readFile(utf8Text(folder / pathOf(name)));
    };
}

}  // namespace quorvane
