#include "capi/FileCallback.h"

#include "capi/arguments.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::capi {

std::string FileCallback::read(quorvane_file_kind kind, const std::string& name) const {
    const char* bytes = nullptr;
    std::size_t length = 0;
    if (callback(user, kind, name.data(), name.size(), &bytes, &length) != 0) {
        raise(RunTimeError::FileNotFound);
    }
    return std::string(textArgument(bytes, length));
}

}  // namespace quorvane::capi
