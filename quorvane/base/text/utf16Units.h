#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Appends the text as UTF-16 units, one an element, for places that are counted in them. A byte
/// that is part of no well-formed character is an element of its own.
void appendUtf16Units(std::string_view text, std::u32string& units);

/// The same for one character, given by its code as `utf8CharacterAt` returns it.
void appendUtf16Units(char32_t code, std::u32string& units);

/// Appends the text that the units stand for; a pair of surrogates is one character again.
void appendTextOfUtf16Units(std::u32string_view units, std::string& text);

}  // namespace quorvane
