#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/RecordsTableOptions.h"
#include "data/TableColumns.h"
#include "data/keptRows.h"
#include "data/recordsSource.h"
#include "data/recordsText.h"

namespace quorvane::data {

/// What kind of text records are in.
enum class RecordsForm : std::uint8_t { Any, Csv, Json };

/// Where records come from.
struct RecordsInput {
    BlockReader read;
    /// The name of the file; its extension says what the file is.
    std::string path{};
    /// `Any` is as `areJsonRecords` has it.
    RecordsForm form = RecordsForm::Any;
};

/// The records of a table: the first of them are read at once, the others one by one. Sorted ones
/// are all kept in memory.
class TableRecords {
public:
    /// Reports a record that is left out.
    using Report = std::function<void(const RtfError& error)>;

    /// Reads the first records. A record that cannot be read is reported and left out if the
    /// options say so, and raised otherwise. Throws `UnreadableInput`, and `OptionError` for fields
    /// that cannot be sorted by. The options must outlive the records.
    TableRecords(const RecordsInput& input, const RecordsTableOptions& options, Report report);

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

    const RecordsTableOptions& options_;
    Report report_;
    RecordsText text_;
    bool areJson_;
    std::unique_ptr<RecordSource> source_;
    std::optional<KeptRows> sorted_;
    std::size_t read_ = 0;
    std::vector<TableRecord> first_;
    std::size_t taken_ = 0;
    std::int64_t line_ = 0;
};

}  // namespace quorvane::data
