#include "quorvane/base/text/textCase.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/base/text/codePage1252.h"

namespace quorvane {
namespace {

TEST(LowerCase, LowersTheLettersOfAscii) {
    EXPECT_EQ(lowerCase("ABCXYZ"), "abcxyz");
    EXPECT_EQ(lowerCase("@[`{ 09-_"), "@[`{ 09-_");
    EXPECT_EQ(lowerCase(""), "");
}

TEST(LowerCase, LowersTheLettersOfTheCodePage) {
    std::string capitals = "\x8A\x8C\x8E\x9F";
    std::string small = "\x9A\x9C\x9E\xFF";
    for (int byte = 0xC0; byte <= 0xDE; ++byte) {
        if (byte != 0xD7) {
            capitals.push_back(static_cast<char>(byte));
            small.push_back(static_cast<char>(byte + 0x20));
        }
    }
    EXPECT_EQ(lowerCase(utf8FromCodePage1252(capitals)), utf8FromCodePage1252(small));
    EXPECT_EQ(lowerCase(utf8FromCodePage1252(small)), utf8FromCodePage1252(small));
}

TEST(LowerCase, LeavesTheSignsOfTheCodePage) {
    const std::string signs = utf8FromCodePage1252("\x80\x83\x8B\x99\xAA\xBF\xD7\xDF\xF7");
    EXPECT_EQ(lowerCase(signs), signs);
}

TEST(LowerCase, LeavesTheLettersOfOtherAlphabets) {
    EXPECT_EQ(lowerCase("\xCE\x91\xD0\x90\xC4\x80"), "\xCE\x91\xD0\x90\xC4\x80");
}

TEST(LowerCase, LeavesSurrogatesAndStrayBytes) {
    EXPECT_EQ(lowerCase("A\xED\xA0\x80\xFF"
                        "B\xC3"),
              "a\xED\xA0\x80\xFF"
              "b\xC3");
}

TEST(EqualIgnoringCase, HoldsForTextsThatDifferInCaseAtMost) {
    EXPECT_TRUE(equalIgnoringCase("", ""));
    EXPECT_TRUE(equalIgnoringCase("Total", "tOTAL"));
    EXPECT_TRUE(equalIgnoringCase("\xC3\x89T\xC3\x89", "\xC3\xA9t\xC3\xA9"));
}

TEST(EqualIgnoringCase, FailsForTextsThatDifferOtherwise) {
    EXPECT_FALSE(equalIgnoringCase("a", "b"));
    EXPECT_FALSE(equalIgnoringCase("a", "ab"));
    EXPECT_FALSE(equalIgnoringCase("ab", "a"));
    EXPECT_FALSE(equalIgnoringCase("e", "\xC3\xA9"));
    EXPECT_FALSE(equalIgnoringCase("\xCE\x91", "\xCE\xB1"));
}

TEST(CompareIgnoringCase, ReturnsMinusOneZeroOrOne) {
    EXPECT_EQ(compareIgnoringCase("abc", "ABD"), -1);
    EXPECT_EQ(compareIgnoringCase("abc", "ABC"), 0);
    EXPECT_EQ(compareIgnoringCase("zbc", "ABC"), 1);
}

TEST(CompareIgnoringCase, PutsTheBeginningOfATextBeforeTheText) {
    EXPECT_EQ(compareIgnoringCase("", "a"), -1);
    EXPECT_EQ(compareIgnoringCase("AB", "abc"), -1);
    EXPECT_EQ(compareIgnoringCase("abc", "AB"), 1);
}

TEST(CompareIgnoringCase, OrdersByTheCodesOfTheSmallLetters) {
    EXPECT_EQ(compareIgnoringCase("_", "A"), -1);
    EXPECT_EQ(compareIgnoringCase("z", "\xC3\x89"), -1);
    EXPECT_EQ(compareIgnoringCase("\xEF\xBF\xBF", "\xF0\x90\x80\x80"), -1);
}

TEST(CompareIgnoringCase, PutsStrayBytesAfterAllCharacters) {
    EXPECT_EQ(compareIgnoringCase("\xFF", "\xF4\x8F\xBF\xBF"), 1);
    EXPECT_EQ(compareIgnoringCase("\x80", "\xFF"), -1);
}

}  // namespace
}  // namespace quorvane
