#include "quorvane/compose/Row.h"

#include "quorvane/compose/ComposedDocument.h"
#include "quorvane/compose/Insertion.h"
#include "quorvane/compose/addedParagraph.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/InnerRows.h"

namespace quorvane {

std::size_t Row::countIn(const Owner& document) {
    return inner(*referred(document).document().TableRows()).list().count();
}

Row Row::at(const Owner& document, std::size_t index) {
    InnerRows& rows = inner(*referred(document).document().TableRows());
    return {document, Ref<CRtfTableRow>(&elementAt(rows, index))};
}

CRtfTableRow& Row::element() const {
    return referred(row_);
}

template <class Value>
Row Row::set(void (CRtfTableRow::*setter)(Value), Value value) const {
    return composing([&] {
        (element().*setter)(value);
        document_->document().setChanged(true);
        return *this;
    });
}

Cell Row::addCell() const {
    return insertCell(Cell::countIn(*this));
}

// cppcheck-suppress passedByValue ; a view, of three words
Cell Row::addCell(TextView text, std::string_view style) const {
    return insertCell(Cell::countIn(*this), text, style);
}

Cell Row::insertCell(std::size_t index) const {
    return composing([&]() -> Cell {
        InnerRow& row = inner(element());
        Insertion insertion(row.cells(), index);
        row.passOn(insertion.element());
        return {document_, row_, Ref<CRtfTableCell>(&insertion.keep())};
    });
}

// cppcheck-suppress passedByValue ; a view, of three words
Cell Row::insertCell(std::size_t index, TextView text, std::string_view style) const {
    return composing([&]() -> Cell {
        InnerRow& row = inner(element());
        const ParagraphContent content = contentOf(*document_, text, style);
        Insertion insertion(row.cells(), index);
        row.passOn(insertion.element());
        addedParagraph(insertion.element(), 0, content);
        return {document_, row_, Ref<CRtfTableCell>(&insertion.keep())};
    });
}

template <class Texts>
Row Row::addCellsOf(const Texts& texts, std::string_view style) const {
    const std::size_t before = size();
    try {
        for (const auto& text : texts) {
            addCell(text, style);
        }
    } catch (...) {
        while (size() > before) {
            cells().back().remove();
        }
        throw;
    }
    return *this;
}

Row Row::addCells(std::initializer_list<TextView> texts, std::string_view style) const {
    return addCellsOf(texts, style);
}

Row Row::addCells(std::span<const Text> texts, std::string_view style) const {
    return addCellsOf(texts, style);
}

Row Row::addCells(std::span<const std::string> texts, std::string_view style) const {
    return addCellsOf(texts, style);
}

Row Row::addCells(std::span<const std::string_view> texts, std::string_view style) const {
    return addCellsOf(texts, style);
}

Cell Row::cell(std::string_view key) const {
    InnerCells& cells = inner(element()).cells();
    return {document_, row_, Ref<CRtfTableCell>(&elementWithKey(cells, key))};
}

Row Row::setColumns(std::initializer_list<Width> widths) const {
    return setColumns(std::span(widths.begin(), widths.size()));
}

Row Row::setColumns(std::span<const Width> widths) const {
    referred(document_).layout().setColumns(element(), widths);
    return *this;
}

Row Row::setBackColor(const Color& color) const {
    return set(&CRtfTableRow::setBackColor, referred(document_).numberOf(color));
}

tColorIndex Row::backColor() const {
    return element().BackColor();
}

Row Row::setBorders(tBorderWidth width) const {
    return setTopBorder(width).setBottomBorder(width).setLeftBorder(width).setRightBorder(width);
}

Row Row::setTopBorder(tBorderWidth width) const {
    return set(&CRtfTableRow::setTopBorder, width);
}

Row Row::setBottomBorder(tBorderWidth width) const {
    return set(&CRtfTableRow::setBottomBorder, width);
}

Row Row::setLeftBorder(tBorderWidth width) const {
    return set(&CRtfTableRow::setLeftBorder, width);
}

Row Row::setRightBorder(tBorderWidth width) const {
    return set(&CRtfTableRow::setRightBorder, width);
}

tBorderWidth Row::topBorder() const {
    return element().TopBorder();
}

tBorderWidth Row::bottomBorder() const {
    return element().BottomBorder();
}

tBorderWidth Row::leftBorder() const {
    return element().LeftBorder();
}

tBorderWidth Row::rightBorder() const {
    return element().RightBorder();
}

Row Row::setHeading(bool isHeading) const {
    return set(&CRtfTableRow::setRepeatsAsHeading, isHeading);
}

bool Row::isHeading() const {
    return element().RepeatsAsHeading();
}

Row Row::setKeep(bool keeps) const {
    return set(&CRtfTableRow::setKeepTogether, keeps);
}

bool Row::keeps() const {
    return element().KeepTogether();
}

Row Row::setKeepWithNext(bool keeps) const {
    return set(&CRtfTableRow::setKeepWithNext, keeps);
}

bool Row::keepsWithNext() const {
    return element().KeepWithNext();
}

Row Row::setPageBreak(bool breaks) const {
    return set(&CRtfTableRow::setStartsPage, breaks);
}

bool Row::breaksPage() const {
    return element().StartsPage();
}

void Row::remove() const {
    composing([&] {
        const std::size_t position = index() + 1;
        document_->layout().forget(element());
        removeElement(inner(*document_->document().TableRows()), position);
    });
}

std::size_t Row::index() const {
    const InnerRow& row = inner(element());
    return indexOfElement(inner(*document_->document().TableRows()), row);
}

}  // namespace quorvane
