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

/// One cell of a row. It is made by its row's `TableCells`, and keeps what it holds when it has
/// been removed there. A setter that marks the document changed raises error 91 when the document
/// is gone; the value is set all the same.
class CRtfTableCell {
public:
    /// The owning row, also after the cell was removed from it; null when the row is gone.
    Ref<CRtfTableRow> Parent() const;

    /// Width of a border in twips, `eNone` (-1, the default) for no border.
    tBorderWidth BottomBorder() const;
    tBorderWidth TopBorder() const;
    tBorderWidth LeftBorder() const;
    tBorderWidth RightBorder() const;
    /// Marks the document changed when the value is another one.
    void setBottomBorder(tBorderWidth width);
    void setTopBorder(tBorderWidth width);
    void setLeftBorder(tBorderWidth width);
    void setRightBorder(tBorderWidth width);

    /// Color of the background; `eNoColor` (0) by default, which leaves it to the cell's style.
    tColorIndex BackColor() const;
    /// Another value marks the document changed, and a dark one makes the text of every paragraph
    /// that is in the cell now white. Dark are black, blue, brown, the dark, deep and navy colors
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
    Ref<CRtfParagraphs> Paragraphs();

    /// Alignment of all paragraphs; `eNoDefault` (0), the default, leaves each its own. Any other
    /// value is given to all paragraphs whenever the document is rendered.
    tCellAlign Align() const;
    /// Does not mark the document changed.
    void setAlign(tCellAlign align);

    /// Name of the cell's style; empty by default. It gives the background its color when
    /// `BackColor` is 0: rendering then sets `BackColor`, with all that follows from it.
    std::string Style() const;
    /// Marks the document changed, also when the name is the same.
    void setStyle(std::string_view sName);

    /// Makes the cell's content a marked text field with the given data: a text or a 16-bit or
    /// 32-bit integer. Data of another type leaves the cell as it was; the error goes to the error
    /// module. Does not mark the document changed.
    void asMarkedField(const Value& vFieldData);

    CRtfTableCell(const CRtfTableCell&) = delete;
    CRtfTableCell& operator=(const CRtfTableCell&) = delete;

protected:
    CRtfTableCell() = default;
    ~CRtfTableCell() = default;
};

/// True for the background colors on which text is made white: 3, 4, 5, 8 to 15, 17, 24, 25, 29,
/// 31, 38, 39, 41, 43, 44, 46, 48, 49, 51, 52, 53, 55 and 57.
bool isDarkColor(tColorIndex color) noexcept;

}  // namespace quorvane
