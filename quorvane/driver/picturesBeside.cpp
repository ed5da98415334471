#include "quorvane/driver/picturesBeside.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/staysWithinFolder.h"

namespace quorvane {

namespace {

std::filesystem::path pathOf(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string utf8Text(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

/// True for a file in the folder or below it, wherever links lead.
bool isBelow(const std::filesystem::path& folder, const std::filesystem::path& file) {
    const auto [inFolder, inFile] =
        std::mismatch(folder.begin(), folder.end(), file.begin(), file.end());
    return inFolder == folder.end() && inFile != file.end();
}

bool isBelowOneOf(const std::vector<std::string>& folders, const std::filesystem::path& path) {
    std::error_code failure;
    const std::filesystem::path file = std::filesystem::weakly_canonical(path, failure);
    return std::any_of(folders.begin(), folders.end(), [&](const std::string& name) {
        std::error_code missing;
        const std::filesystem::path folder = std::filesystem::canonical(pathOf(name), missing);
        return !missing && !failure && isBelow(folder, file);
    });
}

bool isNeitherFileNorFolder(const std::filesystem::path& path) {
    std::error_code failure;
    return std::filesystem::is_other(path, failure);
}

[[noreturn]] void refuse(const char* why) {
    raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), why));
}

}  // namespace

PictureSource picturesBeside(const std::string& path, Platform& platform,
                             std::vector<std::string> allowedFolders) {
    return [folder = pathOf(path).parent_path(), &platform,
            allowed = std::move(allowedFolders)](const std::string& name) {
        const std::filesystem::path file = folder / pathOf(name);
        if (!staysWithinFolder(name) && !isBelowOneOf(allowed, file)) {
            refuse(
                "The picture is not in the folder of the description; move it there or allow its "
                "folder");
        }
        if (isNeitherFileNorFolder(file)) {
            refuse("The picture is a pipe or a device; name a file");
        }
        return platform.readFile(utf8Text(file));
    };
}

}  // namespace quorvane
