#include "cli/terminalColumns.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/base/text/utf8.h"

namespace quorvane::cli {
namespace {

TEST(TerminalColumns, AreOneForMostCharacters) {
    EXPECT_EQ(terminalColumns(""), 0u);
    EXPECT_EQ(terminalColumns("abc"), 3u);
    EXPECT_EQ(terminalColumns("\u00E9\u20AC\u0159\u042F\u05D0\uFFFD"), 6u);
}

TEST(TerminalColumns, AreTwoForEastAsiaAndEmoji) {
    EXPECT_EQ(terminalColumns("\u4E2D\uAC00\u3042\uFF21"), 8u);
    EXPECT_EQ(terminalColumns("\U0001F600\U00020000"), 4u);
    EXPECT_EQ(terminalColumns("\uFF71"), 1u);
}

TEST(TerminalColumns, AreNoneForCombiningMarks) {
    EXPECT_EQ(terminalColumns("e\u0301\u0323"), 1u);
    EXPECT_EQ(terminalColumns("\u05D0\u05B8a\u200D"), 2u);
    EXPECT_EQ(terminalColumns("\uFE0F"), 0u);
}

TEST(TerminalColumns, AreOneForEveryCharacterOfWindows1252) {
    for (char32_t code = 0x20; code < 0x100; ++code) {
        std::string text;
        appendUtf8(code, text);
        EXPECT_EQ(terminalColumns(text), 1u) << text;
    }
}

}  // namespace
}  // namespace quorvane::cli
