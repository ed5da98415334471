#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

namespace fs = std::filesystem;
using testing::StartsWith;

class ExamplesTest : public testing::TestWithParam<std::string> {};

TEST_P(ExamplesTest, RenderWithoutAnError) {
    const TemporaryFolder folder;
    const fs::path examples(QUORVANE_EXAMPLES_FOLDER);
    const std::string name = GetParam();
    ProgramStart start;
    start.arguments = {"render", "--check", "--output-dir", folder.path().string()};
    const fs::path styleSheet = examples / (name + ".rtfss");
    if (fs::exists(styleSheet)) {
        start.arguments.insert(start.arguments.end(), {"-s", styleSheet.string()});
    }
    start.arguments.push_back((examples / (name + ".rtfspec")).string());

    const ProgramResult result = runProgram(start);

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(folder.read(name + ".rtf"), StartsWith("{"));
}

std::vector<std::string> exampleNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(QUORVANE_EXAMPLES_FOLDER)) {
        if (entry.path().extension() == ".rtfspec") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, ExamplesTest, testing::ValuesIn(exampleNames()),
                         [](const testing::TestParamInfo<std::string>& example) {
                             std::string name = example.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

}  // namespace
}  // namespace quorvane::cli
