#include "quorvane/base/text/utf16Units.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvane {
namespace {

using namespace std::string_view_literals;

std::u32string utf16Units(std::string_view text) {
    std::u32string units;
    appendUtf16Units(text, units);
    return units;
}

std::string textOfUtf16Units(std::u32string_view units) {
    std::string text;
    appendTextOfUtf16Units(units, text);
    return text;
}

TEST(Utf16Units, AreOneForEachCharacterOfTheBasicPlane) {
    EXPECT_EQ(utf16Units("a\xC3\xA9\xE2\x82\xAC"), U"a\u00E9\u20AC");
}

TEST(Utf16Units, OfACharacterAreThoseOfItsText) {
    std::u32string units;
    appendUtf16Units(U'\u20AC', units);
    appendUtf16Units(U'\U0001F600', units);
    EXPECT_EQ(units, utf16Units("\xE2\x82\xAC\xF0\x9F\x98\x80"));
}

TEST(Utf16Units, AreEmptyForAnEmptyText) {
    EXPECT_EQ(utf16Units(""), U"");
    EXPECT_EQ(textOfUtf16Units(U""), "");
}

TEST(Utf16Units, AreTwoForASupplementaryCharacter) {
    const std::u32string units{U'a', 0xD83D, 0xDE00, U'b'};

    EXPECT_EQ(utf16Units("a\xF0\x9F\x98\x80"
                         "b"),
              units);
    EXPECT_EQ(textOfUtf16Units(units),
              "a\xF0\x9F\x98\x80"
              "b");
}

TEST(Utf16Units, ReachFromTheFirstToTheLastSupplementaryCharacter) {
    EXPECT_EQ(utf16Units("\xF0\x90\x80\x80"), (std::u32string{0xD800, 0xDC00}));
    EXPECT_EQ(utf16Units("\xF4\x8F\xBF\xBF"), (std::u32string{0xDBFF, 0xDFFF}));
    EXPECT_EQ(textOfUtf16Units(std::u32string{0xD800, 0xDC00}), "\xF0\x90\x80\x80");
    EXPECT_EQ(textOfUtf16Units(std::u32string{0xDBFF, 0xDFFF}), "\xF4\x8F\xBF\xBF");
}

TEST(Utf16Units, KeepALoneSurrogate) {
    const std::string high = "x\xED\xA0\xBDy";
    const std::string low = "\xED\xB8\x80";

    EXPECT_EQ(utf16Units(high), (std::u32string{U'x', 0xD83D, U'y'}));
    EXPECT_EQ(textOfUtf16Units(utf16Units(high)), high);
    EXPECT_EQ(textOfUtf16Units(utf16Units(low)), low);
    EXPECT_EQ(textOfUtf16Units(utf16Units(low + high)), low + high);
}

TEST(Utf16Units, KeepBytesThatArePartOfNoCharacter) {
    const std::string text = "a\xFF\x80\xC3";

    EXPECT_EQ(utf16Units(text).size(), 4U);
    EXPECT_EQ(textOfUtf16Units(utf16Units(text)), text);
}

TEST(Utf16Units, KeepCharactersOfCodeZero) {
    EXPECT_EQ(utf16Units("a\0b"sv), U"a\0b"sv);
    EXPECT_EQ(textOfUtf16Units(U"a\0b"sv), "a\0b"sv);
}

TEST(Utf16Units, GiveAnyBytesBackAsTheyWere) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        for (auto length = random() % 12; length > 0; --length) {
            static constexpr std::string_view bytes =
                "a<\xC3\xA9\x80\xF0\x9F\x98\xE2\x82\xAC\xFF"sv;
            text += bytes[random() % bytes.size()];
        }
        ASSERT_EQ(textOfUtf16Units(utf16Units(text)), text);
    }
}

}  // namespace
}  // namespace quorvane
