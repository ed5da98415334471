#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/TableCollection.h"

namespace quorvane {

/// The cells of a row, in order, with their right edges in twips from the left edge of the table.
///
/// Every insertion spreads the cells evenly over the usable width of the page as it is then, and so
/// forgets all widths that were set before (error 6 when an edge leaves 32 bits). When a cell is
/// removed, its left neighbor takes over its right edge, unless it was the first or just one cell
/// is left; the other edges stay.
///
/// A reference to the collection does not hold the row. When the row is gone, the collection is
/// empty and has no `Parent`; what would change it raises error 91.
class CRtfTableCells : public TableCollection<CRtfTableCells, CRtfTableCell> {
public:
    /// The owning row; null when it is gone.
    Ref<CRtfTableRow> Parent() const;

    /// Removes the last cell. Error 5 when there is none.
    void removeTail();

    /// Spreads the cells evenly over the usable width of the page, each at least 200 twips wide (so
    /// that many cells can be wider than the page). Marks the document changed. Errors: 11 when
    /// there are no cells, 6 when an edge leaves 32 bits.
    void SetUniformWidths();

    /// 1-based position of a cell. Errors: 91 "The Cell object is set to Nothing" for null, 5 when
    /// it is not in the list.
    std::int32_t indexOf(const CRtfTableCell* cell) const;

    /// Puts a new cell with this key, and with the background, the borders, the width and the
    /// paragraphs of the old one, in its place, and returns it. Errors: 5 the old cell is not in
    /// the list, 457 the key is there already, the old cell's own included.
    Ref<CRtfTableCell> refile(const Ref<CRtfTableCell>& old, std::string_view key);

protected:
    CRtfTableCells() = default;
    ~CRtfTableCells() = default;
};

}  // namespace quorvane
