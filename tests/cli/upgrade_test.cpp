// The built program's "format --upgrade".

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

const std::string sheet =
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: strong; style-def: cs; format: \\b }\n";
const std::string upgradedSheet =
    "; quorvane 2\n{ name: normal; style-def: paragraph; size: 10pt }\n"
    "{ name: strong; style-def: character; bold }\n";

/// A description of one cell with the text, which stands on line 5.
std::string described(const std::string& text) {
    return "(doc\n(r\n(c\n(p\n(pt=" + text + ")\np)\nc)\nr)\ndoc)\n";
}

class UpgradeTest : public ProgramTest {
protected:
    UpgradeTest() : ProgramTest({"format", "--upgrade"}) {}
};

TEST_F(UpgradeTest, UpgradesADescriptionAndTheStyleSheetBesideIt) {
    folder.write("a.rtfspec", described("<strong=Total> \\'28net\\'29"));
    folder.write("a.rtfss", sheet);
    folder.write("b.rtfss", sheet);
    const ProgramResult result = run({"a.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "a.rtfss: The stylesheet is upgraded with a.rtfspec\n");
    EXPECT_THAT(folder.read("a.rtfspec"), StartsWith("; quorvane 2\n(doc\n"));
    EXPECT_THAT(folder.read("a.rtfspec"), HasSubstr("(pt=<strong=Total> (net))\n"));
    EXPECT_EQ(folder.read("a.rtfss"), upgradedSheet);
    EXPECT_EQ(folder.read("b.rtfss"), sheet);
}

TEST_F(UpgradeTest, ChangesNothingTheSecondTime) {
    folder.write("a.rtfspec", described("a"));
    folder.write("a.rtfss", sheet);
    EXPECT_EQ(run({"a.rtfspec"}).status, 0);
    const std::string before = folder.read("a.rtfspec");
    const ProgramResult result = run({"a.rtfspec", "a.rtfss"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(folder.read("a.rtfspec"), before);
    EXPECT_EQ(run({"--check", "a.rtfspec"}).status, 0);
}

TEST_F(UpgradeTest, TakesOneStyleSheetForAllDescriptions) {
    folder.write("a.rtfspec", described("<strong=a>"));
    folder.write("b.rtfspec", described("<strong=b>"));
    folder.write("all.rtfss", sheet);
    const ProgramResult result = run({"-s", "all.rtfss", "a.rtfspec", "b.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "all.rtfss: The stylesheet is upgraded with a.rtfspec\n");
    EXPECT_THAT(folder.read("b.rtfspec"), HasSubstr("(pt=<strong=b>)"));
    EXPECT_EQ(folder.read("all.rtfss"), upgradedSheet);
}

TEST_F(UpgradeTest, UpgradesStyleSheetsAfterTheDescriptions) {
    folder.write("a.rtfss", "{ name: body; style-def: s; format: \\fs22 }\n");
    folder.write("a.rtfspec", described("a"));
    const ProgramResult result = run({"a.rtfss", "a.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(folder.read("a.rtfspec"), HasSubstr("(ps=body)\n        (pt=a)"));
    EXPECT_THAT(folder.read("a.rtfss"), StartsWith("; quorvane 2\n"));
    EXPECT_THAT(result.errors,
                StartsWith("a.rtfss:1: Paragraphs without a style looked like body"));
}

TEST_F(UpgradeTest, LeavesBothFilesAsTheyAreWhereOneCannotBeUpgraded) {
    folder.write("a.rtfspec", described("a\\page b"));
    folder.write("a.rtfss", sheet);
    folder.write("b.rtfspec", described("b"));
    folder.write("b.rtfss", "{ name: a; style-def: s; format: \\page }\n");
    folder.write("c.rtfspec", described("<strong=c>"));
    folder.write("d.rtfspec", described("d"));
    const ProgramResult result = run({"a.rtfspec", "b.rtfspec", "c.rtfspec", "d.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(
        linesOf(result.errors),
        ElementsAre(
            "a.rtfspec:5: The extended language cannot express this: \"\\page\" cannot stand here; "
            "write words that format text",
            "b.rtfss:1: The extended language cannot express this: \"\\page\" cannot stand in a "
            "style; "
            "write control words that format text",
            "b.rtfspec: Its stylesheet b.rtfss cannot be upgraded",
            "c.rtfspec:5: The text has an inline style; its stylesheet is needed to write it in "
            "the "
            "extended language"));
    EXPECT_EQ(folder.read("a.rtfspec"), described("a\\page b"));
    EXPECT_EQ(folder.read("a.rtfss"), sheet);
    EXPECT_EQ(folder.read("b.rtfspec"), described("b"));
    EXPECT_THAT(folder.read("d.rtfspec"), StartsWith("; quorvane 2\n"));
}

TEST_F(UpgradeTest, OnlyNamesOrShowsFilesWhenItShallCheck) {
    folder.write("a.rtfspec", described("a"));
    folder.write("a.rtfss", sheet);
    const ProgramResult checked = run({"--check", "a.rtfspec"});
    EXPECT_EQ(checked.output, "a.rtfspec\na.rtfss\n");
    EXPECT_EQ(checked.errors, "");
    EXPECT_EQ(checked.status, 1);
    const ProgramResult shown = run({"--diff", "a.rtfspec"});
    EXPECT_THAT(shown.output, HasSubstr("--- a/a.rtfspec\n"));
    EXPECT_THAT(shown.output, HasSubstr("+{ name: strong; style-def: character; bold }\n"));
    EXPECT_EQ(folder.read("a.rtfspec") + folder.read("a.rtfss"), described("a") + sheet);
}

TEST_F(UpgradeTest, UpgradesStandardInputAndNoFileWithIt) {
    folder.write("a.rtfss", sheet);
    start.input = described("<strong=a>");
    for (const auto& options :
         {std::vector<std::string>{"-s", "a.rtfss"}, {"--stdin-filename", "a.rtfspec"}}) {
        std::vector<std::string> arguments = options;
        arguments.push_back("-");
        const ProgramResult result = run(arguments);
        EXPECT_THAT(result.output, HasSubstr("(pt=<strong=a>)"));
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(folder.read("a.rtfss"), sheet);
    }
    start.input = sheet;
    EXPECT_EQ(run({"-"}).output, upgradedSheet);
}

TEST_F(UpgradeTest, WritesUtf8) {
    folder.write("a.rtfspec", described("caf\xE9 \x80"));
    EXPECT_EQ(run({"a.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("a.rtfspec"), HasSubstr("(pt=café €)"));
}

TEST_F(UpgradeTest, TakesNamesInTheFormThatIsWanted) {
    folder.write("a.rtfspec", described("a"));
    EXPECT_EQ(run({"--names=long", "a.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("a.rtfspec"), HasSubstr("(para-text=a)"));
}

TEST_F(UpgradeTest, UpgradesTheFilesInAFolder) {
    std::filesystem::create_directory(folder.path() / "in");
    folder.write("in/a.rtfspec", described("<strong=a>"));
    folder.write("in/a.rtfss", sheet);
    EXPECT_EQ(run({"in"}).status, 0);
    EXPECT_EQ(folder.read("in/a.rtfss"), upgradedSheet);
    EXPECT_THAT(folder.read("in/a.rtfspec"), HasSubstr("(pt=<strong=a>)"));
}

TEST_F(UpgradeTest, RefusesAStyleSheetWithoutUpgrade) {
    start.arguments = {"format", "-s", "a.rtfss", "a.rtfspec"};
    const ProgramResult result = runProgram(start);
    EXPECT_THAT(result.errors, HasSubstr("--upgrade"));
    EXPECT_EQ(result.status, 2);
}

TEST_F(UpgradeTest, RefusesAStyleSheetThatIsNone) {
    start.input = described("a");
    EXPECT_THAT(run({"-s", "a.txt", "-"}).errors,
                HasSubstr("the stylesheet a.txt must have the extension rtfss"));
    const ProgramResult result = run({"-s", "nosuch.rtfss", "-"});
    EXPECT_THAT(linesOf(result.errors),
                ElementsAre("nosuch.rtfss: No such file or directory",
                            "<stdin>: Its stylesheet nosuch.rtfss cannot be upgraded"));
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.status, 2);
}

}  // namespace
}  // namespace quorvane::cli
