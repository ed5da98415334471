#include "quorvane/support/recordStrings.h"

#include <gmock/gmock.h>

#include <string>

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TrimEx, TakesBlanksFromBothEnds) {
    EXPECT_EQ(TrimEx("  a b "), "a b");
    EXPECT_EQ(TrimEx(" \ta\r\n "), "\ta\r\n");
    EXPECT_EQ(TrimEx("   "), "");
}

TEST(IsIsisFormated, HoldsForATextThatBeginsWithASubfield) {
    EXPECT_TRUE(IsIsisFormated("^aSmith^bJohn"));
    EXPECT_TRUE(IsIsisFormated("^a"));
    EXPECT_TRUE(IsIsisFormated("^\xC3\xA9"));
}

TEST(IsIsisFormated, FailsForAnyOtherText) {
    EXPECT_FALSE(IsIsisFormated(""));
    EXPECT_FALSE(IsIsisFormated("^"));
    EXPECT_FALSE(IsIsisFormated("Smith"));
    EXPECT_FALSE(IsIsisFormated(" ^aSmith"));
    EXPECT_FALSE(IsIsisFormated("Smith^bJohn"));
}

TEST(GetSubField, ReturnsTheContentOfTheSubfield) {
    EXPECT_EQ(GetSubField("^aSmith^bJohn", "a"), "Smith");
    EXPECT_EQ(GetSubField("^aSmith^bJohn", "b"), "John");
}

TEST(GetSubField, ReturnsTheFirstOfEqualCodes) {
    EXPECT_EQ(GetSubField("^aX^bY^aZ", "a"), "X");
}

TEST(GetSubField, MatchesCodesWithoutRegardToCase) {
    EXPECT_EQ(GetSubField("^aSmith", "A"), "Smith");
    EXPECT_EQ(GetSubField("^ASmith", "a"), "Smith");
    EXPECT_EQ(GetSubField("^\xC3\x89t\xC3\xA9", "\xC3\xA9"), "t\xC3\xA9");
}

TEST(GetSubField, IsEmptyForAnAbsentCode) {
    EXPECT_EQ(GetSubField("^aSmith", "b"), "");
    EXPECT_EQ(GetSubField("Smith", "S"), "");
    EXPECT_EQ(GetSubField("", "a"), "");
}

TEST(GetSubField, IsEmptyForACodeThatIsNotOneCharacter) {
    EXPECT_EQ(GetSubField("^aSmith^", ""), "");
    EXPECT_EQ(GetSubField("^abSmith", "ab"), "");
}

TEST(GetSubField, KeepsTheBlanksOfTheContent) {
    EXPECT_EQ(GetSubField("^a Smith ^b", "a"), " Smith ");
    EXPECT_EQ(GetSubField("^aSmith^b", "b"), "");
}

TEST(GetSubField, FindsASubfieldAfterOtherText) {
    EXPECT_EQ(GetSubField("Smith^bJohn", "b"), "John");
}

TEST(SubFieldContents, JoinsTheContentsInTheOrderOfTheCodes) {
    EXPECT_EQ(subFieldContents("^aSmith^bJohn", "ba"), "JohnSmith");
    EXPECT_EQ(subFieldContents("^aSmith^bJohn", "axa"), "SmithSmith");
    EXPECT_EQ(subFieldContents("^\xC3\xA9X^aY",
                               "\xC3\xA9"
                               "a"),
              "XY");
    EXPECT_EQ(subFieldContents("^aSmith^bJohn", ""), "");
}

TEST(FindSubField, FindsTheSubfieldsOneAfterTheOther) {
    const std::string text = "x^aSmith^bJohn";
    const auto first = findSubField(text);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->position, 1u);
    EXPECT_EQ(first->whole, "^aSmith");
    EXPECT_EQ(first->code, "a");
    EXPECT_EQ(first->content, "Smith");
    const auto second = findSubField(text, first->position + 1);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->whole, "^bJohn");
    EXPECT_FALSE(findSubField(text, second->position + 1));
}

TEST(FindSubField, HasNoCodeForADelimiterAtTheEnd) {
    const auto field = findSubField("^aX^", 1);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->whole, "^");
    EXPECT_EQ(field->code, "");
    EXPECT_EQ(field->content, "");
    EXPECT_FALSE(findSubField("^aX^", 4));
}

TEST(FindSubField, TakesADelimiterAfterADelimiterAsItsCodeAndAsASubfieldOfItsOwn) {
    const auto first = findSubField("^^aX");
    ASSERT_TRUE(first);
    EXPECT_EQ(first->whole, "^");
    EXPECT_EQ(first->code, "^");
    EXPECT_EQ(first->content, "");
    const auto second = findSubField("^^aX", 1);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->whole, "^aX");
    EXPECT_EQ(second->content, "X");
}

TEST(AllSubFieldsEmpty, HoldsForAnEmptyText) {
    EXPECT_TRUE(AllSubFieldsEmpty(""));
}

TEST(AllSubFieldsEmpty, HoldsWhenNoSubfieldHoldsMoreThanBlanks) {
    EXPECT_TRUE(AllSubFieldsEmpty("^a"));
    EXPECT_TRUE(AllSubFieldsEmpty("^a^b  ^c"));
}

TEST(AllSubFieldsEmpty, FailsWhenASubfieldHoldsSomething) {
    EXPECT_FALSE(AllSubFieldsEmpty("^aX"));
    EXPECT_FALSE(AllSubFieldsEmpty("^a^b^cX"));
    EXPECT_FALSE(AllSubFieldsEmpty("^a\t"));
}

TEST(AllSubFieldsEmpty, FailsForATextThatIsNotFormatted) {
    EXPECT_FALSE(AllSubFieldsEmpty("Smith"));
    EXPECT_FALSE(AllSubFieldsEmpty(" "));
    EXPECT_FALSE(AllSubFieldsEmpty("Smith^a"));
}

TEST(GetValue, ReturnsWhatStandsAfterTheFirstSeparator) {
    EXPECT_EQ(GetValue("paper-width=11906", "="), "11906");
    EXPECT_EQ(GetValue("a=b=c", "="), "b=c");
    EXPECT_EQ(GetValue("a::b", "::"), "b");
}

TEST(GetValue, TrimsBlanksOnly) {
    EXPECT_EQ(GetValue("a=  b c ", "="), "b c");
    EXPECT_EQ(GetValue("a= \tb", "="), "\tb");
}

TEST(GetValue, IsEmptyWithoutASeparator) {
    EXPECT_EQ(GetValue("abc", "="), "");
    EXPECT_EQ(GetValue("abc=", "="), "");
    EXPECT_EQ(GetValue("abc", ""), "");
    EXPECT_EQ(GetValue("", "="), "");
}

TEST(Parse, SplitsAtEveryDelimiter) {
    EXPECT_THAT(Parse("a#b#c", "#"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(Parse("a, b, c", ", "), ElementsAre("a", "b", "c"));
}

TEST(Parse, KeepsEmptyPieces) {
    EXPECT_THAT(Parse("#a##b#", "#"), ElementsAre("", "a", "", "b", ""));
    EXPECT_THAT(Parse("#", "#"), ElementsAre("", ""));
}

TEST(Parse, HasOnePieceWithoutADelimiter) {
    EXPECT_THAT(Parse("abc", "#"), ElementsAre("abc"));
    EXPECT_THAT(Parse("abc", ""), ElementsAre("abc"));
}

TEST(Parse, HasNoPieceOfAnEmptyText) {
    EXPECT_THAT(Parse("", "#"), IsEmpty());
    EXPECT_THAT(Parse("", ""), IsEmpty());
}

TEST(ReplaceString, ReplacesEveryOccurrence) {
    EXPECT_EQ(ReplaceString("a<b>c<b>", "<b>", "B"), "aBcB");
    EXPECT_EQ(ReplaceString("a<b>c<b>", "<b>", ""), "ac");
    EXPECT_EQ(ReplaceString("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceString("", "x", "y"), "");
}

TEST(ReplaceString, GoesFromLeftToRight) {
    EXPECT_EQ(ReplaceString("aaa", "aa", "b"), "ba");
}

TEST(ReplaceString, DistinguishesCase) {
    EXPECT_EQ(ReplaceString("aA", "A", "b"), "ab");
}

TEST(ReplaceString, DoesNotLookAgainAtWhatItPutIn) {
    EXPECT_EQ(ReplaceString("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(ReplaceString("aab", "ab", "b"), "ab");
}

TEST(ReplaceString, ReplacesNothingForAnEmptySearchText) {
    EXPECT_EQ(ReplaceString("abc", "", "x"), "abc");
}

std::vector<std::string> numberedLines(std::string_view text) {
    std::vector<std::string> lines;
    for (const SourceLine& line : PreProcessRawData(text)) {
        lines.push_back(std::to_string(line.number) + ":" + std::string(line.text));
    }
    return lines;
}

TEST(PreProcessRawData, CutsAtEveryKindOfLineBreak) {
    EXPECT_THAT(numberedLines("(doc\r\n(r\n(c\rc)\r\nr)\ndoc)"),
                ElementsAre("1:(doc", "2:(r", "3:(c", "4:c)", "5:r)", "6:doc)"));
}

TEST(PreProcessRawData, TrimsEveryLine) {
    EXPECT_THAT(numberedLines(" \t(pt= a b )\t \n"), ElementsAre("1:(pt= a b )"));
}

TEST(PreProcessRawData, DropsBlankLinesAndCountsThem) {
    EXPECT_THAT(numberedLines("\n\r\n  \t\r\r(doc\n\ndoc)"), ElementsAre("5:(doc", "7:doc)"));
}

TEST(PreProcessRawData, DropsLinesThatAreOnlyAComment) {
    EXPECT_THAT(numberedLines("; one\n(doc ; kept\n \t;two\n;"), ElementsAre("2:(doc ; kept"));
}

TEST(PreProcessRawData, HasNoLinesForATextThatSaysNothing) {
    EXPECT_THAT(numberedLines(""), IsEmpty());
    EXPECT_THAT(numberedLines("\r\n"), IsEmpty());
    EXPECT_THAT(numberedLines(" "), IsEmpty());
}

TEST(PreProcessRawData, KeepsEveryOtherCharacter) {
    EXPECT_THAT(numberedLines("caf\xC3\xA9\v\n\f"), ElementsAre("1:caf\xC3\xA9\v", "2:\f"));
}

std::vector<std::string> linesWithBlocks(std::string_view text) {
    std::vector<std::string> lines;
    for (const SourceLine& line : PreProcessRawData(text, "\"\"\"")) {
        lines.push_back(std::to_string(line.number) + ":" + std::string(line.text));
    }
    return lines;
}

TEST(PreProcessRawDataWithBlocks, KeepsAValueOfSeveralLinesAsOneLine) {
    EXPECT_THAT(linesWithBlocks("(p\n(pt=\"\"\"\n ; a\n\n b\n\"\"\")\np)\n"),
                ElementsAre("1:(p", "2:(pt=\"\"\"\n ; a\n\n b\n\"\"\")", "7:p)"));
    EXPECT_THAT(linesWithBlocks("(pt= \"\"\"a\r\nb\"\"\") \t\r\np)"),
                ElementsAre("1:(pt= \"\"\"a\r\nb\"\"\")", "3:p)"));
}

TEST(PreProcessRawDataWithBlocks, TakesAValueThatEndsOnItsLineAsAnyOther) {
    EXPECT_THAT(linesWithBlocks("(pt=\"\"\"a\"\"\")\np)"),
                ElementsAre("1:(pt=\"\"\"a\"\"\")", "2:p)"));
}

TEST(PreProcessRawDataWithBlocks, EndsAValueAtAMarkAtTheEndOfALineOnly) {
    EXPECT_THAT(linesWithBlocks("(pt=\"\"\"\na \"\"\") b\n\"\"\")\np)"),
                ElementsAre("1:(pt=\"\"\"\na \"\"\") b\n\"\"\")", "4:p)"));
}

TEST(PreProcessRawDataWithBlocks, LeavesAValueThatDoesNotEndAlone) {
    EXPECT_THAT(linesWithBlocks("(pt=\"\"\"\na\np)"), ElementsAre("1:(pt=\"\"\"", "2:a", "3:p)"));
    EXPECT_THAT(linesWithBlocks("pt=\"\"\"\n\"\"\")"), ElementsAre("1:pt=\"\"\"", "2:\"\"\")"));
}

TEST(PreProcessRawDataWithBlocks, LeavesAValueAloneThatAnotherOneFollows) {
    EXPECT_THAT(linesWithBlocks("(pt=\"\"\"a\nb\n (pt=\"\"\"\nc\n\"\"\")"),
                ElementsAre("1:(pt=\"\"\"a", "2:b", "3:(pt=\"\"\"\nc\n\"\"\")"));
}

TEST(PreProcessRawDataWithBlocks, KnowsNoneWithoutAMark) {
    EXPECT_EQ(PreProcessRawData("(pt=\"\"\"\n\"\"\")").size(), 2U);
}

}  // namespace
}  // namespace quorvane
