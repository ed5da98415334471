#include "quorvane/diagnostics/description/DescriptionCheck.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

/// The diagnostics, each as its line, its identifier and its hint.
std::vector<std::string> found(const std::string& text) {
    std::vector<std::string> list;
    for (const Diagnostic& diagnostic : checkDescription(text)) {
        list.push_back(std::to_string(diagnostic.place.line) + " " +
                       std::string(diagnosticRule(diagnostic.id).identifier) +
                       (diagnostic.hint.empty() ? "" : ": " + diagnostic.hint));
    }
    return list;
}

TEST(DescriptionCheck, ReportsOfProseOnlyThatItIsNotADescription) {
    EXPECT_THAT(found("Dear Sir,\nyours\n"),
                ElementsAre("1 wrong-file-type: a description begins with (doc and ends with "
                            "doc)"));
    EXPECT_THAT(found(""), ElementsAre("1 wrong-file-type: a description begins with (doc and ends "
                                       "with doc)"));
}

TEST(DescriptionCheck, KnowsTheMarkOfUtf8) {
    EXPECT_EQ(
        found("\xC3\xAF\xC2\xBB\xC2\xBF(doc\n(r\n(c\nc)\nr)\ndoc)\n").front(),
        "1 wrong-root: the file begins with a UTF-8 byte order mark; save it in Windows-1252");
}

TEST(DescriptionCheck, GoesOnAfterTheMarkOfUtf8) {
    for (const char* between : {"", "\n", "; mine\n", " "}) {
        const std::vector<std::string> diagnostics =
            found("\xC3\xAF\xC2\xBB\xC2\xBF" + std::string(between) +
                  "(doc\n(r\n(c\n(p\n(pt=a)\n(pa=centre)\np)\nc)\nr)\ndoc)\n");
        ASSERT_EQ(diagnostics.size(), 2U) << between;
        EXPECT_THAT(diagnostics[0],
                    StartsWith("1 wrong-root: the file begins with a UTF-8 byte order mark"));
        EXPECT_THAT(diagnostics[1], EndsWith(" wrong-alignment: did you mean centered?"));
    }
}

TEST(DescriptionCheck, ReportsEachCharacterThatBecomesAQuestionMark) {
    // A host's text, which is in UTF-8 and read as such.
    const std::vector<Diagnostic> diagnostics = checkDescription(
        "(doc\n(r\n(c\n(p\n(pt=\xE2\x86\x92\xE2\x86\x92)\np)\nc)\nr)\ndoc)\n", nullptr);
    ASSERT_EQ(diagnostics.size(), 2U);
    for (const Diagnostic& diagnostic : diagnostics) {
        EXPECT_EQ(diagnostic.message, "\xE2\x86\x92 is not in Windows-1252; it will appear as ?.");
    }
}

TEST(DescriptionCheck, NamesUtf16) {
    const std::string mark = "\xC3\xBF\xC3\xBE";
    const std::string doc("(\0d\0o\0c\0\n\0", 10);
    for (const std::string& text : {mark + doc, doc, '\0' + doc}) {
        EXPECT_THAT(
            found(text),
            ElementsAre("1 wrong-file-type: the file is in UTF-16; save it in Windows-1252"));
    }
}

TEST(DescriptionCheck, KnowsTheWaysOfOtherLanguages) {
    EXPECT_THAT(
        found("(doc\n(row)\n(cell)\n(paragraph\n(text=a)\n</para>\n(/cell)\nrow)\ndoc)\n"),
        ElementsAre("2 wrong-syntax: (row opens the node and row) closes it",
                    "3 wrong-syntax: (cell opens the node and cell) closes it",
                    "4 wrong-syntax: did you mean (para?",
                    "5 wrong-keyword: did you mean para-text?",
                    "6 wrong-syntax: did you mean para)?", "7 wrong-syntax: did you mean cell)?"));
}

TEST(DescriptionCheck, TakesATextThatGoesOnForOneMistake) {
    EXPECT_THAT(
        found("(doc\n(r\n(c\n(p\n(pt=one\ntwo\nthree)\n(ps=x)\np)\nc)\nr)\ndoc)\n"),
        ElementsAre("5 wrong-syntax: the ) is missing; a value ends on its own line, so write "
                    "\\line for a line break"));
}

TEST(DescriptionCheck, KnowsWhatWasMeantByAWrongLine) {
    EXPECT_THAT(
        found("(doc\n(r x\n(cel\n(p\npt=a)\n(pt=b) c)\np\np)\nprra)\nc) c\nr)\ndoc)\n"),
        ElementsAre("2 wrong-syntax: only a comment, which begins with ;, can follow (r",
                    "3 wrong-syntax: did you mean (cell?", "5 wrong-syntax: did you mean (pt=a)?",
                    "6 wrong-syntax: the value ends at the first ); write \\'29 for a "
                    "literal )",
                    "6 duplicate-leaf: para-text is already on line 5",
                    "7 wrong-syntax: did you mean (p or p)?", "9 wrong-syntax: did you mean para)?",
                    "10 wrong-syntax: only a comment, which begins with ;, can follow c)"));
}

TEST(DescriptionCheck, KnowsLinesThatHoldTooMuch) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(pt=x) (ps=y)\np)\n(p (pt=x) p)\nc)\nr)\ndoc)\n"),
                ElementsAre("5 wrong-syntax: write each node and each key on its own line",
                            "7 wrong-syntax: write each node and each key on its own line"));
}

TEST(DescriptionCheck, KnowsCloserThatAreNotWhole) {
    EXPECT_THAT(found("(doc\n(row\n(c\n(p\n(pt=x)\n)\n) ; cell\nrow )\ndoc)\n"),
                ElementsAre("6 wrong-syntax: did you mean p)?", "7 wrong-syntax: did you mean c)?",
                            "8 wrong-syntax: did you mean row)?"));
}

TEST(DescriptionCheck, KnowsOtherWaysToWriteKeysAndComments) {
    EXPECT_THAT(found("(doc\n# a=b\n// note\n(r\n(c\n(p\n(pt: x)\np)\n(p\n(para-text : x: y)\np)\n"
                      "c)\nr)\ndoc)\n"),
                ElementsAre("2 wrong-syntax: a comment begins with ;",
                            "3 wrong-syntax: a comment begins with ;",
                            "7 wrong-syntax: did you mean (pt=x)?",
                            "10 wrong-syntax: did you mean (para-text=x: y)?"));
}

TEST(DescriptionCheck, KnowsValuesInQuotationMarksAndNumbersWithAComma) {
    EXPECT_THAT(
        found("(doc\n(top-margin=1,000)\n(left-margin=1,2,3)\n(bottom-margin=12,)\n(r\n(rb=\"red\")"
              "\n(rtb='Thin')\n(c\n"
              "(cw=12,5)\n(ca=\"\")\nc)\nr)\ndoc)\n"),
        ElementsAre(
            "2 not-a-number: write the number without a comma: 1000 or 1.000",
            "3 not-a-number: a number has no comma and at most one decimal point; write a number "
            "of twips: an inch is 1440, a centimeter 567",
            "4 not-a-number: a number has no comma and at most one decimal point; write a number "
            "of twips: an inch is 1440, a centimeter 567",
            "6 wrong-color: did you mean red?", "7 wrong-border: did you mean thin?",
            "9 not-a-number: write a point instead of the comma: 12.5", "10 wrong-alignment"));
}

TEST(DescriptionCheck, KnowsNumbersInQuotationMarks) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(cw=\"50\")\nc)\nr)\ndoc)\n"),
                ElementsAre("4 not-a-number: write the number without quotation marks: 50"));
}

TEST(DescriptionCheck, NamesTheOpenersThatAreMissing) {
    EXPECT_THAT(found("(doc\n(r\n(p\n(pt=x)\np)\nr)\ndoc)\n"),
                testing::Contains("3 outside-document: (c is missing before this line"));
    EXPECT_THAT(found("(doc\n(cell\ncell)\ndoc)\n"),
                testing::Contains("2 outside-document: (row is missing before this line"));
    EXPECT_THAT(found("(doc\n(r\n(c\nc)\nr)\n(p\n(pt=x)\np)\ndoc)\n"),
                testing::Contains("6 outside-document: (r and (c are missing before this line"));
    EXPECT_THAT(found("(doc\n(r\n(c\nc)\nr)\ndoc)\n(x=1)\ndoc)\n"),
                testing::Contains("7 outside-document"));
}

TEST(DescriptionCheck, ComparesNoWidthsOnAPageTooNarrowForNumbers) {
    EXPECT_THAT(found("(doc\n(paper-width=-2147483648)\n(r\n(c\n(p\n(pt=a)\np)\nc)\n(c\nc)\nr)\n"
                      "doc)\n"),
                ElementsAre("2 no-room"));
}

TEST(DescriptionCheck, SuggestsWhatToDoWithAParenthesisInAValue) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(cs=a (b); c)\n(p\n(pt=a (b); c)\np)\nc)\nr)\ndoc)\n"),
                ElementsAre("4 cut-value: this value cannot contain a )",
                            "6 cut-value: write \\'29 for a literal )"));
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(pt=a (b\\'29 c) ; (d)\np)\nc)\nr)\ndoc)\n"),
                ElementsAre());
}

TEST(DescriptionCheck, ReportsWidthsThatTheTableCannotHold) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(cw=2000000000)\nc)\n(c\n(cw=-2000000000)\nc)\n(c\n(cw=20)\n"
                      "c)\nr)\ndoc)\n"),
                ElementsAre("4 overflow", "7 overflow"));
}

TEST(DescriptionCheck, ReportsEveryWidthThatTheTableCannotHold) {
    std::string cells;
    for (int i = 0; i < 25; ++i) {
        cells += "(c\n(cw=2000000000)\nc)\n";
    }
    const std::vector<std::string> diagnostics = found("(doc\n(r\n" + cells + "r)\ndoc)\n");
    ASSERT_EQ(diagnostics.size(), 25u);
    EXPECT_EQ(diagnostics.front(), "4 overflow");
    EXPECT_EQ(diagnostics.back(), "76 overflow");
}

TEST(DescriptionCheck, KnowsTheLongNameOfADocument) {
    EXPECT_THAT(found("(document\n(r\n(c\nc)\nr)\ndoc)\n").front(),
                testing::HasSubstr("did you mean (doc?"));
}

TEST(DescriptionCheck, TakesAFieldWithoutInstructionForHarmless) {
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(pt={\\field{\\*\\fldinst { }}{\\fldrslt a}})\np)\nc)\n"
                      "r)\ndoc)\n"),
                ElementsAre());
    EXPECT_THAT(found("(doc\n(r\n(c\n(p\n(pt=a\\fldinst)\np)\nc)\nr)\ndoc)\n"), ElementsAre());
}

TEST(DescriptionCheck, SaysToWhichNodeAKeyBelongs) {
    EXPECT_THAT(found("(doc\n(rb=red)\n(r\n(CB=red)\n(c\n(CW=5)\nc)\nr)\ndoc)\n"),
                ElementsAre("2 wrong-keyword: this is a key of a row, not of a document",
                            "4 wrong-keyword: did you mean rb?",
                            "6 wrong-keyword: write keys in lower case: cw"));
}

TEST(DescriptionCheck, CountsColumnsInCharacters) {
    const std::vector<Diagnostic> diagnostics =
        checkDescription("(doc\n(r\n(c\n(p\n(pt=\xC3\xA9\xC3\xA9})\np)\nc)\nr)\ndoc)\n");
    ASSERT_EQ(diagnostics.size(), 1u);
    EXPECT_EQ(diagnostics[0].place.line, 5);
    EXPECT_EQ(diagnostics[0].place.column, 7);
    EXPECT_EQ(diagnostics[0].place.length, 1);
    EXPECT_EQ(diagnostics[0].place.offset, 20);
}

TEST(DescriptionCheck, FindsTheCharactersThatTheCodePageCannotHold) {
    const std::vector<Diagnostic> diagnostics = checkDescription(
        "(doc\n(r\n(c\n(p\n(pt=\xE2\x86\x92 \xF0\x9F\x98\x80 \xE2\x82\xAC)\np)\nc)\nr)\ndoc)\n");
    ASSERT_EQ(diagnostics.size(), 2u);
    EXPECT_EQ(diagnostics[0].id, DiagnosticId::UnencodableCharacter);
    EXPECT_EQ(diagnostics[0].hint, "write {\\uc1\\u8594?}");
    EXPECT_EQ(diagnostics[1].id, DiagnosticId::UnencodableCharacter);
    EXPECT_EQ(diagnostics[1].hint, "write {\\uc1\\u-10179?\\u-8704?}");
}

TEST(DescriptionCheck, TakesAnyCharacterInATextOfAFileInUtf8) {
    EXPECT_TRUE(checkDescription(
                    "(doc\n(r\n(c\n(p\n(pt=\u0159 \u00C3\u00A9 \U0001F600)\np)\nc)\nr)\ndoc)\n",
                    nullptr, TextEncoding::Utf8)
                    .empty());
}

TEST(DescriptionCheck, ReportsCharactersThatAValueOfAFileInUtf8CannotHold) {
    const std::vector<Diagnostic> diagnostics = checkDescription(
        "(doc\n(r\n(c\n(cmf=a\u00E9\u4E2D)\n(p\n(pt=a)\n(ps=\U0001F600)\np)\nc)\nr)\ndoc)\n",
        nullptr, TextEncoding::Utf8);
    ASSERT_EQ(diagnostics.size(), 2u);
    EXPECT_EQ(diagnostics[0].id, DiagnosticId::UnencodableValue);
    EXPECT_EQ(diagnostics[0].message,
              "\u4E2D isn't in Windows-1252; only the text of a paragraph can hold it.");
    EXPECT_EQ(diagnostics[0].place.line, 4);
    EXPECT_EQ(diagnostics[0].place.column, 8);
    EXPECT_EQ(diagnostics[0].place.length, 1);
    EXPECT_EQ(diagnostics[0].place.bytes.column, 9);
    EXPECT_EQ(diagnostics[0].place.bytes.length, 3);
    EXPECT_EQ(diagnostics[1].id, DiagnosticId::UnencodableValue);
    EXPECT_EQ(diagnostics[1].place.line, 7);
}

TEST(DescriptionCheck, ReportsCharactersThatTheNameOfAnInlineStyleCannotHold) {
    const std::vector<Diagnostic> diagnostics = checkDescription(
        "(doc\n(r\n(c\n(p\n(pt=\u0159 < \u4E2D = <a\u4E2D\u4E2D=\u0159>)\np)\nc)\nr)\ndoc)\n",
        nullptr, TextEncoding::Utf8);
    ASSERT_EQ(diagnostics.size(), 1u);
    EXPECT_EQ(diagnostics[0].id, DiagnosticId::UnencodableValue);
    EXPECT_EQ(diagnostics[0].place.column, 15);
    EXPECT_EQ(diagnostics[0].hint,
              "this is the name of an inline style; write \\'3c for a literal <");
}

TEST(DescriptionCheck, KnowsWhatATextBringsAlong) {
    const auto isEmbedding = [](const std::string& text) {
        for (const Diagnostic& diagnostic :
             checkDescription("(doc\n(r\n(c\n(p\n(pt=" + text + ")\np)\nc)\nr)\ndoc)\n")) {
            if (diagnostic.id == DiagnosticId::EmbeddedContent) {
                return true;
            }
        }
        return false;
    };
    for (const char* text :
         {"{\\object\\objemb}", "{\\pict\\pngblip 00}", "\\bin3 abc", "{\\*\\template x.dot}",
          "{\\field{\\*\\fldinst MACROBUTTON x}}", "{\\field{\\*\\fldinst {ddeauto x}}}",
          "{\\field{\\*\\fldinst HYPERLINK \"c:\\\\x\"}}"}) {
        EXPECT_TRUE(isEmbedding(text)) << text;
    }
    for (const char* text : {"{\\field{\\*\\fldinst PAGE}}", "{\\b x}",
                             "{\\field{\\*\\fldinst HYPERLINK \"https://a.example\"}}"}) {
        EXPECT_FALSE(isEmbedding(text)) << text;
    }
}

}  // namespace
}  // namespace quorvane
