#include "cli/recordsFile.h"

#include <fstream>
#include <optional>
#include <span>
#include <string_view>

#include "cli/RenderOptions.h"
#include "cli/process.h"
#include "data/recordsSource.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/textFile.h"

namespace quorvane::cli {

namespace {

data::BlockReader openFile(const std::string& path) {
    auto file = std::make_shared<std::ifstream>(pathFromUtf8(path), std::ios::binary);
    if (!file->is_open()) {
        throw UnreadableInput(RtfError(RunTimeError::PathFileAccessError));
    }
    return [file](std::span<char> block) {
        file->read(block.data(), static_cast<std::streamsize>(block.size()));
        if (file->bad()) {
            throw UnreadableInput(RtfError(RunTimeError::PathFileAccessError));
        }
        return static_cast<std::size_t>(file->gcount());
    };
}

std::size_t readInput(std::span<char> block) {
    try {
        return readStandardInput(block);
    } catch (const RtfError& error) {
        throw UnreadableInput(error);
    }
}

}  // namespace

data::BlockReader openRecords(const std::string& path) {
    return path == standardStream ? readInput : openFile(path);
}

data::RecordsText& requireText(data::RecordsText& text) {
    text.readMore();
    if (const std::optional<Diagnostic> found = findNotATextFile(text.view())) {
        throw data::RecordError(0, found->message + " Export the data as CSV or JSON.", false);
    }
    return text;
}

bool areJsonRecords(const std::string& path, data::RecordsText& text, bool hasDelimiter) {
    const std::string extension = lowerCase(utf8FromPath(pathFromUtf8(path).extension()));
    if (extension == ".json" || extension == ".jsonl" || extension == ".ndjson") {
        return true;
    }
    if (hasDelimiter || extension == ".csv" || extension == ".tsv" || extension == ".txt") {
        return false;
    }
    const std::size_t first = text.view().find_first_not_of(" \t\r\n");
    return first != std::string_view::npos &&
           (text.view()[first] == '[' || text.view()[first] == '{');
}

}  // namespace quorvane::cli
