#include "quorvane/docmodel/CRtfTableRows.h"

#include "quorvane/support/currentError.h"

namespace quorvane {

void retain(CRtfTableRows* rows) noexcept {
    rows->counts_.retain();
}

void release(CRtfTableRows* rows) noexcept {
    if (rows->counts_.release()) {
        delete rows;
    }
}

Ref<CRtfDoc> CRtfTableRows::Parent() const {
    TableDocument* document = parent_.get();
    return Ref<CRtfDoc>(document ? document->document() : nullptr);
}

Ref<CRtfTableRow> CRtfTableRows::refile(const Ref<CRtfTableRow>& old, std::string_view key) {
    clearCurrentError();
    TableDocument& owner = required(document());
    const std::size_t position = list_.requiredPositionOf(*old);
    Ref<CRtfTableRow> fresh(new CRtfTableRow(parent_));
    list_.replaceAt(position, fresh, key);
    fresh->takeOver(*old);
    owner.markChanged();
    return fresh;
}

void CRtfTableRows::insertNew(const List::Place& place, TableDocument&) {
    list_.insert(place, Ref<CRtfTableRow>(new CRtfTableRow(parent_)));
}

void CRtfTableRows::render(TableDocument& document, std::string& rtf) const {
    for (CRtfTableRow* row : list_) {
        row->render(document, rtf);
    }
}

}  // namespace quorvane
