#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

/// Reads a text as a number: an optional sign, digits with at most one ".", at least one digit,
/// then optionally "e" or "E", an optional sign and digits; nothing before or after. A number too
/// small for a double is 0. False for any other text, and for a number beyond the range of a
/// double; `number` then stays as it is.
bool readNumber(std::string_view text, double& number);

/// The number that a text reads as; nothing where there is none.
inline std::optional<double> readNumber(std::string_view text) {
    double number = 0;
    return readNumber(text, number) ? std::optional(number) : std::nullopt;
}

/// The number, which is finite, in the fewest digits that read back as the same number: plain
/// ("12", "1.5", "0.0001") from 1e-5 to below 1e15 in magnitude, with an exponent beyond ("1e+15",
/// "1e-07"). Both zeros are "0".
std::string numberText(double number);

}  // namespace quorvane
