#pragma once

#include <span>

#include "com/document/DocumentCollection.h"
#include "quorvane/docmodel/CRtfTableRow.h"

namespace quorvane::com {

/// The cells of a row for a host.
class DocumentCellsObject final : public DocumentCollection<DocumentCellsObject, ::_DocumentCells,
                                                            CRtfTableRow, ::_DocumentCell> {
public:
    static constexpr const GUID& classId = CLSID_DocumentCells;
    static constexpr const char* elementName = "cell";
    static std::span<const Member> members();

    DocumentCellsObject(Ref<CRtfTableRow> native, Row row)
        : DocumentCollection(std::move(native)), row_(std::move(row)) {}

    Cells elements() const { return row_.cells(); }

    STDMETHODIMP Insert(LONG index, VARIANT* text, VARIANT* style,
                        ::_DocumentCell** result) override;

private:
    Row row_;
};

}  // namespace quorvane::com
