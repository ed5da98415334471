#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "capi/KeptTable.h"
#include "data/columnsMeasure.h"
#include "data/firstRecords.h"
#include "data/keptRows.h"

namespace quorvane::capi {

/// Keeps the first rows until the widths of the columns are known, and writes them then.
class FittedTable final : public KeptTable {
public:
    void begin(const TableSetup& setup, bool isPageChosen, OpenTable open) override;
    bool add(RowKind kind, std::span<const std::string_view> cells) override;
    std::unique_ptr<TableWriter> write() override;

private:
    TableSetup fitted() const;
    TableSetup fittedOrAccepted() const;
    void measure(RowKind kind, std::span<const std::string_view> cells);

    TableSetup setup_;
    bool isPageChosen_ = false;
    OpenTable open_;
    // Fits together, with widths that suit the headings alone.
    TableSetup accepted_;
    // Refuses rows that are wrong.
    std::unique_ptr<TableWriter> trial_;
    std::vector<data::ColumnMeasure> measures_;
    data::FirstRecords first_;
    // Their lines are their kinds.
    data::KeptRows rows_;
};

}  // namespace quorvane::capi
