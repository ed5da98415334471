#include "quorvane/diagnostics/description/widthOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>

#include "quorvane/diagnostics/description/DescriptionCheck.h"

namespace quorvane {
namespace {

constexpr std::int32_t room = 8840;
constexpr std::optional<double> none;

std::string rowOf(const std::string& widths) {
    std::istringstream numbers(widths);
    std::string text = "(doc\n(r\n";
    for (std::string width; std::getline(numbers >> std::ws, width, ',');) {
        text += "(c\n(cw=" + width + ")\nc)\n";
    }
    return text + "r)\ndoc)\n";
}

bool isClean(const std::string& widths) {
    return checkDescription(rowOf(widths)).empty();
}

TEST(WidthOrder, MovesAWideFirstCellByOnePlaceWhereThatIsEnough) {
    EXPECT_EQ(widthOrderHint({80, 10, 10}, room).text,
              "the order 10, 80, 10 gives all cells their widths");
    EXPECT_FALSE(isClean("80, 10, 10"));
    EXPECT_TRUE(isClean("10, 80, 10"));
}

TEST(WidthOrder, MovesItFurtherWhereItMust) {
    EXPECT_EQ(widthOrderHint({60, 20, 10, 10}, room).text,
              "the order 20, 10, 60, 10 gives all cells their widths");
    EXPECT_FALSE(isClean("20, 60, 10, 10"));
    EXPECT_TRUE(isClean("20, 10, 60, 10"));
}

TEST(WidthOrder, SortsTheCellsWhereOneMoveIsNotEnough) {
    EXPECT_EQ(widthOrderHint({45, 40, 5, 5, 5}, room).text,
              "the order 5, 5, 5, 40, 45 gives all cells their widths");
    EXPECT_TRUE(isClean("5, 5, 5, 40, 45"));
}

TEST(WidthOrder, SharesWhatIsLeftAmongTheCellsWithoutAWidth) {
    EXPECT_EQ(widthOrderHint({80, none, none}, room).text,
              "give all cells a width, in the order 10, 80, 10");
    EXPECT_EQ(widthOrderHint({75, none, none, none}, room).text,
              "give all cells a width, in the order 9, 8, 75, 8");
    EXPECT_TRUE(isClean("9, 8, 75, 8"));
}

TEST(WidthOrder, SaysNothingWhereTheOrderIsNotTheCause) {
    EXPECT_TRUE(widthOrderHint({10, 80, 10}, room).empty());
    EXPECT_TRUE(widthOrderHint({80, 20}, room).empty());
    EXPECT_TRUE(widthOrderHint({80, 30, 10}, room).empty());
    EXPECT_TRUE(widthOrderHint({1, 98, 1}, room).empty());
    EXPECT_TRUE(widthOrderHint({100, none, none}, room).empty());
}

TEST(WidthOrder, IsRightWheneverItNamesOne) {
    std::mt19937 random(11);
    int named = 0;
    for (int i = 0; i < 300; ++i) {
        CellPercents percents;
        int rest = 100;
        const int count = 3 + static_cast<int>(random() % 5);
        for (int cell = 1; cell < count; ++cell) {
            const int width = 3 + static_cast<int>(random() % static_cast<unsigned>(std::max(
                                                                  1, rest - 5 * (count - cell))));
            percents.emplace_back(width);
            rest -= width;
        }
        percents.emplace_back(rest);
        const std::string hint = widthOrderHint(percents, room).text;
        const std::string begin = "the order ";
        if (hint.empty()) {
            continue;
        }
        ++named;
        const std::string order = hint.substr(begin.size(), hint.find(" gives") - begin.size());
        EXPECT_TRUE(isClean(order)) << order;
    }
    EXPECT_GT(named, 50);
}

}  // namespace
}  // namespace quorvane
