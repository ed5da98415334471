#include "quorvane/driver/DescriptionReader.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane {

namespace {

struct Limit {
    std::int32_t number;
    const char* message;
};

// By the codes of the kinds.
constexpr Limit limits[] = {
    {1999, "Too many row nodes."},
    {2999, "Too many cell nodes."},
    {3999, "Too many para nodes."},
    {999, "Too many doc nodes."},
};

constexpr const char* procedure = "CRtfDriver.treeWalkerBuild";

}  // namespace

std::vector<SourceLine> repairLines(const std::vector<SourceLine>& lines) {
    const auto needsRepair = [](const SourceLine& line, const SourceLine& next) {
        return next.text == "(r" && (line.text == "(r" || line.text == "c)");
    };
    std::vector<SourceLine> repaired;
    repaired.reserve(lines.size());
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        const auto next = line + 1;
        if (next == lines.end() || !needsRepair(*line, *next)) {
            repaired.push_back(*line);
        } else if (line->text == "c)") {
            repaired.push_back(*line);
            repaired.push_back({"r)", next->number});
        }
    }
    return repaired;
}

void DescriptionReader::treeWalkerBuild(DescriptionTree& tree,
                                        const std::vector<SourceLine>& lines) {
    std::vector<Level> levels{{&tree.root(), NodeKind::Doc}};
    openerCount_ = 0;
    auto line = lines.begin();
    while (line != lines.end() && !levels.empty()) {
        const Level level = levels.back();
        if (const auto leaf = leafIn(line->text)) {
            tree.addLeaf(*level.node, leafOf(*leaf, line->number));
            ++line;
        } else if (const NodeKind opened = openedKind(line->text, vocabulary_);
                   opened != NodeKind::None) {
            ++openerCount_;
            const std::int32_t number = nextNumber(opened, *line);
            if (opened != NodeKind::Doc && !nests(level.kind, opened)) {
                levels.pop_back();
                continue;
            }
            numbers_[static_cast<std::size_t>(opened)] = number;
            levels.push_back({&tree.AddNode(*level.node, opened, number, line->number), opened});
            openerCount_ = 0;
            ++line;
        } else if (const NodeKind closed = closedKind(line->text, vocabulary_);
                   closed == level.kind) {
            levels.pop_back();
            ++line;
        } else if (closed != NodeKind::None) {
            raise(driverError(eWrongNodeType, "Wrong node type in " + std::string(line->text),
                              procedure, line->number));
        } else {
            const std::string text(line->text);
            raise(driverError(eSyntaxError, text + " has a wrong syntax",
                              "sLine is neither a recognized node nor a leaf\r\nsLeaf = " + text +
                                  "\r\n" + procedure,
                              line->number));
        }
    }
}

Leaf DescriptionReader::leafOf(const LeafParts& parts, int line) const {
    Leaf leaf{.key = vocabulary_.leafKey(parts.key), .text = parts.value, .line = line};
    if (const auto number = readNumber(parts.value)) {
        leaf.kind = LeafKind::Number;
        leaf.number = *number;
    }
    return leaf;
}

std::int32_t DescriptionReader::nextNumber(NodeKind kind, const SourceLine& line) const {
    const auto code = static_cast<std::size_t>(kind);
    const std::int32_t number = numbers_[code] + openerCount_;
    if (number > limits[code].number) {
        raise(driverError(eWrongNumberOfNodes, limits[code].message, "CRtfDriver.treeWakerBuild",
                          line.number));
    }
    return number;
}

}  // namespace quorvane
