#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/Vocabulary.h"

namespace quorvane {

/// What a line that is none was most likely meant to be; the views are into the line.
struct SyntaxGuess {
    enum class Meant { Nothing, Opener, Closer, Leaf, LeafWithoutEnd };

    Meant meant = Meant::Nothing;
    /// Of an opener and a closer.
    NodeKind kind = NodeKind::None;
    /// Of a leaf.
    std::string_view key{};
    std::string_view value{};
    /// Its replacement is that of the whole line.
    Hint hint{};
};

/// Guesses at a line that is neither an opener nor a closer nor a leaf.
SyntaxGuess guessLine(std::string_view line, const Vocabulary& vocabulary);

}  // namespace quorvane
