#include "quorvane/docmodel/InnerCells.h"

#include <algorithm>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/layout/evenWidth.h"
#include "quorvane/docmodel/measures.h"

namespace quorvane {

namespace {

std::int32_t twipsOf(const TableDocument& document, std::int32_t percent) {
    return quotient(product(document.TextAreaWidth(), percent), 100);
}

std::int32_t percentOf(const TableDocument& document, std::int32_t twips) {
    return quotient(product(twips, 100), document.TextAreaWidth());
}

}  // namespace

InnerRow& InnerCells::row() const noexcept {
    return static_cast<InnerRow&>(const_cast<InnerCells&>(*this));
}

TableDocument* InnerCells::document() const noexcept {
    return isAlive(&row()) ? documentOf(row()) : nullptr;
}

void InnerCells::spreadEvenly() {
    TableDocument& owner = changing(document());
    spread(evenWidth(owner, static_cast<std::int64_t>(list_.count())));
    owner.markChanged();
}

std::int32_t InnerCells::indexOf(const CRtfTableCell* cell) const {
    if (!cell) {
        raise(RunTimeError::ObjectNotSet, "The Cell object is set to Nothing");
    }
    return static_cast<std::int32_t>(list_.requiredPositionOf(inner(*cell)));
}

void InnerCells::insertNew(const List::Place& place, TableDocument& document) {
    const std::int32_t uniformWidth =
        evenWidth(document, static_cast<std::int64_t>(list_.count()) + 1);
    list_.insert(place, InnerCell::create(row()));
    spread(uniformWidth);
}

void InnerCells::removeAt(std::size_t position) noexcept {
    if (position == 1) {
        list_.removeAt(1);
        ++removedHeads_;
        return;
    }
    if (position < list_.count()) {
        writeEdges();
    }
    const std::int32_t freedEdge = rightEdge(position);
    list_.removeAt(position);
    if (list_.count() != 1) {
        setRightEdge(position - 1, freedEdge);
    }
}

void InnerCells::takeFrom(InnerCells& other) {
    list_ = std::move(other.list_);
    uniformWidth_ = other.uniformWidth_;
    removedHeads_ = other.removedHeads_;
    spread_ = other.spread_;
    cellsHaveEdges_ = other.cellsHaveEdges_;
    for (InnerCell* cell : list_) {
        cell->setParent(row());
    }
}

void InnerCells::spread(std::int32_t uniformWidth) noexcept {
    uniformWidth_ = uniformWidth;
    removedHeads_ = 0;
    if (std::exchange(cellsHaveEdges_, false) && ++spread_ == 0) {
        spread_ = 1;
        for (InnerCell* cell : list_) {
            cell->edgeSpread_ = 0;
        }
    }
}

std::int32_t InnerCells::rightEdge(std::size_t position) const noexcept {
    const InnerCell& cell = list_.at(position);
    if (cell.edgeSpread_ == spread_) {
        return cell.rightEdge_;
    }
    return uniformWidth_ * (static_cast<std::int32_t>(position) + removedHeads_);
}

void InnerCells::setRightEdge(std::size_t position, std::int32_t edge) noexcept {
    InnerCell& cell = list_.at(position);
    cell.rightEdge_ = edge;
    cell.edgeSpread_ = spread_;
    cellsHaveEdges_ = true;
}

// For when positions are about to change that edges follow from.
void InnerCells::writeEdges() noexcept {
    if (uniformWidth_ != 0) {
        for (std::size_t position = 1; position <= list_.count(); ++position) {
            setRightEdge(position, rightEdge(position));
        }
        uniformWidth_ = 0;
    }
}

std::int32_t InnerCells::width(std::size_t position) const {
    return position == 1 ? rightEdge(1) : difference(rightEdge(position), rightEdge(position - 1));
}

std::int32_t InnerCells::widthOf(const InnerCell& cell, tWidthUnit units) const {
    const std::int32_t twips = width(static_cast<std::size_t>(indexOf(&cell)));
    return units == eTwips ? twips : percentOf(required(document()), twips);
}

void InnerCells::setWidthOf(const InnerCell& cell, tWidthUnit units, std::int32_t value) {
    TableDocument& owner = required(document());
    const std::int32_t twips = units == ePercent ? twipsOf(owner, value) : value;
    const auto position = static_cast<std::size_t>(indexOf(&cell));
    const std::size_t count = list_.count();
    std::int32_t edge = position == 1 ? twips : sum(rightEdge(position - 1), twips);
    std::int32_t lower = smallestWidth;
    std::int32_t upper = 0;
    std::size_t changed = position;
    if (count == 1) {
        upper = owner.TextAreaWidth();
    } else if (position < count) {
        lower = sum(difference(rightEdge(position), width(position)), smallestWidth);
        upper = difference(rightEdge(position + 1), smallestWidth);
    } else {
        changed = position - 1;
        edge = difference(rightEdge(position), twips);
        lower = sum(difference(rightEdge(changed), width(changed)), smallestWidth);
        upper = difference(rightEdge(position), smallestWidth);
    }
    if (edge > upper) {
        edge = upper;
    } else if (edge < lower) {
        edge = lower;
    }
    owner.beforeChange();
    setRightEdge(changed, edge);
    owner.markChanged();
}

void InnerCells::setWidths(std::span<const std::int32_t> twips) {
    TableDocument& owner = changing(document());
    const std::size_t count = std::min(twips.size(), list_.count());
    std::int32_t edge = 0;
    for (std::size_t i = 0; i < count; ++i) {
        edge += twips[i];
        setRightEdge(i + 1, edge);
    }
    owner.markChanged();
}

void InnerCells::render(TableRendering& rendering) {
    std::size_t position = 0;
    for (InnerCell* cell : list_) {
        rendering.out << " ";
        cell->renderDefinition(rendering, rightEdge(++position));
    }
    for (InnerCell* cell : list_) {
        rendering.out << " ";
        cell->renderContent(rendering);
        rendering.out << "\\cell";
    }
}

void InnerCells::render(TableRendering& rendering, std::span<const PlacedCell> places) {
    TextOutput& out = rendering.out;
    for (const PlacedCell& place : places) {
        out << " " << place.word();
        place.cell->renderDefinition(rendering, place.rightEdge);
    }
    if (rendering.keepsWithNext) {
        // For the cells without text, which have no paragraph to say so.
        out << " \\pard\\plain\\intbl\\keepn";
    }
    for (const PlacedCell& place : places) {
        out << " ";
        if (place.part == PlacedCell::Part::Covered) {
            out << "\\pard\\plain\\intbl" << (rendering.keepsWithNext ? "\\keepn" : "");
        } else {
            place.cell->renderContent(rendering);
        }
        out << "\\cell";
    }
}

}  // namespace quorvane
