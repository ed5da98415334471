#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "quorvane/driver/extendedValues.h"

namespace quorvane {

/// The widths in twips of columns in a text area of that width. Those without a width share what
/// the others leave. The right edges are exact to a twip. A `LeafError` of the fault `WrongValue`
/// when they do not fit.
std::vector<std::int32_t> columnLayout(const std::vector<std::optional<ColumnWidth>>& columns,
                                       std::int32_t textArea);

}  // namespace quorvane
