// A module has no operating system. What is here comes in the place of the functions of the
// library, and keeps the code that would call a system out of the module.
#include <string>
#include <vector>

#include "data/partialsBeside.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/NullPlatform.h"
#include "quorvane/driver/picturesBeside.h"

namespace quorvane {

Platform& systemPlatform() {
    static NullPlatform platform;
    return platform;
}

PictureSource picturesBeside(const std::string&, Platform&, std::vector<std::string>) {
    return [](const std::string&) -> std::string { raise(RunTimeError::FileNotFound); };
}

data::PartialSource data::partialsBeside(const std::string&, Platform&) {
    return [](const std::string&) -> std::string { raise(RunTimeError::FileNotFound); };
}

}  // namespace quorvane
