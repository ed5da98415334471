#include "capi/documentBytes.h"

#include <memory>
#include <optional>

#include "capi/callError.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/text/codePage1252.h"

namespace quorvane::capi {

std::string documentBytes(CRtfDoc& document) {
    std::optional<RtfError> failure;
    document.setAbsorbedErrorObserver([&](const AbsorbedError& absorbed) {
        if (!failure) {
            failure = absorbed.error;
        }
    });
    std::string bytes = codePage1252FromUtf8(document.Contents());
    document.setAbsorbedErrorObserver({});
    if (failure) {
        raise(*failure);
    }
    return bytes;
}

void saveBytes(const std::string& path, std::string_view bytes) {
    writingFile(path, [&] {
        const std::unique_ptr<OutputFile> file = systemPlatform().replaceFile(path);
        file->write(bytes);
        file->close();
    });
}

}  // namespace quorvane::capi
