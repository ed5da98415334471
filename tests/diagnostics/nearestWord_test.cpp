#include "quorvane/diagnostics/nearestWord.h"

#include <gtest/gtest.h>

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

TEST(NearestWord, IsNoneWhenAllAreFar) {
    EXPECT_EQ(nearestWord("purple", colors), "");
    EXPECT_EQ(nearestWord("", colors), "");
    EXPECT_EQ(nearestWord(std::string(5000, 'r'), colors), "");
}

TEST(NearestWord, PassesOverWhatIsNoWord) {
    const std::string endless(5000, 'r');
    const std::vector<std::string_view> names = {"", endless, "red"};
    EXPECT_EQ(nearestWord("rd", names), "red");
    EXPECT_EQ(nearestWord("r", {names.data(), 2}), "");
}

TEST(NearestWord, IsNoneAmongVeryMany) {
    const std::vector<std::string_view> many(mostCandidates + 1, "red");
    EXPECT_EQ(nearestWord("rad", many), "");
}

TEST(NearestWord, IsAskedFor) {
    EXPECT_EQ(didYouMean("gren", colors), "did you mean green?");
    EXPECT_EQ(didYouMean("purple", colors), "");
}

}  // namespace
}  // namespace quorvane
