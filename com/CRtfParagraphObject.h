#pragma once

#include <span>

#include "com/Wrapper.h"
#include "quorvane/docmodel/CRtfParagraph.h"

namespace quorvane::com {

/// A paragraph for a host.
class CRtfParagraphObject final
    : public Wrapper<CRtfParagraphObject, ::_CRtfParagraph, CRtfParagraph> {
public:
    static constexpr const GUID& classId = CLSID_CRtfParagraph;
    static std::span<const Member> members();

    using Wrapper::Wrapper;

    STDMETHODIMP get_Parent(::_CRtfTableCell** value) override;
    STDMETHODIMP get_Text(BSTR* value) override;
    STDMETHODIMP put_Text(BSTR value) override;
    STDMETHODIMP get_Style(BSTR* value) override;
    STDMETHODIMP put_Style(BSTR value) override;
    STDMETHODIMP get_ForeColor(::tColorIndex* value) override;
    STDMETHODIMP put_ForeColor(::tColorIndex value) override;
    STDMETHODIMP get_Align(::tCellAlign* value) override;
    STDMETHODIMP put_Align(::tCellAlign value) override;
    STDMETHODIMP asMarkedField(VARIANT fieldData) override;
};

}  // namespace quorvane::com
