// The built program's "escape".

#include <gmock/gmock.h>

#include <string>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

class EscapeTest : public ProgramTest {
protected:
    EscapeTest() : ProgramTest({"escape"}) {}
};

TEST_F(EscapeTest, WritesEachLineOfStandardInputAsAValueOfADescription) {
    start.input = "Dvo\u0159\u00E1k & {sons} (Praha)\n\\ < >\n";
    const ProgramResult result = run({});
    EXPECT_EQ(result.output,
              "Dvo{\\uc1\\u345?}\\'E1k & \\{sons\\} (Praha\\'29\n\\\\ \\'3C \\'3E\n");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(EscapeTest, WritesTextsOfTheObjectModelOnRequest) {
    start.input = " (a) ";
    EXPECT_EQ(run({"--for", "model"}).output, " (a) ");
    EXPECT_EQ(run({"--for=description"}).output, "{} (a\\'29 {}");
}

TEST_F(EscapeTest, KeepsTheEndsOfLines) {
    start.input =
        "\xEF\xBB\xBF"
        "a\r\n\r\nb\n\nc";
    EXPECT_EQ(run({}).output, "a\r\n\r\nb\n\nc");
}

TEST_F(EscapeTest, ReadsFiles) {
    folder.write("a.txt", "{\n");
    start.input = "}\n";
    EXPECT_EQ(run({"a.txt", "-", "a.txt"}).output, "\\{\n\\}\n\\{\n");
    folder.write("b.txt", "b");
    EXPECT_EQ(run({"b.txt", "a.txt", "b.txt"}).output, "b\n\\{\nb");
}

TEST_F(EscapeTest, WritesNothingWhereALineCannotBeShown) {
    folder.write("a.txt", "good\n\u0159\u0159\x07\nM\xFCller\n");
    const ProgramResult result = run({"a.txt"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              "a.txt:2:3: error: No document can show the control character U+0007.\n"
              "a.txt:3:2: error: Byte FC is not UTF-8.\n");
    EXPECT_EQ(result.status, 1);
}

TEST_F(EscapeTest, ReportsAFileThatCannotBeRead) {
    const ProgramResult result = run({"missing.txt"});
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "missing.txt: No such file or directory\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(EscapeTest, RefusesOtherUses) {
    EXPECT_EQ(run({"--for=html"}).status, 2);
}

}  // namespace
}  // namespace quorvane::cli
