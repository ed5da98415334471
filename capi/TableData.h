#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "capi/DiagnosticList.h"
#include "quorvane/compose/TableSetup.h"
#include "quorvane/compose/TableWriter.h"

namespace quorvane::capi {

/// Opens the document of a setup.
using OpenTable = std::function<std::unique_ptr<TableWriter>(const TableSetup& setup)>;

/// Where the rows of a table come from if the caller does not add them. Only the functions that set
/// the data refer to the class that implements this, so a module without them is linked without it.
class TableData {
public:
    TableData() = default;
    TableData(const TableData&) = delete;
    TableData& operator=(const TableData&) = delete;
    virtual ~TableData() = default;

    /// True if the data comes from this file, whatever the spelling of its path.
    virtual bool isFromFile(const std::string& path) const = 0;
    /// Sets one of the options from `QUORVANE_TABLE_COLUMNS` on.
    virtual void setOption(int option, std::string_view value) = 0;
    /// Finds the columns, and opens the document; again after a failure. If the page is not chosen,
    /// it is turned for wide tables.
    virtual void begin(const TableSetup& setup, bool isPageChosen, const OpenTable& open) = 0;
    /// Writes the rows and ends the document.
    virtual void finish() = 0;
    /// About the rows up to now.
    virtual const DiagnosticList& diagnostics() const = 0;
};

}  // namespace quorvane::capi
