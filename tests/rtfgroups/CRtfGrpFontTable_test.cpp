#include "quorvane/rtfgroups/CRtfGrpFontTable.h"

#include <gtest/gtest.h>

#include "tests/support/appendRendered.h"

namespace quorvane {
namespace {

TEST(CRtfGrpFontTable, WritesEighteenFonts) {
    std::string rtf;

    appendRendered(CRtfGrpFontTable(), rtf);

    EXPECT_EQ(rtf,
              "\r\n{\\fonttbl"
              "\r\n{\\f0\\fswiss\\fcharset0\\fprq2 Arial;}"
              "\r\n{\\f1\\froman\\fcharset0\\fprq2 Book Antiqua;}"
              "\r\n{\\f2\\froman\\fcharset0\\fprq2 Bookman Old Style;}"
              "\r\n{\\f3\\fmodern\\fcharset0\\fprq1 Courier New;}"
              "\r\n{\\f4\\froman\\fcharset0\\fprq2 Garamond;}"
              "\r\n{\\f5\\froman\\fcharset0\\fprq2 Georgia;}"
              "\r\n{\\f6\\fswiss\\fcharset0\\fprq2 Lucida Sans;}"
              "\r\n{\\f7\\froman\\fcharset2\\fprq2 Symbol;}"
              "\r\n{\\f8\\fswiss\\fcharset0\\fprq2 Tahoma;}"
              "\r\n{\\f9\\froman\\fcharset0\\fprq2 Times New Roman;}"
              "\r\n{\\f10\\fswiss\\fcharset0\\fprq2 Trebuchet MS;}"
              "\r\n{\\f11\\fswiss\\fcharset0\\fprq2 Verdana;}"
              "\r\n{\\f12\\froman\\fcharset2\\fprq2 Webdings;}"
              "\r\n{\\f13\\fdecor\\fcharset2\\fprq2 Wingdings;}"
              "\r\n{\\f14\\fswiss\\fcharset0\\fprq2 Arial Black;}"
              "\r\n{\\f15\\fswiss\\fcharset0\\fprq2 Impact;}"
              "\r\n{\\f16\\fscript\\fcharset0\\fprq2 Comic Sans MS;}"
              "\r\n{\\f17\\fswiss\\fcharset0\\fprq2 Century Gothic;}"
              "}");
}

TEST(CRtfGrpFontTable, AppendsToWhatIsThere) {
    std::string rtf = "before";

    appendRendered(CRtfGrpFontTable(), rtf);

    EXPECT_EQ(rtf.substr(0, 18), "before\r\n{\\fonttbl\r");
}

TEST(CRtfGrpFontTable, FindsTheNumberOfAFontByAPatternOfItsEntry) {
    const CRtfGrpFontTable fonts;

    EXPECT_EQ(fonts.GetFontIndex("*Arial;}"), 0);
    EXPECT_EQ(fonts.GetFontIndex("*Georgia;}"), 5);
    EXPECT_EQ(fonts.GetFontIndex("*Trebuchet*"), 10);
    EXPECT_EQ(fonts.GetFontIndex("*Century Gothic;}"), 17);
    EXPECT_EQ(fonts.GetFontIndex(R"({\f9\froman\fcharset0\fprq2 Times New Roman;})"), 9);
}

TEST(CRtfGrpFontTable, FindsTheFirstFontThatMatches) {
    const CRtfGrpFontTable fonts;

    EXPECT_EQ(fonts.GetFontIndex("*froman*"), 1);
    EXPECT_EQ(fonts.GetFontIndex("{*#*fscript*"), 16);
    EXPECT_EQ(fonts.GetFontIndex("*[WZ]*dings;}"), 12);
}

TEST(CRtfGrpFontTable, ReturnsTheDefaultFontForANameThatMatchesNoEntry) {
    const CRtfGrpFontTable fonts;

    EXPECT_EQ(fonts.GetFontIndex("Georgia"), 0);
    EXPECT_EQ(fonts.GetFontIndex("*Helvetica*"), 0);
    EXPECT_EQ(fonts.GetFontIndex(""), 0);
}

TEST(CRtfGrpFontTable, TakesCaseIntoAccount) {
    EXPECT_EQ(CRtfGrpFontTable().GetFontIndex("*georgia;}"), 0);
}

TEST(CRtfGrpFontTable, CountsTheTablesOwnWordAsAnEntryBeforeTheFonts) {
    const CRtfGrpFontTable fonts;

    EXPECT_EQ(fonts.GetFontIndex("*"), -1);
    EXPECT_EQ(fonts.GetFontIndex(R"(\fonttbl)"), -1);
}

TEST(CRtfGrpFontTable, HasAKeyForEveryFont) {
    EXPECT_EQ(CRtfGrpFontTable::fontNumber("Arial"), 0);
    EXPECT_EQ(CRtfGrpFontTable::fontNumber("comic sans ms"), 16);
    EXPECT_EQ(CRtfGrpFontTable::fontNumber("nosuch"), std::nullopt);
    EXPECT_EQ(CRtfGrpFontTable::fontKey(17), "Century Gothic");
    EXPECT_EQ(CRtfGrpFontTable::fontKey(18), "");
    EXPECT_EQ(CRtfGrpFontTable::fontKey(-1), "");
}

TEST(CRtfGrpFontTable, KnowsFont10ByAKeyThatItsEntryDoesNotName) {
    EXPECT_EQ(CRtfGrpFontTable::fontKey(10), "Trebuchet");
    EXPECT_EQ(CRtfGrpFontTable::fontNumber("Trebuchet"), 10);
    EXPECT_EQ(CRtfGrpFontTable::fontNumber("Trebuchet MS"), std::nullopt);
}

}  // namespace
}  // namespace quorvane
