#include "com/CRtfDocObject.h"

#include <utility>

#include "com/debugOutput.h"

namespace quorvane::com {

std::span<const Member> CRtfDocObject::members() {
    static constexpr Member all[] = {
        getter<&::_CRtfDoc::get_Contents>(1),
        getter<&::_CRtfDoc::get_Changed>(2),
        setter<&::_CRtfDoc::put_Changed>(2),
        getter<&::_CRtfDoc::get_StyleSheetFile>(3),
        setter<&::_CRtfDoc::put_StyleSheetFile>(3),
        getter<&::_CRtfDoc::get_StyleSheetOk>(4),
        getter<&::_CRtfDoc::get_BottomMargin>(5),
        setter<&::_CRtfDoc::put_BottomMargin>(5),
        getter<&::_CRtfDoc::get_TopMargin>(6),
        setter<&::_CRtfDoc::put_TopMargin>(6),
        getter<&::_CRtfDoc::get_LeftMargin>(7),
        setter<&::_CRtfDoc::put_LeftMargin>(7),
        getter<&::_CRtfDoc::get_RightMargin>(8),
        setter<&::_CRtfDoc::put_RightMargin>(8),
        getter<&::_CRtfDoc::get_PageNumberStart>(9),
        setter<&::_CRtfDoc::put_PageNumberStart>(9),
        getter<&::_CRtfDoc::get_PageHeight>(10),
        setter<&::_CRtfDoc::put_PageHeight>(10),
        getter<&::_CRtfDoc::get_PageWidth>(11),
        setter<&::_CRtfDoc::put_PageWidth>(11),
        getter<&::_CRtfDoc::get_TableRows>(12),
        procedure<&::_CRtfDoc::Commit>(13),
        procedure<&::_CRtfDoc::LoadStyleSheetFromMemmory>(14),
        procedure<&::_CRtfDoc::Refresh>(15),
        procedure<&::_CRtfDoc::getCellStyleBackColor>(16),
        procedure<&::_CRtfDoc::ClearStructure>(17),
    };
    return all;
}

CRtfDocObject::CRtfDocObject(Ref<CRtfDoc> document) : Wrapper(std::move(document)) {
    reportAbsorbedErrors(native());
}

STDMETHODIMP CRtfDocObject::get_Contents(BSTR* value) {
    return get(value, [&] { return native().Contents(); });
}

STDMETHODIMP CRtfDocObject::get_Changed(VARIANT_BOOL* value) {
    return getStored(value, [&] { return native().Changed(); });
}

STDMETHODIMP CRtfDocObject::put_Changed(VARIANT_BOOL value) {
    return run([&] { native().setChanged(value != VARIANT_FALSE); });
}

STDMETHODIMP CRtfDocObject::get_StyleSheetFile(BSTR* value) {
    return get(value, [&] { return native().StyleSheetFile(); });
}

STDMETHODIMP CRtfDocObject::put_StyleSheetFile(BSTR value) {
    return run([&] { native().setStyleSheetFile(textOf(value)); });
}

STDMETHODIMP CRtfDocObject::get_StyleSheetOk(VARIANT_BOOL* value) {
    return getStored(value, [&] { return native().StyleSheetOk(); });
}

STDMETHODIMP CRtfDocObject::get_BottomMargin(LONG* value) {
    return getStored(value, [&] { return native().BottomMargin(); });
}

STDMETHODIMP CRtfDocObject::put_BottomMargin(LONG value) {
    return run([&] { native().setBottomMargin(value); });
}

STDMETHODIMP CRtfDocObject::get_TopMargin(LONG* value) {
    return getStored(value, [&] { return native().TopMargin(); });
}

STDMETHODIMP CRtfDocObject::put_TopMargin(LONG value) {
    return run([&] { native().setTopMargin(value); });
}

STDMETHODIMP CRtfDocObject::get_LeftMargin(LONG* value) {
    return getStored(value, [&] { return native().LeftMargin(); });
}

STDMETHODIMP CRtfDocObject::put_LeftMargin(LONG value) {
    return run([&] { native().setLeftMargin(value); });
}

STDMETHODIMP CRtfDocObject::get_RightMargin(LONG* value) {
    return getStored(value, [&] { return native().RightMargin(); });
}

STDMETHODIMP CRtfDocObject::put_RightMargin(LONG value) {
    return run([&] { native().setRightMargin(value); });
}

STDMETHODIMP CRtfDocObject::get_PageNumberStart(LONG* value) {
    return getStored(value, [&] { return native().PageNumberStart(); });
}

STDMETHODIMP CRtfDocObject::put_PageNumberStart(LONG value) {
    return run([&] { native().setPageNumberStart(value); });
}

STDMETHODIMP CRtfDocObject::get_PageHeight(LONG* value) {
    return getStored(value, [&] { return native().PageHeight(); });
}

STDMETHODIMP CRtfDocObject::put_PageHeight(LONG value) {
    return run([&] { native().setPageHeight(value); });
}

STDMETHODIMP CRtfDocObject::get_PageWidth(LONG* value) {
    return getStored(value, [&] { return native().PageWidth(); });
}

STDMETHODIMP CRtfDocObject::put_PageWidth(LONG value) {
    return run([&] { native().setPageWidth(value); });
}

STDMETHODIMP CRtfDocObject::get_TableRows(::_CRtfTableRows** value) {
    return get(value, [&] { return native().TableRows(); });
}

STDMETHODIMP CRtfDocObject::Commit(BSTR path) {
    // A file that is held open is an error that has no source.
    return run<Source::AsRaised>([&] {
        const CommitReport report(native(), "CRtfDoc.Commit", textOf(path));
        native().Commit(report.file());
    });
}

STDMETHODIMP CRtfDocObject::LoadStyleSheetFromMemmory(BSTR styleSheet) {
    return run([&] { native().LoadStyleSheetFromMemmory(textOf(styleSheet)); });
}

STDMETHODIMP CRtfDocObject::Refresh() {
    return run([&] { native().Refresh(); });
}

STDMETHODIMP CRtfDocObject::getCellStyleBackColor(BSTR name, ::tColorIndex* color) {
    return get(color, [&] { return native().getCellStyleBackColor(textOf(name)); });
}

STDMETHODIMP CRtfDocObject::ClearStructure() {
    return run([&] { native().ClearStructure(); });
}

::_CRtfDoc* wrap(Ref<CRtfDoc> object) {
    return WrapperRegistry<CRtfDocObject>::wrapperOf(std::move(object)).detach();
}

}  // namespace quorvane::com
