#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/data/FilledTemplate.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> linesOf(const std::string& text, const std::string& json,
                                 const Partials& partials = {}) {
    const FilledTemplate filled("; quorvane 2\n" + text, json, partials);
    EXPECT_THAT(filled.errors(), IsEmpty());
    return filled.lines ? filled.shownLines() : std::vector<std::string>();
}

std::vector<std::string> errorsOf(const std::string& text, const std::string& json,
                                  const Partials& partials = {}) {
    return FilledTemplate("; quorvane 2\n" + text, json, partials).errors();
}

struct Case {
    const char* name;
    const char* text;
    const char* json;
    const char* shown;
};

class Tags : public testing::TestWithParam<Case> {};

TEST_P(Tags, ShowWhatTheDataHas) {
    EXPECT_EQ(shown(GetParam().text, GetParam().json), GetParam().shown);
}

constexpr Case interpolations[] = {
    {"NoTag", "Hello.", "{}", "Hello."},
    {"Name", "Hello, {{subject}}!", R"({"subject":"world"})", "Hello, world!"},
    {"NoEscaping", "{{forbidden}}", R"~({"forbidden":"& \" < > { } \\ ( )"})~",
     "& \" < > { } \\ ( )"},
    {"Integer", "{{mph}} miles", R"({"mph":85})", "85 miles"},
    {"Decimals", "{{power}}", R"({"power":1.210})", "1.210"},
    {"LargeNumber", "{{n}}", R"({"n":123456789012345678901234567890})",
     "123456789012345678901234567890"},
    {"Negative", "{{n}}", R"({"n":-0.5e-7})", "-0.5e-7"},
    {"Boolean", "{{a}} {{b}}", R"({"a":true,"b":false})", "true false"},
    {"EmptyText", "[{{a}}]", R"({"a":""})", "[]"},
    {"Zero", "{{a}}", R"({"a":0})", "0"},
    {"DottedName", "{{person.name}}", R"({"person":{"name":"Joe"}})", "Joe"},
    {"DeepDottedName", "{{a.b.c.d.e.name}}", R"({"a":{"b":{"c":{"d":{"e":{"name":"Phil"}}}}}})",
     "Phil"},
    {"WholeRecord", "Hello, {{.}}!", R"("world")", "Hello, world!"},
    {"BlanksInTag", "|{{ text }}|", R"({"text":"---"})", "|---|"},
    {"BlanksInName", "{{unit price}}", R"({"unit price":5})", "5"},
    {"NoBlanksAreAdded", "| {{text}} |", R"({"text":"---"})", "| --- |"},
    {"BlanksOfAValueStay", "{{text}}", R"({"text":"  a  "})", "  a  "},
    {"TagsInAValueAreText", "{{a}}", R"({"a":"{{b}}","b":1})", "{{b}}"},
    {"LineBreak", "{{a}}", R"({"a":"x\r\ny\rz"})", "x\ny\nz"},
    {"Unicode", "{{a}}", R"({"a":"\u017elu\u0165\ud83d\ude00"})", "žluť😀"},
    {"Comment", "12345{{! a comment }}67890", "{}", "1234567890"},
};

constexpr Case sections[] = {
    {"True", "{{#boolean}}shown{{/boolean}}", R"({"boolean":true})", "shown"},
    {"False", "a{{#boolean}}shown{{/boolean}}", R"({"boolean":false})", "a"},
    {"Null", "a{{#null}}shown{{/null}}", R"({"null":null})", "a"},
    {"Text", "{{#a}}{{.}}!{{/a}}", R"({"a":"x"})", "x!"},
    {"EmptyText", "[{{#a}}x{{/a}}]", R"({"a":""})", "[]"},
    {"Zero", "{{#a}}{{.}}{{/a}}", R"({"a":0})", "0"},
    {"Object", "{{#context}}Hi {{name}}.{{/context}}", R"({"context":{"name":"Joe"}})", "Hi Joe."},
    {"EmptyObject", "{{#a}}x{{/a}}", R"({"a":{}})", "x"},
    {"List", "{{#list}}{{item}}{{/list}}", R"({"list":[{"item":1},{"item":2},{"item":3}]})", "123"},
    {"EmptyList", "[{{#list}}x{{/list}}]", R"({"list":[]})", "[]"},
    {"ListOfTexts", "{{#list}}({{.}}){{/list}}", R"({"list":["a","b"]})", "(a)(b)"},
    {"ListOfDecimals", "{{#list}}({{.}}){{/list}}", R"({"list":[1.10,2.20]})", "(1.10)(2.20)"},
    {"ListOfLists", "{{#list}}({{#.}}{{.}}{{/.}}){{/list}}", R"({"list":[[1,2],["a"]]})",
     "(12)(a)"},
    {"RecordIsAList", "{{#.}}{{a}},{{/.}}", R"([{"a":1},{"a":2}])", "1,2,"},
    {"Doubled", "{{#b}}1{{/b}}2{{#b}}3{{/b}}", R"({"b":true})", "123"},
    {"NestedTrue", "A{{#b}}B{{#b}}C{{/b}}D{{/b}}E", R"({"b":true})", "ABCDE"},
    {"NestedFalse", "A{{#b}}B{{#b}}C{{/b}}D{{/b}}E", R"({"b":false})", "AE"},
    {"DottedName", "{{#a.b.c}}here{{/a.b.c}}", R"({"a":{"b":{"c":true}}})", "here"},
    {"BlanksInTags", "|{{# b }}={{/ b }}|", R"({"b":true})", "|=|"},
    {"BlanksAround", " | {{#b}}\t|\t{{/b}} | ", R"({"b":true})", "| \t|\t |"},
    {"ConditionHidesNoName", "{{#b}}{{name}}{{/b}}", R"({"b":true,"name":"x"})", "x"},
    {"TextItemHidesNoName", "{{#l}}{{.}}{{name}} {{/l}}", R"({"l":["a","b"],"name":"x"})",
     "ax bx "},
    {"Outward", "{{#a}}{{../name}}{{name}}{{/a}}", R"({"name":1,"a":{"name":2}})", "12"},
    {"TwiceOutward", "{{#a}}{{#b}}{{../../n}}{{../n}}{{n}}{{/b}}{{/a}}",
     R"({"n":1,"a":{"n":2,"b":{"n":3}}})", "123"},
    {"MissingAsFalse", "[{{#a|default:}}x{{/a}}]", "{}", "[]"},
};

constexpr Case bracketed[] = {
    {"Dot", "{{[Nr.]}}", R"({"Nr.":7})", "7"},
    {"Inner", "{{a.[b.c].d}}", R"({"a":{"b.c":{"d":1}}})", "1"},
    {"Blanks", "{{ a . [ b ] |upper}}", R"({"a":{" b ":"x"}})", "X"},
    {"Bar", "{{[a|b]|number:1}}", R"({"a|b":2})", "2.0"},
    {"Signs", "{{[#]}}{{[@index]}}{{[.]}}{{#[^]}}!{{/[^]}}", R"({"#":1,"@index":2,".":3,"^":true})",
     "123!"},
    {"Outward", "{{#a}}{{../[Nr.]}}{{/a}}", R"({"Nr.":1,"a":{}})", "1"},
    {"WithinAName", "{{a[1]}}", R"({"a[1]":"x"})", "x"},
};

constexpr Case inverted[] = {
    {"True", "[{{^b}}shown{{/b}}]", R"({"b":true})", "[]"},
    {"False", "{{^b}}shown{{/b}}", R"({"b":false})", "shown"},
    {"Null", "{{^b}}shown{{/b}}", R"({"b":null})", "shown"},
    {"Object", "[{{^b}}shown{{/b}}]", R"({"b":{"name":"Joe"}})", "[]"},
    {"List", "[{{^b}}shown{{/b}}]", R"({"b":[{"n":1}]})", "[]"},
    {"EmptyList", "{{^b}}shown{{/b}}", R"({"b":[]})", "shown"},
    {"Nested", "A{{^b}}B{{^b}}C{{/b}}D{{/b}}E", R"({"b":false})", "ABCDE"},
    {"DottedName", "{{^a.b}}none{{/a.b}}", R"({"a":{"b":false}})", "none"},
    {"MissingAsFalse", "{{^a|default:}}none{{/a}}", "{}", "none"},
    {"InList", "{{#l}}{{.}}{{^@last}}, {{/@last}}{{/l}}", R"({"l":["a","b","c"]})", "a, b, c"},
};

constexpr Case positions[] = {
    {"Index", "{{#l}}{{@index}}{{/l}}", R"({"l":["a","b","c"]})", "123"},
    {"First", "{{#l}}{{#@first}}!{{/@first}}{{.}}{{/l}}", R"({"l":["a","b"]})", "!ab"},
    {"Last", "{{#l}}{{.}}{{#@last}}!{{/@last}}{{/l}}", R"({"l":["a","b"]})", "ab!"},
    {"AsTexts", "{{#l}}{{@first}}/{{@last}} {{/l}}", R"({"l":[1,2]})", "true/false false/true "},
    {"Outward", "{{#l}}{{#.}}{{../@index}}.{{@index}} {{/.}}{{/l}}", R"({"l":[[7,8],[9]]})",
     "1.1 1.2 2.1 "},
    {"InCondition", "{{#l}}{{#yes}}{{@index}}{{/yes}}{{/l}}",
     R"({"l":[{"yes":true},{"yes":true}]})", "12"},
};

constexpr Case filters[] = {
    {"Upper", "{{a|upper}}", R"({"a":"ž"})", "Ž"},
    {"Blanks", "{{ a | upper | lower }}", R"({"a":"Ž"})", "ž"},
    {"Count", "{{l|count}}", R"({"l":[1,2,3]})", "3"},
    {"CountOfNone", "{{l|default:none|count}}", R"({"l":[]})", "0"},
    {"DefaultOfMissing", "{{a|default:on request}}", "{}", "on request"},
    {"DefaultOfNull", "{{a|default:-}}", R"({"a":null})", "-"},
    {"EmptyDefault", "[{{a|default:}}]", "{}", "[]"},
    {"DefaultIsNotNeeded", "{{a|default:-}}{{b|default:-}}", R"({"a":"","b":0})", "0"},
    {"DefaultOfDottedName", "{{a.b.c|default:-}}", R"({"a":{}})", "-"},
    {"DefaultGoesOn", "{{a|default:0|money}}", "{}", "0.00"},
    {"DefaultAfterOthers", "{{a|money|default:free}}", "{}", "free"},
    {"DefaultInQuotes", "{{a|default:\" | \"}}", "{}", " | "},
    {"Date", "{{a|date:dd.MM.yyyy}}", R"({"a":"2026-11-22"})", "22.11.2026"},
    {"NumberOfAText", "{{a|number:1}}", R"({"a":"12.25"})", "12.3"},
    {"EqualsSignInDefault", "{{a|default:x=y}}", "{}", "x=y"},
};

std::string nameOf(const testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Values, Tags, testing::ValuesIn(interpolations), nameOf);
INSTANTIATE_TEST_SUITE_P(Sections, Tags, testing::ValuesIn(sections), nameOf);
INSTANTIATE_TEST_SUITE_P(Bracketed, Tags, testing::ValuesIn(bracketed), nameOf);
INSTANTIATE_TEST_SUITE_P(Inverted, Tags, testing::ValuesIn(inverted), nameOf);
INSTANTIATE_TEST_SUITE_P(Positions, Tags, testing::ValuesIn(positions), nameOf);
INSTANTIATE_TEST_SUITE_P(Filters, Tags, testing::ValuesIn(filters), nameOf);

TEST(SectionsOfLines, AreRepeatedForEachItem) {
    EXPECT_THAT(linesOf("{{#l}}\n(r\n(pt={{.}})\nr)\n{{/l}}\ndoc)", R"({"l":["a","b"]})"),
                ElementsAre("(r", "(pt=a)", "r)", "(r", "(pt=b)", "r)", "doc)"));
}

TEST(SectionsOfLines, CanHaveBlanksAndOtherTagsBesideThem) {
    EXPECT_THAT(
        linesOf("  {{#a}} {{#b}}\r\n(r\r\n{{/b}}{{! x }}{{/a}}\t\r\ndoc)", R"({"a":{"b":true}})"),
        ElementsAre("(r", "doc)"));
}

TEST(SectionsOfLines, CanEndWithTheText) {
    EXPECT_THAT(linesOf("(doc\n{{#a}}\nx\n{{/a}}", R"({"a":false})"), ElementsAre("(doc"));
}

TEST(Comments, LeaveNoLine) {
    EXPECT_THAT(linesOf("(doc\n{{! one }}\n{{!\nof several\n; lines\n}}\ndoc)", "{}"),
                ElementsAre("(doc", "doc)"));
}

TEST(Comments, OfTheDescriptionHoldNoTags) {
    EXPECT_THAT(linesOf("; {{#a}} {{b}}\ndoc)", "{}"), ElementsAre("doc)"));
}

TEST(ValuesOfSeveralLines, ShowTheirLineBreaks) {
    EXPECT_THAT(linesOf("(pt=\"\"\"\n    {{a}}\n      {{b}}, c\n    \"\"\")", R"({"a":1,"b":2})"),
                ElementsAre("(pt=1\n  2, c)"));
}

TEST(ValuesOfSeveralLines, HaveNoLineForASectionTag) {
    const std::string text =
        "(pt=\"\"\"\n  {{#l}}\n  - {{.}}\n  {{/l}}\n  {{^l}}\n  none\n"
        "  {{/l}}\n  end\n  \"\"\")";
    EXPECT_THAT(linesOf(text, R"({"l":["a","b"]})"), ElementsAre("(pt=- a\n- b\nend)"));
    EXPECT_THAT(linesOf(text, R"({"l":[]})"), ElementsAre("(pt=none\nend)"));
}

TEST(ValuesOfSeveralLines, CanBeEmpty) {
    EXPECT_THAT(linesOf("(pt=\"\"\"\n{{#l}}\nx\n{{/l}}\n\"\"\")", R"({"l":[]})"),
                ElementsAre("(pt=)"));
}

TEST(Partials, TakeInTheLinesOfAFile) {
    EXPECT_THAT(linesOf("{{#l}}\n{{> row}}\n{{/l}}\ndoc)", R"({"l":[1,2]})",
                        {{"row.rtfpart", "; a comment\n(pt={{.}})\n"}}),
                ElementsAre("(pt=1)", "(pt=2)", "doc)"));
}

TEST(Partials, TakeInOthers) {
    EXPECT_THAT(linesOf("{{>a.rtfpart}}", R"({"x":5})",
                        {{"a.rtfpart", "{{> sub/b }}\n{{> sub/b }}"},
                         {"sub/b.rtfpart", "\xEF\xBB\xBF; x\n(pt={{x}})"}}),
                ElementsAre("(pt=5)", "(pt=5)"));
}

TEST(Partials, ThatTakeThemselvesInAreErrors) {
    EXPECT_THAT(errorsOf("{{> a}}", "{}", {{"a.rtfpart", "\n{{> b}}"}, {"b.rtfpart", "{{> a}}"}}),
                ElementsAre("b.rtfpart:1:1: a.rtfpart takes itself in, maybe through others."));
}

TEST(Partials, ThatAreNotThereAreErrors) {
    EXPECT_THAT(errorsOf("{{> nothing}}", "{}"),
                ElementsAre("2:1: nothing.rtfpart: File not found."));
}

TEST(Partials, ThatAreNotUtf8AreErrors) {
    EXPECT_THAT(errorsOf("{{> a}}", "{}", {{"a.rtfpart", "\xFF"}}),
                ElementsAre("2:1: a.rtfpart is not UTF-8."));
}

TEST(Partials, ThatGrowWithoutEndAreErrors) {
    Partials partials;
    for (int i = 0; i < 40; ++i) {
        const std::string next = "{{> p" + std::to_string(i + 1) + "}}\n";
        partials["p" + std::to_string(i) + ".rtfpart"] = next + next;
    }
    partials["p40.rtfpart"] = "(pt=x)";
    EXPECT_THAT(errorsOf("{{> p0}}", "{}", partials),
                testing::Contains(HasSubstr("takes itself in")));
}

TEST(Partials, CloseTheirOwnSections) {
    EXPECT_THAT(errorsOf("{{#a}}\n{{> p}}\n", R"({"a":1})", {{"p.rtfpart", "{{/a}}\n{{#b}}"}}),
                ElementsAre("2:1: The section that begins here does not end.",
                            "p.rtfpart:1:1: No section is open here that {{/a}} could close.",
                            "p.rtfpart:2:1: The section that begins here does not end."));
}

TEST(Partials, HaveErrorsInTheirOwnFile) {
    EXPECT_THAT(errorsOf("\n{{> p}}\n", R"({"a":1})", {{"p.rtfpart", "\n(pt=x {{b}})"}}),
                ElementsAre("p.rtfpart:2:7: b is not in the data. "
                            "(write {{b|default:…}} for what can be missing; the data has: a)"));
}

TEST(MissingNames, AreErrorsWithTheNearestName) {
    EXPECT_THAT(errorsIn("a {{nmae}}", R"({"name":"x","number":1})"),
                ElementsAre("6:7: nmae is not in the data. (did you mean name?)"));
}

TEST(MissingNames, HaveThePathThatWasLookedFor) {
    EXPECT_THAT(errorsIn("{{#lines}}{{item.pric}}{{/lines}}",
                         R"({"lines":[{"item":{"price":1,"pric":1}},{"item":{"price":2}}]})"),
                ElementsAre("6:15: lines[2].item.pric is not in the data. (did you mean price?)"));
}

TEST(MissingNames, AreLookedUpInTheInnermostObjectOnly) {
    EXPECT_THAT(
        errorsIn("{{#lines}}{{price}}{{/lines}}", R"({"price":5,"lines":[{"price":1},{"no":2}]})"),
        ElementsAre("6:15: lines[2].price is not in the data. (an object around this one has the "
                    "name; write {{../price}} if you mean that)"));
}

TEST(MissingNames, AreReportedOnceForEachTag) {
    EXPECT_THAT(errorsIn("{{#l}}{{a}}{{/l}}{{a}}", R"({"l":[{},{},{}]})").size(), 2U);
}

TEST(MissingNames, AreErrorsInSectionsToo) {
    EXPECT_THAT(errorsIn("{{#lnes}}x{{/lnes}}{{^b}}{{/b}}", R"({"lines":[]})"),
                ElementsAre("6:5: lnes is not in the data. (did you mean lines? If not, write "
                            "{{#lnes|default:}} for a section whose name can be missing)",
                            "6:24: b is not in the data. (write {{^b|default:}} for a section "
                            "whose name can be missing; the data has: lines)"));
}

TEST(MissingNames, MayHoldAFilterOrStandInAnotherObject) {
    EXPECT_THAT(errorsIn("{{sum:money}}", R"({"sum":1})"),
                ElementsAre("6:5: sum:money is not in the data. (filters stand after |: "
                            "{{sum|money}})"));
    EXPECT_THAT(errorsIn("{{net}}", R"({"invoice":{"net":1}})"),
                ElementsAre("6:5: net is not in the data. (did you mean invoice.net?)"));
}

TEST(MissingNames, MayHaveADotInTheData) {
    EXPECT_THAT(errorsIn("{{customer.city}}", R"({"customer.city":"Brno"})"),
                ElementsAre("6:5: customer.city is not in the data. (a name in the data has the "
                            "dot in it; write [customer.city])"));
    EXPECT_THAT(errorsIn("{{Mwst.-Satz}}", R"({"MwSt.-Satz":7})"),
                ElementsAre("6:5: Mwst.-Satz is not in the data. "
                            "(write {{Mwst.-Satz|default:…}} for what can be missing; "
                            "the data has: [MwSt.-Satz])"));
    EXPECT_THAT(errorsIn("{{[Mwst.-Satz]}}", R"({"MwSt.-Satz":7})"),
                ElementsAre("6:5: Mwst.-Satz is not in the data. (did you mean [MwSt.-Satz]?)"));
    EXPECT_THAT(errorsIn("{{Preis}}", R"({"Preis ":7})"),
                ElementsAre("6:5: Preis is not in the data. (did you mean [Preis ]?)"));
}

TEST(MissingNames, IncludeNull) {
    EXPECT_THAT(errorsIn("{{a}}", R"({"a":null})"),
                ElementsAre("6:5: a is null in the data. "
                            "(write {{a|default:…}} for what can be missing)"));
}

TEST(MissingNames, CanBeThoseOfValuesWithoutNames) {
    EXPECT_THAT(errorsIn("{{a.b}}{{l.b}}", R"({"a":5,"l":[{"b":1}]})"),
                ElementsAre("6:5: a.b is not in the data. (a single value has no names)",
                            "6:12: l.b is not in the data. "
                            "(a list has no names; write a section around the name)"));
    EXPECT_THAT(errorsIn("{{a}}", "[1]"),
                ElementsAre("6:5: The data is not an object, and has no names."));
}

TEST(WrongData, IsAListOrAnObjectInAText) {
    EXPECT_THAT(errorsIn("{{l}}{{o}}", R"({"l":[],"o":{}})"),
                ElementsAre("6:5: l is a list. (write {{#l}} and {{/l}} around what is shown of "
                            "each item, or {{l|count}})",
                            "6:10: o is an object. (write the name of one of its values after a "
                            "dot)"));
}

TEST(WrongData, IsAValueThatAFilterCannotTake) {
    EXPECT_THAT(
        errorsIn("{{a|money}}{{#l}}{{.|date:d}}{{/l}}", R"({"a":"x","l":["2026-01-01",7]})"),
        ElementsAre("6:5: a: \"x\" is not a number.",
                    "6:22: l[2]: \"7\" is not an existing date of the form 2026-11-22."));
    EXPECT_THAT(errorsIn("{{a|count}}", R"({"a":"x"})"),
                ElementsAre("6:5: a: Only a list has a count."));
}

TEST(WrongData, IsACharacterThatNoDocumentShows) {
    EXPECT_THAT(errorsIn("{{a}}", R"({"a":"x\u0007"})"),
                ElementsAre(HasSubstr("6:5: a cannot be shown: ")));
}

TEST(WrongData, IsALineBreakOutsideTexts) {
    const FilledTemplate filled(inParagraph("(ps={{a}})\n(pt=x)"), R"({"a":"x\ny"})");
    EXPECT_THAT(filled.errors(),
                ElementsAre("6:5: a holds a line break, which cannot stand in ps."));
}

TEST(Positions, StandInSectionsForLists) {
    EXPECT_THAT(errorsIn("{{@index}}", "{}"),
                ElementsAre("6:5: @index stands outside a section for a list."));
    EXPECT_THAT(errorsIn("{{../a}}", "{}"), ElementsAre("6:5: No object is around this one."));
}

TEST(WrongData, AreListsInListsThatMakeTooMuch) {
    std::string items = "1";
    for (int i = 1; i < 400; ++i) {
        items += ",1";
    }
    EXPECT_THAT(errorsIn("{{#l}}{{#l}}{{#l}}x{{/l}}{{/l}}{{/l}}", R"({"l":[)" + items + "]}"),
                ElementsAre(HasSubstr("The lists of the data make more than 10000000 lines, texts "
                                      "and values, or more than 256 MB of text. (make several "
                                      "documents of them)")));
}

TEST(WrongData, AreTextsThatAreTooLongTogether) {
    const std::string text(16 * 1024 * 1024, 'x');
    EXPECT_THAT(errorsIn("{{#l}}{{t}}{{/l}}",
                         R"({"t":")" + text + R"(","l":[1,2,3,4,5,6,7,8,9,0,1,2,3,4,5,6,7,8,9]})"),
                ElementsAre(HasSubstr("more than 256 MB of text")));
}

TEST(WrongTags, SayWhatToWrite) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"{{a", "6:5: The tag that begins here does not end; write }} after it."},
        {"{{}}", "6:5: A name is missing in this tag."},
        {"{{#a}}", "6:5: The section that begins here does not end."},
        {"{{/a}}", "6:5: No section is open here that {{/a}} could close."},
        {"{{a..b}}",
         "6:5: \"a..b\" is not the name of a value; write names with a dot between "
         "them, and a name that has a dot itself in brackets: [a..b]."},
        {"{{[a}}",
         "6:5: \"[a\" is not the name of a value; write names with a dot between "
         "them, and a name that has a dot itself in brackets: [Nr.]."},
        {"{{@key}}", "6:5: @key is not known; write @index, @first or @last."},
        {"{{a|uper}}", "6:5: \"uper\" is not a filter; did you mean upper?"},
        {"{{{a}}}", "6:5: Only (rtf=…) takes a value as it is; write {{a}}."},
        {"{{&a}}", "6:5: Only (rtf=…) takes a value as it is; write {{a}}."},
        {"{{> a}}", "6:5: A partial stands on a line of its own."},
    };
    for (const auto& [text, error] : cases) {
        EXPECT_THAT(errorsIn(text, R"({"a":1})"), ElementsAre(error)) << text;
    }
}

TEST(ValuesOfSeveralLines, ThatDoNotEndAreTheOnlyError) {
    EXPECT_THAT(errorsIn("\"\"\"\n{{#l}}\n{{a}}\n", R"({"a":1})"),
                ElementsAre("6:5: The value that begins here does not end. "
                            "(write \"\"\") at the end of its last line)"));
}

TEST(WrongTags, AreEndsOfOtherSections) {
    EXPECT_THAT(errorsIn("{{#a}}{{#b}}{{/a}}{{/b}}", R"({"a":1,"b":1})"),
                ElementsAre("6:11: The section that begins here does not end; write {{/b}} before "
                            "{{/a}}.",
                            "6:23: No section is open here that {{/b}} could close."));
    EXPECT_THAT(errorsIn("{{#a}}{{/b}}", R"({"a":1})"),
                ElementsAre("6:11: This closes another section than {{#a}}, which is open; give "
                            "both the same name."));
}

TEST(WrongTags, AreFiltersOfSections) {
    EXPECT_THAT(errorsIn("{{#a|count}}{{/a}}", R"({"a":[]})"),
                ElementsAre("6:5: A section takes no filter but default: for a name that can be "
                            "missing."));
}

TEST(WrongTags, StandInAKeyOrBesideALine) {
    const std::string where =
        "A tag stands in the value of a key, such as (pt={{name}}), or on a line of its own.";
    EXPECT_THAT(errorsOf("({{a}}=5)\n{{a}}\n{{#a}}(r{{/a}}\n(r {{! x}}", R"({"a":1})"),
                ElementsAre("2:2: " + where, "3:1: " + where, "4:1: " + where, "5:4: " + where));
}

TEST(Templates, AreWrittenInTheExtendedLanguage) {
    EXPECT_THAT(
        FilledTemplate("(doc\n(pt={{a}})\ndoc)", "{}").errors(),
        ElementsAre("1:1: A description that is filled with data is written in the extended "
                    "language; its first line is ; quorvane 2."));
}

TEST(Templates, AreFilledAgainAndAgain) {
    FilledTemplate filled("; quorvane 2\n{{#l}}\n(pt={{.}})\n{{/l}}", R"({"l":["a"]})");
    EXPECT_THAT(filled.shownLines(), ElementsAre("(pt=a)"));
    const DataValue next = jsonValue(R"({"l":["b","c"]})");
    filled.lines = &filled.filling.fill(next, filled.templateErrors);
    EXPECT_THAT(filled.shownLines(), ElementsAre("(pt=b)", "(pt=c)"));
}

TEST(Templates, AreRecognizedByTheirTags) {
    const auto looksSo = [](const std::string& lines) {
        return looksLikeTemplate("; quorvane 2\n(doc\n" + lines + "\ndoc)\n");
    };
    EXPECT_TRUE(looksSo("(pt={{a}})"));
    EXPECT_TRUE(looksSo("{{#a}}"));
    EXPECT_TRUE(looksSo("{{> a}}"));
    EXPECT_FALSE(looksSo("(pt=a {{)"));
    EXPECT_FALSE(looksSo("(header={{draft}} {page})"));
    EXPECT_FALSE(looksSo("; {{a}}"));
    EXPECT_FALSE(looksLikeTemplate("(doc\n(pt={{a}})\ndoc)"));
}

}  // namespace
}  // namespace quorvane::data
