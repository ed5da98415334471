#include "com/document/DocumentCellObject.h"

#include <cstdint>

#include "com/document/documentWords.h"
#include "com/document/pictureFrom.h"
#include "com/document/scriptValues.h"
#include "com/hostText.h"

namespace quorvane::com {

std::span<const Member> DocumentCellObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentCell::get_Row>(1),
        getter<&::_DocumentCell::get_Paragraphs>(2),
        procedure<&::_DocumentCell::AddParagraph>(3),
        procedure<&::_DocumentCell::AddPicture>(4),
        setter<&::_DocumentCell::put_Text>(5),
        getter<&::_DocumentCell::get_Style>(6),
        setter<&::_DocumentCell::put_Style>(6),
        getter<&::_DocumentCell::get_Align>(7),
        setter<&::_DocumentCell::put_Align>(7),
        setter<&::_DocumentCell::put_BackColor>(8),
        setter<&::_DocumentCell::put_Borders>(9),
        getter<&::_DocumentCell::get_TopBorder>(10),
        setter<&::_DocumentCell::put_TopBorder>(10),
        getter<&::_DocumentCell::get_BottomBorder>(11),
        setter<&::_DocumentCell::put_BottomBorder>(11),
        getter<&::_DocumentCell::get_LeftBorder>(12),
        setter<&::_DocumentCell::put_LeftBorder>(12),
        getter<&::_DocumentCell::get_RightBorder>(13),
        setter<&::_DocumentCell::put_RightBorder>(13),
        getter<&::_DocumentCell::get_Span>(14),
        setter<&::_DocumentCell::put_Span>(14),
        getter<&::_DocumentCell::get_Vspan>(15),
        setter<&::_DocumentCell::put_Vspan>(15),
        getter<&::_DocumentCell::get_Index>(16),
        procedure<&::_DocumentCell::Remove>(17),
    };
    return all;
}

STDMETHODIMP DocumentCellObject::get_Row(::_DocumentRow** result) {
    return fetch(result, [&] { return cell_.row(); });
}

STDMETHODIMP DocumentCellObject::get_Paragraphs(::_DocumentParagraphs** result) {
    return fetch(result, [&] { return ParagraphsOf{cell_}; });
}

STDMETHODIMP DocumentCellObject::AddParagraph(VARIANT* text, VARIANT* style,
                                              ::_DocumentParagraph** result) {
    return fetch(result, [&] { return cell_.addParagraph(textOf(text), textOf(style)); });
}

STDMETHODIMP DocumentCellObject::AddPicture(BSTR path, VARIANT* width, VARIANT* height,
                                            ::_DocumentParagraph** result) {
    return fetch(result, [&] { return cell_.addParagraph(pictureFrom(path, width, height)); });
}

STDMETHODIMP DocumentCellObject::put_Text(BSTR text) {
    return perform([&] {
        if (cell_.size() == 0) {
            cell_.addParagraph(textOf(text));
            return;
        }
        cell_[0].setText(textOf(text));
        while (cell_.size() > 1) {
            cell_[cell_.size() - 1].remove();
        }
    });
}

STDMETHODIMP DocumentCellObject::get_Style(BSTR* result) {
    return fetch(result, [&] { return cell_.style(); });
}

STDMETHODIMP DocumentCellObject::put_Style(BSTR value) {
    return perform([&] { cell_.setStyle(textOf(value)); });
}

STDMETHODIMP DocumentCellObject::get_Align(BSTR* result) {
    return fetch(result, [&] { return nameOf(cell_.align()); });
}

STDMETHODIMP DocumentCellObject::put_Align(BSTR value) {
    return perform([&] { cell_.setAlign(alignmentNamed(textOf(value))); });
}

STDMETHODIMP DocumentCellObject::put_BackColor(BSTR color) {
    return perform([&] { cell_.setBackColor(textOf(color)); });
}

STDMETHODIMP DocumentCellObject::put_Borders(BSTR width) {
    return perform([&] { cell_.setBorders(borderNamed(textOf(width))); });
}

STDMETHODIMP DocumentCellObject::get_TopBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(cell_.topBorder()); });
}

STDMETHODIMP DocumentCellObject::put_TopBorder(BSTR value) {
    return perform([&] { cell_.setTopBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentCellObject::get_BottomBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(cell_.bottomBorder()); });
}

STDMETHODIMP DocumentCellObject::put_BottomBorder(BSTR value) {
    return perform([&] { cell_.setBottomBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentCellObject::get_LeftBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(cell_.leftBorder()); });
}

STDMETHODIMP DocumentCellObject::put_LeftBorder(BSTR value) {
    return perform([&] { cell_.setLeftBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentCellObject::get_RightBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(cell_.rightBorder()); });
}

STDMETHODIMP DocumentCellObject::put_RightBorder(BSTR value) {
    return perform([&] { cell_.setRightBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentCellObject::get_Span(LONG* result) {
    return fetch(result, [&] { return cell_.span(); });
}

STDMETHODIMP DocumentCellObject::put_Span(LONG value) {
    return perform([&] { cell_.setSpan(static_cast<std::int32_t>(value)); });
}

STDMETHODIMP DocumentCellObject::get_Vspan(LONG* result) {
    return fetch(result, [&] { return cell_.vspan(); });
}

STDMETHODIMP DocumentCellObject::put_Vspan(LONG value) {
    return perform([&] { cell_.setVspan(static_cast<std::int32_t>(value)); });
}

STDMETHODIMP DocumentCellObject::get_Index(LONG* result) {
    return fetch(result, [&] { return cell_.index() + 1; });
}

STDMETHODIMP DocumentCellObject::Remove() {
    return perform([&] { cell_.remove(); });
}

void give(::_DocumentCell** result, const Cell& cell) {
    *result = WrapperRegistry<DocumentCellObject>::wrapperOf(cell.native(), cell).detach();
}

}  // namespace quorvane::com
