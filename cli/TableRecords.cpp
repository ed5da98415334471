#include "cli/TableRecords.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <span>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/process.h"
#include "data/csvRecords.h"
#include "data/recordsJson.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
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

data::BlockReader open(const std::string& path) {
    return path == standardStream ? readInput : openFile(path);
}

/// The text, if its beginning is one: a spreadsheet in a format of its own is not.
data::RecordsText& textOf(data::RecordsText& text) {
    text.readMore();
    if (const std::optional<Diagnostic> found = findNotATextFile(text.view())) {
        throw data::RecordError(0, found->message + " Export the data as CSV or JSON.", false);
    }
    return text;
}

/// True for a file whose name or beginning says that it is JSON.
bool isJson(const TableOptions& options, data::RecordsText& text) {
    const std::string extension = lowerCase(utf8FromPath(pathFromUtf8(options.input).extension()));
    if (extension == ".json" || extension == ".jsonl" || extension == ".ndjson") {
        return true;
    }
    if (options.delimiter || extension == ".csv" || extension == ".tsv" || extension == ".txt") {
        return false;
    }
    const std::size_t first = text.view().find_first_not_of(" \t\r\n");
    return first != std::string_view::npos &&
           (text.view()[first] == '[' || text.view()[first] == '{');
}

std::unique_ptr<data::RecordSource> sourceOf(const TableOptions& options, data::RecordsText& text,
                                             bool areJson) {
    if (areJson) {
        return std::make_unique<data::JsonRecords>(text);
    }
    std::optional<char> delimiter;
    if (options.delimiter) {
        delimiter = *options.delimiter == "tab" ? '\t' : options.delimiter->front();
    }
    return std::make_unique<data::CsvRecords>(text, delimiter);
}

}  // namespace

TableRecords::TableRecords(const TableOptions& options, Report report)
    : options_(options),
      report_(std::move(report)),
      text_(open(options.input), options.encoding),
      areJson_(isJson(options, textOf(text_))),
      source_(sourceOf(options, text_, areJson_)) {
    readFirst();
}

/// So many that their widths are those of most records, and so few that they take little memory.
void TableRecords::readFirst() {
    constexpr std::size_t enoughRecords = 1000;
    constexpr std::size_t enoughBytes = std::size_t{1024} * 1024;
    const std::size_t most = std::min(enoughRecords, options_.limit.value_or(enoughRecords));
    std::size_t bytes = 0;
    std::vector<std::string_view> fields;
    while (first_.size() < most && bytes < enoughBytes && read(fields)) {
        first_.push_back({{fields.begin(), fields.end()}, source_->line()});
        for (const std::string_view field : fields) {
            bytes += field.size();
        }
    }
}

bool TableRecords::read(std::vector<std::string_view>& fields) {
    for (;;) {
        try {
            return source_->next(fields);
        } catch (const data::RecordError& error) {
            if (!options_.keepGoing || !error.canGoOn) {
                throw;
            }
            report_(error);
        }
    }
}

bool TableRecords::next(std::vector<std::string_view>& fields) {
    if (taken_ >= first_.size()) {
        const bool isThere = read(fields);
        line_ = source_->line();
        return isThere;
    }
    const TableRecord& record = first_[taken_++];
    fields.assign(record.fields.begin(), record.fields.end());
    line_ = record.line;
    return true;
}

}  // namespace quorvane::cli
