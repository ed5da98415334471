#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/PictureSource.h"
#include "quorvane/driver/columnLayout.h"
#include "quorvane/driver/driverFaults.h"
#include "quorvane/driver/extendedValues.h"

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

/// Fills a document from the doc node of a description. Nodes and leaves that are marked as faulty
/// are left out. Without a receiver, an error of a value, a collection or a property ends the build
/// and is raised; what was built so far stays. With a receiver, an error of a leaf is reported to
/// it and the build goes on with the next leaf.
class DocumentBuilder {
public:
    /// All that is given must outlive the builder. Without a source, pictures are left out.
    DocumentBuilder(CRtfDoc& document, const Dialect& dialect, ViolationReceiver receiver = {},
                    PictureSource pictures = {})
        : document_(document),
          dialect_(dialect),
          receiver_(std::move(receiver)),
          pictures_(std::move(pictures)) {}

    /// Where the dialect writes Unicode, a character that Windows-1252 lacks becomes a control word
    /// in the text of a paragraph, and an error `eWrongValue` elsewhere.
    ///
    /// First adds all rows, cells and paragraphs under their nodes' numbers as keys, then applies
    /// the leaves, in ascending order of their keys. Errors: `eWrongValue` a word or number that is
    /// not a color, border or alignment, 13 a value that is not a number where there must be one, 6
    /// a number beyond 32 bits, 457 a key that is there already.
    ///
    /// Where the dialect has extended values, every value that means nothing is an error
    /// `eWrongValue`. Where it has the page first, the leaves of the document are applied before
    /// rows are added.
    BuiltTable build(DescriptionNode& doc);

private:
    // Calls `apply` for each leaf whose key nodes of that kind have, in ascending order of the
    // keys.
    template <class Apply>
    void forEachLeaf(DescriptionNode& node, NodeKind kind, Apply apply);
    template <class Apply>
    void applyTo(Leaf& leaf, Apply apply);
    void reportLeaf(DriverFault fault, const RtfError& error, Leaf& leaf);

    bool isEncodable(Leaf& leaf) const;

    void checkLayout();
    void applyDocument(DescriptionNode& doc);
    void clearMargins(const DescriptionNode& doc);
    void addRows(DescriptionNode& doc);
    void addCells(BuiltTable::Row& row);
    void addParagraphs(BuiltTable::Cell& cell);
    void applyDocLeaf(const Leaf& leaf);
    void applyPageLeaf(const Leaf& leaf);
    void applyRow(BuiltTable::Row& row);
    void applyWidths(BuiltTable::Row& row);
    void applyRowLeaf(BuiltTable::Row& row, const Leaf& leaf);
    void applyCell(CRtfTableCells& cells, BuiltTable::Cell& cell,
                   std::span<BuiltTable::Cell> siblings);
    void applyCellLeaf(CRtfTableCell& cell, const Leaf& leaf);
    void applyParaLeaf(CRtfParagraph& paragraph, const Leaf& leaf);
    void setText(CRtfParagraph& paragraph, const Leaf& leaf) const;
    void setLiteralText(CRtfParagraph& paragraph, DescriptionNode& node);
    void setPicture(CRtfParagraph& paragraph, DescriptionNode& node);
    RtfPicture pictureNamed(const std::string& name, std::int32_t width, std::int32_t height);
    void setMargin(const Leaf& leaf, void (CRtfDoc::*set)(std::int32_t),
                   std::int32_t (CRtfDoc::*get)() const);

    // Files an element under the value of its key; on error 457 keeps the node that has that key.
    template <class Collection, class Built>
    void refile(Collection& collection, Built& built, std::span<Built> siblings, const Leaf& leaf);

    ColumnWidth widthOf(const BuiltTable::Row& row, const BuiltTable::Cell& cell,
                        const Leaf& leaf) const;
    std::vector<std::int32_t> columnsOf(const Leaf& leaf) const;
    ColumnSpace columnSpace() const;
    std::int32_t length(const Leaf& leaf) const;
    std::int32_t pageNumber(const Leaf& leaf) const;
    std::string shownText(const Leaf& leaf) const;
    Value markedField(const Leaf& leaf) const;
    tColorIndex color(const Leaf& leaf);
    tBorderWidth border(const Leaf& leaf) const;
    tCellAlign alignment(const Leaf& leaf) const;

    CRtfDoc& document_;
    const Dialect& dialect_;
    ViolationReceiver receiver_;
    PictureSource pictures_;
    // Those that were read, by their names and sizes: a logo can stand in every row.
    std::map<std::tuple<std::string, std::int32_t, std::int32_t>, RtfPicture> picturesRead_;
    BuiltTable table_;
    // An error of a leaf was reported.
    bool hasFaults_ = false;
    // The node that has the key of the last error 457.
    DescriptionNode* keyHolder_ = nullptr;
};

}  // namespace quorvane
