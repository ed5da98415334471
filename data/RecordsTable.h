#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/GroupWatch.h"
#include "data/RecordsTableOptions.h"
#include "data/TableColumns.h"
#include "data/TableRecords.h"
#include "data/TableTarget.h"
#include "data/columnsTotal.h"
#include "quorvane/compose/TableSetup.h"

namespace quorvane::data {

/// A table of the records of a file, in one document or in several.
class RecordsTable {
public:
    /// Receives the error of each row that is left out, as the options allow it.
    using Report = std::function<void(const RtfError& error)>;
    /// Opens the document with this number, from 1.
    using OpenTarget =
        std::function<std::unique_ptr<TableTarget>(const TableSetup& setup, std::size_t part)>;

    /// Reads the first records. A `RecordError` for those that cannot be read, and for data without
    /// any; an `OptionError` for an order that does not suit them. Throws `UnreadableInput`. The
    /// options must outlive the table.
    RecordsTable(const RecordsInput& input, const RecordsTableOptions& options, Report report);

    /// Adds the columns to a setup and opens the document. If the page is not chosen, it is turned
    /// for wide tables. An `OptionError` for what does not suit the data or the page.
    void begin(TableSetup setup, bool isPageChosen, OpenTarget open);
    /// Writes all records and the totals, and ends the document. A `RecordError` for a record that
    /// cannot be shown. Throws `UnreadableInput`, and what the document throws.
    void finish();

    /// True if a group began several times, since its rows do not follow each other.
    bool areGroupsScattered() const noexcept { return groups_.areScattered(); }

private:
    /// A column with a total.
    struct Total {
        std::size_t column;
        std::size_t field;
        ColumnTotal sum;
    };

    void findFields();
    void findTotals();
    void beginPart();
    void endPart();
    void addRecords();
    void addRecord(std::span<const std::string_view> fields);
    void addTotals();
    void requireShown(std::span<const std::string_view> fields);

    const RecordsTableOptions& options_;
    Report report_;
    TableRecords records_;
    OpenTarget open_;
    std::optional<TableColumns> columns_;
    TableSetup setup_;
    std::unique_ptr<TableTarget> target_;
    // The number of the document, and how many rows it has.
    std::size_t part_ = 0;
    std::size_t rows_ = 0;
    std::size_t fieldCount_ = 0;
    std::vector<std::size_t> blankFields_;
    std::vector<Total> totals_;
    std::optional<std::size_t> groupField_;
    std::optional<std::string> group_;
    // In all documents.
    GroupWatch groups_;
};

}  // namespace quorvane::data
