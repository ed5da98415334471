#include "quorvane/driver/DescriptionNode.h"

#include <utility>
#include <variant>

#include "quorvane/driver/GDictionary.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/support/RtfError.h"
#include "quorvane/support/numberText.h"

namespace quorvane {

namespace {

// The object that a value of a map refers to, which the map keeps alive.
template <class T>
const T* held(const Value& value) {
    const auto* reference = std::get_if<std::shared_ptr<Object>>(&value.data());
    return reference ? dynamic_cast<const T*>(reference->get()) : nullptr;
}

}  // namespace

// Nodes can be nested thousands deep, too deep for one destructor to call the next: each node is
// emptied before it goes. The nodes that wait for it are a chain of their own, since a destructor
// must do without further memory.
DescriptionNode::~DescriptionNode() {
    std::shared_ptr<DescriptionNode> waiting;
    handOverChildren(waiting);
    while (waiting) {
        const std::shared_ptr<DescriptionNode> node = std::move(waiting);
        waiting = std::move(node->nextWaiting_);
        node->handOverChildren(waiting);
    }
}

void DescriptionNode::handOverChildren(std::shared_ptr<DescriptionNode>& waiting) noexcept {
    RemoveAll();
    for (std::shared_ptr<DescriptionNode>& child : children_) {
        if (child.use_count() == 1) {
            child->nextWaiting_ = std::move(waiting);
            waiting = std::move(child);
        }
    }
    children_.clear();
}

std::vector<Value> DescriptionNode::leafKeys() const {
    return FilterType(Keys().value_or(std::vector<Value>()), ValueKind::Text);
}

std::vector<Value> DescriptionNode::childNumbers() const {
    return FilterType(Keys().value_or(std::vector<Value>()), ValueKind::Number);
}

std::vector<DescriptionNode::NamedLeaf> DescriptionNode::leaves() const {
    std::vector<NamedLeaf> leaves;
    leaves.reserve(static_cast<std::size_t>(Count()) - children_.size());
    forEach([&leaves](const Value& key, const Value& value) {
        if (key.isText()) {
            leaves.push_back({&key, held<Leaf>(value)});
        }
    });
    return leaves;
}

std::vector<DescriptionNode::NumberedChild> DescriptionNode::children() const {
    std::vector<NumberedChild> children;
    children.reserve(children_.size());
    forEach([&children](const Value& key, const Value& value) {
        if (key.isNumber()) {
            children.push_back(
                {static_cast<std::int32_t>(key.number()), held<DescriptionNode>(value)});
        }
    });
    return children;
}

const Leaf& DescriptionNode::leaf(const Value& key) const {
    // The map keeps the leaf alive.
    return *Item(key).object<Leaf>();
}

std::shared_ptr<DescriptionNode> DescriptionNode::child(const Value& number) const {
    if (!Exists(number)) {
        raise(RunTimeError::ObjectNotSet);
    }
    return Item(number).object<DescriptionNode>();
}

void DescriptionNode::addLeaf(std::string key, Leaf leaf) {
    const int line = leaf.line;
    atLine(line, [&] { add(std::move(key), std::make_shared<Leaf>(std::move(leaf))); });
}

std::shared_ptr<DescriptionNode> DescriptionNode::addChild(std::int32_t number, int line) {
    auto node = std::make_shared<DescriptionNode>(line);
    add(number, node);
    children_.push_back(node);
    return node;
}

NodeKind NodeType(std::int32_t number) {
    constexpr NodeKind kinds[] = {NodeKind::Doc, NodeKind::Row, NodeKind::Cell, NodeKind::Para};
    if (number < 0 || number > 3999) {
        raise(driverError(eWrongNodeType, std::to_string(number) + " isn't a valid key value.",
                          "CRtfDriver.NodeType"));
    }
    return kinds[number / 1000];
}

std::shared_ptr<DescriptionNode> AddNode(DescriptionNode& tree, NodeKind kind, std::int32_t number,
                                         int line) {
    const auto code = static_cast<std::int32_t>(kind);
    if (code < 0 || code > 3) {
        raise(driverError(eWrongNodeType, "Can't add this type of node: " + std::to_string(code),
                          "CRtfDriver.AddNode", line));
    }
    return tree.addChild(number, line);
}

bool nests(NodeKind parent, NodeKind child) {
    return (parent == NodeKind::Doc && child == NodeKind::Row) ||
           (parent == NodeKind::Row && child == NodeKind::Cell) ||
           (parent == NodeKind::Cell && child == NodeKind::Para);
}

std::string valueText(const Value& value) {
    return value.isNumber() ? numberText(value.number()) : value.text();
}

}  // namespace quorvane
