#include "quorvane/base/text/wildcards.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

TEST(Wildcards, CharactersStandForThemselves) {
    EXPECT_TRUE(matchesWildcards("Arial", "Arial"));
    EXPECT_FALSE(matchesWildcards("Arial Black", "Arial"));
    EXPECT_FALSE(matchesWildcards("Arial", "Arial Black"));
    EXPECT_TRUE(matchesWildcards("a]b-!", "a]b-!"));
}

TEST(Wildcards, MatchingIsCaseSensitive) {
    EXPECT_FALSE(matchesWildcards("Arial", "arial"));
    EXPECT_FALSE(matchesWildcards("B", "[a-z]"));
}

TEST(Wildcards, AnEmptyPatternFitsAnEmptyTextOnly) {
    EXPECT_TRUE(matchesWildcards("", ""));
    EXPECT_FALSE(matchesWildcards("a", ""));
}

TEST(Wildcards, StarStandsForAnyRunOfCharacters) {
    EXPECT_TRUE(matchesWildcards("", "*"));
    EXPECT_TRUE(matchesWildcards("abc", "*"));
    EXPECT_TRUE(matchesWildcards("abc", "a*c"));
    EXPECT_TRUE(matchesWildcards("ac", "a*c"));
    EXPECT_TRUE(matchesWildcards("abc", "***"));
    EXPECT_FALSE(matchesWildcards("abc", "a*b"));
    EXPECT_FALSE(matchesWildcards("abc", "b*"));
}

TEST(Wildcards, StarGivesBackWhatTheRestNeeds) {
    EXPECT_TRUE(matchesWildcards("aab", "*ab"));
    EXPECT_TRUE(matchesWildcards("xxaxxbxxbxxc", "*a*b*c"));
    EXPECT_FALSE(matchesWildcards("xxaxxcxxb", "*a*b*c"));
    EXPECT_FALSE(matchesWildcards("ab", "*ab?"));
}

TEST(Wildcards, QuestionMarkStandsForOneCharacter) {
    EXPECT_TRUE(matchesWildcards("abc", "a?c"));
    EXPECT_FALSE(matchesWildcards("ac", "a?c"));
    EXPECT_FALSE(matchesWildcards("", "?"));
}

TEST(Wildcards, NumberSignStandsForOneDigit) {
    EXPECT_TRUE(matchesWildcards("a0", "a#"));
    EXPECT_TRUE(matchesWildcards("a9", "a#"));
    EXPECT_FALSE(matchesWildcards("a", "a#"));
    EXPECT_FALSE(matchesWildcards("a10", "a#"));
    EXPECT_FALSE(matchesWildcards("a/", "a#"));
    EXPECT_FALSE(matchesWildcards("a:", "a#"));
    EXPECT_FALSE(matchesWildcards("a\xD9\xA3", "a#"));
}

TEST(Wildcards, AListStandsForOneOfItsCharacters) {
    EXPECT_TRUE(matchesWildcards("b", "[abc]"));
    EXPECT_FALSE(matchesWildcards("d", "[abc]"));
    EXPECT_FALSE(matchesWildcards("", "[abc]"));
    EXPECT_FALSE(matchesWildcards("ab", "[abc]"));
}

TEST(Wildcards, AListHoldsRanges) {
    EXPECT_TRUE(matchesWildcards("a", "[a-c]"));
    EXPECT_TRUE(matchesWildcards("b", "[a-c]"));
    EXPECT_TRUE(matchesWildcards("c", "[a-c]"));
    EXPECT_FALSE(matchesWildcards("d", "[a-c]"));
    EXPECT_TRUE(matchesWildcards("7", "[a-c0-9]"));
    EXPECT_TRUE(matchesWildcards("x", "[a-cx]"));
    EXPECT_TRUE(matchesWildcards("m", "[m-m]"));
}

TEST(Wildcards, ARangeGoesByCodePoints) {
    EXPECT_TRUE(matchesWildcards("_", "[A-z]"));
    EXPECT_TRUE(matchesWildcards("[", "[A-z]"));
    EXPECT_TRUE(matchesWildcards("\xC3\xA9", "[\xC3\xA0-\xC3\xBF]"));
    EXPECT_FALSE(matchesWildcards("\xE2\x82\xAC", "[\xC3\xA0-\xC3\xBF]"));
}

TEST(Wildcards, ANegatedListStandsForOneOtherCharacter) {
    EXPECT_TRUE(matchesWildcards("d", "[!a-c]"));
    EXPECT_FALSE(matchesWildcards("b", "[!a-c]"));
    EXPECT_FALSE(matchesWildcards("", "[!a-c]"));
    EXPECT_TRUE(matchesWildcards("a", "[!!]"));
    EXPECT_FALSE(matchesWildcards("!", "[!!]"));
}

TEST(Wildcards, InAListTheSignsStandForThemselves) {
    EXPECT_TRUE(matchesWildcards("*", "[*]"));
    EXPECT_TRUE(matchesWildcards("?", "[?]"));
    EXPECT_TRUE(matchesWildcards("#", "[#]"));
    EXPECT_TRUE(matchesWildcards("[", "[[]"));
    EXPECT_FALSE(matchesWildcards("a", "[*?#[]"));
}

TEST(Wildcards, AnExclamationMarkThatIsNotFirstStandsForItself) {
    EXPECT_TRUE(matchesWildcards("!", "[a!]"));
    EXPECT_TRUE(matchesWildcards("a", "[a!]"));
}

TEST(Wildcards, AHyphenThatIsFirstOrLastStandsForItself) {
    EXPECT_TRUE(matchesWildcards("-", "[-a]"));
    EXPECT_TRUE(matchesWildcards("a", "[-a]"));
    EXPECT_TRUE(matchesWildcards("-", "[a-]"));
    EXPECT_FALSE(matchesWildcards("-", "[!-a]"));
    EXPECT_FALSE(matchesWildcards("b", "[a-]"));
    EXPECT_TRUE(matchesWildcards("-", "[-]"));
    EXPECT_TRUE(matchesWildcards("-", "[--a]"));
    EXPECT_FALSE(matchesWildcards(".", "[--a]"));
}

TEST(Wildcards, AnEmptyListStandsForNothing) {
    EXPECT_TRUE(matchesWildcards("ab", "a[]b"));
    EXPECT_FALSE(matchesWildcards("a", "[]"));
}

TEST(Wildcards, AListOfOnlyAnExclamationMarkStandsForIt) {
    EXPECT_TRUE(matchesWildcards("!", "[!]"));
    EXPECT_FALSE(matchesWildcards("a", "[!]"));
}

TEST(Wildcards, ACharacterMayTakeSeveralBytes) {
    EXPECT_TRUE(matchesWildcards("caf\xC3\xA9", "caf?"));
    EXPECT_FALSE(matchesWildcards("caf\xC3\xA9", "caf??"));
    EXPECT_TRUE(matchesWildcards("\xE2\x82\xAC", "[\xE2\x82\xAC]"));
    EXPECT_FALSE(matchesWildcards("\xE2\x82\xAD", "[\xE2\x82\xAC]"));
    EXPECT_TRUE(matchesWildcards("\xE2\x82\xAC", "*?"));
}

TEST(Wildcards, AnUnclosedListIsAnError) {
    EXPECT_EQ(errorNumberOf([] { matchesWildcards("", "["); }), 5);
    EXPECT_EQ(errorNumberOf([] { matchesWildcards("x", "a[bc"); }), 5);
}

TEST(Wildcards, ARangeThatRunsBackwardsIsAnError) {
    EXPECT_EQ(errorNumberOf([] { matchesWildcards("x", "[z-a]"); }), 5);
}

TEST(Wildcards, ManyStarsDoNotTakeLong) {
    const std::string text(5000, 'a');
    std::string pattern;
    for (int i = 0; i < 500; ++i) {
        pattern += "*a";
    }
    EXPECT_TRUE(matchesWildcards(text, pattern));
    EXPECT_FALSE(matchesWildcards(text, pattern + "b"));
}

TEST(Wildcards, APatternServesForManyTexts) {
    const WildcardPattern pattern("*Arial;}");
    EXPECT_TRUE(pattern.matches("{\\f0 Arial;}"));
    EXPECT_FALSE(pattern.matches("{\\f14 Arial Black;}"));
    EXPECT_TRUE(pattern.matches("Arial;}"));
}

}  // namespace
}  // namespace quorvane
