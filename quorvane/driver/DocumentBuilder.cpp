#include "quorvane/driver/DocumentBuilder.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "quorvane/driver/driverErrors.h"
#include "quorvane/support/RtfError.h"
#include "quorvane/support/rounding.h"

namespace quorvane {

namespace {

struct Child {
    // The node's number as text: the key under which its entry is filed first.
    std::string key;
    const DescriptionNode* node;
};

// The child nodes of a kind in ascending order of their numbers; nodes of another kind are passed
// over.
std::vector<Child> childrenOf(const DescriptionNode& node, NodeKind kind) {
    std::vector<DescriptionNode::NumberedChild> numbered = node.children();
    const auto isBefore = [](const auto& a, const auto& b) { return a.number < b.number; };
    std::sort(numbered.begin(), numbered.end(), isBefore);
    std::vector<Child> children;
    children.reserve(numbered.size());
    for (const auto& [number, child] : numbered) {
        if (NodeType(number) == kind) {
            children.push_back({std::to_string(number), child});
        }
    }
    return children;
}

std::int32_t number(const Leaf& leaf) {
    if (!leaf.value.isNumber()) {
        raise(RunTimeError::TypeMismatch);
    }
    return roundToLong(leaf.value.number());
}

bool isValueOf(std::int32_t number, tColorIndex) {
    return number >= eNoColor && number <= eRedBrick;
}

bool isValueOf(std::int32_t number, tBorderWidth) {
    return number == eNone || number == eHair || number == eThin || number == eNormal ||
           number == eThick;
}

bool isValueOf(std::int32_t number, tCellAlign) {
    return number >= eNoDefault && number <= eJustified;
}

// A name's value, or a number that is itself a value of the enumeration.
template <class Enumeration>
Enumeration namedOrNumbered(const Leaf& leaf, std::optional<Enumeration> named,
                            const char* complaint) {
    if (named) {
        return *named;
    }
    if (leaf.value.isNumber() && std::abs(leaf.value.number()) < 1000) {
        const auto whole = static_cast<std::int32_t>(leaf.value.number());
        if (leaf.value == Value(whole) && isValueOf(whole, Enumeration{})) {
            return static_cast<Enumeration>(whole);
        }
    }
    raise(driverError(eWrongValue, valueText(leaf.value) + complaint));
}

}  // namespace

template <class Apply>
void DocumentBuilder::forEachLeaf(const DescriptionNode& node, NodeKind kind, Apply apply) const {
    std::vector<DescriptionNode::NamedLeaf> leaves = node.leaves();
    std::erase_if(leaves,
                  [&](const auto& named) { return !vocabulary_.isKeyOf(kind, *named.key); });
    std::sort(leaves.begin(), leaves.end(),
              [](const auto& a, const auto& b) { return a.key->text() < b.key->text(); });
    for (const auto& [key, leaf] : leaves) {
        atLine(leaf->line, [&, key = key, leaf = leaf] { apply(key->text(), *leaf); });
    }
}

void DocumentBuilder::build(const DescriptionNode& doc) {
    addStructure(doc);
    forEachLeaf(doc, NodeKind::Doc,
                [this](const std::string& key, const Leaf& leaf) { applyDocLeaf(key, leaf); });
    const Ref<CRtfTableRows> rows = document_.TableRows();
    for (const Child& row : childrenOf(doc, NodeKind::Row)) {
        applyRow(rows->Item(row.key), *row.node);
    }
}

void DocumentBuilder::addStructure(const DescriptionNode& doc) {
    const Ref<CRtfTableRows> rows = document_.TableRows();
    for (const Child& row : childrenOf(doc, NodeKind::Row)) {
        atLine(row.node->line(), [&] { rows->AddTail(row.key); });
        const Ref<CRtfTableCells> cells = rows->PeekTail()->TableCells();
        for (const Child& cell : childrenOf(*row.node, NodeKind::Cell)) {
            atLine(cell.node->line(), [&] { cells->AddTail(cell.key); });
            const Ref<CRtfParagraphs> paragraphs = cells->PeekTail()->Paragraphs();
            for (const Child& para : childrenOf(*cell.node, NodeKind::Para)) {
                atLine(para.node->line(), [&] { paragraphs->AddTail(para.key); });
            }
        }
    }
}

void DocumentBuilder::applyDocLeaf(const std::string& key, const Leaf& leaf) {
    if (key == "paper-height") {
        document_.setPageHeight(number(leaf));
    } else if (key == "paper-width") {
        document_.setPageWidth(number(leaf));
    } else if (key == "page-number-start") {
        document_.setPageNumberStart(number(leaf));
    } else if (key == "left-margin") {
        document_.setLeftMargin(number(leaf));
    } else if (key == "right-margin") {
        document_.setRightMargin(number(leaf));
    } else if (key == "top-margin") {
        document_.setTopMargin(number(leaf));
    } else if (key == "bottom-margin") {
        document_.setBottomMargin(number(leaf));
    }
}

void DocumentBuilder::applyRow(Ref<CRtfTableRow> row, const DescriptionNode& node) {
    forEachLeaf(node, NodeKind::Row,
                [&](const std::string& key, const Leaf& leaf) { applyRowLeaf(row, key, leaf); });
    const Ref<CRtfTableCells> cells = row->TableCells();
    for (const Child& cell : childrenOf(node, NodeKind::Cell)) {
        applyCell(cells, cells->Item(cell.key), *cell.node);
    }
}

void DocumentBuilder::applyRowLeaf(Ref<CRtfTableRow>& row, const std::string& key,
                                   const Leaf& leaf) {
    if (key == "row-backcolor") {
        row->setBackColor(color(leaf));
    } else if (key == "row-key") {
        row = document_.TableRows()->refile(row, valueText(leaf.value));
    } else if (key == "row-top-border") {
        row->setTopBorder(border(leaf));
    } else if (key == "row-bottom-border") {
        row->setBottomBorder(border(leaf));
    } else if (key == "row-left-border") {
        row->setLeftBorder(border(leaf));
    } else if (key == "row-right-border") {
        row->setRightBorder(border(leaf));
    }
}

void DocumentBuilder::applyCell(const Ref<CRtfTableCells>& cells, Ref<CRtfTableCell> cell,
                                const DescriptionNode& node) {
    forEachLeaf(node, NodeKind::Cell, [&](const std::string& key, const Leaf& leaf) {
        applyCellLeaf(cells, cell, key, leaf);
    });
    const Ref<CRtfParagraphs> paragraphs = cell->Paragraphs();
    for (const Child& para : childrenOf(node, NodeKind::Para)) {
        Ref<CRtfParagraph> paragraph = paragraphs->Item(para.key);
        forEachLeaf(*para.node, NodeKind::Para, [&](const std::string& key, const Leaf& leaf) {
            applyParaLeaf(paragraphs, paragraph, key, leaf);
        });
    }
}

void DocumentBuilder::applyCellLeaf(const Ref<CRtfTableCells>& cells, Ref<CRtfTableCell>& cell,
                                    const std::string& key, const Leaf& leaf) {
    if (key == "cell-backcolor") {
        cell->setBackColor(color(leaf));
    } else if (key == "cell-width") {
        cell->setWidth(ePercent, number(leaf));
    } else if (key == "cell-top-border") {
        cell->setTopBorder(border(leaf));
    } else if (key == "cell-bottom-border") {
        cell->setBottomBorder(border(leaf));
    } else if (key == "cell-left-border") {
        cell->setLeftBorder(border(leaf));
    } else if (key == "cell-right-border") {
        cell->setRightBorder(border(leaf));
    } else if (key == "cell-alignment") {
        cell->setAlign(alignment(leaf));
    } else if (key == "cell-style") {
        cell->setStyle(valueText(leaf.value));
    } else if (key == "cell-marked-field") {
        cell->asMarkedField(leaf.value);
    } else if (key == "cell-key") {
        cell = cells->refile(cell, valueText(leaf.value));
    }
}

void DocumentBuilder::applyParaLeaf(const Ref<CRtfParagraphs>& paragraphs,
                                    Ref<CRtfParagraph>& paragraph, const std::string& key,
                                    const Leaf& leaf) {
    if (key == "para-text") {
        paragraph->setText(leaf.text);
    } else if (key == "para-style") {
        paragraph->setStyle(valueText(leaf.value));
    } else if (key == "para-alignment") {
        paragraph->setAlign(alignment(leaf));
    } else if (key == "para-marked-field") {
        paragraph->asMarkedField(leaf.value);
    } else if (key == "para-key") {
        paragraph = paragraphs->refile(paragraph, valueText(leaf.value));
    }
}

tColorIndex DocumentBuilder::color(const Leaf& leaf) const {
    return namedOrNumbered(leaf, vocabulary_.colorNamed(leaf.value), " isn't a recognized color.");
}

tBorderWidth DocumentBuilder::border(const Leaf& leaf) const {
    return namedOrNumbered(leaf, vocabulary_.borderNamed(leaf.value),
                           " isn't a recognized border.");
}

tCellAlign DocumentBuilder::alignment(const Leaf& leaf) const {
    return namedOrNumbered(leaf, vocabulary_.alignmentNamed(leaf.value),
                           " isn't a recognized alignment.");
}

}  // namespace quorvane
