#include "quorvane/driver/misplacedNode.h"

#include <algorithm>
#include <cstddef>

namespace quorvane {

namespace {

std::size_t levelOf(NodeKind kind) {
    return static_cast<std::size_t>(std::find(nodeKinds.begin(), nodeKinds.end(), kind) -
                                    nodeKinds.begin());
}

void addWord(std::string& words, const std::string& word) {
    words += (words.empty() ? "" : " and ") + word;
}

/// The lines between a node of the one level and one of the other that it cannot hold.
std::string missingLines(std::size_t parent, std::size_t child) {
    std::string lines;
    for (std::size_t level = parent + 1; level < child; ++level) {
        addWord(lines, "(" + std::string(nodeName(nodeKinds[level])));
    }
    for (std::size_t level = parent + 1; level > child; --level) {
        addWord(lines, std::string(nodeName(nodeKinds[level - 1])) + ")");
    }
    return lines;
}

}  // namespace

std::string misplacedNode(NodeKind kind, NodeKind parent) {
    if (parent == NodeKind::None) {
        return "Nothing can stand outside doc; write it before the line doc)";
    }
    const std::string words = "A " + std::string(nodeName(kind)) + " cannot stand in a " +
                              std::string(nodeName(parent)) + "; ";
    return kind == NodeKind::Doc
               ? words + "a description has one doc"
               : words + "write " + missingLines(levelOf(parent), levelOf(kind)) + " before it";
}

}  // namespace quorvane
