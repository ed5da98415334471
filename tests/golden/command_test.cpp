#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/runProgram.h"
#include "tests/golden/goldenCases.h"

namespace quorvane::golden {
namespace {

using cli::ProgramResult;
using cli::ProgramStart;
using cli::TemporaryFolder;
using nlohmann::json;

class GoldenCommand : public testing::TestWithParam<Case> {
protected:
    // Some cases are about what breaks a document; which, the tests of the RTF check state.
    GoldenCommand() { folder.acceptBrokenDocuments(); }

    /// Renders the case's description to a file of the temporary folder.
    ProgramResult render(std::vector<std::string> furtherOptions) const {
        const Case& expected = GetParam();
        ProgramStart start;
        start.folder = expected.folder;
        start.arguments = {"render", "--diagnostics=json", "-o", folder / "out.rtf"};
        start.arguments.insert(start.arguments.end(), furtherOptions.begin(), furtherOptions.end());
        if (expected.checked) {
            start.arguments.push_back("--check");
        }
        if (expected.hasStyleSheet) {
            start.arguments.insert(start.arguments.end(), {"-s", "style.rtfss"});
        }
        start.arguments.push_back("description.rtfspec");
        return cli::runProgram(start);
    }

    TemporaryFolder folder;
};

void expectErrors(const std::string& output, const std::vector<ExpectedError>& expected) {
    const std::vector<std::string> lines = cli::linesOf(output);
    ASSERT_EQ(lines.size(), expected.size()) << output;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const json error = json::parse(lines[i]);
        EXPECT_EQ(error.at("kind"), expected[i].kind);
        EXPECT_EQ(error.at("number"), expected[i].number);
        EXPECT_EQ(error.at("message"), expected[i].description);
        if (!expected[i].source.empty()) {
            EXPECT_EQ(error.at("source"), expected[i].source);
        }
    }
}

/// The error of a document that the command does not write in spite of keeping going.
ExpectedError nothingBuilt(const std::string& output) {
    ExpectedError error;
    error.kind = "raised";
    error.number = 5;
    error.description = "Nothing could be built; " + output + " was not written.";
    return error;
}

TEST_P(GoldenCommand, GivesTheExpectedBytesAndErrorsWhenItKeepsGoing) {
    const ProgramResult result = render({"--keep-going"});
    EXPECT_EQ(result.status, GetParam().expectedErrors.empty() ? 0 : 1);
    EXPECT_EQ(result.output, "");
    std::vector<ExpectedError> expectedErrors = GetParam().expectedErrors;
    const bool hasRows = GetParam().expectedRtf.find("\\trowd") != std::string::npos;
    if (!hasRows && !expectedErrors.empty()) {
        EXPECT_FALSE(folder.has("out.rtf"));
        expectedErrors.push_back(nothingBuilt(folder / "out.rtf"));
    } else {
        EXPECT_EQ(folder.read("out.rtf"), GetParam().expectedRtf);
    }
    expectErrors(result.errors, expectedErrors);
}

TEST_P(GoldenCommand, WritesOnlyWhatHasNoErrors) {
    const ProgramResult result = render({});
    expectErrors(result.errors, GetParam().expectedErrors);
    if (GetParam().expectedErrors.empty()) {
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(folder.read("out.rtf"), GetParam().expectedRtf);
    } else {
        EXPECT_EQ(result.status, 1);
        EXPECT_FALSE(folder.has("out.rtf"));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenCommand, testing::ValuesIn(loadCases(QUORVANE_GOLDEN_FOLDER)),
                         [](const testing::TestParamInfo<Case>& case_) {
                             std::string name = case_.param.name;
                             for (char& character : name) {
                                 character = character == '-' ? '_' : character;
                             }
                             return name;
                         });

}  // namespace
}  // namespace quorvane::golden
