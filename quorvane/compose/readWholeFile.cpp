#include "quorvane/compose/readWholeFile.h"

#include "quorvane/compose/composing.h"

namespace quorvane {

std::string readWholeFile(const std::string& path, Platform& platform) {
    try {
        return platform.readFile(path);
    } catch (const RtfError& error) {
        throw fileError(path, "unreadable-file", error);
    }
}

}  // namespace quorvane
