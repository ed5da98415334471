#include "quorvane/diagnostics/description/descriptionWarnings.h"

#include <span>
#include <string>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/CellWarnings.h"
#include "quorvane/diagnostics/description/LeafWarnings.h"
#include "quorvane/diagnostics/description/PageWarnings.h"
#include "quorvane/diagnostics/description/StyleUses.h"
#include "quorvane/diagnostics/description/WidthWarnings.h"
#include "quorvane/docmodel/layout/PageLines.h"
#include "quorvane/driver/soundLeaf.h"

namespace quorvane {

namespace {

constexpr std::size_t maxCells = 63;

void findInTable(const DescriptionNode& doc, const CRtfDoc& document, BuiltTable& table,
                 const KnownStyles* styles, const SourceText& source, DiagnosticEngine& engine) {
    PageWarnings page(source, engine);
    page.findInDocument(doc, document);
    WidthWarnings widthWarnings(page, source, engine);
    CellWarnings cellWarnings(styles, source, engine);
    for (const BuiltTable::Row& row : table.rows) {
        const std::span<const BuiltTable::Cell> cells = table.cellsOf(row);
        if (cells.size() > maxCells) {
            engine.report(DiagnosticId::TooManyCells, source.placeOf(row.node->opener),
                          {std::to_string(cells.size())});
        }
        widthWarnings.findInRow(doc, *row.node, cells, document);
        for (const BuiltTable::Cell& cell : cells) {
            cellWarnings.findInCell(cell, table.paragraphsOf(cell), document,
                                    &cell == &cells.back());
        }
    }
}

}  // namespace

void findDescriptionWarnings(const DescriptionNode& doc, CRtfDoc& document, BuiltTable& table,
                             KnownStyles* styles, const SourceText& source,
                             DiagnosticEngine& engine) {
    LeafWarnings leafWarnings(styles, source, engine);
    forEachNode(doc, [&](const DescriptionNode& node) { leafWarnings.findInLeaves(node); });
    try {
        findInTable(doc, document, table, styles, source, engine);
    } catch (const RtfError&) {
        // A page of extreme measures has no widths to compare with.
    }
}

void findLiteralTextWarnings(const DescriptionNode& doc, StyleUses& uses) {
    for (const auto& [key, style] : {std::pair(DescriptionKey::Header, headerStyle),
                                     std::pair(DescriptionKey::Footer, footerStyle)}) {
        if (contains(doc.keys, key)) {
            uses.markUsed(StyleKind::Paragraph, style);
        }
    }
    forEachNode(doc, [&](const DescriptionNode& node) {
        if (const Leaf* const style = soundLeaf(node, DescriptionKey::CellStyle)) {
            uses.findCellStyle(*style);
        }
        if (const Leaf* const style = soundLeaf(node, DescriptionKey::ParaStyle)) {
            uses.findParagraphStyle(*style);
        }
        if (const Leaf* const text = soundLeaf(node, DescriptionKey::ParaText)) {
            uses.findLiteralInlineStyles(*text);
        }
    });
}

}  // namespace quorvane
