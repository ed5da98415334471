#pragma once

#include <string>
#include <string_view>

namespace quorvane {

// Case is known of the letters of ASCII and of code page 1252, whatever the locale; every other
// character, and every byte that is not well-formed UTF-8, stands for itself.

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
