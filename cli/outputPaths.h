#pragma once

#include <string>
#include <vector>

#include "cli/RenderOptions.h"

namespace quorvane::cli {

/// A description and the file that its document goes to; `standardStream` stands for standard input
/// and standard output.
struct Assignment {
    std::string description;
    std::string output;
};

/// Where each description's document goes: to the file or folder of the options or, without them,
/// beside the description, under its name with the extension rtf; the one from standard input goes
/// to standard output, and in a folder is named stdin.rtf. Throws `UsageError` when that would
/// write two documents to one file, or one over a description or a stylesheet, whether it is among
/// the files of the options or not. Raises an error when it cannot be seen what stands there.
std::vector<Assignment> assignOutputs(const RenderOptions& options);

}  // namespace quorvane::cli
