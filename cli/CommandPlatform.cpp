#include "cli/CommandPlatform.h"

#include "cli/RenderOptions.h"
#include "cli/process.h"

namespace quorvane::cli {

void CommandPlatform::readStyleSheet(const std::string& path) {
    styleSheet_ = StyleSheet{path, files_.readFile(path)};
}

bool CommandPlatform::fileExists(const std::string& path) {
    return isStyleSheet(path);
}

std::string CommandPlatform::readFile(const std::string& path) {
    return isStyleSheet(path) ? styleSheet_->bytes : files_.readFile(path);
}

std::unique_ptr<OutputFile> CommandPlatform::createFile(const std::string& path) {
    return path == standardStream ? openStandardOutput() : openReplacement(path);
}

bool CommandPlatform::isStyleSheet(const std::string& path) const {
    return styleSheet_ && styleSheet_->path == path;
}

}  // namespace quorvane::cli
