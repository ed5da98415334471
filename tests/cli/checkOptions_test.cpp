// What the options of the built program's "check" do to its report and its exit status.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "tests/cli/ProgramTest.h"
#include "tests/cli/WithoutPrivileges.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

class CheckOptionsTest : public ProgramTest {
protected:
    CheckOptionsTest() : ProgramTest({"check"}) {}
};

/// An error on line 3 and a warning on line 6.
constexpr const char* errorAndWarning = "(doc\n(r\n(rb=crimson)\n(c\n(p\n(pt=)\np)\nc)\nr)\ndoc)\n";
constexpr const char* reportOfError =
    "a.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]\n"
    "    (rb=crimson)\n"
    "        ^~~~~~~\n"
    "    hint: did you mean dark-red?\n";
constexpr const char* reportOfWarning =
    "a.rtfspec:6:5: warning: Empty paragraph: it will not appear in the document. [empty-text]\n"
    "    (pt=)\n"
    "        ^\n";

TEST_F(CheckOptionsTest, ChecksTheStylesheetOnceWhateverNameItIsGivenBy) {
    folder.write("a.rtfss", "{ name: a; style-def: q }\n");
    EXPECT_EQ(run({"-s", "a.rtfss", "./a.rtfss"}).output,
              "a.rtfss:1:23: error: q is not a valid value for style-def [bad-style-kind]\n"
              "    { name: a; style-def: q }\n"
              "                          ^\n"
              "1 error in 1 file\n");
}

TEST_F(CheckOptionsTest, IgnoreLeavesDiagnosticsOut) {
    folder.write("a.rtfspec", errorAndWarning);
    ProgramResult result = run({"--ignore", "wrong-color", "a.rtfspec"});
    EXPECT_EQ(result.output, std::string(reportOfWarning) + "1 warning in 1 file\n");
    EXPECT_EQ(result.status, 3);
    result = run({"--ignore=empty-text", "a.rtfspec"});
    EXPECT_EQ(result.output, std::string(reportOfError) + "1 error in 1 file\n");
    EXPECT_EQ(result.status, 1);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--ignore=empty-text,wrong-color", "a.rtfspec"},
          std::vector<std::string>{"--ignore", "empty-text", "--ignore=wrong-color",
                                   "a.rtfspec"}}) {
        result = run(arguments);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.status, 0);
    }
}

TEST_F(CheckOptionsTest, IgnoreTakesAnRtfFilesDiagnosticsToo) {
    folder.write("a.rtf", "{\\rtf1 {\\b a");
    EXPECT_EQ(run({"--ignore", "unclosed-group", "a.rtf"}).output, "");
}

TEST_F(CheckOptionsTest, RefuseUnknownIdentifiers) {
    folder.write("a.rtfspec", errorAndWarning);
    for (const char* option : {"--ignore", "--enable"}) {
        const ProgramResult result = run({option, "empty-text,wrong-colour", "a.rtfspec"});
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "quorvane: " + std::string(option) +
                                     ": there is no diagnostic wrong-colour; did you mean "
                                     "wrong-color?\nRun with --help for more information.\n");
        EXPECT_EQ(result.status, 2);
    }
    EXPECT_THAT(
        run({"--ignore=nothing-like-it", "a.rtfspec"}).errors,
        HasSubstr(
            "there is no diagnostic nothing-like-it; list them with quorvane check --list\n"));
}

TEST_F(CheckOptionsTest, FailOnDecidesTheStatusOnly) {
    folder.write("a.rtfspec", errorAndWarning);
    folder.write("b.rtfspec", descriptionOf(""));
    folder.write("c.rtfspec", descriptionOf("Total"));
    const std::vector<std::pair<std::string, std::vector<int>>> expected{
        {"error", {1, 0, 0}}, {"warning", {1, 3, 0}}, {"never", {0, 0, 0}}};
    for (const auto& [severity, statuses] : expected) {
        for (std::size_t i = 0; i < statuses.size(); ++i) {
            const std::string file = std::string(1, static_cast<char>('a' + i)) + ".rtfspec";
            const ProgramResult result = run({"--fail-on=" + severity, file});
            EXPECT_EQ(result.status, statuses[i]) << severity << " " << file;
            EXPECT_EQ(result.output, run({file}).output);
        }
        EXPECT_EQ(run({"--fail-on", severity, "nosuch.rtfspec"}).status, 2);
    }
    EXPECT_EQ(run({"--fail-on=hint", "c.rtfspec"}).status, 2);
}

TEST_F(CheckOptionsTest, TheSummaryCountsErrorsWarningsAndFiles) {
    folder.write("a.rtfspec", errorAndWarning);
    folder.write("b.rtfspec", errorAndWarning);
    folder.write("c.rtfspec", descriptionOf("Total"));
    EXPECT_EQ(run({"a.rtfspec"}).output,
              std::string(reportOfError) + reportOfWarning + "1 error, 1 warning in 1 file\n");
    EXPECT_THAT(run({"a.rtfspec", "b.rtfspec", "c.rtfspec"}).output,
                EndsWith("\n2 errors, 2 warnings in 3 files\n"));
    EXPECT_THAT(run({"a.rtfspec", "nosuch.rtfspec"}).output,
                EndsWith("\n1 error, 1 warning in 1 file\n"));
    EXPECT_EQ(run({"c.rtfspec"}).output, "");
}

TEST_F(CheckOptionsTest, QuietLeavesTheSummaryOut) {
    folder.write("a.rtfspec", errorAndWarning);
    for (const char* option : {"-q", "--quiet"}) {
        EXPECT_EQ(run({option, "a.rtfspec"}).output, std::string(reportOfError) + reportOfWarning);
    }
}

TEST_F(CheckOptionsTest, TheFormsForProgramsHaveNoSummary) {
    folder.write("a.rtfspec", errorAndWarning);
    const ProgramResult result = run({"--diagnostics=json", "a.rtfspec"});
    EXPECT_THAT(linesOf(result.output), SizeIs(2));
    EXPECT_THAT(result.output, Not(HasSubstr(" in 1 file")));
    EXPECT_TRUE(json::accept(run({"--diagnostics=sarif", "a.rtfspec"}).output));
}

TEST_F(CheckOptionsTest, UnusedStylesAreReportedWhenAskedFor) {
    folder.write("s.rtfss", "{name: normal; style-def: s}{name: sum; style-def: s}");
    folder.write("a.rtfspec", descriptionOf("Total"));
    EXPECT_EQ(run({"-s", "s.rtfss", "a.rtfspec"}).output, "");
    const ProgramResult result = run({"--enable", "unused-style", "-s", "s.rtfss", "a.rtfspec"});
    EXPECT_EQ(result.output,
              "s.rtfss:1:36: warning: No description uses the style sum. [unused-style]\n"
              "    {name: normal; style-def: s}{name: sum; style-def: s}\n"
              "                                       ^~~\n"
              "1 warning in 2 files\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(run({"--enable=unused-style", "--ignore=unused-style", "-s", "s.rtfss", "a.rtfspec"})
                  .output,
              "");
}

TEST_F(CheckOptionsTest, CommentsLeaveDiagnosticsOfTheNextLineOut) {
    folder.write("a.rtfspec",
                 "(doc\n(r\n; quorvane: ignore wrong-color\n(rb=crimson)\n(c\n(p\n"
                 "; quorvane: ignore empty-text, low-contrast\n(pt=)\np)\nc)\nr)\ndoc)\n");
    folder.write("s.rtfss",
                 "; quorvane: ignore bad-keyword\n{name: normal; style-def: s; colour: red}\n"
                 "; quorvane: ignore unused-style\n{name: sum; style-def: s}\n");
    const ProgramResult result = run({"--enable=unused-style", "-s", "s.rtfss", "a.rtfspec"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.status, 0);
    // Rendering refuses what is wrong all the same.
    start.arguments = {"render", "a.rtfspec"};
    EXPECT_EQ(runProgram(start).status, 1);
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(CheckOptionsTest, ACommentThatCannotBeFollowedIsReported) {
    folder.write("a.rtfspec", "(doc\n; quorvane: ignore wrong-colour\n(r\n(c\nc)\nr)\ndoc)\n");
    const ProgramResult result = run({"a.rtfspec"});
    EXPECT_EQ(result.output,
              "a.rtfspec:2:20: warning: Invalid quorvane comment: there is no diagnostic "
              "wrong-colour. [ignore-comment]\n"
              "    ; quorvane: ignore wrong-colour\n"
              "                       ^~~~~~~~~~~~\n"
              "    hint: did you mean wrong-color?\n"
              "1 warning in 1 file\n");
    EXPECT_EQ(result.status, 3);
}

TEST_F(CheckOptionsTest, AFolderStandsForTheFilesBelowIt) {
    fs::create_directories(folder.path() / "d" / "b" / "c");
    fs::create_directories(folder.path() / "d" / ".git");
    folder.write("d/z.rtfspec", descriptionWithBadColor);
    folder.write("d/b/c/A.RTFSPEC", descriptionWithBadColor);
    folder.write("d/b/s.rtfss", badStyleSheet);
    folder.write("d/b/d.rtf", "{\\rtf1 {Total}");
    folder.write("d/b/notes.txt", descriptionWithBadColor);
    folder.write("d/.git/x.rtfspec", descriptionWithBadColor);
    folder.write("d/.hidden.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"--diagnostics=json", "d"});
    std::vector<std::string> files;
    for (const std::string& line : linesOf(result.output)) {
        files.push_back(json::parse(line).at("file"));
    }
    EXPECT_THAT(files,
                testing::ElementsAre("d/b/c/A.RTFSPEC", "d/b/d.rtf", "d/b/s.rtfss", "d/z.rtfspec"));
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(run({"d"}).output, EndsWith("\n4 errors in 4 files\n"));
}

TEST_F(CheckOptionsTest, AFolderWithLinksInACircleHasAnEnd) {
    fs::create_directories(folder.path() / "d" / "sub");
    folder.write("d/sub/a.rtfspec", descriptionWithBadColor);
    fs::create_directory_symlink("..", folder.path() / "d" / "sub" / "up");
    fs::create_symlink("nowhere.rtfspec", folder.path() / "d" / "gone.rtfspec");
    fs::create_symlink("sub/a.rtfspec", folder.path() / "d" / "link.rtfspec");
    const ProgramResult result = run({"d"});
    EXPECT_THAT(result.output, HasSubstr("d/link.rtfspec:3:5: error: "));
    EXPECT_THAT(result.output, EndsWith("\n2 errors in 2 files\n"));
    EXPECT_EQ(result.errors, "");
}

TEST_F(CheckOptionsTest, AFolderWithoutFilesToCheckIsReported) {
    fs::create_directory(folder.path() / "d");
    folder.write("d/notes.txt", "Total");
    const ProgramResult result = run({"d"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "d: The folder has no .rtfspec, .rtfss or .rtf files\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(CheckOptionsTest, TheStyleSheetOfAFolderIsCheckedOnceAndServesAllDescriptions) {
    fs::create_directory(folder.path() / "d");
    folder.write("d/s.rtfss", "{name: normal; style-def: s; format: \\b; format: \\i}");
    folder.write("d/a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=x)\n(ps=gone)\np)\nc)\nr)\ndoc)\n");
    folder.write("d/b.rtfspec", "(doc\n(r\n(c\n(p\n(pt=x)\n(ps=away)\np)\nc)\nr)\ndoc)\n");
    const ProgramResult result = run({"-s", "d/s.rtfss", "d"});
    EXPECT_THAT(result.output, HasSubstr("d/a.rtfspec:6:5: warning: The stylesheet has no "));
    EXPECT_THAT(result.output, HasSubstr("d/b.rtfspec:6:5: warning: The stylesheet has no "));
    EXPECT_THAT(result.output, EndsWith("\n3 warnings in 3 files\n"));
}

TEST_F(CheckOptionsTest, AFolderThatCannotBeReadIsReportedAndTheOthersAreChecked) {
    fs::create_directories(folder.path() / "d" / "closed");
    folder.write("d/a.rtfspec", descriptionWithBadColor);
    fs::permissions(folder.path() / "d" / "closed", fs::perms::none);
    start.prepare = giveUpOverridingPermissions;
    const ProgramResult result = run({"d"});
    fs::permissions(folder.path() / "d" / "closed", fs::perms::all);
    EXPECT_EQ(result.errors, "d/closed: Permission denied\n");
    EXPECT_THAT(result.output, EndsWith("\n1 error in 1 file\n"));
    EXPECT_EQ(result.status, 2);
}

TEST_F(CheckOptionsTest, ListNamesAllDiagnostics) {
    const ProgramResult result = run({"--list"});
    const std::vector<std::string> lines = linesOf(result.output);
    ASSERT_THAT(lines, SizeIs(diagnosticRules().size()));
    EXPECT_THAT(lines, testing::Contains("wrong-color                error    "
                                         "… isn't a recognized color."));
    EXPECT_THAT(lines, testing::Contains("missing-element            error    "
                                         "The description has no row and no cell."));
    EXPECT_THAT(lines, testing::Contains("unused-style               warning  "
                                         "No description uses the style …. (off by default)"));
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckOptionsTest, ListIsThereForProgramsToo) {
    const std::vector<std::string> lines = linesOf(run({"--list", "--diagnostics=json"}).output);
    ASSERT_THAT(lines, SizeIs(diagnosticRules().size()));
    std::vector<json> objects;
    for (const std::string& line : lines) {
        objects.push_back(json::parse(line));
    }
    EXPECT_THAT(objects, testing::Contains(json({{"identifier", "unused-style"},
                                                 {"severity", "warning"},
                                                 {"language", "stylesheet"},
                                                 {"title", "No description uses the style …."},
                                                 {"default", false}})));
}

TEST_F(CheckOptionsTest, ListAndExplainStandAlone) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--list", "a.rtfspec"},
          std::vector<std::string>{"--list", "--explain=wrong-color"}}) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.errors,
                  "quorvane: --list and --explain cannot be combined with each other or with a "
                  "FILE\nRun with --help "
                  "for more information.\n");
        EXPECT_EQ(result.status, 2);
    }
}

TEST_F(CheckOptionsTest, ExplainSaysWhatIsOffByDefault) {
    const std::string text = run({"--explain", "unused-style"}).output;
    EXPECT_THAT(text, testing::StartsWith("unused-style: warning in stylesheets, off by default\n"
                                          "    No description uses the style sum.\n"));
    EXPECT_THAT(text, HasSubstr("\nReport:\n"
                                "    example.rtfss:2:9: warning: No description uses the style "
                                "sum. [unused-style]\n"));
}

}  // namespace
}  // namespace quorvane::cli
