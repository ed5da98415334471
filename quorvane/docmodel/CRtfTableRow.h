#pragma once

#include <cstdint>
#include <vector>

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

    /// Widths of the row's columns in twips, in their order; empty by default, which leaves them to
    /// the document (`CRtfDoc::setColumnWidths`).
    const std::vector<std::int32_t>& ColumnWidths() const;
    /// Sets the columns of this row. The right edges of its cells are then exactly theirs, whatever
    /// `CRtfTableCell::Width` returns. An empty list goes back to those of the document. Setting
    /// other widths marks the document changed. Errors: 5 for a width below 1, 6 if their sum does
    /// not fit 32 bits. More cells than columns are an error when the document is rendered; see
    /// `CRtfDoc::Refresh`. A row with fewer cells ends early.
    void setColumnWidths(std::vector<std::int32_t> twips);

    /// Whether the row is a part of the heading, which is on every page. Initially false. The
    /// heading is made of the first rows of the table: a row with true below one with false is an
    /// error when the document is rendered. How it is written: see `CRtfDoc::setHeadingForm`.
    bool RepeatsAsHeading() const;
    /// Setting another value marks the document changed.
    void setRepeatsAsHeading(bool repeats);

    /// Whether the row stays on one page. Initially false: a page can end within the row.
    bool KeepTogether() const;
    /// Setting another value marks the document changed.
    void setKeepTogether(bool keep);

    /// Whether the row stays on the page of the row below it. Initially false.
    bool KeepWithNext() const;
    /// Setting another value marks the document changed.
    void setKeepWithNext(bool keep);

    /// Whether a page starts with the row. Initially false. The table then ends with the row above,
    /// and one of the same columns follows. Without effect in the heading and in the first row
    /// after it.
    bool StartsPage() const;
    /// Setting another value marks the document changed.
    void setStartsPage(bool starts);

    CRtfTableRow(const CRtfTableRow&) = delete;
    CRtfTableRow& operator=(const CRtfTableRow&) = delete;

protected:
    CRtfTableRow() = default;
    ~CRtfTableRow() = default;
};

}  // namespace quorvane
