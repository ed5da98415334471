#include "quorvane/driver/DescriptionTree.h"

#include <algorithm>
#include <new>
#include <string>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane {

namespace {

// There are about two leaves to a node.
constexpr std::size_t roomForALeaf = sizeof(Leaf) + sizeof(DescriptionNode) / 2;
constexpr std::size_t roomForFew = 1024;
// Beyond, blocks follow as they are needed: a text of many lines need not have many leaves.
constexpr std::size_t mostLeavesAtOnce = 16384;

}  // namespace

DescriptionTree::DescriptionTree(std::size_t leafCount)
    : memory_(roomForFew + std::min(leafCount, mostLeavesAtOnce) * roomForALeaf) {}

bool DescriptionTree::addKey(DescriptionNode& node, const LeafKey& key) {
    if (key.known == DescriptionKey::Unknown) {
        return unknownKeys_.insert({&node, key.name}).second;
    }
    const bool isNew = (node.keys & setOf(key.known)) == 0;
    node.keys |= setOf(key.known);
    return isNew;
}

void DescriptionTree::addLeaf(DescriptionNode& node, const Leaf& leaf) {
    void* const memory = memory_.allocate(sizeof(Leaf), alignof(Leaf));
    if (!addKey(node, leaf.key)) {
        atLine(leaf.line, [] { raise(RunTimeError::DuplicateKey); });
    }
    auto* const added = new (memory) Leaf(leaf);
    added->next = nullptr;
    (node.lastLeaf ? node.lastLeaf->next : node.firstLeaf) = added;
    node.lastLeaf = added;
}

DescriptionNode& DescriptionTree::AddNode(DescriptionNode& parent, NodeKind kind,
                                          std::int32_t number, int line) {
    const auto code = static_cast<std::int32_t>(kind);
    if (code < 0 || code > 3) {
        raise(driverError(eWrongNodeType, "Can't add this type of node: " + std::to_string(code),
                          "CRtfDriver.AddNode", line));
    }
    const Chain<DescriptionNode> children = parent.children();
    const auto hasNumber = [=](const DescriptionNode& node) { return node.number == number; };
    if (parent.lastChild && parent.lastChild->number >= number &&
        std::any_of(children.begin(), children.end(), hasNumber)) {
        raise(RunTimeError::DuplicateKey);
    }
    void* const memory = memory_.allocate(sizeof(DescriptionNode), alignof(DescriptionNode));
    auto* const child = new (memory) DescriptionNode();
    child->number = number;
    child->line = line;
    (parent.lastChild ? parent.lastChild->next : parent.firstChild) = child;
    parent.lastChild = child;
    return *child;
}

}  // namespace quorvane
