#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/ReportedError.h"

namespace quorvane::cli {

/// The files in a folder and its subfolders.
struct FolderContents {
    /// In the order of their paths, which begin with the folder's. Hidden files and folders, whose
    /// names begin with a point, are skipped; links are followed to files, not to folders.
    std::vector<std::string> files;
    /// The folders that could not be read, and a folder without files.
    std::vector<ReportedError> failures;
};

/// True for the path of a folder.
bool isFolder(const std::string& path);

/// The files in a folder that have one of the extensions, such as ".rtf".
FolderContents filesBelow(const std::string& folder, std::span<const std::string_view> extensions);

}  // namespace quorvane::cli
