#include "data/locale.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

#include "quorvane/base/text/asciiCharacters.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane::data {

namespace {

constexpr std::string_view noBreakSpace = "\u00A0";
constexpr std::string_view narrowSpace = "\u202F";
constexpr std::string_view apostrophe = "\u2019";

struct NamedLocale {
    std::string_view name;
    std::string_view decimal;
    std::string_view group;
    bool isIndian = false;
    bool leavesFourDigits = false;
};

/// The first one of a language is also that of the language alone.
constexpr NamedLocale locales[] = {
    {"bg-BG", ",", noBreakSpace, false, true},
    {"cs-CZ", ",", noBreakSpace},
    {"da-DK", ",", "."},
    {"de-DE", ",", "."},
    {"de-AT", ",", noBreakSpace},
    {"de-CH", ".", apostrophe},
    {"el-GR", ",", "."},
    {"en-US", ".", ","},
    {"en-AU", ".", ","},
    {"en-CA", ".", ","},
    {"en-GB", ".", ","},
    {"en-IE", ".", ","},
    {"en-IN", ".", ",", true},
    {"en-ZA", ",", noBreakSpace},
    {"es-ES", ",", ".", false, true},
    {"es-MX", ".", ","},
    {"et-EE", ",", noBreakSpace, false, true},
    {"fi-FI", ",", noBreakSpace},
    {"fr-FR", ",", narrowSpace},
    {"fr-BE", ",", narrowSpace},
    {"fr-CA", ",", noBreakSpace},
    {"fr-CH", ",", narrowSpace},
    {"hr-HR", ",", "."},
    {"hu-HU", ",", noBreakSpace, false, true},
    {"it-IT", ",", "."},
    {"it-CH", ".", apostrophe},
    {"ja-JP", ".", ","},
    {"ko-KR", ".", ","},
    {"lt-LT", ",", noBreakSpace},
    {"lv-LV", ",", noBreakSpace, false, true},
    {"nb-NO", ",", noBreakSpace},
    {"nl-NL", ",", "."},
    {"nl-BE", ",", "."},
    {"pl-PL", ",", noBreakSpace, false, true},
    {"pt-BR", ",", "."},
    {"pt-PT", ",", noBreakSpace, false, true},
    {"ro-RO", ",", "."},
    {"ru-RU", ",", noBreakSpace},
    {"sk-SK", ",", noBreakSpace},
    {"sl-SI", ",", "."},
    {"sv-SE", ",", noBreakSpace},
    {"tr-TR", ",", "."},
    {"uk-UA", ",", noBreakSpace},
    {"zh-CN", ".", ","},
};

// All others begin dates with the day.
constexpr std::string_view monthFirst[] = {"en-US"};
constexpr std::string_view yearFirst[] = {"en-CA", "en-ZA", "fr-CA", "hu-HU", "ja-JP",
                                          "ko-KR", "lt-LT", "sv-SE", "zh-CN"};

DateOrder orderOf(std::string_view name) {
    const auto isAmong = [=](const auto& names) {
        return std::find(std::begin(names), std::end(names), name) != std::end(names);
    };
    return isAmong(monthFirst)  ? DateOrder::MonthDayYear
           : isAmong(yearFirst) ? DateOrder::YearMonthDay
                                : DateOrder::DayMonthYear;
}

Locale localeOf(const NamedLocale& named) {
    return {std::string(named.decimal), std::string(named.group), named.isIndian,
            named.leavesFourDigits, orderOf(named.name)};
}

char plainLetter(char letter) {
    return letter == '_'                    ? '-'
           : letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A'))
                                            : letter;
}

bool isSameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return plainLetter(x) == plainLetter(y); });
}

/// What stands between the digits of a sample, from left to right.
std::optional<Locale> sampleLocale(std::string_view text) {
    if (!text.starts_with("1") || !text.ends_with("56")) {
        return std::nullopt;
    }
    const auto rest = text.substr(1, text.size() - 3);
    const std::size_t digits = rest.find("234");
    if (digits == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view group = rest.substr(0, digits);
    const std::string_view decimal = rest.substr(digits + 3);
    const bool isSign = characterCount(decimal) == 1 && characterCount(group) <= 1 &&
                        group != decimal && !isAsciiDigit(decimal.front()) &&
                        (group.empty() || !isAsciiDigit(group.front()));
    return isSign ? std::optional(Locale{.decimal = std::string(decimal),
                                         .group = std::string(group),
                                         .dateOrder = std::nullopt})
                  : std::nullopt;
}

}  // namespace

Locale localeNamed(std::string_view name, std::string& error) {
    error.clear();
    for (const NamedLocale& named : locales) {
        if (isSameName(name, named.name) || isSameName(name, named.name.substr(0, 2))) {
            return localeOf(named);
        }
    }
    if (std::optional<Locale> sample = sampleLocale(name)) {
        return *std::move(sample);
    }
    error = std::string(name) + " is not a locale; write 1234.56 as you want it, or one of";
    for (const std::string_view known : localeNames()) {
        error += " " + std::string(known);
    }
    return {};
}

Locale chosenLocale(const std::optional<std::string>& name, std::string& error) {
    error.clear();
    if (!name) {
        return {};
    }
    Locale locale = localeNamed(*name, error);
    locale.isChosen = error.empty();
    return locale;
}

std::vector<std::string_view> localeNames() {
    std::vector<std::string_view> names;
    std::transform(std::begin(locales), std::end(locales), std::back_inserter(names),
                   [](const NamedLocale& named) { return named.name; });
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace quorvane::data
