#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/compose/ElementRange.h"
#include "quorvane/compose/Paragraph.h"
#include "quorvane/docmodel/CRtfTableCell.h"

namespace quorvane {

class Row;
using Paragraphs = ElementRange<Paragraph>;

/// A handle to a cell of a row. See `Row` for how handles work.
class Cell {
public:
    /// A handle to no cell.
    Cell() = default;

    /// Adds a paragraph at the end, with a text and a paragraph style, and returns it. Errors as
    /// for `Paragraph::setText` and `Paragraph::setStyle`.
    Paragraph addParagraph(TextView text = {}, std::string_view style = {}) const;
    /// Does the same with a picture, which stands before the text of the paragraph.
    Paragraph addParagraph(const Picture& picture, std::string_view style = {}) const;
    /// Inserts a paragraph before the one with this index, or at the end for the index after the
    /// last. Error "wrong-call" for a larger index; others as for `addParagraph`.
    Paragraph insertParagraph(std::size_t index, TextView text = {},
                              std::string_view style = {}) const;

    /// Returns the paragraphs.
    Paragraphs paragraphs() const { return Paragraphs(*this); }
    /// Returns the number of paragraphs.
    std::size_t size() const { return paragraphs().size(); }
    /// Returns a paragraph. Error "wrong-call" if there is none with this index.
    Paragraph operator[](std::size_t index) const { return paragraphs()[index]; }
    /// Returns the paragraph with this key, which a description gave it (`para-key`). Error
    /// "wrong-call" if no paragraph has it.
    Paragraph paragraph(std::string_view key) const;

    /// Sets the cell style, which gives the background unless `setBackColor` does. Error
    /// "undefined-style" if the document has a stylesheet and that lacks the style.
    Cell setStyle(std::string_view name) const;
    /// Returns the name of the style.
    std::string style() const;

    /// Sets the alignment of all paragraphs; `eNoDefault` leaves them theirs.
    Cell setAlign(tCellAlign align) const;
    /// Returns the alignment.
    tCellAlign align() const;

    /// Sets the background; `eNoColor` leaves it to the cell style. If it is dark (see
    /// `isDarkColor`), the texts of the cell become white, also those that are added later. One
    /// given by its red, green and blue does not change the texts.
    Cell setBackColor(const Color& color) const;
    /// Returns the number of the background color.
    tColorIndex backColor() const;

    /// Set the width of all borders or of one; `eNone` is no border.
    Cell setBorders(tBorderWidth width) const;
    Cell setTopBorder(tBorderWidth width) const;
    Cell setBottomBorder(tBorderWidth width) const;
    Cell setLeftBorder(tBorderWidth width) const;
    Cell setRightBorder(tBorderWidth width) const;
    /// Return the width of a border.
    tBorderWidth topBorder() const;
    tBorderWidth bottomBorder() const;
    tBorderWidth leftBorder() const;
    tBorderWidth rightBorder() const;

    /// Sets how many columns the cell takes, from 1 to 63; 1 by default. Error "wrong-value" for
    /// another number. Columns that the row does not have are an error when the document is
    /// rendered.
    Cell setSpan(std::int32_t columns) const;
    /// Returns how many columns the cell takes.
    std::int32_t span() const;
    /// Sets how many rows the cell takes, 1 by default. The rows below have no cells for the
    /// columns that it covers. Error "wrong-value" for a number below 1. Rows that the table does
    /// not have, or that have other columns, are an error when the document is rendered.
    Cell setVspan(std::int32_t rows) const;
    /// Returns how many rows the cell takes.
    std::int32_t vspan() const;

    /// Makes the cell a marked field with this data, which readers do not show. Error
    /// "unencodable-value" for a text with characters that are not in Windows-1252.
    Cell setMarkedField(std::string_view data) const;
    Cell setMarkedField(std::int32_t data) const;

    /// Removes the cell from its row. Unless the row has columns, the other cells share the text
    /// area evenly. Error "wrong-call" if it was removed before.
    void remove() const;
    /// Returns the index of the cell in its row, from 0. Error "wrong-call" if it was removed.
    std::size_t index() const;
    /// Returns the row of the cell, even after the cell was removed from it.
    Row row() const;

    /// Returns the cell as the object model has it.
    Ref<CRtfTableCell> native() const { return cell_; }

    /// Two handles are equal when they refer to the same cell.
    bool operator==(const Cell&) const = default;

private:
    friend class Row;
    friend class Paragraph;
    friend class ElementRange<Cell>;
    using Owner = Row;

    Cell(Ref<ComposedDocument> document, Ref<CRtfTableRow> row, Ref<CRtfTableCell> cell)
        : document_(std::move(document)), row_(std::move(row)), cell_(std::move(cell)) {}

    static std::size_t countIn(const Owner& row);
    static Cell at(const Owner& row, std::size_t index);

    CRtfTableCell& element() const;
    template <class Value>
    Cell set(void (CRtfTableCell::*setter)(Value), Value value) const;

    // The row too, which would go with its last handle otherwise.
    Ref<ComposedDocument> document_;
    Ref<CRtfTableRow> row_;
    Ref<CRtfTableCell> cell_;
};

}  // namespace quorvane
