#include "quorvane/docmodel/InnerCell.h"

#include <string>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtfgroups/GTextMarkedFields.h"

namespace quorvane {

void retain(InnerCell* cell) noexcept {
    ++cell->references_;
}

void release(InnerCell* cell) noexcept {
    --cell->references_;
    if (cell->references_ == 0) {
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

DocumentMemory& memoryOf(const InnerCell& cell) noexcept {
    return memoryOf(*cell.parent_.memory());
}

Ref<InnerCell> InnerCell::create(InnerRow& row) {
    void* memory = memoryOf(row).pool.allocate(sizeof(InnerCell));
    return Ref<InnerCell>(::new (memory) InnerCell(row));
}

void InnerCell::operator delete(InnerCell* cell, std::destroying_delete_t) noexcept {
    const WeakRef<InnerRow> row = cell->parent_;
    DocumentMemory& memory = memoryOf(*row.memory());
    if (cell->hasRareValues_) {
        memory.rareValues.erase(cell);
        if (memory.additions) {
            memory.additions->spans.erase(cell);
        }
    }
    // While the cell is whole: paragraphs find their memory through it.
    cell->paragraphs().clear();
    cell->~InnerCell();
    memory.pool.deallocate(cell, sizeof(InnerCell));
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

void InnerCell::mark(std::string fieldData) {
    rareValues().fieldData = std::move(fieldData);
    isMarked_ = 1;
}

bool InnerCell::isUsual(std::int32_t value) noexcept {
    return value > INT8_MIN && value <= INT8_MAX;
}

RareValues& InnerCell::rareValues() {
    RareValues& values = memoryOf(*this).rareValues[this];
    hasRareValues_ = 1;
    return values;
}

std::int32_t InnerCell::backColor() const noexcept {
    return backColor_ != unusual ? backColor_
                                 : memoryOf(*this).rareValues.find(this)->second.backColor;
}

std::int32_t InnerCell::align() const noexcept {
    return align_ != unusual ? align_ : memoryOf(*this).rareValues.find(this)->second.align;
}

void InnerCell::prepareBackColor(std::int32_t color) {
    if (!isUsual(color)) {
        rareValues();
    }
}

void InnerCell::setBackColor(std::int32_t color) {
    if (isUsual(color)) {
        backColor_ = static_cast<std::int8_t>(color);
    } else {
        rareValues().backColor = color;
        backColor_ = unusual;
    }
}

void InnerCell::setAlign(std::int32_t align) {
    if (isUsual(align)) {
        align_ = static_cast<std::int8_t>(align);
    } else {
        rareValues().align = align;
        align_ = unusual;
    }
}

void InnerCell::takeOver(InnerCell& old) {
    setBackColor(old.backColor());
    borders_ = old.borders_;
    rightEdge_ = old.rightEdge_;
    edgeSpread_ = old.edgeSpread_;
    paragraphs().takeFrom(old.paragraphs());
    if (DocumentMemory& memory = memoryOf(*this);
        memory.additions && memory.additions->spans.move(&old, this)) {
        hasRareValues_ = 1;
    }
}

void InnerCell::setBorder(BorderSide side, tBorderWidth width) {
    if (borders_[side] != width) {
        beforeChange(document());
        borders_.set(side, width);
        markChanged(document());
    }
}

CellSpan InnerCell::rareSpan() const {
    const auto& additions = memoryOf(*this).additions;
    const CellSpan* own = additions ? additions->spans.find(this) : nullptr;
    return own ? *own : CellSpan();
}

void InnerCell::setSpan(std::int32_t CellSpan::*direction, std::int32_t count) {
    if (count < 1) {
        raise(RunTimeError::InvalidProcedureCall,
              "A cell cannot span " + std::to_string(count) +
                  (direction == &CellSpan::rows ? " rows." : " columns."));
    }
    if (span().*direction == count) {
        return;
    }
    beforeChange(document());
    memoryOf(*this).makeAdditions().spans[this].*direction = count;
    hasRareValues_ = 1;
    markChanged(document());
}

void InnerCell::applyBackColor(TableDocument* document, tColorIndex color) {
    if (backColor() == color) {
        return;
    }
    setBackColor(color);
    if (isDarkColor(color)) {
        paragraphs().setForeColors(eWhite);
    }
    markChanged(document);
}

void InnerCell::renderDefinition(TableRendering& rendering, std::int32_t rightEdge) {
    TextOutput& out = rendering.out;
    out << rendering.borderText(borders_);
    if (backColor() != eNoColor || !style_.empty()) {
        if (backColor() == eNoColor) {
            applyBackColor(
                &rendering.document,
                static_cast<tColorIndex>(rendering.document.cellStyleColor(style_.view())));
        }
        out << "\\clcbpat" << backColor();
    }
    out << "\\cellx" << rightEdge;
}

void InnerCell::renderContent(TableRendering& rendering) {
    if (align() != eNoDefault) {
        paragraphs().setAligns(static_cast<tCellAlign>(align()));
    }
    if (isMarked_) {
        GTextMarkedFields::writeFieldStart(memoryOf(*this).rareValues.find(this)->second.fieldData,
                                           rendering.out);
    }
    rendering.out << "\r\n";
    paragraphs().render(rendering);
    if (isMarked_) {
        GTextMarkedFields::writeFieldEnd(rendering.out);
    }
}

}  // namespace quorvane
