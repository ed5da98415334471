#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "quorvane/base/memory/Arena.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The number of the document's node, which is the root's child.
constexpr std::int32_t documentNumber = 1;

/// The nodes of one description. They lie beside each other in few blocks of memory that go
/// together: releasing a tree takes no time for each node and no memory, however deep nodes are
/// nested.
class DescriptionTree {
public:
    /// An empty root. `leafCount` is about how many leaves there will be.
    explicit DescriptionTree(std::size_t leafCount = 0);
    DescriptionTree(const DescriptionTree&) = delete;
    DescriptionTree& operator=(const DescriptionTree&) = delete;

    DescriptionNode& root() { return root_; }
    const DescriptionNode& root() const { return root_; }

    /// Adds a leaf to a node of this tree and returns it, for the caller to fill in. What it views
    /// must outlive the tree. Null when the node has such a key already.
    Leaf* addLeaf(DescriptionNode& node, const LeafKey& key);

    /// The leaf that has the key, which is one of the node's.
    Leaf& leafOf(const DescriptionNode& node, const LeafKey& key);

    /// Adds an empty child node under its number and returns it. Each number of a kind is added
    /// once and later than all smaller ones. `opener` is the line that opens it, without the blanks
    /// around it. Error `eWrongNodeType` for a kind that no node has.
    DescriptionNode& AddNode(DescriptionNode& parent, NodeKind kind, std::int32_t number, int line,
                             std::string_view opener = {});

private:
    struct KeyOfNode {
        const DescriptionNode* node;
        std::string_view name;
        bool operator==(const KeyOfNode&) const = default;
    };
    struct KeyOfNodeHash {
        std::size_t operator()(const KeyOfNode& key) const noexcept {
            return std::hash<std::string_view>{}(key.name) ^
                   (std::hash<const void*>{}(key.node) * 31);
        }
    };

    using LeafOfKey = std::pair<const KeyOfNode, Leaf*>;

    Arena memory_;
    DescriptionNode root_;
    // Those of unknown keys, and of known ones that were looked for.
    std::unordered_map<KeyOfNode, Leaf*, KeyOfNodeHash, std::equal_to<KeyOfNode>,
                       ArenaAllocator<LeafOfKey>>
        leaves_{memory_};
};

}  // namespace quorvane
