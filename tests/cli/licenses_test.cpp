#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string sourceFile(const std::string& name) {
    std::ifstream stream(std::string(QUORVANE_DOCUMENTS_FOLDER) + "/../" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Licenses, AreShownWhole) {
    ProgramStart start;
    start.arguments = {"--licenses"};

    const ProgramResult result = runProgram(start);

    EXPECT_EQ(result.output, sourceFile("LICENSE") + "\n" + sourceFile("THIRD-PARTY-NOTICES"));
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST(Licenses, NameWhatTheCommandContains) {
    EXPECT_THAT(sourceFile("LICENSE"), StartsWith("MIT License\n\nCopyright (c) "));
    const std::string notices = sourceFile("THIRD-PARTY-NOTICES");
    for (const char* name :
         {"\nCLI11 - ", "\nJSON for Modern C++ - ", "\nValijson - ", "\nmingw-w64 and winpthreads",
          "\nGCC run-time libraries", "\nGNU C Library"}) {
        EXPECT_THAT(notices, HasSubstr(name));
    }
}

}  // namespace
}  // namespace quorvane::cli
