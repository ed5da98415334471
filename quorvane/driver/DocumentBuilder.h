#pragma once

#include <cstdint>
#include <span>
#include <utility>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/BuiltTable.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/ExtendedColumns.h"
#include "quorvane/driver/LeafApplication.h"
#include "quorvane/driver/LiteralParagraphs.h"
#include "quorvane/driver/PictureSource.h"
#include "quorvane/driver/StyleNames.h"
#include "quorvane/driver/driverFaults.h"
#include "quorvane/stylesheet/StyleKind.h"

namespace quorvane {

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
          apply_(std::move(receiver)),
          columns_(document, apply_),
          literals_(document, dialect, std::move(pictures), apply_),
          styleNames_(document) {}
    DocumentBuilder(const DocumentBuilder&) = delete;
    DocumentBuilder& operator=(const DocumentBuilder&) = delete;

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

    /// Leaves out whether spans, columns and headings fit together: not all cells are known.
    void leaveLayoutUnchecked() { checksLayout_ = false; }

private:
    // Calls `apply` for each leaf whose key nodes of that kind have, in ascending order of the
    // keys.
    template <class Apply>
    void forEachLeaf(DescriptionNode& node, NodeKind kind, Apply apply);

    bool isEncodable(Leaf& leaf);

    void checkLayout();
    void applyDocument(DescriptionNode& doc);
    void applyExtendedPage(DescriptionNode& doc);
    void addRows(DescriptionNode& doc);
    void addCells(BuiltTable::Row& row);
    void addParagraphs(BuiltTable::Cell& cell);
    void applyDocLeaf(const Leaf& leaf);
    void applyRow(BuiltTable::Row& row);
    void applyRowLeaf(BuiltTable::Row& row, const Leaf& leaf);
    void applyCell(CRtfTableCells& cells, BuiltTable::Cell& cell,
                   std::span<BuiltTable::Cell> siblings);
    void applyCellLeaf(CRtfTableCell& cell, const Leaf& leaf);
    void applyParaLeaf(CRtfParagraph& paragraph, const Leaf& leaf);
    void setText(CRtfParagraph& paragraph, const Leaf& leaf) const;
    void setMargin(const Leaf& leaf, void (CRtfDoc::*set)(std::int32_t),
                   std::int32_t (CRtfDoc::*get)() const);

    // Files an element under the value of its key; on error 457 keeps the node that has that key.
    template <class Collection, class Built>
    void refile(Collection& collection, Built& built, std::span<Built> siblings, const Leaf& leaf);

    std::int32_t length(const Leaf& leaf) const;
    std::int32_t pageNumber(const Leaf& leaf) const;
    std::string styleName(const Leaf& leaf, StyleKind kind);
    tColorIndex color(const Leaf& leaf);
    tBorderWidth border(const Leaf& leaf) const;
    tCellAlign alignment(const Leaf& leaf) const;

    CRtfDoc& document_;
    const Dialect& dialect_;
    LeafApplication apply_;
    ExtendedColumns columns_;
    LiteralParagraphs literals_;
    BuiltTable table_;
    bool checksLayout_ = true;
    StyleNames styleNames_;
};

}  // namespace quorvane
