#include "quorvane/docmodel/CRtfParagraphs.h"

#include "quorvane/docmodel/InnerCell.h"
#include "quorvane/docmodel/InnerParagraphs.h"
#include "quorvane/docmodel/tableCollectionMembers.h"

namespace quorvane {

template class TableCollection<CRtfParagraphs, CRtfParagraph>;

Ref<CRtfTableCell> CRtfParagraphs::Parent() const {
    return Ref<CRtfTableCell>(&inner(*this).cell());
}

std::int32_t CRtfParagraphs::indexOf(const CRtfParagraph* paragraph) const {
    return published([&] {
        if (!paragraph) {
            raise(RunTimeError::ObjectNotSet, "The paragraph object is set to Nothing");
        }
        return static_cast<std::int32_t>(inner(*this).list().requiredPositionOf(inner(*paragraph)));
    });
}

Ref<CRtfParagraph> CRtfParagraphs::refile(const Ref<CRtfParagraph>& old, std::string_view key) {
    return published([&]() -> Ref<CRtfParagraph> {
        InnerParagraphs& self = inner(*this);
        InnerParagraph& former = inner(*old);
        TableDocument& owner = changing(self.document());
        const std::size_t position = self.list_.requiredPositionOf(former);
        const Ref<InnerParagraph> fresh = InnerParagraph::create(self.cell());
        fresh->takeOver(former);
        self.list_.replaceAt(position, fresh, key);
        former.leaveList();
        fresh->enterList();
        owner.markChanged();
        return fresh;
    });
}

}  // namespace quorvane
