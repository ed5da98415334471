#pragma once

#include <string_view>

#include "quorvane/driver/NodeKind.h"

namespace quorvane {

/// What messages call a node: "document", "row", "cell" or "paragraph".
constexpr std::string_view nodeNoun(NodeKind kind) {
    constexpr std::string_view nouns[] = {"row", "cell", "paragraph", "document", ""};
    return nouns[indexOf(kind)];
}

}  // namespace quorvane
