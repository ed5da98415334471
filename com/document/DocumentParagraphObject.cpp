#include "com/document/DocumentParagraphObject.h"

#include <utility>

#include "com/document/documentWords.h"
#include "com/document/pictureFrom.h"
#include "com/document/scriptValues.h"
#include "com/hostText.h"

namespace quorvane::com {

std::span<const Member> DocumentParagraphObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentParagraph::get_Cell>(1),
        setter<&::_DocumentParagraph::put_Text>(2),
        getter<&::_DocumentParagraph::get_Rtf>(3),
        setter<&::_DocumentParagraph::put_Rtf>(3),
        procedure<&::_DocumentParagraph::AddText>(4),
        procedure<&::_DocumentParagraph::AddBold>(5),
        procedure<&::_DocumentParagraph::AddItalic>(6),
        procedure<&::_DocumentParagraph::AddUnderlined>(7),
        procedure<&::_DocumentParagraph::AddRtf>(8),
        getter<&::_DocumentParagraph::get_Style>(9),
        setter<&::_DocumentParagraph::put_Style>(9),
        getter<&::_DocumentParagraph::get_Align>(10),
        setter<&::_DocumentParagraph::put_Align>(10),
        setter<&::_DocumentParagraph::put_Color>(11),
        procedure<&::_DocumentParagraph::SetPicture>(12),
        procedure<&::_DocumentParagraph::RemovePicture>(13),
        getter<&::_DocumentParagraph::get_HasPicture>(14),
        getter<&::_DocumentParagraph::get_Index>(15),
        procedure<&::_DocumentParagraph::Remove>(16),
    };
    return all;
}

STDMETHODIMP DocumentParagraphObject::get_Cell(::_DocumentCell** result) {
    return fetch(result, [&] { return paragraph_.cell(); });
}

STDMETHODIMP DocumentParagraphObject::put_Text(BSTR text) {
    return perform([&] { paragraph_.setText(textOf(text)); });
}

STDMETHODIMP DocumentParagraphObject::get_Rtf(BSTR* result) {
    return fetch(result, [&] { return paragraph_.rtf(); });
}

STDMETHODIMP DocumentParagraphObject::put_Rtf(BSTR value) {
    return perform([&] { paragraph_.setText(rtf(textOf(value))); });
}

STDMETHODIMP DocumentParagraphObject::AddText(BSTR text, VARIANT* style) {
    return perform([&] {
        const Text added = textOf(text);
        paragraph_.addText(isMissing(style) ? added : styled(textOf(style), added));
    });
}

STDMETHODIMP DocumentParagraphObject::AddBold(BSTR text) {
    return perform([&] { paragraph_.addText(bold(textOf(text))); });
}

STDMETHODIMP DocumentParagraphObject::AddItalic(BSTR text) {
    return perform([&] { paragraph_.addText(italic(textOf(text))); });
}

STDMETHODIMP DocumentParagraphObject::AddUnderlined(BSTR text) {
    return perform([&] { paragraph_.addText(underlined(textOf(text))); });
}

STDMETHODIMP DocumentParagraphObject::AddRtf(BSTR raw) {
    return perform([&] { paragraph_.addText(rtf(textOf(raw))); });
}

STDMETHODIMP DocumentParagraphObject::get_Style(BSTR* result) {
    return fetch(result, [&] { return paragraph_.style(); });
}

STDMETHODIMP DocumentParagraphObject::put_Style(BSTR value) {
    return perform([&] { paragraph_.setStyle(textOf(value)); });
}

STDMETHODIMP DocumentParagraphObject::get_Align(BSTR* result) {
    return fetch(result, [&] { return nameOf(paragraph_.align()); });
}

STDMETHODIMP DocumentParagraphObject::put_Align(BSTR value) {
    return perform([&] { paragraph_.setAlign(alignmentNamed(textOf(value))); });
}

STDMETHODIMP DocumentParagraphObject::put_Color(BSTR color) {
    return perform([&] { paragraph_.setColor(textOf(color)); });
}

STDMETHODIMP DocumentParagraphObject::SetPicture(BSTR path, VARIANT* width, VARIANT* height) {
    return perform([&] { paragraph_.setPicture(pictureFrom(path, width, height)); });
}

STDMETHODIMP DocumentParagraphObject::RemovePicture() {
    return perform([&] { paragraph_.removePicture(); });
}

STDMETHODIMP DocumentParagraphObject::get_HasPicture(VARIANT_BOOL* result) {
    return fetch(result, [&] { return paragraph_.hasPicture(); });
}

STDMETHODIMP DocumentParagraphObject::get_Index(LONG* result) {
    return fetch(result, [&] { return paragraph_.index() + 1; });
}

STDMETHODIMP DocumentParagraphObject::Remove() {
    return perform([&] { paragraph_.remove(); });
}

void give(::_DocumentParagraph** result, const Paragraph& paragraph) {
    *result =
        WrapperRegistry<DocumentParagraphObject>::wrapperOf(paragraph.native(), paragraph).detach();
}

}  // namespace quorvane::com
