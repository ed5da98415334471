#pragma once

#include <string>
#include <string_view>

namespace quorvane {

// The letters of ASCII and of code page 1252 have case, in every locale. Every other character, and
// every byte that is not well-formed UTF-8, stays as it is.

/// The character in lower case, as its code point.
char32_t lowerCode(char32_t code) noexcept;

/// The text with its capital letters in lower case.
std::string lowerCase(std::string_view text);

/// True when the texts differ in the case of their letters at most.
bool equalIgnoringCase(std::string_view a, std::string_view b);

/// -1, 0 or 1 as `a` stands before, at or after `b` in the order of the code points of the texts in
/// lower case.
int compareIgnoringCase(std::string_view a, std::string_view b);

}  // namespace quorvane
