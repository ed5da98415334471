#include "com/CRtfParagraphObject.h"

#include <utility>

#include "com/hostValue.h"
#include "quorvane/docmodel/CRtfTableCell.h"

namespace quorvane::com {

std::span<const Member> CRtfParagraphObject::members() {
    static constexpr Member all[] = {
        getter<&::_CRtfParagraph::get_Parent>(1),    getter<&::_CRtfParagraph::get_Text>(2),
        setter<&::_CRtfParagraph::put_Text>(2),      getter<&::_CRtfParagraph::get_Style>(3),
        setter<&::_CRtfParagraph::put_Style>(3),     getter<&::_CRtfParagraph::get_ForeColor>(4),
        setter<&::_CRtfParagraph::put_ForeColor>(4), getter<&::_CRtfParagraph::get_Align>(5),
        setter<&::_CRtfParagraph::put_Align>(5),     procedure<&::_CRtfParagraph::asMarkedField>(6),
    };
    return all;
}

STDMETHODIMP CRtfParagraphObject::get_Parent(::_CRtfTableCell** value) {
    return get(value, [&] { return native().Parent(); });
}

STDMETHODIMP CRtfParagraphObject::get_Text(BSTR* value) {
    return get(value, [&] { return native().Text(); });
}

STDMETHODIMP CRtfParagraphObject::put_Text(BSTR value) {
    return run([&] { native().setText(textOf(value)); });
}

STDMETHODIMP CRtfParagraphObject::get_Style(BSTR* value) {
    return get(value, [&] { return native().Style(); });
}

STDMETHODIMP CRtfParagraphObject::put_Style(BSTR value) {
    return run([&] { native().setStyle(textOf(value)); });
}

STDMETHODIMP CRtfParagraphObject::get_ForeColor(::tColorIndex* value) {
    return getStored(value, [&] { return native().ForeColor(); });
}

STDMETHODIMP CRtfParagraphObject::put_ForeColor(::tColorIndex value) {
    return run([&] { native().setForeColor(static_cast<tColorIndex>(value)); });
}

STDMETHODIMP CRtfParagraphObject::get_Align(::tCellAlign* value) {
    return getStored(value, [&] { return native().Align(); });
}

STDMETHODIMP CRtfParagraphObject::put_Align(::tCellAlign value) {
    return run([&] { native().setAlign(static_cast<tCellAlign>(value)); });
}

STDMETHODIMP CRtfParagraphObject::asMarkedField(VARIANT fieldData) {
    return run([&] { native().asMarkedField(valueOf(fieldData)); });
}

::_CRtfParagraph* wrap(Ref<CRtfParagraph> object) {
    return WrapperRegistry<CRtfParagraphObject>::wrapperOf(std::move(object)).detach();
}

}  // namespace quorvane::com
