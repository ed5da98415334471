#pragma once

#include <string>
#include <variant>
#include <vector>

#include "cli/CheckOptions.h"
#include "cli/DataSchemaOptions.h"
#include "cli/EscapeOptions.h"
#include "cli/FormatOptions.h"
#include "cli/RenderOptions.h"
#include "cli/TableOptions.h"

namespace quorvane::cli {

/// A text to show instead of doing any work, such as the help or the version.
struct Information {
    std::string text;
};

/// Returns what the arguments after the program's name ask for. Throws `UsageError`.
std::variant<RenderOptions, CheckOptions, FormatOptions, EscapeOptions, TableOptions,
             DataSchemaOptions, Information>
parseCommandLine(const std::vector<std::string>& arguments);

/// The form in which an error in the arguments is reported: the one that they ask for, even if
/// they are wrong otherwise.
ErrorForm requestedErrorForm(const std::vector<std::string>& arguments);

}  // namespace quorvane::cli
