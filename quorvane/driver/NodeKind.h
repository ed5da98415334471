#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvane {

/// Kinds of nodes. Their codes determine the nesting and the numbers of nodes.
enum class NodeKind : std::int32_t { Row = 0, Cell = 1, Para = 2, Doc = 3, None = 4 };

/// The kinds from the outermost to the innermost.
inline constexpr std::array<NodeKind, 4> nodeKinds{NodeKind::Doc, NodeKind::Row, NodeKind::Cell,
                                                   NodeKind::Para};

/// The position of a kind in a list that has one entry for each kind, in the order of their codes.
constexpr std::size_t indexOf(NodeKind kind) {
    return static_cast<std::size_t>(kind);
}

/// The name of nodes of that kind in a description, in its long form: "row", "cell", "para", "doc".
/// `None` has no name.
constexpr std::string_view nodeName(NodeKind kind) {
    constexpr std::string_view names[] = {"row", "cell", "para", "doc", ""};
    return names[indexOf(kind)];
}

/// True for a row in doc, a cell in a row and a paragraph in a cell.
constexpr bool nests(NodeKind parent, NodeKind child) {
    return (parent == NodeKind::Doc && child == NodeKind::Row) ||
           (parent == NodeKind::Row && child == NodeKind::Cell) ||
           (parent == NodeKind::Cell && child == NodeKind::Para);
}

}  // namespace quorvane
