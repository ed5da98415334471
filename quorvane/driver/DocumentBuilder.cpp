#include "quorvane/driver/DocumentBuilder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <optional>
#include <string_view>

#include "quorvane/base/text/rounding.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/InnerCells.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/InnerParagraphs.h"
#include "quorvane/docmodel/InnerRows.h"
#include "quorvane/docmodel/layout/LayoutError.h"
#include "quorvane/docmodel/tableCollectionChanges.h"
#include "quorvane/driver/DescriptionRules.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/driver/extendedPage.h"
#include "quorvane/driver/extendedValues.h"
#include "quorvane/driver/soundLeaf.h"
#include "quorvane/driver/unencodableCharacter.h"
#include "quorvane/driver/withoutFullStop.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane {

namespace {

// Calls `visit` with each child node of that kind that can be built; others are passed over. Those
// of one kind stand in ascending order of their numbers.
template <class Visit>
void forEachChild(DescriptionNode& node, NodeKind kind, Visit visit) {
    for (DescriptionNode& child : node.children()) {
        if (child.kind == kind && !child.isFaulty) {
            visit(child);
        }
    }
}

// The element that is added for a node, under the node's number as its key.
template <class Collection>
auto& added(Collection& collection, const DescriptionNode& node) {
    return atLine(
        node.line, [&]() -> auto& { return addNumbered(inner(collection), node.number); });
}

std::int32_t number(const Leaf& leaf) {
    if (!leaf.isNumber()) {
        raise(RunTimeError::TypeMismatch);
    }
    return roundToLong(leaf.number);
}

template <class Enumeration>
Enumeration required(std::optional<Enumeration> value, const Leaf& leaf) {
    if (!value) {
        throw LeafError(wrongNameFault(leaf.key.known), leaf.valueText());
    }
    return *value;
}

/// A host that is shown an absorbed error may remove elements that are not finished.
template <class Collection>
void requirePosition(const Collection& collection, std::int32_t position) {
    if (position > collection.Count()) {
        raise(RunTimeError::InvalidProcedureCall);
    }
}

}  // namespace

template <class Apply>
void DocumentBuilder::forEachLeaf(DescriptionNode& node, NodeKind kind, Apply apply) {
    KeySet keys = node.keys & dialect_.vocabulary.keySetOf(kind);
    if (keys == 0) {
        return;
    }
    std::array<Leaf*, knownKeyCount> byKey;
    for (Leaf& leaf : node.leaves()) {
        if (leaf.key.known != DescriptionKey::Unknown) {
            byKey[static_cast<std::size_t>(leaf.key.known)] = &leaf;
        }
    }
    for (; keys != 0; keys &= keys - 1) {
        Leaf& leaf = *byKey[static_cast<std::size_t>(std::countr_zero(keys))];
        if (!leaf.isFaulty && isEncodable(leaf)) {
            apply_(leaf, apply);
        }
    }
}

/// Reports a character where there can be none beyond Windows-1252.
bool DocumentBuilder::isEncodable(Leaf& leaf) {
    constexpr KeySet data =
        setOf({DescriptionKey::CellMarkedField, DescriptionKey::ParaMarkedField});
    // A literal text can hold any character, and a name is only looked up.
    const bool isFree = dialect_.texts.isLiteral && !contains(data, leaf.key.known);
    if (!dialect_.texts.writesUnicode || isFree) {
        return true;
    }
    const std::optional<std::string_view> character = findUnencodableCharacter(leaf);
    if (!character) {
        return true;
    }
    apply_.report({.fault = DriverFault::Unencodable,
                   .error = driverError(DriverFault::Unencodable, *character, leaf.line),
                   .part = *character,
                   .leaf = &leaf});
    return false;
}

BuiltTable DocumentBuilder::build(DescriptionNode& doc) {
    if (dialect_.values.pageComesFirst) {
        applyDocument(doc);
    }
    const Ref<CRtfTableRows> rows = document_.TableRows();
    // The handler of an error may have added rows.
    std::int32_t position = rows->Count();
    addRows(doc);
    if (!dialect_.values.pageComesFirst) {
        applyDocument(doc);
    }
    for (BuiltTable::Row& row : table_.rows) {
        requirePosition(*rows, ++position);
        applyRow(row);
    }
    if (dialect_.values.areExtended && checksLayout_ && !apply_.hasFaults()) {
        checkLayout();
    }
    return std::move(table_);
}

/// Reports where spans, columns and headings do not fit together.
void DocumentBuilder::checkLayout() {
    try {
        inner(document_).checkLayout();
    } catch (const LayoutError& error) {
        const std::size_t index = std::min(error.row, table_.rows.size());
        if (index == 0) {
            throw;
        }
        DescriptionNode& node = *table_.rows[index - 1].node;
        apply_.report({.fault = DriverFault::WrongPlace,
                       .error = driverError(DriverFault::WrongPlace,
                                            withoutFullStop(error.description), node.line),
                       .part = node.opener,
                       .node = &node,
                       .kind = NodeKind::Row});
    }
}

void DocumentBuilder::applyDocument(DescriptionNode& doc) {
    if (dialect_.page) {
        document_.setPageWidth(dialect_.page->width);
        document_.setPageHeight(dialect_.page->height);
        document_.setPageNumberStart(dialect_.page->firstNumber);
    }
    if (dialect_.values.areExtended) {
        applyExtendedPage(doc);
        return;
    }
    forEachLeaf(doc, NodeKind::Doc, [this](const Leaf& leaf) { applyDocLeaf(leaf); });
}

/// The size of the page first, on which the margins depend, then the columns of the text area.
void DocumentBuilder::applyExtendedPage(DescriptionNode& doc) {
    using enum DescriptionKey;
    constexpr KeySet size = setOf({Page, PaperHeight, PaperWidth});
    document_.setEndsInSmallParagraph(true);
    clearMargins(document_, doc);
    forEachLeaf(doc, NodeKind::Doc, [&](const Leaf& leaf) {
        if (contains(size, leaf.key.known)) {
            applyDocLeaf(leaf);
        }
    });
    forEachLeaf(doc, NodeKind::Doc, [&](const Leaf& leaf) {
        if (!contains(size, leaf.key.known)) {
            applyDocLeaf(leaf);
        }
    });
    if (!hasTextArea(document_)) {
        apply_.report({.fault = DriverFault::WrongValue,
                       .error = driverError(
                           DriverFault::WrongValue,
                           "The margins leave no room on the page; make them smaller", doc.line),
                       .part = doc.opener,
                       .node = &doc});
        return;
    }
    if (Leaf* const columns = soundLeaf(doc, DescriptionKey::Columns)) {
        apply_(*columns,
               [this](const Leaf& leaf) { document_.setColumnWidths(columns_.columnsOf(leaf)); });
    }
}

void DocumentBuilder::addRows(DescriptionNode& doc) {
    const Ref<CRtfTableRows> rows = document_.TableRows();
    forEachChild(doc, NodeKind::Row, [&](DescriptionNode& node) {
        CRtfTableRow& row = added(*rows, node);
        table_.rows.push_back({&node, Ref<CRtfTableRow>(&row), table_.cells.size(), 0});
        addCells(table_.rows.back());
    });
}

void DocumentBuilder::addCells(BuiltTable::Row& row) {
    const Ref<CRtfTableCells> cells = row.element->TableCells();
    forEachChild(*row.node, NodeKind::Cell, [&](DescriptionNode& node) {
        CRtfTableCell& cell = added(*cells, node);
        ++row.cellCount;
        table_.cells.push_back({&node, Ref<CRtfTableCell>(&cell), table_.paragraphs.size(), 0});
        addParagraphs(table_.cells.back());
    });
}

void DocumentBuilder::addParagraphs(BuiltTable::Cell& cell) {
    const Ref<CRtfParagraphs> paragraphs = cell.element->Paragraphs();
    forEachChild(*cell.node, NodeKind::Para, [&](DescriptionNode& node) {
        CRtfParagraph& paragraph = added(*paragraphs, node);
        ++cell.paragraphCount;
        table_.paragraphs.push_back({&node, Ref<CRtfParagraph>(&paragraph)});
    });
}

void DocumentBuilder::applyDocLeaf(const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::PaperHeight:
            document_.setPageHeight(length(leaf));
            break;
        case DescriptionKey::PaperWidth:
            document_.setPageWidth(length(leaf));
            break;
        case DescriptionKey::PageNumberStart:
            document_.setPageNumberStart(pageNumber(leaf));
            break;
        case DescriptionKey::LeftMargin:
            setMargin(leaf, &CRtfDoc::setLeftMargin, &CRtfDoc::LeftMargin);
            break;
        case DescriptionKey::RightMargin:
            setMargin(leaf, &CRtfDoc::setRightMargin, &CRtfDoc::RightMargin);
            break;
        case DescriptionKey::TopMargin:
            setMargin(leaf, &CRtfDoc::setTopMargin, &CRtfDoc::TopMargin);
            break;
        case DescriptionKey::BottomMargin:
            setMargin(leaf, &CRtfDoc::setBottomMargin, &CRtfDoc::BottomMargin);
            break;
        default:
            applyPageLeaf(document_, leaf);
            break;
    }
}

/// What a margin becomes that does not fit the page is another one, which would surprise.
void DocumentBuilder::setMargin(const Leaf& leaf, void (CRtfDoc::*set)(std::int32_t),
                                std::int32_t (CRtfDoc::*get)() const) {
    const std::int32_t twips =
        dialect_.values.areExtended ? std::max(1, lengthFrom(0, leaf.text)) : number(leaf);
    (document_.*set)(twips);
    if (dialect_.values.areExtended && (document_.*get)() != twips) {
        throw LeafError(
            DriverFault::WrongValue,
            "\"" + std::string(leaf.text) + "\" leaves no room between the margins; write less");
    }
}

std::int32_t DocumentBuilder::length(const Leaf& leaf) const {
    return dialect_.values.areExtended ? lengthFrom(1, leaf.text) : number(leaf);
}

std::int32_t DocumentBuilder::pageNumber(const Leaf& leaf) const {
    return dialect_.values.areExtended ? wholeNumber(leaf.text, 1, lastPageNumber) : number(leaf);
}

template <class Collection, class Built>
void DocumentBuilder::refile(Collection& collection, Built& built, std::span<Built> siblings,
                             const Leaf& leaf) {
    const std::string key = leaf.valueText();
    try {
        built.element = collection.refile(built.element, key);
    } catch (const RtfError& error) {
        if (apply_.goesOn() && error.is(RunTimeError::DuplicateKey)) {
            // An entry takes the position of the one that it replaces, so positions are those of
            // the nodes, unless a host removed an element meanwhile.
            const auto& list = inner(collection).list();
            const std::size_t position = list.positionOfIndex(key);
            const bool isSibling = position <= siblings.size() &&
                                   siblings[position - 1].element.get() == &list.at(position);
            apply_.setKeyHolder(isSibling ? siblings[position - 1].node : nullptr);
        }
        throw;
    }
}

void DocumentBuilder::applyRow(BuiltTable::Row& row) {
    forEachLeaf(*row.node, NodeKind::Row, [&](const Leaf& leaf) { applyRowLeaf(row, leaf); });
    if (dialect_.values.areExtended) {
        columns_.applyWidths(row, table_.cellsOf(row));
    }
    const Ref<CRtfTableCells> cells = row.element->TableCells();
    const std::span<BuiltTable::Cell> built = table_.cellsOf(row);
    std::int32_t position = 0;
    for (BuiltTable::Cell& cell : built) {
        requirePosition(*cells, ++position);
        applyCell(*cells, cell, built);
    }
}

void DocumentBuilder::applyRowLeaf(BuiltTable::Row& row, const Leaf& leaf) {
    CRtfTableRow& element = *row.element;
    switch (leaf.key.known) {
        case DescriptionKey::RowBackColor:
            element.setBackColor(color(leaf));
            break;
        case DescriptionKey::RowKey:
            refile(*document_.TableRows(), row, std::span(table_.rows), leaf);
            break;
        case DescriptionKey::RowTopBorder:
            element.setTopBorder(border(leaf));
            break;
        case DescriptionKey::RowBottomBorder:
            element.setBottomBorder(border(leaf));
            break;
        case DescriptionKey::RowLeftBorder:
            element.setLeftBorder(border(leaf));
            break;
        case DescriptionKey::RowRightBorder:
            element.setRightBorder(border(leaf));
            break;
        case DescriptionKey::RowHeading:
            element.setRepeatsAsHeading(yesOrNo(leaf.text));
            break;
        case DescriptionKey::RowKeep:
            element.setKeepTogether(yesOrNo(leaf.text));
            break;
        case DescriptionKey::RowKeepWithNext:
            element.setKeepWithNext(yesOrNo(leaf.text));
            break;
        case DescriptionKey::RowPageBreak:
            element.setStartsPage(yesOrNo(leaf.text));
            break;
        case DescriptionKey::Columns:
            element.setColumnWidths(columns_.columnsOf(leaf));
            break;
        default:
            break;
    }
}

void DocumentBuilder::applyCell(CRtfTableCells& cells, BuiltTable::Cell& cell,
                                std::span<BuiltTable::Cell> siblings) {
    forEachLeaf(*cell.node, NodeKind::Cell, [&](const Leaf& leaf) {
        if (leaf.key.known == DescriptionKey::CellKey) {
            refile(cells, cell, siblings, leaf);
        } else {
            applyCellLeaf(*cell.element, leaf);
        }
    });
    const Ref<CRtfParagraphs> paragraphs = cell.element->Paragraphs();
    const std::span<BuiltTable::Paragraph> built = table_.paragraphsOf(cell);
    std::int32_t position = 0;
    for (BuiltTable::Paragraph& paragraph : built) {
        requirePosition(*paragraphs, ++position);
        forEachLeaf(*paragraph.node, NodeKind::Para, [&](const Leaf& leaf) {
            if (leaf.key.known == DescriptionKey::ParaKey) {
                refile(*paragraphs, paragraph, built, leaf);
            } else {
                applyParaLeaf(*paragraph.element, leaf);
            }
        });
        if (dialect_.texts.isLiteral) {
            literals_.fill(*paragraph.element, *paragraph.node);
        }
    }
}

void DocumentBuilder::applyCellLeaf(CRtfTableCell& cell, const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::CellBackColor:
            cell.setBackColor(color(leaf));
            break;
        case DescriptionKey::CellWidth:
            if (!dialect_.values.areExtended) {
                cell.setWidth(ePercent, number(leaf));
            }
            break;
        case DescriptionKey::CellTopBorder:
            cell.setTopBorder(border(leaf));
            break;
        case DescriptionKey::CellBottomBorder:
            cell.setBottomBorder(border(leaf));
            break;
        case DescriptionKey::CellLeftBorder:
            cell.setLeftBorder(border(leaf));
            break;
        case DescriptionKey::CellRightBorder:
            cell.setRightBorder(border(leaf));
            break;
        case DescriptionKey::CellAlignment:
            cell.setAlign(alignment(leaf));
            break;
        case DescriptionKey::CellStyle:
            cell.setStyle(styleName(leaf, StyleKind::Cell));
            break;
        case DescriptionKey::CellMarkedField:
            cell.asMarkedField(leaf.value());
            break;
        case DescriptionKey::Span:
            cell.setColumnSpan(wholeNumber(leaf.text, 1, maxSpan));
            break;
        case DescriptionKey::Vspan:
            cell.setRowSpan(wholeNumber(leaf.text, 1, std::numeric_limits<std::int32_t>::max()));
            break;
        default:
            break;
    }
}

void DocumentBuilder::applyParaLeaf(CRtfParagraph& paragraph, const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::ParaText:
            setText(paragraph, leaf);
            break;
        case DescriptionKey::ParaStyle:
            paragraph.setStyle(styleName(leaf, StyleKind::Paragraph));
            break;
        case DescriptionKey::ParaAlignment:
            paragraph.setAlign(alignment(leaf));
            break;
        case DescriptionKey::ParaMarkedField:
            paragraph.asMarkedField(leaf.value());
            break;
        default:
            break;
    }
}

void DocumentBuilder::setText(CRtfParagraph& paragraph, const Leaf& leaf) const {
    if (dialect_.texts.isLiteral) {
        return;
    }
    if (dialect_.texts.writesUnicode) {
        paragraph.setText(withUnicodeWords(leaf.text));
    } else {
        paragraph.setText(leaf.text);
    }
}

/// The name of a style, which must be in the stylesheet where the dialect says so.
std::string DocumentBuilder::styleName(const Leaf& leaf, StyleKind kind) {
    std::string name = leaf.valueText();
    if (dialect_.values.areExtended) {
        styleNames_.require(kind, name);
    }
    return name;
}

tColorIndex DocumentBuilder::color(const Leaf& leaf) {
    if (dialect_.values.areExtended) {
        if (const std::optional<RgbColor> color = colorComponents(leaf.text)) {
            return document_.addColor(color->red, color->green, color->blue);
        }
    }
    return required(dialect_.vocabulary.colorOf(leaf), leaf);
}

tBorderWidth DocumentBuilder::border(const Leaf& leaf) const {
    return required(dialect_.vocabulary.borderOf(leaf), leaf);
}

tCellAlign DocumentBuilder::alignment(const Leaf& leaf) const {
    return required(dialect_.vocabulary.alignmentOf(leaf), leaf);
}

}  // namespace quorvane
