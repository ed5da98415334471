#pragma once

#include <cstdint>
#include <new>
#include <string>

#include "quorvane/base/collections/KeyedList.h"
#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/TableDocument.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// A row of the table. The document's `TableRows` makes it; after it is removed there, it keeps its
/// values. A row draws no borders and no background itself: setting them copies them to the cells
/// that are in the row at that moment. Cells that are added later get nothing from the row. So set
/// the values of a row when it has all its cells, and those of single cells afterwards. Setters set
/// the value and raise error 91 if the document no longer exists.
class CRtfTableRow final : public KeyedListElement {
public:
    /// Returns the document, even after the row was removed from it; null if it no longer exists.
    Ref<CRtfDoc> Parent() const;

    /// Returns the cells; the same object every time.
    Ref<CRtfTableCells> TableCells() { return Ref<CRtfTableCells>(&cells_); }

    /// Background color, `eNoColor` (0) by default.
    tColorIndex BackColor() const { return static_cast<tColorIndex>(backColor_); }
    /// Setting another value copies it to every cell of the row and marks the document changed.
    void setBackColor(tColorIndex color);

    /// Width of a border in twips; the default, `eNone` (-1), is no border.
    tBorderWidth BottomBorder() const { return borders_[BorderSide::Bottom]; }
    tBorderWidth TopBorder() const { return borders_[BorderSide::Top]; }
    tBorderWidth LeftBorder() const { return borders_[BorderSide::Left]; }
    tBorderWidth RightBorder() const { return borders_[BorderSide::Right]; }
    /// Setting another value copies all four borders of the row to every cell, not only this one,
    /// so cells lose the borders that were set for them. It marks the document changed.
    void setBottomBorder(tBorderWidth width) { setBorder(BorderSide::Bottom, width); }
    void setTopBorder(tBorderWidth width) { setBorder(BorderSide::Top, width); }
    void setLeftBorder(tBorderWidth width) { setBorder(BorderSide::Left, width); }
    void setRightBorder(tBorderWidth width) { setBorder(BorderSide::Right, width); }

private:
    friend class CRtfTableRows;
    friend class CountedOwner;
    friend void retain(CRtfTableRow* row) noexcept;
    friend void release(CRtfTableRow* row) noexcept;
    friend void retainWeak(CRtfTableRow* row) noexcept;
    friend void releaseWeak(CRtfTableRow* row) noexcept;
    friend bool isAlive(const CRtfTableRow* row) noexcept;
    friend TableDocument* documentOf(const CRtfTableRow& row) noexcept;
    friend MemoryPool& poolOf(const CRtfTableRow& row) noexcept;
    friend std::int32_t cellWidth(const CRtfTableRow& row, const CRtfTableCell& cell,
                                  tWidthUnit units);
    friend void setCellWidth(CRtfTableRow& row, CRtfTableCell& cell, tWidthUnit units,
                             std::int32_t width);

    static Ref<CRtfTableRow> create(const WeakRef<TableDocument>& document);
    explicit CRtfTableRow(const WeakRef<TableDocument>& document) : parent_(document) {}
    ~CRtfTableRow() = default;
    static void operator delete(CRtfTableRow* row, std::destroying_delete_t) noexcept;

    void letGo() noexcept;
    void takeOver(CRtfTableRow& old);
    void setBorder(BorderSide side, tBorderWidth width);
    void render(TableRendering& rendering);

    CountedOwner counts_;
    WeakRef<TableDocument> parent_;
    Borders borders_;
    std::int32_t backColor_ = eNoColor;
    CRtfTableCells cells_{*this};
};

}  // namespace quorvane
