// What the subcommands make of files that are not text.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

class BinaryFiles : public testing::Test {
protected:
    BinaryFiles() {
        folder.write("a.rtfspec", "%PDF-1.7\n{\\pdf (doc");
        folder.write("b.rtfspec", "(doc\n(r\n(c\nc)\nr)\ndoc)\n");
        folder.write("b.rtfss", std::string("PK\x03\x04\0\0", 6));
    }

    ProgramResult run(const std::vector<std::string>& arguments) {
        ProgramStart start;
        start.folder = folder.path();
        start.arguments = arguments;
        return runProgram(start);
    }

    TemporaryFolder folder;
};

TEST_F(BinaryFiles, GetOneErrorFromCheck) {
    const ProgramResult result = run({"check", "--quiet", "a.rtfspec"});
    EXPECT_EQ(result.output,
              "a.rtfspec:1:1: error: This is a PDF file, not a text file. [not-a-text-file]\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(BinaryFiles, GetOneErrorFromRender) {
    const ProgramResult result = run({"render", "--keep-going", "a.rtfspec"});
    EXPECT_EQ(result.errors,
              "a.rtfspec:1:1: error: This is a PDF file, not a text file. [not-a-text-file]\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(BinaryFiles, ThatAreGivenAsTheStyleSheetGetOneErrorFromRender) {
    const ProgramResult result = run({"render", "-s", "b.rtfss", "b.rtfspec"});
    EXPECT_EQ(result.errors,
              "b.rtfss:1:1: error: This is a ZIP archive or the document of an office program, not "
              "a text file. [not-a-text-file]\n"
              "    hint: open it in the program that wrote it and save it as RTF\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(BinaryFiles, GetOneErrorFromFormatAndStay) {
    const ProgramResult result = run({"format", "a.rtfspec"});
    EXPECT_EQ(result.errors, "a.rtfspec: This is a PDF file, not a text file.\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(folder.read("a.rtfspec"), "%PDF-1.7\n{\\pdf (doc");
}

}  // namespace
}  // namespace quorvane::cli
