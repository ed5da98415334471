#pragma once

#include <cstdint>
#include <string>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// Fills a document from the doc node of a description. An error of a value, a collection or a
/// property ends the build; what was built so far stays.
class DocumentBuilder {
public:
    DocumentBuilder(CRtfDoc& document, const Vocabulary& vocabulary)
        : document_(document), vocabulary_(vocabulary) {}

    /// First adds all rows, cells and paragraphs under their nodes' numbers as keys, then applies
    /// the leaves, in ascending order of their keys. Errors: `eWrongValue` a word or number that is
    /// no colour, border or alignment, 13 a value that is no number where there must be one, 6 a
    /// number beyond 32 bits, 457 a key that is there already.
    void build(const DescriptionNode& doc);

private:
    // Calls `apply` for each leaf whose key nodes of that kind have, in ascending order of the
    // keys.
    template <class Apply>
    void forEachLeaf(const DescriptionNode& node, NodeKind kind, Apply apply) const;

    void addStructure(const DescriptionNode& doc);
    void applyDocLeaf(const Leaf& leaf);
    void applyRow(Ref<CRtfTableRow> row, const DescriptionNode& node);
    void applyRowLeaf(Ref<CRtfTableRow>& row, const Leaf& leaf);
    void applyCell(const Ref<CRtfTableCells>& cells, Ref<CRtfTableCell> cell,
                   const DescriptionNode& node);
    void applyCellLeaf(const Ref<CRtfTableCells>& cells, Ref<CRtfTableCell>& cell,
                       const Leaf& leaf);
    void applyParaLeaf(const Ref<CRtfParagraphs>& paragraphs, Ref<CRtfParagraph>& paragraph,
                       const Leaf& leaf);

    tColorIndex color(const Leaf& leaf) const;
    tBorderWidth border(const Leaf& leaf) const;
    tCellAlign alignment(const Leaf& leaf) const;

    CRtfDoc& document_;
    const Vocabulary& vocabulary_;
};

}  // namespace quorvane
