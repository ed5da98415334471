#pragma once

#include <string>
#include <string_view>

#include "cli/colors.h"
#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::cli {

/// What changes in the bytes of a file, as `diff -u` writes it, with three lines around each
/// change. `patch -p1` and `git apply` take it: the file is called a/NAME before and b/NAME after.
/// Empty when nothing changes.
std::string unifiedDiff(const std::string& name, std::string_view before, std::string_view after);

/// Such a diff of texts in an encoding as a terminal shows it: in UTF-8, without control
/// characters, and colored when it is to be.
std::string diffForTerminal(std::string_view diff, TextEncoding encoding, Colors colors);

}  // namespace quorvane::cli
