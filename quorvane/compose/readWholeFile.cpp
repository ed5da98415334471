#include "quorvane/compose/readWholeFile.h"

#include <utility>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/compose/composing.h"

namespace quorvane {

std::string readWholeFile(const std::string& path, Platform& platform) {
    try {
        return platform.readFile(path);
    } catch (const RtfError& error) {
        throw fileError(path, "unreadable-file", error);
    }
}

std::string readWholeText(const std::string& path, Platform& platform) {
    std::string bytes = readWholeFile(path, platform);
    const TextEncoding encoding = encodingOf(bytes);
    return decodedText(std::move(bytes), encoding);
}

}  // namespace quorvane
