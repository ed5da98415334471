#include "data/filters.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <system_error>

#include "data/dateText.h"
#include "data/decimalNumber.h"
#include "data/letterCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane::data {

namespace {

constexpr std::size_t maxDecimals = 20;

struct FilterName {
    std::string_view name;
    FilterKind kind;
    bool takesArgument;
};

constexpr FilterName filterNames[] = {
    {"number", FilterKind::Number, true}, {"money", FilterKind::Money, true},
    {"date", FilterKind::Date, true},     {"upper", FilterKind::Upper, false},
    {"lower", FilterKind::Lower, false},  {"default", FilterKind::Default, true},
    {"count", FilterKind::Count, false},
};

std::string quoted(std::string_view value) {
    constexpr std::size_t longest = 60;
    return value.size() <= longest ? "\"" + std::string(value) + "\"" : std::string("The value");
}

std::string unknownFilter(std::string_view name) {
    std::vector<std::string_view> names;
    std::transform(std::begin(filterNames), std::end(filterNames), std::back_inserter(names),
                   [](const FilterName& known) { return known.name; });
    const std::string guess = didYouMean(name, names);
    return "\"" + std::string(name) + "\" is not a filter; " +
           (guess.empty() ? "write number, money, date, upper, lower, default or count" : guess);
}

std::string grouped(const std::string& whole, const Locale& locale) {
    constexpr std::size_t groupSize = 3;
    constexpr std::size_t fourDigits = 4;
    if (locale.group.empty() || (locale.leavesFourDigits && whole.size() <= fourDigits)) {
        return whole;
    }
    std::string text;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        const std::size_t after = whole.size() - i;
        const bool isBoundary = locale.isIndian
                                    ? after == groupSize || (after > groupSize && after % 2 == 1)
                                    : after % groupSize == 0;
        if (i > 0 && isBoundary) {
            text += locale.group;
        }
        text += whole[i];
    }
    return text;
}

std::string readInTwoWays(std::string_view value, const char* locales) {
    return quoted(value) + " can be read in two ways; choose one with --locale, such as " + locales;
}

/// A number as JSON has it.
FilterResult readNumber(std::string_view value, const Locale& locale) {
    const std::optional<WrittenNumber> written =
        locale.readsWritten ? writtenNumber(value) : std::nullopt;
    const bool hasExponent = value.find_first_of("eE") != std::string_view::npos;
    if (!written || !written->before.empty() || !written->after.empty() || hasExponent) {
        return {.text = std::string(value)};
    }
    if (!locale.isChosen && isAmbiguousNumber(value)) {
        return {.error = readInTwoWays(value, "en-US or de-DE")};
    }
    const DecimalSign sign =
        locale.isChosen ? locale.decimalSign() : shownSign(value).value_or(DecimalSign::Point);
    return {.text = plainNumber(*written, sign).value_or(std::string())};
}

/// A date as ISO 8601 has it.
FilterResult readDate(std::string_view value, const Locale& locale) {
    if (!locale.readsWritten) {
        return {.text = std::string(value)};
    }
    if (!locale.isChosen && isAmbiguousDate(value)) {
        return {.error = readInTwoWays(value, "en-GB or en-US")};
    }
    const std::optional<DateOrder> order =
        locale.isChosen ? locale.dateOrder : shownDateOrder(value);
    return {
        .text =
            isoDate(value, order.value_or(DateOrder::YearMonthDay)).value_or(std::string(value))};
}

std::string notADate(std::string_view value, const Locale& locale) {
    if (value.empty()) {
        return "the value is empty, and not a date; write a section around what can be empty";
    }
    std::string forms = "2026-11-22";
    if (locale.readsWritten && locale.isChosen && locale.dateOrder) {
        forms += " or " + std::string(dateExample(*locale.dateOrder));
    }
    return quoted(value) + " is not an existing date of the form " + forms;
}

FilterResult shownNumber(const Filter& filter, std::string_view value, const Locale& locale) {
    FilterResult read = readNumber(value, locale);
    if (!read.error.empty()) {
        return read;
    }
    const std::optional<DecimalNumber> number = decimalNumber(read.text);
    if (!number) {
        return {.error = value.empty() ? "the value is empty, and not a number; write a section "
                                         "around what can be empty"
                                       : quoted(value) + " is not a number"};
    }
    const DecimalNumber shown =
        rounded(*number, filter.keepsDecimals ? number->decimals.size() : filter.decimals);
    std::string text = shown.isNegative ? "-" : "";
    text += filter.kind == FilterKind::Money ? grouped(shown.whole, locale) : shown.whole;
    if (!shown.decimals.empty()) {
        text += locale.decimal + shown.decimals;
    }
    return {.text = text};
}

/// Where the filter ends that the text begins with: at a "|" that is not in quotation marks.
std::size_t filterEnd(std::string_view text) {
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        isQuoted = isQuoted != (text[i] == '"');
        if (text[i] == '|' && !isQuoted) {
            return i;
        }
    }
    return text.size();
}

std::string_view withoutQuotes(std::string_view text) {
    const bool isQuoted = text.size() >= 2 && text.starts_with('"') && text.ends_with('"');
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

/// Reads the decimals of "number:2"; returns what is wrong with them.
std::string readDecimals(Filter& filter) {
    constexpr std::size_t usualDecimals = 2;
    if (filter.argument.empty()) {
        filter.keepsDecimals = filter.kind == FilterKind::Number;
        filter.decimals = usualDecimals;
        return {};
    }
    const char* const end = filter.argument.data() + filter.argument.size();
    const auto [read, failure] = std::from_chars(filter.argument.data(), end, filter.decimals);
    return failure == std::errc() && read == end && filter.decimals <= maxDecimals
               ? std::string()
               : "\"" + filter.argument + "\" is not a number of decimals from 0 to " +
                     std::to_string(maxDecimals);
}

Filter readFilter(std::string_view written, std::string& error) {
    Filter filter;
    const std::size_t colon = std::min(written.find(':'), written.size());
    const std::string_view name = trimBlanks(written.substr(0, colon));
    const auto* const known =
        std::find_if(std::begin(filterNames), std::end(filterNames),
                     [=](const FilterName& each) { return each.name == name; });
    if (known == std::end(filterNames)) {
        error = unknownFilter(name);
        return filter;
    }
    filter.kind = known->kind;
    if (colon < written.size()) {
        filter.argument = withoutQuotes(trimBlanks(written.substr(colon + 1)));
        if (!known->takesArgument) {
            error = std::string(name) + " takes nothing after it; leave out the colon";
        }
    }
    if (filter.kind == FilterKind::Number || filter.kind == FilterKind::Money) {
        error = readDecimals(filter);
    } else if (filter.kind == FilterKind::Date) {
        error = wrongDatePattern(filter.argument);
    }
    return filter;
}

}  // namespace

FilterResult Filter::apply(std::string_view value, const Locale& locale) const {
    switch (kind) {
        case FilterKind::Number:
        case FilterKind::Money:
            return shownNumber(*this, value, locale);
        case FilterKind::Date: {
            FilterResult read = readDate(value, locale);
            FilterResult result;
            if (read.error.empty() && !dateText(read.text, argument, result.text)) {
                return {.error = notADate(value, locale)};
            }
            return read.error.empty() ? result : read;
        }
        case FilterKind::Upper:
            return {.text = upperCaseText(value)};
        case FilterKind::Lower:
            return {.text = lowerCaseText(value)};
        case FilterKind::Count:
            return {.error = "Only a list has a count"};
        case FilterKind::Default:
            break;
    }
    return {.text = std::string(value)};
}

std::vector<Filter> filtersIn(std::string_view written, std::string& error) {
    error.clear();
    std::vector<Filter> filters;
    for (;;) {
        const std::size_t end = filterEnd(written);
        filters.push_back(readFilter(written.substr(0, end), error));
        if (!error.empty() || end == written.size()) {
            return filters;
        }
        written.remove_prefix(end + 1);
    }
}

}  // namespace quorvane::data
