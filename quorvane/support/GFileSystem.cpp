#include "quorvane/support/GFileSystem.h"

#include <cstddef>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/support/TextSaving.h"

namespace quorvane::GFileSystem {

bool saveStringToFile(Files& files, GError& errors, const std::string& path, std::string_view text,
                      bool keepExisting) {
    return !errorOfSaving(files, errors, path, text, keepExisting);
}

std::optional<RtfError> errorOfSaving(Files& files, GError& errors, const std::string& path,
                                      std::string_view text, bool keepExisting) {
    TextSaving saving(files, errors, path);
    saving.lookForFile();
    if (saving.replacesFile() && keepExisting) {
        return std::nullopt;
    }
    saving.begin();
    saving.write(text);
    return saving.end();
}

void saveString(Files& files, GError& errors, const std::string& path, std::string_view text) {
    TextSaving saving(files, errors, path);
    saving.begin();
    saving.write(text);
    saving.endWriting();
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
