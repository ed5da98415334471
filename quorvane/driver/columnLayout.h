#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

/// Where columns are.
struct ColumnSpace {
    /// The width that shares are taken of.
    std::int32_t textArea = 0;
    /// From the left margin to the edge of the paper.
    std::int32_t paper = 0;
};

/// Where the columns of a document are.
ColumnSpace columnSpaceOf(const CRtfDoc& document);

/// The widths of columns in twips. Those without a width share what the others leave of the text
/// area. The right edges are exact to a twip. A `LeafError` of the fault `WrongValue` if the shares
/// are more than 100 %, if the columns go beyond the paper, or if nothing is left.
std::vector<std::int32_t> columnLayout(const std::vector<std::optional<ColumnWidth>>& columns,
                                       const ColumnSpace& space);

}  // namespace quorvane
