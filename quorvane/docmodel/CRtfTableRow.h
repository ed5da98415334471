#pragma once

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// One row of the table. It is made by the document's `TableRows`, and keeps what it holds when it
/// has been removed there. Borders and background of a row are written nowhere themselves: setting
/// them copies them to the cells that are in the row then. A setter raises error 91 when the
/// document is gone; the value is set all the same.
class CRtfTableRow {
public:
    /// The owning document, also after the row was removed from it; null when it is gone.
    Ref<CRtfDoc> Parent() const;

    /// The cells; the same object every time.
    Ref<CRtfTableCells> TableCells();

    /// Color of the background; `eNoColor` (0) by default.
    tColorIndex BackColor() const;
    /// Another value is copied to every cell of the row and marks the document changed.
    void setBackColor(tColorIndex color);

    /// Width of a border in twips, `eNone` (-1, the default) for no border.
    tBorderWidth BottomBorder() const;
    tBorderWidth TopBorder() const;
    tBorderWidth LeftBorder() const;
    tBorderWidth RightBorder() const;
    /// Another value makes all four borders of every cell of the row those of the row, not only
    /// this one, and marks the document changed.
    void setBottomBorder(tBorderWidth width);
    void setTopBorder(tBorderWidth width);
    void setLeftBorder(tBorderWidth width);
    void setRightBorder(tBorderWidth width);

    CRtfTableRow(const CRtfTableRow&) = delete;
    CRtfTableRow& operator=(const CRtfTableRow&) = delete;

protected:
    CRtfTableRow() = default;
    ~CRtfTableRow() = default;
};

}  // namespace quorvane
