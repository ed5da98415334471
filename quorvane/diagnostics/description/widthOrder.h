#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// The widths of a row's cells in percent; nothing for a cell without one.
using CellPercents = std::vector<std::optional<double>>;

/// True when the cell at the index is clearly not as wide as its percentage of the room between the
/// margins. The widths are those of all cells of the row, in twips.
bool isOfOtherWidth(const std::vector<std::int32_t>& widths, std::size_t index, double percent,
                    std::int32_t room);

/// The order of the cells in which all of them get their widths, found by trying it; empty when
/// they do in the order that they have, or in none.
Hint widthOrderHint(const CellPercents& percents, std::int32_t room);

}  // namespace quorvane
