#include "data/TableRecords.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "data/OptionError.h"
#include "data/TableOrder.h"
#include "data/csvRecords.h"
#include "data/firstRecords.h"
#include "data/recordsFile.h"
#include "data/recordsJson.h"

namespace quorvane::data {

namespace {

bool isJson(const RecordsInput& input, RecordsText& text, bool hasDelimiter) {
    return input.form == RecordsForm::Any ? areJsonRecords(input.path, text, hasDelimiter)
                                          : input.form == RecordsForm::Json;
}

std::unique_ptr<RecordSource> sourceOf(const RecordsTableOptions& options, RecordsText& text,
                                       bool areJson) {
    if (areJson) {
        return std::make_unique<JsonRecords>(text);
    }
    std::optional<char> delimiter;
    if (options.delimiter) {
        delimiter = *options.delimiter == "tab" ? '\t' : options.delimiter->front();
    }
    return std::make_unique<CsvRecords>(text, delimiter);
}

}  // namespace

TableRecords::TableRecords(const RecordsInput& input, const RecordsTableOptions& options,
                           Report report)
    : options_(options),
      report_(std::move(report)),
      text_(input.read, options.encoding),
      areJson_(isJson(input, requireText(text_), options.delimiter.has_value())),
      source_(sourceOf(options, text_, areJson_)) {
    if (options_.sort) {
        sort();
    }
    readFirst();
}

void TableRecords::sort() {
    const TableOrder order = asOptionError([&] { return TableOrder(options_); });
    sorted_.emplace();
    std::vector<std::string_view> fields;
    while (readSource(fields)) {
        sorted_->add(fields, source_->line());
    }
    asOptionError([&] { order.sort(*sorted_, source_->names(), areJson_); });
}

std::vector<std::size_t> TableRecords::blankFields() const {
    std::vector<std::size_t> blank;
    for (std::size_t i = 0; i < names().size(); ++i) {
        const auto isBlank = [i](const TableRecord& record) {
            return i >= record.fields.size() || record.fields[i].empty();
        };
        if (!source_->hasHeading(i) && std::all_of(first_.begin(), first_.end(), isBlank)) {
            blank.push_back(i);
        }
    }
    // A table has a column at least.
    return blank.size() < names().size() ? blank : std::vector<std::size_t>();
}

void TableRecords::readFirst() {
    FirstRecords first;
    std::vector<std::string_view> fields;
    while (first.needsMore() && first_.size() != options_.limit && read(fields)) {
        first_.push_back({{fields.begin(), fields.end()}, line_});
        first.add(fields);
    }
}

bool TableRecords::read(std::vector<std::string_view>& fields) {
    if (!sorted_) {
        const bool isThere = readSource(fields);
        line_ = source_->line();
        return isThere;
    }
    if (read_ == sorted_->size()) {
        return false;
    }
    sorted_->read(read_, fields);
    line_ = sorted_->line(read_);
    ++read_;
    return true;
}

bool TableRecords::readSource(std::vector<std::string_view>& fields) {
    for (;;) {
        try {
            return source_->next(fields);
        } catch (const RecordError& error) {
            if (!options_.keepGoing || !error.canGoOn) {
                throw;
            }
            report_(error);
        }
    }
}

bool TableRecords::next(std::vector<std::string_view>& fields) {
    if (taken_ >= first_.size()) {
        return read(fields);
    }
    const TableRecord& record = first_[taken_++];
    fields.assign(record.fields.begin(), record.fields.end());
    line_ = record.line;
    return true;
}

}  // namespace quorvane::data
