#pragma once

#include <span>

#include "com/Wrapper.h"
#include "quorvane/docmodel/CRtfTableRow.h"

namespace quorvane::com {

/// A row for a host.
class CRtfTableRowObject final : public Wrapper<CRtfTableRowObject, ::_CRtfTableRow, CRtfTableRow> {
public:
    static constexpr const GUID& classId = CLSID_CRtfTableRow;
    static std::span<const Member> members();

    using Wrapper::Wrapper;

    STDMETHODIMP get_Parent(::_CRtfDoc** value) override;
    STDMETHODIMP get_TableCells(::_CRtfTableCells** value) override;
    STDMETHODIMP get_BackColor(::tColorIndex* value) override;
    STDMETHODIMP put_BackColor(::tColorIndex value) override;
    STDMETHODIMP get_BottomBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_BottomBorder(::tBorderWidth value) override;
    STDMETHODIMP get_TopBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_TopBorder(::tBorderWidth value) override;
    STDMETHODIMP get_LeftBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_LeftBorder(::tBorderWidth value) override;
    STDMETHODIMP get_RightBorder(::tBorderWidth* value) override;
    STDMETHODIMP put_RightBorder(::tBorderWidth value) override;
};

}  // namespace quorvane::com
