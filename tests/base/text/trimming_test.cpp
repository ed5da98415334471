#include "quorvane/base/text/trimming.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(trimBlanks, TakesBlanksFromBothEnds) {
    EXPECT_EQ(trimBlanks("  a b "), "a b");
    EXPECT_EQ(trimBlanks("a"), "a");
}

TEST(trimBlanks, LeavesEverythingButBlanks) {
    EXPECT_EQ(trimBlanks(" \ta\r\n "), "\ta\r\n");
    EXPECT_EQ(trimBlanks("\xC2\xA0"), "\xC2\xA0");
}

TEST(trimBlanks, LeavesNothingOfBlanks) {
    EXPECT_EQ(trimBlanks(""), "");
    EXPECT_EQ(trimBlanks("   "), "");
}

TEST(TrimWhitespace, TakesBlanksTabsAndLineBreaksFromBothEnds) {
    EXPECT_EQ(trimWhitespace(" \t\r\na \t\r\n b\n\r\t "), "a \t\r\n b");
}

TEST(TrimWhitespace, LeavesOtherControlCharactersAndSpaces) {
    EXPECT_EQ(trimWhitespace("\v\f\xC2\xA0"), "\v\f\xC2\xA0");
}

TEST(TrimWhitespace, LeavesNothingOfWhitespace) {
    EXPECT_EQ(trimWhitespace(""), "");
    EXPECT_EQ(trimWhitespace(" \t\r\n"), "");
}

}  // namespace
}  // namespace quorvane
