#include "quorvane/diagnostics/description/nodeErrors.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/description/keyHints.h"
#include "quorvane/diagnostics/description/numberHints.h"
#include "quorvane/diagnostics/description/valueHints.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/stylesheet/textFormatHints.h"

namespace quorvane {

namespace {

constexpr NodeKind kinds[] = {NodeKind::Doc, NodeKind::Row, NodeKind::Cell, NodeKind::Para};

/// Words that people write for names of this language that look quite different.
constexpr std::pair<std::string_view, std::string_view> otherWords[] = {
    {"crimson", "dark-red"},  {"maroon", "dark-red"},   {"scarlet", "red"},
    {"navy", "navy-blue"},    {"grey", "gray"},         {"dark-grey", "dark-gray"},
    {"light-gray", "silver"}, {"light-grey", "silver"}, {"lightgray", "silver"},
    {"lightgrey", "silver"},  {"teal", "dark-cyan"},    {"lime", "green"},
    {"olive", "dark-yellow"}, {"violet", "purple"},     {"fuchsia", "magenta"},
    {"aqua", "cyan"},         {"transparent", "none"},  {"no", "none"},
    {"medium", "normal"},     {"bold", "thick"},        {"single", "thin"},
    {"solid", "thin"},        {"double", "thick"},      {"thinner", "hair"},
    {"center", "centered"},   {"centre", "centered"},   {"centred", "centered"},
    {"middle", "centered"},   {"justify", "justified"}, {"block", "justified"},
};

/// Those of them that are the name itself, spelled in another way.
constexpr std::string_view otherSpellings[] = {"grey",   "dark-grey", "center",
                                               "centre", "centred",   "justify"};

/// The value within its quotation marks; the value where it has none.
std::string_view withoutQuotes(std::string_view value) {
    const bool isQuoted = value.size() > 2 && value.front() == value.back() &&
                          (value.front() == '"' || value.front() == '\'');
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

/// `noun` says what the names are names of.
Hint nameHint(const std::string& value, const std::vector<std::string_view>& names,
              std::string_view noun) {
    if (value.empty()) {
        return "the value is missing; write none for no " + std::string(noun);
    }
    if (const std::string_view bare = withoutQuotes(value); bare.size() < value.size()) {
        return spellingHint(lowerCase(bare), names);
    }
    const std::string word = lowerCase(value);
    for (const auto& [other, meant] : otherWords) {
        if (word == other) {
            for (const std::string_view name : names) {
                if (name == meant) {
                    const bool isSpelling =
                        std::find(std::begin(otherSpellings), std::end(otherSpellings), other) !=
                        std::end(otherSpellings);
                    Hint hint("did you mean " + std::string(meant) + "?");
                    if (isSpelling) {
                        hint.replacement = std::string(meant);
                    }
                    return hint;
                }
            }
        }
    }
    return spellingHint(value, names);
}

Hint hintOr(const Hint& first, const Hint& otherwise) {
    return first.empty() ? otherwise : first;
}

bool fitsLong(double number) {
    // Halves go to the even neighbour: the lower border keeps its half, the upper one does not.
    return number >= std::numeric_limits<std::int32_t>::min() - 0.5 &&
           number < std::numeric_limits<std::int32_t>::max() + 0.5;
}

class NodeErrors {
public:
    NodeErrors(const SourceText& source, const Vocabulary& vocabulary, DiagnosticEngine& engine)
        : source_(source), vocabulary_(vocabulary), engine_(engine) {}

    void check(OutlineNode& node) {
        checkPlace(node);
        checkChildren(node);
        for (OutlineLeaf& leaf : node.leaves) {
            if (!leaf.isFaulty) {
                checkLeaf(node.kind, leaf);
            }
        }
        if (node.kind != NodeKind::Para) {
            checkKeysOfChildren(node);
        }
    }

private:
    void report(DiagnosticId id, OutlineLeaf& leaf, std::string_view part,
                std::initializer_list<std::string_view> arguments, Hint hint) {
        leaf.isFaulty = true;
        engine_.report(id, source_.placeOf(part), arguments, std::move(hint));
    }

    void checkPlace(OutlineNode& node) {
        const NodeKind parent = node.parent->kind;
        const bool isDoc = node.parent->parent == nullptr;
        if (isDoc || nests(parent, node.kind)) {
            return;
        }
        node.isFaulty = true;
        engine_.report(
            parent == NodeKind::Para ? DiagnosticId::NodeInParagraph : DiagnosticId::WrongContext,
            source_.placeOf(node.line));
    }

    void checkChildren(const OutlineNode& node) {
        if (node.kind == NodeKind::Doc && node.children.empty() && !node.isFaulty) {
            engine_.report(DiagnosticId::NoRow, source_.placeOf(node.line));
        } else if (node.kind == NodeKind::Row && node.children.empty()) {
            engine_.report(DiagnosticId::NoCell, source_.placeOf(node.line));
        } else if (node.kind == NodeKind::Para && !node.find("para-text") && !meansText(node)) {
            engine_.report(DiagnosticId::NoParaText, source_.placeOf(node.line));
        }
    }

    /// True when a key that is none was most likely meant to be para-text.
    bool meansText(const OutlineNode& node) const {
        constexpr std::string_view forms[] = {"para-text", "pt", "text"};
        return std::any_of(node.leaves.begin(), node.leaves.end(), [&](const OutlineLeaf& leaf) {
            return !vocabulary_.isKeyOf(NodeKind::Para, leaf.key) &&
                   !nearestWord(leaf.writtenKey, forms).empty();
        });
    }

    void checkLeaf(NodeKind kind, OutlineLeaf& leaf) {
        if (!vocabulary_.isKeyOf(kind, leaf.key)) {
            report(DiagnosticId::WrongKeyword, leaf, leaf.writtenKey, {leaf.key},
                   keyHint(kind, leaf));
            return;
        }
        const std::string value = valueText(leaf.value());
        const std::string_view key = leaf.key;
        if (vocabulary_.isColorKey(key)) {
            const bool isNumber = leaf.number && Vocabulary::isColorNumber(*leaf.number);
            if (!isNumber && !vocabulary_.colorNamed(leaf.value())) {
                report(DiagnosticId::WrongColor, leaf, leaf.text, {value},
                       hintOr(colorValueHint(value, vocabulary_),
                              nameHint(value, Vocabulary::colorNames(), "color")));
            }
        } else if (vocabulary_.isBorderKey(key)) {
            const bool isNumber = leaf.number && Vocabulary::isBorderNumber(*leaf.number);
            if (!isNumber && !vocabulary_.borderNamed(leaf.value())) {
                report(DiagnosticId::WrongBorder, leaf, leaf.text, {value},
                       hintOr(borderValueHint(value),
                              nameHint(value, Vocabulary::borderNames(), "border")));
            }
        } else if (leaf.key.ends_with("-alignment")) {
            const bool isNumber = leaf.number && Vocabulary::isAlignmentNumber(*leaf.number);
            if (!isNumber && !vocabulary_.alignmentNamed(leaf.value())) {
                report(DiagnosticId::WrongAlignment, leaf, leaf.text, {value},
                       nameHint(value, Vocabulary::alignmentNames(), "alignment"));
            }
        } else if (!vocabulary_.isTextOrNumberKey(key)) {
            checkNumber(leaf);
        }
    }

    void checkNumber(OutlineLeaf& leaf) {
        if (!leaf.number) {
            report(DiagnosticId::NotANumber, leaf, leaf.text, {leaf.key},
                   numberHint(leaf.key, leaf.text));
        } else if (!leaf.key.ends_with("-key") && !fitsLong(*leaf.number)) {
            report(DiagnosticId::Overflow, leaf, leaf.text, {}, {});
        }
    }

    Hint keyHint(NodeKind kind, const OutlineLeaf& leaf) const {
        const std::string lower = lowerCase(leaf.writtenKey);
        if (lower != leaf.writtenKey && vocabulary_.isKeyOf(kind, vocabulary_.expand(lower))) {
            return {"write keys in lower case: " + lower, lower};
        }
        if (Hint hint = textFormatHint(kind, leaf.writtenKey, leaf.text); !hint.empty()) {
            return hint;
        }
        for (const NodeKind other : kinds) {
            if (vocabulary_.isKeyOf(other, leaf.key)) {
                return "this is a key of a " + std::string(nodeKindName(other)) + ", not of a " +
                       std::string(nodeKindName(kind));
            }
        }
        return nearKeyHint(kind, leaf.writtenKey, vocabulary_);
    }

    /// Goes through the collection of the node's children as the build does, which takes each
    /// child out of it under its number and puts it back under its key.
    void checkKeysOfChildren(OutlineNode& node) {
        std::unordered_map<std::string, const OutlineNode*> taken;
        std::vector<std::pair<OutlineNode*, OutlineLeaf*>> keyed;
        for (OutlineNode* child : node.children) {
            if (child->isFaulty) {
                continue;
            }
            taken.emplace(std::to_string(child->number), child);
            for (OutlineLeaf& leaf : child->leaves) {
                if (!leaf.isFaulty && leaf.number && leaf.key.ends_with("-key") &&
                    vocabulary_.isKeyOf(child->kind, leaf.key)) {
                    keyed.emplace_back(child, &leaf);
                }
            }
        }
        for (const auto& [child, leaf] : keyed) {
            const std::string key = valueText(leaf->value());
            const auto [holder, isFree] = taken.emplace(key, child);
            if (isFree) {
                taken.erase(std::to_string(child->number));
            } else {
                report(DiagnosticId::TakenKey, *leaf, leaf->text, {},
                       "the " + std::string(nodeKindName(holder->second->kind)) + " on line " +
                           std::to_string(source_.placeOf(holder->second->line).line) +
                           " has the key " + key);
            }
        }
    }

    const SourceText& source_;
    const Vocabulary& vocabulary_;
    DiagnosticEngine& engine_;
};

}  // namespace

void findNodeErrors(DescriptionOutline& outline, const SourceText& source,
                    const Vocabulary& vocabulary, DiagnosticEngine& engine) {
    NodeErrors errors(source, vocabulary, engine);
    for (OutlineNode& node : outline.nodes) {
        if (!node.isOutside) {
            errors.check(node);
        }
    }
}

}  // namespace quorvane
