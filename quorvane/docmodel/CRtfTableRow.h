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

/// One row of the table. It is made by the document's `TableRows`, and keeps what it holds when it
/// has been removed there. Borders and ground of a row are written nowhere themselves: setting them
/// copies them to the cells that are in the row then. A setter raises error 91 when the document is
/// gone; the value is set all the same.
class CRtfTableRow final : public KeyedListElement {
public:
    /// The owning document, also after the row was removed from it; Nothing when it is gone.
    Ref<CRtfDoc> Parent() const;

    /// The cells; the same object every time.
    Ref<CRtfTableCells> TableCells() { return Ref<CRtfTableCells>(&cells_); }

    /// Colour of the ground; `eNoColor` (0) by default.
    tColorIndex BackColor() const { return static_cast<tColorIndex>(backColor_); }
    /// Another value is copied to every cell of the row and marks the document changed.
    void setBackColor(tColorIndex color);

    /// Width of a border in twips, `eNone` (-1, the default) for no border.
    tBorderWidth BottomBorder() const { return borders_[BorderSide::Bottom]; }
    tBorderWidth TopBorder() const { return borders_[BorderSide::Top]; }
    tBorderWidth LeftBorder() const { return borders_[BorderSide::Left]; }
    tBorderWidth RightBorder() const { return borders_[BorderSide::Right]; }
    /// Another value makes all four borders of every cell of the row those of the row, not only
    /// this one, and marks the document changed.
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
