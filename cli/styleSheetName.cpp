#include "cli/styleSheetName.h"

#include <algorithm>

#include "cli/UsageError.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/support/GFileSystem.h"

namespace quorvane::cli {

bool isStyleSheetName(const std::string& name) {
    return lowerCase(GFileSystem::getFileExtension(name)) == "rtfss";
}

void requireStyleSheetExtension(const std::string& name, const std::vector<std::string>& files) {
    if (isStyleSheetName(name)) {
        return;
    }
    const auto other = std::find_if(files.begin(), files.end(), isStyleSheetName);
    throw UsageError("the stylesheet " + name + " must have the extension rtfss" +
                     (other == files.end() ? "" : "; did you swap it with " + *other + "?"));
}

}  // namespace quorvane::cli
