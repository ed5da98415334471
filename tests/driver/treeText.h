#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/driver/DescriptionParser.h"
#include "quorvane/support/recordStrings.h"
#include "tests/driver/ParsedDescription.h"

namespace quorvane {

inline std::vector<std::string> leafKeys(const DescriptionNode& node) {
    std::vector<std::string> keys;
    for (const Leaf& leaf : node.leaves()) {
        keys.emplace_back(leaf.key.name);
    }
    return keys;
}

inline std::vector<std::int32_t> childNumbers(const DescriptionNode& node) {
    std::vector<std::int32_t> numbers;
    for (const DescriptionNode& child : node.children()) {
        numbers.push_back(child.number);
    }
    return numbers;
}

/// The leaf of that key; an empty one when there is none.
inline Leaf leafOf(const DescriptionNode& node, std::string_view key) {
    for (const Leaf& leaf : node.leaves()) {
        if (leaf.key.name == key) {
            return leaf;
        }
    }
    return {};
}

/// A node as text, its leaves and children in the order of their lines: "{paper-width=11906
/// 1001{2001{}}}" for a leaf with a number and a row with a cell, texts in quotation marks.
inline std::string treeText(const DescriptionNode& node) {
    std::string text = "{";
    const auto leaves = node.leaves();
    const auto children = node.children();
    auto leaf = leaves.begin();
    auto child = children.begin();
    while (leaf != leaves.end() || child != children.end()) {
        text += text.size() > 1 ? " " : "";
        if (child == children.end() || (leaf != leaves.end() && leaf->line < child->line)) {
            text += leaf->key.name;
            text += '=';
            text += leaf->isNumber() ? leaf->valueText() : '"' + leaf->valueText() + '"';
            ++leaf;
        } else {
            text += std::to_string(child->number) + treeText(*child);
            ++child;
        }
    }
    return text + "}";
}

/// A description as it was read, up to the end or the first error.
struct ReadDescription {
    explicit ReadDescription(const std::vector<SourceLine>& sourceLines) { read(sourceLines); }
    explicit ReadDescription(std::string text) : source(std::move(text)) {
        read(PreProcessRawData(source));
    }
    ReadDescription(const ReadDescription&) = delete;
    ReadDescription& operator=(const ReadDescription&) = delete;

    DescriptionNode& root() { return nodes.root(); }
    const DescriptionNode& root() const { return nodes.root(); }

    // What the tree views.
    std::string source;
    DescriptionTree nodes;
    std::string tree;
    ErrorFacts error;

private:
    void read(const std::vector<SourceLine>& sourceLines) {
        error = errorOf(
            [&] { DescriptionParser(originalDialect()).treeWalkerBuild(nodes, sourceLines); });
        tree = treeText(nodes.root());
    }
};

}  // namespace quorvane
