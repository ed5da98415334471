#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "quorvane/base/values/Value.h"
#include "quorvane/driver/DescriptionKey.h"

namespace quorvane {

/// Kinds of nodes, by the codes that the nesting and the numbers of nodes go by.
enum class NodeKind : std::int32_t { Row = 0, Cell = 1, Para = 2, Doc = 3, None = 4 };

/// The key of a leaf: its long form, and which of the known keys it is.
struct LeafKey {
    std::string_view name;
    DescriptionKey known = DescriptionKey::Unknown;
};

/// What the value of a leaf is. A description gives texts and numbers only.
enum class LeafKind : std::uint8_t { Text, Number, Neither };

/// One key of a description with its value; its texts are views.
struct Leaf {
    LeafKey key = {};
    /// The value as it was written.
    std::string_view text = {};
    /// The value, when it is a number.
    double number = 0;
    LeafKind kind = LeafKind::Text;
    /// 1-based line on which it stands.
    int line = 0;
    /// The next leaf of the node.
    Leaf* next = nullptr;

    bool isNumber() const { return kind == LeafKind::Number; }
    /// The number as a double, otherwise the text.
    Value value() const { return isNumber() ? Value(number) : Value(text); }
    /// The value as text: a number in its shortest form.
    std::string valueText() const;
};

/// Elements of which each leads to the next.
template <class Element>
class Chain {
public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Element;
        using difference_type = std::ptrdiff_t;
        using pointer = const Element*;
        using reference = const Element&;

        Iterator() = default;
        explicit Iterator(const Element* element) : element_(element) {}
        const Element& operator*() const { return *element_; }
        const Element* operator->() const { return element_; }
        Iterator& operator++() {
            element_ = element_->next;
            return *this;
        }
        Iterator operator++(int) {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const Iterator&) const = default;

    private:
        const Element* element_ = nullptr;
    };

    explicit Chain(const Element* first) : first_(first) {}

    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(); }
    bool empty() const { return first_ == nullptr; }

private:
    const Element* first_;
};

/// A node of a description: its leaves, under their keys, and its child nodes, under their numbers.
/// A `DescriptionTree` makes and holds it.
struct DescriptionNode {
    /// 0 for the root.
    std::int32_t number = 0;
    /// 1-based line on which the node is opened; 0 for the root.
    int line = 0;
    /// Which known keys its leaves have.
    KeySet keys = 0;
    Leaf* firstLeaf = nullptr;
    Leaf* lastLeaf = nullptr;
    DescriptionNode* firstChild = nullptr;
    DescriptionNode* lastChild = nullptr;
    /// The next child of the node's parent.
    DescriptionNode* next = nullptr;

    /// In the order of the description.
    Chain<Leaf> leaves() const { return Chain<Leaf>(firstLeaf); }
    Chain<DescriptionNode> children() const { return Chain<DescriptionNode>(firstChild); }

    /// The child node of a number; error 5 when there is none.
    const DescriptionNode& child(std::int32_t childNumber) const;
};

/// Kind of the node of that number: 0 to 999 doc, 1000 to 1999 row, 2000 to 2999 cell, 3000 to 3999
/// para. Error `eWrongNodeType` for any other number.
NodeKind NodeType(std::int32_t number);

/// True for a row in doc, a cell in a row and a paragraph in a cell.
bool nests(NodeKind parent, NodeKind child);

/// A leaf's value as text: a number in its shortest form.
std::string valueText(const Value& value);

}  // namespace quorvane
