// What values of the data become in a document.

#include <gmock/gmock.h>

#include <string>

#include "tests/data/FilledTemplate.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* strongStyle =
    "; quorvane 2\n{ name: normal; style-def: paragraph }\n"
    "{ name: strong; style-def: character; bold }\n";

std::vector<std::string> checked(const std::string& text, const std::string& json,
                                 const Partials& partials = {}) {
    const FilledTemplate filled(text, json, partials);
    std::vector<std::string> messages = filled.errors();
    if (messages.empty()) {
        for (const Diagnostic& each : checkFilled(filled.source, {*filled.lines}, nullptr, {})) {
            messages.push_back(std::to_string(each.place.line) + ":" +
                               std::to_string(each.place.column) + ": " + each.message);
        }
    }
    return messages;
}

std::vector<std::string> checkedUnfilled(const std::string& text) {
    const FilledTemplate filled(text, "{}");
    std::vector<std::string> messages;
    for (const Diagnostic& each : checkUnfilled(filled.source, nullptr, {})) {
        messages.push_back(std::to_string(each.place.line) + ":" +
                           std::to_string(each.place.column) + ": " + each.message);
    }
    return messages;
}

TEST(FilledTexts, ShowEveryCharacter) {
    EXPECT_EQ(rtfOf("(pt={{a}})", R"~({"a":"\\ { } ( ) ; ž"})~"),
              "\\\\ \\{ \\} ( ) ; {\\uc1\\u382?}");
}

TEST(FilledTexts, ShowMarksOfSeveralLinesAndClosersOfNodes) {
    EXPECT_EQ(rtfOf("(pt={{a}})", R"~({"a":"\"\"\"\np)\nc)\n(doc"})~"),
              "\"\"\"\\line p)\\line c)\\line (doc");
}

TEST(FilledTexts, KeepTheLastCharacterOfAValueOfSeveralLines) {
    const std::string end = "\n{{/a}}\n\"\"\")";
    EXPECT_EQ(rtfOf("(pt=\"\"\"\nTotal 1,250{{#a}}" + end, R"({"a":false})"), "Total 1,250");
    EXPECT_EQ(rtfOf("(pt=\"\"\"\nTotal 1,250{{#a}}" + end, R"({"a":true})"), "Total 1,250");
    EXPECT_EQ(rtfOf("(pt=\"\"\"\n{{n}}{{#a}}" + end, R"({"a":false,"n":"x\n"})"), "x\\line ");
    EXPECT_EQ(rtfOf("(pt=\"\"\"\n{{n}}\n\"\"\")", R"({"n":"x\n"})"), "x\\line ");
}

TEST(FilledTexts, ShowBlanksAtTheirEnds) {
    EXPECT_EQ(rtfOf("(pt={{a}})", R"({"a":" x "})"), " x ");
}

TEST(FilledTexts, ShowInlineStylesOfValuesAsText) {
    EXPECT_EQ(rtfOf("(pt={{a}} <strong={{b}}>)", R"({"a":"<strong=x>","b":"5 > 4"})", strongStyle),
              "\\'3Cstrong=x\\'3E {\\cs101"
              "\\b 5 \\'3E 4}");
}

TEST(FilledTexts, CanNameNoStyleByTheirData) {
    EXPECT_EQ(rtfOf("(pt=<{{a}}=x>)", R"({"a":"strong"})", strongStyle), "\\'3Cstrong=x\\'3E");
}

TEST(FilledPageLines, ShowBarsBracesAndBlanks) {
    const FilledTemplate filled(
        "; quorvane 2\n(doc\n(header={{a}}|{page}|{{b}})\n(r\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)\n",
        R"({"a":"x|{page} y","b":" {"})");
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    parseFilled(*driver, *filled.lines);
    const PageText& header = driver->RtfObject()->PageHeader();
    EXPECT_EQ(header.left, "x|{{page}} y");
    EXPECT_EQ(header.center, "{page}");
    EXPECT_EQ(header.right, " {{");
}

TEST(FilledRtf, ShowsAValueInAGroup) {
    EXPECT_EQ(rtfOf("(rtf=\\b{{a}})", R"({"a":"0 {x}"})"), "\\b{0 \\{x\\}}");
}

TEST(FilledRtf, TakesControlWordsInThreeBraces) {
    EXPECT_EQ(rtfOf("(rtf=\\fs{{{size}}})\n(pt=x)", R"({"size":28})"),
              rtfOf("(rtf=\\fs28)\n(pt=x)", "{}"));
    EXPECT_THAT(rtfOf("(rtf={{{a}}})", R"({"a":"\\cell"})"), HasSubstr("6: "));
}

TEST(FilledWords, AreCheckedAsTheyAreInADescription) {
    EXPECT_THAT(checked(inParagraph("(pa={{a}})\n(pt=x)"), R"({"a":"rihgt"})"),
                ElementsAre("6:5: rihgt isn't a recognized alignment."));
    EXPECT_THAT(checked(inParagraph("(pa={{a}})\n(pt=x)"), R"({"a":"right"})"), IsEmpty());
}

TEST(FilledWords, CannotEndTheirLine) {
    EXPECT_THAT(checked(inParagraph("(para-key={{a}})\n(pt=x)"), R"~({"a":"x)(pt=y"})~"),
                IsEmpty());
    EXPECT_THAT(checked(inParagraph("(picture={{a}})"), R"({"a":"../x.png"})"), IsEmpty());
}

TEST(FilledLines, ReportWhatIsWrongOnceHoweverOftenTheyAreRepeated) {
    const std::string text =
        "; quorvane 2\n(doc\n(r\n(c\n{{#l}}\n(p\n(pt={{.}})\n(px=1)\np)\n{{/l}}\nc)\nr)\ndoc)\n";
    EXPECT_THAT(checked(text, R"({"l":[1,2,3]})"), ElementsAre("8:2: px isn't a valid keyword."));
}

TEST(FilledLines, OfPartialsAreReportedAtTheirTag) {
    const std::string text = "; quorvane 2\n(doc\n(r\n(c\n{{> p}}\nc)\nr)\ndoc)\n";
    EXPECT_THAT(checked(text, "{}", {{"p.rtfpart", "(p\n(pt=x)\n(px=1)\np)\n"}}),
                ElementsAre("5:1: p.rtfpart, line 3: px isn't a valid keyword."));
}

TEST(FilledLines, ThatMakeNoDocumentAreErrors) {
    EXPECT_THAT(
        checked("; quorvane 2\n(doc\n{{#l}}\n(r\n(c\nc)\nr)\n{{/l}}\ndoc)\n", R"({"l":[]})"),
        testing::Contains(HasSubstr("requiered")));
}

TEST(UnfilledTemplates, AreCheckedWhateverTheirDataIs) {
    const std::string head =
        "; quorvane 2\n(doc\n(columns={{widths}})\n(r\n(c\n(vspan={{n}})\n(p\n";
    EXPECT_THAT(checkedUnfilled(head + "{{#a}}\n(pt={{x}})\n{{/a}}\n{{^a}}\n(pt=none)\n{{/a}}\n"
                                       "(pa={{alignment}})\np)\nc)\nr)\ndoc)\n"),
                IsEmpty());
    EXPECT_THAT(checkedUnfilled(head + "(pt=x)\n{{#a}}\n(pa=rihgt)\n{{/a}}\np)\nc)\nr)\ndoc)\n"),
                ElementsAre("10:5: rihgt isn't a recognized alignment."));
}

TEST(UnfilledTemplates, CanHaveSectionsThatCloseNodes) {
    EXPECT_THAT(
        checkedUnfilled("; quorvane 2\n(doc\n{{#a}}\n{{#b}}\nr)\n{{/b}}\n(r\n{{/a}}\ndoc)\n"),
        IsEmpty());
}

}  // namespace
}  // namespace quorvane::data
