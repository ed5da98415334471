#include "quorvane/support/CString.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> stringsOf(const CStringList& list) {
    std::vector<std::string> strings;
    for (const std::string& text : list.NewEnum()) {
        strings.push_back(text);
    }
    return strings;
}

CString changed(CString text, void (*change)(CString&)) {
    change(text);
    return text;
}

TEST(CStringTest, IsEmptyAtFirst) {
    EXPECT_EQ(CString().Text(), "");
}

TEST(CStringTest, HoldsTheTextThatItIsGiven) {
    CString text("a");
    EXPECT_EQ(text.Text(), "a");
    text.setText("b");
    EXPECT_EQ(text.Text(), "b");
}

TEST(CStringTest, SplitsIntoWholeSubfieldsInOrder) {
    EXPECT_THAT(stringsOf(CString("^aX^bY^aZ").GetSubFields()), ElementsAre("^aX", "^bY", "^aZ"));
    EXPECT_THAT(stringsOf(CString("^a^b^").GetSubFields()), ElementsAre("^a", "^b", "^"));
}

TEST(CStringTest, HasNoSubfieldsWhenItIsNotFormatted) {
    EXPECT_THAT(stringsOf(CString("Smith^bJohn").GetSubFields()), IsEmpty());
    EXPECT_THAT(stringsOf(CString("^").GetSubFields()), IsEmpty());
    EXPECT_THAT(stringsOf(CString("").GetSubFields()), IsEmpty());
}

TEST(CStringTest, LosesNothingWhenItsSubfieldsAreJoinedAgain) {
    for (const char* text : {"^aX^bY", "^^aX^", "^a^b^a", "^\xC3\xA9X^", "^a^^^^"}) {
        EXPECT_EQ(CString(text).GetSubFields().ConCat(""), text);
    }
}

TEST(CStringTest, StrZEndsWithOneZero) {
    EXPECT_EQ(CString("abc").StrZ(), std::string("abc\0", 4));
    EXPECT_EQ(CString("").StrZ(), std::string(1, '\0'));
}

TEST(CStringTest, StrZDropsWhatStandsAfterAZero) {
    EXPECT_EQ(CString(std::string("ab\0c", 4)).StrZ(), std::string("ab\0", 3));
    EXPECT_EQ(CString(std::string("ab\0\0", 4)).StrZ(), std::string("ab\0", 3));
    EXPECT_EQ(CString(std::string("ab\0", 3)).StrZ(), std::string("ab\0", 3));
}

TEST(CStringTest, HasSubfieldDisregardsCase) {
    EXPECT_TRUE(CString("^aX").hasSubfield("A"));
    EXPECT_TRUE(CString("^AX").hasSubfield("a"));
    EXPECT_TRUE(CString("^\xC3\x89X").hasSubfield("\xC3\xA9"));
}

TEST(CStringTest, HasSubfieldFailsForAnAbsentCode) {
    EXPECT_FALSE(CString("^aX").hasSubfield("X"));
    EXPECT_FALSE(CString("aX").hasSubfield("a"));
    EXPECT_FALSE(CString("^aX").hasSubfield(""));
}

TEST(CStringTest, HasSubfieldTakesALongerCodeAsASequence) {
    EXPECT_TRUE(CString("^aX^bY").hasSubfield("ab"));
    EXPECT_FALSE(CString("^aX^bY").hasSubfield("ba"));
}

TEST(CStringTest, CountsOverlappingOccurrences) {
    EXPECT_EQ(CString("aaaa").Occs("aa"), 3);
    EXPECT_EQ(CString("abcab").Occs("ab"), 2);
    EXPECT_EQ(CString("abcab").Occs("x"), 0);
}

TEST(CStringTest, CountsOccurrencesWithOrWithoutRegardToCase) {
    EXPECT_EQ(CString("aAaA").Occs("aa"), 0);
    EXPECT_EQ(CString("aAaA").Occs("aa", TextCompare::Binary), 0);
    EXPECT_EQ(CString("aAaA").Occs("AA", TextCompare::IgnoringCase), 3);
}

TEST(CStringTest, CountsNoOccurrenceOfAnEmptyText) {
    EXPECT_EQ(CString("abc").Occs(""), 0);
    EXPECT_EQ(CString("").Occs(""), 0);
}

TEST(CStringTest, KnowsWhetherItIsFormatted) {
    EXPECT_TRUE(CString("^aX").IsisFormated());
    EXPECT_FALSE(CString("X^a").IsisFormated());
}

TEST(CStringTest, GetDelimsJoinsTheCodesInOrder) {
    EXPECT_EQ(CString("^aX^bY^aZ").GetDelims(), "aba");
    EXPECT_EQ(CString("X^aY").GetDelims(), "a");
    EXPECT_EQ(CString("^\xC3\xA9X^bY").GetDelims(),
              "\xC3\xA9"
              "b");
}

TEST(CStringTest, GetDelimsIsEmptyWithoutASubfield) {
    EXPECT_EQ(CString("abc").GetDelims(), "");
    EXPECT_EQ(CString("").GetDelims(), "");
    EXPECT_EQ(CString("^").GetDelims(), "");
}

TEST(CStringTest, GetDelimsTakesADelimiterAfterADelimiterAsACode) {
    EXPECT_EQ(CString("^^aX").GetDelims(), "^a");
}

TEST(CStringTest, ParseSplitsAtTheDelimiter) {
    EXPECT_THAT(stringsOf(CString("a#b##c").Parse("#")), ElementsAre("a", "b", "", "c"));
    EXPECT_THAT(stringsOf(CString("a, b").Parse(", ")), ElementsAre("a", "b"));
    EXPECT_THAT(stringsOf(CString("").Parse("#")), IsEmpty());
}

TEST(CStringTest, ReplaceStringRewritesTheText) {
    CString text("aXbX");
    text.ReplaceString("X", "yy");
    EXPECT_EQ(text.Text(), "ayybyy");
    text.ReplaceString("", "z");
    EXPECT_EQ(text.Text(), "ayybyy");
}

TEST(CStringTest, StrToBytesConvertsToTheCodePage) {
    EXPECT_EQ(CString("caf\xC3\xA9 \xE2\x82\xAC \xE2\x86\x92").StrToBytes(), "caf\xE9 \x80 ?");
}

TEST(CStringTest, StrToBytesPadsWithBlanks) {
    EXPECT_EQ(CString("\xC3\xA9").StrToBytes(3), "\xE9  ");
    EXPECT_EQ(CString("").StrToBytes(2), "  ");
}

TEST(CStringTest, StrToBytesPadsWithTheFillCharacter) {
    EXPECT_EQ(CString("ab").StrToBytes(4, '0'), "ab00");
    EXPECT_EQ(CString("ab").StrToBytes(3, '\0'), std::string("ab\0", 3));
}

TEST(CStringTest, StrToBytesNeverCuts) {
    EXPECT_EQ(CString("abc").StrToBytes(3), "abc");
    EXPECT_EQ(CString("abc").StrToBytes(2), "abc");
    EXPECT_EQ(CString("abc").StrToBytes(-1), "abc");
}

TEST(CStringTest, SubFieldReturnsTheContent) {
    EXPECT_EQ(CString("^aSmith^bJohn").SubField("B"), "John");
    EXPECT_EQ(CString("^aSmith^bJohn").SubField("c"), "");
    EXPECT_EQ(CString("^aSmith^bJohn").SubField(""), "");
}

TEST(CStringTest, SubFieldJoinsTheContentsForALongerCode) {
    EXPECT_EQ(CString("^vArial^f10^pblue").SubField("pfv"), "blue10Arial");
}

TEST(CStringTest, SettingASubFieldReplacesItsContent) {
    CString text("^aX^bY^aZ");
    text.setSubField("A", "new");
    EXPECT_EQ(text.Text(), "^anew^bY^aZ");
    text.setSubField("b", "");
    EXPECT_EQ(text.Text(), "^anew^b^aZ");
    text.setSubField("b", "filled");
    EXPECT_EQ(text.Text(), "^anew^bfilled^aZ");
}

TEST(CStringTest, SettingASubFieldReplacesItsOwnContentOnly) {
    CString text("^aX^bX");
    text.setSubField("b", "Y");
    EXPECT_EQ(text.Text(), "^aX^bY");
}

TEST(CStringTest, SettingAnAbsentSubFieldAppendsIt) {
    CString text;
    text.setSubField("a", "X");
    EXPECT_EQ(text.Text(), "^aX");
    text.setSubField("\xC3\xA9", "Y");
    EXPECT_EQ(text.Text(), "^aX^\xC3\xA9Y");
}

TEST(CStringTest, SettingASubFieldKeepsTheTextBeforeTheFirst) {
    CString text("Smith^bJohn");
    text.setSubField("b", "Mary");
    EXPECT_EQ(text.Text(), "Smith^bMary");
    text.setSubField("c", "X");
    EXPECT_EQ(text.Text(), "Smith^bMary^cX");
}

TEST(CStringTest, SettingASubFieldNeedsACodeOfOneCharacter) {
    CString text("^aX");
    for (const char* code : {"", "ab", "^"}) {
        EXPECT_EQ(errorNumberOf([&] { text.setSubField(code, "Y"); }), 5) << code;
    }
    EXPECT_EQ(text.Text(), "^aX");
}

TEST(CStringTest, SettingASubFieldTakesAPartOfItsOwnText) {
    CString text("^aSmith^bJohn");
    text.setSubField("a", std::string_view(text.Text()).substr(9, 4));
    EXPECT_EQ(text.Text(), "^aJohn^bJohn");
}

TEST(CStringTest, SortsItsSubfieldsWithoutRegardToCase) {
    CString text("^cZ^BY^aX");
    text.SortSubFields();
    EXPECT_EQ(text.Text(), "^aX^BY^cZ");
}

TEST(CStringTest, SortsSubfieldsOfOneCodeByTheirContent) {
    CString text("^aZ^bY^ax");
    text.SortSubFields();
    EXPECT_EQ(text.Text(), "^ax^aZ^bY");
}

TEST(CStringTest, KeepsTheOrderOfSubfieldsThatDifferInCaseOnly) {
    CString text("^bY^aX^Ax^ax");
    text.SortSubFields();
    EXPECT_EQ(text.Text(), "^aX^Ax^ax^bY");
}

TEST(CStringTest, SortsNothingWhenItIsNotFormatted) {
    CString text("x^b^a");
    text.SortSubFields();
    EXPECT_EQ(text.Text(), "x^b^a");
}

TEST(CStringTest, KnowsWhetherAllSubfieldsAreEmpty) {
    EXPECT_TRUE(CString("^a ^b").AllSubFieldsEmpty());
    EXPECT_TRUE(CString("").AllSubFieldsEmpty());
    EXPECT_FALSE(CString("^a ^bX").AllSubFieldsEmpty());
    EXPECT_FALSE(CString("X").AllSubFieldsEmpty());
}

TEST(CStringTest, RemovesEverySubfieldOfACode) {
    EXPECT_EQ(changed(CString("^aX^bY^AZ"), [](CString& text) { text.RemoveSubField("a"); }).Text(),
              "^bY");
    EXPECT_EQ(changed(CString("^aX"), [](CString& text) { text.RemoveSubField("A"); }).Text(), "");
}

TEST(CStringTest, RemovesNoSubfieldWhoseCodeIsPartOfACharacterOfTheCodes) {
    CString record("^\xC2^a");

    record.RemoveSubField("\xC2\x9D");

    EXPECT_EQ(record.Text(), "^\xC2^a");
}

TEST(CStringTest, RemovesTheSubfieldsOfEachCharacterOfALongerCode) {
    EXPECT_EQ(
        changed(CString("^aX^bY^cZ"), [](CString& text) { text.RemoveSubField("ca"); }).Text(),
        "^bY");
}

TEST(CStringTest, RemovesNothingForAnAbsentOrEmptyCode) {
    EXPECT_EQ(changed(CString("^aX^"), [](CString& text) { text.RemoveSubField("b"); }).Text(),
              "^aX^");
    EXPECT_EQ(changed(CString("^aX^"), [](CString& text) { text.RemoveSubField(""); }).Text(),
              "^aX^");
    EXPECT_EQ(changed(CString("aX"), [](CString& text) { text.RemoveSubField("a"); }).Text(), "aX");
}

TEST(CStringTest, RemovingASubfieldKeepsTheTextBeforeTheFirst) {
    EXPECT_EQ(
        changed(CString("Smith^aX^bY"), [](CString& text) { text.RemoveSubField("a"); }).Text(),
        "Smith^bY");
}

TEST(CStringTest, RemovingASubfieldKeepsTheSameContentElsewhere) {
    EXPECT_EQ(changed(CString("^aX^bX"), [](CString& text) { text.RemoveSubField("a"); }).Text(),
              "^bX");
}

TEST(CStringTest, CharReturnsTheCharacterAtAPosition) {
    const CString text("a\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(text.Char(1), "a");
    EXPECT_EQ(text.Char(2), "\xC3\xA9");
    EXPECT_EQ(text.Char(3), "\xE2\x82\xAC");
}

TEST(CStringTest, SettingACharReplacesIt) {
    CString text("a\xC3\xA9z");
    text.setChar(2, "e");
    EXPECT_EQ(text.Text(), "aez");
    text.setChar(3, "\xE2\x82\xAC");
    EXPECT_EQ(text.Text(), "ae\xE2\x82\xAC");
    text.setChar(1, "\xF0\x9F\x98\x80");
    EXPECT_EQ(text.Text(),
              "\xF0\x9F\x98\x80"
              "e\xE2\x82\xAC");
}

TEST(CStringTest, APositionOutsideTheTextIsAnError) {
    CString text("a\xC3\xA9");
    for (const std::int32_t position : {-1, 0, 3, 2147483647}) {
        EXPECT_EQ(errorNumberOf([&] { text.Char(position); }), 5) << position;
        EXPECT_EQ(errorNumberOf([&] { text.setChar(position, "x"); }), 5) << position;
    }
    EXPECT_EQ(errorNumberOf([] { CString().Char(1); }), 5);
    EXPECT_EQ(text.Text(), "a\xC3\xA9");
}

TEST(CStringTest, SettingACharTakesExactlyOneCharacter) {
    CString text("abc");
    EXPECT_EQ(errorNumberOf([&] { text.setChar(1, ""); }), 5);
    EXPECT_EQ(errorNumberOf([&] { text.setChar(1, "xy"); }), 5);
    EXPECT_EQ(text.Text(), "abc");
}

}  // namespace
}  // namespace quorvane
