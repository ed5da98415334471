#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

/// The built program, run in a folder of its own.
class CommandTest : public ProgramTest {};

std::vector<json> objectsOf(const std::string& errors) {
    std::vector<json> objects;
    for (const std::string& line : linesOf(errors)) {
        objects.push_back(json::parse(line));
    }
    return objects;
}

TEST_F(CommandTest, WritesTheDocumentBesideItsDescriptionAndSaysNothing) {
    folder.write("letter.rtfspec", descriptionOf("Good morning."));
    const ProgramResult result = run({"render", "letter.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(folder.names(), ElementsAre("letter.rtf", "letter.rtfspec"));
    EXPECT_THAT(folder.read("letter.rtf"), HasSubstr("Good morning."));
}

TEST_F(CommandTest, WritesTheSameBytesToAFileAndToStandardOutput) {
    folder.write("letter.rtfspec", descriptionOf("Caf\xE9 \x80 5"));
    EXPECT_EQ(run({"render", "letter.rtfspec"}).status, 0);
    EXPECT_EQ(run({"render", "-o", "other.rtf", "letter.rtfspec"}).status, 0);
    const ProgramResult result = run({"render", "-o", "-", "letter.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, folder.read("letter.rtf"));
    EXPECT_EQ(folder.read("other.rtf"), folder.read("letter.rtf"));
}

TEST_F(CommandTest, RendersStandardInputToStandardOutput) {
    folder.write("letter.rtfspec", descriptionOf("Caf\xE9"));
    start.input = folder.read("letter.rtfspec");
    const ProgramResult result = run({"render", "-"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(run({"render", "letter.rtfspec"}).status, 0);
    EXPECT_EQ(result.output, folder.read("letter.rtf"));
}

TEST_F(CommandTest, RendersStandardInputToAFile) {
    start.input = descriptionOf("Text");
    const ProgramResult result = run({"render", "-", "--output", "letter.rtf"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(folder.read("letter.rtf"), StartsWith("{"));
}

TEST_F(CommandTest, ReportsAnErrorAsCheckDoes) {
    folder.write("letter.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"render", "letter.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "letter.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]\n"
              "    (rb=crimson)\n"
              "        ^~~~~~~\n"
              "    hint: did you mean dark-red?\n");
    EXPECT_THAT(folder.names(), ElementsAre("letter.rtfspec"));
}

TEST_F(CommandTest, ReportsAnErrorOfStandardInput) {
    start.input = descriptionWithBadColor;
    const ProgramResult result = run({"render", "-"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "<stdin>:3:5: error: crimson isn't a recognized color. [wrong-color]\n"
              "    (rb=crimson)\n"
              "        ^~~~~~~\n"
              "    hint: did you mean dark-red?\n");
}

TEST_F(CommandTest, ReportsAnErrorAsAnObject) {
    folder.write("letter.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"render", "--diagnostics=json", "letter.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              R"({"file":"letter.rtfspec","line":3,"number":-2147221496,"level":"eWrongValue",)"
              R"("source":"CRtfDriver.treWalkerSemantic",)"
              R"("message":"crimson isn't a recognized color.","kind":"event"})"
              "\n");
}

TEST_F(CommandTest, ReportsErrorsInTheOrderInWhichTheyCome) {
    folder.write("letter.rtfspec", descriptionWithBadColor);
    folder.write("style.rtfss", badStyleSheet);
    const ProgramResult result = run({"render", "--diagnostics", "json", "--check", "-s",
                                      "style.rtfss", "letter.rtfspec", "missing.rtfspec"});
    EXPECT_EQ(result.status, 2);
    const auto objects = objectsOf(result.errors);
    ASSERT_THAT(objects, SizeIs(5));
    EXPECT_EQ(objects[0].at("file"), "style.rtfss");
    EXPECT_EQ(objects[0].at("kind"), "raised");
    EXPECT_EQ(objects[0].at("message"), "style.rtfss isn't a valid stylesheet.");
    EXPECT_EQ(objects[0].at("cause"),
              "Error while processing stylesheet.\r\nnam is not a valid keyword.");
    EXPECT_EQ(objects[1].at("source"), "CRtfDriver.treWalkerSemantic");
    EXPECT_EQ(objects[1].at("kind"), "event");
    EXPECT_EQ(objects[2].at("source"), "CRtfDriver.treWalkerSemantic");
    EXPECT_EQ(objects[3].at("file"), "style.rtfss");
    EXPECT_EQ(objects[4].at("message"), "missing.rtfspec doesn't exist or is unreacheable");
    EXPECT_EQ(objects[4].at("cause"), "File not found");
}

TEST_F(CommandTest, ReportsARefusedStylesheetAsCheckDoesAndOnce) {
    folder.write("letter.rtfspec", descriptionOf("Text"));
    folder.write("style.rtfss", badStyleSheet);
    folder.write("other.rtfspec", descriptionOf("Text"));
    const ProgramResult result =
        run({"render", "-s", "style.rtfss", "letter.rtfspec", "other.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "style.rtfss:1:2: error: Error while processing stylesheet. nam is not a valid "
              "keyword. [bad-keyword]\n"
              "    {nam: normal; style-def: s; format: \\f0\\fs24\\cf3}\n"
              "     ^~~\n"
              "    hint: a definition begins with name:\n");
}

TEST_F(CommandTest, WritesWhatCouldBeBuiltWhenItKeepsGoing) {
    folder.write("letter.rtfspec", descriptionWithBadColor);
    const ProgramResult result = run({"render", "--keep-going", "letter.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("crimson"));
    EXPECT_THAT(folder.read("letter.rtf"), StartsWith("{"));
}

TEST_F(CommandTest, ReportsWrongUsageInTextAndEndsWithStatus2) {
    const ProgramResult result = run({"render", "--colour"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, StartsWith("quorvane: "));
    EXPECT_THAT(result.errors, EndsWith("\nRun with --help for more information.\n"));
}

TEST_F(CommandTest, ReportsWrongUsageAsAnObject) {
    const ProgramResult result = run({"render", "--diagnostics=json"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, R"({"file":null,"line":null,"number":5,"level":null,"source":null,)"
                             R"("message":"DESCRIPTION is required","kind":"raised"})"
                             "\n");
}

TEST_F(CommandTest, EndsWithStatus2ForEveryKindOfWrongUsage) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    folder.write("b.rtfspec", descriptionOf("Text"));
    const std::vector<std::vector<std::string>> wrongUsages = {
        {},
        {"draw"},
        {"render"},
        {"render", "a.rtfspec", "-o"},
        {"render", "a.rtfspec", "--diagnostics=xml"},
        {"render", "a.rtfspec", "-s", "style.txt"},
        {"render", "a.rtfspec", "-o", "a.rtf", "--output-dir", "."},
        {"render", "a.rtfspec", "-o", ""},
        {"render", "a.rtfspec", "-o", "a.rtfspec"},
        {"render", "a.rtfspec", "a.rtfspec"},
        {"render", "a.rtfspec", "b.rtfspec", "-o", "out.rtf"},
        {"render", "-", "-"},
    };
    for (const auto& arguments : wrongUsages) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_THAT(result.errors, StartsWith("quorvane: ")) << testing::PrintToString(arguments);
    }
    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec", "b.rtfspec"));
}

TEST_F(CommandTest, ShowsHelpAndVersionOnStandardOutput) {
    const ProgramResult help = run({"render", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("Usage: quorvane render [OPTIONS] DESCRIPTION..."));
    EXPECT_EQ(help.errors, "");
    const ProgramResult version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, "quorvane " QUORVANE_VERSION "\n");
    EXPECT_EQ(version.errors, "");
}

TEST_F(CommandTest, ReportsThatStandardOutputIsFull) {
    start.prepare = [] { ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO); };
    start.input = descriptionOf("Text");
    const ProgramResult result = run({"render", "-"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "<stdout>: No space left on device\n");
}

/// Makes standard output a pipe that nobody reads.
void closeOtherEndOfOutput() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) == 0) {
        ::close(ends[0]);
        ::dup2(ends[1], STDOUT_FILENO);
    }
}

TEST_F(CommandTest, EndsQuietlyWhenNobodyReadsStandardOutput) {
    folder.write("a.rtfspec", descriptionWithBadColor);
    folder.write("b.rtfspec", descriptionOf("Text"));
    start.prepare = closeOtherEndOfOutput;
    start.input = descriptionOf("Text");
    const std::vector<std::vector<std::string>> runs = {
        {"render", "-"},
        {"render", "-", "--diagnostics=json"},
        {"check", "a.rtfspec"},
        {"check", "--explain", "wrong-color"},
        {"format", "-"},
        {"format", "--check", "b.rtfspec"},
        {"format", "--diff", "b.rtfspec"},
        {"--help"},
        {"--version"},
    };
    for (const auto& arguments : runs) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 0) << testing::PrintToString(arguments);
        EXPECT_EQ(result.errors, "") << testing::PrintToString(arguments);
    }
}

TEST_F(CommandTest, StillFailsForAnErrorWhenNobodyReadsTheDocument) {
    folder.write("letter.rtfspec", descriptionWithBadColor);
    start.prepare = closeOtherEndOfOutput;
    EXPECT_EQ(run({"render", "--keep-going", "-o", "-", "letter.rtfspec"}).status, 1);
}

TEST_F(CommandTest, NamesStandardOutputWhereItFailsWhateverWasWorkedOn) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    start.prepare = [] { ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO); };
    start.input = descriptionOf("Text");
    const std::vector<std::vector<std::string>> runs = {
        {"render", "-o", "-", "a.rtfspec"},
        {"format", "-"},
        {"format", "--check", "a.rtfspec"},
        {"format", "--diff", "a.rtfspec"},
    };
    for (const auto& arguments : runs) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.errors, "<stdout>: No space left on device\n")
            << testing::PrintToString(arguments);
    }
}

TEST_F(CommandTest, ReportsThatTheHelpCannotBeShown) {
    start.prepare = [] { ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO); };
    const ProgramResult result = run({"--help"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "<stdout>: No space left on device\n");
}

TEST_F(CommandTest, ReportsThatAStandardStreamIsClosed) {
    start.prepare = [] { ::close(STDOUT_FILENO); };
    start.input = descriptionOf("Text");
    EXPECT_EQ(run({"render", "-"}).errors, "<stdout>: Bad file descriptor\n");
    start.prepare = [] { ::close(STDIN_FILENO); };
    const ProgramResult result = run({"render", "-"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "<stdin>: Bad file descriptor\n");
}

TEST_F(CommandTest, WritesNoDiagnosticIntoADocumentWhenStandardErrorIsClosed) {
    start.prepare = [] { ::close(STDERR_FILENO); };
    folder.write("a.rtfspec", descriptionWithBadColor);
    EXPECT_EQ(run({"render", "--keep-going", "a.rtfspec"}).status, 1);
    EXPECT_THAT(folder.read("a.rtf"), Not(HasSubstr("crimson")));
}

TEST_F(CommandTest, ReportsThatStandardInputIsAFolder) {
    start.prepare = [] { ::dup2(::open("/", O_RDONLY), STDIN_FILENO); };
    const ProgramResult result = run({"render", "-"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "<stdin>: Is a directory\n");
}

TEST_F(CommandTest, WritesToAStandardOutputThatDoesNotWait) {
    start.prepare = [] { ::fcntl(STDOUT_FILENO, F_SETFL, O_NONBLOCK); };
    const std::string text(300'000, 'x');
    folder.write("a.rtfspec", descriptionOf(text));
    const ProgramResult result = run({"render", "-o", "-", "a.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr(text));
}

TEST_F(CommandTest, KeepsTheOldFileWhenTheNewOneDoesNotFit) {
    folder.write("a.rtfspec", descriptionOf(std::string(50'000, 'x')));
    folder.write("a.rtf", "old");
    start.prepare = [] {
        const rlimit limit{10'000, 10'000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    };
    const ProgramResult result = run({"render", "a.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "a.rtf: File too large\n");
    EXPECT_EQ(folder.read("a.rtf"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf", "a.rtfspec"));
}

TEST_F(CommandTest, RendersManyFilesIntoAFolder) {
    std::filesystem::create_directory(folder / "out");
    std::vector<std::string> arguments = {"render", "--output-dir", "out"};
    for (int i = 0; i < 100; ++i) {
        const std::string name = std::to_string(i) + ".rtfspec";
        folder.write(name, i == 50 ? descriptionWithBadColor : descriptionOf(name));
        arguments.push_back(name);
    }
    const ProgramResult result = run(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "50.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]\n"
              "    (rb=crimson)\n"
              "        ^~~~~~~\n"
              "    hint: did you mean dark-red?\n");
    for (int i = 0; i < 100; ++i) {
        const std::string name = "out/" + std::to_string(i) + ".rtf";
        if (i == 50) {
            EXPECT_FALSE(folder.has(name));
        } else {
            EXPECT_THAT(folder.read(name), HasSubstr(std::to_string(i) + ".rtfspec"));
        }
    }
}

TEST_F(CommandTest, ShowsProgressOnATerminalAndErasesIt) {
    folder.write("a.rtfspec", descriptionOf("One"));
    folder.write("b.rtfspec", descriptionWithBadColor);
    start.errorsOnTerminal = true;
    EXPECT_EQ(run({"render", "a.rtfspec", "b.rtfspec"}).errors,
              "\r\x1b[K1/2 a.rtfspec"
              "\r\x1b[K2/2 b.rtfspec"
              "\r\x1b[K\x1b[1mb.rtfspec:3:5:\x1b[0m \x1b[1;31merror:\x1b[0m crimson isn't a "
              "recognized color. [wrong-color]\n"
              "    (rb=crimson)\n"
              "        \x1b[1;32m^~~~~~~\x1b[0m\n"
              "    hint: did you mean dark-red?\n"
              "\r\x1b[K");
}

TEST_F(CommandTest, ShowsNoProgressOfASingleDescription) {
    folder.write("a.rtfspec", descriptionOf("One"));
    start.errorsOnTerminal = true;
    EXPECT_EQ(run({"render", "a.rtfspec"}).errors, "");
}

TEST_F(CommandTest, ShowsNoProgressAmongObjects) {
    folder.write("a.rtfspec", descriptionOf("One"));
    folder.write("b.rtfspec", descriptionOf("Two"));
    start.errorsOnTerminal = true;
    EXPECT_EQ(run({"render", "--diagnostics=json", "a.rtfspec", "b.rtfspec"}).errors, "");
}

TEST_F(CommandTest, ShowsNoProgressInAPipe) {
    folder.write("a.rtfspec", descriptionOf("One"));
    folder.write("b.rtfspec", descriptionOf("Two"));
    const ProgramResult result = run({"render", "a.rtfspec", "b.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
}

}  // namespace
}  // namespace quorvane::cli
