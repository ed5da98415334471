#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <string>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/memory/SharedText.h"
#include "quorvane/base/memory/WeakRef.h"
#include "quorvane/docmodel/Borders.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/InnerParagraphs.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/innerReferences.h"

namespace quorvane {

/// What a cell is inside.
class InnerCell final : public CRtfTableCell, public KeyedListElement {
public:
    static Ref<InnerCell> create(InnerRow& row);

    TableDocument* document() const noexcept;
    void setParent(InnerRow& row) { parent_ = WeakRef<InnerRow>(&row); }
    void takeOver(InnerCell& old);
    void takeBorders(const Borders& borders) { borders_ = borders; }
    void applyBackColor(TableDocument* document, tColorIndex color);
    void renderDefinition(TableRendering& rendering, std::int32_t rightEdge);
    void renderContent(TableRendering& rendering);

private:
    friend class CRtfTableCell;
    friend class InnerCells;
    friend void retain(InnerCell* cell) noexcept;
    friend void release(InnerCell* cell) noexcept;
    friend MemoryPool& poolOf(const InnerCell& cell) noexcept;

    explicit InnerCell(InnerRow& row) : parent_(&row) {}
    ~InnerCell() = default;

    static void operator delete(InnerCell* cell, std::destroying_delete_t) noexcept;

    InnerRow& row() const;
    void setBorder(BorderSide side, tBorderWidth width);

    Counted counts_;
    WeakRef<InnerRow> parent_;
    Borders borders_;
    std::int32_t backColor_ = eNoColor;
    std::int32_t align_ = eNoDefault;
    // Kept by the row's cells: the right edge counts while no later spread gave all cells new ones.
    std::int32_t rightEdge_ = 0;
    std::uint32_t edgeSpread_ = 0;
    SharedText style_;
    // Hexadecimal data of a marked field; null when the cell is not one.
    std::unique_ptr<std::string> markedField_;
    InnerParagraphs paragraphs_{*this};
};

inline InnerCell& inner(CRtfTableCell& cell) noexcept {
    return static_cast<InnerCell&>(cell);
}
inline const InnerCell& inner(const CRtfTableCell& cell) noexcept {
    return static_cast<const InnerCell&>(cell);
}

/// The document that a row belongs to, for its cells; null when it is gone.
TableDocument* documentOf(const InnerRow& row) noexcept;

/// The memory that a row and its cells are in.
MemoryPool& poolOf(const InnerRow& row) noexcept;

/// The cells of a row, for one of them.
InnerCells& cellsOf(InnerRow& row) noexcept;

}  // namespace quorvane
