#pragma once

#include <string_view>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/DescriptionRecovery.h"
#include "quorvane/driver/Dialect.h"

namespace quorvane {

/// What a line that cannot be read was most likely meant to be; the views are into the line.
struct SyntaxGuess {
    MeantLine meant{};
    /// Its replacement is that of the whole line.
    Hint hint{};
};

/// Guesses at a line that is neither an opener nor a closer nor a leaf.
SyntaxGuess guessLine(std::string_view line, const Dialect& dialect);

}  // namespace quorvane
