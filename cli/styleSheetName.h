#pragma once

#include <string>
#include <vector>

namespace quorvane::cli {

/// True for a name with the extension rtfss.
bool isStyleSheetName(const std::string& name);

/// Throws a `UsageError` for a stylesheet without the extension rtfss, which the library would pass
/// over. The other files tell whether the names were swapped.
void requireStyleSheetExtension(const std::string& name, const std::vector<std::string>& files);

}  // namespace quorvane::cli
