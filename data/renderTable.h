#pragma once

#include <string>
#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/compose/render.h"

namespace quorvane::data {

/// What a table has apart from its rows.
struct TableChoices {
    /// The columns as `columnRequests` reads them, without filters; all fields if it is empty.
    std::string columns{};
    /// A row above the heading; none if it is empty.
    std::string title{};
    /// A stylesheet with the styles that `TableSetup` lists; empty for the usual one.
    std::string styleSheet{};
};

/// Makes a document of a table in memory: rows of texts (UTF-8), the first of which has the names
/// of the fields. It has the form that `quorvane table` gives to the same data: the page, the
/// widths and the alignments suit the contents. Cells that are missing at the end are empty. Rows
/// and columns without any text are left out; a column without a name is "Column 2" or so. What
/// cannot be shown is an `Error` "wrong-value"; the message names the row, counted from 1 below the
/// names.
Rendering renderTable(const std::vector<std::vector<std::string>>& rows,
                      const TableChoices& choices = {}, Platform& platform = systemPlatform());

}  // namespace quorvane::data
