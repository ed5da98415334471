#include "quorvane/driver/ExtendedColumns.h"

#include <cstddef>
#include <optional>

#include "quorvane/driver/soundLeaf.h"

namespace quorvane {

std::vector<std::int32_t> ExtendedColumns::columnsOf(const Leaf& leaf) const {
    const std::vector<ColumnWidth> widths = columnWidths(leaf.text);
    return columnLayout({widths.begin(), widths.end()}, space());
}

ColumnSpace ExtendedColumns::space() const {
    return {document_.TextAreaWidth(), document_.PageWidth() - document_.LeftMargin()};
}

void ExtendedColumns::applyWidths(BuiltTable::Row& row, std::span<const BuiltTable::Cell> cells) {
    std::vector<std::optional<ColumnWidth>> widths(cells.size());
    Leaf* first = nullptr;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (Leaf* const leaf = soundLeaf(*cells[i].node, DescriptionKey::CellWidth)) {
            first = first ? first : leaf;
            apply_(*leaf, [&](const Leaf&) { widths[i] = widthOf(row, cells[i], *leaf); });
        }
    }
    if (first) {
        apply_(*first,
               [&](const Leaf&) { row.element->setColumnWidths(columnLayout(widths, space())); });
    }
}

ColumnWidth ExtendedColumns::widthOf(const BuiltTable::Row& row, const BuiltTable::Cell& cell,
                                     const Leaf& leaf) const {
    constexpr KeySet spans = setOf({DescriptionKey::Span, DescriptionKey::Vspan});
    if (!document_.ColumnWidths().empty() || contains(row.node->keys, DescriptionKey::Columns)) {
        throw LeafError(DriverFault::WrongValue,
                        "The columns give the cell its width; remove cell-width, or columns");
    }
    if ((cell.node->keys & spans) != 0) {
        throw LeafError(DriverFault::WrongValue,
                        "A cell that spans others has their width; give the widths with columns");
    }
    return columnWidth(leaf.text);
}

}  // namespace quorvane
