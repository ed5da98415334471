#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// Returns the diagnostics about a text, given as the bytes of its file.
using TextCheck = std::function<std::vector<Diagnostic>(std::string_view bytes)>;

/// A text with the fixes that its diagnostics carry.
struct FixedText {
    /// Fixes that were made together, since none overlaps another.
    struct Round {
        /// The text before.
        std::string bytes;
        /// The diagnostics whose fixes were made, marked as fixed.
        std::vector<Diagnostic> fixed;
    };

    std::string bytes;
    std::vector<Round> rounds;
    /// What is wrong with the fixed text.
    std::vector<Diagnostic> remaining;
    /// True when there are fixes, but the text would have more errors with them than without: it
    /// stays as it is.
    bool wasRefused = false;
};

/// Makes the fixes of a file in its encoding and checks it again, round after round, until nothing
/// more can be fixed. Bytes that no fix replaces stay as they are. A round that would bring more
/// errors than it removes is not made, and neither are fixes that undo each other.
FixedText fixText(std::string_view bytes, const TextCheck& check,
                  TextEncoding encoding = TextEncoding::Windows1252);

}  // namespace quorvane
