#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvane {

inline constexpr std::string_view upperHexadecimalDigits = "0123456789ABCDEF";
inline constexpr std::string_view lowerHexadecimalDigits = "0123456789abcdef";

/// The number with at least so many hexadecimal digits.
inline std::string hexadecimal(std::uint64_t number, int minDigits,
                               std::string_view digits = upperHexadecimalDigits) {
    std::string text;
    for (; number > 0 || minDigits > 0; number /= 16, --minDigits) {
        text.insert(text.begin(), digits[number % 16]);
    }
    return text;
}

}  // namespace quorvane
