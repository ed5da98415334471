#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "cli/NumberedRecord.h"
#include "cli/RecordRange.h"
#include "data/recordValues.h"
#include "data/recordsText.h"

namespace quorvane::cli {

/// The records of a file with data, of which only one is in memory.
class RecordInput {
public:
    /// Opens the file, or standard input for "-". Throws `data::UnreadableInput`, and a
    /// `RecordError` for data without records.
    RecordInput(const std::string& path, const RecordRange& range);

    /// Reads the next record of the range; false at its end. A `RecordError` for a record that
    /// cannot be read; `record` has its number and its line then. Throws `data::UnreadableInput`.
    bool next(NumberedRecord& record);

    /// How many records the data has; no value while its end has not been read.
    std::optional<std::size_t> count() const;

    /// False for CSV, whose values are as offices write them.
    bool areJson() const noexcept { return areJson_; }

private:
    bool passBefore();

    RecordRange range_;
    data::RecordsText text_;
    bool areJson_;
    std::unique_ptr<data::RecordValues> values_;
    // Of the record that was read last.
    std::size_t number_ = 0;
    bool isEnded_ = false;
};

}  // namespace quorvane::cli
