#include "data/partialsBeside.h"

#include <filesystem>
#include <system_error>

#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/staysWithinFolder.h"

namespace quorvane::data {

PartialSource partialsBeside(const std::string& templatePath, Platform& platform) {
    const std::filesystem::path folder = pathFromUtf8(templatePath).parent_path();
    return [folder, &platform](const std::string& name) {
        const std::filesystem::path file = folder / pathFromUtf8(name);
        std::error_code failure;
        if (!staysWithinFolder(name) || std::filesystem::is_other(file, failure)) {
            raise(RunTimeError::InvalidProcedureCall,
                  "this is not a file in the folder of the template; move it there");
        }
        return platform.readFile(utf8FromPath(file));
    };
}

}  // namespace quorvane::data
