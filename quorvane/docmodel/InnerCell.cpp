#include "quorvane/docmodel/InnerCell.h"

#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtfgroups/GTextMarkedFields.h"

namespace quorvane {

void retain(InnerCell* cell) noexcept {
    cell->counts_.retain();
}

void release(InnerCell* cell) noexcept {
    if (cell->counts_.release()) {
        delete cell;
    }
}

void retain(CRtfTableCell* cell) noexcept {
    retain(&inner(*cell));
}

void release(CRtfTableCell* cell) noexcept {
    release(&inner(*cell));
}

void retain(CRtfParagraphs* paragraphs) noexcept {
    retain(&inner(*paragraphs).cell());
}

void release(CRtfParagraphs* paragraphs) noexcept {
    release(&inner(*paragraphs).cell());
}

TableDocument* documentOf(const InnerCell& cell) noexcept {
    return cell.document();
}

MemoryPool& poolOf(const InnerCell& cell) noexcept {
    return poolOf(*cell.parent_.memory());
}

Ref<InnerCell> InnerCell::create(InnerRow& row) {
    void* memory = poolOf(row).allocate(sizeof(InnerCell));
    return Ref<InnerCell>(::new (memory) InnerCell(row));
}

void InnerCell::operator delete(InnerCell* cell, std::destroying_delete_t) noexcept {
    const WeakRef<InnerRow> row = cell->parent_;
    cell->~InnerCell();
    poolOf(*row.memory()).deallocate(cell, sizeof(InnerCell));
}

TableDocument* InnerCell::document() const noexcept {
    const InnerRow* row = parent_.get();
    return row ? documentOf(*row) : nullptr;
}

InnerRow& InnerCell::row() const {
    InnerRow* row = parent_.get();
    if (!row) {
        raise(RunTimeError::ObjectNotSet);
    }
    return *row;
}

void InnerCell::takeOver(InnerCell& old) {
    backColor_ = old.backColor_;
    borders_ = old.borders_;
    rightEdge_ = old.rightEdge_;
    edgeSpread_ = old.edgeSpread_;
    paragraphs_.takeFrom(old.paragraphs_);
}

void InnerCell::setBorder(BorderSide side, tBorderWidth width) {
    if (borders_[side] != width) {
        beforeChange(document());
        borders_.set(side, width);
        markChanged(document());
    }
}

void InnerCell::applyBackColor(TableDocument* document, tColorIndex color) {
    if (backColor_ == color) {
        return;
    }
    backColor_ = color;
    if (isDarkColor(color)) {
        paragraphs_.setForeColors(eWhite);
    }
    markChanged(document);
}

void InnerCell::renderDefinition(TableRendering& rendering, std::int32_t rightEdge) {
    TextOutput& out = rendering.out;
    out << rendering.borderText(borders_);
    if (backColor_ != eNoColor || !style_.empty()) {
        if (backColor_ == eNoColor) {
            applyBackColor(
                &rendering.document,
                static_cast<tColorIndex>(rendering.document.cellStyleColor(style_.view())));
        }
        out << "\\clcbpat" << backColor_;
    }
    out << "\\cellx" << rightEdge;
}

void InnerCell::renderContent(TableRendering& rendering) {
    if (align_ != eNoDefault) {
        paragraphs_.setAligns(static_cast<tCellAlign>(align_));
    }
    if (markedField_) {
        GTextMarkedFields::writeFieldStart(*markedField_, rendering.out);
    }
    rendering.out << "\r\n";
    paragraphs_.render(rendering);
    if (markedField_) {
        GTextMarkedFields::writeFieldEnd(rendering.out);
    }
}

}  // namespace quorvane
