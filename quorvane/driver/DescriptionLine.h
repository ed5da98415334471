#pragma once

#include <cstdint>
#include <string_view>

#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/NodeKind.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane {

enum class LineType : std::uint8_t {
    /// A key with a value, such as "(paper-width=11906)".
    Leaf,
    /// The beginning of a node, such as "(row".
    Opener,
    /// The end of a node, such as "row)".
    Closer,
    /// Anything else.
    Unreadable,
};

/// What a line of a description is. The views are into the line.
struct DescriptionLine {
    LineType type = LineType::Unreadable;
    /// Of an opener and a closer.
    NodeKind kind = NodeKind::None;
    /// Of a leaf, without the blanks around them.
    std::string_view key = {};
    std::string_view value = {};
    /// Of an opener and a closer: the name of the node as it is written.
    std::string_view name = {};
    /// What follows, a comment or nothing, with the blanks around it.
    std::string_view rest = {};

    /// True for a line that opens, closes or fills a node.
    bool isReadable() const { return type != LineType::Unreadable; }
};

/// Takes a line apart. It is trimmed and holds more than a comment.
DescriptionLine descriptionLine(std::string_view line, const Dialect& dialect);

/// The same, with the value that the line is filled with.
DescriptionLine descriptionLine(const SourceLine& line, const Dialect& dialect);

/// An unreadable line as the leaf that it begins, whose value of several lines does not end; still
/// unreadable where it does not begin one.
DescriptionLine unclosedLeaf(std::string_view line, const Dialect& dialect);

/// The beginning of a line, up to its first blank or comment.
std::string_view headOf(std::string_view line, const Dialect& dialect);

/// True when a text has nothing but whitespace, or a comment after it.
bool isEmptyOrComment(std::string_view text, const Dialect& dialect);

}  // namespace quorvane
