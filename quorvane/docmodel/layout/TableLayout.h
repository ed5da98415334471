#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/layout/PlacedCell.h"
#include "quorvane/docmodel/layout/TableColumns.h"

namespace quorvane {

/// Finds the places of cells in the columns of their rows, row by row. A cell that spans rows has a
/// part in each of them; the rows below do not have cells for it.
///
/// Its errors have the number 5, and descriptions that name the row and the cell by their
/// positions.
class TableLayout {
public:
    explicit TableLayout(TableDocument& document) : document_(document) {}

    /// Places the cells of the next row, which has these settings. The result is valid until the
    /// next call.
    std::span<const PlacedCell> place(const InnerRow& row, const RowSettings& settings);

    /// Ends a part of the table that a cell cannot leave. What ends there is a part of the message.
    void endPart(std::string_view whatEnds) const;

private:
    /// A cell whose parts in the rows to come are not placed yet.
    struct OpenSpan {
        InnerCell* cell;
        std::int64_t firstColumn;
        std::int64_t columns;
        std::int32_t leftEdge;
        std::int32_t rightEdge;
        std::int32_t rowsToCome;
        std::int64_t row;
    };

    bool useColumns(const InnerRow& row, const RowSettings& settings);
    std::int64_t columnsTaken(const InnerRow& row) const;
    void placeWithoutColumns(const InnerRow& row);
    void placeInColumns(const InnerRow& row);
    void placeCell(InnerCell& cell);
    void placeSpansFromAbove();
    void placePart(OpenSpan span);
    [[noreturn]] void fail(const std::string& message) const;
    std::string cellName() const;

    TableDocument& document_;
    TableColumns columns_;
    std::vector<PlacedCell> places_;
    // In the order of their columns: those of the rows above, those of this row, and how many of
    // the former are placed.
    std::vector<OpenSpan> above_;
    std::vector<OpenSpan> open_;
    std::size_t placedFromAbove_ = 0;
    // Positions, from 1, and how many columns of the row are taken.
    std::int64_t row_ = 0;
    std::int64_t cell_ = 0;
    std::int64_t taken_ = 0;
};

}  // namespace quorvane
