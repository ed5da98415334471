#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {

/// Runs the built program, or one of its subcommands, in an empty folder.
class ProgramTest : public testing::Test {
protected:
    explicit ProgramTest(std::vector<std::string> first = {}) : first_(std::move(first)) {
        start.folder = folder.path();
    }

    /// Runs it with these arguments, after the name of the subcommand.
    ProgramResult run(const std::vector<std::string>& arguments) {
        start.arguments = first_;
        start.arguments.insert(start.arguments.end(), arguments.begin(), arguments.end());
        return runProgram(start);
    }

    TemporaryFolder folder;
    ProgramStart start;

private:
    std::vector<std::string> first_;
};

}  // namespace quorvane::cli
