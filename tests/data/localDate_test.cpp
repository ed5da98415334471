#include "data/localDate.h"

#include <gtest/gtest.h>

namespace quorvane::data {
namespace {

using enum DateOrder;

TEST(IsoDate, ReadsWhatOfficesWrite) {
    EXPECT_EQ(isoDate("31.1.2027", DayMonthYear), "2027-01-31");
    EXPECT_EQ(isoDate("31. 12. 2027", DayMonthYear), "2027-12-31");
    EXPECT_EQ(isoDate("31/01/2027", DayMonthYear), "2027-01-31");
    EXPECT_EQ(isoDate("31-01-2027", DayMonthYear), "2027-01-31");
    EXPECT_EQ(isoDate("1/31/2027", MonthDayYear), "2027-01-31");
    EXPECT_EQ(isoDate("2027/1/31", YearMonthDay), "2027-01-31");
    EXPECT_EQ(isoDate("2027. 01. 31.", YearMonthDay), "2027-01-31");
    EXPECT_EQ(isoDate("31.1.2027 9:05", DayMonthYear), "2027-01-31 09:05");
    EXPECT_EQ(isoDate("31.1.2027 17:05:30", DayMonthYear), "2027-01-31 17:05:30");
}

TEST(IsoDate, IsTheDateItselfInTheFormOfIso) {
    EXPECT_EQ(isoDate("2027-01-31", MonthDayYear), "2027-01-31");
    EXPECT_EQ(isoDate("2027-01-31T17:05Z", DayMonthYear), "2027-01-31T17:05Z");
}

TEST(IsoDate, IsNothingForOtherTextsAndDaysThatDoNotExist) {
    for (const char* text : {"", "soon", "31.1.", "31.1.27", "30.2.2027", "31/1.2027", "1.1.20270",
                             "31.1.2027 noon", "1.1.2027.", "31.1.2027 25:00", "2027-13-01"}) {
        EXPECT_EQ(isoDate(text, DayMonthYear), std::nullopt) << text;
    }
    EXPECT_EQ(isoDate("31/01/2027", MonthDayYear), std::nullopt);
    EXPECT_EQ(isoDate("2027/01/31", DayMonthYear), std::nullopt);
}

TEST(ShownDateOrder, IsThatOfDatesThatCanBeReadInOneOrderOnly) {
    EXPECT_EQ(shownDateOrder("1.2.2027"), DayMonthYear);
    EXPECT_EQ(shownDateOrder("31/1/2027"), DayMonthYear);
    EXPECT_EQ(shownDateOrder("1/31/2027"), MonthDayYear);
    EXPECT_EQ(shownDateOrder("2027/1/31"), YearMonthDay);
    for (const char* text : {"1/2/2027", "2027-01-31", "", "12.5", "x"}) {
        EXPECT_EQ(shownDateOrder(text), std::nullopt) << text;
    }
}

TEST(IsAmbiguousDate, IsTrueForADateThatIsAnotherOneInAnotherOrder) {
    EXPECT_TRUE(isAmbiguousDate("1/2/2027"));
    for (const char* text : {"2/2/2027", "31/1/2027", "1.2.2027", "2027-01-02", "x"}) {
        EXPECT_FALSE(isAmbiguousDate(text)) << text;
    }
}

}  // namespace
}  // namespace quorvane::data
