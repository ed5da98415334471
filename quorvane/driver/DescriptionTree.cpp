#include "quorvane/driver/DescriptionTree.h"

#include <algorithm>
#include <new>
#include <string>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/driverFaults.h"

namespace quorvane {

namespace {

// There are about two leaves to a node.
constexpr std::size_t roomForALeaf = sizeof(Leaf) + sizeof(DescriptionNode) / 2;
constexpr std::size_t roomForFew = 1024;
// Beyond, blocks follow as they are needed: a text of many lines need not have many leaves.
constexpr std::size_t maxLeavesAtOnce = 16384;

}  // namespace

DescriptionTree::DescriptionTree(std::size_t leafCount)
    : memory_(roomForFew + std::min(leafCount, maxLeavesAtOnce) * roomForALeaf) {}

Leaf* DescriptionTree::addLeaf(DescriptionNode& node, const LeafKey& key) {
    const KeyOfNode keyOfNode{&node, key.name};
    const bool isKnown = key.known != DescriptionKey::Unknown;
    if (isKnown ? contains(node.keys, key.known) : leaves_.contains(keyOfNode)) {
        return nullptr;
    }
    void* const place = memory_.allocate(sizeof(Leaf), alignof(Leaf));
    Leaf* const added = new (place) Leaf();
    added->key = key;
    if (!isKnown) {
        leaves_.emplace(keyOfNode, added);
    }
    node.keys |= setOf(key.known);
    (node.lastLeaf ? node.lastLeaf->next : node.firstLeaf) = added;
    node.lastLeaf = added;
    return added;
}

Leaf& DescriptionTree::leafOf(const DescriptionNode& node, const LeafKey& key) {
    // A known key is looked for among the leaves only once, however often it is repeated.
    Leaf*& leaf = leaves_[{&node, key.name}];
    for (Leaf* each = node.firstLeaf; !leaf; each = each->next) {
        leaf = each->key.name == key.name ? each : nullptr;
    }
    return *leaf;
}

DescriptionNode& DescriptionTree::AddNode(DescriptionNode& parent, NodeKind kind,
                                          std::int32_t number, int line, std::string_view opener) {
    if (std::find(nodeKinds.begin(), nodeKinds.end(), kind) == nodeKinds.end()) {
        raise(driverError(DriverFault::WrongNodeKind,
                          std::to_string(static_cast<std::int32_t>(kind)), line));
    }
    void* const memory = memory_.allocate(sizeof(DescriptionNode), alignof(DescriptionNode));
    auto* const child = new (memory) DescriptionNode();
    child->number = number;
    child->kind = kind;
    child->line = line;
    child->opener = opener;
    parent.childrenAscend =
        parent.childrenAscend && (!parent.lastChild || parent.lastChild->number < number);
    (parent.lastChild ? parent.lastChild->next : parent.firstChild) = child;
    parent.lastChild = child;
    return *child;
}

}  // namespace quorvane
