#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

// Mojibake is what a file in UTF-8 looks like when it is read in Windows-1252: each character
// beyond ASCII becomes several.

/// A character that reads as several others.
struct MeantCharacter {
    /// In UTF-8.
    std::string text;
    char32_t code = 0;
    /// Bytes of the characters that it reads as.
    std::size_t length = 0;
};

/// The character that was meant by those at a position of the text (UTF-8); nothing where they are
/// not mojibake.
std::optional<MeantCharacter> meantCharacterAt(std::string_view text, std::size_t at);

/// Keeps the first diagnostic of each kind about mojibake, which says that there are more: in a
/// file in UTF-8 there is one in every other line.
void keepFirstMojibake(std::vector<Diagnostic>& diagnostics);

}  // namespace quorvane
