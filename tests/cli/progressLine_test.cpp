#include "cli/progressLine.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane::cli {
namespace {

TEST(ProgressLine, TakesThePlaceOfTheCurrentLine) {
    EXPECT_EQ(progressLine(2, 12, "letter.rtfspec", 80), "\r\x1b[K2/12 letter.rtfspec");
}

TEST(ProgressLine, LeavesTheLastColumnFree) {
    EXPECT_EQ(progressLine(1, 2, "letter.rtfspec", 10), "\r\x1b[K1/2 lette");
}

TEST(ProgressLine, IsCutBetweenTwoCharacters) {
    EXPECT_EQ(progressLine(1, 2, "ab\xC3\xA9", 8), "\r\x1b[K1/2 ab");
}

TEST(ProgressLine, IsEmptyWhereThereAreNoColumns) {
    EXPECT_EQ(progressLine(1, 2, "a", 0), "\r\x1b[K");
}

TEST(ProgressLine, ShowsANameWithLineBreaksOnOneLine) {
    EXPECT_EQ(progressLine(1, 2, "a\nb", 80), "\r\x1b[K1/2 a b");
}

}  // namespace
}  // namespace quorvane::cli
