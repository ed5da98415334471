#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/memory/SharedText.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/Borders.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// One cell of a row. It is made by its row's `TableCells`, and keeps what it holds when it has
/// been removed there. A setter that marks the document changed raises error 91 when the document
/// is gone; the value is set all the same.
class CRtfTableCell final : public KeyedListElement {
public:
    /// The owning row, also after the cell was removed from it; Nothing when the row is gone.
    Ref<CRtfTableRow> Parent() const;

    /// Width of a border in twips, `eNone` (-1, the default) for no border.
    tBorderWidth BottomBorder() const { return borders_[BorderSide::Bottom]; }
    tBorderWidth TopBorder() const { return borders_[BorderSide::Top]; }
    tBorderWidth LeftBorder() const { return borders_[BorderSide::Left]; }
    tBorderWidth RightBorder() const { return borders_[BorderSide::Right]; }
    /// Marks the document changed when the value is another one.
    void setBottomBorder(tBorderWidth width) { setBorder(BorderSide::Bottom, width); }
    void setTopBorder(tBorderWidth width) { setBorder(BorderSide::Top, width); }
    void setLeftBorder(tBorderWidth width) { setBorder(BorderSide::Left, width); }
    void setRightBorder(tBorderWidth width) { setBorder(BorderSide::Right, width); }

    /// Colour of the cell's ground; `eNoColor` (0) by default, which leaves it to the cell's style.
    tColorIndex BackColor() const { return static_cast<tColorIndex>(backColor_); }
    /// Another value marks the document changed, and a dark one makes the text of every paragraph
    /// that is in the cell now white. Dark are black, blue, brown, the dark, deep and navy colours
    /// and others: see `isDarkColor`.
    void setBackColor(tColorIndex color);

    /// Width of the cell: its right edge less that of the cell before it. With `eTwips` in twips,
    /// otherwise in per cent of the usable width of the page, rounded (halves to even). Errors: 5
    /// when the cell is not in its row any more, 6 overflow, 11 per cent of a usable width of 0, 91
    /// when row or document are gone.
    std::int32_t Width(tWidthUnit Units) const;
    /// Moves one boundary so that the cell gets this width: its right edge or, for the last of
    /// several cells, its left edge. `ePercent` takes per cent of the usable width, any other unit
    /// twips. Every cell keeps at least 200 twips; a single cell is at most as wide as the usable
    /// width. Marks the document changed. Errors as `Width`.
    void setWidth(tWidthUnit Units, std::int32_t width);

    /// The paragraphs; the same object every time.
    Ref<CRtfParagraphs> Paragraphs() { return Ref<CRtfParagraphs>(&paragraphs_); }

    /// Alignment of all paragraphs; `eNoDefault` (0), the default, leaves each its own. Any other
    /// value is given to all paragraphs whenever the document is rendered.
    tCellAlign Align() const { return static_cast<tCellAlign>(align_); }
    /// Does not mark the document changed.
    void setAlign(tCellAlign align) { align_ = align; }

    /// Name of the cell's style; empty by default. It gives the colour of the ground when
    /// `BackColor` is 0: rendering then sets `BackColor`, with all that follows from it.
    std::string Style() const { return style_.text(); }
    /// Marks the document changed, also when the name is the same.
    void setStyle(std::string_view sName);

    /// Makes the cell's content a marked text field with the given data: a text or a 16-bit or
    /// 32-bit integer. Data of another type leaves the cell as it was; the error goes to the error
    /// module. Does not mark the document changed.
    void asMarkedField(const Value& vFieldData);

private:
    friend class CRtfTableCells;
    friend class CRtfTableRow;
    friend void retain(CRtfTableCell* cell) noexcept;
    friend void release(CRtfTableCell* cell) noexcept;
    friend TableDocument* documentOf(const CRtfTableCell& cell) noexcept;
    friend MemoryPool& poolOf(const CRtfTableCell& cell) noexcept;

    static Ref<CRtfTableCell> create(CRtfTableRow& row);
    explicit CRtfTableCell(CRtfTableRow& row) : parent_(&row) {}
    ~CRtfTableCell() = default;
    static void operator delete(CRtfTableCell* cell, std::destroying_delete_t) noexcept;

    void setParent(CRtfTableRow& row) { parent_ = WeakRef<CRtfTableRow>(&row); }
    TableDocument* document() const noexcept;
    CRtfTableRow& row() const;
    void takeOver(CRtfTableCell& old);
    void setBorder(BorderSide side, tBorderWidth width);
    void applyBackColor(TableDocument* document, tColorIndex color);
    void renderDefinition(TableRendering& rendering, std::int32_t rightEdge);
    void renderContent(TableRendering& rendering);

    Counted counts_;
    WeakRef<CRtfTableRow> parent_;
    Borders borders_;
    std::int32_t backColor_ = eNoColor;
    std::int32_t align_ = eNoDefault;
    // Kept by the row's cells: the right edge counts while no later spread gave all cells new ones.
    std::int32_t rightEdge_ = 0;
    std::uint32_t edgeSpread_ = 0;
    SharedText style_;
    // Hexadecimal data of a marked field; null when the cell is none.
    std::unique_ptr<std::string> markedField_;
    CRtfParagraphs paragraphs_{*this};
};

/// True for the ground colours on which text is made white: 3, 4, 5, 8 to 15, 17, 24, 25, 29, 31,
/// 38, 39, 41, 43, 44, 46, 48, 49, 51, 52, 53, 55 and 57.
bool isDarkColor(tColorIndex color) noexcept;

/// The document that a row belongs to, for its cells; null when it is gone.
TableDocument* documentOf(const CRtfTableRow& row) noexcept;

/// The memory that a row and its cells are in.
MemoryPool& poolOf(const CRtfTableRow& row) noexcept;

/// Width of a cell of the row; see `CRtfTableCell::Width`.
std::int32_t cellWidth(const CRtfTableRow& row, const CRtfTableCell& cell, tWidthUnit units);

/// Sets the width of a cell of the row; see `CRtfTableCell::setWidth`.
void setCellWidth(CRtfTableRow& row, CRtfTableCell& cell, tWidthUnit units, std::int32_t width);

}  // namespace quorvane
