#pragma once

#include <string>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The leaves that give a document in the extended language the page that it has.
class PageUpgrade {
public:
    /// The document is built from the node. Both must outlive the object.
    PageUpgrade(const CRtfDoc& document, const DescriptionNode& doc);

    /// The lines in place of a leaf of the node.
    std::vector<std::string> linesFor(const Leaf& leaf) const;
    /// The lines for what the node does not say and the extended language has other defaults for.
    std::vector<std::string> missingLines() const;

private:
    std::string lineOf(DescriptionKey key) const;
    bool hasName() const { return !name_.empty(); }
    const Leaf* firstOfSize() const;

    const CRtfDoc& document_;
    const DescriptionNode& doc_;
    // Empty for a page without a name.
    std::string name_;
};

}  // namespace quorvane
