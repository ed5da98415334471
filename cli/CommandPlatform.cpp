#include "cli/CommandPlatform.h"

#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/process.h"
#include "data/whyUnreadable.h"
#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

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
    if (path == standardStream) {
        return openStandardOutput();
    }
    if (createsFolders_) {
        createFolderOf(path);
    }
    return replaceFile(path);
}

std::unique_ptr<OutputFile> CommandPlatform::replaceFile(const std::string& path) {
    return openReplacement(path, unfinishedFileWatch());
}

void CommandPlatform::createFolderOf(const std::string& path) {
    const std::filesystem::path folder = pathFromUtf8(path).parent_path();
    const std::lock_guard lock(lastFolderMutex_);
    if (folder == lastFolder_) {
        return;
    }
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) {
        RtfError error(RunTimeError::PathNotFound);
        error.cause = std::make_shared<RtfError>(failure.value(), failure.message());
        raise(std::move(error));
    }
    lastFolder_ = folder;
}

const std::string& CommandPlatform::styleSheetBytes() const {
    return styleSheet_->bytes;
}

void CommandPlatform::recodeStyleSheet(TextEncoding encoding) {
    if (isUtf8(encoding) && !isMarkedExtended(styleSheet_->bytes)) {
        styleSheet_->bytes = encodedText(decodedText(std::move(styleSheet_->bytes), encoding),
                                         TextEncoding::Windows1252);
    }
}

std::string CommandPlatform::readOtherFile(const std::string& path) {
    try {
        return files_.readFile(path);
    } catch (RtfError& error) {
        // This number alone stands for several obstacles; any other says enough by itself.
        if (!error.is(RunTimeError::PathFileAccessError)) {
            error.cause = nullptr;
        } else if (const std::error_code why = data::whyUnreadable(path)) {
            error.cause = std::make_shared<RtfError>(why.value(), why.message());
        }
        raise(std::move(error));
    }
}

bool CommandPlatform::isStyleSheet(const std::string& path) const {
    return styleSheet_ && styleSheet_->path == path;
}

}  // namespace quorvane::cli
