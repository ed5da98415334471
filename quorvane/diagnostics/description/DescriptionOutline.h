#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/values/Value.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// A key of a description with its value; the views are into the description.
struct OutlineLeaf {
    /// The key in its long form.
    std::string key;
    std::string_view writtenKey;
    std::string_view text;
    /// Set when the value reads as a number.
    std::optional<double> number;
    /// True when an error was reported for it: it is not built.
    bool isFaulty = false;

    Value value() const { return number ? Value(*number) : Value(text); }
};

/// A node of a description.
struct OutlineNode {
    NodeKind kind = NodeKind::None;
    std::int32_t number = 0;
    /// The opener's line, trimmed.
    std::string_view line;
    OutlineNode* parent = nullptr;
    std::vector<OutlineLeaf> leaves;
    std::vector<OutlineNode*> children;
    /// True when an error was reported for it: it is not built.
    bool isFaulty = false;
    /// True for what the first doc node does not hold: it is neither checked nor built.
    bool isOutside = false;

    /// The leaf of that key; null when there is none.
    const OutlineLeaf* find(std::string_view key) const;
};

/// What a description says, read to its end whatever is wrong with it.
struct DescriptionOutline {
    /// All nodes in the order of the description; the first is the root.
    std::deque<OutlineNode> nodes;
    /// The document; null when there is none.
    OutlineNode* doc = nullptr;
};

/// Reads the lines of a description as a driver that checks does, and reports what it would reject
/// and what it mends. After an error it goes on with what was most likely meant.
DescriptionOutline readOutline(const SourceText& source, const Vocabulary& vocabulary,
                               DiagnosticEngine& engine);

/// "document", "row", "cell" or "paragraph".
std::string_view nodeKindName(NodeKind kind);

}  // namespace quorvane
