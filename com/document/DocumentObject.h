#pragma once

#include <span>
#include <string>

#include "com/document/DocumentPart.h"
#include "quorvane/compose/render.h"

namespace quorvane::com {

/// `Quorvane.Document` for a host.
class DocumentObject final : public DocumentPart<DocumentObject, ::_Document, DocumentState> {
public:
    static constexpr const GUID& classId = CLSID_Document;
    static std::span<const Member> members();

    using DocumentPart::DocumentPart;

    STDMETHODIMP get_Rows(::_DocumentRows** result) override;
    STDMETHODIMP AddRow(VARIANT* texts, VARIANT* style, ::_DocumentRow** result) override;
    STDMETHODIMP AddHeading(VARIANT* texts, VARIANT* style, ::_DocumentRow** result) override;
    STDMETHODIMP AddRows(VARIANT texts, VARIANT* style) override;
    STDMETHODIMP put_Columns(VARIANT widths) override;
    STDMETHODIMP put_Page(BSTR name) override;
    STDMETHODIMP SetPageSize(VARIANT width, VARIANT height) override;
    STDMETHODIMP SetMargins(VARIANT* left, VARIANT* right, VARIANT* top, VARIANT* bottom) override;
    STDMETHODIMP put_PageNumberStart(LONG number) override;
    STDMETHODIMP put_Header(BSTR text) override;
    STDMETHODIMP put_Footer(BSTR text) override;
    STDMETHODIMP put_StyleSheet(BSTR text) override;
    STDMETHODIMP LoadStyleSheet(BSTR path) override;
    STDMETHODIMP get_PictureFolder(BSTR* result) override;
    STDMETHODIMP put_PictureFolder(BSTR value) override;
    STDMETHODIMP get_Locale(BSTR* result) override;
    STDMETHODIMP put_Locale(BSTR value) override;
    STDMETHODIMP Render(BSTR description, VARIANT* styleSheet) override;
    STDMETHODIMP RenderFile(BSTR path, VARIANT* styleSheetPath) override;
    STDMETHODIMP RenderData(BSTR description, BSTR styleSheet, BSTR json) override;
    STDMETHODIMP Check(BSTR description, VARIANT* styleSheet,
                       ::_DocumentDiagnostics** result) override;
    STDMETHODIMP CheckStyleSheet(BSTR text, ::_DocumentDiagnostics** result) override;
    STDMETHODIMP get_Diagnostics(::_DocumentDiagnostics** result) override;
    STDMETHODIMP get_Rtf(BSTR* result) override;
    STDMETHODIMP Save(BSTR path) override;
    STDMETHODIMP Clear() override;
    STDMETHODIMP Table(VARIANT data, VARIANT* columns, VARIANT* title,
                       VARIANT* styleSheet) override;

private:
    /// Takes what a description is rendered to in the place of the document. The file is that of
    /// the description; empty without one.
    template <class Make>
    void replaceBy(Make&& make, const std::string& file = {});
    /// Keeps the diagnostics of an error.
    template <class Body>
    void reporting(Body&& body);
    /// Sets the stylesheet, and forgets the diagnostics of the one before.
    template <class Set>
    void setStyles(Set&& set);
    RenderOptions options(std::string styleSheet) const;
};

}  // namespace quorvane::com
