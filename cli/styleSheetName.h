#pragma once

#include <string>
#include <vector>

namespace quorvane::cli {

/// True for a name with the extension rtfss.
bool isStyleSheetName(const std::string& name);

/// Throws a `UsageError` for a stylesheet without the extension rtfss, which the library would
/// ignore. The error mentions the first of the other files that has it: the two may be swapped.
void requireStyleSheetExtension(const std::string& name, const std::vector<std::string>& files);

}  // namespace quorvane::cli
