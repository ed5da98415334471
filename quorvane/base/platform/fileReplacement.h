#pragma once

#include <memory>
#include <string>

#include "quorvane/base/platform/Files.h"
#include "quorvane/base/platform/UnfinishedFileWatch.h"

namespace quorvane {

/// What `Files::replaceFile` of the system's platform does, watched by a program that removes the
/// unfinished file when it is ended. The watch must outlive the file.
std::unique_ptr<OutputFile> openReplacement(const std::string& path, UnfinishedFileWatch& watch);

/// The same, unwatched.
std::unique_ptr<OutputFile> openReplacement(const std::string& path);

}  // namespace quorvane
