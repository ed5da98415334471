// What is found about descriptions together with their stylesheet.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string line(const Diagnostic& diagnostic) {
    return std::to_string(diagnostic.place.line) + " " +
           std::string(diagnosticRule(diagnostic.id).identifier) +
           (diagnostic.hint.empty() ? "" : ": " + diagnostic.hint);
}

std::vector<std::string> lines(const std::vector<Diagnostic>& diagnostics) {
    std::vector<std::string> list;
    for (const Diagnostic& diagnostic : diagnostics) {
        list.push_back(line(diagnostic));
    }
    return list;
}

/// What is found about a description, each as its line, its identifier and its hint.
std::vector<std::string> found(const std::string& description, const std::string& styleSheet) {
    KnownStyles styles(styleSheet);
    EXPECT_EQ(styles.soundText(), styleSheet);
    return lines(checkDescription(description, &styles));
}

constexpr const char* plainSheet =
    "{ name: reserved; style-def: s; format: \\fs20 }\n"
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: label; style-def: cs; format: \\b }\n";

TEST(StyleDiagnostics, SayOfWhichKindAStyleIs) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(pt=a)\n(ps=label)\np)\nc)\nr)\ndoc)\n", plainSheet),
                ElementsAre("6 unknown-paragraph-style: label is a character style"));
}

TEST(StyleDiagnostics, TakeNoLonelyAngleForAnInlineStyle) {
    EXPECT_THAT(
        found("(doc\n(r\n(c\n(p\n(pt=a < b <> <1=c> <label=d>)\n(ps=normal)\np)\nc)\nr)\ndoc)\n",
              plainSheet),
        IsEmpty());
}

TEST(StyleDiagnostics, WarnOfSharedNumbersInTheFirstAndTheLastParagraphOfACell) {
    constexpr const char* shared =
        "(doc\n(r\n(c\n"
        "(p\n(pt=a)\n(ps=reserved)\np)\n"
        "(p\n(pt=b)\n(ps=reserved)\np)\n"
        "(p\n(pt=c)\n(ps=reserved)\np)\n"
        "c)\n(c\n(p\n(pt=d)\n(ps=reserved)\np)\nc)\nr)\ndoc)\n";
    EXPECT_THAT(found(shared, plainSheet),
                ElementsAre("6 shared-style-number", "14 shared-style-number"));
}

TEST(StyleDiagnostics, WarnOfNoSharedNumberWhereNoTextIsWritten) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(ps=reserved)\np)\nc)\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n",
                      plainSheet),
                Not(Contains(HasSubstr("shared-style-number"))));
}

TEST(StyleDiagnostics, TakeTheColorOfATextFromItsStyle) {
    constexpr const char* dark = "{ name: normal; style-def: s; format: \\cf3\\fs20\\cf24 }\n";
    constexpr const char* light = "{ name: normal; style-def: s; format: \\cf3\\fs20\\cf21 }\n";
    constexpr const char* description =
        "(doc\n(r\n(c\n(cb=light-yellow)\n(p\n(pt=a)\n(ps=normal)\np)\nc)\nr)\ndoc)\n";

    EXPECT_THAT(found(description, dark), IsEmpty());
    EXPECT_THAT(found(description, light), ElementsAre("6 low-contrast"));
}

/// A description of one cell, which has these lines and a paragraph with the text.
std::string cellWith(const std::string& cellLines, const std::string& text) {
    return "(doc\n(r\n(c\n" + cellLines + "(p\n(pt=" + text + ")\np)\nc)\nr)\ndoc)\n";
}

TEST(StyleDiagnostics, KnowThatTextBecomesWhiteInACellThatIsDarkByItsStyle) {
    constexpr const char* sheet =
        "{ name: normal; style-def: s; format: \\cf3 }\n"
        "{ name: dark; style-def: cell; format: navy-blue }\n"
        "{ name: light; style-def: cell; format: light-yellow }\n";
    EXPECT_THAT(found(cellWith("(cs=dark)\n", "a"), sheet), IsEmpty());
    EXPECT_THAT(found(cellWith("(cs=dark)\n", "{\\cf3 a}"), sheet), ElementsAre("6 low-contrast"));
    EXPECT_THAT(found(cellWith("(cs=light)\n", "a"), sheet), IsEmpty());
    EXPECT_THAT(found(cellWith("(cs=light)\n", "{\\cf36 a}"), sheet),
                ElementsAre("6 low-contrast"));
}

TEST(StyleDiagnostics, TakeTheColorOfACellForThatOfItsStyleWhereBothAreGiven) {
    constexpr const char* sheet =
        "{ name: normal; style-def: s; format: \\cf3 }\n"
        "{ name: dark; style-def: cell; format: navy-blue }\n";
    EXPECT_THAT(found(cellWith("(cb=light-yellow)\n(cs=dark)\n", "{\\cf36 a}"), sheet),
                ElementsAre("7 low-contrast"));
}

TEST(StyleDiagnostics, ReportTenPairsOfColorsOfAParagraph) {
    std::string text;
    for (const int color : {2, 20, 21, 22, 27, 28, 33, 35, 36, 37, 6, 1}) {
        text += "{\\cf" + std::to_string(color) + " a}";
    }
    EXPECT_THAT(found(cellWith("", text), plainSheet), testing::SizeIs(10));
    EXPECT_THAT(found(cellWith("", "{\\cf36 a}{\\cf37 b}{\\cf36 c}"), plainSheet),
                testing::SizeIs(2));
}

TEST(StyleDiagnostics, SayWhatBecomesOfAParagraphWithoutAnyParagraphStyle) {
    KnownStyles styles("{ name: label; style-def: cs; format: \\b }\n");
    const std::vector<Diagnostic> diagnostics =
        checkDescription("(doc\n(r\n(c\n(p\n(pt=a)\n(ps=label)\np)\nc)\nr)\ndoc)\n", &styles);
    ASSERT_EQ(diagnostics.size(), 1u);
    EXPECT_EQ(diagnostics[0].message,
              "The stylesheet has no paragraph style label; the paragraph gets no format.");
    EXPECT_EQ(diagnostics[0].hint, "label is a character style");
}

TEST(StyleDiagnostics, NameNoStyleForOneThatIsMissingAmongTooMany) {
    std::string sheet;
    for (int i = 0; i < 2000; ++i) {
        sheet += "{ name: style" + std::to_string(i) + "; style-def: s; format: \\b }\n";
    }
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(pt=a)\n(ps=stile7)\np)\nc)\nr)\ndoc)\n", sheet),
                ElementsAre("6 unknown-paragraph-style"));
}

TEST(StyleDiagnostics, TakeAnEmptyNameForNoStyle) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(cs=)\n(p\n(pt=a)\n(ps=)\np)\nc)\nr)\ndoc)\n", plainSheet),
                IsEmpty());
}

TEST(StyleDiagnostics, TakeAStyleForUsedThatFollowsAnother) {
    const KnownStyles styles(
        "{ name: normal; style-def: s; next: Body }\n"
        "{ name: body; style-def: s }\n"
        "{ name: lonely; style-def: s }\n"
        "{ name: body; style-def: cell }\n");

    EXPECT_THAT(lines(findUnusedStyles(styles)), ElementsAre("3 unused-style", "4 unused-style"));
}

TEST(StyleDiagnostics, TakeAStyleForUsedThatAnotherOneIsBasedOn) {
    const KnownStyles styles(
        "{ name: normal; style-def: s; format: \\fs20 }\n"
        "{ name: base; style-def: s; format: \\fs20 }\n"
        "{ name: lonely; style-def: s; format: \\fs20 }\n"
        "{ name: based; style-def: s; format: \\fs30; based-on: Base }\n");

    EXPECT_THAT(lines(findUnusedStyles(styles)), ElementsAre("3 unused-style", "4 unused-style"));
}

TEST(StyleDiagnostics, KnowTheKindThatWasMeant) {
    EXPECT_THAT(lines(checkStyleSheet("{ name: a; style-def: character; format: \\b }\n")),
                Contains(HasSubstr("write cs for a character style")));
    EXPECT_THAT(lines(checkStyleSheet("{ name: a; style-def: paragraph; format: \\b }\n")),
                Contains(HasSubstr("write s for a paragraph style")));
}

/// What is found about the format of a paragraph style.
std::vector<std::string> foundInFormat(const std::string& format) {
    return lines(checkStyleSheet("{ name: a; style-def: s; format: " + format + " }\n"));
}

TEST(StyleDiagnostics, WarnOfTextInAFormat) {
    EXPECT_THAT(foundInFormat("fs20 b"), ElementsAre("1 format-text: did you mean \\fs20\\b?"));
    EXPECT_THAT(foundInFormat("/fs20"), ElementsAre("1 format-text: did you mean \\fs20?"));
    EXPECT_THAT(foundInFormat("\\b FS20"), ElementsAre("1 format-text: did you mean \\fs20?"));
    EXPECT_THAT(foundInFormat("Arial 10pt bold"),
                ElementsAre("1 format-text: a format consists of control words, such as "
                            "\\fs20\\b"));
    EXPECT_THAT(foundInFormat("\\fs 20"),
                ElementsAre("1 format-text: remove the blank before the number: \\fs20"));
    EXPECT_THAT(foundInFormat("\\fs20.5"),
                ElementsAre("1 format-text: the number of a control word must be a whole number"));
    EXPECT_THAT(foundInFormat("\\fs20 .5."), Contains(HasSubstr("must be a whole number")));
    EXPECT_THAT(foundInFormat("\\fs20 .x"),
                ElementsAre("1 format-text: a format consists of control words, such as "
                            "\\fs20\\b"));
    EXPECT_THAT(foundInFormat("\\cf reddish"),
                ElementsAre("1 format-text: a format consists of control words, such as "
                            "\\fs20\\b"));
    EXPECT_THAT(foundInFormat("\\fs20pt"),
                ElementsAre("1 format-text: write the size in half points, without a unit: "
                            "\\fs20 is 10 points"));
    EXPECT_THAT(foundInFormat("\\li20pt"),
                ElementsAre("1 format-text: write the number without a unit"));
    EXPECT_THAT(foundInFormat("\\fs20, \\b"),
                ElementsAre("1 format-text: remove the comma between the control words"));
    EXPECT_THAT(foundInFormat("\\cf red"),
                ElementsAre("1 format-text: did you mean \\cf" +
                            std::to_string(CRtfGrpColorTable::colorNumber("red")) + "?"));
}

TEST(StyleDiagnostics, KnowTheNumberOfAColorOfTwoWords) {
    EXPECT_THAT(foundInFormat("\\highlight Dark Red"),
                ElementsAre("1 format-text: did you mean \\highlight" +
                            std::to_string(CRtfGrpColorTable::colorNumber("dark-red")) + "?"));
}

TEST(StyleDiagnostics, MarkTheTextInAFormat) {
    const std::vector<Diagnostic> diagnostics =
        checkStyleSheet("{ name: a; style-def: s; format: \\fs20 Arial 10 \\b }\n");
    ASSERT_EQ(diagnostics.size(), 1u);
    EXPECT_EQ(diagnostics[0].message,
              "Arial 10 is not a control word; it will appear as text wherever the style is used.");
    EXPECT_EQ(diagnostics[0].place.column, 40);
    EXPECT_EQ(diagnostics[0].place.length, 8);
}

TEST(StyleDiagnostics, WarnOfNoTextInAFormatOfControlWords) {
    for (const char* format : {"\\fs20\\b", "\\fs20 \\b", "\\fs20", ""}) {
        EXPECT_THAT(foundInFormat(format), IsEmpty()) << format;
    }
    EXPECT_THAT(lines(checkStyleSheet("{ name: a; style-def: cell; format: silver }\n")),
                IsEmpty());
}

TEST(StyleDiagnostics, KnowItemsWithoutTheirSeparators) {
    EXPECT_THAT(lines(checkStyleSheet("{ name: n, style-def: s, format: \\b }\n")),
                Contains("1 no-style-kind: write a ; before "
                         "style-def"));
    EXPECT_THAT(lines(checkStyleSheet("{ name: n; style-def: s\n format: \\b }\n")),
                ElementsAre("1 bad-style-kind: write a ; before "
                            "format"));
    EXPECT_THAT(lines(checkStyleSheet("{ name: n; style-def: s; additive: yes next: n }\n")),
                ElementsAre("1 bad-additive: write a ; before "
                            "next"));
}

TEST(StyleDiagnostics, KnowKeywordsWithoutTheirColon) {
    EXPECT_THAT(
        lines(checkStyleSheet("{ name: n; style-def = s; format \\b }\n")),
        ElementsAre("1 no-style-kind", "1 bad-keyword: write a : after the keyword style-def",
                    "1 bad-keyword: write a : after the keyword format"));
}

TEST(StyleDiagnostics, WarnOfTextInTheWrittenPartsOfARecordString) {
    EXPECT_THAT(foundInFormat("^p\\fs20^f\\f3^v\\b^x some words"), IsEmpty());
    EXPECT_THAT(foundInFormat("^pfs20^f\\f3"), ElementsAre("1 format-text: did you mean \\fs20?"));
}

TEST(Diagnostics, WeighAsErrorOrAsWarning) {
    EXPECT_EQ(severityName(Severity::Error), "error");
    EXPECT_EQ(severityName(Severity::Warning), "warning");
}

}  // namespace
}  // namespace quorvane
