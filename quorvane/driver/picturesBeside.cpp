#include "quorvane/driver/picturesBeside.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/staysWithinFolder.h"

namespace quorvane {

namespace {

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
        const std::filesystem::path folder =
            std::filesystem::canonical(pathFromUtf8(name), missing);
        return !missing && !failure && isBelow(folder, file);
    });
}

bool isNeitherFileNorFolder(const std::filesystem::path& path) {
    std::error_code failure;
    return std::filesystem::is_other(path, failure);
}

[[noreturn]] void refuse(const char* why) {
    raise(RunTimeError::InvalidProcedureCall, why);
}

}  // namespace

PictureSource picturesBeside(const std::string& path, Platform& platform,
                             std::vector<std::string> allowedFolders) {
    return [folder = pathFromUtf8(path).parent_path(), &platform,
            allowed = std::move(allowedFolders)](const std::string& name) {
        const std::filesystem::path file = folder / pathFromUtf8(name);
        if (!staysWithinFolder(name) && !isBelowOneOf(allowed, file)) {
            refuse(
                "The picture is not in the folder of the description; move it there or allow its "
                "folder");
        }
        if (isNeitherFileNorFolder(file)) {
            refuse("The picture is a pipe or a device; name a file");
        }
        return platform.readFile(utf8FromPath(file));
    };
}

}  // namespace quorvane
