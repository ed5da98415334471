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
    EXPECT_EQ(options.diagnostics, DiagnosticsForm::Text);
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

TEST(CommandLine, TakesTheSwitches) {
    EXPECT_TRUE(optionsOf({"--check", "x"}).check);
    EXPECT_TRUE(optionsOf({"x", "--keep-going"}).keepGoing);
}

TEST(CommandLine, TakesTheFormOfDiagnostics) {
    EXPECT_EQ(optionsOf({"--diagnostics=json", "x"}).diagnostics, DiagnosticsForm::Json);
    EXPECT_EQ(optionsOf({"--diagnostics", "json", "x"}).diagnostics, DiagnosticsForm::Json);
    EXPECT_EQ(optionsOf({"--diagnostics=text", "x"}).diagnostics, DiagnosticsForm::Text);
}

TEST(CommandLine, TakesAllThatFollowsTwoDashesForDescriptions) {
    const RenderOptions options = optionsOf({"a", "--", "--check", "-s", "--", "b"});
    EXPECT_THAT(options.descriptions, ElementsAre("a", "--check", "-s", "--", "b"));
    EXPECT_FALSE(options.check);
}

TEST(CommandLine, TakesNamesThatMeanSomethingElsewhereAsTheyAre) {
    EXPECT_THAT(optionsOf({"render", "[a,b]", "{}", "%%", "/x", "a b", ""}).descriptions,
                ElementsAre("render", "[a,b]", "{}", "%%", "/x", "a b", ""));
    EXPECT_EQ(optionsOf({"-o", "[a]", "x"}).output, "[a]");
}

TEST(CommandLine, ShowsTheHelpOfTheCommand) {
    EXPECT_THAT(informationOf({"--help"}), HasSubstr("render"));
}

TEST(CommandLine, ShowsTheHelpOfRenderWithEveryOptionAndTheExitStatuses) {
    const std::string help = informationOf({"render", "--help"});
    for (const char* part :
         {"DESCRIPTION", "-s,--stylesheet FILE", "-o,--output FILE", "--output-dir DIR", "--check",
          "--keep-going", "--diagnostics text|json", "--help", "--version", "Exit status:"}) {
        EXPECT_THAT(help, HasSubstr(part));
    }
}

TEST(CommandLine, ShowsNoLongLinesOfHelp) {
    std::size_t length = 0;
    for (const char character : informationOf({"render", "--help"})) {
        length = character == '\n' ? 0 : length + 1;
        ASSERT_LE(length, 80U);
    }
}

TEST(CommandLine, ShowsTheVersionWithAndWithoutASubcommand) {
    EXPECT_EQ(informationOf({"--version"}), "quorvane " QUORVANE_VERSION "\n");
    EXPECT_EQ(informationOf({"render", "--version"}), "quorvane " QUORVANE_VERSION "\n");
}

TEST(CommandLine, NeedsASubcommand) {
    EXPECT_EQ(usageErrorOf({}), "A subcommand is required");
    EXPECT_EQ(usageErrorOf({"draw", "a.rtfspec"}),
              "draw is not a subcommand; render, check and format are");
    EXPECT_EQ(usageErrorOf({"[a].rtfspec"}),
              "[a].rtfspec is not a subcommand; render, check and format are");
    EXPECT_EQ(usageErrorOf({"chekc", "x"}), "chekc is not a subcommand; did you mean check?");
    EXPECT_EQ(usageErrorOf({"Format", "x"}), "Format is not a subcommand; did you mean format?");
}

TEST(CommandLine, NeedsADescription) {
    EXPECT_EQ(usageErrorOf({"render", "--check"}), "DESCRIPTION is required");
}

TEST(CommandLine, RefusesAnOptionThatItDoesNotKnow) {
    EXPECT_THAT(usageErrorOf({"render", "--colour", "a"}),
                AllOf(HasSubstr("not expected"), HasSubstr("--colour")));
    EXPECT_EQ(usageErrorOf({"--colour"}), "The following argument was not expected: --colour");
}

TEST(CommandLine, TellsAnOptionThatItDoesNotKnowBeforeAMissingDescription) {
    EXPECT_EQ(usageErrorOf({"render", "--colour"}),
              "The following argument was not expected: --colour");
    EXPECT_EQ(usageErrorOf({"render", "-a.rtfspec"}),
              "The following argument was not expected: -a.rtfspec");
}

TEST(CommandLine, RefusesAnOptionWithoutItsValue) {
    EXPECT_EQ(usageErrorOf({"render", "a", "-o"}), "--output: 1 required FILE missing");
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

TEST(CommandLine, TellsTheFormOfDiagnosticsOfWrongArgumentsToo) {
    EXPECT_EQ(requestedDiagnosticsForm({"render", "--wrong", "--diagnostics=json"}),
              DiagnosticsForm::Json);
    EXPECT_EQ(requestedDiagnosticsForm({"--diagnostics", "json"}), DiagnosticsForm::Json);
    EXPECT_EQ(requestedDiagnosticsForm({"render", "--diagnostics"}), DiagnosticsForm::Text);
    EXPECT_EQ(requestedDiagnosticsForm({"render", "--diagnostics=xml"}), DiagnosticsForm::Text);
    EXPECT_EQ(requestedDiagnosticsForm({"render", "--", "--diagnostics=json"}),
              DiagnosticsForm::Text);
}

TEST(CommandLine, TakesTheOptionsOfCheck) {
    const auto options = std::get<CheckOptions>(
        parseCommandLine({"check", "a", "-s", "b", "--diagnostics", "sarif", "--", "-c"}));
    EXPECT_THAT(options.files, ElementsAre("a", "-c"));
    EXPECT_EQ(options.styleSheet, "b");
    EXPECT_EQ(options.form, FindingsForm::Sarif);
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
