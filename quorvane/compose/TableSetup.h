#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/docmodel/PageText.h"
#include "quorvane/docmodel/enumerations.h"

namespace quorvane {

/// Word processors have no more columns in a table.
inline constexpr std::size_t mostTableColumns = 63;

/// A column of a table that `TableWriter` writes.
struct TableColumn {
    /// The text in the heading row.
    std::string heading;
    /// The width as the extended language has it: percent of the text area ("20%") or a length
    /// ("3cm"). If no column has a width, all are equally wide; otherwise each must have one.
    std::string width{};
    /// The alignment of the column, its heading included. `eNoDefault` leaves it to the style.
    tCellAlign align = eNoDefault;
};

/// What a table has apart from its rows. Texts are shown as they are. Lengths, colors and borders
/// are written as in the extended language; docs/extended-language.md lists them.
struct TableSetup {
    std::vector<TableColumn> columns;
    /// A row above the heading, which is on every page; none if it is empty.
    std::string title{};
    /// Whether the columns have a heading row. It is on every page.
    bool hasHeading = true;
    /// A page by its name, such as "letter" or "a4-landscape".
    std::string page = "a4";
    /// The four margins, as a length.
    std::string margin = "2cm";
    /// Whether each group but the first begins a page.
    bool groupsStartPages = false;
    /// The background of every second row after a heading row; "none" for none.
    std::string stripe = "#f2f6fa";
    /// The border around all cells. With "none" there are lines only below the heading row and
    /// above the total.
    std::string border = "none";
    PageText header{};
    PageText footer{{}, "{page} / {pages}", {}};
    /// A stylesheet in either language. Its paragraph styles "table-title", "table-heading",
    /// "table-cell", "table-group" and "table-total" format the rows, and it must have them, but
    /// for that of a title that is empty. "header" and "footer" format the page header and footer;
    /// its first paragraph style does if it lacks them. Empty for `standardTableStyles`.
    std::string styleSheet{};
};

/// Returns the stylesheet of tables that have none of their own, in the extended language.
std::string_view standardTableStyles();

}  // namespace quorvane
