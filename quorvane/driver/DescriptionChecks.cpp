#include "quorvane/driver/DescriptionChecks.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "quorvane/driver/GDictionary.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/support/RtfError.h"

namespace quorvane {

namespace {

std::vector<Value> sorted(std::vector<Value> list) {
    SortVariant(list);
    return list;
}

void requireChildren(const DescriptionNode& node, const char* message, const char* source) {
    if (node.childNumbers().empty()) {
        raise(driverError(eWrongKeyword, message, source, node.line()));
    }
}

}  // namespace

void DescriptionChecks::requireKnownKeys(const DescriptionNode& node, NodeKind kind,
                                         const char* source) const {
    std::vector<Value> unknown = node.leafKeys();
    std::erase_if(unknown, [&](const Value& key) { return vocabulary_.isKeyOf(kind, key); });
    const auto first =
        std::min_element(unknown.begin(), unknown.end(),
                         [](const Value& a, const Value& b) { return a.text() < b.text(); });
    if (first != unknown.end()) {
        raise(driverError(eWrongKeyword, first->text() + " isn't a valid keyword.", source,
                          node.leaf(*first).line));
    }
}

void DescriptionChecks::docWalkerSyntax(const DescriptionNode& doc) const {
    constexpr const char* source = "CRtfDriver.docWalkerSyntax";
    requireKnownKeys(doc, NodeKind::Doc, source);
    requireChildren(doc, "Must have at least one row.", source);
    for (const Value& number : sorted(doc.childNumbers())) {
        rowWalkerSyntax(*doc.child(number));
    }
}

void DescriptionChecks::rowWalkerSyntax(const DescriptionNode& row) const {
    constexpr const char* source = "CRtfDriver.rowWalkerSyntax";
    requireKnownKeys(row, NodeKind::Row, source);
    requireChildren(row, "Must have at least one cell.", source);
    for (const Value& number : sorted(row.childNumbers())) {
        cellWalkerSyntax(*row.child(number));
    }
}

void DescriptionChecks::cellWalkerSyntax(const DescriptionNode& cell) const {
    requireKnownKeys(cell, NodeKind::Cell, "CRtfDriver.cellWalkerSyntax");
    for (const Value& number : sorted(cell.childNumbers())) {
        paraWalkerSyntax(*cell.child(number));
    }
}

void DescriptionChecks::paraWalkerSyntax(const DescriptionNode& para) const {
    constexpr const char* source = "CRtfDriver.paraWalkerSyntax";
    if (!isMember("para-text", para.leafKeys())) {
        raise(driverError(eSyntaxError, "In a para group para-text is mandatory.", source,
                          para.line()));
    }
    requireKnownKeys(para, NodeKind::Para, "CrtfDriver.paraWalkerSyntax");
    const std::vector<Value> children = para.childNumbers();
    if (!children.empty()) {
        raise(driverError(eWrongKeyword, "A paragraph is a terminal node", source,
                          para.child(children.front())->line()));
    }
}

void DescriptionChecks::treeWalkerSemantic(const DescriptionNode& node, NodeKind kind) const {
    for (const Value& key : node.leafKeys()) {
        checkValue(key, node.leaf(key));
    }
    for (const Value& number : node.childNumbers()) {
        const std::shared_ptr<DescriptionNode> child = node.child(number);
        const NodeKind childKind = NodeType(static_cast<std::int32_t>(number.number()));
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
