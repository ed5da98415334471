#include "quorvane/formatting/formatStyleSheet.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

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

/// The document that a sheet makes, or the error of loading it.
std::string outcomeOf(const std::string& sheet) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    try {
        driver->LoadStyleSheetFromMemmory(sheet);
    } catch (const RtfError& error) {
        return error.description;
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
