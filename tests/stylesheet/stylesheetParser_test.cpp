#include "quorvane/stylesheet/stylesheetParser.h"

#include <gmock/gmock.h>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

bool operator==(const StyleDefinition& a, const StyleDefinition& b) {
    return a.names == b.names && a.record == b.record;
}

void PrintTo(const StyleDefinition& definition, std::ostream* stream) {
    *stream << testing::PrintToString(definition.names) << ' ' << definition.record;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Definitions = std::vector<StyleDefinition>;

Definitions parse(std::string_view text) {
    Definitions definitions;
    parseStyleSheet(text, [&definitions](StyleDefinition definition) {
        definitions.push_back(std::move(definition));
    });
    return definitions;
}

// Expects this error from the text, and returns what was passed before it.
Definitions expectRefused(std::string_view text, std::int32_t number,
                          const std::string& description) {
    Definitions definitions;
    try {
        parseStyleSheet(text, [&definitions](StyleDefinition definition) {
            definitions.push_back(std::move(definition));
        });
        ADD_FAILURE() << "taken: " << text;
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, number);
        EXPECT_EQ(error.description, description);
        EXPECT_EQ(error.source, "");
    }
    return definitions;
}

TEST(StylesheetParser, ReadsDefinitionsInOrder) {
    EXPECT_THAT(
        parse("{ name: normal; style-def: s; format: \\f9\\fs20 }\r\n"
              "{ name: title, heading; style-def: s; format: \\f0\\fs28\\b; based-on: normal; "
              "next: normal; additive: no }\r\n"
              "{ name: strong; style-def: cs; format: \\b; additive: yes }\r\n"
              "{ name: shaded; style-def: cell }\r\n"),
        ElementsAre(StyleDefinition{{"normal"}, "^ds^f\\f9\\fs20"},
                    StyleDefinition{{"title", "heading"}, "^ds^f\\f0\\fs28\\b^bnormal^nnormal^ano"},
                    StyleDefinition{{"strong"}, "^dcs^f\\b^ayes"},
                    StyleDefinition{{"shaded"}, "^dcell"}));
}

TEST(StylesheetParser, FindsNothingInAnEmptyText) {
    EXPECT_THAT(parse(""), IsEmpty());
    EXPECT_THAT(parse(" \r\n; name: x"), IsEmpty());
}

TEST(StylesheetParser, IgnoresTextOutsideBraces) {
    EXPECT_THAT(parse("a: b; {name:x} nonsense {name:y};;"),
                ElementsAre(StyleDefinition{{"x"}, ""}, StyleDefinition{{"y"}, ""}));
}

TEST(StylesheetParser, KeepsTheOrderOfTheItems) {
    EXPECT_THAT(parse("{name:x;additive:yes;next:n;format:f;based-on:b;style-def:cs}"),
                ElementsAre(StyleDefinition{{"x"}, "^ayes^nn^ff^bb^dcs"}));
}

TEST(StylesheetParser, KeepsRepeatedItems) {
    EXPECT_THAT(parse("{name:x;format:one;format:two}"),
                ElementsAre(StyleDefinition{{"x"}, "^fone^ftwo"}));
}

TEST(StylesheetParser, LowersTheCaseOfNamesKeywordsAndValues) {
    EXPECT_THAT(
        parse("{NAME: Title, \xC3\x89T\xC3\x89; STYLE-DEF: S; Format: \\B; Based-On: "
              "Normal; ADDITIVE: Yes}"),
        ElementsAre(StyleDefinition{{"title", "\xC3\xA9t\xC3\xA9"}, "^ds^f\\b^bnormal^ayes"}));
}

TEST(StylesheetParser, TrimsBlanksTabsAndLineBreaks) {
    EXPECT_THAT(parse("{\r\n\tname \t: \r\n one ,\ttwo\r\n;\r\n  style-def :\ts \r\n}"),
                ElementsAre(StyleDefinition{{"one", "two"}, "^ds"}));
}

TEST(StylesheetParser, KeepsBlanksWithinNamesAndValues) {
    EXPECT_THAT(parse("{name: sub title; format: \\f1 \\b}"),
                ElementsAre(StyleDefinition{{"sub title"}, "^f\\f1 \\b"}));
}

TEST(StylesheetParser, SplitsAnItemAtItsFirstColon) {
    EXPECT_THAT(parse("{name: a:b; format: x:y:z}"),
                ElementsAre(StyleDefinition{{"a:b"}, "^fx:y:z"}));
}

TEST(StylesheetParser, TakesEmptyNames) {
    EXPECT_THAT(parse("{name:}"), ElementsAre(StyleDefinition{{""}, ""}));
    EXPECT_THAT(parse("{name: a,, b,}"), ElementsAre(StyleDefinition{{"a", "", "b", ""}, ""}));
}

TEST(StylesheetParser, SkipsAnEmptyItemAfterTheLastSemicolon) {
    EXPECT_THAT(parse("{name: x; style-def: s; \r\n}"), ElementsAre(StyleDefinition{{"x"}, "^ds"}));
}

TEST(StylesheetParser, RefusesAnyOtherEmptyItem) {
    for (const char* text : {"{; name: x}", "{name: x;; style-def: s}", "{name: x; ; }", "{;}"}) {
        expectRefused(text, 445, "Error while processing stylesheet.\r\n is not a valid keyword.");
    }
}

TEST(StylesheetParser, TakesAnItemWithoutColonForAKeywordWithoutValue) {
    EXPECT_THAT(parse("{name; format; next; based-on}"),
                ElementsAre(StyleDefinition{{""}, "^f^n^b"}));
    expectRefused("{name: x; style-def}", 445, " is not a valid value for style-def");
    expectRefused("{name: x; bold}", 445,
                  "Error while processing stylesheet.\r\nbold is not a valid keyword.");
}

TEST(StylesheetParser, JoinsTheSubfieldsOfAFormat) {
    EXPECT_THAT(parse("{name: x; format: ^p\\fs20^v\\b^f\\f1}"),
                ElementsAre(StyleDefinition{{"x"}, "^f\\b\\f1\\fs20"}));
}

TEST(StylesheetParser, TakesAbsentSubfieldsOfAFormatForEmpty) {
    EXPECT_THAT(parse("{name: x; format: ^f\\f1}"), ElementsAre(StyleDefinition{{"x"}, "^f\\f1"}));
    EXPECT_THAT(parse("{name: x; format: ^z\\f1}"), ElementsAre(StyleDefinition{{"x"}, "^f"}));
}

TEST(StylesheetParser, TakesAFormatForSubfieldsOnlyWhenItBeginsWithOne) {
    EXPECT_THAT(parse("{name: x; format: \\b^f\\f1}"),
                ElementsAre(StyleDefinition{{"x"}, "^f\\b^f\\f1"}));
    EXPECT_THAT(parse("{name: x; format: ^}"), ElementsAre(StyleDefinition{{"x"}, "^f^"}));
}

TEST(StylesheetParser, AcceptsEveryKindOfStyle) {
    EXPECT_THAT(parse("{name:a;style-def:s}{name:b;style-def:cs}{name:c;style-def:cell}"),
                ElementsAre(StyleDefinition{{"a"}, "^ds"}, StyleDefinition{{"b"}, "^dcs"},
                            StyleDefinition{{"c"}, "^dcell"}));
}

TEST(StylesheetParser, RefusesAnotherKindOfStyle) {
    expectRefused("{name: a; style-def: x}", 445, "x is not a valid value for style-def");
    expectRefused("{name: a; Style-Def: CSS}", 445, "css is not a valid value for style-def");
}

TEST(StylesheetParser, RefusesAnAdditiveThatIsNeitherYesNorNo) {
    expectRefused("{name: a; additive: Maybe}", 445,
                  "Error while processing stylesheet.\r\nmaybe is not a valid value for additive");
    expectRefused("{name: a; additive}", 445,
                  "Error while processing stylesheet.\r\n is not a valid value for additive");
}

TEST(StylesheetParser, RefusesADefinitionThatDoesNotBeginWithItsName) {
    expectRefused("{nam: x}", 445,
                  "Error while processing stylesheet.\r\nnam is not a valid keyword.");
    expectRefused("{ STYLE-DEF: s; name: x }", 445,
                  "Error while processing stylesheet.\r\nstyle-def is not a valid keyword.");
}

TEST(StylesheetParser, RefusesAnUnknownKeyword) {
    expectRefused("{name: x; Colour: red}", 445,
                  "Error while processing stylesheet.\r\ncolour is not a valid keyword.");
}

TEST(StylesheetParser, RefusesASecondName) {
    expectRefused("{name: x; name: y}", 445,
                  "Error while processing stylesheet.\r\nname is not a valid keyword.");
}

TEST(StylesheetParser, RefusesAnItemThatIsOnlyAColon) {
    expectRefused("{:x}", 445, "Error while processing stylesheet.\r\n is not a valid keyword.");
    expectRefused("{name:x;:}", 445,
                  "Error while processing stylesheet.\r\n is not a valid keyword.");
}

TEST(StylesheetParser, RefusesADefinitionWithoutItems) {
    const std::string message = "Error while processing stylesheet.\r\n is not a valid keyword.";
    expectRefused("{}", 445, message);
    expectRefused("{ \r\n }", 445, message);
    expectRefused("{;;}", 445, message);
}

TEST(StylesheetParser, RefusesMoreClosingBracesThanOpeningOnes) {
    const std::string message =
        "Error in stylesheet\r\nBraces stack underflow: there are more } than {.";
    expectRefused("{name:x}}", 31037, message);
    expectRefused("}", 31037, message);
}

TEST(StylesheetParser, RefusesMoreOpeningBracesThanClosingOnes) {
    const std::string message =
        "Error in stylesheet\r\nBraces stack overflow: there are more { than }";
    expectRefused("{{name:x}", 31037, message);
    expectRefused("{", 31037, message);
}

TEST(StylesheetParser, PassesNoDefinitionWhenTheBracesDoNotBalance) {
    EXPECT_THAT(expectRefused("{name:x}{name:y}{", 31037,
                              "Error in stylesheet\r\n"
                              "Braces stack overflow: there are more { than }"),
                IsEmpty());
}

TEST(StylesheetParser, CountsBracesWithoutRegardToTheirOrder) {
    // The braces balance, so the definition that they enclose is refused, an empty one.
    expectRefused("} {", 445, "Error while processing stylesheet.\r\n is not a valid keyword.");
}

TEST(StylesheetParser, PairsTheBracesByTheirOrder) {
    // The first "}" ends the first "{", the second one the second.
    expectRefused("{name: a; {name: b}}", 445,
                  "Error while processing stylesheet.\r\n{name is not a valid keyword.");
}

TEST(StylesheetParser, HandsOverWhatStandsBeforeAnError) {
    EXPECT_THAT(expectRefused("{name:x;style-def:s}{name:y;bad:1}{name:z}", 445,
                              "Error while processing stylesheet.\r\nbad is not a valid keyword."),
                ElementsAre(StyleDefinition{{"x"}, "^ds"}));
}

TEST(StylesheetParser, ReadsManyDefinitions) {
    std::string text;
    for (int i = 0; i < 20'000; ++i) {
        text += "{name: n; style-def: s; format: \\b}\r\n";
    }

    EXPECT_EQ(parse(text).size(), 20'000U);
}

TEST(StylesheetParser, ReadsADefinitionOfManyNamesAndItems) {
    std::string text = "{name: a";
    for (int i = 0; i < 50'000; ++i) {
        text += ", a";
    }
    for (int i = 0; i < 50'000; ++i) {
        text += "; next: b";
    }

    const Definitions definitions = parse(text + "}");

    ASSERT_EQ(definitions.size(), 1U);
    EXPECT_EQ(definitions[0].names.size(), 50'001U);
    EXPECT_EQ(definitions[0].record.size(), 150'000U);
}

}  // namespace
}  // namespace quorvane
