#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/columnsNumber.h"
#include "data/localDate.h"

namespace quorvane::data {

/// How numbers are written, and dates are read. All texts are UTF-8.
struct Locale {
    /// Between the whole part and the decimals.
    std::string decimal = ".";
    /// Between groups of digits of the whole part; empty for none.
    std::string group = ",";
    /// Only the last group has three digits and the others have two, as in India.
    bool isIndian = false;
    /// A number of four digits has no group sign, as in Spain and Poland.
    bool leavesFourDigits = false;
    /// Of the dates that offices write; nothing for a locale that a sample of a number shows.
    std::optional<DateOrder> dateOrder = DateOrder::MonthDayYear;

    /// The data is as offices write it (CSV): numbers and dates are read as the locale writes them.
    /// Otherwise they are those of JSON.
    bool readsWritten = false;
    /// The locale was chosen. Otherwise `readsWritten` takes only what can be read in one way.
    bool isChosen = false;

    /// How numbers in tables are read.
    DecimalSign decimalSign() const {
        return decimal == "," ? DecimalSign::Comma : DecimalSign::Point;
    }

    bool operator==(const Locale&) const = default;
};

/// The locale of a name such as "de-DE", in any case and also with "_", or of the language alone
/// ("de"); or the one that a sample shows: "1.234,56", "1 234,56", "1234.56". `error` is what is
/// wrong with any other name, and empty for a locale.
Locale localeNamed(std::string_view name, std::string& error);

/// The locale of the name that a user chose; the usual one without a name. `error` as above.
Locale chosenLocale(const std::optional<std::string>& name, std::string& error);

/// The names of the locales, in ascending order.
std::vector<std::string_view> localeNames();

}  // namespace quorvane::data
