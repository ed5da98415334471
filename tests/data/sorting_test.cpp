#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "data/foldedText.h"
#include "data/keptRows.h"
#include "data/sortKey.h"
#include "data/sortRequest.h"
#include "quorvane/base/values/RtfError.h"
#include "tests/data/errorOf.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> sorted(const std::vector<std::string>& values, bool isDescending = false,
                                const Locale* locale = nullptr, bool areJson = false) {
    KeptRows rows;
    SortColumn column(isDescending, areJson);
    for (const std::string& value : values) {
        const std::string_view field = value;
        rows.add({&field, 1}, 1);
        column.look(value);
    }
    column.decide("x", locale);
    rows.sort([&](std::span<const std::string_view> fields, std::string& key) {
        column.append(fields[0], key);
    });
    std::vector<std::string> result;
    std::vector<std::string_view> fields;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows.read(i, fields);
        result.emplace_back(fields[0]);
    }
    return result;
}

TEST(SortRequests, AreFieldsWithAnOrder) {
    const std::vector<SortRequest> requests = sortRequests(R"(price:desc,"a,b:c",name:asc)");
    ASSERT_EQ(requests.size(), 3U);
    EXPECT_EQ(requests[0].name, "price");
    EXPECT_TRUE(requests[0].isDescending);
    EXPECT_EQ(requests[1].name, "a,b:c");
    EXPECT_FALSE(requests[1].isDescending);
    EXPECT_FALSE(requests[2].isDescending);
}

TEST(SortRequests, RefuseWhatTheyDoNotUnderstand) {
    EXPECT_EQ(errorOf([] { sortRequests("a:down"); }),
              "\"down\" after the field \"a\" is not an order; write asc or desc.");
    EXPECT_EQ(errorOf([] { sortRequests("a,"); }),
              "A field to sort by has no name. Write names with commas between them.");
    EXPECT_THAT(errorOf([] { sortRequests("a:desc:asc"); }), HasSubstr(":asc"));
}

TEST(SortColumn, SortsNumbersByTheirValue) {
    EXPECT_THAT(sorted({"10", "9", "-2", "-10", "0", "1.5", "1.25", "0.05"}),
                ElementsAre("-10", "-2", "0", "0.05", "1.25", "1.5", "9", "10"));
    EXPECT_THAT(sorted({"1.000,50 \u20AC", "\u22121,00 \u20AC", "999,00 \u20AC"}),
                ElementsAre("\u22121,00 \u20AC", "999,00 \u20AC", "1.000,50 \u20AC"));
    EXPECT_THAT(sorted({"100000000000000000000000.2", "100000000000000000000000.1"}),
                ElementsAre("100000000000000000000000.1", "100000000000000000000000.2"));
}

TEST(SortColumn, ReadsNumbersOfJsonWithAPointAndWithExponents) {
    const Locale german = *[] {
        std::string error;
        return std::optional(localeNamed("de-DE", error));
    }();
    EXPECT_THAT(sorted({"20.500", "1e3", "1.234", "-1.5e-7", "2.5"}, false, &german, true),
                ElementsAre("-1.5e-7", "1.234", "2.5", "20.500", "1e3"));
}

TEST(SortColumn, SortsRandomNumbersAsTheirValuesAre) {
    std::mt19937 random(1);
    std::vector<int> numbers(500);
    std::vector<std::string> texts;
    for (int& number : numbers) {
        number = static_cast<int>(random() % 200'000) - 100'000;
        texts.push_back(std::to_string(number));
    }
    std::vector<std::string> expected;
    std::ranges::sort(numbers);
    for (const int number : numbers) {
        expected.push_back(std::to_string(number));
    }
    EXPECT_EQ(sorted(texts), expected);
    std::ranges::reverse(expected);
    EXPECT_EQ(sorted(texts, true), expected);
}

TEST(SortColumn, KeepsTheOrderOfEqualValues) {
    EXPECT_THAT(sorted({"b", "1.0", "B", "1", "b"}), ElementsAre("1.0", "1", "b", "B", "b"));
    EXPECT_THAT(sorted({"b", "1.0", "B", "1", "b"}, true), ElementsAre("b", "B", "b", "1.0", "1"));
}

TEST(SortColumn, SortsTextsWithoutCaseAndAccents) {
    EXPECT_THAT(
        sorted({"Zebra", "apple", "\u00C4pfel", "\u0159eka", "Rum", "stra\u00DFe", "Strasse 2"}),
        ElementsAre("\u00C4pfel", "apple", "\u0159eka", "Rum", "stra\u00DFe", "Strasse 2",
                    "Zebra"));
    EXPECT_EQ(foldedText("\u00C9t\u00C9 \u0141\u00D3\u0110\u0179 \u0416"), "ete lodz \u0436");
}

TEST(SortColumn, SortsDatesAsTheColumnShowsThem) {
    EXPECT_THAT(sorted({"31.12.2026", "1.2.2027", "2027-01-15"}),
                ElementsAre("31.12.2026", "2027-01-15", "1.2.2027"));
    EXPECT_THAT(sorted({"01/31/2027", "02/01/2026"}), ElementsAre("02/01/2026", "01/31/2027"));
    EXPECT_THAT(sorted({"2027-01-31T10:00", "2027-01-31", "2027-01-31 09:00"}),
                ElementsAre("2027-01-31", "2027-01-31 09:00", "2027-01-31T10:00"));
}

TEST(SortColumn, PutsEmptyValuesLast) {
    EXPECT_THAT(sorted({"", "b", "2", ""}), ElementsAre("2", "b", "", ""));
    EXPECT_THAT(sorted({"", "b", "2", ""}, true), ElementsAre("b", "2", "", ""));
}

TEST(SortColumn, RefusesValuesThatCanBeReadInTwoWays) {
    EXPECT_EQ(
        errorOf([] {
            sorted({"5", "1.500"});
        }),
        "The field \"x\" cannot be sorted: \"1.500\" can be read in two ways. Choose one with a "
        "locale, such as en-US or de-DE.");
    EXPECT_THAT(errorOf([] { sorted({"01/02/2027"}); }), HasSubstr("\"01/02/2027\""));
    std::string error;
    const Locale german = localeNamed("de-DE", error);
    EXPECT_THAT(sorted({"900", "1.500"}, false, &german), ElementsAre("900", "1.500"));
    EXPECT_THAT(sorted({"01/03/2027", "05/02/2027"}, false, &german),
                ElementsAre("05/02/2027", "01/03/2027"));
    EXPECT_THAT(sorted({"5", "1.500", "0.25"}), ElementsAre("0.25", "1.500", "5"));
}

TEST(KeptRows, HaveTheFieldsAndLinesThatTheyWereGiven) {
    KeptRows rows;
    const std::string large(3'000'000, 'x');
    const std::vector<std::vector<std::string_view>> given{{"a", ""}, {}, {large, "b", "c"}, {"z"}};
    for (std::size_t i = 0; i < given.size(); ++i) {
        rows.add(given[i], static_cast<std::int64_t>(i) + 7);
    }
    std::vector<std::string_view> fields;
    for (std::size_t i = 0; i < given.size(); ++i) {
        rows.read(i, fields);
        EXPECT_EQ(fields, given[i]);
        EXPECT_EQ(rows.line(i), static_cast<std::int64_t>(i) + 7);
    }
}

}  // namespace
}  // namespace quorvane::data
