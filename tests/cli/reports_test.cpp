// Whole reports about descriptions and their stylesheets.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/description/ViolationReport.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/driver/Vocabulary.h"
#include "tests/cli/reportOf.h"

namespace quorvane::cli {
namespace {

TEST(ReportsOfTexts, ReportControlsThatBreakTheTable) {
    EXPECT_EQ(
        reportOf(paragraphWith("a\\cell b\\row {\\trowd\\cellx99} \\sect")),
        R"(a.rtfspec:5:6: warning: \cell in a text or a format breaks the table. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
         ^~~~~
a.rtfspec:5:13: warning: \row in a text or a format breaks the table. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                ^~~~
a.rtfspec:5:19: warning: \trowd in a text or a format breaks the table. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                      ^~~~~~
a.rtfspec:5:25: warning: \cellx99 in a text or a format breaks the table. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                            ^~~~~~~~
a.rtfspec:5:35: warning: \sect in a text or a format breaks the table. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                                      ^~~~~
)");
}

TEST(ReportsOfTexts, DoNotMentionATableWithinAFootnoteOrANestedOne) {
    EXPECT_EQ(reportOf(paragraphWith("a{\\footnote \\trowd\\cellx9 b\\cell\\row}")), "");
    EXPECT_EQ(reportOf(paragraphWith("\\itap2 a\\nestcell{\\*\\nesttableprops\\trowd\\cellx9"
                                     "\\nestrow}\\itap1 b")),
              "");
    EXPECT_EQ(reportOf(paragraphWith("\\itap2 a\\nestcell{\\*\\nesttableprops\\trowd\\cellx9"
                                     "\\nestrow}\\pard\\intbl b")),
              "");
    EXPECT_EQ(reportOf(paragraphWith("a{\\footnote \\itap2 b}")), "");
}

TEST(ReportsOfTexts, ReportATableWithinACellThatIsNotWhole) {
    const std::string hint =
        "    hint: a nested table needs complete rows, with a definition for each \\nestcell, and "
        "\\itap1 after them\n";
    EXPECT_EQ(
        reportOf(paragraphWith("a\\nestcell b")),
        R"(a.rtfspec:5:6: warning: \nestcell in a text or a format breaks the table. [table-control]
    (pt=a\nestcell b)
         ^~~~~~~~~
)" + hint);
    EXPECT_EQ(
        reportOf(paragraphWith("a\\nestrow b")),
        R"(a.rtfspec:5:6: warning: \nestrow in a text or a format breaks the table. [table-control]
    (pt=a\nestrow b)
         ^~~~~~~~
)" + hint);
    EXPECT_EQ(
        reportOf(paragraphWith("a\\itap2 b")),
        R"(a.rtfspec:5:6: warning: \itap2 in a text or a format breaks the table. [table-control]
    (pt=a\itap2 b)
         ^~~~~~
)" + hint);
}

TEST(ReportsOfTexts, ReportTheBeginningOfADocument) {
    EXPECT_EQ(
        reportOf(paragraphWith("{\\rtf1{\\fonttbl{\\f0 A;}}{\\colortbl;}{\\stylesheet{a;}}b}")),
        R"(a.rtfspec:5:6: warning: \rtf1 belongs only at the beginning of a document. [header-control]
    (pt={\rtf1{\fonttbl{\f0 A;}}{\colortbl;}{\stylesheet{a;}}b})
         ^~~~~
a.rtfspec:5:12: warning: \fonttbl belongs only at the beginning of a document. [header-control]
    (pt={\rtf1{\fonttbl{\f0 A;}}{\colortbl;}{\stylesheet{a;}}b})
               ^~~~~~~~
a.rtfspec:5:30: warning: \colortbl belongs only at the beginning of a document. [header-control]
    (pt={\rtf1{\fonttbl{\f0 A;}}{\colortbl;}{\stylesheet{a;}}b})
                                 ^~~~~~~~~
a.rtfspec:5:42: warning: \stylesheet belongs only at the beginning of a document. [header-control]
    (pt={\rtf1{\fonttbl{\f0 A;}}{\colortbl;}{\stylesheet{a;}}b})
                                             ^~~~~~~~~~~
)");
}

TEST(ReportsOfTexts, ReportAValueThatIsCutOff) {
    EXPECT_EQ(reportOf("(doc\n(r\n(c\n(p\n(pt=see (page 2); thanks)\np)\nc)\nr)\ndoc)\n"),
              R"(a.rtfspec:5:16: warning: The value ends here; ); thanks is lost. [cut-value]
    (pt=see (page 2); thanks)
                   ^~~~~~~~~~
    hint: write \'29 for a literal )
)");
    EXPECT_EQ(
        reportOf("(doc\n(r\n(c\n(cmf=net (all)  ; x) y\n(p\n(pt=Price (net) ; incl. VAT)\np)\nc)\n"
                 "r)\ndoc)\n"),
        R"(a.rtfspec:4:14: warning: The value ends here; )  ; x is lost. [cut-value]
    (cmf=net (all)  ; x) y
                 ^~~~~~~
    hint: this value cannot contain a )
a.rtfspec:6:15: warning: The value ends here; ) ; incl. VAT is lost. [cut-value]
    (pt=Price (net) ; incl. VAT)
                  ^~~~~~~~~~~~~~
    hint: write \'29 for a literal )
)");
}

TEST(ReportsOfTexts, DoNotMentionCommentsWithParentheses) {
    EXPECT_EQ(reportOf("(doc\n(r\n(c\n(p\n(pt=a (b\\'29) ; see (c)\np)\n"
                       "(p\n(pt=a) ; (b)\np)\n(p\n(pt=a (b) ; c\np)\nc)\nr)\ndoc)\n"),
              "");
}

TEST(ReportsOfTexts, ReportAnInlineStyleThatIsNotClosed) {
    const std::string sheet =
        "{ name: normal; style-def: s }\n{ name: reserved; style-def: s }\n"
        "{ name: strong; style-def: cs; format: \\b }\n";
    EXPECT_EQ(
        reportOf(paragraphWith("<strong=a <strong=b> c", "(ps=reserved)\n"), sheet),
        R"(a.rtfspec:5:6: warning: The inline style strong is not closed; it will appear as written. [unclosed-inline-style]
    (pt=<strong=a <strong=b> c)
         ^~~~~~
    hint: write a > after the text: <strong=Total>
)");
    EXPECT_EQ(reportOf(paragraphWith("<strong=a> x <y=b", "(ps=reserved)\n"), sheet), "");
    EXPECT_EQ(reportOf(paragraphWith("<strong=a")), "");
}

TEST(ReportsOfTexts, ReportNumbersThatTheTablesDoNotHave) {
    EXPECT_EQ(
        reportOf(paragraphWith("\\f18\\cf58\\highlight99\\cb-1\\ts1 \\f17\\cf57\\cb0\\s100 a")),
        R"(a.rtfspec:5:5: warning: \f18 refers to a font that the document does not have. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
        ^~~~
a.rtfspec:5:9: warning: \cf58 refers to a color that the document does not have. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
            ^~~~~
a.rtfspec:5:14: warning: \highlight99 refers to a color that the document does not have. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
                 ^~~~~~~~~~~~
a.rtfspec:5:26: warning: \cb-1 refers to a color that the document does not have. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
                             ^~~~~
a.rtfspec:5:31: warning: \ts1 refers to a style that the document does not have. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
                                  ^~~~
)");
}

TEST(ReportsOfTexts, LookNumbersOfStylesUpInTheStyleSheet) {
    const std::string sheet = "{ name: normal; style-def: s }\n{ name: b; style-def: s }\n";
    EXPECT_EQ(reportOf(paragraphWith("\\s0\\s101 a", "(ps=b)\n"), sheet), "");
    EXPECT_EQ(
        reportOf(paragraphWith("\\s102{\\cs100 a}", "(ps=b)\n"), sheet),
        R"(a.rtfspec:5:5: warning: \s102 refers to a style that the document does not have. [unknown-number]
    (pt=\s102{\cs100 a})
        ^~~~~
a.rtfspec:5:11: warning: \cs100 refers to a style that the document does not have. [unknown-number]
    (pt=\s102{\cs100 a})
              ^~~~~~
)");
}

TEST(ReportsOfFormats, ReportControlsAndNumbersThatDoNotFit) {
    EXPECT_EQ(
        reportOf(paragraphWith("a"),
                 "{ name: normal; style-def: s; format: \\F99\\cf58\\cell\\s102 }\n"),
        R"(a.rtfss:1:39: warning: \F99 refers to a font that the document does not have. [unknown-number]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                          ^~~~
a.rtfss:1:43: warning: \cf58 refers to a color that the document does not have. [unknown-number]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                              ^~~~~
a.rtfss:1:48: warning: \cell in a text or a format breaks the table. [table-control]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                                   ^~~~~
a.rtfss:1:53: warning: \s102 refers to a style that the document does not have. [unknown-number]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                                        ^~~~~
)");
}

TEST(ReportsOfFormats, GiveHintsThatHoldInAStyleSheet) {
    EXPECT_EQ(
        reportOf(paragraphWith("a"), "{ name: normal; style-def: s; format: \\bold\\xyzzyx\\5 }\n"),
        R"(a.rtfss:1:39: warning: \bold is not an RTF control word; readers will ignore it. [unknown-control-word]
    { name: normal; style-def: s; format: \bold\xyzzyx\5 }
                                          ^~~~~
    hint: did you mean \b?
a.rtfss:1:44: warning: \xyzzyx is not an RTF control word; readers will ignore it. [unknown-control-word]
    { name: normal; style-def: s; format: \bold\xyzzyx\5 }
                                               ^~~~~~~
    hint: a backslash begins a control word, such as \b or \fs20
a.rtfss:1:51: warning: The backslash swallows what follows it. [lone-backslash]
    { name: normal; style-def: s; format: \bold\xyzzyx\5 }
                                                      ^
    hint: a backslash begins a control word, such as \b or \fs20
)");
    EXPECT_EQ(
        reportOf(paragraphWith("a"),
                 "{ name: normal; style-def: s; format: {\\b }\n{ name: b; } style-def: s }\n"),
        R"(a.rtfss:1:39: warning: Unmatched {. [unbalanced-brace]
    { name: normal; style-def: s; format: {\b }
                                          ^
    hint: in a stylesheet, braces can only enclose definitions
a.rtfss:1:40: error: Error while processing stylesheet. \b } { name is not a valid keyword. [bad-keyword]
    { name: normal; style-def: s; format: {\b }
                                           ^~~~
    hint: a definition begins with name:
a.rtfss:2:3: warning: The definition has no style-def and becomes a cell style. [no-style-kind]
    { name: b; } style-def: s }
      ^~~~~~~
a.rtfss:2:12: error: Error while processing stylesheet. } style-def is not a valid keyword. [bad-keyword]
    { name: b; } style-def: s }
               ^~~~~~~~~~~
    hint: did you mean style-def?
)");
}

TEST(ReportsOfColors, SeeInlineStylesAndControlsInTheText) {
    const std::string sheet =
        "{ name: normal; style-def: s; format: \\cf3 }\n"
        "{ name: pale; style-def: cs; format: \\cf36 }\n"
        "{ name: marked; style-def: cs; format: \\highlight3 }\n";
    EXPECT_EQ(
        reportOf(paragraphWith("dark <pale=white> {\\cf37 yellow} <marked=none> dark"), sheet),
        R"(a.rtfspec:5:16: warning: The text is white on white and hard to read. [low-contrast]
    (pt=dark <pale=white> {\cf37 yellow} <marked=none> dark)
                   ^~~~~
a.rtfspec:5:30: warning: The text is yellow on white and hard to read. [low-contrast]
    (pt=dark <pale=white> {\cf37 yellow} <marked=none> dark)
                                 ^~~~~~
a.rtfspec:5:46: warning: The text is black on black and hard to read. [low-contrast]
    (pt=dark <pale=white> {\cf37 yellow} <marked=none> dark)
                                                 ^~~~
)");
}

TEST(ReportsOfColors, TakeTheLastColorBeforeTheText) {
    // A dark cell makes its text white, whatever the style's color; \plain makes it black.
    const std::string dark = "(doc\n(r\n(c\n(cb=black)\n(p\n(pt=a \\plain b)\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(
        reportOf(dark, "{ name: normal; style-def: s; format: \\cf3 }\n"),
        R"(a.rtfspec:6:14: warning: The text is black on black and hard to read. [low-contrast]
    (pt=a \plain b)
                 ^
)");
    EXPECT_EQ(reportOf(paragraphWith("{\\cf36 {\\cf3 a}{\\field{\\*\\fldinst PAGE}} }b")), "");
    EXPECT_EQ(reportOf(paragraphWith("{\\highlight3\\cf36 a}")), "");
}

TEST(ReportsOfColors, MarkTheWholeTextWhereItsOwnColorIsTheReason) {
    EXPECT_EQ(reportOf(paragraphWith("a {\\cf3 b} c"),
                       "{ name: normal; style-def: s; format: \\cf36 }\n"),
              R"(a.rtfspec:5:5: warning: The text is white on white and hard to read. [low-contrast]
    (pt=a {\cf3 b} c)
        ^~~~~~~~~~~~
)");
}

TEST(ReportsOfFields, TakeTheInstructionForWhatItSays) {
    const auto expectReport = [](const std::string& instruction, const std::string& brought) {
        const std::string report =
            reportOf(paragraphWith("{\\field{\\*\\fldinst " + instruction + "}}"));
        EXPECT_EQ(report,
                  "a.rtfspec:5:15: warning: \\fldinst puts " + brought +
                      " into the document. [embedded-content]\n    (pt={\\field{\\*\\fldinst " +
                      instruction + "}})\n                  ^~~~~~~~\n");
    };
    expectReport("{\\b INCLUDETEXT x}", "a link to a file");
    expectReport("IN{}CLUDETEXT x", "a link to a file");
    expectReport("\\'49NCLUDETEXT x", "a link to a file");
    expectReport("{\\uc1\\u73?}{\\i N}CLUDE\\b0 TEXT x", "a link to a file");
    expectReport("\\u77?ACROBUTTON x", "a macro");
    expectReport("\\u-65459?ACROBUTTON x", "a macro");
    expectReport("\\uc0\\u77 ACROBUTTON x", "a macro");
    expectReport("{\\uc2\\u77\\'4d?}ACROBUTTON x", "a macro");
    expectReport("\\u77{}ACROBUTTON x", "a macro");
    expectReport("MACRO\\u8203 BUTTON x", "a macro");
    expectReport("MACRO\\u8203?BUTTON x", "a macro");
    expectReport("MACRO\\zwnj\\-BUTTON x", "a macro");
    expectReport("MACRO\\'adBUTTON x", "a macro");
    expectReport("\\'09\\'a0MACROBUTTON x", "a macro");
    expectReport("{\\*\\datafield QUOTE}dde{\\rtlch auto} x", "a link to a program");
    expectReport("{\\cs100 MACRO}{\\cs100 BUTTON} x y", "a macro");
    expectReport("HYPERLINK \"c:\\\\x http://\"", "a link to a file");
    expectReport("HYPER{\\b LINK} file:///x", "a link to a file");
}

TEST(ReportsOfFields, JudgeFieldsWithinFields) {
    EXPECT_EQ(
        reportOf(paragraphWith("{\\field{\\*\\fldinst {\\field{\\*\\fldinst QUOTE}"
                               "{\\fldrslt LINK}} x}}")),
        R"(a.rtfspec:5:15: warning: \fldinst puts a link to a file into the document. [embedded-content]
    (pt={\field{\*\fldinst {\field{\*\fldinst QUOTE}{\fldrslt LINK}} x}})
                  ^~~~~~~~
)");
    EXPECT_EQ(
        reportOf(paragraphWith("{\\field{\\*\\fldinst IF {\\field{\\*\\fldinst DDE x}}}}")),
        R"(a.rtfspec:5:37: warning: \fldinst puts a link to a program into the document. [embedded-content]
    (pt={\field{\*\fldinst IF {\field{\*\fldinst DDE x}}}})
                                        ^~~~~~~~
)");
}

TEST(ReportsOfFields, DoNotMentionHarmlessOnes) {
    for (const char* instruction :
         {"PAGE", "HYPERLINK \"https://a.example/x\"", "HYPERLINK mailto:a@b.example",
          "HYPERLINK \\\\l \"place\"", "QUOTE INCLUDETEXT", "{\\b DATE} \\\\@ \"d\""}) {
        EXPECT_EQ(reportOf(paragraphWith("{\\field{\\*\\fldinst " + std::string(instruction) +
                                         "}{\\fldrslt INCLUDETEXT}}")),
                  "")
            << instruction;
    }
}

TEST(ReportsOfWidths, ReportASingleCellThatIsTooNarrow) {
    EXPECT_EQ(
        reportOf("(doc\n(r\n(c\n(cw=1)\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:4:5: warning: The cell will be 2 percent wide instead of 1. [width-clamped]
    (cw=1)
        ^
)");
    EXPECT_EQ(reportOf("(doc\n(r\n(c\n(cw=50)\nc)\nr)\ndoc)\n"), "");
}

TEST(ReportsOfWidths, ReportWhichCellsAPageOfAnotherWidthMakesNarrow) {
    EXPECT_EQ(
        reportOf("(doc\n(paper-width=16838)\n(r\n(c\n(cw=50)\nc)\n(c\n(cw=50)\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:2:14: warning: The row is 8840 twips wide, but the page has room for 13436. [table-underrun]
    (paper-width=16838)
                 ^~~~~
    hint: the cells are laid out before the page is set up; choose (left-margin=3999) and (right-margin=3999) to leave 8840 twips for them
a.rtfspec:5:5: warning: The cell will be 16 percent wide instead of 50. [width-clamped]
    (cw=50)
        ^~
)");
}

TEST(ReportsOfWidths, ReportAPageWithoutRoom) {
    EXPECT_EQ(
        reportOf("(doc\n(bottom-margin=9000)\n(paper-height=8000)\n(r\n(c\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:3:15: warning: Together the margins are 10418 twips high, but the paper is only 8000. [no-room]
    (paper-height=8000)
                  ^~~~
)");
}

TEST(ReportsOfCharacters, FindThemInEverythingThatReachesTheDocument) {
    // A file in UTF-8 with an arrow, which the code page does not have, and with an e acute.
    EXPECT_EQ(
        reportOf(paragraphWith("a", "(pmf=\xE2\x86\x92)\n"), {}, EncodingChoice::Windows1252),
        "a.rtfspec:6:6: warning: \xE2\x86\x92 is not in Windows-1252; it will appear as "
        "\xC3\xA2\xE2\x80\xA0\xE2\x80\x99, because the file is in UTF-8. [unencodable-character]\n"
        "    (pmf=\xC3\xA2\xE2\x80\xA0\xE2\x80\x99)\n"
        "         ^~~\n");
    EXPECT_EQ(
        reportOf("(doc\n(r\n(c\n(cmf=\xC3\xA9)\nc)\nr)\ndoc)\n", {}, EncodingChoice::Windows1252),
        "a.rtfspec:4:6: warning: \xC3\xA9 will appear as \xC3\x83\xC2\xA9, because the file "
        "is in UTF-8. "
        "[utf-8-text]\n"
        "    (cmf=\xC3\x83\xC2\xA9)\n"
        "         ^~\n"
        "    hint: save the file in Windows-1252\n");
    EXPECT_EQ(reportOfFile("a.rtfss",
                           "{ name: normal; style-def: s }\n{ name: \xC3\xA9; style-def: cell; "
                           "format: none }\n{ name: normal, \xC3\xA9; style-def: cs }\n",
                           EncodingChoice::Windows1252),
              "a.rtfss:3:17: warning: \xC3\xA9 will appear as \xC3\x83\xC2\xA9, because the file "
              "is in UTF-8. "
              "[utf-8-text]\n"
              "    { name: normal, \xC3\x83\xC2\xA9; style-def: cs }\n"
              "                    ^~\n"
              "    hint: save the file in Windows-1252\n");
}

TEST(ReportsOfCharacters, ReportTheFirstThatIsMisread) {
    // Two texts of a file in UTF-8, in which each kind of character stands several times.
    const std::string text = "caf\xC3\xA9 \xE2\x86\x92 ol\xC3\xA9 \xE2\x86\x92";
    const std::string cell = "(c\n(p\n(pt=" + text + ")\np)\nc)\n";
    const std::string shown =
        "    (pt=caf\xC3\x83\xC2\xA9 \xC3\xA2\xE2\x80\xA0\xE2\x80\x99 ol\xC3\x83\xC2\xA9 "
        "\xC3\xA2\xE2\x80\xA0\xE2\x80\x99)\n";
    EXPECT_EQ(reportOf("(doc\n(r\n" + cell + cell + "r)\ndoc)\n", {}, EncodingChoice::Windows1252),
              "a.rtfspec:5:8: warning: \xC3\xA9 will appear as \xC3\x83\xC2\xA9, because the file "
              "is in UTF-8. "
              "Other characters are affected too. [utf-8-text]\n" +
                  shown +
                  "           ^~\n"
                  "    hint: save the file in Windows-1252, or write \\'e9\n"
                  "a.rtfspec:5:11: warning: \xE2\x86\x92 is not in Windows-1252; it will "
                  "appear as \xC3\xA2\xE2\x80\xA0\xE2\x80\x99, because the file is in UTF-8. Other "
                  "characters are "
                  "affected too. [unencodable-character]\n" +
                  shown +
                  "              ^~~\n"
                  "    hint: write {\\uc1\\u8594?}\n");
    const std::string names = "\xC3\xA9, caf\xC3\xA9";
    EXPECT_EQ(
        reportOfFile("a.rtfss",
                     "{ name: normal; style-def: s }\n{ name: " + names + "; style-def: cs }\n",
                     EncodingChoice::Windows1252),
        "a.rtfss:2:9: warning: \xC3\xA9 will appear as \xC3\x83\xC2\xA9, because the file is "
        "in UTF-8. "
        "Other characters are affected too. [utf-8-text]\n"
        "    { name: \xC3\x83\xC2\xA9, caf\xC3\x83\xC2\xA9; style-def: cs }\n"
        "            ^~\n"
        "    hint: save the file in Windows-1252\n");
}

TEST(ReportsOfNames, ReportADescriptionThatIsNotOne) {
    const std::string hint = "    hint: the file looks like ";
    EXPECT_EQ(reportOfFile("a.rtfspec", "{ name: a; style-def: s }\n"),
              "a.rtfspec:1:1: error: The provided file isn't a correct rtfspec file. "
              "[wrong-file-type]\n    { name: a; style-def: s }\n    ^" +
                  std::string(24, '~') + "\n" + hint +
                  "a stylesheet; its extension should be .rtfss\n");
    EXPECT_EQ(reportOfFile("a.rtfspec", "f(void) { return 0; }\n"),
              "a.rtfspec:1:1: error: The provided file isn't a correct rtfspec file. "
              "[wrong-file-type]\n    f(void) { return 0; }\n    ^" +
                  std::string(20, '~') +
                  "\n    hint: a description begins with (doc and ends with doc)\n");
    EXPECT_EQ(reportOfFile("A.RTFSPEC", "{\\rtf1\\ansi a}"),
              "A.RTFSPEC:1:1: error: The provided file isn't a correct rtfspec file. "
              "[wrong-file-type]\n    {\\rtf1\\ansi a}\n    ^" +
                  std::string(13, '~') + "\n" + hint +
                  "an RTF file; its extension should be .rtf\n");
}

TEST(ReportsOfNames, ReportAStyleSheetThatIsNotOne) {
    const std::string description = "(doc\n(r\n(c\nc)\nr)\ndoc)\n";
    EXPECT_EQ(reportOfFile("a.rtfss", description),
              "a.rtfss:1:1: warning: This is a description, not a stylesheet. "
              "[description-as-stylesheet]\n    (doc\n    ^~~~\n"
              "    hint: the file looks like a description; its extension should be .rtfspec\n");
    EXPECT_EQ(reportOfFile("a.rtfss", paragraphWith("{\\b a}")),
              "a.rtfss:1:1: error: Error while processing stylesheet. \\b a is not a valid "
              "keyword. [stylesheet-rejected]\n    (doc\n    ^~~~\n"
              "    hint: the file looks like a description; its extension should be .rtfspec\n");
    EXPECT_EQ(reportOfFile("a.rtfss", "{\\rtf1\\ansi a}"),
              "a.rtfss:1:1: error: Error while processing stylesheet. \\rtf1\\ansi a is not a "
              "valid keyword. [stylesheet-rejected]\n    {\\rtf1\\ansi a}\n    ^" +
                  std::string(13, '~') +
                  "\n    hint: the file looks like an RTF file; its extension should be .rtf\n");
}

TEST(ReportsOfNames, DoNotMentionOtherExtensions) {
    EXPECT_EQ(reportOfFile("a.txt", "(doc\n(r\n(c\nc)\nr)\ndoc)\n"), "");
    EXPECT_EQ(reportOfFile("a.txt", "{ name: a; style-def: s }\n"), "");
}

TEST(ReportsOfStyleSheets, ReportKeywordsWithoutBraces) {
    EXPECT_EQ(reportOfFile("a.rtfss", "; mine\n  Name : a; style-def: s\n"),
              "a.rtfss:2:3: warning: The stylesheet has no styles. [no-styles]\n"
              "      Name : a; style-def: s\n"
              "      ^~~~\n"
              "    hint: enclose the definition in braces: { name: ...; style-def: ... }\n");
    EXPECT_EQ(reportOfFile("a.rtfss", "Styles to come: none\n; name: a\n"), "");
}

TEST(ReportsOfStyleSheets, NameUtf16) {
    const std::string sheet("\xFF\xFE{\0n\0}\0", 8);
    EXPECT_EQ(reportOfFile("a.rtfss", sheet),
              "a.rtfss:1:1: error: This is text in UTF-16, not in UTF-8 or Windows-1252. "
              "[not-a-text-file]\n    hint: save it in UTF-8\n");
}

TEST(ReportsOfKeys, SayWhatWasMeantByOtherWordsAndWhatANumberWithAUnitIs) {
    EXPECT_EQ(reportOf(R"~((doc
(margin-left=5)
(paper-width=21cm)
(paper-height=11 in)
(top-margin=50,5)
(bottom-margin=1e3000)
(right-margin=)
(left-margin=20pt)
(page-number-start=one)
(page-width=3)
(height=3)
(row
(background=red)
(border-top=thin)
(bottom-border=)
(rb=)
(cell
(width=5)
(cw=5cm)
(align=left)
(ca=)
(para
(text=5)
(alignment=left)
(font=x)
para)
cell)
(c
(cw=12px)
(bgcolor=x)
c)
row)
doc)
)~"),
              R"~(a.rtfspec:2:2: error: margin-left isn't a valid keyword. [wrong-keyword]
    (margin-left=5)
     ^~~~~~~~~~~
    hint: did you mean left-margin?
a.rtfspec:3:14: error: Value for paper-width should be numeric. [not-a-number]
    (paper-width=21cm)
                 ^~~~
    hint: 21cm is 11906 twips; write 11906
a.rtfspec:4:15: error: Value for paper-height should be numeric. [not-a-number]
    (paper-height=11 in)
                  ^~~~~
    hint: 11 in is 15840 twips; write 15840
a.rtfspec:5:13: error: Value for top-margin should be numeric. [not-a-number]
    (top-margin=50,5)
                ^~~~
    hint: measures are in twips; did you mean 50.5 points? Write 1010
a.rtfspec:6:16: error: Value for bottom-margin should be numeric. [not-a-number]
    (bottom-margin=1e3000)
                   ^~~~~~
    hint: the number is too large or malformed; write its digits without an exponent
a.rtfspec:7:15: error: Value for right-margin should be numeric. [not-a-number]
    (right-margin=)
                  ^
    hint: the value is missing; write a number of twips: an inch is 1440, a centimeter 567
a.rtfspec:8:14: error: Value for left-margin should be numeric. [not-a-number]
    (left-margin=20pt)
                 ^~~~
    hint: 20pt is 400 twips; write 400
a.rtfspec:9:20: error: Value for page-number-start should be numeric. [not-a-number]
    (page-number-start=one)
                       ^~~
    hint: write a number
a.rtfspec:10:2: error: page-width isn't a valid keyword. [wrong-keyword]
    (page-width=3)
     ^~~~~~~~~~
    hint: did you mean paper-width?
a.rtfspec:11:2: error: height isn't a valid keyword. [wrong-keyword]
    (height=3)
     ^~~~~~
    hint: did you mean paper-height?
a.rtfspec:13:2: error: background isn't a valid keyword. [wrong-keyword]
    (background=red)
     ^~~~~~~~~~
    hint: did you mean row-backcolor?
a.rtfspec:14:2: error: border-top isn't a valid keyword. [wrong-keyword]
    (border-top=thin)
     ^~~~~~~~~~
    hint: did you mean row-top-border?
a.rtfspec:15:2: error: bottom-border isn't a valid keyword. [wrong-keyword]
    (bottom-border=)
     ^~~~~~~~~~~~~
    hint: did you mean row-bottom-border?
a.rtfspec:16:5: error: isn't a recognized color. [wrong-color]
    (rb=)
        ^
    hint: the value is missing; write none for no color
a.rtfspec:18:2: error: width isn't a valid keyword. [wrong-keyword]
    (width=5)
     ^~~~~
    hint: did you mean cell-width?
a.rtfspec:19:5: error: Value for cell-width should be numeric. [not-a-number]
    (cw=5cm)
        ^~~
    hint: a cell width is a percentage of the width between the margins, not a length; write it without a unit
    (and 1 more like this: line 29)
a.rtfspec:20:2: error: align isn't a valid keyword. [wrong-keyword]
    (align=left)
     ^~~~~
    hint: did you mean cell-alignment?
a.rtfspec:21:5: error: isn't a recognized alignment. [wrong-alignment]
    (ca=)
        ^
    hint: the value is missing; write none for no alignment
a.rtfspec:23:2: error: text isn't a valid keyword. [wrong-keyword]
    (text=5)
     ^~~~
    hint: did you mean para-text?
a.rtfspec:24:2: error: alignment isn't a valid keyword. [wrong-keyword]
    (alignment=left)
     ^~~~~~~~~
    hint: did you mean para-alignment?
a.rtfspec:25:2: error: font isn't a valid keyword. [wrong-keyword]
    (font=x)
     ^~~~
    hint: use a style: (ps=arial) with { name: arial; style-def: s; format: \f0 } in the stylesheet; for a few words, <arial=words> with style-def: cs
a.rtfspec:30:2: error: bgcolor isn't a valid keyword. [wrong-keyword]
    (bgcolor=x)
     ^~~~~~~
    hint: did you mean cell-backcolor?
)~");
}

TEST(ReportsOfStyleSheets, WithErrorsStillLetTheDescriptionBeChecked) {
    const std::string sheet =
        "{ name: normal; style-def: s; fromat: \\fs20 }\n"
        "{ name: sum; style-def: p }\n"
        "{ nam: strong; style-def: cs; format: \\b }\n";
    EXPECT_EQ(
        reportOf(paragraphWith("<strong=a> <sum=b> <string=c>", "(ps=nromal)\n"), sheet),
        R"(a.rtfss:1:31: error: Error while processing stylesheet. fromat is not a valid keyword. [bad-keyword]
    { name: normal; style-def: s; fromat: \fs20 }
                                  ^~~~~~
    hint: did you mean format?
a.rtfss:2:25: error: p is not a valid value for style-def [bad-style-kind]
    { name: sum; style-def: p }
                            ^
    hint: write s for a paragraph style
a.rtfss:3:3: error: Error while processing stylesheet. nam is not a valid keyword. [bad-keyword]
    { nam: strong; style-def: cs; format: \b }
      ^~~
    hint: a definition begins with name:
a.rtfspec:5:25: warning: The stylesheet has no character style string; the text gets no format. [unknown-character-style]
    (pt=<strong=a> <sum=b> <string=c>)
                            ^~~~~~
    hint: did you mean strong?
a.rtfspec:6:5: warning: The stylesheet has no paragraph style nromal; normal is used instead. [unknown-paragraph-style]
    (ps=nromal)
        ^~~~~~
    hint: did you mean normal?
)");
}

TEST(ReportsOfKeys, KnowMoreThatIsWrittenByMistake) {
    EXPECT_EQ(
        reportOf("(doc\n(paper-width=A4)\n(r\n(border=thin)\n(c\n(p (pt=x) p)\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:2:14: error: Value for paper-width should be numeric. [not-a-number]
    (paper-width=A4)
                 ^~
    hint: A4 is 11906 twips wide and 16838 high
a.rtfspec:4:2: error: border isn't a valid keyword. [wrong-keyword]
    (border=thin)
     ^~~~~~
    hint: each side has its own border: row-top-border, -bottom-border, -left-border, -right-border
a.rtfspec:6:1: error: (p (pt=x) p) has a wrong syntax [wrong-syntax]
    (p (pt=x) p)
    ^~~~~~~~~~~~
    hint: write each node and each key on its own line
)");
}

TEST(ReportsOfStyleSheets, NameABlankInTheNameOfAStyle) {
    const std::string sheet =
        "{ name: normal; style-def: s; format: \\fs20 }\n"
        "{ name: strong; style-def: cs; format: \\b }\n";
    EXPECT_EQ(
        reportOf(paragraphWith("<strong =a>"), sheet),
        R"(a.rtfspec:5:6: warning: The stylesheet has no character style strong ; the text gets no format. [unknown-character-style]
    (pt=<strong =a>)
         ^~~~~~~
    hint: remove the blank; the style is named strong
)");
}

TEST(ReportsOfStyleSheets, ReportAnEmptyItemThatIsNotTheLast) {
    EXPECT_EQ(
        reportOfFile("a.rtfss", "{ name: a;; style-def: s; format: \\b }\n"),
        R"(a.rtfss:1:11: error: Error while processing stylesheet.  is not a valid keyword. [bad-keyword]
    { name: a;; style-def: s; format: \b }
              ^
    hint: write only one ; between two items
)");
}

TEST(ReportsOfStyleSheets, ReportAWrongKindOnce) {
    EXPECT_EQ(reportOfFile("a.rtfss",
                           "{ name: a; style-def: paragraph; format: \\b }\n"
                           "{ name: b; style-def: char; format: \\b }\n"
                           "{ name= c; style-def: s }\n"),
              R"(a.rtfss:1:23: error: paragraph is not a valid value for style-def [bad-style-kind]
    { name: a; style-def: paragraph; format: \b }
                          ^~~~~~~~~
    hint: write s for a paragraph style
a.rtfss:2:23: error: char is not a valid value for style-def [bad-style-kind]
    { name: b; style-def: char; format: \b }
                          ^~~~
    hint: write cs for a character style
a.rtfss:3:3: error: Error while processing stylesheet. name= c is not a valid keyword. [bad-keyword]
    { name= c; style-def: s }
      ^~~~~~~
    hint: write a : after the keyword name
)");
}

TEST(ReportsOfValues, NameTheColorsAndBordersOfOtherLanguages) {
    EXPECT_EQ(reportOf("(doc\n(r\n(rb=#ff0000)\n(rtb=1)\n(c\nc)\nr)\ndoc)\n"),
              R"(a.rtfspec:3:5: error: #ff0000 isn't a recognized color. [wrong-color]
    (rb=#ff0000)
        ^~~~~~~
    hint: colors have names; the nearest one to #ff0000 is red
a.rtfspec:4:6: error: 1 isn't a recognized border. [wrong-border]
    (rtb=1)
         ^
    hint: borders have names: hair is 0.25 points wide, thin 0.5, normal 1 and thick 1.5; did you mean normal?
)");
}

TEST(ReportsOfKeys, ShowTheStyleForAColorOfText) {
    EXPECT_EQ(reportOf(paragraphWith("Total", "(color=red)\n")),
              R"(a.rtfspec:6:2: error: color isn't a valid keyword. [wrong-keyword]
    (color=red)
     ^~~~~
    hint: use a style: (ps=red) with { name: red; style-def: s; format: \cf30 } in the stylesheet; for a few words, <red=words> with style-def: cs
)");
}

TEST(ReportsOfKeys, SayWhatToDoInsteadOfKeysThatOtherLanguagesHave) {
    EXPECT_EQ(
        reportOf("(doc\n(orientation=landscape)\n(r\n(row-height=500)\n(c\n(colspan=2)\nc)\nr)\n"
                 "doc)\n"),
        R"(a.rtfspec:2:2: error: orientation isn't a valid keyword. [wrong-keyword]
    (orientation=landscape)
     ^~~~~~~~~~~
    hint: for landscape, paper-width is the longer side: (paper-width=16838) and (paper-height=11906) for A4
a.rtfspec:4:2: error: row-height isn't a valid keyword. [wrong-keyword]
    (row-height=500)
     ^~~~~~~~~~
    hint: a row is as high as its text; \sb and \sa in the format of a style add space
a.rtfspec:6:2: error: colspan isn't a valid keyword. [wrong-keyword]
    (colspan=2)
     ^~~~~~~
    hint: cells cannot span columns; use fewer and wider cells in this row
)");
}

TEST(ReportsOfTexts, TakeALineBreakOfOtherLanguagesForOne) {
    EXPECT_EQ(
        reportOf(paragraphWith("Mill Road\\nCastleton")),
        R"(a.rtfspec:5:14: warning: \nCastleton is not an RTF control word; readers will ignore it. [unknown-control-word]
    (pt=Mill Road\nCastleton)
                 ^~~~~~~~~~~
    hint: did you mean \line Castleton? For a literal backslash, write \\
)");
}

TEST(ReportsOfTexts, ReportAllHalvesOfACharacterAtOnce) {
    EXPECT_EQ(
        reportOf(paragraphWith("\\u-10179?\\u-8704? {\\uc1\\u345?} \\u345 ?")),
        R"(a.rtfspec:5:5: warning: The ? after \u-10179 will appear in the document. [shown-substitute]
    (pt=\u-10179?\u-8704? {\uc1\u345?} \u345 ?)
        ^~~~~~~~~~~~~~~~~
    hint: write {\uc1\u-10179?\u-8704?}
)");
}

TEST(ReportsOfTexts, DoNotMentionBracesThatGroup) {
    EXPECT_EQ(reportOf(paragraphWith("{\\b a}{\\i {b}} \\u77{}c {} { } {<1=a>}")), "");
}

TEST(ReportsOfPages, ReportMeasuresInAnotherUnitAndOfNoConsequences) {
    EXPECT_EQ(
        reportOf("(doc\n(paper-width=210)\n(paper-height=297)\n(left-margin=2.5)\n"
                 "(right-margin=1000)\n(r\n(c\n(cw=50)\nc)\n(c\n(cw=50)\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:2:14: warning: A paper-width of 210 twips is only 3.7 millimeters. [tiny-measure]
    (paper-width=210)
                 ^~~
    hint: measures are in twips; did you mean 210 millimeters? Write 11906
a.rtfspec:3:15: warning: A paper-height of 297 twips is only 5.2 millimeters. [tiny-measure]
    (paper-height=297)
                  ^~~
    hint: measures are in twips; did you mean 297 millimeters? Write 16838
a.rtfspec:4:14: warning: A left-margin of 2.5 twips is only 0 millimeters. [tiny-measure]
    (left-margin=2.5)
                 ^~~
    hint: measures are in twips; did you mean 2.5 centimeters? Write 1417
)");
}

TEST(ReportsOfPages, DoNotMentionATableThatNearlyFillsThePage) {
    const std::string table = "(r\n(c\nc)\n(c\nc)\nr)\ndoc)\n";
    // Margins of 25 millimeters on A4 leave 9072 twips, those of 20 millimeters 9638.
    EXPECT_EQ(
        reportOf("(doc\n(paper-width=11906)\n(left-margin=1417)\n(right-margin=1417)\n" + table),
        "");
    EXPECT_EQ(
        reportOf("(doc\n(paper-width=11906)\n(left-margin=1134)\n(right-margin=1134)\n" + table),
        R"(a.rtfspec:2:14: warning: The row is 8840 twips wide, but the page has room for 9638. [table-underrun]
    (paper-width=11906)
                 ^~~~~
    hint: the cells are laid out before the page is set up; choose (left-margin=1533) and (right-margin=1533) to leave 8840 twips for them
)");
}

TEST(ReportsOfPages, DoNotMentionASingleCellThatIsMeantToBeNarrow) {
    EXPECT_EQ(reportOf("(doc\n(r\n(c\n(cw=50)\nc)\nr)\ndoc)\n"), "");
}

TEST(ReportsOfPages, SayThatThePaperIsNarrowerThanTheTable) {
    EXPECT_EQ(
        reportOf("(doc\n(paper-width=8000)\n(r\n(c\nc)\n(c\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:3:1: warning: The row is 8840 twips wide, but the page has room for only 4598. [table-overrun]
    (r
    ^~
    hint: the cells are laid out before the page is set up; choose paper that is wider than the table and its margins
)");
}

TEST(ReportsOfWidths, CountTheRowsOfATable) {
    const std::string row = "(r\n(c\n(cw=80)\nc)\n(c\n(cw=10)\nc)\n(c\n(cw=10)\nc)\nr)\n";
    EXPECT_EQ(
        reportOf("(doc\n" + row + row + row + "doc)\n"),
        R"(a.rtfspec:4:5: warning: The cell will be 64 percent wide instead of 80. [width-clamped]
    (cw=80)
        ^~
    hint: the order 10, 80, 10 gives all cells their widths
    (and 2 more like this: lines 15 and 26)
a.rtfspec:7:5: warning: The cell will be 26 percent wide instead of 10. [width-clamped]
    (cw=10)
        ^~
    (and 2 more like this: lines 18 and 29)
)");
}

TEST(ReportsOfStyleSheets, SayThatAnEmptyOneHasNoStyles) {
    const std::string rest =
        "1: warning: The stylesheet has no styles. [no-styles]\n"
        "    hint: the file is empty; write definitions such as { name: "
        "...; style-def: ... }\n";
    EXPECT_EQ(reportOfFile("a.rtfss", ""), "a.rtfss:1:" + rest);
    EXPECT_EQ(reportOfFile("a.rtfss", " \r\n\t\n"), "a.rtfss:1:" + rest);
}

TEST(ReportsOfBinaryFiles, SayOnceWhatTheyAre) {
    const auto expected = [](const std::string& file, const std::string& what) {
        return file + ":1:1: error: This is " + what + ", not a text file. [not-a-text-file]\n";
    };
    const std::string png("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
    for (const char* name : {"a.rtfspec", "a.rtfss", "a.rtf", "a.png"}) {
        EXPECT_EQ(reportOfFile(name, png), expected(name, "a PNG picture"));
    }
    CheckedFiles files;
    files.files = {{"a.rtfspec", paragraphWith("a", "(ps=normal)\n")}, {"a.rtfss", png}};
    CheckOptions options;
    options.files = {"a.rtfspec"};
    options.styleSheet = "a.rtfss";
    EXPECT_EQ(reportOf(files, options), expected("a.rtfss", "a PNG picture"));
}

/// The report of diagnostics about a text.
std::string reportOfDiagnostics(const std::string& file, const std::string& text,
                                const std::vector<Diagnostic>& diagnostics) {
    std::string report;
    for (const Diagnostic& diagnostic : diagnostics) {
        report += diagnosticText(file, diagnostic, excerptAt(diagnostic.place, windowOf(text)),
                                 Colors::Off);
    }
    return report;
}

/// The diagnostic for an error of a leaf that the check has no name for.
std::vector<Diagnostic> diagnosticsOfOtherError(const SourceText& source, std::string_view value) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine([&](Diagnostic each) { diagnostics.push_back(std::move(each)); });
    Leaf leaf{.text = value};
    ViolationReport(source, originalVocabulary(), nullptr,
                    engine)({.error = RtfError(4711, "A new error"), .part = value, .leaf = &leaf});
    return diagnostics;
}

/// The diagnostic for an error of loading a stylesheet that the check has no name for.
std::vector<Diagnostic> diagnosticsOfOtherSheet(const SourceText& source) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine([&](Diagnostic each) { diagnostics.push_back(std::move(each)); });
    engine.report(DiagnosticId::StyleSheetRejected, source.place(0, 11), {"A new error"});
    return diagnostics;
}

std::string templateOf(const std::string& text) {
    return "; quorvane 2\n" + paragraphWith(text);
}

/// The report about a template with data, or without for an empty text.
std::string reportOfTemplate(const std::string& text, const std::string& json = {},
                             const std::string& schema = {}) {
    CheckedFiles platform;
    platform.files = {{"a.rtfspec", text}, {"a.json", json}, {"a.schema.json", schema}};
    CheckOptions options;
    options.files = {"a.rtfspec"};
    if (!schema.empty()) {
        options.schema = "a.schema.json";
    }
    if (!json.empty()) {
        options.data = "a.json";
    }
    return reportOf(platform, options);
}

/// Reports of diagnostics that no text is known for, as the check has names for all errors that the
/// library raises today. One more depends on the name of the file, which an example does not have.
const std::map<std::string, std::pair<std::string, std::string>>& reportsWithoutExample() {
    static const std::map<std::string, std::pair<std::string, std::string>> reports = [] {
        const std::string description = "(doc\n(cw=50)\ndoc)\n";
        const std::string sheet = "{ name: a }\n{ name: b }\n";
        std::map<std::string, std::pair<std::string, std::string>> list;
        list["rejected"] = {
            reportOfDiagnostics(
                "a.rtfspec", description,
                diagnosticsOfOtherError(SourceText(description),
                                        std::string_view(description).substr(9, 2))),
            "a.rtfspec:2:5: error: A new error [rejected]\n    (cw=50)\n        ^~\n"};
        list["stylesheet-rejected"] = {
            reportOfDiagnostics("a.rtfss", sheet, diagnosticsOfOtherSheet(SourceText(sheet))),
            "a.rtfss:1:1: error: A new error [stylesheet-rejected]\n    { name: a }\n"
            "    ^~~~~~~~~~~\n"};
        list["not-a-text-file"] = {
            reportOfFile("a.rtfspec", "%PDF-1.7\n%\xE2\xE3\n1 0 obj\n"),
            "a.rtfspec:1:1: error: This is a PDF file, not a text file. [not-a-text-file]\n"};
        list["not-utf-8"] = {
            reportOfFile("a.rtfspec", "(doc\n; \u0159\xE9\ndoc)\n", EncodingChoice::Utf8),
            "a.rtfspec:2:4: error: The byte E9 in column 4 is not UTF-8. [not-utf-8]\n"
            "    ; \u0159\uFFFD\n"
            "       ^\n"
            "    hint: save the file in UTF-8, or use --encoding windows-1252 if it is in "
            "Windows-1252\n"};
        list["wrong-picture"] = {
            reportOfFile("a.rtfspec",
                         "; quorvane 2\n(doc\n(r\n(c\n(p\n(picture=no.png)\np)\nc)\nr)\ndoc)\n"),
            "a.rtfspec:6:10: error: no.png: File not found. [wrong-picture]\n"
            "    (picture=no.png)\n"
            "             ^~~~~~\n"};
        list["wrong-tag"] = {
            reportOfTemplate(templateOf("{{#a}}")),
            "a.rtfspec:6:5: error: The section that begins here does not end. [wrong-tag]\n"
            "    (pt={{#a}})\n"
            "        ^~~~~~\n"};
        list["wrong-partial"] = {
            reportOfTemplate(templateOf("{{a}}") + "{{> ../no}}\n"),
            "a.rtfspec:11:1: error: ../no.rtfpart: this is not a file in the folder of the "
            "template; move it there. [wrong-partial]\n"
            "    {{> ../no}}\n"
            "    ^~~~~~~~~~~\n"};
        list["missing-name"] = {reportOfTemplate(templateOf("{{nmae}}"), R"({"name":"x"})"),
                                "a.rtfspec:6:5: error: nmae is not in the data. [missing-name]\n"
                                "    (pt={{nmae}})\n"
                                "        ^~~~~~~~\n"
                                "    hint: did you mean name?\n"};
        list["wrong-data"] = {reportOfTemplate(templateOf("{{a|money}}"), R"({"a":"x"})"),
                              "a.rtfspec:6:5: error: a: \"x\" is not a number. [wrong-data]\n"
                              "    (pt={{a|money}})\n"
                              "        ^~~~~~~~~~~\n"};
        list["wrong-json"] = {
            reportOfTemplate(templateOf("{{a}}"), R"({"a":})"),
            "a.json:1:6: error: This is not JSON: unexpected '}'; expected '[', '{', or a literal. "
            "[wrong-json]\n"
            "    {\"a\":}\n"
            "         ^\n"};
        list["wrong-schema"] = {
            reportOfTemplate(templateOf("{{a}}"), R"({"a":1})", R"({"type":"txt"})"),
            "a.schema.json:1:9: error: type takes array, boolean, integer, null, number, object "
            "or string, or a list of them. [wrong-schema]\n"
            "    {\"type\":\"txt\"}\n"
            "            ^~~~~\n"};
        list["schema-mismatch"] = {
            reportOfTemplate(templateOf("{{a}}"), R"({"a":1})",
                             R"({"properties":{"a":{"type":"string"}}})"),
            "a.json:1:6: error: /a is a number; the schema asks for a text. [schema-mismatch]\n"
            "    {\"a\":1}\n"
            "         ^\n"};
        list["bad-character"] = {
            reportOfFile("a.rtfss", "; quorvane 2\n; a\x07\n{ name: a; style-def: cell }\n"),
            "a.rtfss:2:4: error: No document can show the control character U+0007. "
            "[bad-character]\n    ; a \n       ^\n    hint: leave it out\n"};
        list["wrong-extension"] = {
            reportOfFile("a.rtf", "(doc\n(r\n(c\nc)\nr)\ndoc)\n"),
            "a.rtf:1:1: warning: This is a description, but its extension is .rtf. "
            "[wrong-extension]\n    (doc\n    ^~~~\n"
            "    hint: the file looks like a description; its extension should be .rtfspec\n"};
        return list;
    }();
    return reports;
}

TEST(ReportsWithoutExample, SayWhatIsWrong) {
    for (const auto& [identifier, report] : reportsWithoutExample()) {
        EXPECT_EQ(report.first, report.second);
    }
}

/// The pages' examples are compared with whole reports, see the tests of the page.
TEST(Reports, AreTestedAsAWholeForEveryDiagnostic) {
    for (const DiagnosticRule& rule : diagnosticRules()) {
        const bool isTestedHere = reportsWithoutExample().contains(std::string(rule.identifier));
        EXPECT_NE(isTestedHere, !rule.wrong.empty()) << rule.identifier;
    }
}

}  // namespace
}  // namespace quorvane::cli
