#pragma once

#include <span>

#include "com/document/DocumentPart.h"
#include "quorvane/docmodel/CRtfTableCell.h"

namespace quorvane::com {

/// A cell for a host.
class DocumentCellObject final
    : public DocumentPart<DocumentCellObject, ::_DocumentCell, CRtfTableCell> {
public:
    static constexpr const GUID& classId = CLSID_DocumentCell;
    static std::span<const Member> members();

    DocumentCellObject(Ref<CRtfTableCell> native, Cell cell)
        : DocumentPart(std::move(native)), cell_(std::move(cell)) {}

    STDMETHODIMP get_Row(::_DocumentRow** result) override;
    STDMETHODIMP get_Paragraphs(::_DocumentParagraphs** result) override;
    STDMETHODIMP AddParagraph(VARIANT* text, VARIANT* style,
                              ::_DocumentParagraph** result) override;
    STDMETHODIMP AddPicture(BSTR path, VARIANT* width, VARIANT* height,
                            ::_DocumentParagraph** result) override;
    STDMETHODIMP put_Text(BSTR text) override;
    STDMETHODIMP get_Style(BSTR* result) override;
    STDMETHODIMP put_Style(BSTR value) override;
    STDMETHODIMP get_Align(BSTR* result) override;
    STDMETHODIMP put_Align(BSTR value) override;
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
    STDMETHODIMP get_Span(LONG* result) override;
    STDMETHODIMP put_Span(LONG value) override;
    STDMETHODIMP get_Vspan(LONG* result) override;
    STDMETHODIMP put_Vspan(LONG value) override;
    STDMETHODIMP get_Index(LONG* result) override;
    STDMETHODIMP Remove() override;

private:
    Cell cell_;
};

}  // namespace quorvane::com
