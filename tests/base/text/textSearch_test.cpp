#include "quorvane/base/text/textSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace quorvane {
namespace {

using Positions = std::vector<std::size_t>;

TEST(FindAll, FindsEveryOccurrenceInOrder) {
    EXPECT_EQ(findAll("abcabc", "bc", Occurrences::Separate), (Positions{1, 4}));
    EXPECT_EQ(findAll("abc", "abc", Occurrences::Separate), (Positions{0}));
    EXPECT_EQ(findAll("abc", "d", Occurrences::Separate), Positions{});
}

TEST(FindAll, GoesOnAfterEachOccurrenceOrWithinIt) {
    EXPECT_EQ(findAll("aaaa", "aa", Occurrences::Separate), (Positions{0, 2}));
    EXPECT_EQ(findAll("aaaa", "aa", Occurrences::Overlapping), (Positions{0, 1, 2}));
}

TEST(FindAll, TakesUpAgainWhatLooksLikeTheBeginning) {
    EXPECT_EQ(findAll("aabaabaac", "aabaac", Occurrences::Separate), (Positions{3}));
    EXPECT_EQ(findAll("abababac", "ababac", Occurrences::Separate), (Positions{2}));
}

TEST(FindAll, FindsNothingInAShorterTextNorForAnEmptyPattern) {
    EXPECT_EQ(findAll("ab", "abc", Occurrences::Separate), Positions{});
    EXPECT_EQ(findAll("", "", Occurrences::Separate), Positions{});
    EXPECT_EQ(findAll("abc", "", Occurrences::Overlapping), Positions{});
}

TEST(FindAll, AgreesWithAPlainSearch) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        std::string text(random() % 30, ' ');
        std::string pattern(1 + random() % 5, ' ');
        for (char& character : text) {
            character = static_cast<char>('a' + random() % 2);
        }
        for (char& character : pattern) {
            character = static_cast<char>('a' + random() % 2);
        }
        Positions overlapping;
        Positions separate;
        for (std::size_t i = 0; i + pattern.size() <= text.size(); ++i) {
            if (text.compare(i, pattern.size(), pattern) == 0) {
                overlapping.push_back(i);
                if (separate.empty() || i >= separate.back() + pattern.size()) {
                    separate.push_back(i);
                }
            }
        }
        EXPECT_EQ(findAll(text, pattern, Occurrences::Overlapping), overlapping);
        EXPECT_EQ(findAll(text, pattern, Occurrences::Separate), separate);
    }
}

TEST(FindAll, IsNotSlowedDownByATextThatNearlyMatchesEverywhere) {
    const std::string text(1'000'000, 'a');
    const std::string pattern = std::string(500'000, 'a') + "b";
    EXPECT_EQ(findAll(text, pattern, Occurrences::Overlapping), Positions{});
    EXPECT_EQ(findAll(text + "b", pattern, Occurrences::Overlapping), (Positions{500'000}));
}

}  // namespace
}  // namespace quorvane
