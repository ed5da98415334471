#pragma once

#include <vector>

#include "data/columnsMeasure.h"
#include "data/columnsRequest.h"
#include "quorvane/compose/TableSetup.h"

namespace quorvane::data {

/// Adds the columns, with widths and alignments that suit what they hold. If it may choose the
/// page, it turns it for wide tables. There is a measure for each column.
void fitColumns(TableSetup& setup, const std::vector<ColumnRequest>& columns,
                const std::vector<ColumnMeasure>& measures, bool choosesPage);

}  // namespace quorvane::data
