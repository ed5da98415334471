#pragma once

#include <span>

#include "com/CollectionWrapper.h"
#include "quorvane/docmodel/CRtfTableCells.h"

namespace quorvane::com {

/// The cells of a row for a host.
class CRtfTableCellsObject final
    : public CollectionWrapper<CRtfTableCellsObject, ::_CRtfTableCells, CRtfTableCells,
                               ::_CRtfTableRow, ::_CRtfTableCell> {
public:
    static constexpr const GUID& classId = CLSID_CRtfTableCells;
    static std::span<const Member> members();

    using CollectionWrapper::CollectionWrapper;

    STDMETHODIMP SetUniformWidths() override;
};

}  // namespace quorvane::com
