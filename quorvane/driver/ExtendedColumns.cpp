#include "quorvane/driver/ExtendedColumns.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/driver/soundLeaf.h"

namespace quorvane {

namespace {

bool hasSpan(const BuiltTable::Cell& cell) {
    constexpr KeySet spans = setOf({DescriptionKey::Span, DescriptionKey::Vspan});
    return (cell.node->keys & spans) != 0;
}

}  // namespace

std::vector<std::int32_t> ExtendedColumns::columnsOf(const Leaf& leaf) const {
    const std::vector<ColumnWidth> widths = columnWidths(leaf.text);
    return columnLayout({widths.begin(), widths.end()}, columnSpaceOf(document_));
}

void ExtendedColumns::applyWidths(BuiltTable::Row& row, std::span<const BuiltTable::Cell> cells) {
    widths_.assign(cells.size(), std::nullopt);
    Leaf* first = nullptr;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (Leaf* const leaf = soundLeaf(*cells[i].node, DescriptionKey::CellWidth)) {
            first = first ? first : leaf;
            apply_(*leaf, [&](const Leaf&) { widths_[i] = widthOf(row, cells[i], *leaf); });
        }
    }
    if (first) {
        apply_(*first, [&](const Leaf&) { setWidths(row, cells); });
    }
}

/// Where cells span others, those of a row are not its columns: the layout finds that they do not
/// fit.
void ExtendedColumns::setWidths(BuiltTable::Row& row, std::span<const BuiltTable::Cell> cells) {
    if (widths_ != knownWidths_) {
        knownTwips_ = columnLayout(widths_, columnSpaceOf(document_));
        knownWidths_ = widths_;
    }
    if (inner(document_).hasSpans() || std::any_of(cells.begin(), cells.end(), hasSpan)) {
        row.element->setColumnWidths(knownTwips_);
    } else {
        inner(*row.element).cells().setWidths(knownTwips_);
    }
}

ColumnWidth ExtendedColumns::widthOf(const BuiltTable::Row& row, const BuiltTable::Cell& cell,
                                     const Leaf& leaf) const {
    if (!document_.ColumnWidths().empty() || contains(row.node->keys, DescriptionKey::Columns)) {
        throw LeafError(DriverFault::WrongValue,
                        "The columns give the cell its width; remove cell-width, or columns");
    }
    if (hasSpan(cell)) {
        throw LeafError(DriverFault::WrongValue,
                        "A cell that spans others has their width; give the widths with columns");
    }
    return columnWidth(leaf.text);
}

}  // namespace quorvane
