#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/locale.h"

namespace quorvane::data {

enum class FilterKind : std::uint8_t { Number, Money, Date, Upper, Lower, Default, Count };

/// A text that a filter makes of a value, or what is wrong with the value: a sentence without a
/// full stop, empty where nothing is.
struct FilterResult {
    std::string text = {};
    std::string error = {};
};

/// One way to show a value.
///
/// - `number:2`: the number with two decimals, rounded half away from zero; `number` alone leaves
///   the decimals as they are. Only the decimal sign is that of the locale.
/// - `money:2`: the same with groups of digits; two decimals where none are given.
/// - `date:dd.MM.yyyy`: a date (2026-11-22) or a time (2026-11-22T17:05:30, with or without a zone)
///   by a pattern of yyyy, yy, MM, M, dd, d, HH, H, mm and ss. Other letters stand between
///   apostrophes.
/// - `upper`, `lower`: in capital or in small letters.
/// - `default:text`: the text for a value that is missing. `default` alone shows nothing.
/// - `count`: how many items a list has.
struct Filter {
    FilterKind kind{};
    /// What follows the ":"; quotation marks around it are left out.
    std::string argument = {};
    /// Of `number` and `money`.
    std::size_t decimals = 0;
    /// Of `number`: the decimals stay as they are.
    bool keepsDecimals = false;

    /// Makes a text (UTF-8) of a value that is there and is not a list. `default` returns it as it
    /// is, and for `count` a single value is an error.
    FilterResult apply(std::string_view value, const Locale& locale) const;
};

/// The filters that are written "number:2" or "upper|default:none", from left to right. `error` is
/// what is wrong with them, a sentence without a full stop, and empty where nothing is.
std::vector<Filter> filtersIn(std::string_view written, std::string& error);

}  // namespace quorvane::data
