#include "cli/oneLine.h"

#include <gtest/gtest.h>

namespace quorvane::cli {
namespace {

TEST(OneLine, LeavesATextWithoutControlCharactersAsItIs) {
    EXPECT_EQ(oneLine("Caf\xC3\xA9 \xE2\x82\xAC 5  x"), "Caf\xC3\xA9 \xE2\x82\xAC 5  x");
}

TEST(OneLine, JoinsLinesWithABlank) {
    EXPECT_EQ(oneLine("one\r\ntwo\nthree\rfour"), "one two three four");
}

TEST(OneLine, MakesARunOfLineBreaksOneBlank) {
    EXPECT_EQ(oneLine("one\r\n\r\n\ttwo"), "one two");
}

TEST(OneLine, KeepsTheTerminalFromTakingOrders) {
    EXPECT_EQ(oneLine("a\x1b[2Jb\x7f"), "a [2Jb ");
}

TEST(OneLine, ReplacesTheUpperControlCharactersToo) {
    EXPECT_EQ(oneLine("a\xC2\x9B"
                      "2Jb"),
              "a 2Jb");
}

TEST(OneLine, KeepsTheCharacterAfterTheUpperControlCharacters) {
    EXPECT_EQ(oneLine("a\xC2\xA0"
                      "b"),
              "a\xC2\xA0"
              "b");
}

TEST(OneLine, KeepsAByteThatIsNotUtf8) {
    EXPECT_EQ(oneLine("a\xC2"), "a\xC2");
}

TEST(OneLine, OfAnEmptyTextIsEmpty) {
    EXPECT_EQ(oneLine(""), "");
}

}  // namespace
}  // namespace quorvane::cli
