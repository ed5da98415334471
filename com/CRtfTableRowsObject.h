#pragma once

#include <span>

#include "com/CollectionWrapper.h"
#include "quorvane/docmodel/CRtfTableRows.h"

namespace quorvane::com {

/// The rows of a document for a host.
class CRtfTableRowsObject final
    : public CollectionWrapper<CRtfTableRowsObject, ::_CRtfTableRows, CRtfTableRows, ::_CRtfDoc,
                               ::_CRtfTableRow> {
public:
    static constexpr const GUID& classId = CLSID_CRtfTableRows;
    static std::span<const Member> members();

    using CollectionWrapper::CollectionWrapper;
};

}  // namespace quorvane::com
