#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/columnsNumber.h"

namespace quorvane::data {

/// An exact sum of decimal numbers.
class DecimalSum {
public:
    /// Adds a number such as "-1250.00".
    void add(std::string_view number);
    /// The sum, with as many decimals as the number with the most of them.
    std::string text() const;

private:
    void addDigits(std::vector<std::int64_t>& limbs, std::size_t index, std::string_view digits,
                   bool isNegative);

    // Groups of nine digits of the whole part, the last group first, and of the decimals. A group
    // may have more digits or be negative until the text is made.
    std::vector<std::int64_t> whole_{0};
    std::vector<std::int64_t> decimals_;
    std::size_t decimalCount_ = 0;
};

/// The sum of the numbers of a column, in exact decimals.
class ColumnTotal {
public:
    /// Without a decimal sign, it is the one that the numbers show.
    explicit ColumnTotal(std::optional<DecimalSign> sign = std::nullopt);

    /// Error 5 for a cell that cannot be added: it is neither a number nor empty, or it is a number
    /// of another unit or with another decimal sign than those before.
    void require(std::string_view text) const { plainNumbers(text); }
    /// Adds the number that a cell has; an empty cell has none. Errors as for `require`.
    void add(std::string_view text);

    /// The sum, with the unit and the signs of the numbers. Error 5 if they can be read both with a
    /// decimal point and with a decimal comma, and the sums differ.
    std::string text() const;
    /// The sum as "-1250.00". Error as for `text`.
    std::string plainText() const { return readings_[reading()].sum.text(); }

private:
    struct Reading {
        bool isPossible = true;
        DecimalSum sum{};
        std::string groupSign{};
    };

    using PlainNumbers = std::array<std::optional<std::string>, 2>;

    PlainNumbers plainNumbers(std::string_view text) const;
    std::size_t reading() const;

    // With a decimal point, and with a decimal comma.
    std::array<Reading, 2> readings_;
    // The first number, for its unit.
    std::string first_;
    // As the first negative number has it.
    std::string minus_;
};

}  // namespace quorvane::data
