#pragma once

#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// The checks of a description's tree. Each walk ends with an error at its first finding.
class DescriptionChecks {
public:
    explicit DescriptionChecks(const Vocabulary& vocabulary) : vocabulary_(vocabulary) {}

    /// Checks which keys and children the nodes have, depth first, keys and children in ascending
    /// order. Errors: `eWrongKeyword` a key that the node does not have, no row, no cell, a child
    /// of a paragraph; `eSyntaxError` a paragraph without "para-text".
    void docWalkerSyntax(const DescriptionNode& doc) const;

    /// Checks the values of the leaves, in the order of the description, and where the children
    /// stand. Errors: `eWrongValue` a text that is not a color or a border where there must be one,
    /// a value that is not a number where there must be one; `eSyntaxError` a node that may not
    /// stand where it is.
    void treeWalkerSemantic(const DescriptionNode& node, NodeKind kind) const;

private:
    void requireKnownKeys(const DescriptionNode& node, NodeKind kind, const char* source) const;
    void rowWalkerSyntax(const DescriptionNode& row) const;
    void cellWalkerSyntax(const DescriptionNode& cell) const;
    void paraWalkerSyntax(const DescriptionNode& para) const;
    void checkValue(const Leaf& leaf) const;

    const Vocabulary& vocabulary_;
};

}  // namespace quorvane
