#pragma once

#include <span>
#include <vector>

#include "com/document/DocumentCollection.h"

namespace quorvane::com {

/// Diagnostics for a host.
class DocumentDiagnosticsObject final
    : public DocumentCollection<DocumentDiagnosticsObject, ::_DocumentDiagnostics,
                                ReportedDiagnostics, ::_DocumentDiagnostic> {
public:
    static constexpr const GUID& classId = CLSID_DocumentDiagnostics;
    static constexpr const char* elementName = "diagnostic";
    static std::span<const Member> members();

    using DocumentCollection::DocumentCollection;

    const std::vector<Ref<ReportedDiagnostic>>& elements() const { return native().all; }
};

}  // namespace quorvane::com
