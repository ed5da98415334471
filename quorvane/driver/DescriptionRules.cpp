#include "quorvane/driver/DescriptionRules.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "quorvane/base/text/rounding.h"

namespace quorvane {

namespace {

constexpr DriverFault unknownKeyFaults[] = {DriverFault::UnknownRowKey, DriverFault::UnknownCellKey,
                                            DriverFault::UnknownParaKey,
                                            DriverFault::UnknownDocKey};

/// The kind of node that stands in one of that kind; a paragraph stands for itself.
NodeKind innerKind(NodeKind kind) {
    constexpr NodeKind inner[] = {NodeKind::Cell, NodeKind::Para, NodeKind::Para, NodeKind::Row};
    return inner[indexOf(kind)];
}

/// True for the name of a value, and for a number that is a value of the enumeration itself.
bool hasNamedValue(const Leaf& leaf, const Vocabulary& vocabulary) {
    if (contains(colorKeys, leaf.key.known)) {
        return vocabulary.colorOf(leaf).has_value();
    }
    return contains(borderKeys, leaf.key.known) ? vocabulary.borderOf(leaf).has_value()
                                                : vocabulary.alignmentOf(leaf).has_value();
}

}  // namespace

DriverFault wrongNameFault(DescriptionKey key) {
    return contains(colorKeys, key)       ? DriverFault::WrongColor
           : contains(borderKeys, key)    ? DriverFault::WrongBorder
           : contains(alignmentKeys, key) ? DriverFault::WrongAlignment
                                          : DriverFault::Other;
}

/// Visits each node before those in it. Nodes may be nested as deep as the text is long.
template <class Check>
void DescriptionRules::walk(DescriptionNode& doc, bool sortsChildren, Check check) const {
    std::vector<Visit> pending{{&doc, NodeKind::Doc}};
    while (!pending.empty()) {
        const Visit visit = pending.back();
        check(visit);
        goOn(pending);
        if (visit.node->firstChild) {
            enter(visit, sortsChildren, pending);
        }
    }
}

/// Puts the next child of the same parent in the place of the last visit, if that goes on.
void DescriptionRules::goOn(std::vector<Visit>& pending) const {
    Visit& last = pending.back();
    if (last.goesOn && last.node->next) {
        last.node = last.node->next;
        last.kind = rulesFor(*last.node, last.parentKind);
    } else {
        pending.pop_back();
    }
}

void DescriptionRules::enter(const Visit& visit, bool sortsChildren,
                             std::vector<Visit>& pending) const {
    DescriptionNode& node = *visit.node;
    const auto visitOf = [&](DescriptionNode& child, bool goesOn) {
        return Visit{&child, rulesFor(child, visit.kind), &node, visit.kind, goesOn};
    };
    if (!sortsChildren || node.childrenAscend) {
        pending.push_back(visitOf(*node.firstChild, true));
        return;
    }
    const auto firstChild = static_cast<std::ptrdiff_t>(pending.size());
    for (DescriptionNode& child : node.children()) {
        pending.push_back(visitOf(child, false));
    }
    std::sort(pending.begin() + firstChild, pending.end(),
              [](const Visit& a, const Visit& b) { return a.node->number < b.node->number; });
    std::reverse(pending.begin() + firstChild, pending.end());
}

NodeKind DescriptionRules::rulesFor(const DescriptionNode& child, NodeKind parent) const {
    return misplaced_ == MisplacedNodes::ByPlace ? innerKind(parent) : child.kind;
}

void DescriptionRules::docWalkerSyntax(DescriptionNode& doc) const {
    walk(doc, true, [this](const Visit& visit) {
        if (visit.kind == NodeKind::Para &&
            (visit.node->keys & dialect_.values.paragraphContent) == 0) {
            report(DriverFault::NoParaText, *visit.node, visit.kind);
        }
        checkKeys(visit);
        checkChildren(visit);
    });
}

void DescriptionRules::checkChildren(const Visit& visit) const {
    DescriptionNode& node = *visit.node;
    if (visit.kind == NodeKind::Para) {
        for (DescriptionNode& child : node.children()) {
            report(DriverFault::NodeInParagraph, child, visit.kind);
        }
    } else if (node.children().empty() && visit.kind == NodeKind::Row) {
        report(DriverFault::NoCell, node, visit.kind);
    } else if (node.children().empty() && !visit.parent) {
        report(DriverFault::NoRow, node, visit.kind);
    }
}

/// Reports unknown keys in ascending order.
void DescriptionRules::checkKeys(const Visit& visit) const {
    const KeySet known = dialect_.vocabulary.keySetOf(visit.kind);
    const auto isKnown = [known](const Leaf& leaf) { return contains(known, leaf.key.known); };
    const auto leaves = visit.node->leaves();
    if (std::all_of(leaves.begin(), leaves.end(), isKnown)) {
        return;
    }
    std::vector<Leaf*> unknown;
    for (Leaf& leaf : leaves) {
        if (!isKnown(leaf)) {
            unknown.push_back(&leaf);
        }
    }
    std::sort(unknown.begin(), unknown.end(),
              [](const Leaf* a, const Leaf* b) { return a->key.name < b->key.name; });
    for (Leaf* leaf : unknown) {
        receiver_({.fault = unknownKeyFaults[indexOf(visit.kind)],
                   .error = driverError(unknownKeyFaults[indexOf(visit.kind)], leaf->key.name,
                                        leaf->line),
                   .part = leaf->writtenKey,
                   .node = visit.node,
                   .leaf = leaf,
                   .kind = visit.kind});
    }
}

void DescriptionRules::treeWalkerSemantic(DescriptionNode& doc) const {
    walk(doc, false, [this](const Visit& visit) {
        checkPlace(visit);
        for (Leaf& leaf : visit.node->leaves()) {
            checkValue(leaf);
        }
    });
}

void DescriptionRules::checkPlace(const Visit& visit) const {
    if (visit.parent && !nests(visit.parent->kind, visit.node->kind)) {
        report(DriverFault::WrongContext, *visit.node, visit.parent->kind);
    }
}

void DescriptionRules::checkValue(Leaf& leaf) const {
    const DescriptionKey key = leaf.key.known;
    // A number is admitted: whether it is a value of the enumeration shows when the document is
    // built.
    if (contains(colorKeys, key)) {
        if (!leaf.isNumber() && !dialect_.vocabulary.colorNamed(leaf)) {
            report(DriverFault::WrongColor, leaf, leaf.valueText());
        }
    } else if (contains(borderKeys, key) && !leaf.isNumber() &&
               !dialect_.vocabulary.borderNamed(leaf)) {
        report(DriverFault::WrongBorder, leaf, leaf.valueText());
    }
    if (contains(textOrNumberKeys, key)) {
        if (leaf.kind == LeafKind::Neither) {
            report(DriverFault::NotANumberOrText, leaf, leaf.key.name);
        }
    } else if (!leaf.isNumber()) {
        report(DriverFault::NotANumber, leaf, leaf.key.name);
    }
}

void DescriptionRules::checkBuiltValues(DescriptionNode& doc) const {
    walk(doc, false, [this](const Visit& visit) {
        for (Leaf& leaf : visit.node->leaves()) {
            checkBuiltValue(leaf);
        }
    });
}

void DescriptionRules::checkBuiltValue(Leaf& leaf) const {
    const DescriptionKey key = leaf.key.known;
    if (const DriverFault fault = wrongNameFault(key); fault != DriverFault::Other) {
        const bool isBuilt = leaf.isNumber() || fault == DriverFault::WrongAlignment;
        if (isBuilt && !hasNamedValue(leaf, dialect_.vocabulary)) {
            report(fault, leaf, leaf.valueText());
        }
    } else if (key != DescriptionKey::Unknown && !contains(textOrNumberKeys | filingKeys, key) &&
               leaf.isNumber() && !fitsInLong(leaf.number)) {
        report(DriverFault::Overflow, leaf);
    }
}

void DescriptionRules::report(DriverFault fault, DescriptionNode& node, NodeKind kind) const {
    receiver_({.fault = fault,
               .error = driverError(fault, {}, node.line),
               .part = node.opener,
               .node = &node,
               .kind = kind});
}

void DescriptionRules::report(DriverFault fault, Leaf& leaf, std::string_view argument) const {
    receiver_({.fault = fault,
               .error = driverError(fault, argument, leaf.line),
               .part = leaf.text,
               .leaf = &leaf});
}

}  // namespace quorvane
