#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/TableCollection.h"

namespace quorvane {

/// The cells of a row, in order.
///
/// Every insertion spreads the cells of the row evenly over the text area, at least 200 twips each,
/// and discards widths that were set before; error 6 if an edge does not fit 32 bits. So set widths
/// when the row has all its cells. When a cell is removed, its left neighbor takes over its right
/// edge, unless it was the first cell or only one cell is left; the other edges stay, so a new
/// first cell grows to the left.
///
/// Holding the collection does not keep the row alive. When the row no longer exists, the
/// collection is empty and has no `Parent`, and every call that would change it raises error 91.
class CRtfTableCells : public TableCollection<CRtfTableCells, CRtfTableCell> {
public:
    /// Returns the row; null if it no longer exists.
    Ref<CRtfTableRow> Parent() const;

    /// Removes the last cell. Error 5 if there is none.
    void removeTail();

    /// Spreads the cells evenly over the text area, at least 200 twips each, so many cells can be
    /// wider than the page. Marks the document changed. Errors: 11 if there are no cells, 6 if an
    /// edge does not fit 32 bits.
    void SetUniformWidths();

    /// Returns the position of a cell, from 1. Errors: 91 "The Cell object is set to Nothing" for
    /// null, 5 if it is not in the list.
    std::int32_t indexOf(const CRtfTableCell* cell) const;

    /// Replaces a cell with a new one that has this key and the old one's background, borders,
    /// width, spans and paragraphs, and returns the new one. Errors: 5 if the old cell is not in
    /// the list, 457 if the key is already in the list, even as the old cell's own key.
    Ref<CRtfTableCell> refile(const Ref<CRtfTableCell>& old, std::string_view key);

protected:
    CRtfTableCells() = default;
    ~CRtfTableCells() = default;
};

}  // namespace quorvane
