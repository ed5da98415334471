#include "cli/CommandPlatform.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/process.h"
#include "cli/utf8Path.h"
#include "quorvane/support/RtfError.h"

namespace quorvane::cli {

namespace {

/// What the system has against the reading of a file; nothing when it is not the system that has.
std::error_code whyUnreadable(const std::filesystem::path& path) {
    std::error_code failure;
    switch (std::filesystem::status(path, failure).type()) {
        case std::filesystem::file_type::directory:
            return std::make_error_code(std::errc::is_a_directory);
        case std::filesystem::file_type::regular: {
            const bool opens = std::ifstream(path).is_open();
            return opens ? std::error_code() : std::error_code(errno, std::generic_category());
        }
        default:
            return failure;
    }
}

}  // namespace

void CommandPlatform::readStyleSheet(const std::string& path) {
    styleSheet_ = StyleSheet{path, readOtherFile(path)};
}

bool CommandPlatform::fileExists(const std::string& path) {
    return isStyleSheet(path);
}

std::string CommandPlatform::readFile(const std::string& path) {
    return isStyleSheet(path) ? styleSheet_->bytes : readOtherFile(path);
}

std::unique_ptr<OutputFile> CommandPlatform::createFile(const std::string& path) {
    return path == standardStream ? openStandardOutput() : openReplacement(path);
}

std::string CommandPlatform::readOtherFile(const std::string& path) {
    try {
        return files_.readFile(path);
    } catch (RtfError& error) {
        // This number alone stands for several obstacles.
        if (error.is(RunTimeError::PathFileAccessError) && !error.cause) {
            if (const std::error_code why = whyUnreadable(pathFromUtf8(path))) {
                error.cause = std::make_shared<RtfError>(why.value(), why.message());
            }
        }
        raise(std::move(error));
    }
}

bool CommandPlatform::isStyleSheet(const std::string& path) const {
    return styleSheet_ && styleSheet_->path == path;
}

}  // namespace quorvane::cli
