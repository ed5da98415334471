#pragma once

#include <string>
#include <variant>
#include <vector>

#include "cli/CheckOptions.h"
#include "cli/FormatOptions.h"
#include "cli/RenderOptions.h"

namespace quorvane::cli {

/// A text that was asked for instead of work: the help or the version.
struct Information {
    std::string text;
};

/// What the arguments after the program's name ask for. Throws `UsageError`.
std::variant<RenderOptions, CheckOptions, FormatOptions, Information> parseCommandLine(
    const std::vector<std::string>& arguments);

/// The form of diagnostics that the arguments ask for, which need not be right otherwise: the form
/// in which an error in them is reported.
ErrorForm requestedErrorForm(const std::vector<std::string>& arguments);

}  // namespace quorvane::cli
