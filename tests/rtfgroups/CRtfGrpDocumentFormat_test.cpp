#include "quorvane/rtfgroups/CRtfGrpDocumentFormat.h"

#include <gtest/gtest.h>

#include "tests/support/appendRendered.h"

namespace quorvane {
namespace {

// Counts how often it is marked changed.
class Owner final : public GroupOwner {
public:
    int changes = 0;
    void beforeChange() override {}
    void markChanged() noexcept override { ++changes; }
};

class DocumentFormat : public testing::Test {
protected:
    std::string rendered() const {
        std::string rtf;
        appendRendered(format, rtf);
        return rtf;
    }

    Owner owner;
    CRtfGrpDocumentFormat format{owner};
};

TEST_F(DocumentFormat, HasTheDefaultPage) {
    EXPECT_EQ(format.BottomMargin(), 1418);
    EXPECT_EQ(format.LeftMargin(), 1701);
    EXPECT_EQ(format.TopMargin(), 1418);
    EXPECT_EQ(format.RightMargin(), 1701);
    EXPECT_EQ(format.PageNumberStart(), 2);
    EXPECT_EQ(format.PaperWidth(), 12242);
    EXPECT_EQ(format.PaperHeight(), 15842);
    EXPECT_EQ(owner.changes, 0);
}

TEST_F(DocumentFormat, WritesTheDefaultPage) {
    EXPECT_EQ(rendered(),
              "\r\n\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701\\paperw12242"
              "\\paperh15842\\pgnstart2\\widowctrl\r\n");
}

TEST_F(DocumentFormat, WritesEverySettingInItsPlace) {
    format.setPageNumberStart(7);
    format.setPaperHeight(6);
    format.setPaperWidth(20000);
    format.setPaperHeight(20000);
    format.setRightMargin(4);
    format.setTopMargin(5);
    format.setLeftMargin(8);
    format.setBottomMargin(9);

    EXPECT_EQ(rendered(),
              "\r\n\\deftab360\\defformat\\margb9\\margl8\\margt5\\margr4\\paperw20000"
              "\\paperh20000\\pgnstart7\\widowctrl\r\n");
}

TEST_F(DocumentFormat, TakesABottomMarginBelowItsLimit) {
    format.setBottomMargin(12839);
    EXPECT_EQ(format.BottomMargin(), 12839);
    EXPECT_EQ(owner.changes, 1);
}

TEST_F(DocumentFormat, MakesABottomMarginThatDoesNotFit0) {
    for (const std::int32_t twips : {12840, 20000, 0, -1, INT32_MAX, INT32_MIN}) {
        format.setBottomMargin(twips);
        EXPECT_EQ(format.BottomMargin(), 0) << twips;
        format.setBottomMargin(100);
        EXPECT_EQ(format.BottomMargin(), 100);
    }
}

TEST_F(DocumentFormat, TakesALeftMarginBelowItsLimit) {
    format.setLeftMargin(9316);
    EXPECT_EQ(format.LeftMargin(), 9316);
    format.setLeftMargin(1);
    EXPECT_EQ(format.LeftMargin(), 1);
    EXPECT_EQ(owner.changes, 2);
}

TEST_F(DocumentFormat, MakesALeftMarginThatDoesNotFit1) {
    for (const std::int32_t twips : {9317, 12242, 0, -1, -1701, INT32_MAX, INT32_MIN}) {
        format.setLeftMargin(twips);
        EXPECT_EQ(format.LeftMargin(), 1) << twips;
        format.setLeftMargin(100);
    }
}

TEST_F(DocumentFormat, TakesATopMarginBelowItsLimit) {
    format.setTopMargin(12839);
    EXPECT_EQ(format.TopMargin(), 12839);
    EXPECT_EQ(owner.changes, 1);
}

TEST_F(DocumentFormat, MakesATopMarginThatDoesNotFit2) {
    for (const std::int32_t twips : {12840, 20000, 0, -1, INT32_MAX, INT32_MIN}) {
        format.setTopMargin(twips);
        EXPECT_EQ(format.TopMargin(), 2) << twips;
        format.setTopMargin(100);
    }
}

TEST_F(DocumentFormat, TakesARightMarginBelowItsLimit) {
    format.setRightMargin(9316);
    EXPECT_EQ(format.RightMargin(), 9316);
    EXPECT_EQ(owner.changes, 1);
}

TEST_F(DocumentFormat, MakesARightMarginThatDoesNotFit3) {
    for (const std::int32_t twips : {9317, 12242, 0, -1, INT32_MAX, INT32_MIN}) {
        format.setRightMargin(twips);
        EXPECT_EQ(format.RightMargin(), 3) << twips;
        format.setRightMargin(100);
    }
}

TEST_F(DocumentFormat, RefusesAMarginThatEqualsItsLimit) {
    format.setPaperWidth(10000);
    format.setPaperHeight(10000);

    format.setLeftMargin(9000 - 1701);
    format.setBottomMargin(9000 - 1418);
    EXPECT_EQ(format.LeftMargin(), 1);
    EXPECT_EQ(format.BottomMargin(), 0);

    format.setLeftMargin(9000 - 1701 - 1);
    format.setBottomMargin(9000 - 1418 - 1);
    EXPECT_EQ(format.LeftMargin(), 7298);
    EXPECT_EQ(format.BottomMargin(), 7581);
}

TEST_F(DocumentFormat, RefusesATopOrRightMarginThatEqualsItsLimit) {
    format.setPaperWidth(10000);
    format.setPaperHeight(10000);

    format.setTopMargin(9000 - 1418);
    format.setRightMargin(9000 - 1701);
    EXPECT_EQ(format.TopMargin(), 2);
    EXPECT_EQ(format.RightMargin(), 3);

    format.setTopMargin(9000 - 1418 - 1);
    format.setRightMargin(9000 - 1701 - 1);
    EXPECT_EQ(format.TopMargin(), 7581);
    EXPECT_EQ(format.RightMargin(), 7298);
}

TEST_F(DocumentFormat, MeasuresAMarginAgainstTheOppositeOne) {
    format.setTopMargin(1);
    format.setBottomMargin(14256);
    EXPECT_EQ(format.BottomMargin(), 14256);

    format.setTopMargin(2);
    EXPECT_EQ(format.TopMargin(), 2);
    format.setBottomMargin(14256);
    EXPECT_EQ(format.BottomMargin(), 0);
}

TEST_F(DocumentFormat, TakesABottomMarginOf0ForTheLimitOfTheTopMargin) {
    format.setBottomMargin(0);

    format.setTopMargin(14257);

    EXPECT_EQ(format.TopMargin(), 14257);
}

TEST_F(DocumentFormat, RefusesEveryMarginOnPaperWithoutExtent) {
    format.setPaperWidth(0);
    format.setPaperHeight(INT32_MIN);

    format.setLeftMargin(5);
    format.setRightMargin(5);
    format.setTopMargin(5);
    format.setBottomMargin(5);

    EXPECT_EQ(format.LeftMargin(), 1);
    EXPECT_EQ(format.RightMargin(), 3);
    EXPECT_EQ(format.TopMargin(), 2);
    EXPECT_EQ(format.BottomMargin(), 0);
}

TEST_F(DocumentFormat, TakesLargeMarginsOnLargePaper) {
    format.setPaperWidth(INT32_MAX);

    format.setLeftMargin(1932733581);
    EXPECT_EQ(format.LeftMargin(), 1932733581);
    format.setLeftMargin(1932733582);
    EXPECT_EQ(format.LeftMargin(), 1);
}

TEST_F(DocumentFormat, IsNotChangedByAMarginOfTheSameValue) {
    format.setBottomMargin(1418);
    format.setLeftMargin(1701);
    format.setTopMargin(1418);
    format.setRightMargin(1701);
    format.setPageNumberStart(2);

    EXPECT_EQ(owner.changes, 0);
}

TEST_F(DocumentFormat, IsNotChangedByAMarginThatFallsBackToTheSameValue) {
    format.setLeftMargin(0);
    format.setPageNumberStart(0);
    EXPECT_EQ(owner.changes, 1);

    format.setLeftMargin(-5);
    format.setLeftMargin(1);
    format.setPageNumberStart(-5);
    EXPECT_EQ(owner.changes, 1);
}

TEST_F(DocumentFormat, IsChangedOnceByEachSettingThatChanges) {
    format.setBottomMargin(10);
    format.setLeftMargin(10);
    format.setTopMargin(10);
    format.setRightMargin(10);
    format.setPageNumberStart(10);

    EXPECT_EQ(owner.changes, 5);
}

TEST_F(DocumentFormat, MakesAFirstPageNumberBelow1The2) {
    for (const std::int32_t number : {0, -1, INT32_MIN}) {
        format.setPageNumberStart(5);
        format.setPageNumberStart(number);
        EXPECT_EQ(format.PageNumberStart(), 2) << number;
    }
}

TEST_F(DocumentFormat, TakesAnyFirstPageNumberFrom1) {
    format.setPageNumberStart(1);
    EXPECT_EQ(format.PageNumberStart(), 1);
    format.setPageNumberStart(INT32_MAX);
    EXPECT_EQ(format.PageNumberStart(), INT32_MAX);
}

TEST_F(DocumentFormat, TakesAnyPaperSize) {
    format.setPaperWidth(0);
    format.setPaperHeight(-7);

    EXPECT_EQ(rendered(),
              "\r\n\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701\\paperw0"
              "\\paperh-7\\pgnstart2\\widowctrl\r\n");
}

TEST_F(DocumentFormat, TakesThePaperSizesAtTheLimitsOf32Bits) {
    format.setPaperWidth(INT32_MIN);
    format.setPaperHeight(INT32_MAX);

    EXPECT_EQ(rendered(),
              "\r\n\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701"
              "\\paperw-2147483648\\paperh2147483647\\pgnstart2\\widowctrl\r\n");
}

TEST_F(DocumentFormat, IsChangedByAPaperSizeOfTheSameValue) {
    format.setPaperWidth(12242);
    EXPECT_EQ(owner.changes, 1);
    format.setPaperHeight(15842);
    EXPECT_EQ(owner.changes, 2);
}

TEST_F(DocumentFormat, KeepsItsMarginsWhenThePaperShrinks) {
    format.setPaperWidth(100);
    format.setPaperHeight(100);

    EXPECT_EQ(format.BottomMargin(), 1418);
    EXPECT_EQ(format.LeftMargin(), 1701);
    EXPECT_EQ(format.TopMargin(), 1418);
    EXPECT_EQ(format.RightMargin(), 1701);
}

}  // namespace
}  // namespace quorvane
