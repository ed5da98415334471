#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane::data {

/// The order of a date's parts.
enum class DateOrder : std::uint8_t { DayMonthYear, MonthDayYear, YearMonthDay };

/// A date as offices write it in this order, as "2027-01-31": "31.1.2027", "01/31/2027",
/// "2027. 01. 31." A time after it ("17:05", "17:05:30") stays. Years have four digits. A date of
/// ISO 8601 is returned as it is, in any order. Nothing for another text and for a day that no
/// calendar has.
std::optional<std::string> isoDate(std::string_view text, DateOrder order);

/// The order of a date that can be read in one order only; points stand in dates that begin with
/// the day or the year. Nothing for a date of ISO 8601 and for any other text.
std::optional<DateOrder> shownDateOrder(std::string_view text);

/// True for a date that is another one in another order, such as 01/02/2027.
bool isAmbiguousDate(std::string_view text);

/// A date in that order, as an example.
std::string_view dateExample(DateOrder order);

}  // namespace quorvane::data
