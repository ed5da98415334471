#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/InnerCell.h"
#include "quorvane/docmodel/layout/PlacedCell.h"

namespace quorvane {

/// What the cells of a row are inside: a part of the row (`InnerRow`).
class InnerCells : public CRtfTableCells {
public:
    using List = KeyedList<InnerCell>;

    InnerRow& row() const noexcept;
    const List& list() const noexcept { return list_; }
    TableDocument* document() const noexcept;
    void insertNew(const List::Place& place, TableDocument& document);
    void removeAt(std::size_t position) noexcept;
    void clear() noexcept { list_.clear(); }
    void takeFrom(InnerCells& other);
    std::int32_t indexOf(const CRtfTableCell* cell) const;
    std::int32_t widthOf(const InnerCell& cell, tWidthUnit units) const;
    void setWidthOf(const InnerCell& cell, tWidthUnit units, std::int32_t value);
    void spreadEvenly();
    // Gives the cells these widths in twips, in their order.
    void setWidths(std::span<const std::int32_t> twips);
    std::int32_t rightEdge(std::size_t position) const noexcept;
    void render(TableRendering& rendering);
    /// Writes the cells at these places, and the parts of cells of the rows above.
    void render(TableRendering& rendering, std::span<const PlacedCell> places);

protected:
    ~InnerCells() = default;

private:
    friend class CRtfTableCells;

    void spread(std::int32_t uniformWidth) noexcept;
    void setRightEdge(std::size_t position, std::int32_t edge) noexcept;
    void writeEdges() noexcept;
    std::int32_t width(std::size_t position) const;

    List list_;
    // Once the cells are spread evenly, their edges follow from this width and their positions and
    // are not written into the cells, so that adding a cell does not touch the others. 0 when all
    // edges stand in the cells.
    std::int32_t uniformWidth_ = 0;
    // Cells removed at the head since the cells were spread: the edges of the others stay.
    std::int32_t removedHeads_ = 0;
    // Number of the last spread, from 1. An edge that stands in a cell bears the number of its
    // spread. When the numbers start again, all cells lose theirs.
    std::uint16_t spread_ = 1;
    // True when a cell may bear that number: only then does the next spread need another one.
    bool cellsHaveEdges_ = false;
};

inline InnerCells& inner(CRtfTableCells& cells) noexcept {
    return static_cast<InnerCells&>(cells);
}
inline const InnerCells& inner(const CRtfTableCells& cells) noexcept {
    return static_cast<const InnerCells&>(cells);
}

}  // namespace quorvane
