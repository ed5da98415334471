#pragma once

#include <span>

#include "com/document/DocumentPart.h"
#include "quorvane/docmodel/CRtfParagraph.h"

namespace quorvane::com {

/// A paragraph for a host.
class DocumentParagraphObject final
    : public DocumentPart<DocumentParagraphObject, ::_DocumentParagraph, CRtfParagraph> {
public:
    static constexpr const GUID& classId = CLSID_DocumentParagraph;
    static std::span<const Member> members();

    DocumentParagraphObject(Ref<CRtfParagraph> native, Paragraph paragraph)
        : DocumentPart(std::move(native)), paragraph_(std::move(paragraph)) {}

    STDMETHODIMP get_Cell(::_DocumentCell** result) override;
    STDMETHODIMP put_Text(BSTR text) override;
    STDMETHODIMP get_Rtf(BSTR* result) override;
    STDMETHODIMP put_Rtf(BSTR value) override;
    STDMETHODIMP AddText(BSTR text, VARIANT* style) override;
    STDMETHODIMP AddBold(BSTR text) override;
    STDMETHODIMP AddItalic(BSTR text) override;
    STDMETHODIMP AddUnderlined(BSTR text) override;
    STDMETHODIMP AddRtf(BSTR rtf) override;
    STDMETHODIMP get_Style(BSTR* result) override;
    STDMETHODIMP put_Style(BSTR value) override;
    STDMETHODIMP get_Align(BSTR* result) override;
    STDMETHODIMP put_Align(BSTR value) override;
    STDMETHODIMP put_Color(BSTR color) override;
    STDMETHODIMP SetPicture(BSTR path, VARIANT* width, VARIANT* height) override;
    STDMETHODIMP RemovePicture() override;
    STDMETHODIMP get_HasPicture(VARIANT_BOOL* result) override;
    STDMETHODIMP get_Index(LONG* result) override;
    STDMETHODIMP Remove() override;

private:
    Paragraph paragraph_;
};

}  // namespace quorvane::com
