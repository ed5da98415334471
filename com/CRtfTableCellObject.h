#pragma once

#include <span>

#include "com/Wrapper.h"
#include "quorvane/docmodel/CRtfTableCell.h"

namespace quorvane::com {

/// A cell for a host.
class CRtfTableCellObject final
    : public Wrapper<CRtfTableCellObject, ::_CRtfTableCell, CRtfTableCell> {
public:
    static constexpr const GUID& classId = CLSID_CRtfTableCell;
    static std::span<const Member> members();

    using Wrapper::Wrapper;

    STDMETHODIMP get_Parent(::_CRtfTableRow** value) override;
    STDMETHODIMP get_BottomBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_BottomBorder(::tBorderWidth value) override;
    STDMETHODIMP get_TopBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_TopBorder(::tBorderWidth value) override;
    STDMETHODIMP get_LeftBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_LeftBorder(::tBorderWidth value) override;
    STDMETHODIMP get_RightBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_RightBorder(::tBorderWidth value) override;
    STDMETHODIMP get_BackColor(::tColorIndex* value) override;
    STDMETHODIMP put_BackColor(::tColorIndex value) override;
    STDMETHODIMP get_Width(::tWidthUnit units, LONG* width) override;
    STDMETHODIMP put_Width(::tWidthUnit units, LONG width) override;
    STDMETHODIMP get_Paragraphs(::_CRtfParagraphs** value) override;
    STDMETHODIMP get_Align(::tCellAlign* value) override;
    STDMETHODIMP put_Align(::tCellAlign value) override;
    STDMETHODIMP get_Style(BSTR* value) override;
    STDMETHODIMP put_Style(BSTR value) override;
    STDMETHODIMP asMarkedField(VARIANT fieldData) override;
};

}  // namespace quorvane::com
