#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/driverFaults.h"

namespace quorvane {

/// Which rules apply to a node that is where it may not be.
enum class MisplacedNodes {
    /// Those of the kind of node that could stand there, as the published walks have it.
    ByPlace,
    /// Those of its own kind.
    ByKind,
};

/// The rules that the nodes of a document keep. Each walk reports every violation, in the order in
/// which it is published; a receiver that throws ends the walk.
class DescriptionRules {
public:
    DescriptionRules(const Dialect& dialect, ViolationReceiver receiver,
                     MisplacedNodes misplaced = MisplacedNodes::ByPlace)
        : dialect_(dialect), receiver_(std::move(receiver)), misplaced_(misplaced) {}

    /// Checks which keys and children the nodes have, depth first, keys and children in ascending
    /// order. Violations: `eWrongKeyword` a key that the node does not have, no row, no cell, a
    /// child of a paragraph; `eSyntaxError` a paragraph without "para-text".
    void docWalkerSyntax(DescriptionNode& doc) const;

    /// Checks the values of the leaves, in the order of the description, and where the children
    /// stand. Violations: `eWrongValue` a text that is not a color or a border where there must be
    /// one, a value that is not a number where there must be one; `eSyntaxError` a node that may
    /// not stand where it is.
    void treeWalkerSemantic(DescriptionNode& doc) const;

    /// Checks the values that only the build rejects: `eWrongValue` a number that is not a color or
    /// a border, and what is not an alignment, 6 a number beyond 32 bits.
    void checkBuiltValues(DescriptionNode& doc) const;

private:
    struct Visit {
        DescriptionNode* node;
        /// The kind whose rules apply.
        NodeKind kind;
        /// Null for the document.
        const DescriptionNode* parent = nullptr;
        /// The kind whose rules apply to the parent.
        NodeKind parentKind = NodeKind::Doc;
        /// The next child of the parent is visited after the node.
        bool goesOn = false;
    };

    template <class Check>
    void walk(DescriptionNode& doc, bool sortsChildren, Check check) const;
    void goOn(std::vector<Visit>& pending) const;
    void enter(const Visit& visit, bool sortsChildren, std::vector<Visit>& pending) const;
    NodeKind rulesFor(const DescriptionNode& child, NodeKind parent) const;
    void checkKeys(const Visit& visit) const;
    void checkChildren(const Visit& visit) const;
    void checkPlace(const Visit& visit) const;
    void checkValue(Leaf& leaf) const;
    void checkBuiltValue(Leaf& leaf) const;
    void report(DriverFault fault, DescriptionNode& node, NodeKind kind) const;
    void report(DriverFault fault, Leaf& leaf, std::string_view argument = {}) const;

    const Dialect& dialect_;
    ViolationReceiver receiver_;
    MisplacedNodes misplaced_;
};

/// What is wrong with a leaf's name of a color, a border or an alignment. `Other` for a leaf of
/// another key.
DriverFault wrongNameFault(DescriptionKey key);

}  // namespace quorvane
