// Whole reports about descriptions and their stylesheets.

#include <gtest/gtest.h>

#include <string>

#include "tests/cli/reportOf.h"

namespace quorvane::cli {
namespace {

TEST(ReportsOfTexts, TellOfControlsThatBreakTheTable) {
    EXPECT_EQ(
        reportOf(paragraphWith("a\\cell b\\row {\\trowd\\cellx99} \\sect")),
        R"(a.rtfspec:5:6: warning: \cell breaks the table in the middle of a text. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
         ^~~~~
a.rtfspec:5:13: warning: \row breaks the table in the middle of a text. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                ^~~~
a.rtfspec:5:19: warning: \trowd breaks the table in the middle of a text. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                      ^~~~~~
a.rtfspec:5:25: warning: \cellx99 breaks the table in the middle of a text. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                            ^~~~~~~~
a.rtfspec:5:35: warning: \sect breaks the table in the middle of a text. [table-control]
    (pt=a\cell b\row {\trowd\cellx99} \sect)
                                      ^~~~~
)");
}

TEST(ReportsOfTexts, SayNothingOfATableWithinAFootnoteOrANestedOne) {
    EXPECT_EQ(reportOf(paragraphWith("a{\\footnote \\trowd\\cellx9 b\\cell\\row}")), "");
    EXPECT_EQ(reportOf(paragraphWith("\\itap2 a\\nestcell{\\*\\nesttableprops\\trowd\\cellx9"
                                     "\\nestrow}\\itap1 b")),
              "");
}

TEST(ReportsOfTexts, TellOfNumbersThatTheTablesDoNotHave) {
    EXPECT_EQ(
        reportOf(paragraphWith("\\f18\\cf58\\highlight99\\cb-1\\ts1 \\f17\\cf57\\cb0\\s100 a")),
        R"(a.rtfspec:5:5: warning: \f18 names no font of the document. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
        ^~~~
a.rtfspec:5:9: warning: \cf58 names no color of the document. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
            ^~~~~
a.rtfspec:5:14: warning: \highlight99 names no color of the document. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
                 ^~~~~~~~~~~~
a.rtfspec:5:26: warning: \cb-1 names no color of the document. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
                             ^~~~~
a.rtfspec:5:31: warning: \ts1 names no style of the document. [unknown-number]
    (pt=\f18\cf58\highlight99\cb-1\ts1 \f17\cf57\cb0\s100 a)
                                  ^~~~
)");
}

TEST(ReportsOfTexts, LookNumbersOfStylesUpInTheStyleSheet) {
    const std::string sheet = "{ name: normal; style-def: s }\n{ name: b; style-def: s }\n";
    EXPECT_EQ(reportOf(paragraphWith("\\s0\\s101 a", "(ps=b)\n"), sheet), "");
    EXPECT_EQ(reportOf(paragraphWith("\\s102{\\cs100 a}", "(ps=b)\n"), sheet),
              R"(a.rtfspec:5:5: warning: \s102 names no style of the document. [unknown-number]
    (pt=\s102{\cs100 a})
        ^~~~~
a.rtfspec:5:11: warning: \cs100 names no style of the document. [unknown-number]
    (pt=\s102{\cs100 a})
              ^~~~~~
)");
}

TEST(ReportsOfFormats, TellOfControlsAndNumbersThatDoNotFit) {
    EXPECT_EQ(reportOf(paragraphWith("a"),
                       "{ name: normal; style-def: s; format: \\F99\\cf58\\cell\\s102 }\n"),
              R"(a.rtfss:1:39: warning: \F99 names no font of the document. [unknown-number]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                          ^~~~
a.rtfss:1:43: warning: \cf58 names no color of the document. [unknown-number]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                              ^~~~~
a.rtfss:1:48: warning: \cell breaks the table in the middle of a text. [table-control]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                                   ^~~~~
a.rtfss:1:53: warning: \s102 names no style of the document. [unknown-number]
    { name: normal; style-def: s; format: \F99\cf58\cell\s102 }
                                                        ^~~~~
)");
}

TEST(ReportsOfFormats, GiveHintsThatHoldInAStyleSheet) {
    EXPECT_EQ(
        reportOf(paragraphWith("a"), "{ name: normal; style-def: s; format: \\bold\\xyzzyx\\5 }\n"),
        R"(a.rtfss:1:39: warning: \bold is no RTF control word. [unknown-control-word]
    { name: normal; style-def: s; format: \bold\xyzzyx\5 }
                                          ^~~~~
    hint: did you mean \b?
a.rtfss:1:44: warning: \xyzzyx is no RTF control word. [unknown-control-word]
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
        R"(a.rtfss:1:39: warning: The { has no partner. [unbalanced-brace]
    { name: normal; style-def: s; format: {\b }
                                          ^
    hint: a stylesheet has no braces but those around its definitions
a.rtfss:1:40: error: Error while processing stylesheet. \b } { name is not a valid keyword. [bad-keyword]
    { name: normal; style-def: s; format: {\b }
                                           ^~~~
    hint: a definition begins with name:
a.rtfss:2:3: warning: The definition has no style-def and is a cell style. [no-style-kind]
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
        R"(a.rtfspec:5:16: warning: The text is white on white and can hardly be read. [low-contrast]
    (pt=dark <pale=white> {\cf37 yellow} <marked=none> dark)
                   ^~~~~
a.rtfspec:5:30: warning: The text is yellow on white and can hardly be read. [low-contrast]
    (pt=dark <pale=white> {\cf37 yellow} <marked=none> dark)
                                 ^~~~~~
a.rtfspec:5:46: warning: The text is black on black and can hardly be read. [low-contrast]
    (pt=dark <pale=white> {\cf37 yellow} <marked=none> dark)
                                                 ^~~~
)");
}

TEST(ReportsOfColors, TakeTheLastColorBeforeTheText) {
    // A dark cell makes its text white, whatever the style's color; \plain makes it black.
    const std::string dark = "(doc\n(r\n(c\n(cb=black)\n(p\n(pt=a \\plain b)\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(
        reportOf(dark, "{ name: normal; style-def: s; format: \\cf3 }\n"),
        R"(a.rtfspec:6:14: warning: The text is black on black and can hardly be read. [low-contrast]
    (pt=a \plain b)
                 ^
)");
    EXPECT_EQ(reportOf(paragraphWith("{\\cf36 {\\cf3 a}{\\field{\\*\\fldinst PAGE}} }b")), "");
    EXPECT_EQ(reportOf(paragraphWith("{\\highlight3\\cf36 a}")), "");
}

TEST(ReportsOfColors, MarkTheWholeTextWhereItsOwnColorIsTheReason) {
    EXPECT_EQ(
        reportOf(paragraphWith("a {\\cf3 b} c"),
                 "{ name: normal; style-def: s; format: \\cf36 }\n"),
        R"(a.rtfspec:5:5: warning: The text is white on white and can hardly be read. [low-contrast]
    (pt=a {\cf3 b} c)
        ^~~~~~~~~~~~
)");
}

TEST(ReportsOfFields, TakeTheInstructionForWhatItSays) {
    const auto expectFinding = [](const std::string& instruction, const std::string& brought) {
        const std::string report =
            reportOf(paragraphWith("{\\field{\\*\\fldinst " + instruction + "}}"));
        EXPECT_EQ(report,
                  "a.rtfspec:5:15: warning: \\fldinst brings " + brought +
                      " into the document. [embedded-content]\n    (pt={\\field{\\*\\fldinst " +
                      instruction + "}})\n                  ^~~~~~~~\n");
    };
    expectFinding("{\\b INCLUDETEXT x}", "a link to a file");
    expectFinding("IN{}CLUDETEXT x", "a link to a file");
    expectFinding("\\'49NCLUDETEXT x", "a link to a file");
    expectFinding("{\\uc1\\u73?}{\\i N}CLUDE\\b0 TEXT x", "a link to a file");
    expectFinding("{\\*\\datafield QUOTE}dde{\\rtlch auto} x", "a link to a program");
    expectFinding("{\\cs100 MACRO}{\\cs100 BUTTON} x y", "a macro");
    expectFinding("HYPERLINK \"c:\\\\x http://\"", "a link to a file");
    expectFinding("HYPER{\\b LINK} file:///x", "a link to a file");
}

TEST(ReportsOfFields, JudgeFieldsWithinFields) {
    EXPECT_EQ(
        reportOf(paragraphWith("{\\field{\\*\\fldinst {\\field{\\*\\fldinst QUOTE}"
                               "{\\fldrslt LINK}} x}}")),
        R"(a.rtfspec:5:15: warning: \fldinst brings a link to a file into the document. [embedded-content]
    (pt={\field{\*\fldinst {\field{\*\fldinst QUOTE}{\fldrslt LINK}} x}})
                  ^~~~~~~~
)");
    EXPECT_EQ(
        reportOf(paragraphWith("{\\field{\\*\\fldinst IF {\\field{\\*\\fldinst DDE x}}}}")),
        R"(a.rtfspec:5:37: warning: \fldinst brings a link to a program into the document. [embedded-content]
    (pt={\field{\*\fldinst IF {\field{\*\fldinst DDE x}}}})
                                        ^~~~~~~~
)");
}

TEST(ReportsOfFields, SayNothingOfHarmlessOnes) {
    for (const char* instruction :
         {"PAGE", "HYPERLINK \"https://a.example/x\"", "HYPERLINK mailto:a@b.example",
          "HYPERLINK \\\\l \"place\"", "QUOTE INCLUDETEXT", "{\\b DATE} \\\\@ \"d\""}) {
        EXPECT_EQ(reportOf(paragraphWith("{\\field{\\*\\fldinst " + std::string(instruction) +
                                         "}{\\fldrslt INCLUDETEXT}}")),
                  "")
            << instruction;
    }
}

TEST(ReportsOfWidths, TellOfASingleCellThatIsTooNarrow) {
    EXPECT_EQ(
        reportOf("(doc\n(r\n(c\n(cw=1)\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:4:5: warning: The cell becomes 2 per cent wide instead of 1. [width-clamped]
    (cw=1)
        ^
)");
    EXPECT_EQ(reportOf("(doc\n(r\n(c\n(cw=50)\nc)\nr)\ndoc)\n"), "");
}

TEST(ReportsOfWidths, TellOfAPageWithoutRoom) {
    EXPECT_EQ(
        reportOf("(doc\n(bottom-margin=9000)\n(paper-height=8000)\n(r\n(c\nc)\nr)\ndoc)\n"),
        R"(a.rtfspec:3:15: warning: The margins are 10418 twips high together, the paper is 8000. [no-room]
    (paper-height=8000)
                  ^~~~
)");
}

TEST(ReportsOfCharacters, FindThemInEverythingThatReachesTheDocument) {
    // A file in UTF-8 with an arrow, which the code page does not have, and with an e acute.
    EXPECT_EQ(
        reportOf(paragraphWith("a", "(pmf=\xE2\x86\x92)\n")),
        "a.rtfspec:6:6: warning: The code page has no place for \xE2\x86\x92, which becomes a "
        "question mark. [unencodable-character]\n"
        "    (pmf=\xC3\xA2\xE2\x80\xA0\xE2\x80\x99)\n"
        "         ^~~\n");
    EXPECT_EQ(reportOf("(doc\n(r\n(c\n(cmf=\xC3\xA9)\nc)\nr)\ndoc)\n"),
              "a.rtfspec:4:6: warning: \xC3\xA9 is read as \xC3\x83\xC2\xA9: the file is in UTF-8. "
              "[utf-8-text]\n"
              "    (cmf=\xC3\x83\xC2\xA9)\n"
              "         ^~\n"
              "    hint: save the file in Windows-1252\n");
    EXPECT_EQ(reportOfFile("a.rtfss",
                           "{ name: normal; style-def: s }\n{ name: \xC3\xA9; style-def: cell; "
                           "format: none }\n{ name: normal, \xC3\xA9; style-def: cs }\n"),
              "a.rtfss:3:17: warning: \xC3\xA9 is read as \xC3\x83\xC2\xA9: the file is in UTF-8. "
              "[utf-8-text]\n"
              "    { name: normal, \xC3\x83\xC2\xA9; style-def: cs }\n"
              "                    ^~\n"
              "    hint: save the file in Windows-1252\n");
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
    hint: a paragraph style is s
a.rtfss:3:3: error: Error while processing stylesheet. nam is not a valid keyword. [bad-keyword]
    { nam: strong; style-def: cs; format: \b }
      ^~~
    hint: a definition begins with name:
a.rtfspec:5:25: warning: The stylesheet has no character style string: its text gets no format. [unknown-character-style]
    (pt=<strong=a> <sum=b> <string=c>)
                            ^~~~~~
    hint: did you mean strong?
a.rtfspec:6:5: warning: The stylesheet has no paragraph style nromal: normal stands in for it. [unknown-paragraph-style]
    (ps=nromal)
        ^~~~~~
    hint: did you mean normal?
)");
}

}  // namespace
}  // namespace quorvane::cli
