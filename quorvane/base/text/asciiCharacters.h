#pragma once

namespace quorvane {

// These do not depend on the locale, unlike the functions of the C library.

constexpr bool isAsciiLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

constexpr bool isAsciiDigit(char character) {
    return character >= '0' && character <= '9';
}

}  // namespace quorvane
