#pragma once

#include <span>

#include "com/document/DocumentPart.h"
#include "quorvane/docmodel/CRtfTableRow.h"

namespace quorvane::com {

/// A row of a document for a host.
class DocumentRowObject final
    : public DocumentPart<DocumentRowObject, ::_DocumentRow, CRtfTableRow> {
public:
    static constexpr const GUID& classId = CLSID_DocumentRow;
    static std::span<const Member> members();

    DocumentRowObject(Ref<CRtfTableRow> native, Row row)
        : DocumentPart(std::move(native)), row_(std::move(row)) {}

    STDMETHODIMP get_Cells(::_DocumentCells** result) override;
    STDMETHODIMP AddCell(VARIANT* text, VARIANT* style, ::_DocumentCell** result) override;
    STDMETHODIMP put_Columns(VARIANT widths) override;
    STDMETHODIMP put_BackColor(BSTR color) override;
    STDMETHODIMP put_Borders(BSTR width) override;
    STDMETHODIMP get_TopBorder(BSTR* result) override;
    STDMETHODIMP put_TopBorder(BSTR value) override;
    STDMETHODIMP get_BottomBorder(BSTR* result) override;
    STDMETHODIMP put_BottomBorder(BSTR value) override;
    STDMETHODIMP get_LeftBorder(BSTR* result) override;
    STDMETHODIMP put_LeftBorder(BSTR value) override;
    STDMETHODIMP get_RightBorder(BSTR* result) override;
    STDMETHODIMP put_RightBorder(BSTR value) override;
    STDMETHODIMP get_Heading(VARIANT_BOOL* result) override;
    STDMETHODIMP put_Heading(VARIANT_BOOL value) override;
    STDMETHODIMP get_Keep(VARIANT_BOOL* result) override;
    STDMETHODIMP put_Keep(VARIANT_BOOL value) override;
    STDMETHODIMP get_KeepWithNext(VARIANT_BOOL* result) override;
    STDMETHODIMP put_KeepWithNext(VARIANT_BOOL value) override;
    STDMETHODIMP get_PageBreak(VARIANT_BOOL* result) override;
    STDMETHODIMP put_PageBreak(VARIANT_BOOL value) override;
    STDMETHODIMP get_Index(LONG* result) override;
    STDMETHODIMP Remove() override;

private:
    Row row_;
};

}  // namespace quorvane::com
