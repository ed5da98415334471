#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "quorvane/base/values/Value.h"
#include "quorvane/driver/DescriptionKey.h"
#include "quorvane/driver/NodeKind.h"
#include "quorvane/support/FilledValue.h"

namespace quorvane {

/// The key of a leaf: its long form, and which of the known keys it is.
struct LeafKey {
    std::string_view name;
    DescriptionKey known = DescriptionKey::Unknown;
};

/// What the value of a leaf is. A description gives texts and numbers only.
enum class LeafKind : std::uint8_t { Text, Number, Neither };

/// One key of a description with its value; its texts are views of the description.
struct Leaf {
    LeafKey key = {};
    /// The key as it was written.
    std::string_view writtenKey = {};
    /// The value as it was written, or as it was filled from data.
    std::string_view text = {};
    /// What a value is filled with; null where the text is written.
    const FilledValue* filled = nullptr;
    /// The value, when it is a number.
    double number = 0;
    LeafKind kind = LeafKind::Text;
    /// True when an error was reported for it: it is not built.
    bool isFaulty = false;
    /// 1-based line on which it stands.
    int line = 0;
    /// The next leaf of the node.
    Leaf* next = nullptr;

    bool isNumber() const { return kind == LeafKind::Number; }
    /// The number as a double, otherwise the text.
    Value value() const { return isNumber() ? Value(number) : Value(text); }
    /// The value as text: a number in its shortest form.
    std::string valueText() const;

    /// What of the text comes from data.
    std::span<const TextRange> data() const {
        return filled ? filled->data : std::span<const TextRange>();
    }
    /// True for a part of a text that is not written in the description.
    bool isFilled(std::string_view part) const {
        return filled && !std::less<>()(part.data(), text.data()) &&
               !std::less<>()(text.data() + text.size(), part.data());
    }
    /// The part as it is written in the description: where the text is filled, the value of the
    /// template.
    std::string_view written(std::string_view part) const {
        return isFilled(part) ? filled->written : part;
    }
};

/// Elements of which each leads to the next.
template <class Element>
class Chain {
public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = std::remove_const_t<Element>;
        using difference_type = std::ptrdiff_t;
        using pointer = Element*;
        using reference = Element&;

        Iterator() = default;
        explicit Iterator(Element* element) : element_(element) {}
        Element& operator*() const { return *element_; }
        Element* operator->() const { return element_; }
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
        Element* element_ = nullptr;
    };

    explicit Chain(Element* first) : first_(first) {}

    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(); }
    bool empty() const { return first_ == nullptr; }

private:
    Element* first_;
};

/// A node of a description: its leaves, under their keys, and its child nodes, under their numbers.
/// A `DescriptionTree` makes and holds it.
struct DescriptionNode {
    /// 0 for the root.
    std::int32_t number = 0;
    NodeKind kind = NodeKind::Doc;
    /// 1-based line on which the node is opened; 0 for the root.
    int line = 0;
    /// Which known keys its leaves have.
    KeySet keys = 0;
    /// The line that opens it, without the blanks around it: a view of the description.
    std::string_view opener = {};
    /// True when an error was reported for it: neither it nor what is in it is built.
    bool isFaulty = false;
    /// True for what the document does not hold: it is neither checked nor built.
    bool isOutside = false;
    /// True when each child has a greater number than the one before it, as children of one kind
    /// do.
    bool childrenAscend = true;
    Leaf* firstLeaf = nullptr;
    Leaf* lastLeaf = nullptr;
    DescriptionNode* firstChild = nullptr;
    DescriptionNode* lastChild = nullptr;
    /// The next child of the node's parent.
    DescriptionNode* next = nullptr;

    /// In the order of the description.
    Chain<const Leaf> leaves() const { return Chain<const Leaf>(firstLeaf); }
    Chain<Leaf> leaves() { return Chain<Leaf>(firstLeaf); }
    Chain<const DescriptionNode> children() const {
        return Chain<const DescriptionNode>(firstChild);
    }
    Chain<DescriptionNode> children() { return Chain<DescriptionNode>(firstChild); }

    /// The leaf of a known key; null when there is none.
    const Leaf* find(DescriptionKey key) const;

    /// The child node of a number; error 5 when there is none.
    DescriptionNode& child(std::int32_t childNumber);
    const DescriptionNode& child(std::int32_t childNumber) const;
};

/// Visits a node and all nodes in it, each before those in it. Nodes may be nested as deep as the
/// text is long.
template <class Visit>
void forEachNode(const DescriptionNode& node, Visit visit) {
    std::vector<const DescriptionNode*> pending{&node};
    while (!pending.empty()) {
        const DescriptionNode* const next = pending.back();
        pending.pop_back();
        visit(*next);
        if (next != &node && next->next) {
            pending.push_back(next->next);
        }
        if (next->firstChild) {
            pending.push_back(next->firstChild);
        }
    }
}

/// Kind of the node of that number: 0 to 999 doc, 1000 to 1999 row, 2000 to 2999 cell, 3000 to 3999
/// para. Error `eWrongNodeType` for any other number.
NodeKind NodeType(std::int32_t number);

}  // namespace quorvane
