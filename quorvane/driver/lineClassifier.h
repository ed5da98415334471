#pragma once

#include <optional>
#include <string_view>

#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

// What a line of a description is. Lines are trimmed and hold more than a comment.

/// True when the text's first character other than a blank is ";".
bool isComment(std::string_view text);

/// The key and the value of a leaf as they are written, without the blanks around them.
struct LeafParts {
    std::string_view key;
    std::string_view value;
};

/// The parts of a line that is a leaf; nothing for any other line.
std::optional<LeafParts> leafIn(std::string_view line);

/// True for a key with a value, such as `(paper-width=11906)`, and nothing but a comment behind it.
bool isLeaf(std::string_view line);

/// The kind of node that the line opens, such as `(row`; `None` when it opens none.
NodeKind openedKind(std::string_view line, const Vocabulary& vocabulary);

/// The kind of node that the line closes, such as `row)`; `None` when it closes none.
NodeKind closedKind(std::string_view line, const Vocabulary& vocabulary);

/// The key of a leaf as it is written, without the blanks around it.
std::string_view leafKey(std::string_view line);

/// The value of a leaf as it is written, without the blanks around it.
std::string_view leafValue(std::string_view line);

}  // namespace quorvane
