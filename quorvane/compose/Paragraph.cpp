#include "quorvane/compose/Paragraph.h"

#include "quorvane/compose/Cell.h"
#include "quorvane/compose/ComposedDocument.h"
#include "quorvane/compose/Insertion.h"
#include "quorvane/compose/markedText.h"
#include "quorvane/docmodel/InnerCell.h"
#include "quorvane/docmodel/InnerParagraph.h"

namespace quorvane {

std::size_t Paragraph::countIn(const Owner& cell) {
    return inner(cell.element()).paragraphs().list().count();
}

Paragraph Paragraph::at(const Owner& cell, std::size_t index) {
    InnerParagraphs& paragraphs = inner(cell.element()).paragraphs();
    return {cell.document_, cell.row_, Ref<CRtfParagraph>(&elementAt(paragraphs, index))};
}

CRtfParagraph& Paragraph::element() const {
    return referred(paragraph_);
}

template <class Value>
Paragraph Paragraph::set(void (CRtfParagraph::*setter)(Value), Value value) const {
    return composing([&] {
        (element().*setter)(value);
        document_->document().setChanged(true);
        return *this;
    });
}

Paragraph Paragraph::setRtf(std::string_view rtf) const {
    InnerParagraph& paragraph = inner(element());
    InnerDocument& document = inner(document_->document());
    document.beforeChange();
    paragraph.setText(rtf);
    document.markChanged();
    return *this;
}

Paragraph Paragraph::setText(TextView text) const {
    return composing([&] { return setRtf(referred(document_).texts().rtfOf(text)); });
}

Paragraph Paragraph::addText(TextView text) const {
    return composing([&] { return setRtf(rtf().append(referred(document_).texts().rtfOf(text))); });
}

std::string Paragraph::rtf() const {
    return element().Text();
}

Paragraph Paragraph::setStyle(std::string_view name) const {
    composing([&] { referred(document_).styleNames().require(StyleKind::Paragraph, name); });
    return set(&CRtfParagraph::setStyle, name);
}

std::string Paragraph::style() const {
    return element().Style();
}

Paragraph Paragraph::setColor(const Color& color) const {
    return set(&CRtfParagraph::setForeColor, referred(document_).numberOf(color));
}

tColorIndex Paragraph::color() const {
    return element().ForeColor();
}

Paragraph Paragraph::setAlign(tCellAlign align) const {
    return set(&CRtfParagraph::setAlign, align);
}

tCellAlign Paragraph::align() const {
    return element().Align();
}

Paragraph Paragraph::setPicture(const Picture& picture) const {
    return set(&CRtfParagraph::setPicture, std::optional(picture.native()));
}

Paragraph Paragraph::removePicture() const {
    return set(&CRtfParagraph::setPicture, std::optional<RtfPicture>());
}

bool Paragraph::hasPicture() const {
    return element().Picture() != nullptr;
}

Paragraph Paragraph::setMarkedField(std::string_view data) const {
    requireEncodable(data);
    return set<const Value&>(&CRtfParagraph::asMarkedField, data);
}

Paragraph Paragraph::setMarkedField(std::int32_t data) const {
    return set<const Value&>(&CRtfParagraph::asMarkedField, data);
}

void Paragraph::remove() const {
    composing([&] {
        InnerParagraphs& paragraphs = inner(*element().Parent()).paragraphs();
        removeElement(paragraphs, index() + 1);
    });
}

std::size_t Paragraph::index() const {
    return indexOfElement(inner(*element().Parent()).paragraphs(), inner(element()));
}

Cell Paragraph::cell() const {
    return {document_, row_, element().Parent()};
}

}  // namespace quorvane
