// The built program with data-schema, and with --schema.

#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class SchemaTest : public ProgramTest {
protected:
    SchemaTest() {
        folder.write("a.rtfspec",
                     "; quorvane 2\n(doc\n{{> head}}\n{{#lines}}\n(r\n(c\n(p\n(pt={{@index}} "
                     "{{price|money}})\np)\nc)\nr)\n{{/lines}}\ndoc)\n");
        folder.write("head.rtfpart", "(header={{title|default:Prices}})\n");
        folder.write("right.json", R"({"lines":[{"price":1},{"price":"2.50"}]})");
        folder.write("wrong.json", "{\n \"lines\": [{\"price\":1},\n  {\"prise\":2}]}\n");
    }

    std::string writeSchema() {
        EXPECT_EQ(run({"data-schema", "a.rtfspec", "-o", "schema.json"}).status, 0);
        return folder.read("schema.json");
    }
};

TEST_F(SchemaTest, IsWrittenForATemplateWithItsPartials) {
    const ProgramResult result = run({"data-schema", "a.rtfspec"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
    const nlohmann::json schema = nlohmann::json::parse(result.output);
    EXPECT_EQ(schema["required"], nlohmann::json::array({"lines"}));
    EXPECT_EQ(schema["properties"]["title"]["description"],
              "head.rtfpart, line 1: {{title|default:Prices}}.");
    EXPECT_EQ(writeSchema(), result.output);
}

TEST_F(SchemaTest, IsWrittenForATemplateFromStandardInput) {
    start.input = folder.read("a.rtfspec");
    EXPECT_EQ(run({"data-schema", "-", "-o", "-"}).output, writeSchema());
}

TEST_F(SchemaTest, IsNotWrittenForATemplateWithErrors) {
    folder.write("b.rtfspec", "; quorvane 2\n(doc\n{{#a}}\ndoc)\n");
    const ProgramResult result = run({"data-schema", "b.rtfspec", "-o", "b.json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "b.rtfspec:3:1: error: The section that begins here does not end. [wrong-tag]\n"
              "    {{#a}}\n"
              "    ^~~~~~\n");
    EXPECT_THAT(folder.names(), Not(Contains("b.json")));
}

TEST_F(SchemaTest, DoesNotTakeThePlaceOfASource) {
    const std::string source = folder.read("a.rtfspec");
    folder.write("letter.txt", source);
    folder.write("names.RTFPART", "{{#names}}\n{{/names}}\n");
    std::filesystem::create_symlink("letter.txt", folder.path() / "link.json");
    const auto errorFor = [&](const std::string& output) {
        const ProgramResult result = run({"data-schema", "letter.txt", "-o", output});
        EXPECT_EQ(result.status, 2);
        return result.errors.substr(0, result.errors.find('\n'));
    };
    EXPECT_EQ(errorFor("letter.txt"), "quorvane: the schema would replace letter.txt");
    EXPECT_EQ(errorFor("./letter.txt"), "quorvane: the schema would replace letter.txt");
    EXPECT_EQ(errorFor("link.json"), "quorvane: the schema would replace letter.txt");
    EXPECT_EQ(errorFor("a.rtfspec"),
              "quorvane: the schema would replace a.rtfspec, which is a description; name another "
              "file, or move that one away");
    EXPECT_EQ(errorFor("names.RTFPART"),
              "quorvane: the schema would replace names.RTFPART, which is a partial; name another "
              "file, or move that one away");
    EXPECT_EQ(folder.read("letter.txt"), source);
    EXPECT_EQ(folder.read("a.rtfspec"), source);
}

TEST_F(SchemaTest, IsNotReplacedByADocumentOfItsData) {
    const std::string schema = writeSchema();
    const ProgramResult result = run({"render", "--data", "right.json", "--schema", "schema.json",
                                      "-o", "schema.json", "a.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors,
                StartsWith("quorvane: the document of a.rtfspec would replace schema.json\n"));
    EXPECT_EQ(folder.read("schema.json"), schema);
}

TEST_F(SchemaTest, NeedsATemplateThatCanBeRead) {
    const ProgramResult result = run({"data-schema", "no.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("no.rtfspec"));
    EXPECT_EQ(run({"data-schema"}).status, 2);
}

TEST_F(SchemaTest, LetsDataThroughThatMeetsIt) {
    writeSchema();
    EXPECT_EQ(
        run({"render", "--data", "right.json", "--schema", "schema.json", "a.rtfspec"}).status, 0);
    EXPECT_EQ(
        run({"check", "-q", "--data", "right.json", "--schema", "schema.json", "a.rtfspec"}).output,
        "");
}

TEST_F(SchemaTest, StopsOtherDataAtItsPlace) {
    writeSchema();
    const std::string report =
        "wrong.json:3:3: error: /lines/1 has no price, which the schema requires (did you mean "
        "prise?). [schema-mismatch]\n"
        "      {\"prise\":2}]}\n"
        "      ^\n";
    const ProgramResult rendered =
        run({"render", "--data", "wrong.json", "--schema", "schema.json", "a.rtfspec"});
    EXPECT_EQ(rendered.status, 1);
    EXPECT_EQ(rendered.errors, report);
    EXPECT_THAT(folder.names(), Not(Contains("a.rtf")));
    const ProgramResult checked =
        run({"check", "--data", "wrong.json", "--schema", "schema.json", "a.rtfspec"});
    EXPECT_EQ(checked.status, 1);
    EXPECT_THAT(checked.output, StartsWith(report));
}

TEST_F(SchemaTest, IsReportedWhenItIsNotASchema) {
    folder.write("schema.json", "{\n  \"required\": true\n}\n");
    const ProgramResult result =
        run({"render", "--data", "right.json", "--schema", "schema.json", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors,
                StartsWith("schema.json:2:15: error: required takes a list of names."));
    folder.write("schema.json", "{");
    EXPECT_THAT(
        run({"check", "--data", "right.json", "--schema", "schema.json", "a.rtfspec"}).output,
        HasSubstr("schema.json:1:2: error: This is not JSON"));
}

TEST_F(SchemaTest, StopsTheRecordsThatItRefuses) {
    writeSchema();
    folder.write("data.jsonl",
                 "{\"lines\":[{\"price\":1}]}\n"
                 "{\"lines\":[{\"price\":1},{\"price\":\"free\"}],\"title\":{}}\n"
                 "{\"lines\":[{\"price\":3}]}\n");
    const ProgramResult result = run({"render", "--data", "data.jsonl", "--schema", "schema.json",
                                      "--each", "--report", "report.jsonl", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "data.jsonl:2: error: record 2: /lines/1/price is \"free\"; the schema asks for a "
              "number. [schema-mismatch]\n"
              "data.jsonl:2: error: record 2: /title is an object; the schema asks for a number, a "
              "text, null or true or false. [schema-mismatch]\n"
              "data.jsonl: 1 record failed; 2 documents were written\n");
    EXPECT_THAT(folder.names(),
                ElementsAre("a-1.rtf", "a-3.rtf", "a.rtfspec", "data.jsonl", "head.rtfpart",
                            "report.jsonl", "right.json", "schema.json", "wrong.json"));
    EXPECT_THAT(
        folder.read("report.jsonl"),
        HasSubstr(R"({"record":2,"line":2,"status":"failed","file":null,"diagnostics":[{"file":)"
                  R"("data.jsonl","line":2,"number":5,"level":null,"source":null,"message":)"
                  R"("/lines/1/price is \"free\"; the schema asks for a number. )"
                  R"([schema-mismatch]","kind":"check"},)"));
}

TEST_F(SchemaTest, TellsProgramsWhichRecordItRefuses) {
    writeSchema();
    folder.write("data.csv", "title\nPrices\n");
    const ProgramResult result =
        run({"render", "--data", "data.csv", "--schema", "schema.json", "--each", "--diagnostics",
             "json", "-o", "{{none}}.rtf", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              R"({"file":"data.csv","line":2,"record":1,"number":5,"level":null,"source":null,)"
              R"("message":"The data has no lines, which the schema requires. [schema-mismatch]",)"
              R"("kind":"check"})"
              "\n"
              R"({"file":"data.csv","line":null,"number":5,"level":null,"source":null,)"
              R"("message":"1 record failed; 0 documents were written","kind":"raised"})"
              "\n");
}

TEST_F(SchemaTest, IsNotReplacedByADocument) {
    writeSchema();
    const std::string before = folder.read("schema.json");
    folder.write("data.csv", "title,lines\nschema,\n");
    const ProgramResult result = run({"render", "--data", "data.csv", "--schema", "schema.json",
                                      "--each", "-o", "{{title}}.json", "a.rtfspec"});
    EXPECT_THAT(result.errors, HasSubstr("the document would replace schema.json"));
    EXPECT_EQ(folder.read("schema.json"), before);
}

TEST_F(SchemaTest, GoesWithDataOnly) {
    const ProgramResult result = run({"render", "--schema", "schema.json", "a.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr("--data"));
    EXPECT_EQ(run({"render", "--data", "right.json", "--schema", "no.json", "a.rtfspec"}).status,
              2);
}

}  // namespace
}  // namespace quorvane::cli
