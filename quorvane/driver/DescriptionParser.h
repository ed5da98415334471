#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/DescriptionRecovery.h"
#include "quorvane/driver/DescriptionTree.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane {

/// Closes rows that were left open before the next one, and drops the first of two openers in a
/// row: where a line `(r` follows another one, the first goes; where `(r` follows `c)`, a line `r)`
/// comes between them. Only lines that read exactly so are seen. Reports each repair to the
/// recovery, when there is one.
std::vector<SourceLine> repairLines(const std::vector<SourceLine>& lines,
                                    const Dialect& dialect = originalDialect(),
                                    DescriptionRecovery* recovery = nullptr);

/// Turns the lines of one description into its tree of nodes. Without a recovery it stops at the
/// first error and raises it; with one it reports errors there and goes on.
class DescriptionParser {
public:
    explicit DescriptionParser(const Dialect& dialect, DescriptionRecovery* recovery = nullptr);

    /// Fills an empty tree with the nodes and leaves of the lines, whose text must outlive it. An
    /// opener that cannot stand where it is closes the nodes that are open until it can. The
    /// description ends where it closes the tree's root. On an error that is raised, the tree keeps
    /// what was read before. Errors: `eWrongNumberOfNodes` too many nodes of a kind,
    /// `eWrongNodeType` a closer of another node than the one that is open, `eSyntaxError` a line
    /// that is neither an opener nor a closer nor a leaf, 457 a key that stands twice in a node.
    /// Where the dialect says so, an opener that cannot stand where it is, and a leaf outside the
    /// document, are errors `eSyntaxError`, and so is a value of several lines that does not end.
    void treeWalkerBuild(DescriptionTree& tree, const std::vector<SourceLine>& lines);

private:
    using Lines = std::vector<SourceLine>::const_iterator;

    void readLine(const SourceLine& line);
    void readLeaf(const SourceLine& line, const DescriptionLine& parts);
    void addLeaf(const SourceLine& line, const DescriptionLine& parts, bool isFaulty);
    void open(const SourceLine& line, const DescriptionLine& parts);
    bool makeRoomFor(const SourceLine& line, NodeKind kind);
    void checkLimit(const SourceLine& line, NodeKind kind);
    void addNode(NodeKind kind, std::int32_t number, const SourceLine& line);
    void close(const SourceLine& line, const DescriptionLine& parts);
    void readUnreadable(const SourceLine& line);
    void readAsMeant(const SourceLine& line, const MeantLine& likely);
    void openMeant(const SourceLine& line, NodeKind kind);
    void passOverRestOfValue();
    void passOverUnreadableLines();
    void leaveNode();
    void reject(const Violation& violation) const;
    void rejectPlace(const SourceLine& line, NodeKind kind, NodeKind parent);
    void rejectUnclosed(const SourceLine& line, std::string_view value);
    bool rejectsMisplaced() const;
    bool canStandHere(NodeKind kind) const;
    bool isSoundBlock(const SourceLine& line, const DescriptionLine& parts);

    DescriptionNode& innermost() const { return *nodes_.back(); }
    std::size_t depth() const { return nodes_.size() - 1; }
    bool keepsRootOpen() const;

    const Dialect& dialect_;
    DescriptionRecovery* recovery_;
    DescriptionTree* tree_ = nullptr;
    Lines next_;
    Lines end_;
    // The nodes that are open, the root first.
    std::vector<DescriptionNode*> nodes_;
    // How many nodes of each kind are open, the root not counted.
    std::array<std::int64_t, 4> openNodes_{};
    // The number of the last node of each kind.
    std::array<std::int32_t, 4> numbers_{};
    std::array<bool, 4> isOverLimit_{};
    // Openers looked at since a node was opened, those included that closed one.
    std::int32_t openerCount_ = 0;
    bool hasDocument_ = false;
};

}  // namespace quorvane
