#include "quorvane/rtf/RtfControl.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

namespace quorvane {
namespace {

std::optional<char> character(const std::string& text) {
    return characterOf(rtfControlAt(text, 0), text, 0);
}

TEST(RtfControls, HaveLettersAndANumberAndTheBlankThatEndsThem) {
    const RtfControl control = rtfControlAt("a\\fs20 b", 1);
    EXPECT_EQ(control.word, "fs");
    EXPECT_EQ(control.number, 20);
    EXPECT_EQ(control.shownLength, 5u);
    EXPECT_EQ(control.length, 6u);
}

TEST(RtfControls, HaveNoNumberWithoutDigits) {
    for (const char* text : {"\\b", "\\b-", "\\b-x", "\\b x", "\\b\\i"}) {
        const RtfControl control = rtfControlAt(text, 0);
        EXPECT_EQ(control.word, "b") << text;
        EXPECT_EQ(control.number, std::nullopt) << text;
        EXPECT_EQ(control.shownLength, 2u) << text;
    }
}

TEST(RtfControls, HaveNumbersCutTo32Bits) {
    EXPECT_EQ(rtfControlAt("\\u-4242", 0).number, -4242);
    EXPECT_EQ(rtfControlAt("\\u2147483647", 0).number, 2147483647);
    EXPECT_EQ(rtfControlAt("\\u2147483648", 0).number, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(rtfControlAt("\\u-99999999999", 0).number, std::numeric_limits<std::int32_t>::min());
}

TEST(RtfControls, AreSymbolsWithoutLetters) {
    const RtfControl control = rtfControlAt("\\~a", 0);
    EXPECT_EQ(control.word, "");
    EXPECT_EQ(control.symbol, '~');
    EXPECT_EQ(control.length, 2u);
}

TEST(RtfControls, HaveBothDigitsOfAnEscapeOrNone) {
    EXPECT_EQ(rtfControlAt("\\'e9x", 0).length, 4u);
    EXPECT_EQ(rtfControlAt("\\'E9", 0).length, 4u);
    for (const char* text : {"\\'", "\\'e", "\\'g9", "\\'9g", "\\'9:"}) {
        EXPECT_EQ(rtfControlAt(text, 0).length, 2u) << text;
    }
}

TEST(RtfControls, AreEmptyAtTheEndOfTheText) {
    const RtfControl control = rtfControlAt("a\\", 1);
    EXPECT_EQ(control.symbol, '\0');
    EXPECT_EQ(control.length, 1u);
    EXPECT_EQ(character("\\"), std::nullopt);
}

TEST(RtfControls, StandForCharactersOfAscii) {
    EXPECT_EQ(character("\\\\"), '\\');
    EXPECT_EQ(character("\\{"), '{');
    EXPECT_EQ(character("\\}"), '}');
    EXPECT_EQ(character("\\_"), '-');
    EXPECT_EQ(character("\\'41"), 'A');
    EXPECT_EQ(character("\\u65"), 'A');
}

TEST(RtfControls, StandForABlank) {
    for (const char* text :
         {"\\~", "\\tab", "\\line", "\\par", "\\'09", "\\'a0", "\\u160", "\\u32", "\\'20"}) {
        EXPECT_EQ(character(text), ' ') << text;
    }
}

TEST(RtfControls, StandForAQuestionMarkWhereTheCharacterIsNotOfAscii) {
    for (const char* text : {"\\'e9", "\\'7f", "\\u8364", "\\u-3", "\\'", "\\'zz"}) {
        EXPECT_EQ(character(text), '?') << text;
    }
}

TEST(RtfControls, OfUnicodeCountTheirLowest16Bits) {
    EXPECT_EQ(character("\\u65601"), 'A');
    EXPECT_EQ(character("\\u-65471"), 'A');
}

TEST(RtfControls, HaveNoCharacterWhenItIsInvisible) {
    for (const char* text : {"\\'ad", "\\u173", "\\u8203", "\\u8207", "\\u8234", "\\u8238",
                             "\\u8288", "\\u8292", "\\u-257"}) {
        EXPECT_EQ(character(text), std::nullopt) << text;
    }
    for (const char* text : {"\\u8202", "\\u8208", "\\u8233", "\\u8239", "\\u8287", "\\u8293"}) {
        EXPECT_EQ(character(text), '?') << text;
    }
}

TEST(RtfControls, HaveNoCharacterWhenTheyAreNotOne) {
    for (const char* text : {"\\b", "\\-", "\\*", "\\u", "\\lines"}) {
        EXPECT_EQ(character(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace quorvane
