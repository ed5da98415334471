#include "quorvane/diagnostics/text/rtfText.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The diagnostics about a text, each as its column, its identifier and its hint.
std::vector<std::string> found(const std::string& text, TextUse use = TextUse::Text) {
    std::vector<std::string> list;
    const SourceText source(text);
    DiagnosticEngine engine([&](const Diagnostic& diagnostic) {
        list.push_back(std::to_string(diagnostic.place.column) + " " +
                       std::string(diagnosticRule(diagnostic.id).identifier) +
                       (diagnostic.hint.empty() ? "" : ": " + diagnostic.hint));
    });
    findTextWarnings(source.text(), use, nullptr, source, engine);
    return list;
}

/// The messages of the diagnostics about a text.
std::vector<std::string> messages(const std::string& text) {
    std::vector<std::string> list;
    const SourceText source(text);
    DiagnosticEngine engine(
        [&](const Diagnostic& diagnostic) { list.push_back(diagnostic.message); });
    findTextWarnings(source.text(), TextUse::Text, nullptr, source, engine);
    return list;
}

/// The text of a paragraph with a field that is to do something.
std::string field(const std::string& instruction) {
    return "{\\field{\\*\\fldinst " + instruction + "}{\\fldrslt a}}";
}

constexpr const char* brokenNestedTable =
    ": a nested table needs complete rows, with a definition for each \\nestcell, and "
    "\\itap1 after them";

TEST(TextDiagnostics, KnowTheWordsOfOtherLanguagesForControlWords) {
    EXPECT_THAT(found("\\bold a"), ElementsAre("1 unknown-control-word: did you mean \\b? For a "
                                               "literal backslash, write \\\\"));
    EXPECT_THAT(found("\\NewLine a"), ElementsAre("1 unknown-control-word: did you mean \\line? "
                                                  "For a literal backslash, write \\\\"));
    EXPECT_THAT(found("\\nbsp a"), ElementsAre("1 unknown-control-word: did you mean \\~? For a "
                                               "literal backslash, write \\\\"));
    EXPECT_THAT(found("\\Centered", TextUse::Format),
                ElementsAre("1 unknown-control-word: did you mean \\qc?"));
}

TEST(TextDiagnostics, KnowControlWordsThatAreMisspelled) {
    EXPECT_THAT(found("\\highligth7 a"),
                ElementsAre("1 unknown-control-word: did you mean \\highlight? For a literal "
                            "backslash, write \\\\"));
    EXPECT_THAT(found("C:\\xyzzyx"),
                ElementsAre("3 unknown-control-word: write \\\\ for a literal backslash"));
}

TEST(TextDiagnostics, SayNothingOfANestedTableThatIsWhole) {
    const std::string row = "\\nestcell{\\*\\nesttableprops\\trowd\\cellx9\\nestrow}";
    EXPECT_THAT(found("\\itap2 a" + row + "\\itap1 b"), IsEmpty());
    EXPECT_THAT(found("\\itap2 a" + row + "\\pard\\intbl b"), IsEmpty());
    EXPECT_THAT(found("{\\footnote \\itap2 a\\nestcell}"), IsEmpty());
}

TEST(TextDiagnostics, ReportANestedTableWhoseRowsAreNotWhole) {
    // A cell without its definition, a row that does not end, and one without cells.
    EXPECT_THAT(found("\\itap2 a\\nestcell b\\nestcell{\\*\\nesttableprops\\trowd\\cellx9\\nestrow}"
                      "\\itap1 c"),
                ElementsAre(std::string("1 table-control") + brokenNestedTable,
                            std::string("9 table-control") + brokenNestedTable,
                            std::string("20 table-control") + brokenNestedTable,
                            std::string("60 table-control") + brokenNestedTable,
                            std::string("69 table-control") + brokenNestedTable));
    EXPECT_THAT(found("\\itap2 a{\\*\\nesttableprops\\trowd\\cellx9\\nestrow}\\itap1 b"),
                ElementsAre(std::string("1 table-control") + brokenNestedTable,
                            std::string("40 table-control") + brokenNestedTable,
                            std::string("49 table-control") + brokenNestedTable));
    EXPECT_THAT(found("a\\nestcell b"),
                ElementsAre(std::string("2 table-control") + brokenNestedTable));
    EXPECT_THAT(found("a\\nestrow b"),
                ElementsAre(std::string("2 table-control") + brokenNestedTable));
}

TEST(TextDiagnostics, ReportANestedTableThatIsNotLeft) {
    EXPECT_THAT(found("\\itap2 a"),
                ElementsAre(std::string("1 table-control") + brokenNestedTable));
}

TEST(TextDiagnostics, ReportTheBeginningOfADocument) {
    EXPECT_THAT(found("{\\rtf1{\\fonttbl}{\\colortbl}{\\stylesheet}a}"),
                ElementsAre("2 header-control", "8 header-control", "18 header-control",
                            "29 header-control"));
}

TEST(TextDiagnostics, ReportUnmatchedBraces) {
    EXPECT_THAT(found("a}b{"), ElementsAre("2 unbalanced-brace: write \\} for a literal brace",
                                           "4 unbalanced-brace: write \\{ for a literal brace"));
}

TEST(TextDiagnostics, SayNothingOfHyperlinksToPagesAndLetters) {
    for (const char* target : {"\"https://a.example/x\"", "http://a.example b", "\"MAILTO:a@b.c\"",
                               "\\\\l \"mark\"", "", "\"\""}) {
        EXPECT_THAT(found(field("HYPERLINK " + std::string(target))), IsEmpty()) << target;
    }
}

TEST(TextDiagnostics, ReportHyperlinksToFiles) {
    for (const char* target : {"\"c:\\\\a.exe\"", "c:\\\\a.exe", "\"file://a", "  \"ftp://a\" b"}) {
        EXPECT_THAT(messages(field("HYPERLINK " + std::string(target))),
                    ElementsAre("\\fldinst puts a link to a file into the document."))
            << target;
    }
}

TEST(TextDiagnostics, TakeTheCharactersOfAnInstructionAsReadersDo) {
    const std::vector<std::string> dde{"\\fldinst puts a link to a program into the document."};
    EXPECT_EQ(messages(field("\\'44\\'44\\'45 a")), dde);
    EXPECT_EQ(messages(field("\\uc0\\u68\\u68\\u69  a")), dde);
    EXPECT_EQ(messages(field("\\uc1\\u68?\\u68?\\u69? a")), dde);
    EXPECT_EQ(messages(field("D{\\b D}E a")), dde);
    EXPECT_THAT(messages(field("D{\\footnote x}DX a")), IsEmpty());
}

TEST(TextDiagnostics, LookForWhatAnInstructionDoesAtItsBeginning) {
    const std::string blanks(2000, ' ');
    EXPECT_THAT(messages(field("INCLUDETEXT " + blanks + "a")),
                ElementsAre("\\fldinst puts a link to a file into the document."));
    EXPECT_THAT(messages(field("PAGE " + blanks + "INCLUDETEXT a")), IsEmpty());
}

TEST(TextDiagnostics, SayNothingOfNumbersInWhatIsNotTheTextsOwn) {
    EXPECT_THAT(found("{\\footnote \\cf58 a}{\\*\\xe \\f18 b}"), IsEmpty());
    EXPECT_THAT(found("{\\field\\cf58 a}{b\\*\\cf58 c}"),
                ElementsAre("8 unknown-number", "20 unknown-number"));
}

TEST(TextDiagnostics, SuggestWhatToWriteForACharacterThatIsMisread) {
    // A file in UTF-8, read in Windows-1252.
    const std::string misread = "\xC3\x83\xC2\xA9";
    EXPECT_THAT(found(misread), ElementsAre("1 utf-8-text: save the file in Windows-1252, or write "
                                            "\\'e9"));
    EXPECT_THAT(found(misread, TextUse::Format).front(),
                "1 utf-8-text: save the file in Windows-1252, or write \\'e9");
    EXPECT_THAT(found(misread, TextUse::FieldData),
                ElementsAre("1 utf-8-text: save the file in Windows-1252"));
}

TEST(TextDiagnostics, SuggestWhatToWriteForACharacterThatTheCodePageLacks) {
    EXPECT_THAT(found("\xE2\x86\x92"),
                ElementsAre("1 unencodable-character: write {\\uc1\\u8594?}"));
    EXPECT_THAT(found("\xEF\xAC\x81"),
                ElementsAre("1 unencodable-character: write {\\uc1\\u-1279?}"));
    EXPECT_THAT(found("\xF0\x9F\x98\x80"),
                ElementsAre("1 unencodable-character: write {\\uc1\\u-10179?\\u-8704?}"));
    EXPECT_THAT(found("\xE2\x86\x92", TextUse::FieldData), ElementsAre("1 unencodable-character"));
}

TEST(TextDiagnostics, ReportControlCharacters) {
    EXPECT_THAT(messages("a\x01\xC2\x81"),
                ElementsAre("U+0001 is a control character and will not be printed.",
                            "U+0081 is a control character and will not be printed."));
    EXPECT_THAT(found("a\tb"), ElementsAre("2 control-character: write \\tab for a tab"));
    EXPECT_THAT(found("\xC2\x81", TextUse::FieldData), IsEmpty());
}

TEST(TextDiagnostics, ReportTextInWhatIsWrittenOfAFormat) {
    EXPECT_THAT(found("^pb^f\\f3^v\\b^x some words", TextUse::Format),
                ElementsAre("3 format-text: did you mean \\b?"));
    EXPECT_THAT(found("^", TextUse::Format), IsEmpty());
    EXPECT_THAT(found("^zb", TextUse::Format), IsEmpty());
}

TEST(TextDiagnostics, ReportTheFirstTenOfAKind) {
    EXPECT_EQ(found(std::string(12, '}')).size(), 10u);
}

}  // namespace
}  // namespace quorvane
