#include "quorvane/rtf/escape.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/rtf/shownText.h"

namespace quorvane {
namespace {

using testing::IsEmpty;

std::string descriptionOf(std::string_view error, std::string (*escape)(std::string_view)) {
    try {
        static_cast<void>(escape(error));
    } catch (const RtfError& raised) {
        return std::to_string(raised.number) + " " + raised.description;
    }
    return {};
}

TEST(EscapedText, LeavesPlainTextAlone) {
    EXPECT_EQ(rtfText("Total: 5 (net); 100%"), "Total: 5 (net); 100%");
    EXPECT_EQ(rtfText(""), "");
    EXPECT_EQ(rtfText(" a "), " a ");
}

TEST(EscapedText, FollowsTheTextItIsAppendedTo) {
    std::string rtf = "\\b ";
    appendRtfText(" {a}", rtf);
    EXPECT_EQ(rtf, "\\b  \\{a\\}");
}

TEST(EscapedText, KeepsBlanksInARowApart) {
    EXPECT_EQ(rtfText("a  b   "), "a {} b {} {} ");
}

TEST(EscapedText, WritesABackslashBeforeWhatRtfReads) {
    EXPECT_EQ(rtfText(R"(C:\new {x})"), R"(C:\\new \{x\})");
}

TEST(EscapedText, BeginsAndEndsNoInlineStyle) {
    EXPECT_EQ(rtfText("<strong=a>"), R"(\'3Cstrong=a\'3E)");
}

TEST(EscapedText, WritesTabsAndLineBreaksAsControlWords) {
    EXPECT_EQ(rtfText("a\tb"), R"(a\tab b)");
    EXPECT_EQ(rtfText("a\nb"), R"(a\line b)");
    EXPECT_EQ(rtfText("a\rb"), R"(a\line b)");
    EXPECT_EQ(rtfText("a\r\nb\n\r"), R"(a\line b\line \line )");
}

TEST(EscapedText, WritesTheCharactersOfLatinAsBytes) {
    EXPECT_EQ(rtfText("M\u00FCller \u00A0\u00FF"), R"(M\'FCller \'A0\'FF)");
}

TEST(EscapedText, WritesOtherCharactersAsSignedUnits) {
    EXPECT_EQ(rtfText("Dvo\u0159\u00E1k"), R"(Dvo{\uc1\u345?}\'E1k)");
    EXPECT_EQ(rtfText("5 \u20AC \u2013"), R"(5 {\uc1\u8364?} {\uc1\u8211?})");
    EXPECT_EQ(rtfText("\u4E2D\u6587"), R"({\uc1\u20013?\u25991?})");
    EXPECT_EQ(rtfText("\uFB01"), R"({\uc1\u-1279?})");
    EXPECT_EQ(rtfText("\U0001F600"), R"({\uc1\u-10179?\u-8704?})");
    EXPECT_EQ(rtfText("\U0010FFFD"), R"({\uc1\u-9217?\u-8195?})");
}

TEST(EscapedText, RefusesControlCharacters) {
    EXPECT_EQ(descriptionOf("ab\x07", rtfText),
              "5 No document can show the control character U+0007 (byte 3)");
    EXPECT_EQ(descriptionOf(std::string_view("\0", 1), rtfText),
              "5 No document can show the control character U+0000 (byte 1)");
    EXPECT_EQ(descriptionOf("\u00E9\x7F", rtfText),
              "5 No document can show the control character U+007F (byte 3)");
    EXPECT_EQ(descriptionOf("\u0085", rtfText),
              "5 No document can show the control character U+0085 (byte 1)");
}

TEST(EscapedText, RefusesBytesThatAreNotUtf8) {
    EXPECT_EQ(descriptionOf("M\xFCller", rtfText), "5 Byte FC is not UTF-8 (byte 2)");
    EXPECT_EQ(descriptionOf("a\xE2\x82", rtfText), "5 Byte E2 is not UTF-8 (byte 2)");
    EXPECT_EQ(descriptionOf("\xED\xA0\x80", rtfText),
              "5 Half a surrogate pair, U+D800, is not UTF-8 (byte 1)");
}

TEST(EscapedText, CanBeTestedFirst) {
    EXPECT_FALSE(findUnshowable("a\t\r\nb\u00E9\U0001F600"));
    const std::optional<Unshowable> found = findUnshowable("\u00E9\x1B[1m");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->position, 2U);
    EXPECT_EQ(found->message, "No document can show the control character U+001B");
}

TEST(DescriptionText, EndsNoValue) {
    EXPECT_EQ(descriptionText("5 (net)"), R"(5 (net\'29)");
}

TEST(DescriptionText, KeepsBlanksAtItsEnds) {
    EXPECT_EQ(descriptionText(" a b "), "{} a b {}");
    EXPECT_EQ(descriptionText(" "), "{} {}");
    EXPECT_EQ(descriptionText("  "), "{} {} {}");
}

TEST(EscapedText, ShowsEveryCharacterOfUnicode) {
    for (char32_t first = 0; first <= 0x10FFFF; first += 0x100) {
        std::string text;
        for (char32_t code = first; code < first + 0x100; ++code) {
            const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
            const bool isSurrogate = code >= 0xD800 && code < 0xE000;
            if (!isControl && !isSurrogate) {
                appendUtf8(code, text);
            }
        }
        ASSERT_EQ(shownText(rtfText(text)), text);
    }
}

/// A text of characters that descriptions and RTF read, and of any others.
std::string randomText(std::mt19937& random) {
    static const std::vector<std::string> parts{
        "\\", "{",  "}",      "(",        ")",          "<",          ">",      "=",      ";",
        " ",  "\t", "\n",     "\\'",      "\\u",        "pt=",        "para)",  "(row",   "doc)",
        "a",  "5",  "\u00E9", "<strong=", "\U0001F600", "\u0301",     "\u05D0", "\u4E2D", "\"",
        "^",  "~",  "%",      "\u20AC",   "\uFFFD",     "\U0010FFFD", "'",      "*",      ","};
    std::string text;
    for (auto length = random() % 12; length > 0; --length) {
        text += parts[random() % parts.size()];
    }
    return text;
}

/// The text of the only paragraph of a document.
std::string paragraphText(CRtfDoc& document) {
    const Ref<CRtfTableRow> row = document.TableRows()->Item(1);
    return row->TableCells()->Item(1)->Paragraphs()->Item(1)->Text();
}

TEST(DescriptionText, IsTheTextOfItsParagraph) {
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = randomText(random);
        const std::string description = "(doc\n(row\n(cell\n(para\n(pt=" + descriptionText(text) +
                                        ")\npara)\ncell)\nrow)\ndoc)\n";
        const Ref<CRtfDriver> driver = CRtfDriver::create();
        driver->ParseFromMemmory(description);
        ASSERT_EQ(shownText(paragraphText(*driver->RtfObject())), text) << description;
        ASSERT_THAT(checkRtf(driver->RtfObject()->Contents()), IsEmpty()) << description;
    }
}

TEST(EscapedText, StaysWhatItIsInAnInlineStyle) {
    std::mt19937 random(2);
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->LoadStyleSheetFromMemmory("{name: strong; style-def: cs; format: \\b}");
    document->TableRows()->AddTail();
    document->TableRows()->Item(1)->TableCells()->AddTail();
    const Ref<CRtfTableCell> cell = document->TableRows()->Item(1)->TableCells()->Item(1);
    cell->Paragraphs()->AddTail();
    for (int i = 0; i < 500; ++i) {
        const std::string text = rtfText(randomText(random));
        cell->Paragraphs()->Item(1)->setText("<strong=" + text + ">");
        document->Refresh();
        ASSERT_THAT(document->Contents(), testing::HasSubstr(text));
        ASSERT_THAT(checkRtf(document->Contents()), IsEmpty()) << text;
    }
}

}  // namespace
}  // namespace quorvane
