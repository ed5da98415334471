#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane::data {

/// A decimal number by its digits, as exact as it is written.
struct DecimalNumber {
    bool isNegative = false;
    /// Digits before the decimal sign, at least one, without leading zeros.
    std::string whole;
    /// Digits after it.
    std::string decimals;
};

/// Reads a number as JSON writes it ("-12.50", "1e3"), also with a "+" and with zeros or nothing
/// before the decimal sign. Nothing for any other text, and for one of more than 400 digits.
std::optional<DecimalNumber> decimalNumber(std::string_view text);

/// The number with so many decimals, rounded half away from zero.
DecimalNumber rounded(const DecimalNumber& number, std::size_t decimals);

}  // namespace quorvane::data
