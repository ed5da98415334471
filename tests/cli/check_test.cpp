// The built program's "check".

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "tests/cli/ProgramTest.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class CheckTest : public ProgramTest {
protected:
    CheckTest() : ProgramTest({"check"}) {}
};

constexpr const char* reportOfBadColor =
    "price.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]\n"
    "    (rb=crimson)\n"
    "        ^~~~~~~\n"
    "    hint: did you mean dark-red?\n"
    "1 error in 1 file\n";

TEST_F(CheckTest, ReportsWhatIsWrongAndWhere) {
    folder.write("price.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"price.rtfspec"});
    EXPECT_EQ(result.output, reportOfBadColor);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 1);
}

TEST_F(CheckTest, DoesNotMentionWhatIsRight) {
    folder.write("letter.rtfspec", descriptionOf("Good morning."));
    folder.write("letter.rtfss", goodStyleSheet);
    const ProgramResult result = run({"letter.rtfspec", "letter.rtfss"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(CheckTest, ReadsAPipeOnce) {
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&pipe] { std::ofstream(pipe) << descriptionWithBadColor; });
    const ProgramResult result = run({"pipe"});
    writer.join();
    EXPECT_THAT(result.output, StartsWith("pipe:3:5: error: crimson isn't a recognized color."));
    EXPECT_EQ(result.status, 1);
}

TEST_F(CheckTest, EndsWith3WhereThereAreWarningsOnly) {
    folder.write("a.rtfspec", descriptionOf(""));
    EXPECT_EQ(run({"a.rtfspec"}).status, 3);
    folder.write("b.rtfspec", descriptionWithBadColor);
    EXPECT_EQ(run({"a.rtfspec", "b.rtfspec"}).status, 1);
}

TEST_F(CheckTest, EndsWith2WhereAFileCannotBeReadAndChecksTheOthers) {
    folder.write("price.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"nosuch.rtfspec", "price.rtfspec"});
    EXPECT_EQ(result.output, reportOfBadColor);
    EXPECT_THAT(result.errors, StartsWith("nosuch.rtfspec: No such file or directory\n"));
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(run({"-s", "nosuch.rtfss", "price.rtfspec"}).status, 2);
}

TEST_F(CheckTest, WantsAFileOrAnIdentifier) {
    const ProgramResult result = run({});
    EXPECT_EQ(result.errors, "quorvane: FILE is required\nRun with --help for more information.\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(run({"--explain", "wrong-color", "a.rtfspec"}).status, 2);
    EXPECT_EQ(run({"--diagnostics=xml", "a.rtfspec"}).status, 2);
}

TEST_F(CheckTest, DistinguishesFilesByTheirContent) {
    folder.write("a.txt", descriptionWithBadColor);
    folder.write("b.txt", badStyleSheet);
    folder.write("c.txt", "{\\rtf1 {Total}");
    const ProgramResult result = run({"a.txt", "b.txt", "c.txt"});
    EXPECT_THAT(result.output, HasSubstr("a.txt:3:5: error: crimson isn't a recognized color."));
    EXPECT_THAT(result.output, HasSubstr("b.txt:1:2: error: Error while processing stylesheet. nam "
                                         "is not a valid keyword. [bad-keyword]\n"));
    EXPECT_THAT(result.output, HasSubstr("c.txt:1:1: error: The group is not closed."));
}

TEST_F(CheckTest, ReadsStandardInput) {
    start.input = descriptionWithBadColor;
    EXPECT_THAT(run({"-"}).output, StartsWith("<stdin>:3:5: error: crimson"));
    start.input = "{\\rtf1 {Total}";
    EXPECT_THAT(run({"-"}).output, StartsWith("<stdin>:1:1: error: The group is not closed."));
}

TEST_F(CheckTest, ChecksTheStyleSheetTooAndOnce) {
    folder.write("a.rtfspec", descriptionOf("Total"));
    folder.write("s.rtfss", badStyleSheet);
    const ProgramResult result = run({"-s", "s.rtfss", "s.rtfss", "a.rtfspec"});
    EXPECT_EQ(result.output,
              "s.rtfss:1:2: error: Error while processing stylesheet. nam is not a valid keyword. "
              "[bad-keyword]\n"
              "    {nam: normal; style-def: s; format: \\f0\\fs24\\cf3}\n"
              "     ^~~\n"
              "    hint: a definition begins with name:\n"
              "1 error in 2 files\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(CheckTest, TakesAnEmptyStyleSheetForOne) {
    folder.write("s.rtfss", "");
    folder.write("t.rtfss", "; no styles yet\n");
    const ProgramResult result = run({"s.rtfss", "t.rtfss"});
    EXPECT_EQ(result.output,
              "s.rtfss:1:1: warning: The stylesheet has no styles. [no-styles]\n"
              "    hint: the file is empty; write definitions such as { name: ...; style-def: "
              "... }\n"
              "1 warning in 2 files\n");
    EXPECT_EQ(result.status, 3);
}

TEST_F(CheckTest, CountsWhatRepeatsForPeopleOnly) {
    std::string rows;
    for (int i = 0; i < 3; ++i) {
        rows += "(r\n(rb=crimson)\n(c\nc)\nr)\n";
    }
    folder.write("a.rtfspec", "(doc\n" + rows + "doc)\n");
    EXPECT_EQ(run({"a.rtfspec"}).output,
              "a.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]\n"
              "    (rb=crimson)\n"
              "        ^~~~~~~\n"
              "    hint: did you mean dark-red?\n"
              "    (and 2 more like this: lines 8 and 13)\n"
              "3 errors in 1 file\n");
    const auto countIn = [](const std::string& text, const std::string& part) {
        int count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos;
             at = text.find(part, at + 1)) {
            ++count;
        }
        return count;
    };
    EXPECT_EQ(
        countIn(run({"--diagnostics=json", "a.rtfspec"}).output, "\"identifier\":\"wrong-color\""),
        3);
    EXPECT_EQ(countIn(run({"--diagnostics=sarif", "a.rtfspec"}).output,
                      "crimson isn't a recognized color."),
              3);
}

TEST_F(CheckTest, ReportsThatABrokenDocumentIsNotRtf) {
    folder.write("a.rtf", "rtf1 {\\b Total}");
    folder.write("b.rtf", "");
    const ProgramResult result = run({"a.rtf", "b.rtf"});
    EXPECT_EQ(result.output,
              "a.rtf:1:1: error: The file does not begin with {\\rtf. [not-rtf]\n"
              "    rtf1 {\\b Total}\n"
              "    ^\n"
              "b.rtf:1:1: error: The file does not begin with {\\rtf. [not-rtf]\n"
              "2 errors in 2 files\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(CheckTest, RefusesTheStyleSheetsThatRenderRefuses) {
    folder.write("a.rtfspec", descriptionOf("Total"));
    folder.write("s.txt", goodStyleSheet);
    folder.write("s.rtfss", goodStyleSheet);
    for (const char* command : {"check", "render"}) {
        start.arguments = {command, "-s", "s.txt", "a.rtfspec"};
        ProgramResult result = runProgram(start);
        EXPECT_EQ(result.errors,
                  "quorvane: the stylesheet s.txt must have the extension rtfss\n"
                  "Run with --help for more information.\n");
        EXPECT_EQ(result.status, 2);
        start.arguments = {command, "-s", "a.rtfspec", "s.rtfss"};
        result = runProgram(start);
        EXPECT_THAT(result.errors, StartsWith("quorvane: the stylesheet a.rtfspec must have the "
                                              "extension rtfss; did you swap it with s.rtfss?\n"));
        EXPECT_EQ(result.status, 2);
    }
}

TEST_F(CheckTest, SaysWhereADescriptionIsGivenAsStyleSheet) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=Total)\n(ps=sum)\np)\nc)\nr)\ndoc)\n");
    folder.write("s.rtfss", "; (swapped)\n" + descriptionOf("Total"));
    const ProgramResult result = run({"-s", "s.rtfss", "a.rtfspec"});
    EXPECT_EQ(result.output,
              "s.rtfss:2:1: warning: This is a description, not a stylesheet. "
              "[description-as-stylesheet]\n"
              "    (doc\n"
              "    ^~~~\n"
              "    hint: did you swap the names of the two files?\n"
              "1 warning in 2 files\n");
    EXPECT_EQ(result.status, 3);
}

TEST_F(CheckTest, CountsTheStylesThatAnyOfTheDescriptionsUses) {
    folder.write("s.rtfss",
                 "{name: normal; style-def: s}{name: a; style-def: s}{name: b; style-def: s}");
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=x)\n(ps=A)\np)\nc)\nr)\ndoc)\n");
    folder.write("b.rtfspec", "(doc\n(r\n(c\n(p\n(pt=x)\n(ps=b)\np)\nc)\nr)\ndoc)\n");
    const std::string enable = "--enable=unused-style";
    EXPECT_EQ(run({enable, "-s", "s.rtfss", "a.rtfspec", "b.rtfspec"}).output, "");
    EXPECT_EQ(run({"-s", "s.rtfss", "a.rtfspec"}).output, "");
    EXPECT_THAT(run({enable, "-s", "s.rtfss", "a.rtfspec"}).output,
                StartsWith("s.rtfss:1:59: warning: No description uses the style b."));
}

TEST_F(CheckTest, ReportsDiagnosticsAsJson) {
    folder.write("price.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"--diagnostics", "json", "price.rtfspec"});
    const std::vector<std::string> lines = linesOf(result.output);
    ASSERT_THAT(lines, SizeIs(1));
    EXPECT_EQ(json::parse(lines[0]), json({{"file", "price.rtfspec"},
                                           {"line", 3},
                                           {"column", 5},
                                           {"length", 7},
                                           {"offset", 12},
                                           {"severity", "error"},
                                           {"identifier", "wrong-color"},
                                           {"message", "crimson isn't a recognized color."},
                                           {"hint", "did you mean dark-red?"}}));
    EXPECT_EQ(result.status, 1);
}

TEST_F(CheckTest, ReportsAFileThatCannotBeReadAsJson) {
    const ProgramResult result = run({"--diagnostics=json", "nosuch.rtfspec"});
    EXPECT_EQ(json::parse(result.errors).at("number"), 53);
}

TEST_F(CheckTest, ReportsDiagnosticsAsSarif) {
    folder.write("price list.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"--diagnostics=sarif", "price list.rtfspec"});
    EXPECT_EQ(result.status, 1);
    const json log = json::parse(result.output);
    const json& run = log.at("runs").at(0);
    EXPECT_TRUE(run.at("invocations").at(0).at("executionSuccessful"));
    ASSERT_THAT(run.at("results"), SizeIs(1));
    const json& found = run.at("results").at(0);
    EXPECT_EQ(found.at("ruleId"), "wrong-color");
    EXPECT_EQ(found.at("level"), "error");
    EXPECT_EQ(found.at("message").at("text"),
              "crimson isn't a recognized color. (did you mean dark-red?)");
    const json& rules = run.at("tool").at("driver").at("rules");
    EXPECT_EQ(rules.at(found.at("ruleIndex").get<std::size_t>()).at("id"), "wrong-color");
    EXPECT_THAT(rules, SizeIs(diagnosticRules().size()));
    const json& place = found.at("locations").at(0).at("physicalLocation");
    EXPECT_EQ(place.at("artifactLocation"),
              json({{"uri", "price%20list.rtfspec"}, {"uriBaseId", "SRCROOT"}}));
    EXPECT_EQ(place.at("region"), json({{"startLine", 3},
                                        {"startColumn", 5},
                                        {"endLine", 3},
                                        {"endColumn", 12},
                                        {"charOffset", 12},
                                        {"charLength", 7}}));
}

TEST_F(CheckTest, DoublesBracesInSarifWhereOneWouldBeAPlaceholder) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=a { b)\np)\nc)\nr)\ndoc)\n");
    const json log = json::parse(run({"--diagnostics=sarif", "a.rtfspec"}).output);
    const json& run = log.at("runs").at(0);
    EXPECT_EQ(run.at("results").at(0).at("message").at("text"),
              "Unmatched {{. (write \\{{ for a literal brace)");
    const json& rules = run.at("tool").at("driver").at("rules");
    const auto wrongColor = std::find_if(rules.begin(), rules.end(), [](const json& rule) {
        return rule.at("id") == "wrong-color";
    });
    EXPECT_EQ(wrongColor->at("shortDescription").at("text"), "… isn't a recognized color.");
    const auto overflow = std::find_if(
        rules.begin(), rules.end(), [](const json& rule) { return rule.at("id") == "overflow"; });
    EXPECT_EQ(overflow->at("shortDescription").at("text"), "A number is too large.");
}

TEST_F(CheckTest, SaysInSarifHowTheFilesAreEncoded) {
    folder.write("a.rtfspec", descriptionWithBadColor);
    const json log = json::parse(run({"--diagnostics=sarif", "a.rtfspec"}).output);
    EXPECT_EQ(log.at("runs").at(0).at("defaultEncoding"), "windows-1252");
}

TEST_F(CheckTest, GivesSarifWhatCodeScanningRequires) {
    folder.write("a.rtfspec", descriptionWithBadColor);
    const json log = json::parse(run({"--diagnostics=sarif", "a.rtfspec"}).output);
    const json& run = log.at("runs").at(0);
    for (const json& rule : run.at("tool").at("driver").at("rules")) {
        const std::string id = rule.at("id");
        for (const char* member : {"shortDescription", "fullDescription", "help"}) {
            const std::string text = rule.at(member).at("text");
            EXPECT_FALSE(text.empty()) << id;
            EXPECT_LE(text.size(), 1024U) << id;
        }
        const std::string title = rule.at("shortDescription").at("text");
        EXPECT_EQ(title.find_first_of("\r\n"), std::string::npos) << id;
        EXPECT_NE(title, "…") << id;
        EXPECT_FALSE(rule.at("help").at("markdown").get<std::string>().empty()) << id;
        EXPECT_EQ(rule.at("defaultConfiguration").at("enabled"), id != "unused-style");
    }
    const json& rules = run.at("tool").at("driver").at("rules");
    EXPECT_EQ(rules.at(0).at("name"), "NotATextFile");
    const json& found = run.at("results").at(0);
    EXPECT_TRUE(found.at("partialFingerprints").contains("primaryLocationLineHash"));
}

TEST_F(CheckTest, NamesFilesInSarifByRelativeOrFileUris) {
    fs::create_directory(folder.path() / "sub");
    folder.write("sub/a.rtfspec", descriptionWithBadColor);
    const std::string whole = folder / "sub/a.rtfspec";
    const json log =
        json::parse(run({"--diagnostics=sarif", "./sub/../sub/a.rtfspec", whole}).output);
    const json& run = log.at("runs").at(0);
    const auto location = [&](std::size_t index) {
        return run.at("results")
            .at(index)
            .at("locations")
            .at(0)
            .at("physicalLocation")
            .at("artifactLocation");
    };
    EXPECT_EQ(location(0), json({{"uri", "sub/a.rtfspec"}, {"uriBaseId", "SRCROOT"}}));
    EXPECT_EQ(location(1), json({{"uri", "file://" + whole}}));
    const std::string root = "file://" + fs::canonical(folder.path()).string() + "/";
    EXPECT_EQ(run.at("originalUriBaseIds"), json({{"SRCROOT", {{"uri", root}}}}));
    EXPECT_EQ(run.at("invocations").at(0).at("workingDirectory"), json({{"uri", root}}));
}

TEST_F(CheckTest, GivesSarifFingerprintsThatStayWhenLinesMove) {
    const auto fingerprints = [&](const std::string& text) {
        folder.write("a.rtfspec", text);
        const json log = json::parse(run({"--diagnostics=sarif", "a.rtfspec"}).output);
        std::vector<std::string> list;
        for (const json& found : log.at("runs").at(0).at("results")) {
            list.push_back(found.at("partialFingerprints").at("primaryLocationLineHash"));
        }
        return list;
    };
    const std::string row = "(r\n(rb=crimson)\n(c\nc)\nr)\n";
    const std::vector<std::string> once = fingerprints("(doc\n" + row + "doc)\n");
    const std::vector<std::string> moved =
        fingerprints("; a comment\n\n(doc\n(r\n(c\nc)\nr)\n" + row + "doc)\n");
    const std::vector<std::string> indented =
        fingerprints("(doc\n(r\n    (rb=crimson)\r\n(c\nc)\nr)\ndoc)\n");
    const std::vector<std::string> twice = fingerprints("(doc\n" + row + row + "doc)\n");
    const std::vector<std::string> other =
        fingerprints("(doc\n(r\n(rb=scarlet)\n(c\nc)\nr)\ndoc)\n");
    ASSERT_THAT(once, SizeIs(1));
    EXPECT_EQ(moved, once);
    EXPECT_EQ(indented, once);
    ASSERT_THAT(twice, SizeIs(2));
    EXPECT_EQ(twice[0], once[0]);
    EXPECT_NE(twice[1], once[0]);
    EXPECT_NE(other, once);
}

TEST_F(CheckTest, ReportsInSarifThatAFileCouldNotBeRead) {
    const json log = json::parse(run({"--diagnostics=sarif", "nosuch.rtfspec"}).output);
    EXPECT_FALSE(log.at("runs").at(0).at("invocations").at(0).at("executionSuccessful"));
}

TEST_F(CheckTest, WritesSarifThatFollowsItsSchema) {
    folder.write("a.rtfspec", descriptionWithBadColor + "text <&\"\xE9\n(doc\n(rwo\n");
    folder.write("fixable.rtfspec", descriptionOf("a } b { \\5"));
    folder.write("b.rtfss", badStyleSheet);
    folder.write("c.rtf", "{\\rtf1 {\\'zz\\trowd\\row");
    const ProgramResult result =
        run({"--diagnostics=sarif", "a.rtfspec", "fixable.rtfspec", "b.rtfss", "c.rtf", "d"});
    EXPECT_THAT(result.output, HasSubstr("\"fixes\""));
    EXPECT_EQ(result.status, 2);
    folder.write("log.sarif", result.output);
    const std::string command = "'" QUORVANE_JSONSCHEMA "' -i '" +
                                (folder.path() / "log.sarif").string() +
                                "' '" QUORVANE_CLI_TESTS_FOLDER "/sarifSchema.json' 2>/dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
    // A log that does not follow it is reported.
    std::string wrong = result.output;
    wrong.replace(wrong.find("\"startLine\": 3"), 14, "\"startLine\": 0");
    folder.write("log.sarif", wrong);
    EXPECT_NE(std::system(command.c_str()), 0);
}

TEST_F(CheckTest, ColorsTheReportOnATerminal) {
    folder.write("price.rtfspec", descriptionWithBadColor);
    start.outputOnTerminal = true;
    start.prepare = [] { ::unsetenv("NO_COLOR"); };
    EXPECT_EQ(run({"price.rtfspec"}).output,
              "\x1b[1mprice.rtfspec:3:5:\x1b[0m \x1b[1;31merror:\x1b[0m "
              "crimson isn't a recognized color. [wrong-color]\n"
              "    (rb=crimson)\n"
              "        \x1b[1;32m^~~~~~~\x1b[0m\n"
              "    hint: did you mean dark-red?\n"
              "1 error in 1 file\n");
    folder.write("price.rtfspec", descriptionOf(""));
    EXPECT_THAT(run({"price.rtfspec"}).output, HasSubstr("\x1b[1;35mwarning:\x1b[0m"));
}

TEST_F(CheckTest, HeedsNoColor) {
    folder.write("price.rtfspec", descriptionWithBadColor);
    start.outputOnTerminal = true;
    start.prepare = [] { ::setenv("NO_COLOR", "1", 1); };
    EXPECT_EQ(run({"price.rtfspec"}).output, reportOfBadColor);
    // An empty variable counts as none.
    start.prepare = [] { ::setenv("NO_COLOR", "", 1); };
    EXPECT_THAT(run({"price.rtfspec"}).output, HasSubstr("\x1b["));
}

TEST_F(CheckTest, ExplainsEveryIdentifier) {
    EXPECT_EQ(run({"--explain", "wrong-border"}).output,
              "wrong-border: error in descriptions\n"
              "    medium isn't a recognized border.\n"
              "\n"
              "A border is `none`, `hair`, `thin`, `normal` or `thick`.\n"
              "\n"
              "Wrong:\n"
              "    (doc\n    (r\n    (rtb=medium)\n    (c\n    c)\n    r)\n    doc)\n"
              "\n"
              "Report:\n"
              "    example.rtfspec:3:6: error: medium isn't a recognized border. [wrong-border]\n"
              "        (rtb=medium)\n"
              "             ^~~~~~\n"
              "        hint: did you mean normal?\n"
              "\n"
              "Right:\n"
              "    (doc\n    (r\n    (rtb=normal)\n    (c\n    c)\n    r)\n    doc)\n");
    for (const DiagnosticRule& rule : diagnosticRules()) {
        const ProgramResult result = run({"--explain", std::string(rule.identifier)});
        EXPECT_THAT(result.output, StartsWith(std::string(rule.identifier) + ": "));
        EXPECT_THAT(result.output, Not(HasSubstr("{0}")));
        EXPECT_EQ(result.status, 0);
    }
}

TEST_F(CheckTest, KnowsNoOtherIdentifier) {
    const ProgramResult result = run({"--explain", "wrong-colour"});
    EXPECT_THAT(result.errors,
                StartsWith("quorvane: --explain: there is no diagnostic wrong-colour; did you "
                           "mean wrong-color?\n"));
    EXPECT_EQ(result.status, 2);
}

TEST_F(CheckTest, ShowsTheNeighborhoodOfAPlaceInALongLine) {
    const std::string before(200, 'a');
    const std::string after(200, 'b');
    folder.write("long.rtfspec", descriptionOf(before + "}" + after));
    EXPECT_EQ(run({"long.rtfspec"}).output,
              "long.rtfspec:5:205: warning: Unmatched }. [unbalanced-brace]\n"
              "    ..." +
                  before.substr(0, 80) + "}" + after.substr(0, 60) + "...\n" +
                  std::string(87, ' ') +
                  "^\n"
                  "    hint: write \\} for a literal brace\n"
                  "1 warning in 1 file\n");
}

TEST_F(CheckTest, ShowsNoControlCharacters) {
    folder.write("a.rtfspec", descriptionOf("a\x1b[31mb\t\x7f"));
    EXPECT_THAT(run({"a.rtfspec"}).output, Not(HasSubstr("\x1b")));
}

TEST_F(CheckTest, ReadsALargeDocumentInPieces) {
    std::string rtf = "{\\rtf1\r\n";
    while (rtf.size() < 3 * 1024 * 1024 + 7) {
        rtf += "{\\b some text} and more \\'e9\r\n";
    }
    const auto lines = std::count(rtf.begin(), rtf.end(), '\n');
    folder.write("large.rtf", rtf + "\\'x}\r\n");
    EXPECT_EQ(run({"large.rtf"}).output,
              "large.rtf:" + std::to_string(lines + 1) +
                  ":1: error: Two hexadecimal digits must follow \\'. [bad-hex-escape]\n"
                  "    \\'x}\n"
                  "    ^~\n"
                  "1 error in 1 file\n");
}

TEST_F(CheckTest, ReportsDiagnosticsAboutADocumentInTheOrderOfTheirPlaces) {
    folder.write("a.rtf", "{\\rtf1 {\\b a\n\\cf9 \\trowd\\cellx9 a\\cell\n\\'z");
    EXPECT_EQ(run({"a.rtf"}).output,
              "a.rtf:1:8: error: The group is not closed. [unclosed-group]\n"
              "    {\\rtf1 {\\b a\n"
              "           ^\n"
              "a.rtf:2:1: warning: The color 9 is not in the color table. [unknown-color]\n"
              "    \\cf9 \\trowd\\cellx9 a\\cell\n"
              "    ^~~~\n"
              "a.rtf:2:6: error: The row that begins here has no end. [unended-row]\n"
              "    \\cf9 \\trowd\\cellx9 a\\cell\n"
              "         ^~~~~~\n"
              "a.rtf:3:1: error: Two hexadecimal digits must follow \\'. [bad-hex-escape]\n"
              "    \\'z\n"
              "    ^~\n"
              "3 errors, 1 warning in 1 file\n");
}

TEST_F(CheckTest, GivesUpOnGroupsThatAreNestedVeryDeep) {
    folder.write("deep.rtf", "{\\rtf1\n" + std::string(1200, '{') + std::string(1200, '}') + "}\n");
    EXPECT_EQ(run({"deep.rtf"}).output,
              "deep.rtf:2:1000: error: Groups are nested more than 1000 deep. [deep-nesting]\n"
              "    ..." +
                  std::string(80, '{') + std::string(61, '{') + "...\n" + std::string(87, ' ') +
                  "^\n"
                  "1 error in 1 file\n");
}

/// A copy of the example invoice with twelve mistakes of twelve kinds.
TEST_F(CheckTest, ReportsTwelveMistakesInOneRun) {
    std::string invoice = contentsOf(QUORVANE_EXAMPLES_FOLDER "/invoice.rtfspec");
    const auto mistype = [&invoice](const std::string& right, const std::string& wrong) {
        const std::size_t at = invoice.find(right);
        ASSERT_NE(at, std::string::npos) << right;
        invoice.replace(at, right.size(), wrong);
    };
    mistype("(page-number-start=1)", "(page-number-strat=1)");
    mistype("(row-bottom-border=thick)", "(row-bottom-border=thck)");
    mistype("(cell-width=60)", "(cell-width=60%)");
    mistype("(para-style=slogan)", "(para-style=slogen)");
    mistype("(cell-alignment=right)", "(cell-alignment=rihgt)");
    mistype("(para-text=Castleton CT4 6QW)", "(para-text=Castleton CT4 6QW");
    mistype("(cell-key=2)", "(cell-key=1)");
    mistype("(para-text=Invoice)", "(para-text=Invoice}");
    mistype("(para-text=<label=Date>", "(para-text=<labell=Date>");
    mistype("(row-backcolor=", "(row-backcolour=");
    mistype("(para-text=The Old Schoolhouse)", "(para-txet=The Old Schoolhouse)");
    mistype("(para-text=Church Lane 3)\n        (para-style=address)\n      para)",
            "(para-text=Church Lane 3)\n        (para-style=address)\n      praa)");
    folder.write("invoice.rtfspec", invoice);
    folder.write("invoice.rtfss", contentsOf(QUORVANE_EXAMPLES_FOLDER "/invoice.rtfss"));
    const ProgramResult result = run({"-s", "invoice.rtfss", "invoice.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, contentsOf(QUORVANE_CLI_TESTS_FOLDER "/mistypedInvoice.report"));
}

TEST_F(CheckTest, FindsNothingInTheExamplesAndTheirDocuments) {
    const fs::path examples(QUORVANE_EXAMPLES_FOLDER);
    int checked = 0;
    for (const auto& entry : fs::directory_iterator(examples)) {
        if (entry.path().extension() != ".rtfspec") {
            continue;
        }
        const std::string name = entry.path().stem().string();
        const std::string sheet = (examples / (name + ".rtfss")).string();
        const ProgramResult source = run({"-s", sheet, entry.path().string()});
        EXPECT_EQ(source.output, "") << name;
        EXPECT_EQ(source.status, 0) << name;
        start.arguments = {"render", "-s", sheet, "-o", name + ".rtf", entry.path().string()};
        runProgram(start);
        const ProgramResult document = run({name + ".rtf"});
        EXPECT_EQ(document.output, "") << name;
        EXPECT_EQ(document.status, 0) << name;
        ++checked;
    }
    EXPECT_GE(checked, 4);
}

/// Golden descriptions, each with the report of the check in a file beside it.
class GoldenCheckTest : public testing::TestWithParam<std::string> {};

TEST_P(GoldenCheckTest, GetsTheExpectedReport) {
    const fs::path golden = fs::path(QUORVANE_GOLDEN_FOLDER) / GetParam();
    ProgramStart start;
    start.folder = golden;
    start.arguments = {"check", "--quiet", "--enable=unused-style"};
    if (fs::exists(golden / "style.rtfss")) {
        start.arguments.insert(start.arguments.end(), {"-s", "style.rtfss"});
    }
    start.arguments.push_back("description.rtfspec");
    const ProgramResult result = runProgram(start);
    EXPECT_EQ(result.output + "exit status " + std::to_string(result.status) + "\n",
              contentsOf(golden / "expected.report"));
}

std::vector<std::string> goldenNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(QUORVANE_GOLDEN_FOLDER)) {
        if (entry.is_directory()) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, GoldenCheckTest, testing::ValuesIn(goldenNames()),
                         [](const testing::TestParamInfo<std::string>& golden) {
                             std::string name = golden.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST_F(CheckTest, TakesStandardInputForAFileOfAName) {
    start.input = "";
    EXPECT_EQ(run({"-"}).status, 1);
    const ProgramResult empty = run({"--stdin-filename=sub/a.rtf", "-"});
    EXPECT_THAT(empty.output, testing::StartsWith("sub/a.rtf:1:1: error: "));
    EXPECT_THAT(empty.output, testing::HasSubstr("[not-rtf]"));
    start.input = "(doc\n(r\n(c\n(p\n(pt=a)\np)\nc)\nr)\ndoc)\n";
    EXPECT_EQ(run({"--stdin-filename=a.rtfspec", "-"}).status, 0);
    const ProgramResult named = run({"--stdin-filename=a.rtf", "--diagnostics=json", "-"});
    EXPECT_THAT(named.output, testing::HasSubstr("\"file\":\"a.rtf\""));
    EXPECT_THAT(named.output, testing::HasSubstr("wrong-extension"));
}

}  // namespace
}  // namespace quorvane::cli
