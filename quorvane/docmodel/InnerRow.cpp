#include "quorvane/docmodel/InnerRow.h"

namespace quorvane {

void retain(CRtfTableRow* row) noexcept {
    inner(*row).counts_.retain();
}

void release(CRtfTableRow* row) noexcept {
    inner(*row).counts_.release(&inner(*row));
}

void retainWeak(InnerRow* row) noexcept {
    row->counts_.retainWeak();
}

void releaseWeak(InnerRow* row) noexcept {
    row->counts_.releaseWeak(row);
}

bool isAlive(const InnerRow* row) noexcept {
    return row->counts_.isAlive();
}

void retain(CRtfTableCells* cells) noexcept {
    retainWeak(&inner(*cells).row());
}

void release(CRtfTableCells* cells) noexcept {
    releaseWeak(&inner(*cells).row());
}

TableDocument* documentOf(const InnerRow& row) noexcept {
    return row.parent_.get();
}

InnerCells& cellsOf(InnerRow& row) noexcept {
    return row.cells();
}

MemoryPool& poolOf(const InnerRow& row) noexcept {
    return row.parent_.memory()->pool();
}

Ref<InnerRow> InnerRow::create(const WeakRef<TableDocument>& document) {
    void* memory = document.memory()->pool().allocate(sizeof(InnerRow));
    return Ref<InnerRow>(::new (memory) InnerRow(document));
}

void InnerRow::operator delete(InnerRow* row, std::destroying_delete_t) noexcept {
    const WeakRef<TableDocument> document = row->parent_;
    row->~InnerRow();
    document.memory()->pool().deallocate(row, sizeof(InnerRow));
}

// The parent stays: by way of it cells that are still held find the memory they are in.
void InnerRow::releaseContents() noexcept {
    cells_.clear();
}

void InnerRow::takeOver(InnerRow& old) {
    backColor_ = old.backColor_;
    borders_ = old.borders_;
    cells_.takeFrom(old.cells_);
}

void InnerRow::setBorder(BorderSide side, tBorderWidth width) {
    if (borders_[side] == width) {
        return;
    }
    beforeChange(parent_.get());
    borders_.set(side, width);
    TableDocument& document = required(parent_.get());
    for (InnerCell* cell : cells_.list()) {
        cell->takeBorders(borders_);
    }
    document.markChanged();
}

void InnerRow::render(TableRendering& rendering) {
    rendering.out << "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0";
    cells_.render(rendering);
    rendering.out << "\\row}";
}

}  // namespace quorvane
