#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// Which key of a node was most likely meant by a word that is not a key, as a question; empty when
/// no key is near. The key is the replacement where the word certainly is that key misspelled.
Hint nearKeyHint(NodeKind kind, std::string_view word, const Vocabulary& vocabulary);

}  // namespace quorvane
