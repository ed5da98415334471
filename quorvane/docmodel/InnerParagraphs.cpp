#include "quorvane/docmodel/InnerParagraphs.h"

#include <utility>

#include "quorvane/docmodel/InnerCell.h"

namespace quorvane {

InnerCell& InnerParagraphs::cell() const noexcept {
    return static_cast<InnerCell&>(const_cast<InnerParagraphs&>(*this));
}

void InnerParagraphs::insertNew(const List::Place& place, TableDocument&) {
    const Ref<InnerParagraph> fresh = InnerParagraph::create(cell());
    list_.insert(place, fresh);
    fresh->enterList();
}

void InnerParagraphs::removeAt(std::size_t position) noexcept {
    list_.at(position).leaveList();
    list_.removeAt(position);
}

void InnerParagraphs::takeFrom(InnerParagraphs& other) {
    list_ = std::move(other.list_);
    for (InnerParagraph* paragraph : list_) {
        paragraph->moveTo(cell());
    }
}

void InnerParagraphs::setForeColors(tColorIndex color) noexcept {
    for (InnerParagraph* paragraph : list_) {
        paragraph->fillForeColor(color);
    }
}

void InnerParagraphs::setAligns(tCellAlign align) noexcept {
    for (InnerParagraph* paragraph : list_) {
        paragraph->fillAlign(align);
    }
}

void InnerParagraphs::render(TableRendering& rendering) const {
    std::size_t position = 0;
    for (const InnerParagraph* paragraph : list_) {
        rendering.out << "\r\n";
        paragraph->render(rendering, ++position);
    }
}

}  // namespace quorvane
