#include "com/CRtfTableRowObject.h"

#include <utility>

#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane::com {

std::span<const Member> CRtfTableRowObject::members() {
    static constexpr Member all[] = {
        getter<&::_CRtfTableRow::get_Parent>(1),
        getter<&::_CRtfTableRow::get_TableCells>(2),
        getter<&::_CRtfTableRow::get_BackColor>(3),
        setter<&::_CRtfTableRow::put_BackColor>(3),
        getter<&::_CRtfTableRow::get_BottomBorder>(4),
        setter<&::_CRtfTableRow::put_BottomBorder>(4),
        getter<&::_CRtfTableRow::get_TopBorder>(5),
        setter<&::_CRtfTableRow::put_TopBorder>(5),
        getter<&::_CRtfTableRow::get_LeftBorder>(6),
        setter<&::_CRtfTableRow::put_LeftBorder>(6),
        getter<&::_CRtfTableRow::get_RightBorder>(7),
        setter<&::_CRtfTableRow::put_RightBorder>(7),
    };
    return all;
}

STDMETHODIMP CRtfTableRowObject::get_Parent(::_CRtfDoc** value) {
    return get(value, [&] { return native().Parent(); });
}

STDMETHODIMP CRtfTableRowObject::get_TableCells(::_CRtfTableCells** value) {
    return get(value, [&] { return native().TableCells(); });
}

STDMETHODIMP CRtfTableRowObject::get_BackColor(::tColorIndex* value) {
    return getStored(value, [&] { return native().BackColor(); });
}

STDMETHODIMP CRtfTableRowObject::put_BackColor(::tColorIndex value) {
    return run([&] { native().setBackColor(static_cast<tColorIndex>(value)); });
}

STDMETHODIMP CRtfTableRowObject::get_BottomBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().BottomBorder(); });
}

STDMETHODIMP CRtfTableRowObject::put_BottomBorder(::tBorderWidth value) {
    return run([&] { native().setBottomBorder(static_cast<tBorderWidth>(value)); });
}

STDMETHODIMP CRtfTableRowObject::get_TopBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().TopBorder(); });
}

STDMETHODIMP CRtfTableRowObject::put_TopBorder(::tBorderWidth value) {
    return run([&] { native().setTopBorder(static_cast<tBorderWidth>(value)); });
}

STDMETHODIMP CRtfTableRowObject::get_LeftBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().LeftBorder(); });
}

STDMETHODIMP CRtfTableRowObject::put_LeftBorder(::tBorderWidth value) {
    return run([&] { native().setLeftBorder(static_cast<tBorderWidth>(value)); });
}

STDMETHODIMP CRtfTableRowObject::get_RightBorder(::tBorderWidth* value) {
    return getStored(value, [&] { return native().RightBorder(); });
}

STDMETHODIMP CRtfTableRowObject::put_RightBorder(::tBorderWidth value) {
    return run([&] { native().setRightBorder(static_cast<tBorderWidth>(value)); });
}

::_CRtfTableRow* wrap(Ref<CRtfTableRow> object) {
    return WrapperRegistry<CRtfTableRowObject>::wrapperOf(std::move(object)).detach();
}

}  // namespace quorvane::com
