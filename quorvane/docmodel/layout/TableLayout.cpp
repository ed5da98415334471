#include "quorvane/docmodel/layout/TableLayout.h"

#include <algorithm>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/layout/evenWidth.h"

namespace quorvane {

namespace {

/// "column 2", "columns 2 to 4".
std::string columnNames(std::int64_t first, std::int64_t last) {
    return first == last ? "column " + std::to_string(first)
                         : "columns " + std::to_string(first) + " to " + std::to_string(last);
}

}  // namespace

std::span<const PlacedCell> TableLayout::place(const InnerRow& row, const RowSettings& settings) {
    ++row_;
    cell_ = 0;
    taken_ = 0;
    places_.clear();
    std::swap(above_, open_);
    open_.clear();
    placedFromAbove_ = 0;
    if (useColumns(row, settings)) {
        placeInColumns(row);
    } else {
        placeWithoutColumns(row);
    }
    return places_;
}

void TableLayout::endPart(std::string_view whatEnds) const {
    if (!open_.empty()) {
        const OpenSpan& span = open_.front();
        raise(RunTimeError::InvalidProcedureCall,
              "A cell of row " + std::to_string(span.row) + " spans " +
                  std::to_string(row_ - span.row + 1 + span.rowsToCome) + " rows, but " +
                  std::string(whatEnds) + " ends with row " + std::to_string(row_) + ".");
    }
}

bool TableLayout::useColumns(const InnerRow& row, const RowSettings& settings) {
    const std::vector<std::int32_t>& own = settings.columnWidths;
    const std::vector<std::int32_t>& widths =
        own.empty() ? document_.memory().additions->page.columnWidths : own;
    if (!widths.empty()) {
        columns_.setWidths(widths);
        return true;
    }
    const auto& cells = row.list();
    const bool hasSpans =
        !above_.empty() ||
        std::any_of(cells.begin(), cells.end(), [](auto* cell) { return cell->hasSpan(); });
    if (hasSpans) {
        const std::int64_t count = columnsTaken(row);
        columns_.setEven(count, evenWidth(document_, count));
    }
    return hasSpans;
}

std::int64_t TableLayout::columnsTaken(const InnerRow& row) const {
    std::int64_t count = 0;
    for (const OpenSpan& span : above_) {
        count += span.columns;
    }
    for (const InnerCell* cell : row.list()) {
        count += cell->span().columns;
    }
    return count;
}

void TableLayout::placeWithoutColumns(const InnerRow& row) {
    std::size_t position = 0;
    for (InnerCell* cell : row.list()) {
        places_.push_back({cell, row.rightEdge(++position)});
    }
}

void TableLayout::placeInColumns(const InnerRow& row) {
    for (InnerCell* cell : row.list()) {
        if (!above_.empty()) {
            placeSpansFromAbove();
        }
        ++cell_;
        placeCell(*cell);
    }
    placeSpansFromAbove();
    if (placedFromAbove_ < above_.size()) {
        fail("Row " + std::to_string(row_) + " has no cell for " +
             columnNames(taken_ + 1, above_[placedFromAbove_].firstColumn) +
             ", before the column of a cell that spans rows.");
    }
}

void TableLayout::placeCell(InnerCell& cell) {
    const CellSpan span = cell.span();
    const std::int64_t last = taken_ + span.columns;
    if (last > columns_.count()) {
        fail(cellName() + " would stand in " + columnNames(taken_ + 1, last) +
             ", but the row has only " + std::to_string(columns_.count()) +
             (columns_.count() == 1 ? " column." : " columns."));
    }
    if (placedFromAbove_ < above_.size() && last > above_[placedFromAbove_].firstColumn) {
        fail(cellName() + " spans columns that a cell of row " +
             std::to_string(above_[placedFromAbove_].row) + " covers.");
    }
    const bool isFirst = span.rows > 1;
    places_.push_back(
        {&cell, columns_.edge(last), isFirst ? PlacedCell::Part::First : PlacedCell::Part::Whole});
    if (isFirst) {
        open_.push_back({&cell, taken_, span.columns, columns_.edge(taken_), columns_.edge(last),
                         span.rows - 1, row_});
    }
    taken_ = last;
}

void TableLayout::placeSpansFromAbove() {
    while (placedFromAbove_ < above_.size() && above_[placedFromAbove_].firstColumn == taken_) {
        placePart(above_[placedFromAbove_++]);
    }
}

void TableLayout::placePart(OpenSpan span) {
    const std::int64_t last = taken_ + span.columns;
    if (last > columns_.count() || columns_.edge(taken_) != span.leftEdge ||
        columns_.edge(last) != span.rightEdge) {
        fail("A cell of row " + std::to_string(span.row) + " spans row " + std::to_string(row_) +
             ", whose columns are other ones.");
    }
    places_.push_back({span.cell, span.rightEdge, PlacedCell::Part::Covered});
    if (--span.rowsToCome > 0) {
        open_.push_back(span);
    }
    taken_ = last;
}

void TableLayout::fail(const std::string& message) const {
    raise(RunTimeError::InvalidProcedureCall, message);
}

std::string TableLayout::cellName() const {
    return "Cell " + std::to_string(cell_) + " of row " + std::to_string(row_);
}

}  // namespace quorvane
