#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/compose/TableSetup.h"

namespace quorvane {

/// The rows that a table can have below its heading.
enum class TableRowKind : std::uint8_t { Plain, Striped, Group, Total };
inline constexpr std::size_t tableRowKinds = 4;

/// Which rows have stripes: every second one after the heading or a group.
class TableStripes {
public:
    TableRowKind next() noexcept {
        isStriped_ = !isStriped_;
        return isStriped_ ? TableRowKind::Plain : TableRowKind::Striped;
    }
    void beginGroup() noexcept { isStriped_ = false; }

private:
    bool isStriped_ = false;
};

/// What an empty cell has as its text: without any, its line would have the height of another
/// style.
inline constexpr std::string_view emptyText = "{}";

/// The texts of the cells of one row.
using TableCells = std::span<const std::string_view>;

/// A table as a description in the extended language, in parts: the beginning, row by row, and the
/// end.
class TableDescription {
public:
    /// Error 5 for a setup without columns or with more than 63, for a wrong width, and if only
    /// some columns have widths.
    explicit TableDescription(TableSetup setup);

    const TableSetup& setup() const noexcept { return setup_; }

    /// The page, the title and the heading.
    std::string beginning() const;
    /// A row of that kind. One of a group has a single cell, all others have one for each column.
    /// Error 5 for more cells, for a text that no document can show, and for one that cannot be
    /// written as a value; the description names the cell.
    std::string row(TableRowKind kind, TableCells cells) const;
    static std::string_view end() noexcept { return "doc)\n"; }

private:
    std::string cell(std::string_view style, std::string_view text, tCellAlign align,
                     std::size_t columns = 1) const;
    std::string titleRow() const;
    std::string headingRow() const;
    std::string widths() const;

    TableSetup setup_;
};

/// Error 5 if a row of that kind cannot have so many cells.
void requireCells(const TableSetup& setup, TableRowKind kind, std::size_t count);

}  // namespace quorvane
