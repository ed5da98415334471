#include "quorvane/driver/DescriptionChecks.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "quorvane/driver/driverErrors.h"
#include "quorvane/support/RtfError.h"

namespace quorvane {

namespace {

// In ascending order of their numbers.
std::vector<DescriptionNode::NumberedChild> sortedChildren(const DescriptionNode& node) {
    std::vector<DescriptionNode::NumberedChild> children = node.children();
    std::sort(children.begin(), children.end(),
              [](const auto& a, const auto& b) { return a.number < b.number; });
    return children;
}

void requireChildren(const DescriptionNode& node, const char* message, const char* source) {
    if (node.children().empty()) {
        raise(driverError(eWrongKeyword, message, source, node.line()));
    }
}

}  // namespace

void DescriptionChecks::requireKnownKeys(const DescriptionNode& node, NodeKind kind,
                                         const char* source) const {
    std::vector<DescriptionNode::NamedLeaf> unknown = node.leaves();
    std::erase_if(unknown,
                  [&](const auto& named) { return vocabulary_.isKeyOf(kind, *named.key); });
    const auto first = std::min_element(
        unknown.begin(), unknown.end(),
        [](const auto& a, const auto& b) { return a.key->text() < b.key->text(); });
    if (first != unknown.end()) {
        raise(driverError(eWrongKeyword, first->key->text() + " isn't a valid keyword.", source,
                          first->leaf->line));
    }
}

void DescriptionChecks::docWalkerSyntax(const DescriptionNode& doc) const {
    constexpr const char* source = "CRtfDriver.docWalkerSyntax";
    requireKnownKeys(doc, NodeKind::Doc, source);
    requireChildren(doc, "Must have at least one row.", source);
    for (const auto& [number, row] : sortedChildren(doc)) {
        rowWalkerSyntax(*row);
    }
}

void DescriptionChecks::rowWalkerSyntax(const DescriptionNode& row) const {
    constexpr const char* source = "CRtfDriver.rowWalkerSyntax";
    requireKnownKeys(row, NodeKind::Row, source);
    requireChildren(row, "Must have at least one cell.", source);
    for (const auto& [number, cell] : sortedChildren(row)) {
        cellWalkerSyntax(*cell);
    }
}

void DescriptionChecks::cellWalkerSyntax(const DescriptionNode& cell) const {
    requireKnownKeys(cell, NodeKind::Cell, "CRtfDriver.cellWalkerSyntax");
    for (const auto& [number, para] : sortedChildren(cell)) {
        paraWalkerSyntax(*para);
    }
}

void DescriptionChecks::paraWalkerSyntax(const DescriptionNode& para) const {
    constexpr const char* source = "CRtfDriver.paraWalkerSyntax";
    if (!para.Exists("para-text")) {
        raise(driverError(eSyntaxError, "In a para group para-text is mandatory.", source,
                          para.line()));
    }
    requireKnownKeys(para, NodeKind::Para, "CrtfDriver.paraWalkerSyntax");
    const std::vector<DescriptionNode::NumberedChild> children = para.children();
    if (!children.empty()) {
        raise(driverError(eWrongKeyword, "A paragraph is a terminal node", source,
                          children.front().node->line()));
    }
}

void DescriptionChecks::treeWalkerSemantic(const DescriptionNode& node, NodeKind kind) const {
    for (const auto& [key, leaf] : node.leaves()) {
        checkValue(*key, *leaf);
    }
    for (const auto& [number, child] : node.children()) {
        const NodeKind childKind = NodeType(number);
        if (!nests(kind, childKind)) {
            raise(driverError(eSyntaxError, "Invalid node declaration in this context\r\n",
                              "CRtDriver.treeWalkerSemantic", child->line()));
        }
        treeWalkerSemantic(*child, childKind);
    }
}

void DescriptionChecks::checkValue(const Value& key, const Leaf& leaf) const {
    const auto refuse = [&leaf](const std::string& message, const char* source) {
        raise(driverError(eWrongValue, message, source, leaf.line));
    };
    if (vocabulary_.isColorKey(key)) {
        if (!vocabulary_.colorNamed(leaf.value)) {
            refuse(valueText(leaf.value) + " isn't a recognized color.",
                   "CRtfDriver.treWalkerSemantic");
        }
    } else if (vocabulary_.isBorderKey(key) && !vocabulary_.borderNamed(leaf.value)) {
        refuse(valueText(leaf.value) + " isn't a recognized border.",
               "CRtfDriver.treWalkerSemantic");
    }
    if (vocabulary_.isTextOrNumberKey(key)) {
        if (!leaf.value.isText() && !leaf.value.isNumber()) {
            refuse("Value for " + key.text() + " should be numeric or string.",
                   "CRtfDriver.treeWalkerSemantic");
        }
    } else if (!leaf.value.isNumber()) {
        refuse("Value for " + key.text() + " should be numeric.", "CRtfDriver.treeWalkerSemantic");
    }
}

}  // namespace quorvane
