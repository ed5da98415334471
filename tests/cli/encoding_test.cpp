// The built program reads descriptions and stylesheets in UTF-8 and in Windows-1252.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "quorvane/base/text/utf8.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/rtf/unicodeWords.h"
#include "tests/cli/ProgramTest.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string mark = "\xEF\xBB\xBF";

class Encodings : public ProgramTest {
protected:
    /// The document of a description with the text.
    std::string rendered(const std::string& bytes, std::vector<std::string> options = {}) {
        folder.write("a.rtfspec", bytes);
        options.insert(options.begin(), {"render", "a.rtfspec"});
        const ProgramResult result = run(options);
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.status, 0);
        return folder.read("a.rtf");
    }
};

TEST_F(Encodings, WritesWhatWindows1252LacksAsControlWords) {
    EXPECT_THAT(rendered(descriptionOf("Dvo\u0159\u00E1k \u4E2D\U0001F600 caf\u00E9 \u20AC")),
                HasSubstr("\\intbl Dvo{\\uc1\\u345?}\xE1k "
                          "{\\uc1\\u20013?\\u-10179?\\u-8704?} caf\xE9 \x80\\cell"));
}

TEST_F(Encodings, AreJudgedByTheBytes) {
    EXPECT_THAT(rendered(descriptionOf("\u0159")), HasSubstr("\\intbl {\\uc1\\u345?}\\cell"));
    EXPECT_THAT(rendered(mark + descriptionOf("\u0159")),
                HasSubstr("\\intbl {\\uc1\\u345?}\\cell"));
    EXPECT_THAT(rendered(descriptionOf("caf\u00E9")), HasSubstr("\\intbl caf\xE9\\cell"));
    EXPECT_THAT(rendered(descriptionOf("caf\xE9")), HasSubstr("\\intbl caf\xE9\\cell"));
    EXPECT_THAT(rendered(descriptionOf("\xE9 \u0159")), HasSubstr("\\intbl \xE9 \u0159\\cell"));
}

TEST_F(Encodings, AreThoseOfTheOption) {
    EXPECT_THAT(rendered(descriptionOf("\u0159"), {"--encoding", "windows-1252"}),
                HasSubstr("\\intbl \u0159\\cell"));
    EXPECT_THAT(rendered(descriptionOf("\u0159"), {"--encoding=utf-8"}),
                HasSubstr("\\intbl {\\uc1\\u345?}\\cell"));
    EXPECT_THAT(rendered(descriptionOf("caf\xE9"), {"--encoding=auto"}),
                HasSubstr("\\intbl caf\xE9\\cell"));
    const ProgramResult result = run({"render", "--encoding=latin1", "a.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("latin1"));
}

TEST_F(Encodings, MakeNoDifferenceForAscii) {
    const std::string description = descriptionOf("plain \\'e9 {\\uc1\\u345?} } \\");
    for (const std::string command : {"render", "check", "format"}) {
        std::vector<std::string> results;
        for (const std::string encoding : {"auto", "utf-8", "windows-1252"}) {
            folder.acceptBrokenDocuments();
            folder.write("a.rtfspec", description);
            const ProgramResult result = run({command, "--encoding", encoding, "a.rtfspec"});
            results.push_back(std::to_string(result.status) + result.output + result.errors +
                              folder.read("a.rtfspec") +
                              (folder.has("a.rtf") ? folder.read("a.rtf") : ""));
        }
        EXPECT_EQ(results[0], results[1]);
        EXPECT_EQ(results[0], results[2]);
    }
}

TEST_F(Encodings, AreReadFromStandardInput) {
    start.input = descriptionOf("\u0159");
    EXPECT_THAT(run({"render", "-"}).output, HasSubstr("\\intbl {\\uc1\\u345?}\\cell"));
    EXPECT_THAT(run({"render", "--encoding=windows-1252", "-"}).output,
                HasSubstr("\\intbl \u0159\\cell"));
    start.input = "(doc\n(r\n(c\n(p\n(pt=\u0159 })\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(run({"check", "--fix", "-"}).output,
              "(doc\n(r\n(c\n(p\n(pt=\u0159 \\})\np)\nc)\nr)\ndoc)\n");
    EXPECT_THAT(run({"format", "-"}).output, HasSubstr("(pt=\u0159 })\n"));
}

TEST_F(Encodings, AreThoseOfEachDescriptionInOneRun) {
    folder.write("a.rtfspec", descriptionOf("\u0159"));
    folder.write("b.rtfspec", descriptionOf("caf\xE9"));
    folder.write("c.rtfspec", descriptionOf("\u4E2D"));
    for (const std::string jobs : {"-j1", "-j2"}) {
        EXPECT_EQ(run({"render", jobs, "a.rtfspec", "b.rtfspec", "c.rtfspec"}).status, 0);
        EXPECT_THAT(folder.read("a.rtf"), HasSubstr("\\intbl {\\uc1\\u345?}\\cell"));
        EXPECT_THAT(folder.read("b.rtf"), HasSubstr("\\intbl caf\xE9\\cell"));
        EXPECT_THAT(folder.read("c.rtf"), HasSubstr("\\intbl {\\uc1\\u20013?}\\cell"));
    }
}

const std::string notUtf8 = "(doc\n; \u0159\xE9\n(r\n(c\nc)\nr)\ndoc)\n";

TEST_F(Encodings, ReportWhatIsNotUtf8) {
    folder.write("a.rtfspec", notUtf8);
    const std::string report =
        "a.rtfspec:2:4: error: The byte E9 in column 4 is not UTF-8. [not-utf-8]\n"
        "    ; \u0159\uFFFD\n"
        "       ^\n"
        "    hint: save the file in UTF-8, or use --encoding windows-1252 if it is in "
        "Windows-1252\n";
    const ProgramResult checked = run({"check", "--encoding=utf-8", "-q", "a.rtfspec"});
    EXPECT_EQ(checked.output, report);
    EXPECT_EQ(checked.status, 1);
    const ProgramResult result = run({"render", "--encoding=utf-8", "a.rtfspec"});
    EXPECT_EQ(result.errors, report);
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(Encodings, ReportWhatIsNotUtf8ToPrograms) {
    folder.write("a.rtfspec", notUtf8);
    const ProgramResult result =
        run({"render", "--encoding=utf-8", "--diagnostics=json", "a.rtfspec"});
    EXPECT_EQ(
        result.errors,
        R"({"file":"a.rtfspec","line":2,"number":5,"level":null,"source":null,"message":"The )"
        R"(byte E9 in column 4 is not UTF-8. [not-utf-8]","kind":"check"})"
        "\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(Encodings, DoNotFormatWhatIsNotUtf8) {
    folder.write("a.rtfspec", mark + notUtf8);
    const ProgramResult result = run({"format", "a.rtfspec"});
    EXPECT_EQ(result.errors,
              "a.rtfspec:2: The byte E9 in column 4 is not UTF-8; save the file in UTF-8, "
              "or use --encoding windows-1252 if it is in Windows-1252\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(folder.read("a.rtfspec"), mark + notUtf8);
}

TEST_F(Encodings, DoNotFixWhatIsNotUtf8) {
    folder.write("a.rtfspec", notUtf8);
    EXPECT_EQ(run({"check", "--fix", "--encoding=utf-8", "a.rtfspec"}).status, 1);
    EXPECT_EQ(folder.read("a.rtfspec"), notUtf8);
}

TEST_F(Encodings, CountColumnsInCharactersAndOffsetsInBytes) {
    folder.write("a.rtfspec",
                 mark + "(doc\n(r\n(c\n(p\n(pt=a\u00E9\u4E2D\U0001F600})\np)\nc)\nr)\ndoc)\n");
    EXPECT_EQ(run({"check", "-q", "a.rtfspec"}).output,
              "a.rtfspec:5:9: warning: Unmatched }. [unbalanced-brace]\n"
              "    (pt=a\u00E9\u4E2D\U0001F600})\n"
              "              ^\n"
              "    hint: write \\} for a literal brace\n");
    EXPECT_EQ(run({"check", "--diagnostics=json", "a.rtfspec"}).output,
              R"({"file":"a.rtfspec","line":5,"column":9,"length":1,"offset":31,)"
              R"("severity":"warning","identifier":"unbalanced-brace","message":"Unmatched }.",)"
              R"("hint":"write \\} for a literal brace",)"
              R"("fix":{"offset":31,"length":1,"replacement":"\\}"}})"
              "\n");
}

TEST_F(Encodings, AreKnownToTheLogForPrograms) {
    folder.write("a.rtfspec", mark + "(doc\n(r\n(c\n(p\n(pt=\U0001F600})\np)\nc)\nr)\ndoc)\n");
    folder.write("b.rtfspec", "(doc\n(r\n(c\n(p\n(pt=\xE9})\np)\nc)\nr)\ndoc)\n");
    std::string log = run({"check", "--diagnostics=sarif", "a.rtfspec", "b.rtfspec"}).output;
    std::erase_if(log, [](char character) { return character == ' ' || character == '\n'; });
    EXPECT_THAT(log,
                HasSubstr(R"("artifacts":[{"location":{"uri":"a.rtfspec","uriBaseId":"SRCROOT"},)"
                          R"("encoding":"utf-8"}],"results")"));
    EXPECT_THAT(log, HasSubstr(R"("startLine":5,"startColumn":6,"endLine":5,"endColumn":7,)"
                               R"("charOffset":19,"charLength":1)"));
}

TEST_F(Encodings, AreKeptByFixes) {
    const std::string text = "(pt=\u0159 \U0001F600 } \u00E9)\n";
    const std::string fixedText = "(pt=\u0159 \U0001F600 \\} \u00E9)\n";
    folder.write("a.rtfspec", mark + "(doc\n(r\n(c\n(p\n" + text + "p)\nc)\nr)\ndoc)\n");
    folder.write("b.rtfspec", "(doc\n(r\n(c\n(p\n(pt=\xE9 })\np)\nc)\nr)\ndoc)\n");
    EXPECT_EQ(run({"check", "--fix", "-q", "a.rtfspec", "b.rtfspec"}).status, 0);
    EXPECT_EQ(folder.read("a.rtfspec"),
              mark + "(doc\n(r\n(c\n(p\n" + fixedText + "p)\nc)\nr)\ndoc)\n");
    EXPECT_EQ(folder.read("b.rtfspec"), "(doc\n(r\n(c\n(p\n(pt=\xE9 \\})\np)\nc)\nr)\ndoc)\n");
}

TEST_F(Encodings, AreKeptByFormatting) {
    folder.write("a.rtfspec", mark + "(doc\n(r\n(c\n(p\n(pt= \u0159)\np)\nc)\nr)\ndoc)\n");
    folder.write("b.rtfspec", "(doc\n(r\n(c\n(p\n(pt= \xE9)\np)\nc)\nr)\ndoc)\n");
    folder.write("c.rtfss", "\u0159 {name:\u00E9;style-def:s}");
    EXPECT_EQ(run({"format", "a.rtfspec", "b.rtfspec", "c.rtfss"}).status, 0);
    EXPECT_EQ(folder.read("a.rtfspec"), mark +
                                            "(doc\n  (r\n    (c\n      (p\n        (pt=\u0159)\n"
                                            "      p)\n    c)\n  r)\ndoc)\n");
    EXPECT_EQ(folder.read("b.rtfspec"),
              "(doc\n  (r\n    (c\n      (p\n        (pt=\xE9)\n      p)\n    c)\n  r)\ndoc)\n");
    EXPECT_EQ(folder.read("c.rtfss"), "\u0159\n{ name: \u00E9; style-def: s }\n");
}

TEST_F(Encodings, LetAStyleHaveOneNameInBoth) {
    folder.write("a.rtfss", "{ name: caf\u00E9; style-def: s; format: \\fs20\\b }\n");
    folder.write("b.rtfspec", "(doc\n(r\n(c\n(p\n(pt=a)\n(ps=caf\xE9)\np)\nc)\nr)\ndoc)\n");
    EXPECT_EQ(run({"check", "-s", "a.rtfss", "b.rtfspec"}).status, 0);
    EXPECT_EQ(run({"render", "-s", "a.rtfss", "b.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("b.rtf"), HasSubstr("\\fs20\\b caf\xE9;}"));
    EXPECT_THAT(folder.read("b.rtf"), HasSubstr("\\fs20\\b a\\cell"));
}

TEST_F(Encodings, RefuseAStyleThatWindows1252CannotName) {
    folder.write("a.rtfss", "{ name: tu\u010Dn\u00E9; style-def: cs; format: \\b }\n");
    folder.write("b.rtfspec", descriptionOf("a"));
    const std::string report =
        "a.rtfss:1:11: error: \u010D isn't in Windows-1252; the definition of a style can't hold "
        "it. [unencodable-style]\n"
        "    { name: tu\u010Dn\u00E9; style-def: cs; format: \\b }\n"
        "              ^\n";
    EXPECT_EQ(run({"check", "-q", "a.rtfss"}).output, report);
    const ProgramResult result = run({"render", "-s", "a.rtfss", "b.rtfspec"});
    EXPECT_EQ(result.errors, report);
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(folder.has("b.rtf"));
    const ProgramResult json = run({"render", "--diagnostics=json", "-s", "a.rtfss", "b.rtfspec"});
    EXPECT_THAT(json.errors, HasSubstr("[unencodable-style]"));
    EXPECT_EQ(json.status, 1);
    EXPECT_EQ(run({"render", "--check", "-s", "a.rtfss", "b.rtfspec"}).errors, report);
}

TEST_F(Encodings, RefuseSuchAStyleEvenIfACommentIgnoresIt) {
    folder.write("a.rtfss",
                 "; quorvane: ignore unencodable-style\n{ name: \u010D; style-def: cs }\n");
    folder.write("b.rtfspec", descriptionOf("a"));
    const ProgramResult result = run({"render", "-s", "a.rtfss", "b.rtfspec"});
    EXPECT_THAT(result.errors, HasSubstr("a.rtfss:2:9: error: "));
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(folder.has("b.rtf"));
}

TEST_F(Encodings, LetAStylesheetHaveAnyCharacterBetweenItsDefinitions) {
    folder.write("a.rtfss", "; tu\u010Dn\u00E9\n{ name: bold; style-def: cs; format: \\b }\n");
    folder.write("b.rtfspec", descriptionOf("<bold=a>"));
    EXPECT_EQ(run({"check", "a.rtfss"}).status, 0);
    EXPECT_EQ(run({"render", "-s", "a.rtfss", "b.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("b.rtf"), HasSubstr("\\b a}\\cell"));
}

TEST_F(Encodings, ReportACharacterWithItsPlaceWhereADocumentCannotHoldIt) {
    folder.write("a.rtfspec",
                 "(doc\n(r\n(c\n(p\n(pt=\u0159 <tu\u010Dn=b>)\n(ps=\u4E2D\u4E2D)\np)\nc)\nr)\n"
                 "doc)\n");
    const ProgramResult result = run({"render", "a.rtfspec"});
    EXPECT_EQ(result.errors,
              "a.rtfspec:5:10: error: \u010D isn't in Windows-1252; only the text of a paragraph "
              "can hold it. [unencodable-value]\n"
              "    (pt=\u0159 <tu\u010Dn=b>)\n"
              "             ^\n"
              "    hint: this is the name of an inline style; write \\'3c for a literal <\n"
              "a.rtfspec:6:5: error: \u4E2D isn't in Windows-1252; only the text of a paragraph "
              "can hold it. [unencodable-value]\n"
              "    (ps=\u4E2D\u4E2D)\n"
              "        ^~\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(folder.has("a.rtf"));
}

/// A text of characters of every length, without those that mean something in a description or in
/// RTF.
std::string anyText(std::mt19937& random) {
    constexpr char32_t ends[] = {0x7F, 0x180, 0x800, 0xD800, 0x10000, 0x110000};
    constexpr char32_t begins[] = {'A', 0xA0, 0x180, 0x800, 0xE000, 0x10000};
    std::string text = "x";
    for (auto length = random() % 20; length > 0; --length) {
        const std::size_t plane = random() % std::size(ends);
        const auto code =
            static_cast<char32_t>(begins[plane] + random() % (ends[plane] - begins[plane]));
        appendUtf8(code == '\\' || code == '{' || code == '|' || code == '}' ? U'z' : code, text);
    }
    return text + "x";
}

TEST_F(Encodings, GiveTheDocumentOfTheModelForAnyTexts) {
    std::mt19937 random(7);
    std::string lines;
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->TableRows()->AddTail();
    document->TableRows()->Item(1)->TableCells()->AddTail();
    const Ref<CRtfTableCell> cell = document->TableRows()->Item(1)->TableCells()->Item(1);
    for (int i = 1; i <= 900; ++i) {
        const std::string text = anyText(random);
        lines += "(p\n(pt=" + text + ")\np)\n";
        cell->Paragraphs()->AddTail();
        cell->Paragraphs()->Item(i)->setText(withUnicodeWords(text));
    }
    document->Commit(folder / "model.rtf");
    EXPECT_EQ(rendered("(doc\n(r\n(c\n" + lines + "c)\nr)\ndoc)\n", {"--encoding=utf-8"}),
              folder.read("model.rtf"));
    EXPECT_THAT(folder.read("model.rtf"), Not(HasSubstr("x?")));
}

TEST_F(Encodings, KeepEveryByteOfTextsThatAreFormatted) {
    std::mt19937 random(8);
    std::string loose = mark + "(doc\n(r\n(c\n";
    std::string canonical = mark + "(doc\n  (r\n    (c\n";
    for (int i = 1; i <= 500; ++i) {
        const std::string text = anyText(random);
        loose += "(p\n(pt=" + text + ")\np)\n";
        canonical += "      (p\n        (pt=" + text + ")\n      p)\n";
    }
    folder.write("a.rtfspec", loose + "c)\nr)\ndoc)\n");
    EXPECT_EQ(run({"format", "a.rtfspec"}).status, 0);
    EXPECT_EQ(folder.read("a.rtfspec"), canonical + "    c)\n  r)\ndoc)\n");
}

}  // namespace
}  // namespace quorvane::cli
