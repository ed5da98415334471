#include "cli/DescriptionText.h"

#include <algorithm>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/fileFailure.h"
#include "cli/process.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane::cli {

namespace {

std::string readBytes(const std::string& path, CommandPlatform& platform) {
    if (path == standardStream) {
        return readStandardInput();
    }
    try {
        return platform.readFile(path);
    } catch (const RtfError& error) {
        raise(unreadableDescription(path, error));
    }
}

}  // namespace

std::string shownDescription(const std::string& path) {
    return path == standardStream ? "<stdin>" : path;
}

std::optional<DescriptionText> readDescription(const std::string& path, EncodingChoice choice,
                                               CommandPlatform& platform, RenderReport& report,
                                               ExitStatus& status) {
    try {
        std::string bytes = readBytes(path, platform);
        const TextEncoding encoding = encodingOf(bytes, choice);
        if (!report.passBytes(shownDescription(path), bytes, encoding)) {
            status = std::max(status, ExitStatus::ContentErrors);
            return std::nullopt;
        }
        return DescriptionText{decodedText(std::move(bytes), encoding), encoding};
    } catch (const RtfError& error) {
        // First of all: the failure counts even when it cannot be reported.
        status = ExitStatus::Failure;
        report.fail(unreadableFile(shownDescription(path), path, error));
        return std::nullopt;
    }
}

}  // namespace quorvane::cli
