#include "quorvane/base/text/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

void expectCharacter(std::string_view text, char32_t code) {
    const Utf8Character character = utf8CharacterAt(text, 0);
    EXPECT_EQ(character.code, code);
    EXPECT_EQ(character.length, text.size());

    std::string written;
    appendUtf8(code, written);
    EXPECT_EQ(written, text);
}

void expectStrayByte(std::string_view text) {
    const Utf8Character character = utf8CharacterAt(text, 0);
    EXPECT_EQ(character.code, strayByte + static_cast<unsigned char>(text[0]));
    EXPECT_EQ(character.length, 1u);

    std::string written;
    appendUtf8(character.code, written);
    EXPECT_EQ(written, text.substr(0, 1));
}

TEST(Utf8, ReadsAndWritesTheFirstAndLastCharacterOfEachLength) {
    expectCharacter(std::string_view("\0", 1), 0);
    expectCharacter("\x7F", 0x7F);
    expectCharacter("\xC2\x80", 0x80);
    expectCharacter("\xDF\xBF", 0x7FF);
    expectCharacter("\xE0\xA0\x80", 0x800);
    expectCharacter("\xEF\xBF\xBF", 0xFFFF);
    expectCharacter("\xF0\x90\x80\x80", 0x10000);
    expectCharacter("\xF4\x8F\xBF\xBF", 0x10FFFF);
}

TEST(Utf8, KeepsALoneSurrogateAsACharacter) {
    expectCharacter("\xED\xA0\x80", 0xD800);
    expectCharacter("\xED\xBF\xBF", 0xDFFF);
}

TEST(Utf8, TakesAContinuationByteWithoutItsLeadAsStray) {
    expectStrayByte("\x80");
    expectStrayByte("\xBF\x80");
}

TEST(Utf8, TakesALeadByteWithoutItsContinuationAsStray) {
    expectStrayByte("\xC3");
    expectStrayByte("\xC3z");
    expectStrayByte("\xE2\x82");
    expectStrayByte("\xE2\x82z");
    expectStrayByte("\xF0\x9F\x98\xC3");
}

TEST(Utf8, TakesACharacterWrittenTooLongAsStrayBytes) {
    expectStrayByte("\xC0\x80");
    expectStrayByte("\xC1\xBF");
    expectStrayByte("\xE0\x9F\xBF");
    expectStrayByte("\xF0\x8F\xBF\xBF");
}

TEST(Utf8, TakesWhatLiesBeyondUnicodeAsStrayBytes) {
    expectStrayByte("\xF4\x90\x80\x80");
    expectStrayByte("\xF5\x80\x80\x80");
    expectStrayByte("\xFF");
}

TEST(Utf8, ReadsTheCharacterAtAPositionWithinTheText) {
    EXPECT_EQ(utf8CharacterAt("a\xC3\xA9z", 1).code, U'\u00E9');
    EXPECT_EQ(utf8CharacterAt("a\xC3\xA9z", 3).code, U'z');
}

TEST(Utf8, CountsCharactersRatherThanBytes) {
    EXPECT_EQ(characterCount(""), 0u);
    EXPECT_EQ(characterCount("twelve bytes"), 12u);
    EXPECT_EQ(characterCount("\xC3\xA9"), 1u);
    EXPECT_EQ(characterCount("caf\xC3\xA9 \xE2\x82\xAC 5"), 8u);
    EXPECT_EQ(characterCount("\xF0\x9F\x98\x80"), 1u);
}

TEST(Utf8, CountsEveryStrayByte) {
    EXPECT_EQ(characterCount("a\xFF\xFFz"), 4u);
    EXPECT_EQ(characterCount("\xE2\x82"), 2u);
}

TEST(Utf8, FindsTheEndOfARunOfAsciiWhereverItEnds) {
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string run(length, 'a');
        EXPECT_EQ(asciiRunEnd(run, 0), length);
        EXPECT_EQ(asciiRunEnd(run + "\xC3\xA9 and on", 0), length);
    }
}

TEST(Utf8, FindsTheEndOfARunThatBeginsWithinTheText) {
    const std::string text = "\xC3\xA9" + std::string(20, 'a') + "\xC3\xA9";
    EXPECT_EQ(asciiRunEnd(text, 2), 22u);
    EXPECT_EQ(asciiRunEnd(text, 5), 22u);
    EXPECT_EQ(asciiRunEnd(text, 22), 22u);
    EXPECT_EQ(asciiRunEnd(text, text.size()), text.size());
}

}  // namespace
}  // namespace quorvane
