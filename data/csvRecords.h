#pragma once

#include <optional>

#include "data/csvRows.h"
#include "data/recordsSource.h"
#include "data/recordsText.h"

namespace quorvane::data {

/// The records of a text with a heading row, whose fields are the names. A field of it that is
/// empty is named after its position, "Column 3". Rows of several fields that are all empty are
/// left out. A field ="0012" is the text between the quotation marks. A first line "sep=;" names
/// the delimiter, as spreadsheets write it.
class CsvRecords final : public RecordSource {
public:
    /// Reads the heading row; no names if there is none. Without a delimiter, it is the one that
    /// the beginning of the text shows.
    CsvRecords(RecordsText& text, std::optional<char> delimiter);

    /// A `RecordError` for a row that has more or fewer fields than the heading row, too.
    bool next(std::vector<std::string_view>& fields) override;
    std::int64_t line() const noexcept override { return rows_.line(); }
    bool hasHeading(std::size_t field) const override { return hasHeading_[field]; }

private:
    bool nextRow(std::vector<std::string_view>& fields);

    CsvRows rows_;
    // By the names.
    std::vector<bool> hasHeading_;
};

}  // namespace quorvane::data
