#include "quorvane/base/values/units.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

double twipsIn(std::string_view unit) {
    const LengthUnit* const known = lengthUnitOf(unit);
    return known ? known->twips : 0;
}

TEST(LengthUnits, AreKnownByTheirWords) {
    EXPECT_EQ(twipsIn("in"), 1440);
    EXPECT_EQ(twipsIn("inch"), 1440);
    EXPECT_EQ(twipsIn("inches"), 1440);
    EXPECT_EQ(twipsIn("\""), 1440);
    EXPECT_EQ(twipsIn("pt"), 20);
    EXPECT_EQ(twipsIn("pc"), 240);
    EXPECT_EQ(twipsIn("tw"), 1);
    EXPECT_EQ(twipsIn("twip"), 1);
    EXPECT_EQ(twipsIn("twips"), 1);
    EXPECT_DOUBLE_EQ(twipsIn("cm"), 1440 / 2.54);
    EXPECT_DOUBLE_EQ(twipsIn("mm"), 144 / 2.54);
}

TEST(LengthUnits, AreKnownInAnyCase) {
    EXPECT_EQ(lengthUnitOf("MM"), &millimeterUnit);
    EXPECT_EQ(lengthUnitOf("Pt"), &pointUnit);
}

TEST(LengthUnits, HaveNoOtherWords) {
    EXPECT_EQ(lengthUnitOf(""), nullptr);
    EXPECT_EQ(lengthUnitOf("m"), nullptr);
    EXPECT_EQ(lengthUnitOf("%"), nullptr);
    EXPECT_EQ(lengthUnitOf(" mm"), nullptr);
}

TEST(NumberWithUnit, IsANumberAndTheWordAfterIt) {
    const auto parts = readNumberWithUnit("12.5mm");

    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->number, 12.5);
    EXPECT_EQ(parts->writtenNumber, "12.5");
    EXPECT_EQ(parts->unit, "mm");
}

TEST(NumberWithUnit, LeavesOutTheBlanksAroundTheWord) {
    const auto parts = readNumberWithUnit("-3 \tinches ");

    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->number, -3);
    EXPECT_EQ(parts->writtenNumber, "-3");
    EXPECT_EQ(parts->unit, "inches");
}

TEST(NumberWithUnit, MayBeANumberAlone) {
    const auto parts = readNumberWithUnit("567");

    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->number, 567);
    EXPECT_EQ(parts->unit, "");
}

TEST(NumberWithUnit, HasNoExponent) {
    const auto parts = readNumberWithUnit("1e3cm");

    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->number, 1);
    EXPECT_EQ(parts->unit, "e3cm");
}

TEST(NumberWithUnit, BeginsWithANumber) {
    for (const char* text : {"", "mm", " 3mm", "1.2.3", "3-4mm", "."}) {
        EXPECT_FALSE(readNumberWithUnit(text)) << text;
    }
}

}  // namespace
}  // namespace quorvane
