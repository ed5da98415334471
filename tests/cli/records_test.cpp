// The built program with --each.

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class RecordsTest : public ProgramTest {
protected:
    RecordsTest() : ProgramTest({"render"}) {
        folder.write("letter.rtfspec",
                     "; quorvane 2\n(doc\n(r\n(c\n(p\n(pt={{@index}}: Dear {{name}},)\np)\nc)\n"
                     "r)\ndoc)\n");
        folder.write("data.jsonl",
                     "{\"number\":\"A/1\",\"name\":\"Ann {B}\"}\n"
                     "{\"number\":\"A/2\",\"nme\":\"Bob\"}\n"
                     "{\"number\":\"A/3\",\"name\":}\n"
                     "{\"number\":\"A/4\",\"name\":\"Dora\"}\n");
        folder.write("good.json", R"([{"name":"Ann"},{"name":"Bob"},{"name":"Cleo"}])");
    }
};

TEST_F(RecordsTest, GetADocumentEach) {
    const ProgramResult result =
        run({"--data", "good.json", "--each", "-o", "{{name|lower}}.rtf", "letter.rtfspec"});
    EXPECT_EQ(result.errors, "3 documents were written\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(folder.read("ann.rtf"), HasSubstr("1: Dear Ann,\\cell"));
    EXPECT_THAT(folder.read("bob.rtf"), HasSubstr("2: Dear Bob,\\cell"));
    EXPECT_THAT(folder.read("cleo.rtf"), HasSubstr("3: Dear Cleo,\\cell"));
}

TEST_F(RecordsTest, ThatFailAreReportedAndTheOthersGoOn) {
    const ProgramResult result =
        run({"--data", "data.jsonl", "--each", "-o", "{{number}}.rtf", "letter.rtfspec"});
    EXPECT_EQ(result.errors,
              "letter.rtfspec:6:22: error: record 2: name is not in the data. [missing-name]\n"
              "    (pt={{@index}}: Dear {{name}},)\n"
              "                         ^~~~~~~~\n"
              "    hint: did you mean nme?\n"
              "data.jsonl:3: error: record 3: This is not JSON: unexpected '}'; expected '[', "
              "'{', or a literal.\n"
              "data.jsonl: 2 records failed; 2 documents were written\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(folder.read("A_4.rtf"), HasSubstr("4: Dear Dora,\\cell"));
    EXPECT_THAT(folder.names(),
                ElementsAre("A_1.rtf", "A_4.rtf", "data.jsonl", "good.json", "letter.rtfspec"));
}

TEST_F(RecordsTest, OfCsvHaveNumbersAndDatesAsTheLocaleWritesThem) {
    folder.write("sum.rtfspec",
                 "; quorvane 2\n(doc\n(r\n(c\n(p\n(pt={{sum|money}} {{day|date:yyyy-MM-dd}})\np)\n"
                 "c)\nr)\ndoc)\n");
    folder.write("a.csv", "sum;day\n1.250;31.10.2026\n12,5;1.2.2027\n");
    EXPECT_EQ(
        run({"--data", "a.csv", "--each", "--locale=de-DE", "-o", "{{@index}}.rtf", "sum.rtfspec"})
            .errors,
        "2 documents were written\n");
    EXPECT_THAT(folder.read("1.rtf"), HasSubstr("1.250,00 2026-10-31\\cell"));
    EXPECT_THAT(folder.read("2.rtf"), HasSubstr("12,50 2027-02-01\\cell"));
    EXPECT_THAT(run({"--data", "a.csv", "--each", "-o", "{{@index}}.rtf", "sum.rtfspec"}).errors,
                HasSubstr("sum: \"1.250\" can be read in two ways; choose one with --locale, such "
                          "as en-US or de-DE."));
}

TEST_F(RecordsTest, AreInAReport) {
    run({"--data", "data.jsonl", "--each", "-o", "{{number}}.rtf", "--report", "report.jsonl",
         "letter.rtfspec"});
    EXPECT_EQ(folder.read("report.jsonl"),
              R"({"record":1,"line":1,"status":"written","file":"A_1.rtf"})"
              "\n"
              R"({"record":2,"line":2,"status":"failed","file":"A_2.rtf","diagnostics":[)"
              R"({"file":"letter.rtfspec","line":6,"column":22,"length":8,"offset":48,)"
              R"("severity":"error","identifier":"missing-name",)"
              R"("message":"name is not in the data.","hint":"did you mean nme?"}]})"
              "\n"
              R"({"record":3,"line":3,"status":"failed","file":null,"diagnostics":[)"
              R"({"file":"data.jsonl","line":3,"number":5,"level":null,"source":null,)"
              R"("message":"This is not JSON: unexpected '}'; expected '[', '{', or a literal.",)"
              R"("kind":"raised"}]})"
              "\n"
              R"({"record":4,"line":4,"status":"written","file":"A_4.rtf"})"
              "\n");
}

TEST_F(RecordsTest, AreObjectsForPrograms) {
    const ProgramResult result = run({"--data", "data.jsonl", "--each", "-o", "{{number}}.rtf",
                                      "--diagnostics=json", "letter.rtfspec"});
    EXPECT_THAT(result.errors,
                HasSubstr(R"({"file":"data.jsonl","line":3,"record":3,"number":5,)"));
    EXPECT_THAT(result.errors,
                HasSubstr(R"("message":"2 records failed; 2 documents were written")"));
}

TEST_F(RecordsTest, GiveTheSameSideBySide) {
    std::string lines;
    for (int i = 1; i <= 100; ++i) {
        lines += i % 7 == 0 ? "{}\n" : R"({"name":"x","number":)" + std::to_string(i % 90) + "}\n";
    }
    folder.write("many.jsonl", lines);
    const auto render = [&](const std::string& jobs) {
        const ProgramResult result =
            run({"--data", "many.jsonl", "--each", "--mkdir", "-o",
                 "out" + jobs + "/{{number}}.rtf", "--report", "-", "-j", jobs, "letter.rtfspec"});
        EXPECT_EQ(result.status, 1);
        std::string all = result.output + result.errors;
        for (std::size_t at = 0; (at = all.find("out" + jobs, at)) != std::string::npos;) {
            all.erase(at, 4);
        }
        return all;
    };
    EXPECT_EQ(render("1"), render("5"));
    for (const auto& entry : std::filesystem::directory_iterator(folder.path() / "out1")) {
        const std::string name = entry.path().filename().string();
        EXPECT_EQ(folder.read("out1/" + name), folder.read("out5/" + name));
    }
}

TEST_F(RecordsTest, ReadNumbersAndDatesForNamesAsTheTemplateDoes) {
    folder.write("a.csv", "name;n;Datum\nx;1.249,50;31.12.2027\n");
    const ProgramResult result =
        run({"--data", "a.csv", "--each", "--locale=de-DE", "--mkdir", "-o",
             "{{Datum|date:yyyy}}/{{n|money}}.rtf", "letter.rtfspec"});
    EXPECT_EQ(result.errors, "1 document was written\n");
    EXPECT_TRUE(folder.has("2027/1.249,50.rtf"));
}

TEST_F(RecordsTest, WithOneNameAreAnErrorAndNothingIsOverwritten) {
    folder.write("a.csv", "name,n\nx:y,1\nX/Y,2\n");
    const ProgramResult result =
        run({"--data", "a.csv", "--each", "-o", "{{name}}.rtf", "letter.rtfspec"});
    EXPECT_EQ(result.errors,
              "X_Y.rtf: record 2: the document of record 1 already goes to this file\n"
              "a.csv: 1 record failed; 1 document was written\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(folder.read("x_y.rtf"), HasSubstr("1: Dear x:y,"));
    EXPECT_FALSE(folder.has("X_Y.rtf"));
}

TEST_F(RecordsTest, WithOneShortenedNameAreAnError) {
    const std::string name(120, 'a');
    folder.write("a.csv", "name\n" + name + "b\n" + name + "c\n");
    EXPECT_EQ(run({"--data", "a.csv", "--each", "-o", "{{name}}.rtf", "letter.rtfspec"}).errors,
              name +
                  ".rtf: record 2: the document of record 1 already goes to this file; a value "
                  "was shortened for its name\n"
                  "a.csv: 1 record failed; 1 document was written\n");
}

TEST_F(RecordsTest, WithOneFileThroughALinkAreAnError) {
    std::filesystem::create_symlink("letter-2.rtf", folder.path() / "letter-1.rtf");
    EXPECT_EQ(run({"--data", "good.json", "--each", "letter.rtfspec"}).errors,
              "letter-2.rtf: record 2: the document of record 1 already goes to this file\n"
              "good.json: 1 record failed; 2 documents were written\n");
    EXPECT_THAT(folder.read("letter-2.rtf"), HasSubstr("1: Dear Ann,"));
}

TEST_F(RecordsTest, WithOneFolderThroughALinkAreAnError) {
    std::filesystem::create_directory(folder.path() / "Ann");
    std::filesystem::create_directory_symlink("Ann", folder.path() / "Bob");
    EXPECT_EQ(
        run({"--data", "good.json", "--each", "--mkdir", "-o", "{{name}}/a.rtf", "letter.rtfspec"})
            .errors,
        "Bob/a.rtf: record 2: the document of record 1 already goes to this file\n"
        "good.json: 1 record failed; 2 documents were written\n");
    EXPECT_THAT(folder.read("Ann/a.rtf"), HasSubstr("1: Dear Ann,"));
}

TEST_F(RecordsTest, DoNotReplaceTheReport) {
    std::filesystem::create_directory(folder.path() / "out");
    for (const std::string report : {"out/Ann.rtf", "out/./ANN.rtf", "out/../out//Ann.rtf"}) {
        const ProgramResult result = run({"--data", "good.json", "--each", "-o", "out/{{name}}.rtf",
                                          "--report", report, "letter.rtfspec"});
        EXPECT_EQ(result.errors,
                  "out/Ann.rtf: record 1: the report already goes to this file\n"
                  "good.json: 1 record failed; 2 documents were written\n");
        EXPECT_THAT(folder.read(report), HasSubstr(R"({"record":1,"line":1,"status":"failed")"));
    }
}

TEST_F(RecordsTest, StayInTheFolderThatIsWritten) {
    folder.write("a.csv", "name,x\n-,\n");
    const auto write = [&](const std::string& name) {
        const ProgramResult result =
            run({"--data", "a.csv", "--each", "--mkdir", "-o", name, "letter.rtfspec"});
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "1 document was written\n");
    };
    write("{{name}}");
    EXPECT_THAT(folder.read("_"), HasSubstr("1: Dear -,"));
    write("out/..{{x}}/a.rtf");
    EXPECT_THAT(folder.read("out/.._/a.rtf"), HasSubstr("1: Dear -,"));
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(RecordsTest, ReplaceTheDocumentsOfAnEarlierRun) {
    folder.write("Ann.rtf", "{\\rtf1 old}");
    run({"--data", "good.json", "--each", "-o", "{{name}}.rtf", "letter.rtfspec"});
    EXPECT_THAT(folder.read("Ann.rtf"), HasSubstr("1: Dear Ann,"));
}

TEST_F(RecordsTest, DoNotReplaceWhatIsRead) {
    folder.write("a.rtfss", "{ name: normal; style-def: s; format: \\fs20 }");
    folder.write("a.json", R"([{"name":"a.rtfss"},{"name":"letter.rtfspec"},{"name":"a.json"}])");
    const ProgramResult result =
        run({"--data", "a.json", "--each", "-o", "{{name}}", "-s", "a.rtfss", "letter.rtfspec"});
    EXPECT_EQ(result.errors,
              "a.rtfss: record 1: the document would replace a.rtfss\n"
              "letter.rtfspec: record 2: the document would replace letter.rtfspec\n"
              "a.json: record 3: the document would replace a.json\n"
              "a.json: 3 records failed; 0 documents were written\n");
    EXPECT_THAT(folder.read("a.json"), HasSubstr("name"));
    EXPECT_THAT(run({"--data", "a.json", "--each", "--report", "a.json", "letter.rtfspec"}).errors,
                HasSubstr("the report would replace a.json"));
}

TEST_F(RecordsTest, AreNumberedWithoutANameOfTheirOwn) {
    run({"--data", "good.json", "--each", "letter.rtfspec"});
    EXPECT_THAT(folder.read("letter-3.rtf"), HasSubstr("3: Dear Cleo,"));
    run({"--data", "good.json", "--each", "--mkdir", "--output-dir", "out", "letter.rtfspec"});
    EXPECT_THAT(folder.read("out/letter-2.rtf"), HasSubstr("2: Dear Bob,"));
}

TEST_F(RecordsTest, CanBeARangeOfThem) {
    run({"--data", "good.json", "--each", "--records", "2-2", "letter.rtfspec"});
    run({"--data", "good.json", "--each", "--records=3-", "letter.rtfspec"});
    EXPECT_THAT(folder.names(), Not(testing::Contains("letter-1.rtf")));
    EXPECT_THAT(folder.read("letter-2.rtf"), HasSubstr("2: Dear Bob,"));
    EXPECT_THAT(folder.read("letter-3.rtf"), HasSubstr("3: Dear Cleo,"));
}

TEST_F(RecordsTest, BeyondTheDataAreAnError) {
    const ProgramResult result =
        run({"--data", "good.json", "--each", "--records=4-9", "letter.rtfspec"});
    EXPECT_EQ(result.errors, "good.json: the data has 3 records; --records begins with 4\n");
    EXPECT_EQ(result.status, 2);
    folder.write("none.jsonl", "");
    EXPECT_EQ(run({"--data", "none.jsonl", "--each", "--records=1-9", "letter.rtfspec"}).errors,
              "none.jsonl: the data has 0 records; --records begins with 1\n");
}

TEST_F(RecordsTest, CanBeNone) {
    folder.write("none.jsonl", "");
    const ProgramResult result = run({"--data", "none.jsonl", "--each", "letter.rtfspec"});
    EXPECT_EQ(result.errors, "0 documents were written\n");
    EXPECT_EQ(result.status, 0);
}

TEST_F(RecordsTest, BeforeARangeAreNotLookedAtUnlessTheyEndTheData) {
    folder.write("a.jsonl", "{wrong}\n\n{\"name\":\"Bob\"}\n");
    EXPECT_EQ(run({"--data", "a.jsonl", "--each", "--records=2", "letter.rtfspec"}).errors,
              "1 document was written\n");
    folder.write("a.json", "[{},\n2,{}]");
    EXPECT_EQ(run({"--data", "a.json", "--each", "--records=3", "letter.rtfspec"}).errors,
              "a.json:2: error: record 2: A record must be an object, which begins with {. "
              "What follows is not read.\n"
              "a.json: 1 record failed; 0 documents were written\n");
}

TEST_F(RecordsTest, ComeFromStandardInput) {
    start.input = "name;n\r\nMüller;1\r\n";
    run({"--data", "-", "--each", "letter.rtfspec"});
    EXPECT_THAT(folder.read("letter-1.rtf"), HasSubstr("1: Dear M\\'FCller,"));
}

TEST_F(RecordsTest, NeedAFolderThatExistsOrMkdir) {
    const ProgramResult result =
        run({"--data", "good.json", "--each", "-o", "out/{{name}}/a.rtf", "letter.rtfspec"});
    EXPECT_EQ(result.errors, "out: No such file or directory; --mkdir creates it\n");
    EXPECT_EQ(result.status, 2);
    run({"--data", "good.json", "--each", "--mkdir", "-o", "out/{{name}}/a.rtf", "letter.rtfspec"});
    EXPECT_THAT(folder.read("out/Cleo/a.rtf"), HasSubstr("3: Dear Cleo,"));
}

TEST_F(RecordsTest, EndWithAFullDiskAndEarlierDocumentsAreWhole) {
    std::filesystem::create_symlink("/dev/full", folder.path() / "letter-2.rtf");
    const ProgramResult result = run({"--data", "good.json", "--each", "letter.rtfspec"});
    EXPECT_EQ(result.errors,
              "letter-2.rtf: record 2: No space left on device\n"
              "good.json: 1 record failed; 1 document was written\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(folder.has("letter-1.rtf"));
    EXPECT_FALSE(folder.has("letter-3.rtf"));
}

TEST_F(RecordsTest, EndWithAReportThatCannotBeWritten) {
    const ProgramResult result =
        run({"--data", "good.json", "--each", "--report", "/dev/full", "letter.rtfspec"});
    EXPECT_EQ(result.errors, "3 documents were written\n/dev/full: No space left on device\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(RecordsTest, AreNotReadForATemplateThatIsWrong) {
    folder.write("wrong.rtfspec", "; quorvane 2\n(doc\n{{#a}}\ndoc)\n");
    const ProgramResult result = run({"--data", "good.json", "--each", "wrong.rtfspec"});
    EXPECT_THAT(result.errors, HasSubstr("wrong.rtfspec:3:1: error: The section that begins here"));
    EXPECT_THAT(result.errors, Not(HasSubstr("record")));
    EXPECT_EQ(result.status, 1);
}

TEST_F(RecordsTest, StopAtAStyleSheetThatIsWrong) {
    folder.write("a.rtfss", "; quorvane 2\n{name: a; style-def: s; bald}\n");
    const ProgramResult result =
        run({"--data", "good.json", "--each", "-s", "a.rtfss", "letter.rtfspec"});
    EXPECT_THAT(result.errors, HasSubstr("a.rtfss"));
    EXPECT_THAT(result.errors, HasSubstr("1 record failed; 0 documents were written"));
    EXPECT_EQ(result.status, 1);
}

TEST_F(RecordsTest, GoOnWithoutAStyleSheetIfTheyShall) {
    folder.write("a.rtfss", "; quorvane 2\n{name: a; style-def: s; bald}\n");
    const ProgramResult result = run({"--data", "good.json", "--each", "--keep-going", "-s",
                                      "a.rtfss", "--report", "-", "letter.rtfspec"});
    EXPECT_THAT(result.output, HasSubstr(R"({"record":3,"line":1,"status":"written",)"
                                         R"("file":"letter-3.rtf","diagnostics":[)"));
    EXPECT_EQ(result.status, 1);
}

TEST_F(RecordsTest, NeedDataThatCanBeRead) {
    EXPECT_EQ(run({"--data", "none.json", "--each", "letter.rtfspec"}).errors,
              "none.json: No such file or directory\n");
    folder.write("a.csv", "a,a\n1,2\n");
    EXPECT_EQ(run({"--data", "a.csv", "--each", "letter.rtfspec"}).errors,
              "a.csv:1: error: The heading has \"a\" twice.\n");
    EXPECT_EQ(run({"--data", "good.json", "--each", "--report", "no/x", "letter.rtfspec"}).errors,
              "no/x: No such file or directory\n");
}

TEST_F(RecordsTest, HaveOptionsThatSuitThem) {
    const auto errorOf = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--data", "good.json"});
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 2);
        return result.errors.substr(0, result.errors.find('\n'));
    };
    EXPECT_EQ(errorOf({"--each", "-o", "a.rtf", "letter.rtfspec"}),
              "quorvane: --output names one file for all records; write a tag into it, such as "
              "{{@index}}");
    EXPECT_EQ(errorOf({"--each", "-o", "{{a|b}}.rtf", "letter.rtfspec"}),
              "quorvane: --output: {{a|b}}: \"b\" is not a filter; write number, money, date, "
              "upper, lower, default or count.");
    EXPECT_EQ(errorOf({"--each", "letter.rtfspec", "letter.rtfspec"}),
              "quorvane: --each takes one description");
    EXPECT_EQ(errorOf({"--records=1-2", "letter.rtfspec"}),
              "quorvane: --report and --records are for records; add --each or --join");
    EXPECT_THAT(errorOf({"--each", "--records=0-2", "letter.rtfspec"}),
                HasSubstr("0-2 is not a range of records"));
    EXPECT_THAT(errorOf({"--each", "--records=3-2", "letter.rtfspec"}),
                HasSubstr("3-2 is not a range of records"));
    EXPECT_THAT(errorOf({"--each", "--locale", "xx-YY", "letter.rtfspec"}),
                HasSubstr("--locale: "));
}

}  // namespace
}  // namespace quorvane::cli
