#include "quorvane/base/text/utf16.h"

#include <string>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace std::string_literals;

std::u16string utf16(std::string_view text) {
    return utf16FromUtf8<char16_t>(text);
}

std::string utf8(const std::u16string& units) {
    return utf8FromUtf16(std::u16string_view(units));
}

TEST(Utf16, IsOneUnitForACharacterOfTheBasicPlane) {
    EXPECT_EQ(utf16("aé€"), u"aé€");
    EXPECT_EQ(utf8(u"aé€"), "aé€");
}

TEST(Utf16, IsAPairOfSurrogatesForAnyOtherCharacter) {
    EXPECT_EQ(utf16("\xF0\x9F\x98\x80"), u"\xD83D\xDE00"s);
    EXPECT_EQ(utf8(u"\xD83D\xDE00"s), "\xF0\x9F\x98\x80");
}

TEST(Utf16, KeepsASurrogateWithoutItsPartner) {
    const std::u16string high = u"a\xD83D"s;
    const std::u16string low = u"\xDE00\xD83D b"s;
    EXPECT_EQ(utf8(high), "a\xED\xA0\xBD");
    EXPECT_EQ(utf16(utf8(high)), high);
    EXPECT_EQ(utf16(utf8(low)), low);
}

TEST(Utf16, KeepsNulsAndLongTexts) {
    const std::string text = std::string(1000, 'x') + '\0' + std::string(1000, 'y') + "é";
    EXPECT_EQ(utf16(text).size(), 2002U);
    EXPECT_EQ(utf8(utf16(text)), text);
}

TEST(Utf16, MakesAStrayByteTheCharacterOfItsNumber) {
    EXPECT_EQ(utf16("a\xFF"), u"a\x00FF"s);
}

TEST(Utf16, KnowsTheLengthBeforehand) {
    EXPECT_EQ(utf16Length(""), 0U);
    EXPECT_EQ(utf16Length("aé€"), 3U);
    EXPECT_EQ(utf16Length("\xF0\x9F\x98\x80"), 2U);
}

}  // namespace
}  // namespace quorvane
