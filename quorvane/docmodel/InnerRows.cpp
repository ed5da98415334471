#include "quorvane/docmodel/InnerRows.h"

namespace quorvane {

void retain(CRtfTableRows* rows) noexcept {
    inner(*rows).counts_.retain();
}

void release(CRtfTableRows* rows) noexcept {
    if (inner(*rows).counts_.release()) {
        delete &inner(*rows);
    }
}

void InnerRows::insertNew(const List::Place& place, TableDocument&) {
    list_.insert(place, InnerRow::create(parent_));
}

void InnerRows::render(TableRendering& rendering) const {
    std::size_t rendered = 0;
    for (InnerRow* row : list_) {
        row->render(rendering);
        rendering.out.setProgress(++rendered, list_.count());
    }
}

}  // namespace quorvane
