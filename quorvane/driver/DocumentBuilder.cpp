#include "quorvane/driver/DocumentBuilder.h"

#include <array>
#include <bit>
#include <cstddef>
#include <optional>
#include <string>

#include "quorvane/base/text/rounding.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane {

namespace {

// Calls `visit` with each child node of that kind; nodes of another kind are passed over. Those of
// one kind stand in ascending order of their numbers.
template <class Visit>
void forEachChild(const DescriptionNode& node, NodeKind kind, Visit visit) {
    for (const DescriptionNode& child : node.children()) {
        if (NodeType(child.number) == kind) {
            visit(child);
        }
    }
}

// The key under which a node's entry is filed first.
std::string keyOf(const DescriptionNode& node) {
    return std::to_string(node.number);
}

std::int32_t number(const Leaf& leaf) {
    if (!leaf.isNumber()) {
        raise(RunTimeError::TypeMismatch);
    }
    return roundToLong(leaf.number);
}

// A name's value, or a number that is itself a value of the enumeration.
template <class Enumeration>
Enumeration namedOrNumbered(const Leaf& leaf, std::optional<Enumeration> named,
                            bool (*isValue)(double), const char* complaint) {
    if (named) {
        return *named;
    }
    if (leaf.isNumber() && isValue(leaf.number)) {
        return static_cast<Enumeration>(static_cast<std::int32_t>(leaf.number));
    }
    raise(driverError(eWrongValue, leaf.valueText() + complaint, "CRtfDriver.treWalkerSemantic"));
}

}  // namespace

template <class Apply>
void DocumentBuilder::forEachLeaf(const DescriptionNode& node, NodeKind kind, Apply apply) const {
    KeySet keys = node.keys & vocabulary_.keySetOf(kind);
    if (keys == 0) {
        return;
    }
    std::array<const Leaf*, knownKeyCount> byKey;
    for (const Leaf& leaf : node.leaves()) {
        if (leaf.key.known != DescriptionKey::Unknown) {
            byKey[static_cast<std::size_t>(leaf.key.known)] = &leaf;
        }
    }
    for (; keys != 0; keys &= keys - 1) {
        const Leaf& leaf = *byKey[static_cast<std::size_t>(std::countr_zero(keys))];
        atLine(leaf.line, [&] { apply(leaf); });
    }
}

void DocumentBuilder::build(const DescriptionNode& doc) {
    const Ref<CRtfTableRows> rows = document_.TableRows();
    // Who was told of an error may have added rows.
    std::int32_t position = rows->Count();
    addStructure(doc);
    forEachLeaf(doc, NodeKind::Doc, [this](const Leaf& leaf) { applyDocLeaf(leaf); });
    forEachChild(doc, NodeKind::Row,
                 [&](const DescriptionNode& row) { applyRow(rows->Item(++position), row); });
}

void DocumentBuilder::addStructure(const DescriptionNode& doc) {
    const Ref<CRtfTableRows> rows = document_.TableRows();
    forEachChild(doc, NodeKind::Row, [&](const DescriptionNode& row) {
        atLine(row.line, [&] { rows->AddTail(keyOf(row)); });
        const Ref<CRtfTableCells> cells = rows->PeekTail()->TableCells();
        forEachChild(row, NodeKind::Cell, [&](const DescriptionNode& cell) {
            atLine(cell.line, [&] { cells->AddTail(keyOf(cell)); });
            const Ref<CRtfParagraphs> paragraphs = cells->PeekTail()->Paragraphs();
            forEachChild(cell, NodeKind::Para, [&](const DescriptionNode& para) {
                atLine(para.line, [&] { paragraphs->AddTail(keyOf(para)); });
            });
        });
    });
}

void DocumentBuilder::applyDocLeaf(const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::PaperHeight:
            document_.setPageHeight(number(leaf));
            break;
        case DescriptionKey::PaperWidth:
            document_.setPageWidth(number(leaf));
            break;
        case DescriptionKey::PageNumberStart:
            document_.setPageNumberStart(number(leaf));
            break;
        case DescriptionKey::LeftMargin:
            document_.setLeftMargin(number(leaf));
            break;
        case DescriptionKey::RightMargin:
            document_.setRightMargin(number(leaf));
            break;
        case DescriptionKey::TopMargin:
            document_.setTopMargin(number(leaf));
            break;
        case DescriptionKey::BottomMargin:
            document_.setBottomMargin(number(leaf));
            break;
        default:
            break;
    }
}

void DocumentBuilder::applyRow(Ref<CRtfTableRow> row, const DescriptionNode& node) {
    forEachLeaf(node, NodeKind::Row, [&](const Leaf& leaf) { applyRowLeaf(row, leaf); });
    const Ref<CRtfTableCells> cells = row->TableCells();
    std::int32_t position = 0;
    forEachChild(node, NodeKind::Cell, [&](const DescriptionNode& cell) {
        applyCell(cells, cells->Item(++position), cell);
    });
}

void DocumentBuilder::applyRowLeaf(Ref<CRtfTableRow>& row, const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::RowBackColor:
            row->setBackColor(color(leaf));
            break;
        case DescriptionKey::RowKey:
            row = document_.TableRows()->refile(row, leaf.valueText());
            break;
        case DescriptionKey::RowTopBorder:
            row->setTopBorder(border(leaf));
            break;
        case DescriptionKey::RowBottomBorder:
            row->setBottomBorder(border(leaf));
            break;
        case DescriptionKey::RowLeftBorder:
            row->setLeftBorder(border(leaf));
            break;
        case DescriptionKey::RowRightBorder:
            row->setRightBorder(border(leaf));
            break;
        default:
            break;
    }
}

void DocumentBuilder::applyCell(const Ref<CRtfTableCells>& cells, Ref<CRtfTableCell> cell,
                                const DescriptionNode& node) {
    forEachLeaf(node, NodeKind::Cell, [&](const Leaf& leaf) { applyCellLeaf(cells, cell, leaf); });
    const Ref<CRtfParagraphs> paragraphs = cell->Paragraphs();
    std::int32_t position = 0;
    forEachChild(node, NodeKind::Para, [&](const DescriptionNode& para) {
        Ref<CRtfParagraph> paragraph = paragraphs->Item(++position);
        forEachLeaf(para, NodeKind::Para,
                    [&](const Leaf& leaf) { applyParaLeaf(paragraphs, paragraph, leaf); });
    });
}

void DocumentBuilder::applyCellLeaf(const Ref<CRtfTableCells>& cells, Ref<CRtfTableCell>& cell,
                                    const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::CellBackColor:
            cell->setBackColor(color(leaf));
            break;
        case DescriptionKey::CellWidth:
            cell->setWidth(ePercent, number(leaf));
            break;
        case DescriptionKey::CellTopBorder:
            cell->setTopBorder(border(leaf));
            break;
        case DescriptionKey::CellBottomBorder:
            cell->setBottomBorder(border(leaf));
            break;
        case DescriptionKey::CellLeftBorder:
            cell->setLeftBorder(border(leaf));
            break;
        case DescriptionKey::CellRightBorder:
            cell->setRightBorder(border(leaf));
            break;
        case DescriptionKey::CellAlignment:
            cell->setAlign(alignment(leaf));
            break;
        case DescriptionKey::CellStyle:
            cell->setStyle(leaf.valueText());
            break;
        case DescriptionKey::CellMarkedField:
            cell->asMarkedField(leaf.value());
            break;
        case DescriptionKey::CellKey:
            cell = cells->refile(cell, leaf.valueText());
            break;
        default:
            break;
    }
}

void DocumentBuilder::applyParaLeaf(const Ref<CRtfParagraphs>& paragraphs,
                                    Ref<CRtfParagraph>& paragraph, const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::ParaText:
            paragraph->setText(leaf.text);
            break;
        case DescriptionKey::ParaStyle:
            paragraph->setStyle(leaf.valueText());
            break;
        case DescriptionKey::ParaAlignment:
            paragraph->setAlign(alignment(leaf));
            break;
        case DescriptionKey::ParaMarkedField:
            paragraph->asMarkedField(leaf.value());
            break;
        case DescriptionKey::ParaKey:
            paragraph = paragraphs->refile(paragraph, leaf.valueText());
            break;
        default:
            break;
    }
}

tColorIndex DocumentBuilder::color(const Leaf& leaf) const {
    return namedOrNumbered(leaf, vocabulary_.colorNamed(leaf), Vocabulary::isColorNumber,
                           " isn't a recognized color.");
}

tBorderWidth DocumentBuilder::border(const Leaf& leaf) const {
    return namedOrNumbered(leaf, vocabulary_.borderNamed(leaf), Vocabulary::isBorderNumber,
                           " isn't a recognized border.");
}

tCellAlign DocumentBuilder::alignment(const Leaf& leaf) const {
    return namedOrNumbered(leaf, vocabulary_.alignmentNamed(leaf), Vocabulary::isAlignmentNumber,
                           " isn't a recognized alignment.");
}

}  // namespace quorvane
