#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "data/DataValue.h"
#include "data/recordsSource.h"
#include "data/recordsText.h"

namespace quorvane::data {

/// Records as values that templates are filled with, one after the other.
class RecordValues {
public:
    RecordValues() = default;
    RecordValues(const RecordValues&) = delete;
    RecordValues& operator=(const RecordValues&) = delete;
    virtual ~RecordValues() = default;

    /// Reads the next record, an object; false at the end. A `RecordError` for a record that cannot
    /// be read; a call after it reads the next one.
    virtual bool next(DataValue& record) = 0;

    /// Passes over the next record; false at the end. Errors as above, but what the record holds is
    /// not looked at.
    virtual bool skip() = 0;

    /// The line where the record begins that was read last, from 1.
    virtual std::int64_t line() const noexcept = 0;
};

/// The objects of a JSON array or of JSON Lines; see `JsonObjects`. The text must outlive them.
std::unique_ptr<RecordValues> jsonValues(RecordsText& text);

/// The rows of a text with a heading row, see `CsvRecords`, as objects whose values are texts. The
/// text must outlive them. A `RecordError` if two fields of the heading row have one name.
std::unique_ptr<RecordValues> csvValues(RecordsText& text, std::optional<char> delimiter);

}  // namespace quorvane::data
