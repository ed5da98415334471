#include "quorvane/compose/Cell.h"

#include <limits>

#include "quorvane/compose/ComposedDocument.h"
#include "quorvane/compose/Insertion.h"
#include "quorvane/compose/Row.h"
#include "quorvane/compose/addedParagraph.h"
#include "quorvane/compose/markedText.h"
#include "quorvane/docmodel/InnerCell.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

std::size_t Cell::countIn(const Owner& row) {
    return inner(row.element()).cells().list().count();
}

Cell Cell::at(const Owner& row, std::size_t index) {
    InnerCells& cells = inner(row.element()).cells();
    return {row.document_, row.row_, Ref<CRtfTableCell>(&elementAt(cells, index))};
}

CRtfTableCell& Cell::element() const {
    return referred(cell_);
}

template <class Value>
Cell Cell::set(void (CRtfTableCell::*setter)(Value), Value value) const {
    return composing([&] {
        (element().*setter)(value);
        document_->document().setChanged(true);
        return *this;
    });
}

// cppcheck-suppress passedByValue ; a view, of three words
Paragraph Cell::addParagraph(TextView text, std::string_view style) const {
    return insertParagraph(Paragraph::countIn(*this), text, style);
}

Paragraph Cell::addParagraph(const Picture& picture, std::string_view style) const {
    const Paragraph paragraph = addParagraph("", style);
    try {
        return paragraph.setPicture(picture);
    } catch (...) {
        paragraph.remove();
        throw;
    }
}

// cppcheck-suppress passedByValue ; a view, of three words
Paragraph Cell::insertParagraph(std::size_t index, TextView text, std::string_view style) const {
    return composing([&]() -> Paragraph {
        const ParagraphContent content = contentOf(referred(document_), text, style);
        CRtfParagraph& paragraph = addedParagraph(inner(element()), index, content);
        return {document_, row_, Ref<CRtfParagraph>(&paragraph)};
    });
}

Paragraph Cell::paragraph(std::string_view key) const {
    InnerParagraphs& paragraphs = inner(element()).paragraphs();
    return {document_, row_, Ref<CRtfParagraph>(&elementWithKey(paragraphs, key))};
}

Cell Cell::setStyle(std::string_view name) const {
    composing([&] { referred(document_).styleNames().require(StyleKind::Cell, name); });
    return set(&CRtfTableCell::setStyle, name);
}

std::string Cell::style() const {
    return element().Style();
}

Cell Cell::setAlign(tCellAlign align) const {
    return set(&CRtfTableCell::setAlign, align);
}

tCellAlign Cell::align() const {
    return element().Align();
}

Cell Cell::setBackColor(const Color& color) const {
    return set(&CRtfTableCell::setBackColor, referred(document_).numberOf(color));
}

tColorIndex Cell::backColor() const {
    return element().BackColor();
}

Cell Cell::setBorders(tBorderWidth width) const {
    return setTopBorder(width).setBottomBorder(width).setLeftBorder(width).setRightBorder(width);
}

Cell Cell::setTopBorder(tBorderWidth width) const {
    return set(&CRtfTableCell::setTopBorder, width);
}

Cell Cell::setBottomBorder(tBorderWidth width) const {
    return set(&CRtfTableCell::setBottomBorder, width);
}

Cell Cell::setLeftBorder(tBorderWidth width) const {
    return set(&CRtfTableCell::setLeftBorder, width);
}

Cell Cell::setRightBorder(tBorderWidth width) const {
    return set(&CRtfTableCell::setRightBorder, width);
}

tBorderWidth Cell::topBorder() const {
    return element().TopBorder();
}

tBorderWidth Cell::bottomBorder() const {
    return element().BottomBorder();
}

tBorderWidth Cell::leftBorder() const {
    return element().LeftBorder();
}

tBorderWidth Cell::rightBorder() const {
    return element().RightBorder();
}

Cell Cell::setSpan(std::int32_t columns) const {
    composing([&] { static_cast<void>(wholeNumber(std::to_string(columns), 1, maxSpan)); });
    return set(&CRtfTableCell::setColumnSpan, columns);
}

std::int32_t Cell::span() const {
    return element().ColumnSpan();
}

Cell Cell::setVspan(std::int32_t rows) const {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    composing([&] { static_cast<void>(wholeNumber(std::to_string(rows), 1, most)); });
    return set(&CRtfTableCell::setRowSpan, rows);
}

std::int32_t Cell::vspan() const {
    return element().RowSpan();
}

Cell Cell::setMarkedField(std::string_view data) const {
    requireEncodable(data);
    return set<const Value&>(&CRtfTableCell::asMarkedField, data);
}

Cell Cell::setMarkedField(std::int32_t data) const {
    return set<const Value&>(&CRtfTableCell::asMarkedField, data);
}

void Cell::remove() const {
    composing([&] {
        InnerCells& cells = inner(row().element()).cells();
        removeElement(cells, index() + 1);
    });
}

std::size_t Cell::index() const {
    return indexOfElement(inner(row().element()).cells(), inner(element()));
}

Row Cell::row() const {
    return {document_, row_};
}

}  // namespace quorvane
