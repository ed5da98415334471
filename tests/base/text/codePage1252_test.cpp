#include "quorvane/base/text/codePage1252.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/base/text/utf8.h"

namespace quorvane {
namespace {

std::string utf8(std::u32string_view codes) {
    std::string text;
    for (const char32_t code : codes) {
        appendUtf8(code, text);
    }
    return text;
}

std::string bytesFrom(int first, int last) {
    std::string bytes;
    for (int byte = first; byte <= last; ++byte) {
        bytes.push_back(static_cast<char>(byte));
    }
    return bytes;
}

constexpr std::u32string_view charactersFrom80To9F =
    U"\u20AC\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x8D\u017D\x8F"
    U"\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\x9D\u017E\u0178";

TEST(CodePage1252, TakesBytesBelow80AsTheyAre) {
    const std::string bytes = bytesFrom(0x00, 0x7F);
    EXPECT_EQ(utf8FromCodePage1252(bytes), bytes);
    EXPECT_EQ(codePage1252FromUtf8(bytes), bytes);
}

TEST(CodePage1252, TakesBytesFromA0OnAsTheCharactersOfTheSameNumber) {
    for (int byte = 0xA0; byte <= 0xFF; ++byte) {
        const std::string one = bytesFrom(byte, byte);
        const std::string character = utf8(std::u32string(1, static_cast<char32_t>(byte)));
        EXPECT_EQ(utf8FromCodePage1252(one), character);
        EXPECT_EQ(codePage1252FromUtf8(character), one);
    }
}

TEST(CodePage1252, HasItsOwnCharactersFrom80To9F) {
    const std::string bytes = bytesFrom(0x80, 0x9F);
    EXPECT_EQ(utf8FromCodePage1252(bytes), utf8(charactersFrom80To9F));
    EXPECT_EQ(codePage1252FromUtf8(utf8(charactersFrom80To9F)), bytes);
}

TEST(CodePage1252, TakesItsUndefinedBytesAsControlCharacters) {
    EXPECT_EQ(utf8FromCodePage1252("\x81\x8D\x8F\x90\x9D"), utf8(U"\x81\x8D\x8F\x90\x9D"));
    EXPECT_EQ(codePage1252FromUtf8(utf8(U"\x81\x8D\x8F\x90\x9D")), "\x81\x8D\x8F\x90\x9D");
}

TEST(CodePage1252, WritesAQuestionMarkForAControlCharacterWithoutAPlace) {
    EXPECT_EQ(codePage1252FromUtf8(utf8(U"\x80\x82\x9F")), "???");
}

TEST(CodePage1252, WritesOneQuestionMarkForACharacterOutside) {
    EXPECT_EQ(codePage1252FromUtf8("\xCE\xB1"), "?");
    EXPECT_EQ(codePage1252FromUtf8("a\xE2\x86\x92"
                                   "b"),
              "a?b");
}

TEST(CodePage1252, WritesOneQuestionMarkForASupplementaryCharacter) {
    EXPECT_EQ(codePage1252FromUtf8("<\xF0\x9F\x98\x80>"), "<?>");
}

TEST(CodePage1252, WritesOneQuestionMarkForALoneSurrogate) {
    EXPECT_EQ(codePage1252FromUtf8("<\xED\xA0\x80>"), "<?>");
}

TEST(CodePage1252, WritesOneQuestionMarkForEachStrayByte) {
    EXPECT_EQ(codePage1252FromUtf8("<\xFF>"), "<?>");
    EXPECT_EQ(codePage1252FromUtf8("<\xE2\x82>"), "<?\?>");
}

TEST(CodePage1252, HasNothingForNothing) {
    EXPECT_EQ(utf8FromCodePage1252(""), "");
    EXPECT_EQ(codePage1252FromUtf8(""), "");
}

TEST(CodePage1252, MixesLongRunsOfAsciiWithOtherCharacters) {
    const std::string run(1001, 'x');
    const std::string text = run + "\xC3\xA9" + run + "\xE2\x82\xAC\xC3\xA9" + run;
    const std::string bytes = run + "\xE9" + run + "\x80\xE9" + run;
    EXPECT_EQ(codePage1252FromUtf8(text), bytes);
    EXPECT_EQ(utf8FromCodePage1252(bytes), text);
}

TEST(CodePage1252, AppendsToTheBytesThatAreThere) {
    std::string bytes = "\xE9";
    appendCodePage1252("t\xC3\xA9", bytes);
    EXPECT_EQ(bytes, "\xE9t\xE9");
}

}  // namespace
}  // namespace quorvane
