#include "data/recordsFile.h"

#include <fstream>
#include <memory>
#include <optional>
#include <span>

#include "data/recordsSource.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/textFile.h"

namespace quorvane::data {

BlockReader openRecordsFile(const std::string& path) {
    // The system would read the path only up to the NUL.
    const bool hasNul = path.find('\0') != std::string::npos;
    const auto file = std::make_shared<std::ifstream>();
    if (!hasNul) {
        file->open(pathFromUtf8(path), std::ios::binary);
    }
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

BlockReader readerOf(std::string_view bytes) {
    return [bytes](std::span<char> block) mutable {
        const std::size_t count = bytes.copy(block.data(), block.size());
        bytes.remove_prefix(count);
        return count;
    };
}

RecordsText& requireText(RecordsText& text) {
    text.readMore();
    if (const std::optional<Diagnostic> found = findNotATextFile(text.view())) {
        throw RecordError(0, found->message + " Export the data as CSV or JSON.", false);
    }
    return text;
}

bool areJsonRecords(const std::string& path, RecordsText& text, bool hasDelimiter) {
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

}  // namespace quorvane::data
