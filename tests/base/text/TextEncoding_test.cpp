#include "quorvane/base/text/TextEncoding.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

const std::string mark(utf8Mark);

TEST(TextEncoding, IsUtf8WithAMarkOrACharacterBeyondAscii) {
    EXPECT_EQ(encodingOf("Dvo\u0159\u00E1k"), TextEncoding::Utf8);
    EXPECT_EQ(encodingOf(std::string(200, 'a') + "\u00E9"), TextEncoding::Utf8);
    EXPECT_EQ(encodingOf(mark + "plain"), TextEncoding::Utf8);
    EXPECT_EQ(encodingOf(mark + "\xFC"), TextEncoding::Utf8);
}

TEST(TextEncoding, IsOtherwiseWindows1252) {
    EXPECT_EQ(encodingOf(""), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("plain"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("M\xFCller"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("Dvo\u0159\u00E1k, M\xFCller"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("\xED\xA0\x80"), TextEncoding::Windows1252);
    EXPECT_EQ(encodingOf("\xC3"), TextEncoding::Windows1252);
}

TEST(TextEncoding, SaysWhereBytesAreNotUtf8) {
    EXPECT_EQ(findNotUtf8("\u0159\u00E9"), std::nullopt);
    EXPECT_EQ(findNotUtf8("\u0159M\xFCller"), 3U);
    EXPECT_EQ(findNotUtf8("a\xF0\x9F\x98"), 1U);
    EXPECT_EQ(findNotUtf8("\xED\xA0\x80"), 0U);
}

TEST(TextEncoding, DecodesFiles) {
    EXPECT_EQ(decodedText("M\xFCller", TextEncoding::Windows1252), "M\u00FCller");
    EXPECT_EQ(decodedText("\u0159", TextEncoding::Utf8), "\u0159");
    EXPECT_EQ(decodedText(mark + "\u0159", TextEncoding::Utf8), "\u0159");
    EXPECT_EQ(decodedText(mark, TextEncoding::Windows1252), "\u00EF\u00BB\u00BF");
}

TEST(TextEncoding, EncodesTexts) {
    EXPECT_EQ(encodedText("\u0159\u00FC", TextEncoding::Windows1252), "?\xFC");
    EXPECT_EQ(encodedText("\u0159\u00FC", TextEncoding::Utf8), "\u0159\u00FC");
}

}  // namespace
}  // namespace quorvane
