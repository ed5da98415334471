#include "quorvane/support/TextSaving.h"

#include <cstddef>
#include <utility>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

constexpr const char* moduleName = "GFileSystem.bas";

/// The text is encoded and written in pieces of this many bytes, so that a large document is never
/// in memory twice.
constexpr std::size_t blockSize = std::size_t{256} * 1024;

/// A UTF-8 sequence has at most this many bytes after its first.
constexpr std::size_t longestContinuation = 3;

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Length of the first piece of the text: a block or, where its border would cut a character, the
/// block up to that character.
std::size_t lengthOfFirstBlock(std::string_view text) {
    if (text.size() <= blockSize) {
        return text.size();
    }
    for (std::size_t length = blockSize; length >= blockSize - longestContinuation; --length) {
        if (!continuesCharacter(text[length])) {
            return length;
        }
    }
    return blockSize;  // not UTF-8, so there is no character to cut
}

void raiseIfFailed(const std::exception_ptr& failure) {
    if (failure) {
        std::rethrow_exception(failure);
    }
}

}  // namespace

void TextSaving::reserveMemory() {
    // No character takes more bytes than in UTF-8.
    bytes_.reserve(blockSize);
}

void TextSaving::lookForFile() noexcept {
    attempt(failureToReplace_, [this] { replacesFile_ = files_.fileExists(path_); });
}

void TextSaving::begin() noexcept {
    if (replacesFile_) {
        attempt(failureToReplace_, [this] { files_.deleteFile(path_); });
    }
    if (!failureToReplace_) {
        attempt(failureToWrite_, [this] { file_ = files_.createFile(path_); });
    }
}

void TextSaving::write(std::string_view piece) noexcept {
    if (file_) {
        attempt(failureToWrite_, [&] { writeEncoded(piece); });
    }
}

void TextSaving::writeEncoded(std::string_view text) {
    while (!text.empty()) {
        const std::string_view block = text.substr(0, lengthOfFirstBlock(text));
        std::string_view encoded = block;
        if (asciiRunEnd(block, 0) < block.size()) {
            bytes_.clear();
            appendCodePage1252(block, bytes_);
            encoded = bytes_;
            errors_.reportLostCharacters(block, offset_);
        }
        file_->write(encoded);
        offset_ += static_cast<std::int64_t>(encoded.size());
        text.remove_prefix(block.size());
    }
}

std::optional<RtfError> TextSaving::end() {
    return errors_.absorbing(moduleName, "saveStringToFile", [&] {
        raiseIfFailed(failureToReplace_);
        endWriting();
    });
}

void TextSaving::endWriting() {
    errors_.absorbing(moduleName, "saveString", [this] {
        raiseIfFailed(failureToWrite_);
        const std::unique_ptr<OutputFile> file = std::move(file_);
        file->close();
    });
}

// After a failure nothing more is written, and a file that was made is removed at once.
template <class Step>
void TextSaving::attempt(std::exception_ptr& failure, Step&& step) noexcept {
    try {
        step();
    } catch (...) {
        failure = std::current_exception();
        file_ = nullptr;
    }
}

}  // namespace quorvane
