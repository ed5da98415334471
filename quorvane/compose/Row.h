#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/compose/Cell.h"
#include "quorvane/compose/Width.h"
#include "quorvane/docmodel/CRtfTableRow.h"

namespace quorvane {

using Cells = ElementRange<Cell>;

/// A handle to a row of a document, as light as a pointer: copies refer to the same row.
///
/// A handle keeps its document alive, as a `std::shared_ptr` would, so it can be used whatever
/// happens to the `Document`: after that is moved or destroyed, and after the row is removed. A row
/// that was removed keeps its cells and can be read and changed, but is no longer part of the
/// document. A handle to no row (default constructed, or moved from) throws an `Error` "wrong-call"
/// when it is used.
///
/// Setters return the handle, so that calls can follow one another:
///
///     document.addRow({"Article", "Price"}, "heading").setHeading().setBackColor("silver");
class Row {
public:
    /// A handle to no row.
    Row() = default;

    /// Adds a cell without paragraphs at the end and returns it. Unless the row has columns, its
    /// cells share the text area evenly.
    Cell addCell() const;
    /// Adds a cell with one paragraph of this text and paragraph style. Errors as for
    /// `Paragraph::setText` and `Paragraph::setStyle`; nothing is added then.
    Cell addCell(TextView text, std::string_view style = {}) const;
    /// Inserts a cell before the one with this index, or at the end for the index after the last.
    /// Error "wrong-call" for a larger index; others as for `addCell`.
    Cell insertCell(std::size_t index) const;
    Cell insertCell(std::size_t index, TextView text, std::string_view style = {}) const;
    /// Adds a cell for each text at the end. Errors as for `addCell`; no cell is added then.
    Row addCells(std::initializer_list<TextView> texts, std::string_view style = {}) const;
    Row addCells(std::span<const Text> texts, std::string_view style = {}) const;
    Row addCells(std::span<const std::string> texts, std::string_view style = {}) const;
    Row addCells(std::span<const std::string_view> texts, std::string_view style = {}) const;

    /// Returns the cells.
    Cells cells() const { return Cells(*this); }
    /// Returns the number of cells.
    std::size_t size() const { return cells().size(); }
    /// Returns a cell. Error "wrong-call" if there is none with this index.
    Cell operator[](std::size_t index) const { return cells()[index]; }
    /// Returns the cell with this key, which a description gave it (`cell-key`, or the number of
    /// its node). Error "wrong-call" if no cell has it.
    Cell cell(std::string_view key) const;

    /// Sets the columns of this row; see `Document::setColumns`. No columns go back to those of the
    /// document.
    Row setColumns(std::initializer_list<Width> widths) const;
    Row setColumns(std::span<const Width> widths) const;

    /// Sets the background of all cells, also of those that are added later. See
    /// `Cell::setBackColor`.
    Row setBackColor(const Color& color) const;
    /// Returns the number of the background color.
    tColorIndex backColor() const;

    /// Set the width of all borders or of one, in all cells, also in those that are added later.
    /// Cells lose the borders that were set for them.
    Row setBorders(tBorderWidth width) const;
    Row setTopBorder(tBorderWidth width) const;
    Row setBottomBorder(tBorderWidth width) const;
    Row setLeftBorder(tBorderWidth width) const;
    Row setRightBorder(tBorderWidth width) const;
    /// Return the width of a border.
    tBorderWidth topBorder() const;
    tBorderWidth bottomBorder() const;
    tBorderWidth leftBorder() const;
    tBorderWidth rightBorder() const;

    /// Makes the row part of the heading, which is on every page. The heading is made of the first
    /// rows; a row with a heading below one without is an error when the document is rendered.
    Row setHeading(bool isHeading = true) const;
    /// Returns whether the row is part of the heading.
    bool isHeading() const;
    /// Keeps the row on one page.
    Row setKeep(bool keeps = true) const;
    /// Returns whether the row stays on one page.
    bool keeps() const;
    /// Keeps the row on the page of the row below it.
    Row setKeepWithNext(bool keeps = true) const;
    /// Returns whether the row stays on the page of the row below it.
    bool keepsWithNext() const;
    /// Begins a page with the row.
    Row setPageBreak(bool breaks = true) const;
    /// Returns whether a page begins with the row.
    bool breaksPage() const;

    /// Removes the row from the document. Error "wrong-call" if it was removed before.
    void remove() const;
    /// Returns the index of the row in the document, from 0. Error "wrong-call" if it was removed.
    std::size_t index() const;

    /// Returns the row as the object model has it.
    Ref<CRtfTableRow> native() const { return row_; }

    /// Two handles are equal when they refer to the same row.
    bool operator==(const Row&) const = default;

private:
    friend class Document;
    friend class Cell;
    friend class ElementRange<Row>;
    using Owner = Ref<ComposedDocument>;

    Row(Ref<ComposedDocument> document, Ref<CRtfTableRow> row)
        : document_(std::move(document)), row_(std::move(row)) {}

    static std::size_t countIn(const Owner& document);
    static Row at(const Owner& document, std::size_t index);

    CRtfTableRow& element() const;
    template <class Value>
    Row set(void (CRtfTableRow::*setter)(Value), Value value) const;
    template <class Texts>
    Row addCellsOf(const Texts& texts, std::string_view style) const;

    Ref<ComposedDocument> document_;
    Ref<CRtfTableRow> row_;
};

}  // namespace quorvane
