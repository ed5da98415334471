#include "quorvane/base/text/TextEncoding.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

const std::string mark(utf8Mark);

TEST(TextEncoding, IsUtf8WithACharacterBeyondAscii) {
    EXPECT_EQ(encodingOf("Dvo\u0159\u00E1k"), TextEncoding::Utf8);
    EXPECT_EQ(encodingOf(std::string(200, 'a') + "\u00E9"), TextEncoding::Utf8);
    EXPECT_EQ(encodingOf("\U0001F600"), TextEncoding::Utf8);
}

TEST(TextEncoding, IsUtf8WithAMarkWhateverFollows) {
    EXPECT_EQ(encodingOf(mark), TextEncoding::Utf8WithMark);
    EXPECT_EQ(encodingOf(mark + "plain"), TextEncoding::Utf8WithMark);
    EXPECT_EQ(encodingOf(mark + "\xFC"), TextEncoding::Utf8WithMark);
}

TEST(TextEncoding, IsOtherwiseWindows1252) {
    EXPECT_EQ(encodingOf(""), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("plain"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("M\xFCller"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("Dvo\u0159\u00E1k, M\xFCller"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("\xED\xA0\x80"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("\xC3"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("\xC0\xAF"), TextEncoding::Windows1252);
}

TEST(TextEncoding, IsTheOneThatWasChosen) {
    EXPECT_EQ(encodingOf("plain", EncodingChoice::Utf8), TextEncoding::Utf8);
    EXPECT_EQ(encodingOf("M\xFCller", EncodingChoice::Utf8), TextEncoding::Utf8);
    EXPECT_EQ(encodingOf(mark + "a", EncodingChoice::Utf8), TextEncoding::Utf8WithMark);
    EXPECT_EQ(encodingOf("\u0159", EncodingChoice::Windows1252), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf(mark + "\u0159", EncodingChoice::Windows1252), TextEncoding::Windows1252);
}

TEST(TextEncoding, SaysWhereBytesAreNotUtf8) {
    EXPECT_EQ(findNotUtf8(""), std::nullopt);
    EXPECT_EQ(findNotUtf8("\u0159\u00E9"), std::nullopt);
    EXPECT_EQ(findNotUtf8("\u0159M\xFCller"), 3U);
    EXPECT_EQ(findNotUtf8("a\xF0\x9F\x98"), 1U);
    EXPECT_EQ(findNotUtf8("\xED\xA0\x80"), 0U);
}

TEST(TextEncoding, DecodesFiles) {
    EXPECT_EQ(decodedText("plain", TextEncoding::Windows1252), "plain");
    EXPECT_EQ(decodedText("M\xFCller", TextEncoding::Windows1252), "M\u00FCller");
    EXPECT_EQ(decodedText("\u0159", TextEncoding::Utf8), "\u0159");
    EXPECT_EQ(decodedText(mark + "\u0159", TextEncoding::Utf8WithMark), "\u0159");
    EXPECT_EQ(decodedText(mark, TextEncoding::Windows1252), "\u00EF\u00BB\u00BF");
}

TEST(TextEncoding, EncodesTexts) {
    EXPECT_EQ(encodedText("\u0159\u00FC", TextEncoding::Windows1252), "?\xFC");
    EXPECT_EQ(encodedText("\u0159\u00FC", TextEncoding::Utf8), "\u0159\u00FC");
    EXPECT_EQ(encodedText("\u0159", TextEncoding::Utf8WithMark), mark + "\u0159");
}

TEST(TextEncoding, KeepsEveryByteOfAFileThatIsDecodedAndEncoded) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    for (const std::string& bytes : {all, mark + "a\u0159\U0001F600", std::string("\u00E9")}) {
        EXPECT_EQ(encodedText(decodedText(bytes, encodingOf(bytes)), encodingOf(bytes)), bytes);
    }
}

}  // namespace
}  // namespace quorvane
