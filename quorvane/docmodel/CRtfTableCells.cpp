#include "quorvane/docmodel/CRtfTableCells.h"

#include "quorvane/docmodel/InnerCells.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/tableCollectionMembers.h"

namespace quorvane {

template class TableCollection<CRtfTableCells, CRtfTableCell>;

Ref<CRtfTableRow> CRtfTableCells::Parent() const {
    InnerRow& row = inner(*this).row();
    return Ref<CRtfTableRow>(isAlive(&row) ? &row : nullptr);
}

void CRtfTableCells::removeTail() {
    if (inner(*this).list().count() == 0) {
        published([] { raise(RunTimeError::InvalidProcedureCall); });
    }
    TableCollection::removeTail();
}

void CRtfTableCells::SetUniformWidths() {
    published([&] { inner(*this).spreadEvenly(); });
}

std::int32_t CRtfTableCells::indexOf(const CRtfTableCell* cell) const {
    return published([&] { return inner(*this).indexOf(cell); });
}

Ref<CRtfTableCell> CRtfTableCells::refile(const Ref<CRtfTableCell>& old, std::string_view key) {
    return published([&]() -> Ref<CRtfTableCell> {
        InnerCells& self = inner(*this);
        TableDocument& owner = changing(self.document());
        const std::size_t position = self.list_.requiredPositionOf(inner(*old));
        const Ref<InnerCell> fresh = InnerCell::create(self.row());
        fresh->prepareBackColor(inner(*old).backColor());
        self.list_.replaceAt(position, fresh, key);
        fresh->takeOver(inner(*old));
        owner.markChanged();
        return fresh;
    });
}

}  // namespace quorvane
