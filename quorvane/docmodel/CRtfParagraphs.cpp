#include "quorvane/docmodel/CRtfParagraphs.h"

#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/currentError.h"

namespace quorvane {

std::int32_t CRtfParagraphs::indexOf(const CRtfParagraph* paragraph) const {
    clearCurrentError();
    if (!paragraph) {
        raise(RtfError(static_cast<std::int32_t>(RunTimeError::ObjectNotSet),
                       "The paragraph object is set to Nothing"));
    }
    return static_cast<std::int32_t>(list_.requiredPositionOf(*paragraph));
}

Ref<CRtfParagraph> CRtfParagraphs::refile(const Ref<CRtfParagraph>& old, std::string_view key) {
    clearCurrentError();
    TableDocument& owner = required(document());
    const std::size_t position = list_.requiredPositionOf(*old);
    Ref<CRtfParagraph> fresh = CRtfParagraph::create(cell_);
    fresh->takeOver(*old);
    list_.replaceAt(position, fresh, key);
    old->leaveList();
    fresh->enterList();
    owner.markChanged();
    return fresh;
}

void CRtfParagraphs::insertNew(const List::Place& place, TableDocument&) {
    const Ref<CRtfParagraph> fresh = CRtfParagraph::create(cell_);
    list_.insert(place, fresh);
    fresh->enterList();
}

void CRtfParagraphs::removeAt(std::size_t position) noexcept {
    list_.at(position).leaveList();
    list_.removeAt(position);
}

void CRtfParagraphs::takeFrom(CRtfParagraphs& other) {
    list_ = std::move(other.list_);
    for (CRtfParagraph* paragraph : list_) {
        paragraph->moveTo(cell_);
    }
}

void CRtfParagraphs::setForeColors(tColorIndex color) noexcept {
    for (CRtfParagraph* paragraph : list_) {
        paragraph->foreColor_ = color;
    }
}

void CRtfParagraphs::setAligns(tCellAlign align) noexcept {
    for (CRtfParagraph* paragraph : list_) {
        paragraph->align_ = align;
    }
}

void CRtfParagraphs::render(TableRendering& rendering) const {
    std::size_t position = 0;
    for (const CRtfParagraph* paragraph : list_) {
        rendering.out << "\r\n";
        paragraph->render(rendering, ++position);
    }
}

}  // namespace quorvane
