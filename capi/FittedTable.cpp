#include "capi/FittedTable.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>

#include "data/columnsFit.h"
#include "data/columnsNumber.h"
#include "data/columnsRequest.h"

namespace quorvane::capi {

namespace {

data::ColumnRequest requestOf(const TableColumn& column) {
    return {.name = column.heading,
            .width = column.width,
            .align = column.align == eNoDefault ? std::nullopt : std::optional(column.align)};
}

}  // namespace

void FittedTable::begin(const TableSetup& setup, bool isPageChosen, OpenTable open) {
    setup_ = setup;
    isPageChosen_ = isPageChosen;
    open_ = std::move(open);
    measures_.assign(setup.columns.size(), data::ColumnMeasure());
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        if (setup.hasHeading) {
            measures_[i].addHeading(setup.columns[i].heading);
        }
    }
    trial_ = std::make_unique<TableWriter>(fitted(), [](std::string_view) {});
}

std::unique_ptr<TableWriter> FittedTable::add(RowKind kind,
                                              std::span<const std::string_view> cells) {
    addRow(*trial_, kind, cells);
    rows_.add(cells, static_cast<std::int64_t>(kind));
    measure(kind, cells);
    return first_.needsMore() ? nullptr : write();
}

std::unique_ptr<TableWriter> FittedTable::write() {
    std::unique_ptr<TableWriter> writer = open_(fitted());
    std::vector<std::string_view> cells;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_.read(i, cells);
        addRow(*writer, static_cast<RowKind>(rows_.line(i)), cells);
    }
    return writer;
}

TableSetup FittedTable::fitted() const {
    TableSetup setup = setup_;
    setup.columns.clear();
    std::vector<data::ColumnRequest> columns;
    std::transform(setup_.columns.begin(), setup_.columns.end(), std::back_inserter(columns),
                   requestOf);
    data::fitColumns(setup, columns, measures_, !isPageChosen_);
    return setup;
}

void FittedTable::measure(RowKind kind, std::span<const std::string_view> cells) {
    first_.add(cells);
    for (std::size_t i = 0; i < cells.size() && kind != RowKind::Group; ++i) {
        if (kind == RowKind::Row) {
            measures_[i].addCell(cells[i]);
        } else if (data::looksLikeNumber(cells[i])) {
            measures_[i].addTotal();
        }
    }
}

}  // namespace quorvane::capi
