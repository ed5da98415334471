#include "quorvane/docmodel/CRtfTableRows.h"

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/InnerRows.h"
#include "quorvane/docmodel/tableCollectionMembers.h"

namespace quorvane {

template class TableCollection<CRtfTableRows, CRtfTableRow>;

Ref<CRtfDoc> CRtfTableRows::Parent() const {
    TableDocument* document = inner(*this).document();
    return Ref<CRtfDoc>(document ? document->document() : nullptr);
}

Ref<CRtfTableRow> CRtfTableRows::refile(const Ref<CRtfTableRow>& old, std::string_view key) {
    return published([&]() -> Ref<CRtfTableRow> {
        InnerRows& self = inner(*this);
        TableDocument& owner = changing(self.document());
        const std::size_t position = self.list_.requiredPositionOf(inner(*old));
        const Ref<InnerRow> fresh = InnerRow::create(self.parent_);
        self.list_.replaceAt(position, fresh, key);
        fresh->takeOver(inner(*old));
        owner.markChanged();
        return fresh;
    });
}

}  // namespace quorvane
