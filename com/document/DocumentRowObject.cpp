#include "com/document/DocumentRowObject.h"

#include <utility>

#include "com/document/documentWords.h"
#include "com/document/scriptValues.h"
#include "com/hostText.h"

namespace quorvane::com {

std::span<const Member> DocumentRowObject::members() {
    static constexpr Member all[] = {
        getter<&::_DocumentRow::get_Cells>(1),
        procedure<&::_DocumentRow::AddCell>(2),
        setter<&::_DocumentRow::put_Columns>(3),
        setter<&::_DocumentRow::put_BackColor>(4),
        setter<&::_DocumentRow::put_Borders>(5),
        getter<&::_DocumentRow::get_TopBorder>(6),
        setter<&::_DocumentRow::put_TopBorder>(6),
        getter<&::_DocumentRow::get_BottomBorder>(7),
        setter<&::_DocumentRow::put_BottomBorder>(7),
        getter<&::_DocumentRow::get_LeftBorder>(8),
        setter<&::_DocumentRow::put_LeftBorder>(8),
        getter<&::_DocumentRow::get_RightBorder>(9),
        setter<&::_DocumentRow::put_RightBorder>(9),
        getter<&::_DocumentRow::get_Heading>(10),
        setter<&::_DocumentRow::put_Heading>(10),
        getter<&::_DocumentRow::get_Keep>(11),
        setter<&::_DocumentRow::put_Keep>(11),
        getter<&::_DocumentRow::get_KeepWithNext>(12),
        setter<&::_DocumentRow::put_KeepWithNext>(12),
        getter<&::_DocumentRow::get_PageBreak>(13),
        setter<&::_DocumentRow::put_PageBreak>(13),
        getter<&::_DocumentRow::get_Index>(14),
        procedure<&::_DocumentRow::Remove>(15),
    };
    return all;
}

STDMETHODIMP DocumentRowObject::get_Cells(::_DocumentCells** result) {
    return fetch(result, [&] { return CellsOf{row_}; });
}

STDMETHODIMP DocumentRowObject::AddCell(VARIANT* text, VARIANT* style, ::_DocumentCell** result) {
    return fetch(result, [&] { return row_.addCell(textOf(text), textOf(style)); });
}

STDMETHODIMP DocumentRowObject::put_Columns(VARIANT widths) {
    return perform([&] { row_.setColumns(widthsOf(widths)); });
}

STDMETHODIMP DocumentRowObject::put_BackColor(BSTR color) {
    return perform([&] { row_.setBackColor(textOf(color)); });
}

STDMETHODIMP DocumentRowObject::put_Borders(BSTR width) {
    return perform([&] { row_.setBorders(borderNamed(textOf(width))); });
}

STDMETHODIMP DocumentRowObject::get_TopBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(row_.topBorder()); });
}

STDMETHODIMP DocumentRowObject::put_TopBorder(BSTR value) {
    return perform([&] { row_.setTopBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentRowObject::get_BottomBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(row_.bottomBorder()); });
}

STDMETHODIMP DocumentRowObject::put_BottomBorder(BSTR value) {
    return perform([&] { row_.setBottomBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentRowObject::get_LeftBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(row_.leftBorder()); });
}

STDMETHODIMP DocumentRowObject::put_LeftBorder(BSTR value) {
    return perform([&] { row_.setLeftBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentRowObject::get_RightBorder(BSTR* result) {
    return fetch(result, [&] { return nameOf(row_.rightBorder()); });
}

STDMETHODIMP DocumentRowObject::put_RightBorder(BSTR value) {
    return perform([&] { row_.setRightBorder(borderNamed(textOf(value))); });
}

STDMETHODIMP DocumentRowObject::get_Heading(VARIANT_BOOL* result) {
    return fetch(result, [&] { return row_.isHeading(); });
}

STDMETHODIMP DocumentRowObject::put_Heading(VARIANT_BOOL value) {
    return perform([&] { row_.setHeading(value != VARIANT_FALSE); });
}

STDMETHODIMP DocumentRowObject::get_Keep(VARIANT_BOOL* result) {
    return fetch(result, [&] { return row_.keeps(); });
}

STDMETHODIMP DocumentRowObject::put_Keep(VARIANT_BOOL value) {
    return perform([&] { row_.setKeep(value != VARIANT_FALSE); });
}

STDMETHODIMP DocumentRowObject::get_KeepWithNext(VARIANT_BOOL* result) {
    return fetch(result, [&] { return row_.keepsWithNext(); });
}

STDMETHODIMP DocumentRowObject::put_KeepWithNext(VARIANT_BOOL value) {
    return perform([&] { row_.setKeepWithNext(value != VARIANT_FALSE); });
}

STDMETHODIMP DocumentRowObject::get_PageBreak(VARIANT_BOOL* result) {
    return fetch(result, [&] { return row_.breaksPage(); });
}

STDMETHODIMP DocumentRowObject::put_PageBreak(VARIANT_BOOL value) {
    return perform([&] { row_.setPageBreak(value != VARIANT_FALSE); });
}

STDMETHODIMP DocumentRowObject::get_Index(LONG* result) {
    return fetch(result, [&] { return row_.index() + 1; });
}

STDMETHODIMP DocumentRowObject::Remove() {
    return perform([&] { row_.remove(); });
}

void give(::_DocumentRow** result, const Row& row) {
    *result = WrapperRegistry<DocumentRowObject>::wrapperOf(row.native(), row).detach();
}

}  // namespace quorvane::com
