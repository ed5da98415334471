#pragma once

#include <charconv>
#include <cstdint>
#include <string>

namespace quorvane {

/// Appends the number in decimal, without padding.
inline void appendNumber(std::int32_t number, std::string& text) {
    char digits[11];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, result.ptr);
}

}  // namespace quorvane
