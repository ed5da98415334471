#include "quorvane/docmodel/enumerations.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace quorvane {
namespace {

template <class Enumeration>
constexpr bool is32Bit = std::is_same_v<std::underlying_type_t<Enumeration>, std::int32_t>;

TEST(Enumerations, HoldAny32BitNumber) {
    EXPECT_TRUE(is32Bit<tColorIndex>);
    EXPECT_TRUE(is32Bit<tBorderWidth>);
    EXPECT_TRUE(is32Bit<tWidthUnit>);
    EXPECT_TRUE(is32Bit<tCellAlign>);
    EXPECT_TRUE(is32Bit<tErrorLevel>);
}

TEST(Enumerations, NumberTheColors) {
    EXPECT_EQ(eNoColor, 0);
    EXPECT_EQ(eAquamarine, 1);
    EXPECT_EQ(eBisque, 2);
    EXPECT_EQ(eBlack, 3);
    EXPECT_EQ(eBlue, 4);
    EXPECT_EQ(eBrown, 5);
    EXPECT_EQ(eChartreuse, 6);
    EXPECT_EQ(eCyan, 7);
    EXPECT_EQ(eDarkCyan, 8);
    EXPECT_EQ(eDarkGray, 9);
    EXPECT_EQ(eDarkGreen, 10);
    EXPECT_EQ(eDarkMagenta, 11);
    EXPECT_EQ(eDarkRed, 12);
    EXPECT_EQ(eDarkSlateBlue, 13);
    EXPECT_EQ(eDarkYellow, 14);
    EXPECT_EQ(eDeepSkyBlue, 15);
    EXPECT_EQ(eGold, 16);
    EXPECT_EQ(eGray, 17);
    EXPECT_EQ(eGreen, 18);
    EXPECT_EQ(eLightBlue, 19);
    EXPECT_EQ(eLightGreen, 20);
    EXPECT_EQ(eLightYellow, 21);
    EXPECT_EQ(eLimeGreen, 22);
    EXPECT_EQ(eMagenta, 23);
    EXPECT_EQ(eNavyBlue, 24);
    EXPECT_EQ(eOliveGreen, 25);
    EXPECT_EQ(eOrange, 26);
    EXPECT_EQ(ePeachPuff, 27);
    EXPECT_EQ(ePink, 28);
    EXPECT_EQ(ePurple, 29);
    EXPECT_EQ(eRed, 30);
    EXPECT_EQ(eSeaGreen, 31);
    EXPECT_EQ(eSilver, 32);
    EXPECT_EQ(eSkyBlue, 33);
    EXPECT_EQ(eSlateBlue, 34);
    EXPECT_EQ(eTurquoise, 35);
    EXPECT_EQ(eWhite, 36);
    EXPECT_EQ(eYellow, 37);
    EXPECT_EQ(eBrick, 38);
    EXPECT_EQ(eCork, 39);
    EXPECT_EQ(eYellowCork, 40);
    EXPECT_EQ(eDarkCork, 41);
    EXPECT_EQ(eDarkSilver, 42);
    EXPECT_EQ(eGrayBlue, 43);
    EXPECT_EQ(eDarkNavyBlue, 44);
    EXPECT_EQ(eLightRoyalBlue, 45);
    EXPECT_EQ(eViolet, 46);
    EXPECT_EQ(eDodgerBlue, 47);
    EXPECT_EQ(eSargassoGreen, 48);
    EXPECT_EQ(eRoyalBlue, 49);
    EXPECT_EQ(eLightSeaGreen, 50);
    EXPECT_EQ(eDeepPurple, 51);
    EXPECT_EQ(eSteelBlue, 52);
    EXPECT_EQ(eAsphalt, 53);
    EXPECT_EQ(eDarkGoldenRod, 54);
    EXPECT_EQ(eDarkGrass, 55);
    EXPECT_EQ(eGrass, 56);
    EXPECT_EQ(eRedBrick, 57);
}

TEST(Enumerations, GiveBordersTheirWidths) {
    EXPECT_EQ(eNone, -1);
    EXPECT_EQ(eHair, 5);
    EXPECT_EQ(eThin, 10);
    EXPECT_EQ(eNormal, 20);
    EXPECT_EQ(eThick, 30);
}

TEST(Enumerations, NumberTheUnitsOfWidths) {
    EXPECT_EQ(ePercent, 0);
    EXPECT_EQ(eTwips, 1);
}

TEST(Enumerations, NumberTheAlignments) {
    EXPECT_EQ(eNoDefault, 0);
    EXPECT_EQ(eCentered, 1);
    EXPECT_EQ(eLeft, 2);
    EXPECT_EQ(eRight, 3);
    EXPECT_EQ(eJustified, 4);
}

TEST(Enumerations, NumberTheKindsOfErrors) {
    EXPECT_EQ(eNoStyleSheet, 1);
    EXPECT_EQ(eWrongFileType, 2);
    EXPECT_EQ(eWrongPath, 3);
    EXPECT_EQ(eRequiredElementMissing, 4);
    EXPECT_EQ(eWrongRootNode, 5);
    EXPECT_EQ(eWrongKeyword, 6);
    EXPECT_EQ(eWrongNumberOfNodes, 7);
    EXPECT_EQ(eWrongValue, 8);
    EXPECT_EQ(eWrongStyleSheet, 9);
    EXPECT_EQ(eWrongNodeType, 10);
    EXPECT_EQ(eSyntaxError, 11);
}

}  // namespace
}  // namespace quorvane
