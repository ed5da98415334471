#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/TableColumns.h"
#include "cli/TableOptions.h"
#include "cli/recordsFile.h"
#include "data/keptRows.h"
#include "data/recordsSource.h"
#include "data/recordsText.h"

namespace quorvane::cli {

/// The records of a table: the first of them are read at once, the others one by one. Sorted ones
/// are all kept in memory.
class TableRecords {
public:
    /// Reports a record that is left out.
    using Report = std::function<void(const RtfError& error)>;

    /// Opens the file and reads the first records. A record that cannot be read is reported and
    /// left out if the options say so, and raised otherwise. Throws `UnreadableInput`, and
    /// `UsageError` for fields that cannot be sorted by.
    TableRecords(const TableOptions& options, Report report);

    const std::vector<std::string>& names() const noexcept { return source_->names(); }
    const std::vector<TableRecord>& first() const noexcept { return first_; }
    bool areJson() const noexcept { return areJson_; }
    /// The fields without a heading that none of the first records has a value for: spreadsheets
    /// export empty columns so.
    std::vector<std::size_t> blankFields() const;

    /// The next record from the first one on; false at the end. The fields are good until the next
    /// call.
    bool next(std::vector<std::string_view>& fields);
    std::int64_t line() const noexcept { return line_; }

private:
    bool read(std::vector<std::string_view>& fields);
    bool readSource(std::vector<std::string_view>& fields);
    void sort();
    void readFirst();

    const TableOptions& options_;
    Report report_;
    data::RecordsText text_;
    bool areJson_;
    std::unique_ptr<data::RecordSource> source_;
    std::optional<data::KeptRows> sorted_;
    std::size_t read_ = 0;
    std::vector<TableRecord> first_;
    std::size_t taken_ = 0;
    std::int64_t line_ = 0;
};

}  // namespace quorvane::cli
