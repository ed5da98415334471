#include "quorvane/diagnostics/engine/SourceText.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane {
namespace {

void expectPlace(const Place& place, std::int64_t line, std::int64_t column, std::int64_t length,
                 std::int64_t offset) {
    EXPECT_EQ(place.line, line);
    EXPECT_EQ(place.column, column);
    EXPECT_EQ(place.length, length);
    EXPECT_EQ(place.offset, offset);
}

TEST(SourceText, CountsLinesAndColumnsFromOne) {
    const SourceText source("ab\ncd");
    expectPlace(source.place(0, 1), 1, 1, 1, 0);
    expectPlace(source.place(4, 5), 2, 2, 1, 4);
}

TEST(SourceText, TakesEveryKindOfLineEnd) {
    const SourceText source("a\r\nb\rc\nd");
    EXPECT_EQ(source.lines().size(), 4u);
    expectPlace(source.place(3, 4), 2, 1, 1, 3);
    expectPlace(source.place(5, 6), 3, 1, 1, 5);
    expectPlace(source.place(7, 8), 4, 1, 1, 7);
}

TEST(SourceText, CountsCharactersNotBytes) {
    const SourceText source("\xC3\xA9\xC3\xA9=\xE2\x82\xAC");
    expectPlace(source.place(4, 5), 1, 3, 1, 2);
    expectPlace(source.place(5, 8), 1, 4, 1, 3);
}

TEST(SourceText, CountsCharactersFarIntoALine) {
    std::string text;
    for (int i = 0; i < 1000; ++i) {
        text += "a\xC3\xA9";
    }
    const SourceText source(text);
    expectPlace(source.place(1501, 1503), 1, 1002, 1, 1001);
}

void expectBytes(const Place& place, std::int64_t column, std::int64_t length,
                 std::int64_t offset) {
    EXPECT_EQ(place.bytes.column, column);
    EXPECT_EQ(place.bytes.length, length);
    EXPECT_EQ(place.bytes.offset, offset);
}

TEST(SourceText, KnowsTheBytesOfAFileInWindows1252) {
    const SourceText source("\u00E9\n\u20ACab");
    expectBytes(source.place(6, 7), 2, 1, 3);
}

TEST(SourceText, KnowsTheBytesOfAFileInUtf8) {
    const SourceText source("\u00E9\n\u20AC\U0001F600b", TextEncoding::Utf8);
    expectPlace(source.place(6, 10), 2, 2, 1, 3);
    expectBytes(source.place(6, 10), 4, 4, 6);
    expectBytes(source.place(10, 11), 8, 1, 10);
}

TEST(SourceText, CountsTheByteOrderMarkInOffsetsOnly) {
    const SourceText source("\u00E9b", TextEncoding::Utf8WithMark);
    expectPlace(source.place(2, 3), 1, 2, 1, 1);
    expectBytes(source.place(2, 3), 3, 1, 5);
}

TEST(SourceText, KeepsAPlaceOnItsLine) {
    expectPlace(SourceText("ab\ncd").place(1, 5), 1, 2, 1, 1);
}

TEST(SourceText, HasALineWhenItIsEmpty) {
    expectPlace(SourceText("").place(0, 0), 1, 1, 0, 0);
}

}  // namespace
}  // namespace quorvane
