#include "quorvane/driver/DescriptionReader.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>

#include "quorvane/driver/driverErrors.h"
#include "quorvane/driver/lineClassifier.h"
#include "quorvane/support/RtfError.h"
#include "quorvane/support/numberText.h"

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

std::vector<SourceLine> repairLines(std::vector<SourceLine> lines) {
    const auto needsRepair = [](const SourceLine& line, const SourceLine& next) {
        return next.text == "(r" && (line.text == "(r" || line.text == "c)");
    };
    auto first = std::adjacent_find(lines.begin(), lines.end(), needsRepair);
    if (first == lines.end()) {
        return lines;
    }
    std::vector<SourceLine> repaired(std::make_move_iterator(lines.begin()),
                                     std::make_move_iterator(first));
    for (auto line = first; line != lines.end(); ++line) {
        const auto next = line + 1;
        if (next == lines.end() || !needsRepair(*line, *next)) {
            repaired.push_back(std::move(*line));
        } else if (line->text == "c)") {
            repaired.push_back(std::move(*line));
            repaired.push_back({"r)", next->number});
        }
    }
    return repaired;
}

void DescriptionReader::treeWalkerBuild(const std::shared_ptr<DescriptionNode>& root,
                                        const std::vector<SourceLine>& lines) {
    std::vector<Level> levels{{root, NodeKind::Doc}};
    openerCount_ = 0;
    auto line = lines.begin();
    while (line != lines.end() && !levels.empty()) {
        const Level& level = levels.back();
        if (isLeaf(line->text)) {
            addLeaf(*level.node, *line);
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
            auto node = AddNode(*level.node, opened, number, line->number);
            levels.push_back({std::move(node), opened});
            openerCount_ = 0;
            ++line;
        } else if (const NodeKind closed = closedKind(line->text, vocabulary_);
                   closed == level.kind) {
            levels.pop_back();
            ++line;
        } else if (closed != NodeKind::None) {
            raise(driverError(eWrongNodeType, "Wrong node type in " + line->text, procedure,
                              line->number));
        } else {
            raise(driverError(eSyntaxError, line->text + " has a wrong syntax",
                              "sLine is neither a recognized node nor a leaf\r\nsLeaf = " +
                                  line->text + "\r\n" + procedure,
                              line->number));
        }
    }
}

void DescriptionReader::addLeaf(DescriptionNode& node, const SourceLine& line) const {
    const std::string text(leafValue(line.text));
    const auto number = readNumber(text);
    node.addLeaf(vocabulary_.expand(leafKey(line.text)),
                 Leaf(number ? Value(*number) : Value(text), text, line.number));
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
