#pragma once

#include <quorvane.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "capi/HandleError.h"
#include "quorvane/compose/TableSetup.h"
#include "quorvane/compose/TableWriter.h"

/// A table and where its bytes go.
struct quorvane_table {
    quorvane::TableSetup setup{};
    std::unique_ptr<quorvane::TableWriter> writer{};
    /// The bytes of a table in memory.
    std::optional<std::string> memory{};
    /// The file that is written; empty for none.
    std::string path{};
    /// Nothing can be added.
    bool isEnded = false;
    bool isFinished = false;
    quorvane::capi::HandleError error{};
};
