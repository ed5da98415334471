#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/base/values/Value.h"
#include "tests/driver/plainReader.h"
#include "tests/fuzz/PlainDocument.h"

// An analysis as its steps are stated, without regard to speed: the description read into a tree,
// checked and built into a plain document.

namespace quorvane::plain {

inline const std::set<std::string>& keysOf(int kind) {
    static const std::vector<std::set<std::string>> keys = {
        {"row-backcolor", "row-top-border", "row-bottom-border", "row-left-border",
         "row-right-border", "row-key"},
        {"cell-alignment", "cell-backcolor", "cell-top-border", "cell-bottom-border",
         "cell-left-border", "cell-right-border", "cell-key", "cell-width", "cell-style",
         "cell-marked-field"},
        {"para-text", "para-style", "para-key", "para-alignment", "para-marked-field"},
        {"paper-height", "paper-width", "page-number-start", "left-margin", "right-margin",
         "bottom-margin", "top-margin"},
    };
    return keys[static_cast<std::size_t>(kind)];
}

using Names = std::map<std::string, std::int32_t>;

inline const Names colorNames = {{"black", 3},          {"blue", 4},
                                 {"cyan", 7},           {"green", 18},
                                 {"magenta", 23},       {"red", 30},
                                 {"yellow", 37},        {"white", 36},
                                 {"navy-blue", 24},     {"dark-cyan", 8},
                                 {"dark-green", 10},    {"dark-magenta", 11},
                                 {"dark-red", 12},      {"dark-yellow", 14},
                                 {"deep-sky-blue", 15}, {"gray", 17},
                                 {"silver", 32},        {"dark-gray", 9},
                                 {"brown", 5},          {"olive-green", 25},
                                 {"slate-blue", 34},    {"dark-slate-blue", 13},
                                 {"orange", 26},        {"lime-green", 22},
                                 {"sea-green", 31},     {"aquamarine", 1},
                                 {"light-blue", 19},    {"purple", 29},
                                 {"gold", 16},          {"chartreuse", 6},
                                 {"turquoise", 35},     {"sky-blue", 33},
                                 {"peach-puff", 27},    {"bisque", 2},
                                 {"pink", 28},          {"light-yellow", 21},
                                 {"light-green", 20},   {"none", 0}};
inline const Names borderNames = {
    {"none", -1}, {"hair", 5}, {"thin", 10}, {"normal", 20}, {"thick", 30}};
inline const Names alignmentNames = {
    {"left", 2}, {"right", 3}, {"centered", 1}, {"justified", 4}, {"none", 0}};

/// The value of a name, in whatever case; nothing for a number, which is not a name.
inline std::optional<std::int32_t> named(const Names& names, const Leaf& leaf) {
    const auto found = names.find(lowered(leaf.text));
    return leaf.number || found == names.end() ? std::nullopt : std::optional(found->second);
}

/// The leaves in ascending order of their keys.
inline std::map<std::string, Leaf> leavesOf(const Node& node) {
    std::map<std::string, Leaf> leaves;
    for (const Node::Entry& entry : node.entries) {
        if (entry.isLeaf()) {
            leaves[entry.key] = entry.leaf;
        }
    }
    return leaves;
}

/// The child nodes in ascending order of their numbers.
inline std::vector<const Node::Entry*> childrenOf(const Node& node) {
    std::vector<const Node::Entry*> children;
    for (const Node::Entry& entry : node.entries) {
        if (!entry.isLeaf()) {
            children.push_back(&entry);
        }
    }
    std::sort(children.begin(), children.end(),
              [](auto* a, auto* b) { return std::stoi(a->key) < std::stoi(b->key); });
    return children;
}

// The two walks of the checks. Each throws what it first finds wrong.

inline void checkKeys(const Node& node, int kind, const char* source) {
    for (const auto& [key, leaf] : leavesOf(node)) {
        if (!keysOf(kind).contains(key)) {
            throw driverErrorOf(eWrongKeyword, key + " isn't a valid keyword.", source, leaf.line);
        }
    }
}

inline void checkSyntax(const Node& node, int kind) {
    const auto fail = [&](const char* message, const char* source, int line) {
        throw driverErrorOf(eWrongKeyword, message, source, line);
    };
    const auto children = childrenOf(node);
    if (kind == docKind) {
        checkKeys(node, kind, "CRtfDriver.docWalkerSyntax");
        if (children.empty()) {
            fail("Must have at least one row.", "CRtfDriver.docWalkerSyntax", node.line);
        }
    } else if (kind == rowKind) {
        checkKeys(node, kind, "CRtfDriver.rowWalkerSyntax");
        if (children.empty()) {
            fail("Must have at least one cell.", "CRtfDriver.rowWalkerSyntax", node.line);
        }
    } else if (kind == cellKind) {
        checkKeys(node, kind, "CRtfDriver.cellWalkerSyntax");
    } else {
        if (!leavesOf(node).contains("para-text")) {
            throw driverErrorOf(eSyntaxError, "In a para group para-text is mandatory.",
                                "CRtfDriver.paraWalkerSyntax", node.line);
        }
        checkKeys(node, kind, "CrtfDriver.paraWalkerSyntax");
        if (!children.empty()) {
            fail("A paragraph is a terminal node", "CRtfDriver.paraWalkerSyntax",
                 children.front()->child.front().line);
        }
    }
    // Whatever the children are: a level further down is what they are taken for.
    for (const Node::Entry* child : children) {
        checkSyntax(child->child.front(), kind == docKind ? rowKind : kind + 1);
    }
}

inline bool endsIn(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

inline void checkSemantics(const Node& node, int kind) {
    static const std::set<std::string> numeric = {
        "paper-height", "paper-width",   "page-number-start", "left-margin",
        "right-margin", "bottom-margin", "top-margin",        "row-key",
        "cell-key",     "cell-width",    "para-key"};
    static const std::set<std::string> known = [] {
        std::set<std::string> all;
        for (const int each : {rowKind, cellKind, paraKind, docKind}) {
            all.insert(keysOf(each).begin(), keysOf(each).end());
        }
        return all;
    }();
    for (const Node::Entry& entry : node.entries) {
        if (!entry.isLeaf()) {
            continue;
        }
        const auto fail = [&](const std::string& message, const char* source) {
            throw driverErrorOf(eWrongValue, message, source, entry.leaf.line);
        };
        const bool isKnown = known.contains(entry.key);
        if (isKnown && endsIn(entry.key, "-backcolor") && !entry.leaf.number &&
            !named(colorNames, entry.leaf)) {
            fail(entry.leaf.value() + " isn't a recognized color.", "CRtfDriver.treWalkerSemantic");
        }
        if (isKnown && endsIn(entry.key, "-border") && !entry.leaf.number &&
            !named(borderNames, entry.leaf)) {
            fail(entry.leaf.value() + " isn't a recognized border.",
                 "CRtfDriver.treWalkerSemantic");
        }
        if ((!isKnown || numeric.contains(entry.key)) && !entry.leaf.number) {
            fail("Value for " + entry.key + " should be numeric.", "CRtfDriver.treeWalkerSemantic");
        }
    }
    for (const Node::Entry& entry : node.entries) {
        if (!entry.isLeaf()) {
            if (!mayStandIn(kind, entry.kind)) {
                throw driverErrorOf(eSyntaxError, "Invalid node declaration in this context\r\n",
                                    "CRtDriver.treeWalkerSemantic", entry.child.front().line);
            }
            checkSemantics(entry.child.front(), entry.kind);
        }
    }
}

/// Builds a tree into an empty document, up to the end or the first error, which it throws.
class Builder {
public:
    Builder(std::shared_ptr<Document> document, const Node& docNode)
        : document_(std::move(document)), rows_{document_->rows} {
        addStructure(docNode);
        apply(docNode, docKind, [this](const std::string& key, const Leaf& leaf) {
            applyToDocument(key, wholeNumber(leaf));
        });
        for (const Node::Entry* row : childrenOfKind(docNode, rowKind)) {
            applyRow(*row);
        }
    }

private:
    static std::vector<const Node::Entry*> childrenOfKind(const Node& node, int kind) {
        std::vector<const Node::Entry*> children = childrenOf(node);
        std::erase_if(children, [kind](const Node::Entry* child) { return child->kind != kind; });
        return children;
    }

    void addStructure(const Node& docNode) const {
        for (const Node::Entry* row : childrenOfKind(docNode, rowKind)) {
            rows_.insert(rows_.list().count() + 1, row->key);
            document_->changed = true;
            const CellsView cells{rows_.list().entries.back().element};
            for (const Node::Entry* cell : childrenOfKind(row->child.front(), cellKind)) {
                cells.insert(cells.list().count() + 1, cell->key);
                const ParagraphsView paragraphs{cells.list().entries.back().element};
                for (const Node::Entry* para : childrenOfKind(cell->child.front(), paraKind)) {
                    paragraphs.insert(paragraphs.list().count() + 1, para->key);
                }
            }
        }
    }

    /// Applies the leaves that the kind knows; an error concerns the line of its leaf.
    static void apply(const Node& node, int kind,
                      const std::function<void(const std::string&, const Leaf&)>& applyLeaf) {
        for (const auto& [key, leaf] : leavesOf(node)) {
            if (!keysOf(kind).contains(key)) {
                continue;
            }
            try {
                applyLeaf(key, leaf);
            } catch (const int number) {
                const RtfError error{RunTimeError{number}};
                throw ErrorFacts{error.number, error.description, "", leaf.line};
            }
        }
    }

    static std::int32_t wholeNumber(const Leaf& leaf) {
        if (!leaf.number) {
            throw 13;
        }
        const double whole = std::nearbyint(*leaf.number);
        if (!(whole >= INT32_MIN && whole <= INT32_MAX)) {
            throw 6;
        }
        return static_cast<std::int32_t>(whole);
    }

    /// A name's value, or a number that is one of these.
    static std::int32_t valueOf(const Leaf& leaf, const Names& names,
                                const std::set<std::int32_t>& values, const char* complaint) {
        if (const auto value = named(names, leaf)) {
            return *value;
        }
        for (const std::int32_t value : values) {
            if (leaf.number && *leaf.number == value) {
                return value;
            }
        }
        throw driverErrorOf(eWrongValue, leaf.value() + complaint, "CRtfDriver.treWalkerSemantic",
                            leaf.line);
    }

    static std::int32_t colorOf(const Leaf& leaf) {
        std::set<std::int32_t> colors;
        for (std::int32_t color = 0; color <= 57; ++color) {
            colors.insert(color);
        }
        return valueOf(leaf, colorNames, colors, " isn't a recognized color.");
    }
    static std::int32_t borderOf(const Leaf& leaf) {
        return valueOf(leaf, borderNames, {-1, 5, 10, 20, 30}, " isn't a recognized border.");
    }
    static std::int32_t alignmentOf(const Leaf& leaf) {
        return valueOf(leaf, alignmentNames, {0, 1, 2, 3, 4}, " isn't a recognized alignment.");
    }

    /// Bottom, left, right and top, as the borders of a document stand.
    static std::size_t sideOf(const std::string& key) {
        return endsIn(key, "-bottom-border")  ? 0
               : endsIn(key, "-left-border")  ? 1
               : endsIn(key, "-right-border") ? 2
                                              : 3;
    }

    static Value dataOf(const Leaf& leaf) {
        return leaf.number ? Value(*leaf.number) : Value(leaf.text);
    }

    void applyToDocument(const std::string& key, std::int32_t number) const {
        Document& page = *document_;
        if (key == "paper-height") {
            page.height = number;
            page.changed = true;
        } else if (key == "paper-width") {
            page.width = number;
            page.changed = true;
        } else if (key == "page-number-start") {
            page.changed = page.changed || page.pageNumber != (number > 0 ? number : 2);
            page.pageNumber = number > 0 ? number : 2;
        } else if (key == "left-margin") {
            page.setMargin(page.left, number, page.width, page.right, 1);
        } else if (key == "right-margin") {
            page.setMargin(page.right, number, page.width, page.left, 3);
        } else if (key == "top-margin") {
            page.setMargin(page.top, number, page.height, page.bottom, 2);
        } else {
            page.setMargin(page.bottom, number, page.height, page.top, 0);
        }
    }

    void applyRow(const Node::Entry& entry) const {
        const Node& node = entry.child.front();
        auto row = rows_.list().at(rows_.list().positionOfKey(entry.key));
        apply(node, rowKind, [&](const std::string& key, const Leaf& leaf) {
            if (key == "row-key") {
                row = rows_.refile(row, leaf.value());
            } else if (key == "row-backcolor") {
                setBackColorOf(*row, colorOf(leaf));
            } else {
                setBorderOf(*row, sideOf(key), borderOf(leaf));
            }
        });
        for (const Node::Entry* cell : childrenOfKind(node, cellKind)) {
            applyCell({row}, *cell);
        }
    }

    static void applyCell(const CellsView& cells, const Node::Entry& entry) {
        const Node& node = entry.child.front();
        auto cell = cells.list().at(cells.list().positionOfKey(entry.key));
        apply(node, cellKind, [&](const std::string& key, const Leaf& leaf) {
            if (key == "cell-key") {
                cell = cells.refile(cell, leaf.value());
            } else if (key == "cell-backcolor") {
                cell->setBackColor(colorOf(leaf));
            } else if (key == "cell-width") {
                setWidthOf(*cell, 0, wholeNumber(leaf));
            } else if (key == "cell-alignment") {
                cell->align = alignmentOf(leaf);
            } else if (key == "cell-style") {
                cell->style = leaf.value();
            } else if (key == "cell-marked-field") {
                const auto data = fieldData(dataOf(leaf));
                cell->field = data ? data : cell->field;
            } else {
                cell->borders[sideOf(key)] = borderOf(leaf);
            }
        });
        for (const Node::Entry* para : childrenOfKind(node, paraKind)) {
            applyPara({cell}, *para);
        }
    }

    static void applyPara(const ParagraphsView& paragraphs, const Node::Entry& entry) {
        auto paragraph = paragraphs.list().at(paragraphs.list().positionOfKey(entry.key));
        apply(entry.child.front(), paraKind, [&](const std::string& key, const Leaf& leaf) {
            if (key == "para-key") {
                paragraph = paragraphs.refile(paragraph, leaf.value());
            } else if (key == "para-text") {
                paragraph->text = leaf.text.empty() ? paragraph->text : leaf.text;
            } else if (key == "para-style") {
                paragraph->style = leaf.value();
            } else if (key == "para-alignment") {
                paragraph->align = alignmentOf(leaf);
            } else {
                paragraph->field = fieldData(dataOf(leaf)).value_or("");
            }
        });
    }

    std::shared_ptr<Document> document_;
    RowsView rows_;
};

/// What an analysis of a text comes to. `original` has the same styles loaded.
class Analysis {
public:
    Analysis(const std::string& text, bool erroneousInput, const CRtfDoc& original,
             const StyleSheet& styles) {
        document->original = &original;
        document->styles = styles;
        document->rows->owner = document;
        const auto holds = [&text](const char* part) {
            return text.find(part) != std::string::npos;
        };
        if (!holds("(doc")) {
            errors.push_back(driverErrorOf(eWrongFileType,
                                           "The provided file isn't a correct rtfspec file.",
                                           "CRtfDriver.AnalyseData"));
        }
        if (!holds("(doc") || !(holds("(row") || holds("(cell") || holds("(r") || holds("(c"))) {
            errors.push_back(
                driverErrorOf(eRequiredElementMissing,
                              "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell",
                              "CRtfDriver.AnalyseData"));
        }
        std::vector<Line> lines = linesOf(text);
        checkEnds(lines);
        if (erroneousInput) {
            lines = repaired(lines);
        }
        const Reader reader(lines);
        if (reader.error != ErrorFacts()) {
            errors.push_back(reader.error);
        }
        if (erroneousInput) {
            step([&] { checkSyntax(docNodeOf(reader.root), docKind); });
            step([&] { checkSemantics(docNodeOf(reader.root), docKind); });
        }
        step([&] { Builder(document, docNodeOf(reader.root)); });
    }

    std::vector<ErrorFacts> errors;
    std::shared_ptr<Document> document = std::make_shared<Document>();

private:
    void checkEnds(const std::vector<Line>& lines) {
        const bool begins = !lines.empty() && lines.front().text.substr(0, 4) == "(doc";
        const bool ends = !lines.empty() && lines.back().text.substr(0, 4) == "doc)";
        if (!begins || !ends) {
            const int line = lines.empty() ? 0
                             : begins      ? lines.back().number
                                           : lines.front().number;
            errors.push_back(driverErrorOf(eWrongRootNode, "(doc must be the first node.",
                                           "CRtfDriver.Analysedata", line));
        }
    }

    static const Node& docNodeOf(const Node& root) {
        for (const Node::Entry& entry : root.entries) {
            if (!entry.isLeaf() && entry.key == "1") {
                return entry.child.front();
            }
        }
        throw absentKey();
    }

    template <class Body>
    void step(Body&& body) {
        try {
            body();
        } catch (const ErrorFacts& error) {
            errors.push_back(error);
        }
    }
};

}  // namespace quorvane::plain
