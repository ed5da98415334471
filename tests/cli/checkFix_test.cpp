// The built program's "check --fix" and "check --diff", and the fixes that JSON and SARIF carry.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/WithoutPrivileges.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class CheckFixTest : public ProgramTest {
protected:
    CheckFixTest() : ProgramTest({"check"}) {}
};

/// Two mistakes that can be fixed for certain, and one that cannot; in Windows-1252, with trailing
/// blanks and ends of lines of both kinds.
constexpr const char* mistyped =
    "; caf\xE9\r\n(doc\r\n(r\n(rb=gren)  \r\n(rtb=medium)\r\n(c\r\n(p\r\n(pt=a } \x80)\r\np)\r\nc)"
    "\r\nr)\r\ndoc)";
constexpr const char* fixed =
    "; caf\xE9\r\n(doc\r\n(r\n(rb=green)  \r\n(rtb=medium)\r\n(c\r\n(p\r\n(pt=a \\} \x80)\r\np)\r\n"
    "c)\r\nr)\r\ndoc)";
constexpr const char* whatRemains =
    "a.rtfspec:5:6: error: medium isn't a recognized border. [wrong-border]\n"
    "    (rtb=medium)\n"
    "         ^~~~~~\n"
    "    hint: did you mean normal?\n";
const std::string whatIsFixed =
    "a.rtfspec:4:5: fixed: gren isn't a recognized color. [wrong-color]\n"
    "    (rb=gren)  \n"
    "        ^~~~\n"
    "    fix: green\n"
    "a.rtfspec:8:7: fixed: Unmatched }. [unbalanced-brace]\n"
    "    (pt=a } €)\n"
    "          ^\n"
    "    fix: \\}\n";
const std::string diff =
    "--- a/a.rtfspec\n"
    "+++ b/a.rtfspec\n"
    "@@ -1,11 +1,11 @@\n"
    " ; caf\xE9\r\n"
    " (doc\r\n"
    " (r\n"
    "-(rb=gren)  \r\n"
    "+(rb=green)  \r\n"
    " (rtb=medium)\r\n"
    " (c\r\n"
    " (p\r\n"
    "-(pt=a } \x80)\r\n"
    "+(pt=a \\} \x80)\r\n"
    " p)\r\n"
    " c)\r\n"
    " r)\r\n";

TEST_F(CheckFixTest, MakesTheCertainReplacementsAndNothingElse) {
    folder.write("a.rtfspec", mistyped);
    const ProgramResult result = run({"--fix", "a.rtfspec"});
    EXPECT_EQ(folder.read("a.rtfspec"), fixed);
    EXPECT_EQ(result.output, whatIsFixed + whatRemains + "2 fixed, 1 error in 1 file\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(folder.names(), SizeIs(1));
}

TEST_F(CheckFixTest, ChangesNothingTheSecondTime) {
    folder.write("a.rtfspec", fixed);
    const fs::file_time_type time = fs::last_write_time(folder / "a.rtfspec");
    const ProgramResult result = run({"--fix", "a.rtfspec"});
    EXPECT_EQ(result.output, whatRemains + std::string("1 error in 1 file\n"));
    EXPECT_EQ(fs::last_write_time(folder / "a.rtfspec"), time);
}

TEST_F(CheckFixTest, EndsWithTheStatusOfWhatRemains) {
    folder.write("a.rtfspec", "(doc\n(r\n(rb=gren)\n(c\nc)\nr)\ndoc)\n");
    const ProgramResult result = run({"--fix", "a.rtfspec"});
    EXPECT_EQ(result.output,
              "a.rtfspec:3:5: fixed: gren isn't a recognized color. [wrong-color]\n"
              "    (rb=gren)\n"
              "        ^~~~\n"
              "    fix: green\n"
              "1 fixed in 1 file\n");
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckFixTest, KeepsPermissionsAndLinks) {
    folder.write("real.rtfspec", mistyped);
    fs::permissions(folder / "real.rtfspec", fs::perms::owner_all | fs::perms::group_read);
    fs::create_symlink("real.rtfspec", folder.path() / "a.rtfspec");
    run({"--fix", "a.rtfspec"});
    EXPECT_TRUE(fs::is_symlink(folder.path() / "a.rtfspec"));
    EXPECT_EQ(folder.read("real.rtfspec"), fixed);
    EXPECT_EQ(fs::status(folder / "real.rtfspec").permissions(),
              fs::perms::owner_all | fs::perms::group_read);
}

TEST_F(CheckFixTest, FixesTheStyleSheetBeforeTheDescriptions) {
    folder.write("s.rtfss", "{ name: normal; style-def: s }\n{ nmae: heading; style-def: s }\n");
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=x)\n(ps=haeding)\np)\nc)\nr)\ndoc)\n");
    const ProgramResult result = run({"--fix", "-s", "s.rtfss", "a.rtfspec"});
    EXPECT_EQ(folder.read("s.rtfss"),
              "{ name: normal; style-def: s }\n{ name: heading; style-def: s }\n");
    EXPECT_EQ(folder.read("a.rtfspec"),
              "(doc\n(r\n(c\n(p\n(pt=x)\n(ps=heading)\np)\nc)\nr)\ndoc)\n");
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckFixTest, FixesAllFilesOfAFolder) {
    fs::create_directory(folder.path() / "d");
    folder.write("d/a.rtfspec", mistyped);
    folder.write("d/b.rtfspec", mistyped);
    const ProgramResult result = run({"--fix", "d"});
    EXPECT_EQ(folder.read("d/a.rtfspec"), fixed);
    EXPECT_EQ(folder.read("d/b.rtfspec"), fixed);
    EXPECT_THAT(result.output, testing::EndsWith("\n4 fixed, 2 errors in 2 files\n"));
}

TEST_F(CheckFixTest, NeverTouchesAnRtfFile) {
    const std::string rtf = "{\\rtf1 {Total} \\'zz";
    folder.write("a.rtf", rtf);
    const ProgramResult result = run({"--fix", "a.rtf"});
    EXPECT_EQ(folder.read("a.rtf"), rtf);
    EXPECT_EQ(result.status, 1);
}

TEST_F(CheckFixTest, LeavesWhatIsIgnored) {
    folder.write("a.rtfspec",
                 "(doc\n(r\n; quorvane: ignore wrong-color\n(rb=gren)\n(rtb=thck)\n(c\n"
                 "c)\nr)\ndoc)\n");
    run({"--fix", "--ignore=wrong-border", "a.rtfspec"});
    EXPECT_EQ(
        folder.read("a.rtfspec"),
        "(doc\n(r\n; quorvane: ignore wrong-color\n(rb=gren)\n(rtb=thck)\n(c\nc)\nr)\ndoc)\n");
}

TEST_F(CheckFixTest, WritesTheFixedTextOfStandardInputToStandardOutput) {
    start.input = mistyped;
    const ProgramResult result = run({"--fix", "--stdin-filename=a.rtfspec", "-"});
    EXPECT_EQ(result.output, fixed);
    EXPECT_EQ(result.errors, whatIsFixed + whatRemains + "2 fixed, 1 error in 1 file\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(CheckFixTest, PassesStandardInputOnWhereThereIsNothingToFix) {
    for (const std::string& text : {descriptionOf("Total"), std::string("{\\rtf1 {Total}")}) {
        start.input = text;
        EXPECT_EQ(run({"--fix", "-"}).output, text);
    }
}

TEST_F(CheckFixTest, DiffShowsTheFixesAndMakesNone) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--fix", "--diff", "a.rtfspec"},
          std::vector<std::string>{"--diff", "a.rtfspec"}}) {
        folder.write("a.rtfspec", mistyped);
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.output, diff);
        EXPECT_EQ(result.errors,
                  "a.rtfspec:4:5: error: gren isn't a recognized color. [wrong-color]\n"
                  "    (rb=gren)  \n"
                  "        ^~~~\n"
                  "    hint: did you mean green?\n" +
                      std::string(whatRemains) +
                      "a.rtfspec:8:7: warning: Unmatched }. [unbalanced-brace]\n"
                      "    (pt=a } €)\n"
                      "          ^\n"
                      "    hint: write \\} for a literal brace\n"
                      "2 errors, 1 warning in 1 file\n");
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(folder.read("a.rtfspec"), mistyped);
    }
}

TEST_F(CheckFixTest, DiffIsOneThatPatchTakes) {
    folder.write("a.rtfspec", mistyped);
    folder.write("fix.diff", run({"--diff", "a.rtfspec"}).output);
    const std::string command =
        "cd '" + folder.path().string() + "' && '" QUORVANE_PATCH "' --binary -s -p1 <fix.diff";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(folder.read("a.rtfspec"), fixed);
}

TEST_F(CheckFixTest, DiffOfWhatNeedsNoFixIsEmpty) {
    folder.write("a.rtfspec", descriptionOf("Total"));
    const ProgramResult result = run({"--diff", "a.rtfspec"});
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckFixTest, ReportsAFileThatCannotBeWrittenAndWhatIsWrongWithIt) {
    folder.write("a.rtfspec", mistyped);
    fs::permissions(folder / "a.rtfspec", fs::perms::all & ~fs::perms::owner_write &
                                              ~fs::perms::group_write & ~fs::perms::others_write);
    start.prepare = giveUpOverridingPermissions;
    const ProgramResult result = run({"--fix", "a.rtfspec"});
    EXPECT_EQ(result.errors, "a.rtfspec: Permission denied\n");
    EXPECT_THAT(result.output, testing::EndsWith("\n2 errors, 1 warning in 1 file\n"));
    EXPECT_THAT(result.output, Not(HasSubstr("fixed")));
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(folder.read("a.rtfspec"), mistyped);
}

TEST_F(CheckFixTest, JsonHasTheFixesInBytesOfTheFile) {
    folder.write("a.rtfspec", mistyped);
    const std::vector<std::string> lines = linesOf(run({"--diagnostics=json", "a.rtfspec"}).output);
    ASSERT_THAT(lines, SizeIs(3));
    const json color = json::parse(lines[0]);
    EXPECT_EQ(color.at("fix"), json({{"offset", 21}, {"length", 4}, {"replacement", "green"}}));
    EXPECT_EQ(std::string(mistyped).substr(21, 4), "gren");
    EXPECT_FALSE(json::parse(lines[1]).contains("fix"));
    const json brace = json::parse(lines[2]);
    EXPECT_EQ(brace.at("fix").at("replacement"), "\\}");
    EXPECT_EQ(std::string(mistyped).substr(brace.at("fix").at("offset"), 1), "}");
    EXPECT_FALSE(brace.contains("fixed"));
}

TEST_F(CheckFixTest, JsonMarksWhatWasFixed) {
    folder.write("a.rtfspec", mistyped);
    const std::vector<std::string> lines =
        linesOf(run({"--fix", "--diagnostics=json", "a.rtfspec"}).output);
    ASSERT_THAT(lines, SizeIs(3));
    EXPECT_EQ(json::parse(lines[0]).at("fixed"), true);
    EXPECT_EQ(json::parse(lines[1]).at("fixed"), true);
    EXPECT_FALSE(json::parse(lines[2]).contains("fixed"));
}

TEST_F(CheckFixTest, SarifHasTheFixes) {
    folder.write("a.rtfspec", mistyped);
    const json log = json::parse(run({"--diagnostics=sarif", "a.rtfspec"}).output);
    const json& results = log.at("runs").at(0).at("results");
    ASSERT_THAT(results, SizeIs(3));
    EXPECT_EQ(results.at(0).at("fixes"), json::parse(R"([{
                "description": {"text": "did you mean green?"},
                "artifactChanges": [{
                    "artifactLocation": {"uri": "a.rtfspec", "uriBaseId": "SRCROOT"},
                    "replacements": [{
                        "deletedRegion": {"startLine": 4, "startColumn": 5, "endLine": 4,
                                          "endColumn": 9, "charOffset": 21, "charLength": 4},
                        "insertedContent": {"text": "green"}
                    }]
                }]
            }])"));
    EXPECT_FALSE(results.at(1).contains("fixes"));
}

TEST_F(CheckFixTest, SarifSaysWhatIsLeftAfterFixing) {
    folder.write("a.rtfspec", mistyped);
    const json log = json::parse(run({"--fix", "--diagnostics=sarif", "a.rtfspec"}).output);
    const json& results = log.at("runs").at(0).at("results");
    ASSERT_THAT(results, SizeIs(1));
    EXPECT_EQ(results.at(0).at("ruleId"), "wrong-border");
}

}  // namespace
}  // namespace quorvane::cli
