#include "data/recordsText.h"

#include <gtest/gtest.h>

#include <string>

#include "data/recordsSource.h"
#include "tests/data/textReader.h"

namespace quorvane::data {
namespace {

std::string textOf(const std::string& bytes, EncodingChoice choice = EncodingChoice::Auto,
                   std::size_t atATime = std::string::npos) {
    RecordsText text(readerOf(bytes, atATime), choice);
    while (text.readMore()) {
    }
    return std::string(text.view());
}

TEST(RecordsText, ReadsUtf8WithAndWithoutItsMark) {
    EXPECT_EQ(textOf("\xEF\xBB\xBFN\u00F3"), "N\u00F3");
    EXPECT_EQ(textOf("N\u00F3"), "N\u00F3");
    EXPECT_EQ(textOf("\xEF\xBB\xBF"), "");
    EXPECT_EQ(textOf(""), "");
}

TEST(RecordsText, ReadsUtf16ByItsMark) {
    EXPECT_EQ(textOf(std::string("\xFF\xFE\x41\x00\x3D\xD8\x00\xDE", 8)), "A\U0001F600");
    EXPECT_EQ(textOf(std::string("\xFE\xFF\x00\x41\x01\x59", 6)), "A\u0159");
}

TEST(RecordsText, ReadsBytesThatAreNotUtf8AsWindows1252) {
    EXPECT_EQ(textOf("caf\xE9"), "caf\u00E9");
    EXPECT_EQ(textOf("\x80 12"), "\u20AC 12");
    EXPECT_EQ(textOf("caf\xC3\xA9 \xE9."), "caf\u00C3\u00A9 \u00E9.");
}

TEST(RecordsText, TakesTheEncodingThatItIsGiven) {
    EXPECT_EQ(textOf("\xC3\xA9", EncodingChoice::Windows1252), "\u00C3\u00A9");
    EXPECT_EQ(textOf("\xE9", EncodingChoice::Utf8), "\xE9");
}

TEST(RecordsText, ReadsTheSameWhateverAPipeHasAtATime) {
    for (const std::string bytes :
         {"\xEF\xBB\xBFN\u00F3\U0001F600", "caf\xE9", "x\u00E9\u20AC", "ab\xF0\x9F"}) {
        EXPECT_EQ(textOf(bytes, EncodingChoice::Auto, 1), textOf(bytes));
    }
}

TEST(RecordsText, CutsNoCharacterBetweenBlocks) {
    for (std::size_t shift = 0; shift < 8; ++shift) {
        const std::string before(65536 - shift, 'x');
        EXPECT_EQ(textOf(before + "\U0001F600\u00E9"), before + "\U0001F600\u00E9");
        EXPECT_EQ(textOf(before + "\xE9y\xE9"), before + "\u00E9y\u00E9");
        std::string wide = "\xFF\xFE";
        for (std::size_t i = 0; i < 32768 - shift; ++i) {
            wide += std::string("x\0", 2);
        }
        wide += std::string("\x3D\xD8\x00\xDE", 4);
        EXPECT_EQ(textOf(wide), std::string(32768 - shift, 'x') + "\U0001F600");
    }
}

TEST(RecordsText, RefusesATextInUtf16ThatEndsInTheMiddleOfACharacter) {
    for (const std::string& bytes :
         {std::string("\xFF\xFE\x61\0b", 5), std::string("\xFE\xFF\0\x61\0", 5),
          std::string("\xFF\xFE\x61\0\x3D\xD8", 6)}) {
        EXPECT_THROW(textOf(bytes), RecordError);
        EXPECT_THROW(textOf(bytes, EncodingChoice::Auto, 1), RecordError);
    }
}

TEST(RecordsText, ForgetsWhatIsDiscarded) {
    RecordsText text(readerOf(std::string(70000, 'x') + "y"), EncodingChoice::Auto);
    text.readMore();
    text.readMore();
    std::size_t position = 100;
    text.discardBefore(position);
    EXPECT_EQ(position, 100U);
    position = 70000;
    text.discardBefore(position);
    EXPECT_EQ(position, 0U);
    EXPECT_EQ(text.view(), "y");
}

}  // namespace
}  // namespace quorvane::data
