#pragma once

#include <cstdint>
#include <new>

#include "quorvane/base/collections/KeyedList.h"
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

/// What a cell is inside. Its paragraphs are a base, so that they know the cell without a
/// reference.
class InnerCell final : public CRtfTableCell, public InnerParagraphs, public KeyedListElement {
public:
    static Ref<InnerCell> create(InnerRow& row);

    TableDocument* document() const noexcept;
    void mark(std::string fieldData);
    InnerParagraphs& paragraphs() noexcept { return *this; }
    void setParent(InnerRow& row) { parent_ = WeakRef<InnerRow>(&row); }
    void takeOver(InnerCell& old);
    void takeBorders(const Borders& borders) { borders_ = borders; }
    std::int32_t backColor() const noexcept;
    std::int32_t align() const noexcept;
    // After this, setting the background to that color cannot fail.
    void prepareBackColor(std::int32_t color);
    void applyBackColor(TableDocument* document, tColorIndex color);
    void setAlign(std::int32_t align);
    bool hasSpan() const { return span().columns > 1 || span().rows > 1; }
    CellSpan span() const { return hasRareValues_ ? rareSpan() : CellSpan(); }
    void renderDefinition(TableRendering& rendering, std::int32_t rightEdge);
    void renderContent(TableRendering& rendering);

private:
    friend class CRtfTableCell;
    friend class InnerCells;
    friend void retain(InnerCell* cell) noexcept;
    friend void release(InnerCell* cell) noexcept;
    friend DocumentMemory& memoryOf(const InnerCell& cell) noexcept;

    explicit InnerCell(InnerRow& row) : parent_(&row) {}
    ~InnerCell() = default;

    static void operator delete(InnerCell* cell, std::destroying_delete_t) noexcept;

    InnerRow& row() const;
    static bool isUsual(std::int32_t value) noexcept;
    RareValues& rareValues();
    CellSpan rareSpan() const;
    void setBackColor(std::int32_t color);
    void setBorder(BorderSide side, tBorderWidth width);
    void setSpan(std::int32_t CellSpan::*direction, std::int32_t count);

    static constexpr std::int8_t unusual = INT8_MIN;

    std::uint32_t references_ : 30 = 0;
    std::uint32_t isMarked_ : 1 = 0;
    std::uint32_t hasRareValues_ : 1 = 0;
    WeakRef<InnerRow> parent_;
    Borders borders_;
    // `unusual` stands for a value that is kept in `RareValues`.
    std::int8_t backColor_ = eNoColor;
    std::int8_t align_ = eNoDefault;
    // Kept by the row's cells: the right edge counts while no later spread gave all cells new ones.
    std::uint16_t edgeSpread_ = 0;
    std::int32_t rightEdge_ = 0;
    SharedText style_;
};

inline InnerCell& inner(CRtfTableCell& cell) noexcept {
    return static_cast<InnerCell&>(cell);
}
inline const InnerCell& inner(const CRtfTableCell& cell) noexcept {
    return static_cast<const InnerCell&>(cell);
}

/// The document that a row belongs to, for its cells; null when it is gone.
TableDocument* documentOf(const InnerRow& row) noexcept;

/// What the elements of a row's document keep outside of themselves.
DocumentMemory& memoryOf(const InnerRow& row) noexcept;

/// The cells of a row, for one of them.
InnerCells& cellsOf(InnerRow& row) noexcept;

}  // namespace quorvane
