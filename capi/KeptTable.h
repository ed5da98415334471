#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "capi/TableData.h"
#include "capi/addRow.h"
#include "quorvane/compose/TableSetup.h"
#include "quorvane/compose/TableWriter.h"

namespace quorvane::capi {

/// The rows of a table that is not written yet. As with `TableData`, only one function refers to
/// the class that implements this.
class KeptTable {
public:
    KeptTable() = default;
    KeptTable(const KeptTable&) = delete;
    KeptTable& operator=(const KeptTable&) = delete;
    virtual ~KeptTable() = default;

    /// Begins anew. Refuses a setup that does not fit together.
    virtual void begin(const TableSetup& setup, bool isPageChosen, OpenTable open) = 0;
    /// Adds a row, or refuses it as a writer does. True when there are enough rows to write them.
    virtual bool add(RowKind kind, std::span<const std::string_view> cells) = 0;
    /// Opens the document and returns it with all rows, once. What `begin` accepted fits together.
    virtual std::unique_ptr<TableWriter> write() = 0;
};

}  // namespace quorvane::capi
