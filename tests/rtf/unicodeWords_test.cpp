#include "quorvane/rtf/unicodeWords.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(UnicodeWords, StandForRunsOfCharactersThatWindows1252Lacks) {
    EXPECT_EQ(withUnicodeWords("Dvo\u0159\u00E1k \\b {\u20AC}"),
              "Dvo{\\uc1\\u345?}\u00E1k \\b {\u20AC}");
    EXPECT_EQ(withUnicodeWords("\u0159\u016F\u0161\u0159"),
              "{\\uc1\\u345?\\u367?}\u0161{\\uc1\\u345?}");
    EXPECT_EQ(withUnicodeWords("\uFB01\U0001F600"), "{\\uc1\\u-1279?\\u-10179?\\u-8704?}");
}

TEST(UnicodeWords, LeaveOtherTextsAsTheyAre) {
    EXPECT_EQ(withUnicodeWords(""), "");
    EXPECT_EQ(withUnicodeWords("what? \u00E9\u2026"), "what? \u00E9\u2026");
    EXPECT_EQ(withUnicodeWords("a\xFF\xED\xA0\x80z"), "a\xFF\xED\xA0\x80z");
}

TEST(UnicodeWords, AreForTheCharactersThatWindows1252Lacks) {
    EXPECT_EQ(findBeyondCodePage1252("a?\u00E9\u20AC"), std::nullopt);
    EXPECT_EQ(findBeyondCodePage1252("a\u00E9\u0159\u016F"), "\u0159");
}

}  // namespace
}  // namespace quorvane
