#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane::data {

/// A number as people write it in a table: "-1 250.00", "€ 12,50", "12 %".
struct WrittenNumber {
    /// What stands before and after the digits, such as a currency, with the blank between.
    std::string_view before;
    std::string_view after;
    bool isNegative = false;
    /// "+", "-" or U+2212, if there is one of them.
    std::string_view sign{};
    /// The digits, with the signs between their groups and before the decimals.
    std::string_view digits;
};

/// True if two numbers are of one unit.
bool haveOneUnit(const WrittenNumber& first, const WrittenNumber& second);

/// The parts of a number; nothing for another text. Its digits may be of no number all the same:
/// see `plainNumber`.
std::optional<WrittenNumber> writtenNumber(std::string_view text);

/// Which sign stands before the decimals. The other one, a blank or an apostrophe can stand between
/// groups of three digits.
enum class DecimalSign : std::uint8_t { Point, Comma };

/// The number as "-1250.00"; nothing if it cannot be read so.
std::optional<std::string> plainNumber(const WrittenNumber& number, DecimalSign sign);

/// The decimal sign of a number that can be read with one of the two only.
std::optional<DecimalSign> shownSign(std::string_view text);

/// True for a number that is another one with the other decimal sign, such as 1.250.
bool isAmbiguousNumber(std::string_view text);

/// True for a number that can be read in one way or the other. A number that begins with a zero,
/// such as "0017", is a name.
bool looksLikeNumber(std::string_view text);

}  // namespace quorvane::data
