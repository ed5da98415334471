#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/RecordsTableOptions.h"
#include "data/columnsMeasure.h"
#include "data/columnsNumber.h"
#include "data/columnsRequest.h"
#include "data/localDate.h"
#include "data/locale.h"
#include "quorvane/compose/TableSetup.h"

namespace quorvane::data {

/// A record that is kept.
struct TableRecord {
    std::vector<std::string> fields;
    /// Where it begins.
    std::int64_t line;
};

/// Which fields of the records a table shows, and how.
class TableColumns {
public:
    /// Takes the columns of the options, or all fields but that of the groups and the blank ones.
    /// Error 5 for columns that are wrong or name no field; an `OptionError` for a wrong locale.
    TableColumns(const RecordsTableOptions& options, const std::vector<std::string>& names,
                 const std::vector<std::size_t>& blankFields);

    /// Finds out how numbers and dates are written in the columns, by the first records. Numbers of
    /// JSON have a decimal point. Where the values do not show their decimal sign or the order of
    /// their parts, it is that of the locale.
    void findSigns(const std::vector<TableRecord>& records, bool areJson);
    /// The decimal sign of a column; nothing where it is not known.
    std::optional<DecimalSign> decimalSign(std::size_t column) const { return signs_[column]; }

    /// Adds the columns with widths and alignments that suit the first records. If it may choose
    /// the page, it turns it for wide tables.
    void fit(TableSetup& setup, const std::vector<TableRecord>& records, bool choosesPage);

    std::size_t count() const noexcept { return columns_.size(); }
    /// The number of the column that shows this field; `count` for none.
    std::size_t columnOf(std::string_view name) const;
    /// True if the columns are named, so that other fields are left out on purpose.
    bool areNamed() const noexcept { return areNamed_; }

    /// The texts of the cells, good until the next call. Error 5 for a value that a filter refuses.
    std::span<const std::string_view> cells(std::span<const std::string_view> fields);
    /// The text of a column's cell for this value, in which a number is written as in JSON.
    std::string shown(std::size_t column, std::string_view value) const;
    /// True if the column shows values in another way.
    bool hasFilters(std::size_t column) const { return !columns_[column].filters.empty(); }

private:
    bool readsNumbers(std::size_t column) const;
    bool readsDates(std::size_t column) const;
    void findDateOrders(const std::vector<TableRecord>& records);
    std::string plain(std::size_t column, std::string_view value) const;
    std::string plainDate(std::size_t column, std::string_view value) const;
    std::vector<ColumnMeasure> measured(const std::vector<TableRecord>& records, bool hasHeading);

    std::vector<ColumnRequest> columns_;
    bool hasLocale_;
    Locale locale_;
    bool areNamed_;
    // The names of the fields that have a total.
    std::vector<std::string> totals_;
    // What stands before the name of an option in messages.
    std::string optionMark_;
    // The fields that the columns show, by position.
    std::vector<std::size_t> fields_;
    // The decimal signs of the columns.
    std::vector<std::optional<DecimalSign>> signs_;
    // Those that neither the first values nor the locale show.
    std::vector<bool> areGuessed_;
    // The orders of the dates in them.
    std::vector<std::optional<DateOrder>> dateOrders_;
    std::vector<std::string> filtered_;
    std::vector<std::string_view> cells_;
};

}  // namespace quorvane::data
