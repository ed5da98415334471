#pragma once

#include <span>

#include "com/Wrapper.h"
#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane::com {

/// A document for a host.
class CRtfDocObject final : public Wrapper<CRtfDocObject, ::_CRtfDoc, CRtfDoc> {
public:
    static constexpr const GUID& classId = CLSID_CRtfDoc;
    static std::span<const Member> members();

    explicit CRtfDocObject(Ref<CRtfDoc> document);

    STDMETHODIMP get_Contents(BSTR* value) override;
    STDMETHODIMP get_Changed(VARIANT_BOOL* value) override;
    STDMETHODIMP put_Changed(VARIANT_BOOL value) override;
    STDMETHODIMP get_StyleSheetFile(BSTR* value) override;
    STDMETHODIMP put_StyleSheetFile(BSTR value) override;
    STDMETHODIMP get_StyleSheetOk(VARIANT_BOOL* value) override;
    STDMETHODIMP get_BottomMargin(LONG* value) override;
    STDMETHODIMP put_BottomMargin(LONG value) override;
    STDMETHODIMP get_TopMargin(LONG* value) override;
    STDMETHODIMP put_TopMargin(LONG value) override;
    STDMETHODIMP get_LeftMargin(LONG* value) override;
    STDMETHODIMP put_LeftMargin(LONG value) override;
    STDMETHODIMP get_RightMargin(LONG* value) override;
    STDMETHODIMP put_RightMargin(LONG value) override;
    STDMETHODIMP get_PageNumberStart(LONG* value) override;
    STDMETHODIMP put_PageNumberStart(LONG value) override;
    STDMETHODIMP get_PageHeight(LONG* value) override;
    STDMETHODIMP put_PageHeight(LONG value) override;
    STDMETHODIMP get_PageWidth(LONG* value) override;
    STDMETHODIMP put_PageWidth(LONG value) override;
    STDMETHODIMP get_TableRows(::_CRtfTableRows** value) override;
    STDMETHODIMP Commit(BSTR path) override;
    STDMETHODIMP LoadStyleSheetFromMemmory(BSTR styleSheet) override;
    STDMETHODIMP Refresh() override;
    STDMETHODIMP getCellStyleBackColor(BSTR name, ::tColorIndex* color) override;
    STDMETHODIMP ClearStructure() override;
};

}  // namespace quorvane::com
