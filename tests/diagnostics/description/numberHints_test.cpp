#include "quorvane/diagnostics/description/numberHints.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quorvane {
namespace {

constexpr const char* twips = "write a number of twips: an inch is 1440, a centimeter 567";
constexpr const char* perCent = "write a percentage of the width between the margins, without a %";

std::string said(std::string_view key, std::string_view value) {
    return numberHint(key, value).text;
}

TEST(NumberHints, SayWhatTheKeyAccepts) {
    for (const char* key : {"paper-width", "paper-height", "left-margin", "bottom-margin"}) {
        EXPECT_EQ(said(key, "wide"), twips) << key;
    }
    EXPECT_EQ(said("cell-width", "wide"), perCent);
    EXPECT_EQ(said("page-number-start", "one"), "write a number");
}

TEST(NumberHints, SayThatAValueIsMissing) {
    EXPECT_EQ(said("row-key", ""), "the value is missing; write a number");
    EXPECT_EQ(said("top-margin", ""), std::string("the value is missing; ") + twips);
}

TEST(NumberHints, ReckonUnitsOfLengthInTwips) {
    EXPECT_EQ(said("paper-width", "21cm"), "21cm is 11906 twips; write 11906");
    EXPECT_EQ(said("paper-height", "297 MM"), "297 MM is 16838 twips; write 16838");
    EXPECT_EQ(said("top-margin", "1.5in"), "1.5in is 2160 twips; write 2160");
    EXPECT_EQ(said("top-margin", "1 inch"), "1 inch is 1440 twips; write 1440");
    EXPECT_EQ(said("top-margin", "2 Inches"), "2 Inches is 2880 twips; write 2880");
    EXPECT_EQ(said("left-margin", "2\""), "2\" is 2880 twips; write 2880");
    EXPECT_EQ(said("left-margin", "20pt"), "20pt is 400 twips; write 400");
    EXPECT_EQ(said("right-margin", "-3pc"), "-3pc is -720 twips; write -720");
}

TEST(NumberHints, TakeTwipsFromAfterTheirNumber) {
    for (const char* value : {"567tw", "567 twip", "567twips"}) {
        EXPECT_EQ(said("left-margin", value), "write only the number: 567") << value;
    }
}

TEST(NumberHints, ReckonNoUnitForKeysThatTakeNoLength) {
    EXPECT_EQ(
        said("cell-width", "5cm"),
        "a cell width is a percentage of the width between the margins, not a length; write it "
        "without a unit");
    EXPECT_EQ(said("row-key", "5cm"), "write a number");
}

TEST(NumberHints, TakeThePerCentSignFromAWidthAlone) {
    EXPECT_EQ(said("cell-width", "50 %"), "write only the number: 50");
    EXPECT_EQ(said("paper-width", "50%"), twips);
}

TEST(NumberHints, KnowNoOtherUnit) {
    EXPECT_EQ(said("paper-width", "12px"), twips);
    EXPECT_EQ(said("cell-width", "5 columns"), perCent);
}

TEST(NumberHints, KnowTheSizesOfPaper) {
    EXPECT_EQ(said("paper-width", "A4"), "A4 is 11906 twips wide and 16838 high");
    EXPECT_EQ(said("paper-height", "a4"), "A4 is 11906 twips wide and 16838 high");
    EXPECT_EQ(said("paper-width", "Letter"), "US letter is 12240 twips wide and 15840 high");
    EXPECT_EQ(said("left-margin", "a4"), twips);
    EXPECT_EQ(said("left-margin", "letter"), twips);
}

TEST(NumberHints, MakeAPointOfAComma) {
    EXPECT_EQ(said("cell-width", "12,5"), "write a point instead of the comma: 12.5");
    EXPECT_EQ(said("top-margin", "1,000"), "write the number without a comma: 1000 or 1.000");
}

TEST(NumberHints, MakeNothingOfCommasThatDivideNoNumber) {
    const std::string hint = "a number has no comma and at most one decimal point; write a number";
    EXPECT_EQ(said("row-key", "1,2,3"), hint);
    EXPECT_EQ(said("row-key", "12,"), hint);
    EXPECT_EQ(said("row-key", "1.5,2"), hint);
}

TEST(NumberHints, WriteNumbersWithoutExponent) {
    const std::string hint =
        "the number is too large or malformed; write its digits without an exponent";
    EXPECT_EQ(said("paper-width", "1e3000"), hint);
    EXPECT_EQ(said("row-key", "-2.5E999"), hint);
    EXPECT_EQ(said("row-key", "e"), "write a number");
    EXPECT_EQ(said("row-key", "1.2.3"), "write a number");
}

TEST(NumberHints, TakeQuotationMarksFromAroundANumber) {
    EXPECT_EQ(said("row-key", "\"50\""), "write the number without quotation marks: 50");
    EXPECT_EQ(said("row-key", "'-1.5'"), "write the number without quotation marks: -1.5");
    for (const char* value : {"\"\"", "\"a\"", "'5\"", "\""}) {
        EXPECT_EQ(said("row-key", value), "write a number") << value;
    }
}

}  // namespace
}  // namespace quorvane
