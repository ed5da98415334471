// The built program with --data.

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <string>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string templateOf(const std::string& paragraphLines) {
    return "; quorvane 2\n(doc\n(r\n(c\n" + paragraphLines + "\nc)\nr)\ndoc)\n";
}

std::string paragraphOf(const std::string& text) {
    return "(p\n(pt=" + text + ")\np)";
}

class TemplateTest : public ProgramTest {
protected:
    TemplateTest() {
        folder.write("letter.rtfspec", templateOf(paragraphOf("Dear {{name}},")));
        folder.write("data.json", R"({"name":"Nov\u00e1k {Brno}"})");
    }
};

TEST_F(TemplateTest, IsFilledWithTheData) {
    const ProgramResult result =
        run({"render", "--data", "data.json", "letter.rtfspec", "-o", "-"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("Dear Nov\\'E1k \\{Brno\\},\\cell"));
}

TEST_F(TemplateTest, IsADescriptionAsAnyOtherWithoutData) {
    const ProgramResult result = run({"render", "letter.rtfspec", "-o", "-"});
    EXPECT_THAT(result.output, HasSubstr("Dear \\{\\{name\\}\\},\\cell"));
    EXPECT_EQ(
        result.errors,
        "letter.rtfspec: note: Tags such as {{name}} are shown as they are written; fill them "
        "with --data.\n");
    EXPECT_EQ(result.status, 0);
}

TEST_F(TemplateTest, IsNotedInItsPlaceAmongOthers) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(x=1)\nc)\nr)\ndoc)\n");
    const auto errorsOf = [&](const char* jobs) {
        return run({"render", "--keep-going", "-j", jobs, "letter.rtfspec", "a.rtfspec"}).errors;
    };
    EXPECT_THAT(errorsOf("1"), StartsWith("letter.rtfspec: note: "));
    EXPECT_EQ(errorsOf("2"), errorsOf("1"));
}

TEST_F(TemplateTest, IsFilledWithOneRecordUnlessThereIsOneForEach) {
    folder.write("a.jsonl", "{\"name\":\"x\"}\n{\"name\":\"y\"}\n");
    const ProgramResult result = run({"render", "--data", "a.jsonl", "letter.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("a.jsonl:2:1: error: This is not JSON: unexpected '{'"));
    EXPECT_THAT(result.errors, HasSubstr("hint: render it with --each for a document of each"));
    folder.write("a.CSV", "name\nx\n");
    EXPECT_THAT(run({"render", "--data", "a.CSV", "letter.rtfspec"}).errors,
                HasSubstr("hint: render it with --each for a document of each"));
    folder.write("a.json", "[{\"name\":\"x\"}]");
    EXPECT_THAT(run({"render", "--data", "a.json", "letter.rtfspec"}).errors,
                HasSubstr("letter.rtfspec: note: The data is a list; --each renders a document of "
                          "each of its items.\n"));
}

TEST_F(TemplateTest, HasNoTagsInTheNameOfItsOnlyDocument) {
    const ProgramResult result =
        run({"render", "--data", "data.json", "letter.rtfspec", "-o", "{{name}}.rtf"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors,
                HasSubstr("--output has a tag, which is filled only with --each: {{name}}.rtf"));
    EXPECT_FALSE(folder.has("{{name}}.rtf"));
}

TEST_F(TemplateTest, IsWarnedAboutWhereItsInlineStylesStand) {
    folder.write("a.rtfspec", templateOf(paragraphOf("{{name}} <stong=x> <strong=y") + "\n" +
                                         paragraphOf("{{name}}")));
    folder.write("a.json", R"({"name":"<stong=data> <strong=open"})");
    folder.write("a.rtfss", "; quorvane 2\n{name: strong; style-def: cs; bold}\n");
    const ProgramResult result = run({"check", "-s", "a.rtfss", "--data", "a.json", "a.rtfspec"});
    EXPECT_THAT(result.output, HasSubstr("a.rtfspec:6:5: warning: The stylesheet has no character "
                                         "style stong, so this is shown as text."));
    EXPECT_THAT(result.output, HasSubstr("a.rtfspec:6:5: warning: The inline style strong is not"));
    EXPECT_THAT(result.output, HasSubstr("2 warnings in 2 files"));
}

TEST_F(TemplateTest, TakesDataFromStandardInput) {
    start.input = R"({"name":"x"})";
    const ProgramResult result = run({"render", "--data", "-", "letter.rtfspec", "-o", "-"});
    EXPECT_THAT(result.output, HasSubstr("Dear x,\\cell"));
}

TEST_F(TemplateTest, TakesOneInputOnly) {
    start.input = R"({"name":"x"})";
    const ProgramResult result = run({"render", "--data", "-", "-"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("standard input cannot be both the data and a file"));
    EXPECT_EQ(run({"check", "--data", "-", "-"}).status, 2);
}

TEST_F(TemplateTest, WritesNumbersByTheLocale) {
    folder.write("sum.rtfspec", templateOf(paragraphOf("{{sum|money}}")));
    start.input = R"({"sum":1234.5})";
    EXPECT_THAT(
        run({"render", "--data", "-", "--locale", "de-DE", "sum.rtfspec", "-o", "-"}).output,
        HasSubstr("1.234,50\\cell"));
    EXPECT_THAT(run({"check", "--data", "-", "--locale", "xx", "sum.rtfspec"}).errors,
                HasSubstr("xx is not a locale"));
    EXPECT_THAT(run({"render", "--locale", "de-DE", "sum.rtfspec"}).errors, HasSubstr("--data"));
}

TEST_F(TemplateTest, FillsEachOfSeveralDescriptions) {
    folder.write("other.rtfspec", templateOf(paragraphOf("Hello {{name}}.")));
    EXPECT_EQ(
        run({"render", "--data", "data.json", "letter.rtfspec", "other.rtfspec", "-j2"}).status, 0);
    EXPECT_THAT(folder.read("other.rtf"), HasSubstr("Hello Nov"));
    EXPECT_THAT(folder.read("letter.rtf"), HasSubstr("Dear Nov"));
}

TEST_F(TemplateTest, WritesNothingForANameThatIsMissing) {
    start.input = R"({"nmae":"x"})";
    const ProgramResult result = run({"render", "--data", "-", "letter.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "letter.rtfspec:6:10: error: name is not in the data. [missing-name]\n"
              "    (pt=Dear {{name}},)\n"
              "             ^~~~~~~~\n"
              "    hint: did you mean nmae?\n");
    EXPECT_THAT(folder.names(), Not(testing::Contains("letter.rtf")));
}

TEST_F(TemplateTest, ReportsEachErrorAsAnObjectForPrograms) {
    folder.write("letter.rtfspec", templateOf(paragraphOf("{{a}} {{b}}")));
    start.input = "{}";
    const ProgramResult result =
        run({"render", "--data", "-", "--diagnostics", "json", "letter.rtfspec"});
    const json error = json::parse(result.errors.substr(0, result.errors.find('\n')));
    EXPECT_EQ(error["file"], "letter.rtfspec");
    EXPECT_EQ(error["line"], 6);
    EXPECT_EQ(error["message"], "a is not in the data. [missing-name]");
    EXPECT_THAT(result.errors, HasSubstr("b is not in the data."));
}

TEST_F(TemplateTest, ReportsWhatTheDataBreaksAtTheLineOfTheTemplate) {
    folder.write("letter.rtfspec", templateOf("(p\n(pa={{where}})\n(pt=x)\np)"));
    start.input = R"({"where":"rihgt"})";
    const std::string report =
        "letter.rtfspec:6:5: error: rihgt isn't a recognized alignment. [wrong-alignment]\n"
        "    (pa={{where}})\n"
        "        ^~~~~~~~~\n"
        "    hint: did you mean right?\n";
    EXPECT_EQ(run({"render", "--data", "-", "letter.rtfspec"}).errors, report);
    EXPECT_EQ(run({"check", "--data", "-", "letter.rtfspec"}).output,
              report + "1 error in 1 file\n");
}

TEST_F(TemplateTest, ReportsErrorsOfAPartialInItsFile) {
    folder.write("letter.rtfspec", templateOf("{{> part}}"));
    folder.write("part.rtfpart", "(p\n(pt={{x}})\np)\n");
    start.input = "{}";
    const std::string report =
        "part.rtfpart:2:5: error: x is not in the data. [missing-name]\n"
        "    (pt={{x}})\n"
        "        ^~~~~\n"
        "    hint: write {{x|default:…}} for what can be missing\n";
    EXPECT_EQ(run({"render", "--data", "-", "letter.rtfspec"}).errors, report);
    EXPECT_THAT(run({"check", "--data", "-", "letter.rtfspec"}).output, HasSubstr(report));
}

TEST_F(TemplateTest, TakesPartialsFromItsFolderOnly) {
    folder.write("letter.rtfspec", templateOf("{{> ../part}}"));
    const ProgramResult result = run({"render", "--data", "data.json", "letter.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("../part.rtfpart"));
    EXPECT_THAT(result.errors, HasSubstr("[wrong-partial]"));
}

TEST_F(TemplateTest, ReportsWrongDataWithItsPlace) {
    folder.write("data.json", "{\n  \"name\": x\n}\n");
    const ProgramResult rendered = run({"render", "--data", "data.json", "letter.rtfspec"});
    EXPECT_EQ(rendered.status, 1);
    EXPECT_THAT(rendered.errors,
                HasSubstr("data.json:2:11: error: This is not JSON: invalid literal"));
    const ProgramResult checked = run({"check", "--data", "data.json", "letter.rtfspec"});
    EXPECT_EQ(checked.status, 1);
    EXPECT_THAT(checked.output, HasSubstr("data.json:2:11: error: "));
    EXPECT_EQ(run({"check", "--fail-on", "never", "--data", "data.json", "letter.rtfspec"}).status,
              0);
}

TEST_F(TemplateTest, ReportsDataThatCannotBeRead) {
    EXPECT_EQ(run({"render", "--data", "no.json", "letter.rtfspec"}).status, 2);
    const ProgramResult result = run({"check", "--data", "no.json", "letter.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("no.json"));
}

TEST_F(TemplateTest, IsCheckedWithoutDataAsFarAsPossible) {
    folder.write("letter.rtfspec",
                 templateOf("{{#lines}}\n(p\n(pt={{.}})\n(pa=rihgt)\np)\n{{/lines}}"));
    const ProgramResult result = run({"check", "letter.rtfspec"});
    EXPECT_EQ(result.output,
              "letter.rtfspec:8:5: error: rihgt isn't a recognized alignment. [wrong-alignment]\n"
              "    (pa=rihgt)\n"
              "        ^~~~~\n"
              "    hint: did you mean right?\n"
              "1 error in 1 file\n");
}

TEST_F(TemplateTest, IsFixedWithoutDataOnly) {
    folder.write("letter.rtfspec", templateOf("(p\n(pt={{a}})\n(PA=right)\np)"));
    EXPECT_EQ(run({"check", "--fix", "--data", "data.json", "letter.rtfspec"}).status, 2);
    EXPECT_EQ(run({"check", "--fix", "letter.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("letter.rtfspec"), HasSubstr("(pt={{a}})\n(pa=right)\n"));
}

TEST_F(TemplateTest, IsFormattedAsAnyDescription) {
    const std::string tags = "{{#lines}}\n(p\n(pt={{.}})\np)\n{{/lines}}";
    folder.write("letter.rtfspec", templateOf(tags));
    start.input = R"({"lines":["a","b"]})";
    const std::string before = run({"render", "--data", "-", "letter.rtfspec", "-o", "-"}).output;
    EXPECT_EQ(run({"format", "letter.rtfspec"}).status, 0);
    EXPECT_EQ(run({"render", "--data", "-", "letter.rtfspec", "-o", "-"}).output, before);
}

TEST_F(TemplateTest, IsInTheExtendedLanguage) {
    folder.write("letter.rtfspec", "(doc\n(r\n(c\n(p\n(pt={{name}})\np)\nc)\nr)\ndoc)\n");
    EXPECT_THAT(run({"render", "--data", "data.json", "letter.rtfspec"}).errors,
                HasSubstr("its first line is ; quorvane 2."));
}

}  // namespace
}  // namespace quorvane::cli
