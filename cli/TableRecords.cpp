#include "cli/TableRecords.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "data/csvRecords.h"
#include "data/recordsJson.h"

namespace quorvane::cli {

namespace {

bool isJson(const TableOptions& options, data::RecordsText& text) {
    return areJsonRecords(options.input, text, options.delimiter.has_value());
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
      text_(openRecords(options.input), options.encoding),
      areJson_(isJson(options, requireText(text_))),
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
