#include "quorvane/docmodel/InnerRow.h"

#include <string_view>

namespace quorvane {

namespace {

constexpr std::string_view rowBegin = "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0";
constexpr std::string_view rowEnd = "\\row}";

}  // namespace

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
    DocumentMemory& memory = document.memory()->memory();
    if (memory.additions) {
        memory.additions->rows.erase(row);
    }
    row->~InnerRow();
    memory.pool.deallocate(row, sizeof(InnerRow));
}

// The parent stays: by way of it cells that are still held find the memory they are in.
void InnerRow::releaseContents() noexcept {
    cells().clear();
}

void InnerRow::takeOver(InnerRow& old) {
    backColor_ = old.backColor_;
    borders_ = old.borders_;
    if (DocumentMemory& memory = memoryOf(*this); memory.additions) {
        memory.additions->rows.move(&old, this);
    }
    cells().takeFrom(old.cells());
}

void InnerRow::passOn(InnerCell& cell) const {
    cell.takeBorders(borders_);
    cell.applyBackColor(parent_.get(), static_cast<tColorIndex>(backColor_));
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

const RowSettings& InnerRow::settings() const noexcept {
    static const RowSettings none;
    const auto& additions = memoryOf(*this).additions;
    const RowSettings* own = additions ? additions->rows.find(this) : nullptr;
    return own ? *own : none;
}

void InnerRow::render(TableRendering& rendering) {
    rendering.out << rowBegin;
    cells().render(rendering);
    rendering.out << rowEnd;
}

void InnerRow::render(TableRendering& rendering, const RowSettings& own,
                      std::span<const PlacedCell> places, HeadingForm form) {
    TextOutput& out = rendering.out;
    out << rowBegin;
    if (own.repeatsAsHeading && form == HeadingForm::RowProperty) {
        out << "\\trhdr";
    }
    if (own.keepsTogether) {
        out << "\\trkeep";
    }
    if (own.keepsWithNext) {
        out << "\\trkeepfollow";
    }
    rendering.keepsWithNext = own.keepsWithNext;
    cells().render(rendering, places);
    rendering.keepsWithNext = false;
    out << rowEnd;
}

}  // namespace quorvane
