#pragma once

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// A row of the table. The document's `TableRows` makes it; after it is removed there, it keeps its
/// values. A row draws no borders and no background itself: setting them copies them to the cells
/// that are in the row at that moment. Cells that are added later get nothing from the row. So set
/// the values of a row when it has all its cells, and those of single cells afterwards. Setters set
/// the value and raise error 91 if the document no longer exists.
class CRtfTableRow {
public:
    /// Returns the document, even after the row was removed from it; null if it no longer exists.
    Ref<CRtfDoc> Parent() const;

    /// Returns the cells; the same object every time.
    Ref<CRtfTableCells> TableCells();

    /// Background color, `eNoColor` (0) by default.
    tColorIndex BackColor() const;
    /// Setting another value copies it to every cell of the row and marks the document changed.
    void setBackColor(tColorIndex color);

    /// Width of a border in twips; the default, `eNone` (-1), is no border.
    tBorderWidth BottomBorder() const;
    tBorderWidth TopBorder() const;
    tBorderWidth LeftBorder() const;
    tBorderWidth RightBorder() const;
    /// Setting another value copies all four borders of the row to every cell, not only this one,
    /// so cells lose the borders that were set for them. It marks the document changed.
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
