#include "quorvane/docmodel/CRtfTableRow.h"

#include "quorvane/support/currentError.h"

namespace quorvane {

void retain(CRtfTableRow* row) noexcept {
    row->counts_.retain();
}

void release(CRtfTableRow* row) noexcept {
    row->counts_.release(row);
}

void retainWeak(CRtfTableRow* row) noexcept {
    row->counts_.retainWeak();
}

void releaseWeak(CRtfTableRow* row) noexcept {
    row->counts_.releaseWeak(row);
}

bool isAlive(const CRtfTableRow* row) noexcept {
    return row->counts_.isAlive();
}

void retain(CRtfTableCells* cells) noexcept {
    retainWeak(&cells->row_);
}

void release(CRtfTableCells* cells) noexcept {
    releaseWeak(&cells->row_);
}

TableDocument* documentOf(const CRtfTableRow& row) noexcept {
    return row.parent_.get();
}

std::int32_t cellWidth(const CRtfTableRow& row, const CRtfTableCell& cell, tWidthUnit units) {
    return row.cells_.widthOf(cell, units);
}

void setCellWidth(CRtfTableRow& row, CRtfTableCell& cell, tWidthUnit units, std::int32_t width) {
    row.cells_.setWidthOf(cell, units, width);
}

MemoryPool& poolOf(const CRtfTableRow& row) noexcept {
    return row.parent_.memory()->pool();
}

Ref<CRtfTableRow> CRtfTableRow::create(const WeakRef<TableDocument>& document) {
    void* memory = document.memory()->pool().allocate(sizeof(CRtfTableRow));
    return Ref<CRtfTableRow>(::new (memory) CRtfTableRow(document));
}

void CRtfTableRow::operator delete(CRtfTableRow* row, std::destroying_delete_t) noexcept {
    const WeakRef<TableDocument> document = row->parent_;
    row->~CRtfTableRow();
    document.memory()->pool().deallocate(row, sizeof(CRtfTableRow));
}

// The parent stays: by way of it cells that are still held find the memory they are in.
void CRtfTableRow::letGo() noexcept {
    cells_.list_.clear();
}

void CRtfTableRow::takeOver(CRtfTableRow& old) {
    backColor_ = old.backColor_;
    borders_ = old.borders_;
    cells_.takeFrom(old.cells_);
}

Ref<CRtfDoc> CRtfTableRow::Parent() const {
    TableDocument* document = parent_.get();
    return Ref<CRtfDoc>(document ? document->document() : nullptr);
}

void CRtfTableRow::setBackColor(tColorIndex color) {
    clearCurrentError();
    if (backColor_ == color) {
        return;
    }
    backColor_ = color;
    TableDocument& document = required(parent_.get());
    for (CRtfTableCell* cell : cells_.list_) {
        cell->applyBackColor(&document, color);
    }
    document.markChanged();
}

void CRtfTableRow::setBorder(BorderSide side, tBorderWidth width) {
    clearCurrentError();
    if (borders_[side] == width) {
        return;
    }
    borders_.set(side, width);
    TableDocument& document = required(parent_.get());
    for (CRtfTableCell* cell : cells_.list_) {
        cell->borders_ = borders_;
    }
    document.markChanged();
}

void CRtfTableRow::render(TableRendering& rendering) {
    rendering.out << "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0";
    cells_.render(rendering);
    rendering.out << "\\row}";
}

}  // namespace quorvane
