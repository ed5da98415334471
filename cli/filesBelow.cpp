#include "cli/filesBelow.h"

#include <algorithm>
#include <filesystem>

#include "cli/RenderOptions.h"
#include "cli/fileFailure.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/textCase.h"

namespace quorvane::cli {

namespace {

namespace fs = std::filesystem;

bool isHidden(const fs::path& path) {
    return utf8FromPath(path.filename()).starts_with('.');
}

using Extensions = std::span<const std::string_view>;

bool hasExtension(const fs::path& path, Extensions extensions) {
    const std::string extension = lowerCase(utf8FromPath(path.extension()));
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

/// ".rtfspec, .rtfss or .rtf".
std::string listed(Extensions extensions) {
    std::string text;
    for (std::size_t i = 0; i < extensions.size(); ++i) {
        text += (i == 0 ? "" : i + 1 < extensions.size() ? ", " : " or ");
        text += extensions[i];
    }
    return text;
}

ReportedError unreadableFolder(const fs::path& folder, const std::error_code& failure) {
    RtfError error(RunTimeError::PathFileAccessError);
    error.cause = std::make_shared<RtfError>(failure.value(), failure.message());
    return fileFailure(utf8FromPath(folder), error);
}

}  // namespace

bool isFolder(const std::string& path) {
    std::error_code failure;
    return path != standardStream && fs::is_directory(pathFromUtf8(path), failure);
}

FolderContents filesBelow(const std::string& folder, Extensions extensions) {
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
            } else if (hasExtension(path, extensions) && entry->is_regular_file(unknown)) {
                files.push_back(path);
            }
        }
        if (failure) {
            contents.failures.push_back(unreadableFolder(current, failure));
        }
    }
    if (files.empty() && contents.failures.empty()) {
        contents.failures.push_back(
            refusal(folder, "The folder has no " + listed(extensions) + " files"));
    }
    std::sort(files.begin(), files.end());
    std::transform(files.begin(), files.end(), std::back_inserter(contents.files), utf8FromPath);
    return contents;
}

}  // namespace quorvane::cli
