#include "quorvane/base/text/fileNamePattern.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

TEST(FileNamePattern, HasTheWildcardsStarAndQuestionMark) {
    EXPECT_TRUE(hasWildcard("a*.rtf"));
    EXPECT_TRUE(hasWildcard("a?.rtf"));
    EXPECT_FALSE(hasWildcard("a[b].rtf"));
    EXPECT_FALSE(hasWildcard(""));
}

TEST(FileNamePattern, MatchesItselfWithoutWildcards) {
    EXPECT_TRUE(matchesFileNamePattern("a.rtf", "a.rtf"));
    EXPECT_FALSE(matchesFileNamePattern("a.rtf", "b.rtf"));
    EXPECT_FALSE(matchesFileNamePattern("a.rtf", "a.rtfss"));
    EXPECT_FALSE(matchesFileNamePattern("a.rtfss", "a.rtf"));
}

TEST(FileNamePattern, CountsCapitalsAsLettersOfTheirOwn) {
    EXPECT_FALSE(matchesFileNamePattern("A*", "a.rtf"));
}

TEST(FileNamePattern, HasAStarForAnyNumberOfCharacters) {
    EXPECT_TRUE(matchesFileNamePattern("*", ""));
    EXPECT_TRUE(matchesFileNamePattern("*", "a.rtf"));
    EXPECT_TRUE(matchesFileNamePattern("a*", "a"));
    EXPECT_TRUE(matchesFileNamePattern("a*f", "a.rtf"));
    EXPECT_TRUE(matchesFileNamePattern("*.rtf", ".rtf"));
    EXPECT_FALSE(matchesFileNamePattern("*.rtf", "a.txt"));
    EXPECT_FALSE(matchesFileNamePattern("a*", "ba"));
}

TEST(FileNamePattern, LetsAStarGiveBackWhatTheRestNeeds) {
    EXPECT_TRUE(matchesFileNamePattern("*ab", "aab"));
    EXPECT_TRUE(matchesFileNamePattern("*.rtf", "a.rtf.rtf"));
    EXPECT_TRUE(matchesFileNamePattern("*a*b*c", "xxaxxbxxbxxc"));
    EXPECT_FALSE(matchesFileNamePattern("*a*b*c", "xxaxxcxxb"));
}

TEST(FileNamePattern, TakesStarsInARowForOne) {
    EXPECT_TRUE(matchesFileNamePattern("a**", "a"));
    EXPECT_TRUE(matchesFileNamePattern("**a**b**", "ab"));
}

TEST(FileNamePattern, HasAQuestionMarkForExactlyOneCharacter) {
    EXPECT_TRUE(matchesFileNamePattern("?", "a"));
    EXPECT_TRUE(matchesFileNamePattern("a?.rtf", "ab.rtf"));
    EXPECT_FALSE(matchesFileNamePattern("?", ""));
    EXPECT_FALSE(matchesFileNamePattern("a?.rtf", "a.rtf"));
    EXPECT_FALSE(matchesFileNamePattern("?", "ab"));
}

TEST(FileNamePattern, HasAQuestionMarkForACharacterOfSeveralBytes) {
    EXPECT_TRUE(matchesFileNamePattern("caf?", "caf\xC3\xA9"));
    EXPECT_FALSE(matchesFileNamePattern("caf??", "caf\xC3\xA9"));
    EXPECT_TRUE(matchesFileNamePattern("*?", "\xE2\x82\xAC"));
}

TEST(FileNamePattern, MatchesTheEmptyNameOnlyWhenEmpty) {
    EXPECT_TRUE(matchesFileNamePattern("", ""));
    EXPECT_FALSE(matchesFileNamePattern("", "a"));
}

TEST(FileNamePattern, TakesNotLongWithManyStars) {
    const std::string name(5000, 'a');
    std::string pattern;
    for (int i = 0; i < 500; ++i) {
        pattern += "*a";
    }

    EXPECT_TRUE(matchesFileNamePattern(pattern, name));
    EXPECT_FALSE(matchesFileNamePattern(pattern + "b", name));
}

}  // namespace
}  // namespace quorvane
