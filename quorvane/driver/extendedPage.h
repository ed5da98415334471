#pragma once

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// Applies a leaf of the document whose key only the extended language has, except for the columns.
void applyPageLeaf(CRtfDoc& document, const Leaf& leaf);

/// Makes room for the margins that the document's node has: a margin is checked against the
/// opposite one, which may not be the final one yet.
void clearMargins(CRtfDoc& document, const DescriptionNode& doc);

/// True when the margins of a document leave some of its page.
bool hasTextArea(const CRtfDoc& document);

}  // namespace quorvane
