#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory_resource>
#include <string_view>
#include <unordered_set>

#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The nodes of one description. They lie beside each other in few blocks of memory that go
/// together: letting go of a tree takes no time for each node and no memory, however deep nodes are
/// nested.
class DescriptionTree {
public:
    /// An empty root. `leafCount` is about how many leaves there will be.
    explicit DescriptionTree(std::size_t leafCount = 0);
    DescriptionTree(const DescriptionTree&) = delete;
    DescriptionTree& operator=(const DescriptionTree&) = delete;

    DescriptionNode& root() { return root_; }
    const DescriptionNode& root() const { return root_; }

    /// Adds a leaf to a node of this tree. What it views must outlive the tree. Error 457 when the
    /// node has such a key already.
    void addLeaf(DescriptionNode& node, const Leaf& leaf);

    /// Adds an empty child node under its number and answers it. Children of one kind are added in
    /// ascending order of their numbers. Errors: `eWrongNodeType` for a kind that is none, 457 when
    /// the number is there already.
    DescriptionNode& AddNode(DescriptionNode& parent, NodeKind kind, std::int32_t number, int line);

private:
    struct UnknownKey {
        const DescriptionNode* node;
        std::string_view name;
        bool operator==(const UnknownKey&) const = default;
    };
    struct UnknownKeyHash {
        std::size_t operator()(const UnknownKey& key) const noexcept {
            return std::hash<std::string_view>{}(key.name) ^
                   (std::hash<const void*>{}(key.node) * 31);
        }
    };

    bool addKey(DescriptionNode& node, const LeafKey& key);

    std::pmr::monotonic_buffer_resource memory_;
    DescriptionNode root_;
    // The known keys of a node are in its set.
    std::pmr::unordered_set<UnknownKey, UnknownKeyHash> unknownKeys_{&memory_};
};

}  // namespace quorvane
