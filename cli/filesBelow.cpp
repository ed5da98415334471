#include "cli/filesBelow.h"

#include <algorithm>
#include <filesystem>

#include "cli/utf8Path.h"
#include "quorvane/base/text/textCase.h"

namespace quorvane::cli {

namespace {

namespace fs = std::filesystem;

bool isHidden(const fs::path& path) {
    return utf8FromPath(path.filename()).starts_with('.');
}

bool isChecked(const fs::path& path) {
    const std::string extension = lowerCase(utf8FromPath(path.extension()));
    return extension == ".rtfspec" || extension == ".rtfss" || extension == ".rtf";
}

}  // namespace

FolderContents filesBelow(const std::string& folder) {
    FolderContents contents;
    std::vector<fs::path> files;
    std::vector<fs::path> folders{pathFromUtf8(folder)};
    while (!folders.empty()) {
        const fs::path current = std::move(folders.back());
        folders.pop_back();
        std::error_code failure;
        fs::directory_iterator entry(current, failure);
        for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
            const fs::path& path = entry->path();
            // What cannot be looked at, such as a link that leads nowhere, is neither.
            std::error_code unknown;
            if (isHidden(path)) {
                continue;
            }
            if (entry->is_directory(unknown) && !entry->is_symlink(unknown)) {
                folders.push_back(path);
            } else if (isChecked(path) && entry->is_regular_file(unknown)) {
                files.push_back(path);
            }
        }
        if (failure) {
            contents.failures.emplace_back(utf8FromPath(current), failure);
        }
    }
    std::sort(files.begin(), files.end());
    std::transform(files.begin(), files.end(), std::back_inserter(contents.files), utf8FromPath);
    return contents;
}

}  // namespace quorvane::cli
