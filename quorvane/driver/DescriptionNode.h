#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "quorvane/support/CMap.h"
#include "quorvane/support/Object.h"
#include "quorvane/support/Value.h"

namespace quorvane {

/// Kinds of nodes, by the codes that the nesting and the numbers of nodes go by.
enum class NodeKind : std::int32_t { Row = 0, Cell = 1, Para = 2, Doc = 3, None = 4 };

/// One key of a description with its value.
struct Leaf : Object {
    Leaf(Value value_, std::string text_, int line_)
        : value(std::move(value_)), text(std::move(text_)), line(line_) {}

    /// A double when the value's text reads as a number, otherwise the text.
    Value value;
    /// The value as it was written.
    std::string text;
    /// 1-based line on which it stands.
    int line;
};

/// A node of a description: a map of its leaves, under their keys, and its child nodes, under their
/// numbers.
class DescriptionNode : public CMap {
public:
    explicit DescriptionNode(int line) : line_(line) {}
    DescriptionNode(const DescriptionNode&) = delete;
    DescriptionNode& operator=(const DescriptionNode&) = delete;
    ~DescriptionNode() override;

    /// 1-based line on which the node is opened; 0 for the root.
    int line() const { return line_; }

    /// The keys of the leaves, in the order of the description.
    std::vector<Value> leafKeys() const;
    /// The numbers of the child nodes, in the order of the description.
    std::vector<Value> childNumbers() const;
    /// The leaves with their keys and the child nodes with their numbers, both in the order of the
    /// description; good until the node is changed.
    struct NamedLeaf {
        /// A text.
        const Value* key;
        const Leaf* leaf;
    };
    struct NumberedChild {
        std::int32_t number;
        const DescriptionNode* node;
    };
    std::vector<NamedLeaf> leaves() const;
    std::vector<NumberedChild> children() const;

    /// The leaf under a key, which must be there.
    const Leaf& leaf(const Value& key) const;
    /// The child node of a number; error 91 when there is none.
    std::shared_ptr<DescriptionNode> child(const Value& number) const;

    /// Adds a leaf. Error 457 when the key is there already.
    void addLeaf(std::string key, Leaf leaf);
    /// Adds an empty child node under its number and answers it. Error 457 when the number is there
    /// already.
    std::shared_ptr<DescriptionNode> addChild(std::int32_t number, int line);

private:
    // Puts the children that nobody else holds in front of those that wait for being emptied.
    void handOverChildren(std::shared_ptr<DescriptionNode>& waiting) noexcept;

    int line_;
    // The children once more, for the destructor.
    std::vector<std::shared_ptr<DescriptionNode>> children_;
    std::shared_ptr<DescriptionNode> nextWaiting_;
};

/// Kind of the node of that number: 0 to 999 doc, 1000 to 1999 row, 2000 to 2999 cell, 3000 to 3999
/// para. Error `eWrongNodeType` for any other number.
NodeKind NodeType(std::int32_t number);

/// Adds an empty child node under its number and answers it. Error `eWrongNodeType` for a kind that
/// is none, 457 when the number is there already.
std::shared_ptr<DescriptionNode> AddNode(DescriptionNode& tree, NodeKind kind, std::int32_t number,
                                         int line);

/// True for a row in doc, a cell in a row and a paragraph in a cell.
bool nests(NodeKind parent, NodeKind child);

/// A leaf's value as text: a number in its shortest form.
std::string valueText(const Value& value);

}  // namespace quorvane
