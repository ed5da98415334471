#pragma once

#include <string>
#include <string_view>

#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// Which key of a node was most likely meant by a word that is none, as a question; empty when
/// nothing is near.
std::string nearKeyHint(NodeKind kind, std::string_view word, const Vocabulary& vocabulary);

}  // namespace quorvane
