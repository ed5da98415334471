#include "com/CRtfTableCellObject.h"

#include <utility>

#include "com/hostValue.h"
#include "quorvane/docmodel/CRtfTableRow.h"

namespace quorvane::com {

std::span<const Member> CRtfTableCellObject::members() {
    static constexpr Member all[] = {
        getter<&::_CRtfTableCell::get_Parent>(1),
        getter<&::_CRtfTableCell::get_BottomBorder>(2),
        setter<&::_CRtfTableCell::put_BottomBorder>(2),
        getter<&::_CRtfTableCell::get_TopBorder>(3),
        setter<&::_CRtfTableCell::put_TopBorder>(3),
        getter<&::_CRtfTableCell::get_LeftBorder>(4),
        setter<&::_CRtfTableCell::put_LeftBorder>(4),
        getter<&::_CRtfTableCell::get_RightBorder>(5),
        setter<&::_CRtfTableCell::put_RightBorder>(5),
        getter<&::_CRtfTableCell::get_BackColor>(6),
        setter<&::_CRtfTableCell::put_BackColor>(6),
        getter<&::_CRtfTableCell::get_Width>(7),
        setter<&::_CRtfTableCell::put_Width>(7),
        getter<&::_CRtfTableCell::get_Paragraphs>(8),
        getter<&::_CRtfTableCell::get_Align>(9),
        setter<&::_CRtfTableCell::put_Align>(9),
        getter<&::_CRtfTableCell::get_Style>(10),
        setter<&::_CRtfTableCell::put_Style>(10),
        procedure<&::_CRtfTableCell::asMarkedField>(11),
    };
    return all;
}

STDMETHODIMP CRtfTableCellObject::get_Parent(::_CRtfTableRow** value) {
    return get(value, [&] { return native().Parent(); });
}

STDMETHODIMP CRtfTableCellObject::get_BottomBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().BottomBorder(); });
}

STDMETHODIMP CRtfTableCellObject::put_BottomBorder(::tBorderWidth value) {
    return run([&] { native().setBottomBorder(static_cast<tBorderWidth>(value)); });
}

STDMETHODIMP CRtfTableCellObject::get_TopBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().TopBorder(); });
}

STDMETHODIMP CRtfTableCellObject::put_TopBorder(::tBorderWidth value) {
    return run([&] { native().setTopBorder(static_cast<tBorderWidth>(value)); });
}

STDMETHODIMP CRtfTableCellObject::get_LeftBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().LeftBorder(); });
}

STDMETHODIMP CRtfTableCellObject::put_LeftBorder(::tBorderWidth value) {
    return run([&] { native().setLeftBorder(static_cast<tBorderWidth>(value)); });
}

STDMETHODIMP CRtfTableCellObject::get_RightBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().RightBorder(); });
}

STDMETHODIMP CRtfTableCellObject::put_RightBorder(::tBorderWidth value) {
    return run([&] { native().setRightBorder(static_cast<tBorderWidth>(value)); });
}

STDMETHODIMP CRtfTableCellObject::get_BackColor(::tColorIndex* value) {
    return getStored(value, [&] { return native().BackColor(); });
}

STDMETHODIMP CRtfTableCellObject::put_BackColor(::tColorIndex value) {
    return run([&] { native().setBackColor(static_cast<tColorIndex>(value)); });
}

STDMETHODIMP CRtfTableCellObject::get_Width(::tWidthUnit units, LONG* width) {
    return get(width, [&] { return native().Width(static_cast<tWidthUnit>(units)); });
}

STDMETHODIMP CRtfTableCellObject::put_Width(::tWidthUnit units, LONG width) {
    return run([&] { native().setWidth(static_cast<tWidthUnit>(units), width); });
}

STDMETHODIMP CRtfTableCellObject::get_Paragraphs(::_CRtfParagraphs** value) {
    return get(value, [&] { return native().Paragraphs(); });
}

STDMETHODIMP CRtfTableCellObject::get_Align(::tCellAlign* value) {
    return getStored(value, [&] { return native().Align(); });
}

STDMETHODIMP CRtfTableCellObject::put_Align(::tCellAlign value) {
    return run([&] { native().setAlign(static_cast<tCellAlign>(value)); });
}

STDMETHODIMP CRtfTableCellObject::get_Style(BSTR* value) {
    return get(value, [&] { return native().Style(); });
}

STDMETHODIMP CRtfTableCellObject::put_Style(BSTR value) {
    return run([&] { native().setStyle(textOf(value)); });
}

STDMETHODIMP CRtfTableCellObject::asMarkedField(VARIANT fieldData) {
    return run([&] { native().asMarkedField(valueOf(fieldData)); });
}

::_CRtfTableCell* wrap(Ref<CRtfTableCell> object) {
    return WrapperRegistry<CRtfTableCellObject>::wrapperOf(std::move(object)).detach();
}

}  // namespace quorvane::com
