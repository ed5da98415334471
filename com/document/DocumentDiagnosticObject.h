#pragma once

#include <span>

#include "com/document/DocumentPart.h"

namespace quorvane::com {

/// A diagnostic for a host.
class DocumentDiagnosticObject final
    : public DocumentPart<DocumentDiagnosticObject, ::_DocumentDiagnostic, ReportedDiagnostic> {
public:
    static constexpr const GUID& classId = CLSID_DocumentDiagnostic;
    static std::span<const Member> members();

    using DocumentPart::DocumentPart;

    STDMETHODIMP get_File(BSTR* result) override;
    STDMETHODIMP get_Line(LONG* result) override;
    STDMETHODIMP get_Column(LONG* result) override;
    STDMETHODIMP get_Severity(BSTR* result) override;
    STDMETHODIMP get_Identifier(BSTR* result) override;
    STDMETHODIMP get_Message(BSTR* result) override;
    STDMETHODIMP get_Hint(BSTR* result) override;
};

}  // namespace quorvane::com
