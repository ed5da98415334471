#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The rows, cells and paragraphs that were made of nodes, each with its node, in the order of the
/// description.
struct BuiltTable {
    struct Paragraph {
        DescriptionNode* node;
        Ref<CRtfParagraph> element;
    };
    struct Cell {
        DescriptionNode* node;
        Ref<CRtfTableCell> element;
        std::size_t firstParagraph;
        std::size_t paragraphCount;
    };
    struct Row {
        DescriptionNode* node;
        Ref<CRtfTableRow> element;
        std::size_t firstCell;
        std::size_t cellCount;
    };

    std::vector<Row> rows;
    std::vector<Cell> cells;
    std::vector<Paragraph> paragraphs;

    std::span<Cell> cellsOf(const Row& row) {
        return std::span(cells).subspan(row.firstCell, row.cellCount);
    }
    std::span<Paragraph> paragraphsOf(const Cell& cell) {
        return std::span(paragraphs).subspan(cell.firstParagraph, cell.paragraphCount);
    }
};

}  // namespace quorvane
