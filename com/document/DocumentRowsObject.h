#pragma once

#include <span>

#include "com/document/DocumentCollection.h"

namespace quorvane::com {

/// The rows of a document for a host.
class DocumentRowsObject final : public DocumentCollection<DocumentRowsObject, ::_DocumentRows,
                                                           DocumentState, ::_DocumentRow> {
public:
    static constexpr const GUID& classId = CLSID_DocumentRows;
    static constexpr const char* elementName = "row";
    static std::span<const Member> members();

    using DocumentCollection::DocumentCollection;

    Rows elements() const { return native().document.rows(); }

    STDMETHODIMP Insert(LONG index, ::_DocumentRow** result) override;
};

}  // namespace quorvane::com
