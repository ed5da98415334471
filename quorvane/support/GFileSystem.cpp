#include "quorvane/support/GFileSystem.h"

#include <cstddef>
#include <memory>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane::GFileSystem {

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

void writeText(OutputFile& file, std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const std::string_view block = text.substr(0, lengthOfFirstBlock(text));
        if (asciiRunEnd(block, 0) == block.size()) {
            file.write(block);
        } else {
            bytes.clear();
            appendCodePage1252(block, bytes);
            file.write(bytes);
        }
        text.remove_prefix(block.size());
    }
}

}  // namespace

bool saveStringToFile(Files& files, GError& errors, const std::string& path, std::string_view text,
                      bool keepExisting) {
    return !errorOfSaving(files, errors, path, text, keepExisting);
}

std::optional<RtfError> errorOfSaving(Files& files, GError& errors, const std::string& path,
                                      std::string_view text, bool keepExisting) {
    return errors.absorbing(moduleName, "saveStringToFile", [&] {
        if (!files.fileExists(path)) {
            saveString(files, errors, path, text);
        } else if (!keepExisting) {
            files.deleteFile(path);
            saveString(files, errors, path, text);
        }
    });
}

void saveString(Files& files, GError& errors, const std::string& path, std::string_view text) {
    errors.absorbing(moduleName, "saveString", [&] {
        const std::unique_ptr<OutputFile> file = files.createFile(path);
        writeText(*file, text);
        file->close();
    });
}

bool fileExists(Files& files, const std::string& path) {
    return files.fileExists(path);
}

std::string loadStringFromFile(Files& files, const std::string& path) {
    try {
        return utf8FromCodePage1252(files.readFile(path));
    } catch (const RtfError&) {
        return {};
    }
}

std::string getPathTail(std::string_view path, std::string_view separator, bool takeAfter) {
    path = trimBlanks(path);
    if (path.ends_with('\\')) {
        path.remove_suffix(1);
    }
    const std::size_t position =
        characterCount(separator) == 1 ? path.rfind(separator) : std::string_view::npos;
    if (position == std::string_view::npos) {
        return {};
    }
    const std::size_t end = position + separator.size();
    return std::string(takeAfter ? path.substr(end) : path.substr(0, end));
}

std::string getFileExtension(std::string_view path) {
    return getPathTail(path, ".", true);
}

}  // namespace quorvane::GFileSystem
