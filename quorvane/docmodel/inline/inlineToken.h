#pragma once

namespace quorvane {

// An inline style is a token such as `<strong=Total>`: the text between "<" and ">" that begins
// with a character from "A" to "z" (the six punctuation characters between the letters included)
// and holds a "=".

/// True for a character that a token can have after its "<".
constexpr bool beginsInlineToken(auto character) {
    return character >= 'A' && character <= 'z';
}

inline constexpr auto isBracket = [](auto character) {
    return character == '<' || character == '>';
};

}  // namespace quorvane
