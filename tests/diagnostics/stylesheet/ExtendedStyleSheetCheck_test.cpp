// What check reports about stylesheets in the extended language: identifiers, places and hints.

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> described(const std::vector<Diagnostic>& diagnostics) {
    std::vector<std::string> texts;
    for (const Diagnostic& diagnostic : diagnostics) {
        texts.push_back(
            std::to_string(diagnostic.place.line) + ":" + std::to_string(diagnostic.place.column) +
            " " + std::string(diagnosticRule(diagnostic.id).identifier) + ": " + diagnostic.hint +
            (diagnostic.fix ? " => " + diagnostic.fix->replacement : std::string()));
    }
    return texts;
}

std::vector<std::string> diagnosticsOf(std::string_view styles) {
    return described(checkStyleSheet("; quorvane 2\n" + std::string(styles)));
}

/// Those of the items of a paragraph style.
std::vector<std::string> diagnosticsIn(std::string_view items) {
    return diagnosticsOf("{ name: x; style-def: paragraph;\n" + std::string(items) + " }");
}

TEST(CheckOfAnExtendedSheet, ReportsEveryViolationAtItsPlace) {
    EXPECT_THAT(diagnosticsOf("{ name: a; style-def: paragraph; bald }\n"
                              "{ name: \u0159\u0159; style-def: paragraph; size: 11 }\n"
                              "}"),
                ElementsAre("2:34 unknown-item: did you mean bold? => bold",
                            "3:41 bad-item-value: write the unit: 11pt",
                            "4:1 lone-brace: its { is missing"));
}

TEST(CheckOfAnExtendedSheet, NamesTheKeywordForAWordFromElsewhere) {
    EXPECT_THAT(diagnosticsIn("font-size: 11pt"),
                ElementsAre("3:1 unknown-item: write size => size"));
    EXPECT_THAT(diagnosticsIn("text-decoration: underline"),
                ElementsAre("3:1 unknown-item: write underline or strike"));
    EXPECT_THAT(diagnosticsIn("format: \\b"),
                ElementsAre("3:1 unknown-item: write control words after rtf:"));
    EXPECT_THAT(diagnosticsIn("\\b"),
                ElementsAre("3:1 unknown-item: write control words after rtf:"));
    EXPECT_THAT(diagnosticsIn("size 11pt"),
                ElementsAre("3:1 unknown-item: write a : after the keyword size"));
}

TEST(CheckOfAnExtendedSheet, SaysWhatAValueMustBe) {
    EXPECT_THAT(diagnosticsIn("space-before: 1,5cm"),
                ElementsAre("3:15 bad-item-value: write a point: 1.5cm => 1.5cm"));
    EXPECT_THAT(diagnosticsIn("space-before: 10px"),
                ElementsAre("3:15 bad-item-value: a pixel is 0.75pt: write 7.5pt"));
    EXPECT_THAT(diagnosticsIn("color: dark-redd"),
                ElementsAre("3:8 bad-item-value: did you mean dark-red? => dark-red"));
    EXPECT_THAT(diagnosticsIn("color: #123"),
                ElementsAre("3:8 bad-item-value: write the name of a color, six digits such as "
                            "#1f4e79, or none"));
    EXPECT_THAT(diagnosticsIn("align: middle"),
                ElementsAre("3:8 bad-item-value: write left, center, right or justify"));
    EXPECT_THAT(diagnosticsIn("language: de-DD"),
                ElementsAre("3:11 bad-item-value: did you mean de-DE?"));
    EXPECT_THAT(diagnosticsIn("rtf: \\par"),
                ElementsAre("3:6 bad-item-value: write control words that format text, such as "
                            "\\outl\\shad"));
}

TEST(CheckOfAnExtendedSheet, NamesTheStyleThatWasMeant) {
    EXPECT_THAT(diagnosticsOf("{ name: amount; style-def: s }\n"
                              "{ name: amonut; style-def: cs }\n"
                              "{ name: total; style-def: s; based-on: amounts }"),
                ElementsAre("4:40 missing-style: did you mean amount? => amount"));
}

TEST(CheckOfAnExtendedSheet, SaysWhatToDoAboutCharactersThatCannotBeThere) {
    EXPECT_THAT(diagnosticsOf("{ name: a; style-def: s }\n; \x07"),
                ElementsAre("3:3 bad-character: leave it out"));
    EXPECT_THAT(diagnosticsOf("{ name: a; style-def: s }\n; \xE9"),
                ElementsAre("3:3 bad-character: save the file in UTF-8"));
}

TEST(CheckOfAnExtendedSheet, ReportsASheetWithoutStyles) {
    EXPECT_THAT(diagnosticsOf("; nothing yet\n"),
                ElementsAre("1:1 no-styles: write styles such as { name: ...; style-def: "
                            "paragraph; ... }"));
}

TEST(CheckOfAnExtendedSheet, FollowsIgnoreComments) {
    EXPECT_THAT(diagnosticsOf("; quorvane: ingore lone-brace\n{ name: a; style-def: s }"),
                ElementsAre("2:13 ignore-comment: did you mean ignore? => ignore"));
}

TEST(CheckOfAnExtendedSheet, IgnoresWhatACommentSaysOfTheNextStyle) {
    const std::string text =
        "; quorvane 2\n; {\n; quorvane: ignore unused-style\n; { } another comment\n"
        "{ name: a; style-def: paragraph;\n  bold }\n{ name: b; style-def: paragraph }\n";
    const KnownStyles styles(text);

    EXPECT_THAT(
        described(withoutIgnored(findUnusedStyles(styles), text, CheckedLanguage::StyleSheet)),
        ElementsAre("7:9 unused-style: "));
}

constexpr const char* description =
    "(doc\n(row\n(cell\n(para\n(pt=<strong=Total>)\n(ps=total)\npara)\ncell)\n(cell\ncell)\nrow)"
    "\ndoc)\n";

TEST(CheckWithAnExtendedSheet, FindsTheStylesOfADescription) {
    KnownStyles styles(
        "; quorvane 2\n{ name: total; style-def: paragraph; bold }\n"
        "{ name: strong; style-def: character; bold }\n"
        "{ name: other; style-def: character; bold }\n");

    // Styles never share a number.
    EXPECT_THAT(described(checkDescription(description, &styles)), IsEmpty());
    EXPECT_THAT(described(findUnusedStyles(styles)), ElementsAre("4:9 unused-style: "));
}

TEST(CheckWithAnExtendedSheet, FindsTheStylesOfASheetWithViolations) {
    KnownStyles styles(
        "; quorvane 2\n{ name: total; style-def: paragraph; bald; color: yellow }\n"
        "{ name: strong; style-def: caracter; bold }\n}");

    EXPECT_THAT(described(checkDescription(description, &styles)),
                ElementsAre("5:5 low-contrast: "));
}

TEST(CheckWithAnExtendedSheet, SaysThatNormalStandsInForAnUnknownStyle) {
    KnownStyles styles(
        "; quorvane 2\n{ name: strong; style-def: cs }{ name: normal; style-def: s }");
    const std::vector<Diagnostic> diagnostics = checkDescription(description, &styles);

    ASSERT_EQ(diagnostics.size(), 1U);
    EXPECT_EQ(diagnostics.front().message,
              "The stylesheet has no paragraph style total; normal is used instead.");
}

}  // namespace
}  // namespace quorvane
