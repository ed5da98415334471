#include "quorvane/docmodel/InnerRow.h"

namespace quorvane {

void retain(InnerRow* row) noexcept {
    row->counts_.retain();
}

void release(InnerRow* row) noexcept {
    row->counts_.release(row);
}

void retain(CRtfTableRow* row) noexcept {
    retain(&inner(*row));
}

void release(CRtfTableRow* row) noexcept {
    release(&inner(*row));
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

DocumentMemory& memoryOf(const InnerRow& row) noexcept {
    return row.parent_.memory()->memory();
}

Ref<InnerRow> InnerRow::create(const WeakRef<TableDocument>& document) {
    void* memory = document.memory()->memory().pool.allocate(sizeof(InnerRow));
    return Ref<InnerRow>(::new (memory) InnerRow(document));
}

void InnerRow::operator delete(InnerRow* row, std::destroying_delete_t) noexcept {
    const WeakRef<TableDocument> document = row->parent_;
    row->~InnerRow();
    document.memory()->memory().pool.deallocate(row, sizeof(InnerRow));
}

// The parent stays: by way of it cells that are still held find the memory they are in.
void InnerRow::releaseContents() noexcept {
    cells().clear();
}

void InnerRow::takeOver(InnerRow& old) {
    backColor_ = old.backColor_;
    borders_ = old.borders_;
    cells().takeFrom(old.cells());
}

void InnerRow::setBorder(BorderSide side, tBorderWidth width) {
    if (borders_[side] == width) {
        return;
    }
    beforeChange(parent_.get());
    borders_.set(side, width);
    TableDocument& document = required(parent_.get());
    for (InnerCell* cell : cells().list()) {
        cell->takeBorders(borders_);
    }
    document.markChanged();
}

void InnerRow::render(TableRendering& rendering) {
    rendering.out << "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0";
    cells().render(rendering);
    rendering.out << "\\row}";
}

}  // namespace quorvane
