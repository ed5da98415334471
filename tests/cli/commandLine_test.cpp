#include "cli/commandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "cli/UsageError.h"

namespace quorvane::cli {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

/// The options of `quorvane render` with these arguments.
RenderOptions optionsOf(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "render");
    return std::get<RenderOptions>(parseCommandLine(arguments));
}

std::string informationOf(const std::vector<std::string>& arguments) {
    return std::get<Information>(parseCommandLine(arguments)).text;
}

std::string usageErrorOf(const std::vector<std::string>& arguments) {
    try {
        parseCommandLine(arguments);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "no error";
}

TEST(CommandLine, AsksForNothingMoreThanItsDescription) {
    const RenderOptions options = optionsOf({"a.rtfspec"});
    EXPECT_THAT(options.descriptions, ElementsAre("a.rtfspec"));
    EXPECT_EQ(options.styleSheet, std::nullopt);
    EXPECT_EQ(options.output, std::nullopt);
    EXPECT_EQ(options.outputFolder, std::nullopt);
    EXPECT_FALSE(options.check);
    EXPECT_FALSE(options.keepGoing);
    EXPECT_EQ(options.diagnostics, ErrorForm::Text);
}

TEST(CommandLine, TakesSeveralDescriptionsInTheirOrder) {
    EXPECT_THAT(optionsOf({"b.rtfspec", "a.rtfspec", "-"}).descriptions,
                ElementsAre("b.rtfspec", "a.rtfspec", "-"));
}

TEST(CommandLine, TakesTheStylesheetInItsShortAndLongForm) {
    EXPECT_EQ(optionsOf({"-s", "a.rtfss", "x"}).styleSheet, "a.rtfss");
    EXPECT_EQ(optionsOf({"--stylesheet", "a.rtfss", "x"}).styleSheet, "a.rtfss");
    EXPECT_EQ(optionsOf({"x", "--stylesheet=a.rtfss"}).styleSheet, "a.rtfss");
}

TEST(CommandLine, TakesTheOutputInItsShortAndLongForm) {
    EXPECT_EQ(optionsOf({"-o", "a.rtf", "x"}).output, "a.rtf");
    EXPECT_EQ(optionsOf({"x", "--output", "a.rtf"}).output, "a.rtf");
    EXPECT_EQ(optionsOf({"-o", "-", "x"}).output, "-");
    EXPECT_EQ(optionsOf({"--output=-", "x"}).output, "-");
}

TEST(CommandLine, TakesTheOutputFolder) {
    EXPECT_EQ(optionsOf({"--output-dir", "out", "x", "y"}).outputFolder, "out");
}

TEST(CommandLine, TakesTheNumberOfJobsInItsShortAndLongForm) {
    EXPECT_EQ(optionsOf({"x"}).jobs, 1U);
    EXPECT_EQ(optionsOf({"-j4", "x"}).jobs, 4U);
    EXPECT_EQ(optionsOf({"-j", "4", "x"}).jobs, 4U);
    EXPECT_EQ(optionsOf({"x", "--jobs", "12"}).jobs, 12U);
    EXPECT_EQ(optionsOf({"x", "--jobs=1024"}).jobs, 1024U);
    EXPECT_EQ(optionsOf({"-j0", "x"}).jobs, 0U);
}

TEST(CommandLine, RefusesOtherNumbersOfJobs) {
    const std::vector<std::string> wrongNumbers = {"-1",  "x",   "4x",   "+4",
                                                   "0x4", "1.5", "1025", "99999999999999999999999"};
    for (const std::string& value : wrongNumbers) {
        EXPECT_EQ(usageErrorOf({"render", "-j", value, "x"}),
                  "--jobs: " + value + " is not a number from 0 to 1024");
        EXPECT_EQ(usageErrorOf({"render", "-j" + value, "x"}),
                  "--jobs: " + value + " is not a number from 0 to 1024");
    }
    EXPECT_EQ(usageErrorOf({"render", "x", "-j"}), "--jobs: 1 required N missing");
    EXPECT_EQ(usageErrorOf({"render", "x", "-j=4"}), "write -j 4 instead of -j=4");
    EXPECT_EQ(usageErrorOf({"render", "x", "--jobs="}), "--jobs= needs a value");
}

TEST(CommandLine, TakesTheSwitches) {
    EXPECT_TRUE(optionsOf({"--check", "x"}).check);
    EXPECT_TRUE(optionsOf({"x", "--keep-going"}).keepGoing);
}

TEST(CommandLine, TakesTheFormOfDiagnostics) {
    EXPECT_EQ(optionsOf({"--diagnostics=json", "x"}).diagnostics, ErrorForm::Json);
    EXPECT_EQ(optionsOf({"--diagnostics", "json", "x"}).diagnostics, ErrorForm::Json);
    EXPECT_EQ(optionsOf({"--diagnostics=text", "x"}).diagnostics, ErrorForm::Text);
}

TEST(CommandLine, TakesAllThatFollowsTwoDashesForDescriptions) {
    const RenderOptions options = optionsOf({"a", "--", "--check", "-s", "--", "b"});
    EXPECT_THAT(options.descriptions, ElementsAre("a", "--check", "-s", "--", "b"));
    EXPECT_FALSE(options.check);
}

TEST(CommandLine, TakesNamesThatMeanSomethingElsewhereAsTheyAre) {
    EXPECT_THAT(optionsOf({"render", "[a,b]", "{}", "%%", "/x", "a b"}).descriptions,
                ElementsAre("render", "[a,b]", "{}", "%%", "/x", "a b"));
    EXPECT_EQ(optionsOf({"-o", "[a]", "x"}).output, "[a]");
}

TEST(CommandLine, ShowsTheHelpOfTheCommand) {
    EXPECT_THAT(informationOf({"--help"}), HasSubstr("render"));
}

TEST(CommandLine, ShowsTheHelpOfRenderWithEveryOptionAndTheExitStatuses) {
    const std::string help = informationOf({"render", "--help"});
    for (const char* part :
         {"DESCRIPTION", "-s,--stylesheet FILE", "-o,--output FILE", "--output-dir DIR", "--check",
          "--keep-going", "--diagnostics text|json", "--help", "-V,--version", "--mkdir",
          "--fail-on error|warning", "Exit status:"}) {
        EXPECT_THAT(help, HasSubstr(part));
    }
}

TEST(CommandLine, ShowsNoLongLinesOfHelp) {
    std::size_t length = 0;
    for (const char* command : {"render", "check", "format", "data-schema", "help"}) {
        for (const char character : informationOf({command, "--help"})) {
            length = character == '\n' ? 0 : length + 1;
            ASSERT_LE(length, 80U);
        }
    }
}

TEST(CommandLine, ShowsTheVersionWithAndWithoutASubcommand) {
    EXPECT_EQ(informationOf({"--version"}), "quorvane " QUORVANE_VERSION "\n");
    EXPECT_EQ(informationOf({"render", "--version"}), "quorvane " QUORVANE_VERSION "\n");
    EXPECT_EQ(informationOf({"-V"}), "quorvane " QUORVANE_VERSION "\n");
    for (const char* command : {"render", "check", "format"}) {
        EXPECT_EQ(informationOf({command, "-V"}), "quorvane " QUORVANE_VERSION "\n");
    }
}

TEST(CommandLine, NeedsASubcommand) {
    EXPECT_EQ(usageErrorOf({}), "A subcommand is required");
    EXPECT_EQ(
        usageErrorOf({"draw", "a.rtfspec"}),
        "draw is not a subcommand; use render, check, format, escape, table, data-schema or help");
    EXPECT_EQ(usageErrorOf({"[a].rtfspec"}),
              "[a].rtfspec is not a subcommand; use render, check, format, escape, table, "
              "data-schema or help");
    EXPECT_EQ(usageErrorOf({"chekc", "x"}), "chekc is not a subcommand; did you mean check?");
    EXPECT_EQ(usageErrorOf({"Format", "x"}), "Format is not a subcommand; did you mean format?");
}

TEST(CommandLine, NeedsADescription) {
    EXPECT_EQ(usageErrorOf({"render", "--check"}), "DESCRIPTION is required");
}

TEST(CommandLine, RefusesAnOptionThatItDoesNotKnow) {
    EXPECT_EQ(usageErrorOf({"render", "--colour", "a"}), "--colour is not an option");
    EXPECT_EQ(usageErrorOf({"--colour"}), "--colour is not an option");
}

TEST(CommandLine, SuggestsTheNearestOptionOfTheSubcommand) {
    EXPECT_EQ(usageErrorOf({"render", "--ouput-dir=out", "a"}),
              "--ouput-dir is not an option; did you mean --output-dir?");
    EXPECT_EQ(usageErrorOf({"check", "--explian", "wrong-color"}),
              "--explian is not an option; did you mean --explain?");
    EXPECT_EQ(usageErrorOf({"format", "--explian", "a"}), "--explian is not an option");
    EXPECT_EQ(usageErrorOf({"--licences"}),
              "--licences is not an option; did you mean --licenses?");
}

TEST(CommandLine, ReportsAnOptionThatItDoesNotKnowBeforeAMissingDescription) {
    EXPECT_EQ(usageErrorOf({"render", "--colour"}), "--colour is not an option");
    EXPECT_EQ(usageErrorOf({"render", "-a.rtfspec"}), "-a.rtfspec is not an option");
}

TEST(CommandLine, RefusesAnOptionWithoutItsValue) {
    EXPECT_EQ(usageErrorOf({"render", "a", "-o"}), "--output: 1 required FILE missing");
}

TEST(CommandLine, RefusesAnOptionWithoutAValueAfterItsSign) {
    for (const std::string option :
         {"--output=", "--output-dir=", "--stylesheet=", "--diagnostics=", "--fail-on="}) {
        EXPECT_EQ(usageErrorOf({"render", option, "a", "b"}), option + " needs a value");
    }
    for (const std::string option :
         {"--stylesheet=", "--diagnostics=", "--explain=", "--stdin-filename="}) {
        EXPECT_EQ(usageErrorOf({"check", option, "a", "b"}), option + " needs a value");
    }
    for (const std::string option : {"--names=", "--stdin-filename="}) {
        EXPECT_EQ(usageErrorOf({"format", option, "a", "b"}), option + " needs a value");
    }
    EXPECT_EQ(usageErrorOf({"render", "-o=b.rtf", "a"}), "write -o b.rtf instead of -o=b.rtf");
    EXPECT_THAT(optionsOf({"a", "--", "--output="}).descriptions, ElementsAre("a", "--output="));
}

TEST(CommandLine, RefusesEmptyValues) {
    for (const char* option :
         {"--output", "--output-dir", "--stylesheet", "--diagnostics", "--fail-on"}) {
        EXPECT_EQ(usageErrorOf({"render", option, "", "a"}),
                  std::string(option) + ": the value is empty");
    }
    EXPECT_EQ(usageErrorOf({"render", "-o", "", "a"}), "--output: the value is empty");
    EXPECT_EQ(usageErrorOf({"render", "a", ""}), "DESCRIPTION: the value is empty");
    EXPECT_EQ(usageErrorOf({"render", "--", ""}), "DESCRIPTION: the value is empty");
    EXPECT_EQ(usageErrorOf({"check", ""}), "FILE: the value is empty");
    EXPECT_EQ(usageErrorOf({"check", "--explain", ""}), "--explain: the value is empty");
    EXPECT_EQ(usageErrorOf({"check", "-s", "", "a"}), "--stylesheet: the value is empty");
    EXPECT_EQ(usageErrorOf({"format", ""}), "FILE: the value is empty");
    EXPECT_EQ(usageErrorOf({"format", "--names", "", "a"}), "--names: the value is empty");
}

TEST(CommandLine, TakesANameForStandardInputAlone) {
    EXPECT_EQ(
        std::get<CheckOptions>(parseCommandLine({"check", "--stdin-filename", "a", "-"})).stdinName,
        "a");
    EXPECT_EQ(
        std::get<FormatOptions>(parseCommandLine({"format", "-", "--stdin-filename=a"})).stdinName,
        "a");
    for (const char* command : {"check", "format"}) {
        EXPECT_EQ(usageErrorOf({command, "--stdin-filename", "a", "b"}),
                  "--stdin-filename names standard input, but no FILE is -");
    }
}

TEST(CommandLine, TakesWhatMakesARunFail) {
    EXPECT_EQ(optionsOf({"x"}).failOn, FailOn::Error);
    EXPECT_EQ(optionsOf({"--fail-on=error", "x"}).failOn, FailOn::Error);
    EXPECT_EQ(optionsOf({"--fail-on", "warning", "x"}).failOn, FailOn::Warning);
    EXPECT_EQ(usageErrorOf({"render", "--fail-on=always", "x"}),
              "--fail-on: always not in {error,warning}");
}

TEST(CommandLine, MakesOnlyAFolderThatIsNamed) {
    EXPECT_TRUE(optionsOf({"--mkdir", "--output-dir", "out", "x"}).makesOutputFolder);
    EXPECT_EQ(usageErrorOf({"render", "--mkdir", "x"}), "--mkdir requires --output-dir");
}

TEST(CommandLine, ShowsTheHelpOfASubcommandByItsName) {
    for (const char* command : {"render", "check", "format", "help"}) {
        EXPECT_EQ(informationOf({"help", command}), informationOf({command, "--help"}));
    }
    EXPECT_EQ(informationOf({"help"}), informationOf({"--help"}));
    EXPECT_EQ(usageErrorOf({"help", "rendre"}), "rendre is not a subcommand; did you mean render?");
    EXPECT_EQ(
        usageErrorOf({"help", "draw"}),
        "draw is not a subcommand; use render, check, format, escape, table, data-schema or help");
}

TEST(CommandLine, RefusesAnOptionThatIsGivenTwice) {
    EXPECT_THAT(usageErrorOf({"render", "-o", "a", "-o", "b", "c"}), HasSubstr("--output"));
    EXPECT_THAT(usageErrorOf({"render", "-s", "a", "-s", "b", "c"}), HasSubstr("--stylesheet"));
}

TEST(CommandLine, RefusesAnOtherFormOfDiagnostics) {
    EXPECT_EQ(usageErrorOf({"render", "--diagnostics=xml", "a"}),
              "--diagnostics: xml not in {json,text}");
}

TEST(CommandLine, RefusesAFileAndAFolderForTheOutput) {
    EXPECT_EQ(usageErrorOf({"render", "-o", "a.rtf", "--output-dir", "out", "a.rtfspec"}),
              "--output excludes --output-dir");
}

TEST(CommandLine, ReportsTheFormOfDiagnosticsOfWrongArgumentsToo) {
    EXPECT_EQ(requestedErrorForm({"render", "--wrong", "--diagnostics=json"}), ErrorForm::Json);
    EXPECT_EQ(requestedErrorForm({"--diagnostics", "json"}), ErrorForm::Json);
    EXPECT_EQ(requestedErrorForm({"render", "--diagnostics"}), ErrorForm::Text);
    EXPECT_EQ(requestedErrorForm({"render", "--diagnostics=xml"}), ErrorForm::Text);
    EXPECT_EQ(requestedErrorForm({"render", "--", "--diagnostics=json"}), ErrorForm::Text);
}

TEST(CommandLine, TakesTheOptionsOfCheck) {
    const auto options = std::get<CheckOptions>(
        parseCommandLine({"check", "a", "-s", "b", "--diagnostics", "sarif", "--", "-c"}));
    EXPECT_THAT(options.files, ElementsAre("a", "-c"));
    EXPECT_EQ(options.styleSheet, "b");
    EXPECT_EQ(options.form, ReportForm::Sarif);
    EXPECT_EQ(options.explained, std::nullopt);
    EXPECT_EQ(std::get<CheckOptions>(parseCommandLine({"check", "--explain=x"})).explained, "x");
    EXPECT_EQ(usageErrorOf({"check"}), "FILE is required");
}

TEST(CommandLine, TakesTheOptionsOfFormat) {
    const auto options =
        std::get<FormatOptions>(parseCommandLine({"format", "--names=short", "--check", "a", "b"}));
    EXPECT_THAT(options.files, ElementsAre("a", "b"));
    EXPECT_EQ(options.names, NameForm::Short);
    EXPECT_TRUE(options.check);
    EXPECT_EQ(std::get<FormatOptions>(parseCommandLine({"format", "a"})).names, NameForm::Kept);
}

}  // namespace
}  // namespace quorvane::cli
