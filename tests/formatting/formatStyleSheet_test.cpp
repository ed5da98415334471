#include "quorvane/formatting/formatStyleSheet.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

TEST(FormatStyleSheet, WritesADefinitionOnALine) {
    EXPECT_EQ(formattedStyleSheet("{NAME:normal,Base;\nstyle-def : s;format:\\f9 ; }"),
              "{ name: normal, Base; style-def: s; format: \\f9 }\n");
}

TEST(FormatStyleSheet, WritesALongDefinitionOnSeveralLines) {
    const std::string format(80, 'x');
    EXPECT_EQ(formattedStyleSheet("{name:normal;style-def:s;format:" + format + "}"),
              "{\n  name: normal;\n  style-def: s;\n  format: " + format + "\n}\n");
}

TEST(FormatStyleSheet, KeepsTextBetweenDefinitions) {
    EXPECT_EQ(
        formattedStyleSheet("\n\nAbout:  \n  more\n\n\n\n{name:a} b {name:c}\n\n{name:d}\nend\n\n"),
        "About:\n  more\n\n{ name: a }\nb\n{ name: c }\n\n{ name: d }\nend\n");
}

TEST(FormatStyleSheet, KeepsTheKindOfLineEnds) {
    EXPECT_EQ(formattedStyleSheet("{name:a}\r\n{name:b}"), "{ name: a }\r\n{ name: b }\r\n");
}

TEST(FormatStyleSheet, LeavesBracesThatDoNotTakeTurnsAlone) {
    for (const std::string text : {"{name:a", "name:a}", "}{", "{a{b}}", "{ name:a }}{"}) {
        EXPECT_EQ(formattedStyleSheet(text), text);
    }
}

TEST(FormatStyleSheet, LeavesAnEmptyTextEmpty) {
    EXPECT_EQ(formattedStyleSheet(""), "");
    EXPECT_EQ(formattedStyleSheet("\n \n"), "");
}

TEST(FormatExtendedStyleSheet, WritesItemsInOneForm) {
    EXPECT_EQ(formattedStyleSheet(" ;quorvane 2 \n"
                                  "{NAME:Normal,Base;\nstyle-def : S;font:  Noto Sans ;; Bold: YES;"
                                  "Align:RIGHT;color:\n Dark-Red ; }"),
              "; quorvane 2\n"
              "{ name: Normal, Base; style-def: paragraph; font: Noto Sans; bold; align: right; "
              "color: Dark-Red }\n");
    EXPECT_EQ(formattedStyleSheet("; quorvane 2\n{name:a;style-def:cs;Italic:NO;rtf:\\outl  \\b}"),
              "; quorvane 2\n{ name: a; style-def: character; italic: no; rtf: \\outl \\b }\n");
}

TEST(FormatExtendedStyleSheet, KeepsCommentsAndOneBlankLineOfSeveral) {
    EXPECT_EQ(formattedStyleSheet("; quorvane 2\n\n\n  ; { Texts }  \n{name:a;style-def:cs}"
                                  "{name:b;style-def:cell}\n\n\n\n; end\n\n"),
              "; quorvane 2\n\n; { Texts }\n{ name: a; style-def: character }\n"
              "{ name: b; style-def: cell }\n\n; end\n");
}

TEST(FormatStyleSheet, LeavesASheetAloneWhoseFirstLineWouldBecomeTheMark) {
    const std::string sheet = "; quorvane 2{name:a;style-def:s;format:\\b}";
    EXPECT_EQ(formattedStyleSheet(sheet), sheet);
}

TEST(FormatExtendedStyleSheet, WritesALongStyleOnSeveralLines) {
    EXPECT_EQ(formattedStyleSheet("; quorvane 2\r\n{name:a;style-def:s;tab-stops:1cm,2cm right,"
                                  "3cm decimal;space-before:3pt;space-after:3pt;keep-together}"),
              "; quorvane 2\r\n{\r\n  name: a;\r\n  style-def: paragraph;\r\n"
              "  tab-stops: 1cm,2cm right,3cm decimal;\r\n  space-before: 3pt;\r\n"
              "  space-after: 3pt;\r\n  keep-together\r\n}\r\n");
}

TEST(FormatExtendedStyleSheet, KeepsTheByteOrderMark) {
    EXPECT_EQ(formattedStyleSheet("\xEF\xBB\xBF;quorvane 2\n{name:a;style-def:s}"),
              "\xEF\xBB\xBF; quorvane 2\n{ name: a; style-def: paragraph }\n");
}

TEST(FormatExtendedStyleSheet, LeavesSheetsAloneInWhichABraceMayBeMissing) {
    for (const std::string styles :
         {"{name:a", "name:a}", "}{", "{a{b}}", "{name:a} text", "{name:a};"}) {
        EXPECT_EQ(formattedStyleSheet("; quorvane 2\n" + styles), "; quorvane 2\n" + styles);
    }
}

/// The document that a sheet makes, or the error of loading it.
std::string outcomeOf(const std::string& sheet) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    driver->RtfObject()->setExtendedStyleSheets(true);
    try {
        driver->LoadStyleSheetFromMemmory(sheet);
    } catch (const RtfError& error) {
        // Formatting changes the lines.
        return isMarkedExtended(sheet) ? "an error" : error.description;
    }
    driver->ParseFromMemmory("(doc\n(r\n(c\n(cs=shaded)\n(p\n(pt=<a=x>)\n(ps=b)\np)\nc)\nr)\ndoc)");
    return driver->Contents();
}

void expectSameOutcome(const std::string& sheet) {
    const std::string formatted = formattedStyleSheet(sheet);
    ASSERT_EQ(formattedStyleSheet(formatted), formatted) << sheet;
    ASSERT_EQ(outcomeOf(formatted), outcomeOf(sheet)) << sheet << formatted;
}

TEST(FormatStyleSheet, ChangesNoDocumentAndNothingTheSecondTime) {
    static const std::vector<std::string> parts{"{ ",          "{",
                                                " }\n",        "}",
                                                ";",           "; ",
                                                "name: a",     "name:b",
                                                "NAME: C, d,", "style-def",
                                                ": s",         ": cs",
                                                ": cell",      ": x",
                                                "format",      ": \\fs20",
                                                "additive",    ": yes",
                                                "next",        ":",
                                                "\n",          " note ",
                                                "  \n",        "\r\n",
                                                "name: a; ",   "; style-def: s",
                                                "{name: b;",   "format: \\b",
                                                ",",           "\t"};
    RandomDescriptions random(13);
    for (int i = 0; i < 1000; ++i) {
        std::string sheet;
        for (std::size_t count = random.below(25); count > 0; --count) {
            sheet += parts[random.below(parts.size())];
        }
        ASSERT_NO_FATAL_FAILURE(expectSameOutcome(sheet));
        ASSERT_NO_FATAL_FAILURE(expectSameOutcome("{name: a;" + sheet + "}" + sheet));
    }
}

TEST(FormatExtendedStyleSheet, ChangesNoDocumentAndNothingTheSecondTime) {
    static const std::vector<std::string> parts{"}\n{ ",
                                                "}\n{ ",
                                                "\n}\n\n{",
                                                "}{",
                                                "; note\n",
                                                ";",
                                                "; ",
                                                "name: a",
                                                "name: B",
                                                "name: a, b",
                                                "style-def:s",
                                                "bold",
                                                "Bold: YES",
                                                "bold: no",
                                                "size: 11pt",
                                                "size: 9  pt",
                                                "font: X",
                                                "color: RED",
                                                "color:#12aBc3",
                                                "based-on: b",
                                                "next:A",
                                                "align: x",
                                                "rtf: \\outl \\shad",
                                                "\r\n",
                                                "tab-stops: 1cm,  2cm right",
                                                "background: silver",
                                                "style-def: cell",
                                                "style-def: Character"};
    RandomDescriptions random(15);
    for (int i = 0; i < 2000; ++i) {
        std::string styles;
        for (std::size_t count = random.below(12); count > 0; --count) {
            styles += parts[random.below(parts.size())] + ";";
        }
        ASSERT_NO_FATAL_FAILURE(
            expectSameOutcome("; quorvane 2\n{name: a;style-def:s;" + styles + "}"));
    }
}

TEST(FormatStyleSheet, ChangesNoGoldenDocument) {
    RandomDescriptions random(14);
    for (const std::string& text : textsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfss")) {
        ASSERT_NO_FATAL_FAILURE(expectSameOutcome(text));
        for (int i = 0; i < 20; ++i) {
            ASSERT_NO_FATAL_FAILURE(expectSameOutcome(random.mutated(text, 1 + random.below(5))));
        }
    }
}

}  // namespace
}  // namespace quorvane
