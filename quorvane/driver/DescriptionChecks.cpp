#include "quorvane/driver/DescriptionChecks.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane {

namespace {

// In ascending order of their numbers.
std::vector<const DescriptionNode*> sortedChildren(const DescriptionNode& node) {
    std::vector<const DescriptionNode*> children;
    for (const DescriptionNode& child : node.children()) {
        children.push_back(&child);
    }
    std::sort(children.begin(), children.end(),
              [](const auto* a, const auto* b) { return a->number < b->number; });
    return children;
}

void requireChildren(const DescriptionNode& node, const char* message, const char* source) {
    if (node.children().empty()) {
        raise(driverError(eWrongKeyword, message, source, node.line));
    }
}

}  // namespace

void DescriptionChecks::requireKnownKeys(const DescriptionNode& node, NodeKind kind,
                                         const char* source) const {
    const KeySet known = vocabulary_.keySetOf(kind);
    const Leaf* first = nullptr;
    for (const Leaf& leaf : node.leaves()) {
        const bool isUnknown = (known & setOf(leaf.key.known)) == 0;
        if (isUnknown && (!first || leaf.key.name < first->key.name)) {
            first = &leaf;
        }
    }
    if (first) {
        raise(driverError(eWrongKeyword, std::string(first->key.name) + " isn't a valid keyword.",
                          source, first->line));
    }
}

void DescriptionChecks::docWalkerSyntax(const DescriptionNode& doc) const {
    constexpr const char* source = "CRtfDriver.docWalkerSyntax";
    requireKnownKeys(doc, NodeKind::Doc, source);
    requireChildren(doc, "Must have at least one row.", source);
    for (const DescriptionNode* row : sortedChildren(doc)) {
        rowWalkerSyntax(*row);
    }
}

void DescriptionChecks::rowWalkerSyntax(const DescriptionNode& row) const {
    constexpr const char* source = "CRtfDriver.rowWalkerSyntax";
    requireKnownKeys(row, NodeKind::Row, source);
    requireChildren(row, "Must have at least one cell.", source);
    for (const DescriptionNode* cell : sortedChildren(row)) {
        cellWalkerSyntax(*cell);
    }
}

void DescriptionChecks::cellWalkerSyntax(const DescriptionNode& cell) const {
    requireKnownKeys(cell, NodeKind::Cell, "CRtfDriver.cellWalkerSyntax");
    for (const DescriptionNode* para : sortedChildren(cell)) {
        paraWalkerSyntax(*para);
    }
}

void DescriptionChecks::paraWalkerSyntax(const DescriptionNode& para) const {
    constexpr const char* source = "CRtfDriver.paraWalkerSyntax";
    if ((para.keys & setOf(DescriptionKey::ParaText)) == 0) {
        raise(driverError(eSyntaxError, "In a para group para-text is mandatory.", source,
                          para.line));
    }
    requireKnownKeys(para, NodeKind::Para, "CrtfDriver.paraWalkerSyntax");
    if (const auto children = para.children(); !children.empty()) {
        raise(driverError(eWrongKeyword, "A paragraph is a terminal node", source,
                          children.begin()->line));
    }
}

void DescriptionChecks::treeWalkerSemantic(const DescriptionNode& node, NodeKind kind) const {
    for (const Leaf& leaf : node.leaves()) {
        checkValue(leaf);
    }
    for (const DescriptionNode& child : node.children()) {
        const NodeKind childKind = NodeType(child.number);
        if (!nests(kind, childKind)) {
            raise(driverError(eSyntaxError, "Invalid node declaration in this context\r\n",
                              "CRtDriver.treeWalkerSemantic", child.line));
        }
        treeWalkerSemantic(child, childKind);
    }
}

void DescriptionChecks::checkValue(const Leaf& leaf) const {
    const DescriptionKey key = leaf.key.known;
    const auto refuse = [&leaf](const std::string& message, const char* source) {
        raise(driverError(eWrongValue, message, source, leaf.line));
    };
    // A number is admitted: whether it is a value of the enumeration shows when the document is
    // built.
    if (vocabulary_.isColorKey(key)) {
        if (!leaf.isNumber() && !vocabulary_.colorNamed(leaf)) {
            refuse(leaf.valueText() + " isn't a recognized color.", "CRtfDriver.treWalkerSemantic");
        }
    } else if (vocabulary_.isBorderKey(key) && !leaf.isNumber() && !vocabulary_.borderNamed(leaf)) {
        refuse(leaf.valueText() + " isn't a recognized border.", "CRtfDriver.treWalkerSemantic");
    }
    if (vocabulary_.isTextOrNumberKey(key)) {
        if (leaf.kind == LeafKind::Neither) {
            refuse("Value for " + std::string(leaf.key.name) + " should be numeric or string.",
                   "CRtfDriver.treeWalkerSemantic");
        }
    } else if (!leaf.isNumber()) {
        refuse("Value for " + std::string(leaf.key.name) + " should be numeric.",
               "CRtfDriver.treeWalkerSemantic");
    }
}

}  // namespace quorvane
