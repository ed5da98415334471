#include "quorvane/driver/literalText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {
namespace {

std::string_view wordsOf(std::string_view name) {
    return name == "strong" ? "\\b " : name == "em" ? "\\cs2\\i" : std::string_view();
}

std::string literal(std::string_view text) {
    std::string rtf;
    appendLiteralText(text, wordsOf, rtf);
    return rtf;
}

TEST(LiteralText, ShowsWhatIsWritten) {
    EXPECT_EQ(literal("Total"), "Total");
    EXPECT_EQ(literal("\\ { } ( ) ;"), "\\\\ \\{ \\} ( ) ;");
    EXPECT_EQ(literal("caf\xC3\xA9"), "caf\\'E9");
    EXPECT_EQ(literal("P\xC5\x99\xC3\xAD"), "P{\\uc1\\u345?}\\'ED");
    EXPECT_EQ(literal(""), "");
}

TEST(LiteralText, MakesGroupsOfInlineStyles) {
    EXPECT_EQ(literal("<strong=Total>: 5"), "{\\b Total}: 5");
    EXPECT_EQ(literal("a <em=b> c"), "a {\\cs2\\i b} c");
    EXPECT_EQ(literal("<strong=>"), "{\\b }");
}

TEST(LiteralText, NestsInlineStyles) {
    EXPECT_EQ(literal("<strong=a <em=b> c>"), "{\\b a {\\cs2\\i b} c}");
    EXPECT_EQ(literal("<strong=<em=b>>"), "{\\b {\\cs2\\i b}}");
}

TEST(LiteralText, EscapesTheTextOfInlineStyles) {
    EXPECT_EQ(literal("<strong={a}>"), "{\\b \\{a\\}}");
}

TEST(LiteralText, TakesWhatOpensNoStyleAsText) {
    EXPECT_EQ(literal("a < b > c"), "a \\'3C b \\'3E c");
    EXPECT_EQ(literal("<weak=a>"), "\\'3Cweak=a\\'3E");
    EXPECT_EQ(literal("<strong>"), "\\'3Cstrong\\'3E");
    EXPECT_EQ(literal("<1=a>"), "\\'3C1=a\\'3E");
    EXPECT_EQ(literal("<"), "\\'3C");
}

TEST(LiteralText, TakesAStyleThatDoesNotEndAsText) {
    EXPECT_EQ(literal("<strong=a"), "\\'3Cstrong=a");
    EXPECT_EQ(literal("<strong=a <em=b>"), "\\'3Cstrong=a {\\cs2\\i b}");
}

TEST(LiteralText, RaisesErrorFiveForACharacterThatCannotBeShown) {
    try {
        literal("<strong=a\x01>");
        FAIL();
    } catch (const RtfError& error) {
        EXPECT_TRUE(error.is(RunTimeError::InvalidProcedureCall));
    }
}

TEST(LiteralText, TakesLinearTime) {
    std::string text;
    for (int i = 0; i < 200000; ++i) {
        text += "<strong=";
    }
    EXPECT_EQ(literal(text).size(), text.size() + 3 * 200000);
}

std::string block(std::string_view text) {
    return blockText("\"\"\"" + std::string(text) + "\"\"\"", "\"\"\"");
}

TEST(BlockText, IsWhatStandsBetweenTheMarks) {
    EXPECT_EQ(block("a"), "a");
    EXPECT_EQ(block("  a  "), "  a  ");
    EXPECT_EQ(block(""), "");
}

TEST(BlockText, LeavesOutTheLineBreaksBesideTheMarks) {
    EXPECT_EQ(block("\na\nb\n"), "a\nb");
    EXPECT_EQ(block("  \r\na\r\nb\r\n"), "a\nb");
    EXPECT_EQ(block("\ra\rb\r"), "a\nb");
    EXPECT_EQ(block("a\nb"), "a\nb");
    EXPECT_EQ(block("\n"), "");
}

TEST(BlockText, KeepsEmptyLines) {
    EXPECT_EQ(block("\n\na\n\n\nb\n\n"), "\na\n\n\nb\n");
}

TEST(BlockText, LeavesOutTheIndentOfTheLastMark) {
    EXPECT_EQ(block("\n    a\n      b\n   "), " a\n   b");
    EXPECT_EQ(block("\n  a\nb\n    "), "a\nb");
}

}  // namespace
}  // namespace quorvane
