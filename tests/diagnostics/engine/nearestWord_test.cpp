#include "quorvane/diagnostics/engine/nearestWord.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace quorvane {
namespace {

constexpr std::string_view colors[] = {"red", "dark-red", "green", "dark-green"};

TEST(NearestWord, IsTheOneWithTheFewestChanges) {
    EXPECT_EQ(nearestWord("dark-rd", colors), "dark-red");
    EXPECT_EQ(nearestWord("geren", colors), "green");
    EXPECT_EQ(nearestWord("drak-green", colors), "dark-green");
}

TEST(NearestWord, TakesNoRegardOfCase) {
    EXPECT_EQ(nearestWord("Dark-Rod", colors), "dark-red");
}

TEST(NearestWord, IsEmptyWhenAllAreFar) {
    EXPECT_EQ(nearestWord("purple", colors), "");
    EXPECT_EQ(nearestWord("", colors), "");
    EXPECT_EQ(nearestWord(std::string(5000, 'r'), colors), "");
}

TEST(NearestWord, PassesOverWhatIsNotAWord) {
    const std::string endless(5000, 'r');
    const std::vector<std::string_view> names = {"", endless, "red"};
    EXPECT_EQ(nearestWord("rd", names), "red");
    EXPECT_EQ(nearestWord("r", {names.data(), 2}), "");
}

TEST(NearestWord, IsEmptyAmongVeryMany) {
    const std::vector<std::string_view> many(maxCandidates + 1, "red");
    EXPECT_EQ(nearestWord("rad", many), "");
}

TEST(NearestWord, IsAskedFor) {
    EXPECT_EQ(didYouMean("gren", colors), "did you mean green?");
    EXPECT_EQ(didYouMean("purple", colors), "");
}

TEST(CertainWord, IsOneChangeAwayOrTwoInALongWord) {
    EXPECT_EQ(certainWord("gren", colors), "green");
    EXPECT_EQ(certainWord("GREEN", colors), "green");
    EXPECT_EQ(certainWord("drak-grean", colors), "dark-green");
    EXPECT_EQ(certainWord("grn-n", colors), "");
    EXPECT_EQ(certainWord("drak-graan", colors), "");
}

TEST(CertainWord, IsEmptyForTwoThatAreNearlyAsClose) {
    constexpr std::string_view borders[] = {"thin", "thick", "hair"};
    EXPECT_EQ(certainWord("thic", borders), "");
    EXPECT_EQ(certainWord("thck", borders), "thick");
    constexpr std::string_view sides[] = {"row-left-border", "row-right-border"};
    EXPECT_EQ(certainWord("row-lfet-bordr", sides), "row-left-border");
    constexpr std::string_view alike[] = {"heading-1", "heading-2"};
    EXPECT_EQ(certainWord("heading-", alike), "");
    EXPECT_EQ(certainWord("haeding-1", alike), "heading-1");
}

TEST(CertainWord, IsEmptyForAShortWord) {
    EXPECT_EQ(certainWord("rde", colors), "");
    constexpr std::string_view keys[] = {"pt", "rtb"};
    EXPECT_EQ(certainWord("ptt", keys), "");
    EXPECT_EQ(certainWord("rtx", keys), "");
}

TEST(SpellingHint, HasAReplacementOnlyWhereItIsCertain) {
    EXPECT_EQ(spellingHint("gren", colors).text, "did you mean green?");
    EXPECT_EQ(spellingHint("gren", colors).replacement, "green");
    EXPECT_EQ(spellingHint("rde", colors).text, "did you mean red?");
    EXPECT_EQ(spellingHint("rde", colors).replacement, std::nullopt);
    EXPECT_TRUE(spellingHint("purple", colors).empty());
}

}  // namespace
}  // namespace quorvane
