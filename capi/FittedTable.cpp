#include "capi/FittedTable.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>

#include "data/columnsFit.h"
#include "data/columnsNumber.h"
#include "data/columnsRequest.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::capi {

namespace {

data::ColumnRequest requestOf(const TableColumn& column) {
    return {.name = column.heading,
            .width = column.width,
            .align = column.align == eNoDefault ? std::nullopt : std::optional(column.align)};
}

/// A document for nobody, which shows what is wrong with a setup or a row.
std::unique_ptr<TableWriter> trialOf(const TableSetup& setup) {
    return std::make_unique<TableWriter>(setup, [](std::string_view) {});
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
    accepted_ = fitted();
    trial_ = trialOf(accepted_);
}

bool FittedTable::add(RowKind kind, std::span<const std::string_view> cells) {
    addRow(*trial_, kind, cells);
    rows_.add(cells, static_cast<std::int64_t>(kind));
    measure(kind, cells);
    return !first_.needsMore();
}

std::unique_ptr<TableWriter> FittedTable::write() {
    std::unique_ptr<TableWriter> writer = open_(fittedOrAccepted());
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

/// In a narrow rest of the page, the least widths of the columns can together take more than it.
TableSetup FittedTable::fittedOrAccepted() const {
    TableSetup setup = fitted();
    try {
        trialOf(setup);
        return setup;
    } catch (const RtfError& error) {
        if (!error.is(RunTimeError::InvalidProcedureCall)) {
            throw;
        }
    }
    TableSetup accepted = accepted_;
    for (std::size_t i = 0; i < accepted.columns.size(); ++i) {
        accepted.columns[i].align = setup.columns[i].align;
    }
    return accepted;
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
