#include "quorvane/base/text/trimming.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(TrimEx, TakesBlanksFromBothEnds) {
    EXPECT_EQ(TrimEx("  a b "), "a b");
    EXPECT_EQ(TrimEx("a"), "a");
}

TEST(TrimEx, LeavesEverythingButBlanks) {
    EXPECT_EQ(TrimEx(" \ta\r\n "), "\ta\r\n");
    EXPECT_EQ(TrimEx("\xC2\xA0"), "\xC2\xA0");
}

TEST(TrimEx, LeavesNothingOfBlanks) {
    EXPECT_EQ(TrimEx(""), "");
    EXPECT_EQ(TrimEx("   "), "");
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
