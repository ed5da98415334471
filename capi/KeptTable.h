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
    /// Adds a row, or refuses it as a writer does. When there are enough rows, it opens the
    /// document and returns it with all of them; otherwise null.
    virtual std::unique_ptr<TableWriter> add(RowKind kind,
                                             std::span<const std::string_view> cells) = 0;
    /// Opens the document and returns it with all rows.
    virtual std::unique_ptr<TableWriter> write() = 0;
};

}  // namespace quorvane::capi
