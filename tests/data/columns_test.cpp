#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <vector>

#include "data/columnsMeasure.h"
#include "data/columnsNumber.h"
#include "data/columnsRequest.h"
#include "data/columnsTotal.h"
#include "quorvane/base/values/RtfError.h"
#include "tests/data/errorOf.h"

namespace quorvane::data {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(ShownSign, IsThatOfNumbersThatCanBeReadInOneWayOnly) {
    for (const char* text : {"12,5", "1.234,50", "12,50 \u20AC", "-0,5", "1 250,75"}) {
        EXPECT_EQ(shownSign(text), DecimalSign::Comma) << text;
    }
    for (const char* text : {"12.5", "1,234.50", "$ 12.50", "1'250.7"}) {
        EXPECT_EQ(shownSign(text), DecimalSign::Point) << text;
    }
    for (const char* text : {"1,234", "1.234", "12", "", "vase", "12,5,0"}) {
        EXPECT_EQ(shownSign(text), std::nullopt) << text;
    }
}

TEST(ColumnRequests, TakeABlankBeforeAPercentSign) {
    EXPECT_EQ(columnRequests("price:20 %").front().width, "20%");
}

TEST(ColumnRequests, TakeNoBareNumberForAHeading) {
    EXPECT_EQ(errorOf([] { columnRequests("price:50"); }),
              "\"50\" after the column \"price\" is not a width; write 50% or 50mm, or put a "
              "heading into quotation marks.");
    EXPECT_EQ(errorOf([] { columnRequests("price:monney:2"); }),
              "\"monney\" after the column \"price\" is not a width, an alignment or a filter; did "
              "you mean money? Put a heading into quotation marks.");
    EXPECT_EQ(columnRequests("price:\"50\"").front().heading, "50");
}

TEST(ColumnRequests, TakeAWordInSmallLettersForAMisspelledOne) {
    EXPECT_EQ(errorOf([] { columnRequests("price:rigth"); }),
              "\"rigth\" after the column \"price\" is not a width, an alignment or a filter; did "
              "you mean right? Put a heading into quotation marks.");
    EXPECT_EQ(
        errorOf([] { columnRequests("price:rechts"); }),
        "\"rechts\" after the column \"price\" is not a width, an alignment or a filter; put a "
        "heading into quotation marks.");
    for (const char* heading : {"Right", "on the right", "\"right\"", "pr. 1", "\u00E9t\u00E9"}) {
        EXPECT_TRUE(columnRequests(std::string("price:") + heading).front().heading) << heading;
    }
}

TEST(LooksLikeNumber, IsTrueForWhatPeopleWriteAsNumbers) {
    for (const char* text :
         {"0",        "12",      "-5",           "+5",       "1.50",      "1,50",      "1,250.00",
          "1.250,00", "1 250",   "1\u202F250,5", "1'250.00", "\u20AC 12", "12 \u20AC", "12%",
          "12 %",     "\u22125", "-\u20AC5",     "USD 5",    "5 EUR",     "0.5",       "1234567"}) {
        EXPECT_TRUE(looksLikeNumber(text)) << text;
    }
}

TEST(LooksLikeNumber, IsFalseForNamesDatesAndTexts) {
    for (const char* text : {"", "-", "0017", "2026-01-31", "31.12.2026", "1,25,000.00", "1.2.3",
                             "12 cm", "A12", "1 250 00", "12/5", "10:30", "+49 30 123", "1e5"}) {
        EXPECT_FALSE(looksLikeNumber(text)) << text;
    }
}

std::string totalOf(const std::vector<std::string>& cells) {
    ColumnTotal total;
    for (const std::string& cell : cells) {
        total.add(cell);
    }
    return total.text();
}

TEST(ColumnTotal, IsExact) {
    EXPECT_EQ(totalOf({"0.1", "0.2"}), "0.3");
    EXPECT_EQ(totalOf(std::vector<std::string>(1000, "0.001")), "1.000");
    EXPECT_EQ(totalOf({"99999999999999999999.99", "0.01"}), "100000000000000000000.00");
    EXPECT_EQ(totalOf({"1.0000000001", "2"}), "3.0000000001");
    EXPECT_EQ(totalOf({}), "0");
    EXPECT_EQ(totalOf({"", "5", ""}), "5");
}

TEST(ColumnTotal, SubtractsNegativeNumbers) {
    EXPECT_EQ(totalOf({"1", "-2.5"}), "-1.5");
    EXPECT_EQ(totalOf({"-0.5", "0.5"}), "0.0");
    EXPECT_EQ(totalOf({"1000000000", "-0.01"}), "999999999.99");
    EXPECT_EQ(totalOf({"-1000000000", "0.01", "\u22121"}), "-1000000000.99");
}

TEST(ColumnTotal, IsWrittenAsTheNumbersAre) {
    EXPECT_EQ(totalOf({"1 250,00", "79,90"}), "1 329,90");
    EXPECT_EQ(totalOf({"900.50", "1,250.00", "1000000.00"}), "1,002,150.50");
    EXPECT_EQ(totalOf({"12,50 \u20AC", "-20,00 \u20AC"}), "-7,50 \u20AC");
    EXPECT_EQ(totalOf({"$5", "$1,000.00"}), "$1,005.00");
}

TEST(ColumnTotal, HasTheMinusOfTheNumbers) {
    EXPECT_EQ(totalOf({"1", "\u22122"}), "\u22121");
    EXPECT_EQ(totalOf({"\u221212,50 \u20AC", "2,00 \u20AC"}), "\u221210,50 \u20AC");
    EXPECT_EQ(totalOf({"-1", "\u22122"}), "-3");
}

TEST(ColumnTotal, RefusesWhatHasNoSum) {
    EXPECT_EQ(errorOf([] {
                  totalOf({"1", "none"});
              }),
              "\"none\" is not a number, so that there is no total.");
    EXPECT_EQ(errorOf([] {
                  totalOf({"\u20AC 1", "$ 1"});
              }),
              "\"$ 1\" is of another unit than \"\u20AC 1\", so that there is no total.");
    EXPECT_THAT(errorOf([] { totalOf({"1.50", "1,50"}); }), HasSubstr("another decimal sign"));
    EXPECT_THAT(errorOf([] {
                    totalOf({"1,500", "2,500"});
                }),
                HasSubstr("with a decimal point, with the total 4000, or with a decimal comma, "
                          "with the total 4.000"));
}

TEST(ColumnTotal, ReadsNumbersWithTheSignThatItIsGiven) {
    ColumnTotal point(DecimalSign::Point);
    point.add("1,500");
    EXPECT_EQ(point.text(), "1,500");
    EXPECT_THROW(point.add("1,5"), RtfError);
    ColumnTotal comma(DecimalSign::Comma);
    comma.add("1,500");
    EXPECT_EQ(comma.text(), "1,500");
    EXPECT_EQ(comma.plainText(), "1.500");
}

TEST(ColumnTotal, StaysAsItIsAfterACellThatItRefuses) {
    ColumnTotal total;
    total.add("1.50");
    EXPECT_THROW(total.add("x"), RtfError);
    EXPECT_THROW(total.add("1,50"), RtfError);
    EXPECT_THROW(total.require("\u20AC 5"), RtfError);
    total.add("2.25");
    EXPECT_EQ(total.text(), "3.75");
}

TEST(ColumnRequests, AreFieldsWithCommasBetweenThem) {
    const std::vector<ColumnRequest> columns =
        columnRequests("sku:12%,name:Article:auto,price:20%:right:money:2,when:date:dd.MM.yyyy");
    ASSERT_EQ(columns.size(), 4U);
    EXPECT_EQ(columns[0].name, "sku");
    EXPECT_EQ(columns[0].heading, std::nullopt);
    EXPECT_EQ(columns[0].width, "12%");
    EXPECT_EQ(columns[1].heading, "Article");
    EXPECT_EQ(columns[1].width, "");
    EXPECT_EQ(columns[2].align, eRight);
    EXPECT_EQ(columns[2].filters.size(), 1U);
    EXPECT_EQ(columns[2].filters[0].kind, FilterKind::Money);
    EXPECT_EQ(columns[2].filters[0].decimals, 2U);
    EXPECT_EQ(columns[3].filters[0].argument, "dd.MM.yyyy");
}

TEST(ColumnRequests, TakeAnythingBetweenQuotationMarks) {
    const std::vector<ColumnRequest> columns =
        columnRequests(R"("a:b,""c""":"right":left,d:"20%":3cm)");
    ASSERT_EQ(columns.size(), 2U);
    EXPECT_EQ(columns[0].name, "a:b,\"c\"");
    EXPECT_EQ(columns[0].heading, "right");
    EXPECT_EQ(columns[0].align, eLeft);
    EXPECT_EQ(columns[1].heading, "20%");
    EXPECT_EQ(columns[1].width, "3cm");
}

TEST(ColumnRequests, RefuseWhatTheyDoNotUnderstand) {
    EXPECT_EQ(errorOf([] { columnRequests("a,,b"); }),
              "A column has no name. Write names with commas between them.");
    EXPECT_THAT(errorOf([] { columnRequests("a:Heading:rigth"); }),
                HasSubstr("\"a\" has two headings, \"Heading\" and \"rigth\""));
    EXPECT_EQ(errorOf([] { columnRequests("\"a"); }),
              "A quotation mark in the columns is not closed.");
    EXPECT_EQ(errorOf([] { columnRequests("\"a\"b"); }),
              "\"b\" cannot stand after a quotation mark; write a comma or a colon before it.");
    EXPECT_THAT(errorOf([] { columnRequests("a:number:x"); }),
                HasSubstr("The filter \"number:x\" of the column \"a\": "));
    EXPECT_THAT(errorOf([] { columnRequests("a:0%"); }), HasSubstr("0%"));
}

TEST(ColumnMeasure, KnowsTheWidestLineAndWhetherAllCellsAreNumbers) {
    ColumnMeasure numbers;
    numbers.addHeading("Price");
    numbers.addCell("12.50");
    numbers.addCell("");
    EXPECT_TRUE(numbers.holdsNumbers());
    ColumnMeasure texts;
    texts.addCell("12.50");
    texts.addCell("twelve");
    texts.addCell("13");
    EXPECT_FALSE(texts.holdsNumbers());
    EXPECT_FALSE(ColumnMeasure().holdsNumbers());

    ColumnMeasure oneLine;
    oneLine.addCell("abcdef");
    ColumnMeasure twoLines;
    twoLines.addCell("abc\r\nabcdef");
    EXPECT_EQ(twoLines.width(), oneLine.width());
    ColumnMeasure longer;
    longer.addCell("abcdefg");
    EXPECT_GT(longer.width(), oneLine.width());
}

TEST(ColumnMeasure, LetsALongHeadingBreakAtItsBlanks) {
    ColumnMeasure measure;
    measure.addHeading("Price without tax in euro");
    measure.addCell("12.50");
    EXPECT_LT(measure.width(2), 0.65 * measure.width(1));
    EXPECT_LT(measure.width(3), measure.width(2));
    ColumnMeasure word;
    word.addHeading("Mindestbestellmenge");
    EXPECT_EQ(word.width(3), word.width(1));
    measure.addCell("a text that is longer than the heading is");
    EXPECT_EQ(measure.width(3), measure.width(1));
}

TEST(ColumnMeasure, GivesNoMoreRoomToNumbersAndDates) {
    const auto stretches = [](const std::vector<std::string>& cells) {
        ColumnMeasure measure;
        for (const std::string& cell : cells) {
            measure.addCell(cell);
        }
        return measure.stretches();
    };
    EXPECT_FALSE(stretches({"1", "2,5"}));
    EXPECT_FALSE(stretches({"2027-01-31", "", "31.12.2027"}));
    EXPECT_TRUE(stretches({"2027-01-31", "soon"}));
    EXPECT_TRUE(stretches({}));
}

TEST(FittedWidths, GiveWhatIsLeftOverToTheColumnsThatStretch) {
    EXPECT_THAT(fittedWidths({{100, true}, {200, false}, {300, true}}, 1000),
                ElementsAre(DoubleNear(200, 0.1), 200, DoubleNear(600, 0.1)));
    EXPECT_THAT(fittedWidths({{100, false}, {300, false}}, 800), ElementsAre(200, 600));
}

TEST(FittedWidths, LetNarrowColumnsKeepTheirWidths) {
    const std::vector<double> widths =
        fittedWidths({{50, false}, {400, true}, {10000, true}, {60, false}}, 1000);
    EXPECT_EQ(widths[0], 50);
    EXPECT_EQ(widths[3], 60);
    EXPECT_LT(widths[1], widths[2]);
    EXPECT_NEAR(std::accumulate(widths.begin(), widths.end(), 0.0), 1000, 0.1);
}

}  // namespace
}  // namespace quorvane::data
