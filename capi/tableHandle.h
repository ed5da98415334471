#pragma once

#include <quorvane.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "capi/HandleError.h"
#include "capi/KeptTable.h"
#include "capi/TableData.h"
#include "quorvane/compose/TableSetup.h"
#include "quorvane/compose/TableWriter.h"

/// A table and where its bytes go.
struct quorvane_table {
    quorvane::TableSetup setup{};
    bool isPageChosen = false;
    /// Where the rows come from; null if the caller adds them.
    std::unique_ptr<quorvane::capi::TableData> data{};
    /// What the caller adds rows to before the widths of the columns are known; null if they need
    /// not be found.
    std::unique_ptr<quorvane::capi::KeptTable> kept{};
    /// What the caller adds rows to.
    std::unique_ptr<quorvane::TableWriter> writer{};
    bool isBegun = false;
    /// The bytes of a table in memory.
    std::optional<std::string> memory{};
    /// The file that is written; empty for none.
    std::string path{};
    /// Nothing can be added.
    bool isEnded = false;
    bool isFinished = false;
    quorvane::capi::HandleError error{};
};
