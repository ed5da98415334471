#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/TableCollection.h"
#include "quorvane/docmodel/references.h"

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
    Ref<CRtfTableRow> Parent() const { return Ref<CRtfTableRow>(isAlive(&row_) ? &row_ : nullptr); }

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
    /// width and paragraphs, and returns the new one. Errors: 5 if the old cell is not in the list,
    /// 457 if the key is already in the list, even as the old cell's own key.
    Ref<CRtfTableCell> refile(const Ref<CRtfTableCell>& old, std::string_view key);

private:
    friend class TableCollection;
    friend class CRtfTableRow;
    friend void retain(CRtfTableCells* cells) noexcept;
    friend void release(CRtfTableCells* cells) noexcept;
    friend std::int32_t cellWidth(const CRtfTableRow& row, const CRtfTableCell& cell,
                                  tWidthUnit units);
    friend void setCellWidth(CRtfTableRow& row, CRtfTableCell& cell, tWidthUnit units,
                             std::int32_t width);

    explicit CRtfTableCells(CRtfTableRow& row) : row_(row) {}

    TableDocument* document() const noexcept { return isAlive(&row_) ? documentOf(row_) : nullptr; }
    void insertNew(const List::Place& place, TableDocument& document);
    void removeAt(std::size_t position) noexcept;
    void takeFrom(CRtfTableCells& other);
    void spread(std::int32_t uniformWidth) noexcept;
    std::int32_t rightEdge(std::size_t position) const noexcept;
    void setRightEdge(std::size_t position, std::int32_t edge) noexcept;
    void writeEdges() noexcept;
    std::int32_t width(std::size_t position) const;
    std::int32_t widthOf(const CRtfTableCell& cell, tWidthUnit units) const;
    void setWidthOf(const CRtfTableCell& cell, tWidthUnit units, std::int32_t value);
    void render(TableRendering& rendering);

    CRtfTableRow& row_;
    // Once the cells are spread evenly, their edges follow from this width and their positions and
    // are not written into the cells, so that adding a cell does not touch the others. 0 when all
    // edges stand in the cells.
    std::int32_t uniformWidth_ = 0;
    // Cells removed at the head since the cells were spread: the edges of the others stay.
    std::int32_t removedHeads_ = 0;
    // How often the cells were spread. An edge that stands in a cell bears the number of its
    // spread.
    std::uint32_t spreads_ = 0;
};

}  // namespace quorvane
