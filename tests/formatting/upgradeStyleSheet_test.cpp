#include "quorvane/formatting/upgradeStyleSheet.h"

#include <gmock/gmock.h>

#include <map>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/rtf/RtfControl.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/formatting/messagesOf.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string upgraded(const std::string& text) {
    const Upgrade upgrade = upgradedStyleSheet(text);
    EXPECT_THAT(messagesOf(upgrade.errors), IsEmpty());
    return upgrade.text;
}

/// What such a format becomes in the paragraph style "normal", on one line.
std::string itemsFor(const std::string& format) {
    const std::string begin = "; quorvane 2 { name: normal; style-def: paragraph; ";
    const std::string text =
        std::regex_replace(upgraded("{ name: normal; style-def: s; format: " + format + " }"),
                           std::regex("\\s+"), " ");
    EXPECT_TRUE(text.starts_with(begin)) << text;
    return text.substr(begin.size(), text.find(" }") - begin.size());
}

TEST(UpgradeStyleSheet, WritesFormatsInWords) {
    EXPECT_EQ(itemsFor("\\f0\\fs21\\b\\i\\cf3"),
              "font: Arial; size: 10.5pt; bold; italic; color: black");
    EXPECT_EQ(itemsFor("\\ul\\strike0\\super\\qr"),
              "underline; strike: no; superscript; align: right");
    EXPECT_EQ(itemsFor("\\sb60\\sa65\\li200\\fi-200\\cf0"),
              "space-before: 3pt; space-after: 3.25pt; indent-left: 10pt; first-line: -10pt; "
              "color: none");
    EXPECT_EQ(itemsFor("\\f10\\lang1031\\cbpat19"),
              "font: Trebuchet MS; language: de-DE; background: light-blue");
    EXPECT_EQ(itemsFor("\\sl360\\slmult1\\keepn"), "line-height: 1.5; keep-with-next");
    EXPECT_EQ(itemsFor("\\sl-240\\slmult0"), "line-height: 12pt");
    EXPECT_EQ(itemsFor("\\tx1300\\tqr\\tldot\\tx9000"), "tab-stops: 65pt, 450pt right dots");
}

TEST(UpgradeStyleSheet, LeavesOtherWordsRaw) {
    EXPECT_EQ(itemsFor("\\outl\\shad\\b"), "rtf: \\outl\\shad; bold");
    EXPECT_EQ(itemsFor("\\sl240\\f"), "rtf: \\sl240\\f");
    EXPECT_EQ(itemsFor("\\b1"), "rtf: \\b1");
}

TEST(UpgradeStyleSheet, LeavesAllWordsRawWhereTheirOrderMayCount) {
    EXPECT_EQ(itemsFor("\\uldash\\ul\\uldashd"), "rtf: \\uldash\\ul\\uldashd");
}

TEST(UpgradeStyleSheet, TakesTheLastOfWordsThatSetTheSame) {
    EXPECT_EQ(itemsFor("\\fs20\\b\\fs24\\b0"), "size: 12pt; bold: no");
}

TEST(UpgradeStyleSheet, WritesTheColorsOfCellStyles) {
    EXPECT_EQ(upgraded("{ name: a; style-def: cell; format: Light-Yellow }\n{ name: b }\n"
                       "{ name: c; style-def: cell; format: crimson }\n"),
              "; quorvane 2\n{ name: a; style-def: cell; background: light-yellow }\n"
              "{ name: b; style-def: cell; background: none }\n"
              "{ name: c; style-def: cell; background: none }\n");
}

TEST(UpgradeStyleSheet, KeepsTextOutsideTheBracesAsComments) {
    EXPECT_EQ(upgraded("Our styles.\n\n; quorvane: ignore color-contrast\n"
                       "{ name: normal; style-def: s; format: \\b } of all\n\n  The end\n"),
              "; quorvane 2\n; Our styles.\n\n; quorvane: ignore color-contrast\n"
              "{ name: normal; style-def: paragraph; bold }\n; of all\n\n; The end\n");
}

TEST(UpgradeStyleSheet, LetsStylesInherit) {
    EXPECT_EQ(upgraded("{ name: small; style-def: s; format: \\f0\\fs16\\b; based-on: normal; "
                       "next: Normal }\n"
                       "{ name: normal; style-def: s; format: \\f0\\fs20\\b; next: nosuch }\n"),
              "; quorvane 2\n"
              "{ name: small; style-def: paragraph; based-on: normal; next: normal; size: 8pt }\n"
              "{ name: normal; style-def: paragraph; font: Arial; size: 10pt; bold }\n");
}

TEST(UpgradeStyleSheet, UnsetsWhatWasNotInherited) {
    const Upgrade upgrade = upgradedStyleSheet(
        "{ name: normal; style-def: s; format: \\fs20\\b\\sb60 }\n"
        "{ name: a; style-def: s; format: \\fs20; based-on: normal }\n");
    EXPECT_EQ(upgrade.text,
              "; quorvane 2\n"
              "{ name: normal; style-def: paragraph; size: 10pt; bold; space-before: 3pt }\n"
              "{ name: a; style-def: paragraph; based-on: normal; bold: no; space-before: 0 }\n");
    EXPECT_THAT(messagesOf(upgrade.notes),
                ElementsAre("2: a does not set bold, which normal sets. Some word processors "
                            "inherited it; now none does",
                            "2: a does not set space-before, which normal sets. Some word "
                            "processors inherited it; now none does"));
}

TEST(UpgradeStyleSheet, LeavesAStyleAloneThatWouldInheritTooMuch) {
    EXPECT_EQ(upgraded("{ name: normal; style-def: s; format: \\f0\\b }\n"
                       "{ name: a; style-def: s; format: \\b; based-on: normal }\n"
                       "{ name: b; style-def: s; format: \\b; based-on: c }\n"
                       "{ name: c; style-def: s; format: \\b; based-on: b }\n"),
              "; quorvane 2\n{ name: normal; style-def: paragraph; font: Arial; bold }\n"
              "{ name: a; style-def: paragraph; bold }\n"
              "{ name: b; style-def: paragraph; based-on: c }\n"
              "{ name: c; style-def: paragraph; bold }\n");
}

TEST(UpgradeStyleSheet, LeavesOutWhatOnlyKeptNumbersFree) {
    EXPECT_EQ(upgraded("{ name: reserved; style-def: s; format: \\fs20 }\n"
                       "{ name: normal; style-def: s; format: \\fs20 }\n"
                       "{ name: reserved seat; style-def: s; format: \\fs20 }\n"
                       "{ name: strong; style-def: cs; format: \\b }\n"),
              "; quorvane 2\n{ name: normal; style-def: paragraph; size: 10pt }\n"
              "{ name: reserved seat; style-def: paragraph; size: 10pt }\n"
              "{ name: strong; style-def: character; bold }\n");
}

TEST(UpgradeStyleSheet, LeavesOutTheSecondStyleOfAName) {
    EXPECT_EQ(
        upgraded("{ name: normal, a; style-def: s }\n{ name: A, b; style-def: s }\n"
                 "{ name: A; style-def: cell }\n{ name: a; style-def: s; format: \\b }\n"),
        "; quorvane 2\n{ name: normal, a; style-def: paragraph }\n"
        "{ name: b; style-def: paragraph }\n{ name: A; style-def: cell; background: none }\n");
}

TEST(UpgradeStyleSheet, SaysThatParagraphsWithoutAStyleLookedLikeAnotherOne) {
    const std::string sheet = "\n{ name: body; style-def: s; format: \\fs22 }\n";
    EXPECT_THAT(messagesOf(upgradedStyleSheet(sheet).notes),
                ElementsAre("2: Paragraphs without a style looked like body, the first style. Now "
                            "they look like normal, so upgrade their descriptions with the "
                            "stylesheet"));
    EXPECT_EQ(styleInPlaceOfNone(sheet), "body");
    EXPECT_EQ(styleInPlaceOfNone(sheet + "{ name: normal; style-def: s; format: \\fs22 }"), "");
    EXPECT_EQ(styleInPlaceOfNone("; quorvane 2\n{ name: body; style-def: paragraph }"), "");
    EXPECT_EQ(styleInPlaceOfNone("{ name: a; style-def: cell }"), "");
    EXPECT_EQ(styleInPlaceOfNone("{{"), "");
}

TEST(UpgradeStyleSheet, RefusesWhatCannotStandInAFormat) {
    const Upgrade upgrade = upgradedStyleSheet(
        "{ name: a; style-def: s; format: \\b\\page }\n{ name: b; style-def: s; format: \\b  \\i "
        "}\n"
        "{ name: <c; style-def: s }\n{ name: d; style-def: cs; format: \\cf99 }\n");
    EXPECT_THAT(
        messagesOf(upgrade.errors),
        ElementsAre("1: The extended language cannot express this: \"\\page\" cannot stand in "
                    "a style; write control words that format text",
                    "2: The extended language cannot express this: \" \" cannot stand in a "
                    "style; it would show in every text of the style",
                    "4: The extended language cannot express this: \"\\cf99\" cannot stand in "
                    "a style; write control words that format text"));
    EXPECT_EQ(upgrade.text, "");
    EXPECT_THAT(
        messagesOf(upgradedStyleSheet("{ name: <c; style-def: s }").errors),
        ElementsAre(HasSubstr("1: The extended language cannot express this: <c cannot be the "
                              "name of a style")));
}

TEST(UpgradeStyleSheet, RefusesAStyleSheetWithErrors) {
    EXPECT_THAT(messagesOf(upgradedStyleSheet("{ name: a; style-def: s }\n{ nam: b }").errors),
                ElementsAre(HasSubstr("2: Error while processing stylesheet.")));
    EXPECT_THAT(messagesOf(upgradedStyleSheet("} { name: a {\n}").errors), Not(IsEmpty()));
}

TEST(UpgradeStyleSheet, LeavesAnExtendedStyleSheetAsItIs) {
    EXPECT_EQ(upgraded("; quorvane 2\n{ name: }"), "; quorvane 2\n{ name: }");
}

/// The last number of each control word of a style, after what a paragraph begins with.
std::map<std::string, std::string> formatOf(std::string_view words) {
    static const std::map<std::string, std::string> switches{
        {"b", "b"},           {"i", "i"},         {"ulnone", "ul"}, {"ul", "ul"},
        {"strike", "strike"}, {"super", "super"}, {"sub", "super"}, {"nosupersub", "super"},
        {"qc", "q"},          {"ql", "q"},        {"qr", "q"},      {"qj", "q"}};
    std::map<std::string, std::string> format;
    for (std::size_t at = words.find('\\'); at != std::string_view::npos;
         at = words.find('\\', at + 1)) {
        const RtfControl control = rtfControlAt(words, at);
        const std::string word(control.word);
        const auto known = switches.find(word);
        format[known == switches.end() ? word : known->second] =
            words.substr(at, control.shownLength);
    }
    // What unsets a format that a paragraph does not begin with, and the numbers of styles.
    for (const char* const neutral : {"\\b0", "\\i0", "\\ulnone", "\\strike0", "\\nosupersub",
                                      "\\ql", "\\cf0", "\\sb0", "\\sa0", "\\li0"}) {
        std::erase_if(format, [&](const auto& entry) { return entry.second == neutral; });
    }
    format.erase("s");
    format.erase("cs");
    return format;
}

TEST(UpgradeStyleSheet, KeepsTheFormatOfEveryStyle) {
    static const std::vector<std::string> words{
        "\\f0",   "\\f9",  "\\fs20",  "\\fs17",   "\\b",       "\\b0",    "\\i",    "\\ul",
        "\\cf3",  "\\cf0", "\\cf57",  "\\sb60",   "\\sa40",    "\\li200", "\\qr",   "\\ql",
        "\\outl", "\\sub", "\\super", "\\strike", "\\uldash ", "\\fs20 ", "\\lang7"};
    RandomDescriptions random(31);
    for (int i = 0; i < 300; ++i) {
        std::string sheet;
        for (const char* const name : {"normal", "a", "b", "c", "d"}) {
            sheet += std::string("{ name: ") + name + "; style-def: s; format: ";
            for (std::size_t count = random.below(6); count > 0; --count) {
                sheet += words[random.below(words.size())];
            }
            static const std::vector<std::string> bases{"", "; based-on: a", "; based-on: b",
                                                        "; based-on: normal"};
            sheet += bases[random.below(bases.size())] + " }\n";
        }
        FakePlatform platform;
        const Ref<CRtfDoc> before = CRtfDoc::create(platform);
        before->LoadStyleSheetFromMemmory(sheet);
        const Ref<CRtfDoc> after = CRtfDoc::create(platform);
        after->setExtendedStyleSheets(true);
        after->LoadStyleSheetFromMemmory(upgraded(sheet));
        for (const char* const name : {"normal", "a", "b", "c", "d"}) {
            ASSERT_EQ(formatOf(inner(*after).GetParagraphStyle(name)),
                      formatOf(inner(*before).GetParagraphStyle(name)))
                << sheet << upgraded(sheet);
        }
    }
}

TEST(UpgradeStyleSheet, MakesGoldenStyleSheetsThatAreValid) {
    int upgradedOnes = 0;
    for (const std::string& text : textsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfss")) {
        if (isMarkedExtended(text)) {
            continue;
        }
        const Upgrade upgrade = upgradedStyleSheet(text);
        for (const UpgradeRemark& error : upgrade.errors) {
            EXPECT_GT(error.line, 0) << error.message;
        }
        for (const Diagnostic& diagnostic : checkStyleSheet(upgrade.text)) {
            EXPECT_TRUE(!upgrade.errors.empty() || diagnostic.severity == Severity::Warning);
        }
        upgradedOnes += upgrade.errors.empty() ? 1 : 0;
    }
    EXPECT_GE(upgradedOnes, 4);
}

}  // namespace
}  // namespace quorvane
