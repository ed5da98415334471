#include "data/filters.h"

#include <gmock/gmock.h>

#include <string>

namespace quorvane::data {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

Locale locale(const std::string& name) {
    std::string error;
    const Locale found = localeNamed(name, error);
    EXPECT_THAT(error, IsEmpty());
    return found;
}

/// What the filters make of a value, one after the other.
std::string shown(const std::string& value, const std::string& filters,
                  const std::string& localeName = "en-US") {
    std::string error;
    std::string text = value;
    for (const Filter& filter : filtersIn(filters, error)) {
        const FilterResult result = filter.apply(text, locale(localeName));
        if (!result.error.empty()) {
            return result.error;
        }
        text = result.text;
    }
    EXPECT_THAT(error, IsEmpty());
    return text;
}

std::string errorIn(const std::string& filters) {
    std::string error;
    filtersIn(filters, error);
    return error;
}

TEST(NumberFilter, RoundsHalfAwayFromZero) {
    EXPECT_EQ(shown("2.675", "number:2"), "2.68");
    EXPECT_EQ(shown("-2.675", "number:2"), "-2.68");
    EXPECT_EQ(shown("2.5", "number:0"), "3");
    EXPECT_EQ(shown("999.995", "number:2"), "1000.00");
    EXPECT_EQ(shown("99.5", "number:0"), "100");
}

TEST(NumberFilter, IsExactWhereFloatingPointIsNot) {
    EXPECT_EQ(shown("1.005", "number:2"), "1.01");
    EXPECT_EQ(shown("12345678901234567890.125", "number:2"), "12345678901234567890.13");
}

TEST(NumberFilter, AddsDecimalsThatAreMissing) {
    EXPECT_EQ(shown("7", "number:2"), "7.00");
    EXPECT_EQ(shown("-0.5", "number:3"), "-0.500");
}

TEST(NumberFilter, KeepsTheDecimalsWithoutANumberOfThem) {
    EXPECT_EQ(shown("19.90", "number", "de-DE"), "19,90");
    EXPECT_EQ(shown("1234", "number", "de-DE"), "1234");
}

TEST(NumberFilter, ReadsExponents) {
    EXPECT_EQ(shown("1.5e3", "number:1"), "1500.0");
    EXPECT_EQ(shown("125E-2", "number:2"), "1.25");
    EXPECT_EQ(shown("5e-4", "number:3"), "0.001");
}

TEST(NumberFilter, HasNoSignForZero) {
    EXPECT_EQ(shown("-0.001", "number:2"), "0.00");
}

TEST(NumberFilter, RefusesWhatIsNotANumber) {
    for (const char* value : {"abc", "1,5", "1.2.3", "0x10", "1e", "1e999999999", "--1", " 1"}) {
        EXPECT_THAT(shown(value, "number:2"), HasSubstr("is not a number")) << value;
    }
}

TEST(MoneyFilter, GroupsDigitsByTheLocale) {
    EXPECT_EQ(shown("1234567.891", "money"), "1,234,567.89");
    EXPECT_EQ(shown("1234567.891", "money:2", "de-DE"), "1.234.567,89");
    EXPECT_EQ(shown("1234567.891", "money:2", "de-CH"), "1’234’567.89");
    EXPECT_EQ(shown("1234567.891", "money:2", "fr-FR"), "1\u202F234\u202F567,89");
    EXPECT_EQ(shown("1234567.891", "money:0", "en-IN"), "12,34,568");
    EXPECT_EQ(shown("-100", "money"), "-100.00");
}

TEST(MoneyFilter, LeavesFourDigitsWhereTheLocaleDoes) {
    EXPECT_EQ(shown("1234", "money", "es-ES"), "1234,00");
    EXPECT_EQ(shown("12345", "money", "es-ES"), "12.345,00");
}

TEST(MoneyFilter, TakesTheSignsOfASample) {
    EXPECT_EQ(shown("1234.5", "money", "1 234,56"), "1 234,50");
    EXPECT_EQ(shown("1234.5", "money", "1234.56"), "1234.50");
}

TEST(DateFilter, ShowsPartsOfADateByThePattern) {
    EXPECT_EQ(shown("2026-11-02", "date:dd.MM.yyyy"), "02.11.2026");
    EXPECT_EQ(shown("2026-11-02", "date:d/M/yy"), "2/11/26");
    EXPECT_EQ(shown("2026-11-02T17:05:30+01:00", "date:HH:mm:ss"), "17:05:30");
    EXPECT_EQ(shown("2026-11-02 07:05", "date:H.mm 'Uhr'"), "7.05 Uhr");
    EXPECT_EQ(shown("2026-11-02T07:05:30.123Z", "date:yyyy'''y'"), "2026'y");
    EXPECT_EQ(shown("2026-11-02", "date:d 'o''clock'"), "2 o'clock");
}

TEST(DateFilter, RefusesDaysThatAreNotInTheCalendar) {
    EXPECT_EQ(shown("2024-02-29", "date:dd"), "29");
    for (const char* value : {"2026-02-29", "2026-13-01", "2026-00-01", "02.11.2026", "2026-11",
                              "2026-11-02T", "2026-11-02T25:00", "2026-11-02x"}) {
        EXPECT_THAT(shown(value, "date:dd"), HasSubstr("is not an existing date")) << value;
    }
    EXPECT_EQ(shown("", "date:dd"),
              "the value is empty, and not a date; write a section around what can be empty");
    EXPECT_EQ(shown("", "money"),
              "the value is empty, and not a number; write a section around what can be empty");
}

TEST(CaseFilters, KnowTheLettersOfEurope) {
    EXPECT_EQ(shown("straße ôčřž ÿ αβγς ежђ", "upper"), "STRASSE ÔČŘŽ Ÿ ΑΒΓΣ ЕЖЂ");
    EXPECT_EQ(shown("ÔČŘŽ Ÿ ΑΒΓ ЕЖЂ 12", "lower"), "ôčřž ÿ αβγ ежђ 12");
}

TEST(CaseFilters, LeaveOtherCharactersAsTheyAre) {
    EXPECT_EQ(shown("×÷ 漢字 😀", "upper"), "×÷ 漢字 😀");
    EXPECT_EQ(shown("×÷ 漢字 😀", "lower"), "×÷ 漢字 😀");
}

TEST(Filters, AreAppliedFromLeftToRight) {
    EXPECT_EQ(shown("abc", "upper | lower|upper"), "ABC");
}

TEST(Filters, KeepWhatStandsInQuotationMarks) {
    std::string error;
    const std::vector<Filter> filters = filtersIn(R"(default:" a|b "|upper)", error);
    ASSERT_EQ(filters.size(), 2U);
    EXPECT_EQ(filters[0].argument, " a|b ");
    EXPECT_THAT(error, IsEmpty());
}

TEST(Filters, ThatAreWrongSayWhatToWrite) {
    EXPECT_EQ(errorIn("uper"), "\"uper\" is not a filter; did you mean upper?");
    EXPECT_EQ(errorIn("zzz"),
              "\"zzz\" is not a filter; write number, money, date, upper, lower, default or count");
    EXPECT_EQ(errorIn("number:x"), "\"x\" is not a number of decimals from 0 to 20");
    EXPECT_EQ(errorIn("money:21"), "\"21\" is not a number of decimals from 0 to 20");
    EXPECT_EQ(errorIn("date"), "date needs a pattern, such as date:dd.MM.yyyy");
    EXPECT_THAT(errorIn("date:DD.MM.YYYY"), HasSubstr("DD is not a part of a date"));
    EXPECT_EQ(errorIn("upper:x"), "upper takes nothing after it; leave out the colon");
}

TEST(Locales, AreFoundByTheirLanguageAndInAnyCase) {
    EXPECT_EQ(locale("de"), locale("de-DE"));
    EXPECT_EQ(locale("DE_de"), locale("de-DE"));
    EXPECT_EQ(locale("en"), Locale());
}

TEST(Locales, ThatAreUnknownAreErrors) {
    for (const char* name : {"", "xx", "deutsch", "1.234.56", "1,234,56", "1523456"}) {
        std::string error;
        localeNamed(name, error);
        EXPECT_THAT(error, HasSubstr("is not a locale")) << name;
    }
}

}  // namespace
}  // namespace quorvane::data
