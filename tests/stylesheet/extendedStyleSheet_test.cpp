// Stylesheets in the extended language: the words and numbers of their styles, and their
// violations.

#include "quorvane/stylesheet/extendedStyleSheet.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtfgroups/NumberedTables.h"
#include "quorvane/stylesheet/CRtfGrpStyleSheetTable.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/appendRendered.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NoOwner final : public GroupOwner {
public:
    void beforeChange() override {}
    void markChanged() noexcept override {}
};

class ExtendedStyleSheet : public testing::Test {
protected:
    ExtendedStyleSheet() { table.setExtendedTables(&tables); }

    /// Loads styles that stand after the first line.
    void load(std::string_view styles) {
        table.loadStyleSheetFromMemory("; quorvane 2\n" + std::string(styles));
    }

    /// The words of a paragraph style with these items.
    std::string paragraphWords(std::string_view items) {
        load("{ name: x; style-def: paragraph; " + std::string(items) + " }");
        return std::string(table.GetParagraphStyle("x"));
    }

    std::string characterWords(std::string_view items) {
        load("{ name: x; style-def: character; " + std::string(items) + " }");
        return std::string(table.GetCharacterStyle("x"));
    }

    std::string group() const {
        std::string rtf;
        appendRendered(table, rtf);
        return rtf;
    }

    NoOwner owner;
    FakePlatform platform;
    NumberedTables tables;
    CRtfGrpStyleSheetTable table{owner, platform};
};

TEST_F(ExtendedStyleSheet, WritesFormatsInWordsAsControlWords) {
    EXPECT_EQ(paragraphWords("font: Arial; size: 11pt; bold; italic; underline; strike"),
              "\\s100\\f0\\fs22\\b\\i\\ul\\strike ");
    EXPECT_EQ(paragraphWords("color: dark-red; background: #ffffe0; align: right"),
              "\\s100\\cf12\\cbpat21\\qr ");
    EXPECT_EQ(paragraphWords("small-caps; all-caps; superscript; letter-spacing: 1pt"),
              "\\s100\\scaps\\caps\\super\\expndtw20 ");
    EXPECT_EQ(paragraphWords("space-before: 3pt; space-after: 40; indent-left: 5mm"),
              "\\s100\\sb60\\sa40\\li283 ");
    EXPECT_EQ(paragraphWords("indent-right: 0.5in; first-line: -1cm; language: de-DE"),
              "\\s100\\ri720\\fi-567\\lang1031 ");
    EXPECT_EQ(paragraphWords("keep-with-next; keep-together"), "\\s100\\keepn\\keep ");
}

TEST_F(ExtendedStyleSheet, TurnsAFormatOffByTheWordNo) {
    EXPECT_EQ(
        paragraphWords("bold: no; italic: no; underline: no; subscript: no; keep-together: no"),
        "\\s100\\b0\\i0\\ulnone\\nosupersub\\keep0 ");
    EXPECT_EQ(paragraphWords("color: none; background: none; language: none"),
              "\\s100\\cf0\\cbpat0\\lang1024 ");
}

TEST_F(ExtendedStyleSheet, TakesLineHeightsAsMultiplesAndAsLengths) {
    EXPECT_EQ(paragraphWords("line-height: 1.2"), "\\s100\\sl288\\slmult1 ");
    EXPECT_EQ(paragraphWords("line-height: 14pt"), "\\s100\\sl-280\\slmult0 ");
}

TEST_F(ExtendedStyleSheet, TakesListsOfTabStops) {
    EXPECT_EQ(paragraphWords("tab-stops: 3cm, 8cm right dots, 12cm decimal, 100"),
              "\\s100\\tx1701\\tldot\\tqr\\tx4535\\tqdec\\tx6803\\tx100 ");
}

TEST_F(ExtendedStyleSheet, WritesRawControlWordsWithoutTheBlanksBetweenThem) {
    EXPECT_EQ(paragraphWords("bold; rtf: \\outl  \\fs23 \\cf3\n\\shad"),
              "\\s100\\b\\outl\\fs23\\cf3\\shad ");
}

TEST_F(ExtendedStyleSheet, ShadesCharactersInTheirOwnWay) {
    EXPECT_EQ(characterWords("background: yellow; bold"), "\\cs100\\chshdng0\\chcbpat37\\b ");
}

TEST_F(ExtendedStyleSheet, KeywordsAndWordsHaveNoCase) {
    EXPECT_EQ(paragraphWords("BOLD; Align: CENTER; Color: Dark-Red; SIZE: 10PT"),
              "\\s100\\b\\qc\\cf12\\fs20 ");
}

TEST_F(ExtendedStyleSheet, AddsColorsAndFontsThatNotEveryDocumentHas) {
    EXPECT_EQ(paragraphWords("font: \"Noto Sans\"; color: #1F4E79; background: #1f4e79"),
              "\\s100\\f18\\cf58\\cbpat58 ");
    EXPECT_EQ(paragraphWords("font: noto sans; color: #000000"), "\\s100\\f18\\cf3 ");
    EXPECT_EQ(paragraphWords("font: Trebuchet MS; color: #010203"), "\\s100\\f10\\cf59 ");
    EXPECT_THAT(tables.fonts().entries(), ElementsAre("{\\f18\\fnil\\fcharset0 Noto Sans;}"));
    EXPECT_THAT(tables.colors().list(), ElementsAre(RgbColor{0x1F, 0x4E, 0x79}, RgbColor{1, 2, 3}));
}

TEST_F(ExtendedStyleSheet, InheritsFormatsFromStylesBeforeAndAfter) {
    load(
        "{ name: total; style-def: paragraph; based-on: amount; bold }"
        "{ name: amount; style-def: paragraph; based-on: Normal; align: right; size: 9pt }"
        "{ name: normal; style-def: paragraph; font: Verdana; size: 10pt; italic }");

    EXPECT_EQ(table.GetParagraphStyle("normal"), "\\s0\\f11\\fs20\\i ");
    EXPECT_EQ(table.GetParagraphStyle("amount"), "\\s101\\f11\\i\\qr\\fs18 ");
    EXPECT_EQ(table.GetParagraphStyle("total"), "\\s100\\f11\\i\\qr\\fs18\\b ");
}

TEST_F(ExtendedStyleSheet, AnItemOfOneGroupReplacesTheOtherOneThatIsInherited) {
    load(
        "{ name: a; style-def: character; superscript; rtf: \\outl }"
        "{ name: b; style-def: character; based-on: a; subscript; rtf: \\shad }");

    EXPECT_EQ(table.GetCharacterStyle("b"), "\\cs101\\sub\\shad ");
}

TEST_F(ExtendedStyleSheet, NumbersCharacterStylesAfterParagraphStyles) {
    load(
        "{ name: strong; style-def: character; bold }"
        "{ name: title, heading; style-def: paragraph; size: 14pt }"
        "{ name: em; style-def: cs; based-on: strong; italic }"
        "{ name: body; style-def: s }");

    EXPECT_EQ(table.GetParagraphStyle("title"), "\\s100\\fs28 ");
    EXPECT_EQ(table.GetParagraphStyle("heading"), "\\s101\\fs28 ");
    EXPECT_EQ(table.GetParagraphStyle("body"), "\\s102 ");
    EXPECT_EQ(table.GetCharacterStyle("strong"), "\\cs103\\b ");
    EXPECT_EQ(table.GetCharacterStyle("em"), "\\cs104\\b\\i ");
}

TEST_F(ExtendedStyleSheet, ListsTheStylesWithTheirNumbersAndReferences) {
    load(
        "{ name: normal; style-def: paragraph; size: 10pt }\n"
        "{ name: Title; style-def: paragraph; based-on: normal; next: normal; bold }\n"
        "{ name: N\u00E1zev \u0159; style-def: paragraph; next: title }\n"
        "{ name: Strong; style-def: character; bold }\n"
        "{ name: em; style-def: character; based-on: strong; italic }\n"
        "{ name: shaded; style-def: cell; background: silver }\n");

    EXPECT_EQ(group(),
              "\r\n{\\stylesheet"
              "\r\n{\\s0 \\fs20 normal;}"
              "\r\n{\\s101 \\fs20\\b \\sbasedon0 \\snext0 Title;}"
              "\r\n{\\s102 \\snext101 N\u00E1zev \\uc1\\u345?;}"
              "\r\n{\\*\\cs103 \\additive \\b Strong;}"
              "\r\n{\\*\\cs104 \\additive \\sbasedon103 \\b\\i em;}}");
}

TEST_F(ExtendedStyleSheet, GivesTheFormatOfNormalToUnknownParagraphStyles) {
    load("{ name: other; style-def: s; bold } { name: normal; style-def: s; italic }");
    EXPECT_EQ(table.GetParagraphStyle("nosuch"), "\\s0\\i ");
    EXPECT_EQ(table.GetParagraphStyle(""), "\\s0\\i ");

    load("{ name: other; style-def: s; bold }");
    EXPECT_EQ(table.GetParagraphStyle("nosuch"), "");
}

TEST_F(ExtendedStyleSheet, GivesCellsTheirBackgrounds) {
    load(
        "{ name: shaded; style-def: cell; background: silver }"
        "{ name: blue; style-def: cell; background: #1f4e79 }"
        "{ name: bluer; style-def: cell; based-on: blue }"
        "{ name: plain; style-def: cell; background: none }");

    EXPECT_EQ(table.getCellStyleBackColor("shaded"), 32);
    EXPECT_EQ(table.getCellStyleBackColor("Blue"), 58);
    EXPECT_EQ(table.getCellStyleBackColor("bluer"), 58);
    EXPECT_EQ(table.getCellStyleBackColor("plain"), 0);
}

TEST_F(ExtendedStyleSheet, LooksNamesUpInAnyCase) {
    load("{ name: \u00DCberschrift 1; style-def: s; bold }");

    EXPECT_EQ(table.GetParagraphStyle("\u00FCBERSCHRIFT 1"), "\\s100\\b ");
}

TEST_F(ExtendedStyleSheet, ReadsFilesAsUtf8) {
    platform.files["style.rtfss"] =
        "\xEF\xBB\xBF; quorvane 2\r\n{ name: \xC5\x99\xC3\xA1"
        "dek; style-def: s; bold }";
    table.setStyleSheetFile("style.rtfss");

    EXPECT_EQ(table.GetParagraphStyle("\u0159\u00E1dek"), "\\s100\\b ");
}

TEST_F(ExtendedStyleSheet, PassesOverCommentsWithWhateverTheyHold) {
    load(
        "  ; a { and a } and another {\n"
        "{ name: a; style-def: s }\n"
        "; { name: b; style-def: s }\r\n"
        ";\r{ name: c; style-def: s }");

    EXPECT_TRUE(table.IsStyleDefined("a"));
    EXPECT_FALSE(table.IsStyleDefined("b"));
    EXPECT_TRUE(table.IsStyleDefined("c"));
}

TEST_F(ExtendedStyleSheet, IsReadOnlyWithItsFirstLine) {
    const std::string original = "{ name: a; style-def: s; format: \\b }";
    table.loadStyleSheetFromMemory("\n; quorvane 2\n" + original);
    EXPECT_EQ(table.GetParagraphStyle("a"), "\\s100\\b ");

    EXPECT_THROW(table.loadStyleSheetFromMemory("\t;quorvane 2 \r\n" + original), RtfError);
}

TEST_F(ExtendedStyleSheet, IsReadInTheOriginalLanguageUntilItIsAccepted) {
    table.setExtendedTables(nullptr);
    load("{ name: a; style-def: s; format: \\b }");

    EXPECT_EQ(table.GetParagraphStyle("a"), "\\s100\\b ");
}

/// The violations of styles that stand after the first line: the marked part and the message.
std::vector<std::string> violationsOf(std::string_view styles) {
    std::vector<std::string> violations;
    const std::string text = "; quorvane 2\n" + std::string(styles);
    readExtendedStyleSheet(text, [&](const ExtendedViolation& violation) {
        violations.push_back(std::string(violation.part) + "|" + violation.message);
    });
    return violations;
}

/// Those of the items of a paragraph style.
std::vector<std::string> violationsIn(std::string_view items) {
    return violationsOf("{ name: x; style-def: paragraph; " + std::string(items) + " }");
}

TEST(ExtendedViolations, AreBracesThatAreNotPairs) {
    EXPECT_THAT(violationsOf("{ name: a; style-def: s } }"),
                ElementsAre("}|This } is not one of a pair."));
    EXPECT_THAT(violationsOf("{ name: a; style-def: s"),
                ElementsAre("{|This { is not one of a pair."));
    EXPECT_THAT(violationsOf("{ name: a; style-def: s { name: b; style-def: s }"),
                ElementsAre("{|This { is not one of a pair."));
}

TEST(ExtendedViolations, AreTextsOutsideTheBraces) {
    EXPECT_THAT(violationsOf("name: a\n{ name: a; style-def: s }; { name: b; style-def: s } "),
                ElementsAre("name: a|Outside the braces there can only be comments.",
                            ";|Outside the braces there can only be comments."));
}

TEST(ExtendedViolations, AreNamesThatAreMissingOrNotNames) {
    EXPECT_THAT(violationsOf("{ style-def: s; name: a }"),
                ElementsAre("style-def: s|A style begins with its name.",
                            "name|name is not a keyword of a style."));
    EXPECT_THAT(violationsOf("{ }"), ElementsAre("{|A style begins with its name."));
    EXPECT_THAT(violationsOf("{ name: -st, a<b, ; style-def: s }"),
                ElementsAre("-st|-st cannot be the name of a style.",
                            "a<b|a<b cannot be the name of a style.",
                            "name|An empty text cannot be the name of a style."));
}

TEST(ExtendedViolations, AreNoneInANameThatBeginsWithADigit) {
    EXPECT_THAT(violationsOf("{ name: 12, 1.5, 1st; style-def: s }"), ElementsAre());
}

TEST(ExtendedViolations, AreKindsThatAreMissingOrNotKinds) {
    EXPECT_THAT(violationsOf("{ name: a; bold }"),
                ElementsAre("a|The style a does not say what it is for."));
    EXPECT_THAT(violationsOf("{ name: a; style-def: table }"),
                ElementsAre("table|table is not a kind of style."));
}

TEST(ExtendedViolations, AreStylesThatAreDefinedTwice) {
    EXPECT_THAT(violationsOf("{ name: a; style-def: s }\r\n"
                             "{ name: a; style-def: cs }\r\n"
                             "{ name: A; style-def: s }"),
                ElementsAre("A|The paragraph style A is defined already, on line 2."));
}

TEST(ExtendedViolations, AreUnknownKeywords) {
    EXPECT_THAT(violationsIn("fnt: Arial"), ElementsAre("fnt|fnt is not a keyword of a style."));
    EXPECT_THAT(violationsIn("format: \\b"),
                ElementsAre("format|format is not a keyword of a style."));
}

TEST(ExtendedViolations, AreMissingSemicolons) {
    EXPECT_THAT(violationsIn("font: Arial size: 11pt"),
                ElementsAre("size|There is no ; before size."));
    EXPECT_THAT(violationsIn("size: 11pt\nbold"), ElementsAre("bold|There is no ; before bold."));
    EXPECT_THAT(violationsIn("bold italic"), ElementsAre("italic|There is no ; before italic."));
    EXPECT_THAT(violationsIn("font: Arial bold"), ElementsAre("bold|There is no ; before bold."));
    EXPECT_THAT(violationsOf("{ name: a style-def: s; bold }"),
                ElementsAre("style-def|There is no ; before style-def."));
    EXPECT_THAT(violationsIn("font: \"Arial bold\""), IsEmpty());
}

TEST(ExtendedViolations, AreItemsThatSetWhatAnotherOneHasSet) {
    EXPECT_THAT(violationsIn("bold; bold: no"), ElementsAre("bold|The style sets bold already."));
    EXPECT_THAT(violationsIn("superscript; subscript"),
                ElementsAre("subscript|The style sets superscript already."));
    EXPECT_THAT(violationsIn("style-def: cs"),
                ElementsAre("style-def|The style sets style-def already."));
}

TEST(ExtendedViolations, AreItemsThatTheKindCannotHave) {
    EXPECT_THAT(violationsOf("{ name: a; style-def: cs; align: left; next: a }"),
                ElementsAre("align|A character style cannot have align.",
                            "next|A character style cannot have next."));
    EXPECT_THAT(violationsOf("{ name: a; style-def: cell; bold }"),
                ElementsAre("bold|A cell style cannot have bold."));
}

TEST(ExtendedViolations, AreValuesThatAreMissingOrNotValid) {
    EXPECT_THAT(violationsIn("font; size:"),
                ElementsAre("font|font has no value.", "size|size has no value."));
    for (const std::string_view item :
         {"size: 11",           "size: 0.4pt",       "size: 2000pt",        "size: big",
          "size: nan pt",       "bold: maybe",       "align: middle",       "color: blu",
          "color: #12345",      "color: #12345g",    "color: #1234567",     "space-before: -1pt",
          "space-before: 23in", "space-before: 3px", "space-before: 1,5cm", "indent-left: 1e300",
          "line-height: 0",     "line-height: 21",   "line-height: -1cm",   "line-height: 0pt",
          "language: german",   "tab-stops: 3cm up", "tab-stops: 3cm,",     "tab-stops: right",
          "rtf: bold",          "rtf: \\b x",        "rtf: \\nosuchword",   "rtf: \\par",
          "rtf: \\cell",        "rtf: \\*\\b",       "rtf: \\'e9",          "rtf: \\f18",
          "rtf: \\cf58",        "rtf: \\bin3",       "rtf: \\plain",        "rtf: \\fonttbl",
          "font: a, b",         "font: a\\b",        "font: \"\""}) {
        const std::size_t colon = item.find(": ");
        EXPECT_THAT(violationsIn(item),
                    ElementsAre(std::string(item.substr(colon + 2)) + "|" +
                                std::string(item.substr(colon + 2)) + " is not a valid value for " +
                                std::string(item.substr(0, colon)) + "."))
            << item;
    }
}

TEST(ExtendedViolations, AreReferencesToStylesThatDoNotExist) {
    EXPECT_THAT(violationsOf("{ name: a; style-def: s; based-on: strong; next: b }"
                             "{ name: strong; style-def: cs }"),
                ElementsAre("strong|There is no paragraph style strong.",
                            "b|There is no paragraph style b."));
}

TEST(ExtendedViolations, AreStylesThatAreBasedOnThemselves) {
    EXPECT_THAT(violationsOf("{ name: a; style-def: s; based-on: A }"),
                ElementsAre("A|The style a is based on itself."));
    EXPECT_THAT(violationsOf("{ name: a; style-def: s; based-on: b }"
                             "{ name: b; style-def: s; based-on: c }"
                             "{ name: c; style-def: s; based-on: a }"),
                ElementsAre("a|The style a is based on itself."));
}

TEST(ExtendedViolations, AreBytesThatAreNotUtf8AndControlCharacters) {
    EXPECT_THAT(violationsOf("; \xE9\n"), ElementsAre("\xE9|Byte E9 is not UTF-8."));
    EXPECT_THAT(violationsOf(";\x07"),
                ElementsAre("\x07|No document can show the control character U+0007."));
}

TEST(ExtendedViolations, AreNeitherEmptyItemsNorEmptySheets) {
    EXPECT_THAT(violationsIn(";; bold;"), IsEmpty());
    EXPECT_THAT(violationsOf(""), IsEmpty());
}

TEST_F(ExtendedStyleSheet, RaisesTheFirstViolationWithItsLine) {
    try {
        load("{ name: a; style-def: s;\n  bald }\n{");
        FAIL();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 445);
        EXPECT_EQ(error.description, "Line 3: bald is not a keyword of a style.");
        EXPECT_EQ(error.line, 3);
    }
    EXPECT_FALSE(table.StyleSheetOk());
    EXPECT_FALSE(table.IsStyleDefined("a"));
}

TEST_F(ExtendedStyleSheet, AddsNoColorOrFontOfASheetWithAViolation) {
    EXPECT_THROW(load("{ name: a; style-def: s; color: #123456; font: Noto; bald }"), RtfError);

    EXPECT_THAT(tables.colors().list(), IsEmpty());
    EXPECT_THAT(tables.fonts().entries(), IsEmpty());
}

TEST_F(ExtendedStyleSheet, InheritsOverManySteps) {
    std::string sheet = "{ name: s0; style-def: s; bold }";
    for (int i = 1; i <= 20'000; ++i) {
        sheet += "{ name: s" + std::to_string(i) + "; style-def: s; based-on: s" +
                 std::to_string(i - 1) + " }";
    }
    load(sheet);

    EXPECT_EQ(table.GetParagraphStyle("s20000"), "\\s20100\\b ");
}

}  // namespace
}  // namespace quorvane
