#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "quorvane/driver/DescriptionTree.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/driver/lineClassifier.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane {

/// Closes rows that were left open before the next one, and drops the first of two openers in a
/// row: where a line `(r` follows another one, the first goes; where `(r` follows `c)`, a line `r)`
/// comes between them. Only lines that read exactly so are seen.
std::vector<SourceLine> repairLines(const std::vector<SourceLine>& lines);

/// Turns the lines of one description into its tree of nodes.
class DescriptionReader {
public:
    explicit DescriptionReader(const Vocabulary& vocabulary) : vocabulary_(vocabulary) {}

    /// Fills an empty tree with the nodes and leaves of the lines, whose text must outlive it. An
    /// opener that cannot stand where it is closes the nodes that are open until it can. On an
    /// error the tree keeps what was read before. Errors: `eWrongNumberOfNodes` too many nodes of a
    /// kind, `eWrongNodeType` a closer of another node than the one that is open, `eSyntaxError` a
    /// line that is none, 457 a key that stands twice in a node.
    void treeWalkerBuild(DescriptionTree& tree, const std::vector<SourceLine>& lines);

private:
    struct Level {
        DescriptionNode* node;
        NodeKind kind;
    };

    Leaf leafOf(const LeafParts& parts, int line) const;
    std::int32_t nextNumber(NodeKind kind, const SourceLine& line) const;

    const Vocabulary& vocabulary_;
    // The number of the last node of each kind.
    std::array<std::int32_t, 4> numbers_{1000, 2000, 3000, 0};
    // Openers looked at since a level was begun, those handed back included.
    std::int32_t openerCount_ = 0;
};

}  // namespace quorvane
