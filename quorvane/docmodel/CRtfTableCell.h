#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/docmodel/references.h"

namespace quorvane {

/// A cell of a row. The row's `TableCells` makes it; after it is removed there, it keeps its
/// values. Setters that mark the document changed set the value and raise error 91 if the document
/// no longer exists.
class CRtfTableCell {
public:
    /// Returns the row, even after the cell was removed from it; null if the row no longer exists.
    Ref<CRtfTableRow> Parent() const;

    /// Width of a border in twips; the default, `eNone` (-1), is no border. Any other number is
    /// written as it is.
    tBorderWidth BottomBorder() const;
    tBorderWidth TopBorder() const;
    tBorderWidth LeftBorder() const;
    tBorderWidth RightBorder() const;
    /// Setting another value marks the document changed.
    void setBottomBorder(tBorderWidth width);
    void setTopBorder(tBorderWidth width);
    void setLeftBorder(tBorderWidth width);
    void setRightBorder(tBorderWidth width);

    /// Background color. The default, `eNoColor` (0), leaves it to the cell style.
    tColorIndex BackColor() const;
    /// Setting another value marks the document changed. If the new color is dark (see
    /// `isDarkColor`), all paragraphs that are in the cell at that moment become white; a light
    /// color does not change them.
    void setBackColor(tColorIndex color);

    /// Returns the width of the cell: its right edge minus that of the cell before it. With
    /// `eTwips` in twips, otherwise in percent of the text area, rounded (halves to even). Errors:
    /// 5 if the cell is no longer in its row, 6 for an overflow, 11 for a percentage of a text area
    /// of width 0, 91 if the row or the document no longer exists.
    std::int32_t Width(tWidthUnit Units) const;
    /// Gives the cell this width by moving one edge: the right edge or, for the last of several
    /// cells, the left edge. With `ePercent` the width is in percent of the text area, otherwise
    /// in twips. The edge stops 200 twips before the next edge on either side; a single cell is at
    /// least 200 twips and at most the text area wide. No other edge moves. Marks the document
    /// changed. Errors as for `Width`.
    void setWidth(tWidthUnit Units, std::int32_t width);

    /// Returns the paragraphs; the same object every time.
    Ref<CRtfParagraphs> Paragraphs();

    /// Alignment of all paragraphs. The default, `eNoDefault` (0), leaves each paragraph its own;
    /// any other value is given to all paragraphs whenever the document is rendered.
    tCellAlign Align() const;
    /// Does not mark the document changed.
    void setAlign(tCellAlign align);

    /// Name of the cell style, empty by default. If `BackColor` is 0 when the document is rendered,
    /// it is set to the color of the style, with the same effects as `setBackColor`.
    std::string Style() const;
    /// Always marks the document changed, even with the same name.
    void setStyle(std::string_view sName);

    /// Number of columns that the cell takes, 1 by default. The columns of a row are those of
    /// `CRtfTableRow::setColumnWidths` or `CRtfDoc::setColumnWidths`. Where there are none, a row
    /// in which a cell spans columns or rows has as many columns of the same width as its cells
    /// take, and `setWidth` has no effect there.
    std::int32_t ColumnSpan() const;
    /// Setting another value marks the document changed. Error 5 for a value below 1. A cell that
    /// reaches beyond the last column is an error when the document is rendered; see
    /// `CRtfDoc::Refresh`.
    void setColumnSpan(std::int32_t count);

    /// Number of rows that the cell takes, 1 by default. The rows below do not have cells for the
    /// columns that it covers: rendering inserts them, with the borders and the background of this
    /// cell. Their other cells stand in the columns that are free.
    std::int32_t RowSpan() const;
    /// Setting another value marks the document changed. Error 5 for a value below 1. When the
    /// document is rendered, it is an error if the cell reaches beyond the last row, out of the
    /// heading or into a row that starts a page, or if a row below does not have a cell for each
    /// column before it, or has columns of other widths.
    void setRowSpan(std::int32_t count);

    /// Makes the cell a marked field with this data: a text or a 16-bit or 32-bit integer. Data of
    /// another type leaves the cell as it was, and the error goes to the error module (see
    /// `CRtfDoc::setAbsorbedErrorObserver`). Does not mark the document changed.
    void asMarkedField(const Value& vFieldData);

    CRtfTableCell(const CRtfTableCell&) = delete;
    CRtfTableCell& operator=(const CRtfTableCell&) = delete;

protected:
    CRtfTableCell() = default;
    ~CRtfTableCell() = default;
};

/// Returns whether text on this background becomes white: true for 3, 4, 5, 8 to 15, 17, 24, 25,
/// 29, 31, 38, 39, 41, 43, 44, 46, 48, 49, 51, 52, 53, 55 and 57.
bool isDarkColor(tColorIndex color) noexcept;

}  // namespace quorvane
