#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/BuiltTable.h"
#include "quorvane/driver/LeafApplication.h"
#include "quorvane/driver/columnLayout.h"

namespace quorvane {

/// Gives the cells of a document their widths as the extended language has them: exact shares of
/// the text area. The page of the document is set up before.
class ExtendedColumns {
public:
    /// All that is given must outlive the columns.
    ExtendedColumns(CRtfDoc& document, LeafApplication& apply)
        : document_(document), apply_(apply) {}

    /// The widths in twips that the value of `columns` gives.
    std::vector<std::int32_t> columnsOf(const Leaf& leaf) const;

    /// Where cells of a row have widths of their own, the others share what is left of the text
    /// area. Rows below one another are given to it from top to bottom.
    void applyWidths(BuiltTable::Row& row, std::span<const BuiltTable::Cell> cells);

private:
    ColumnWidth widthOf(const BuiltTable::Row& row, const BuiltTable::Cell& cell,
                        const Leaf& leaf) const;
    void setWidths(BuiltTable::Row& row, std::span<const BuiltTable::Cell> cells);

    CRtfDoc& document_;
    LeafApplication& apply_;
    // The widths that the cells of a row have.
    std::vector<std::optional<ColumnWidth>> widths_;
    // Those of a row before it, and what they are in twips: most rows of a table are alike.
    std::vector<std::optional<ColumnWidth>> knownWidths_;
    std::vector<std::int32_t> knownTwips_;
};

}  // namespace quorvane
