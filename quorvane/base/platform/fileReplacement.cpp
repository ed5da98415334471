#include "quorvane/base/platform/fileReplacement.h"

namespace quorvane {

std::unique_ptr<OutputFile> openReplacement(const std::string& path) {
    static UnfinishedFileWatch none;
    return openReplacement(path, none);
}

}  // namespace quorvane
