#pragma once

#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace quorvane::cli {

/// What `check` looks at in a folder.
struct FolderContents {
    /// The descriptions, stylesheets and RTF files below the folder by their extensions, in the
    /// order of their paths. Hidden files and folders, whose names begin with a point, are passed
    /// over; links are followed to files, not to folders.
    std::vector<std::string> files;
    /// The folders that could not be read.
    std::vector<std::pair<std::string, std::error_code>> failures;
};

/// The files below a folder, named by a path that begins with the folder's.
FolderContents filesBelow(const std::string& folder);

}  // namespace quorvane::cli
