#pragma once

#include <span>

#include "com/CollectionWrapper.h"
#include "quorvane/docmodel/CRtfParagraphs.h"

namespace quorvane::com {

/// The paragraphs of a cell for a host.
class CRtfParagraphsObject final
    : public CollectionWrapper<CRtfParagraphsObject, ::_CRtfParagraphs, CRtfParagraphs,
                               ::_CRtfTableCell, ::_CRtfParagraph> {
public:
    static constexpr const GUID& classId = CLSID_CRtfParagraphs;
    static std::span<const Member> members();

    using CollectionWrapper::CollectionWrapper;
};

}  // namespace quorvane::com
