#include "quorvane/driver/extendedValues.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/columnLayout.h"
#include "quorvane/driver/misplacedNode.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

/// What is wrong with a value; empty when nothing is.
std::string wrong(const std::function<void()>& read) {
    try {
        read();
    } catch (const LeafError& error) {
        EXPECT_EQ(error.fault, DriverFault::WrongValue);
        return error.description;
    }
    return {};
}

std::string wrongLength(std::string_view text) {
    return wrong([&] { lengthOf(text); });
}

TEST(ExtendedValues, ReadLengthsWithUnits) {
    EXPECT_EQ(lengthOf("21cm"), 11906);
    EXPECT_EQ(lengthOf("12.5mm"), 709);
    EXPECT_EQ(lengthOf("8.5in"), 12240);
    EXPECT_EQ(lengthOf("12pt"), 240);
    EXPECT_EQ(lengthOf("1440"), 1440);
    EXPECT_EQ(lengthOf("2 cm"), 1134);
}

TEST(ExtendedValues, SayHowALengthIsWritten) {
    EXPECT_EQ(wrongLength("21mn"),
              "\"21mn\" is not a length; write a number with mm, cm, in or pt, or one of twips.");
    EXPECT_EQ(wrongLength("wide"),
              "\"wide\" is not a length; write a number with mm, cm, in or pt, or one of twips.");
    EXPECT_EQ(wrongLength(""),
              "The value is missing; write a number with mm, cm, in or pt, or one of twips.");
    EXPECT_NE(wrongLength("1e9mm"), "");
    EXPECT_NE(wrongLength("99999999999cm"), "");
}

TEST(ExtendedValues, LimitLengthsToThoseOfAPage) {
    EXPECT_EQ(lengthFrom(1, "22in"), 31680);
    EXPECT_EQ(wrong([] { lengthFrom(1, "23in"); }),
              "\"23in\" is too much; a page has at most 22 inches (558.8 mm).");
    EXPECT_EQ(wrong([] { lengthFrom(1, "0"); }), "\"0\" is too little; write more than 0.");
}

TEST(ExtendedValues, ReadWholeNumbersWithinTheirRange) {
    EXPECT_EQ(wholeNumber("3", 1, 63), 3);
    EXPECT_EQ(wrong([] { wholeNumber("0", 1, 63); }),
              "\"0\" is not a whole number that can stand here; write one from 1 to 63.");
    EXPECT_NE(wrong([] { wholeNumber("1.5", 1, 63); }), "");
    EXPECT_NE(wrong([] { wholeNumber("1e300", 1, 63); }), "");
    EXPECT_NE(wrong([] { wholeNumber("x", 1, 63); }), "");
}

TEST(ExtendedValues, ReadYesAndNo) {
    EXPECT_TRUE(yesOrNo("yes"));
    EXPECT_FALSE(yesOrNo("No"));
    EXPECT_EQ(wrong([] { yesOrNo("true"); }), "\"true\"; write yes or no.");
    EXPECT_EQ(wrong([] { yesOrNo(""); }), "The value is missing; write yes or no.");
}

TEST(ExtendedValues, KnowPagesByName) {
    EXPECT_EQ(pageSizeNamed("a4").width, 11906);
    EXPECT_EQ(pageSizeNamed("a4").height, 16838);
    EXPECT_EQ(pageSizeNamed("A4-Landscape").width, 16838);
    EXPECT_EQ(pageSizeNamed("letter-landscape").height, 12240);
    EXPECT_EQ(wrong([] { pageSizeNamed("a44"); }),
              "\"a44\" is not a page; write one of a3, a4, a5, a6, b5, letter, legal, tabloid, "
              "executive, each also with -landscape, or use paper-width and paper-height.");
}

TEST(ExtendedValues, ReadWidthsOfColumns) {
    const std::vector<ColumnWidth> widths = columnWidths("50 10%, 3cm");
    ASSERT_EQ(widths.size(), 3U);
    EXPECT_TRUE(widths[0].isShare && widths[1].isShare && !widths[2].isShare);
    EXPECT_EQ(widths[0].amount, 50);
    EXPECT_EQ(widths[1].amount, 10);
    EXPECT_EQ(widths[2].amount, 1701);
    EXPECT_EQ(wrong([] { columnWidths("50 x"); }),
              "\"x\" is not the width of a column; write a number of percent, or one with mm, cm, "
              "in or pt.");
    EXPECT_NE(wrong([] { columnWidths("50 -10"); }), "");
    EXPECT_NE(wrong([] { columnWidths(""); }), "");
}

TEST(ExtendedValues, ReadColorsByTheirComponents) {
    EXPECT_EQ(colorComponents("#1f4e79"), (RgbColor{0x1F, 0x4E, 0x79}));
    EXPECT_EQ(colorComponents("#ABCDEF"), (RgbColor{0xAB, 0xCD, 0xEF}));
    EXPECT_FALSE(colorComponents("red"));
    EXPECT_EQ(wrong([] { colorComponents("#12345"); }),
              "\"#12345\" is not a color; write # and six hexadecimal digits, such as #1f4e79.");
    EXPECT_NE(wrong([] { colorComponents("#12345g"); }), "");
}

TEST(ExtendedValues, ReadThePartsOfAPageLine) {
    EXPECT_THAT(pageLineParts("Prices"), ElementsAre("Prices", "", ""));
    EXPECT_THAT(pageLineParts("a | b | {page}"), ElementsAre("a", "b", "{page}"));
    EXPECT_THAT(pageLineParts("||c"), ElementsAre("", "", "c"));
    EXPECT_EQ(wrong([] { pageLineParts("a|b|c|d"); }),
              "\"a|b|c|d\" has more than three parts; write left|center|right.");
}

std::vector<std::int32_t> layout(const std::vector<std::optional<ColumnWidth>>& columns,
                                 std::int32_t textArea) {
    return columnLayout(columns, {textArea, textArea + 500});
}

constexpr ColumnWidth share(double amount) {
    return {amount, true};
}

constexpr std::nullopt_t open = std::nullopt;

TEST(ColumnLayout, GivesSharesOfTheTextArea) {
    EXPECT_THAT(layout({share(50), share(10), share(40)}, 10000), ElementsAre(5000, 1000, 4000));
}

TEST(ColumnLayout, KeepsTheRightEdgesExact) {
    EXPECT_THAT(layout({share(100.0 / 3), share(100.0 / 3), share(100.0 / 3)}, 1000),
                ElementsAre(333, 334, 333));
}

TEST(ColumnLayout, GivesWhatIsLeftToColumnsWithoutAWidth) {
    EXPECT_THAT(layout({share(50), open, open}, 10000), ElementsAre(5000, 2500, 2500));
    EXPECT_THAT(layout({ColumnWidth{1701}, open}, 9000), ElementsAre(1701, 7299));
}

TEST(ColumnLayout, CanReachIntoTheMargin) {
    EXPECT_THAT(layout({ColumnWidth{5000}, ColumnWidth{4400}}, 9000), ElementsAre(5000, 4400));
}

TEST(ColumnLayout, RefusesWhatDoesNotFit) {
    EXPECT_EQ(wrong([] {
                  layout({share(60), share(52)}, 9000);
              }),
              "The columns take 112 % of the text area; make them narrower, so that they take 100 "
              "% at most.");
    EXPECT_EQ(wrong([] {
                  layout({ColumnWidth{5000}, ColumnWidth{4501}}, 9000);
              }),
              "The columns are 9501 twips wide, but the paper ends 9500 twips after the left "
              "margin; make them narrower.");
    EXPECT_EQ(wrong([] {
                  layout({share(100), open}, 9000);
              }),
              "The columns leave nothing of the text area to those without a width; make them "
              "narrower.");
}

TEST(MisplacedNode, NamesTheLinesThatAreMissing) {
    using enum NodeKind;
    EXPECT_EQ(misplacedNode(Row, Cell),
              "A row cannot stand in a cell; write cell) and row) before it");
    EXPECT_EQ(misplacedNode(Row, Row), "A row cannot stand in a row; write row) before it");
    EXPECT_EQ(misplacedNode(Cell, Doc), "A cell cannot stand in a doc; write (row before it");
    EXPECT_EQ(misplacedNode(Para, Doc),
              "A para cannot stand in a doc; write (row and (cell before it");
    EXPECT_EQ(misplacedNode(Para, Para), "A para cannot stand in a para; write para) before it");
    EXPECT_EQ(misplacedNode(Doc, Row), "A doc cannot stand in a row; a description has one doc");
}

}  // namespace
}  // namespace quorvane
