// The built program's "format".

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

const std::string loose = "(doc\n(row\n(c\nc)\nrow)\ndoc)";
const std::string canonical = "(doc\n  (row\n    (c\n    c)\n  row)\ndoc)\n";

class FormatTest : public ProgramTest {
protected:
    FormatTest() : ProgramTest({"format"}) {}
};

TEST_F(FormatTest, PutsFilesIntoTheirCanonicalForm) {
    folder.write("a.rtfspec", loose);
    folder.write("b.rtfss", "{name:a;style-def:s}");
    const ProgramResult result = run({"a.rtfspec", "b.rtfss"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    EXPECT_EQ(folder.read("a.rtfspec"), canonical);
    EXPECT_EQ(folder.read("b.rtfss"), "{ name: a; style-def: s }\n");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec", "b.rtfss"));
}

TEST_F(FormatTest, WritesLongOrShortNames) {
    folder.write("a.rtfspec", loose);
    EXPECT_EQ(run({"--names=long", "a.rtfspec"}).status, 0);
    EXPECT_EQ(folder.read("a.rtfspec"), "(doc\n  (row\n    (cell\n    cell)\n  row)\ndoc)\n");
    EXPECT_EQ(run({"--names", "short", "a.rtfspec"}).status, 0);
    EXPECT_EQ(folder.read("a.rtfspec"), "(doc\n  (r\n    (c\n    c)\n  r)\ndoc)\n");
    EXPECT_EQ(run({"--names=both", "a.rtfspec"}).status, 2);
}

TEST_F(FormatTest, OnlyNamesFilesWhenItShallCheck) {
    folder.write("a.rtfspec", loose);
    folder.write("b.rtfspec", canonical);
    const ProgramResult result = run({"--check", "a.rtfspec", "b.rtfspec"});
    EXPECT_EQ(result.output, "a.rtfspec\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(folder.read("a.rtfspec"), loose);
    EXPECT_EQ(run({"--check", "b.rtfspec"}).status, 0);
}

TEST_F(FormatTest, LeavesAFileAloneThatIsInItsForm) {
    folder.write("a.rtfspec", canonical);
    const auto before = std::filesystem::last_write_time(folder.path() / "a.rtfspec");
    EXPECT_EQ(run({"a.rtfspec"}).status, 0);
    EXPECT_EQ(std::filesystem::last_write_time(folder.path() / "a.rtfspec"), before);
}

TEST_F(FormatTest, WritesStandardInputToStandardOutput) {
    start.input = loose;
    EXPECT_EQ(run({"-"}).output, canonical);
    const ProgramResult checked = run({"--check", "-"});
    EXPECT_EQ(checked.output, "<stdin>\n");
    EXPECT_EQ(checked.status, 1);
}

TEST_F(FormatTest, KeepsEveryByteOfATextInWindows1252) {
    std::string bytes;
    for (int byte = 0x80; byte < 0x100; ++byte) {
        bytes += static_cast<char>(byte);
    }
    folder.write("a.rtfspec", descriptionOf(bytes));
    EXPECT_EQ(run({"a.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("a.rtfspec"), HasSubstr("(pt=" + bytes + ")"));
}

TEST_F(FormatTest, ReportsWhatItCannotDoAndFormatsTheRest) {
    folder.write("a.rtfspec", loose);
    folder.write("c.rtf", "{\\rtf1 a}");
    const ProgramResult result = run({"nosuch", "c.rtf", "a.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(linesOf(result.errors), ElementsAre("nosuch: No such file or directory",
                                                    "c.rtf: An RTF file has no canonical form"));
    EXPECT_EQ(folder.read("a.rtfspec"), canonical);
    EXPECT_EQ(run({}).status, 2);
}

TEST_F(FormatTest, FormatsTheDescriptionsAndStylesheetsInAFolder) {
    std::filesystem::create_directories(folder.path() / "in/deep/.hidden");
    folder.write("in/deep/a.rtfspec", loose);
    folder.write("in/deep/.hidden/b.rtfspec", loose);
    folder.write("in/c.rtf", "{\\rtf1 a}");
    const ProgramResult checked = run({"--check", "in"});
    EXPECT_EQ(checked.output, (std::filesystem::path("in") / "deep" / "a.rtfspec").string() + "\n");
    EXPECT_EQ(checked.status, 1);
    const ProgramResult result = run({"in"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(folder.read("in/deep/a.rtfspec"), canonical);
    EXPECT_EQ(folder.read("in/deep/.hidden/b.rtfspec"), loose);
}

TEST_F(FormatTest, ReportsAFolderWithoutDescriptionsAndStylesheets) {
    std::filesystem::create_directory(folder.path() / "in");
    folder.write("in/c.rtf", "{\\rtf1 a}");
    const ProgramResult result = run({"in"});
    EXPECT_EQ(result.errors, "in: The folder has no .rtfspec or .rtfss files\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(FormatTest, RefusesWhatIsNeitherADescriptionNorAStyleSheet) {
    const std::vector<std::pair<std::string, std::string>> others = {
        {"a.c", "int main(void)   { return 0; }\n"},
        {"b.csv", "1;   {3}\r\n\n\n2;x\n"},
        {"c.mk", "all:\n\tcc  a.c   \n"},
        {"d.css", "p   { color: red;next:x }\n\n\n"},
        {"e.eml", "Dear all,   \n\n\n   hello\n"},
        {"f.md", "Write   \n```\n(doc\n(row\nrow)\ndoc)\n```\n"},
        {"g.ts", "interface Style   { name: string; format: string }\n"},
        {"h.yml", "{ name: a,   next: b }\n"},
        {"i.lisp", "(setq a=(b))   \n(x=1)\n"},
        {"j.rtfss", "int main(void)   { return 0; }\n"},
        {"k.rtfspec", "int main(void)   { return 0; }\n"},
        {"l.rtfspec", std::string("(\0d\0o\0c\0\r\0\n\0", 12)},
        {"m", ""},
    };
    std::vector<std::string> names;
    std::string expected;
    for (const auto& [name, bytes] : others) {
        folder.write(name, bytes);
        names.push_back(name);
        const bool isUtf16 = bytes.find('\0') != std::string::npos;
        expected += name + (isUtf16 ? ": This is text in UTF-16, not in UTF-8 or Windows-1252.\n"
                                    : ": The file is neither a description nor a stylesheet\n");
    }
    const ProgramResult result = run(names);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, expected);
    for (const auto& [name, bytes] : others) {
        EXPECT_EQ(folder.read(name), bytes) << name;
    }
}

TEST_F(FormatTest, RefusesWhatIsNeitherFromStandardInput) {
    start.input = "int main(void)   { return 0; }\n";
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"-"}, {"--check", "-"}}) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "<stdin>: The file is neither a description nor a stylesheet\n");
    }
}

TEST_F(FormatTest, TakesFilesOfItsExtensionsThatHoldNothingOfTheLanguage) {
    folder.write("a.rtfspec", "");
    folder.write("b.rtfspec", "; later  \n");
    folder.write("C.RTFSPEC", "To come.  \n");
    folder.write("d.rtfss", "");
    folder.write("e.rtfss", "Styles to come.  \n");
    const ProgramResult result = run({"a.rtfspec", "b.rtfspec", "C.RTFSPEC", "d.rtfss", "e.rtfss"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(folder.read("a.rtfspec") + folder.read("d.rtfss"), "");
    EXPECT_EQ(folder.read("b.rtfspec"), "; later\n");
    EXPECT_EQ(folder.read("C.RTFSPEC"), "To come.\n");
    EXPECT_EQ(folder.read("e.rtfss"), "Styles to come.\n");
}

TEST_F(FormatTest, KnowsDescriptionsAndStyleSheetsUnderOtherNames) {
    folder.write("a.txt", "; mine\n" + loose);
    folder.write("b.txt", "(pa = centered)");
    folder.write("c.txt", "; mine\n{name:a;style-def:s}");
    const ProgramResult result = run({"a.txt", "b.txt", "c.txt"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(folder.read("a.txt"), "; mine\n" + canonical);
    EXPECT_EQ(folder.read("b.txt"), "(pa=centered)\n");
    EXPECT_EQ(folder.read("c.txt"), "; mine\n{ name: a; style-def: s }\n");
}

TEST_F(FormatTest, ShowsWhatWouldChangeAsPatchTakesIt) {
    folder.write("a.rtfspec", loose);
    folder.write("b.rtfspec", canonical);
    const ProgramResult result = run({"--diff", "a.rtfspec", "b.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output,
              "--- a/a.rtfspec\n+++ b/a.rtfspec\n@@ -1,6 +1,6 @@\n (doc\n-(row\n-(c\n-c)\n-row)\n"
              "-doc)\n\\ No newline at end of file\n+  (row\n+    (c\n+    c)\n+  row)\n+doc)\n");
    EXPECT_EQ(folder.read("a.rtfspec"), loose);
    folder.write("the.diff", result.output);
    const std::string patch =
        "cd '" + folder.path().string() + "' && " QUORVANE_PATCH " -s -p1 < the.diff";
    ASSERT_EQ(std::system(patch.c_str()), 0);
    EXPECT_EQ(folder.read("a.rtfspec"), canonical);
    EXPECT_EQ(run({"--diff", "a.rtfspec"}).status, 0);
}

TEST_F(FormatTest, ShowsADiffOnATerminalInColors) {
    folder.write("a.rtfspec", canonical + "\n\n\n");
    start.outputOnTerminal = true;
    EXPECT_EQ(run({"--check", "--diff", "a.rtfspec"}).output,
              "\x1b[1m--- a/a.rtfspec\x1b[0m\n\x1b[1m+++ b/a.rtfspec\x1b[0m\n"
              "\x1b[36m@@ -4,6 +4,3 @@\x1b[0m\n     c)\n   row)\n doc)\n"
              "\x1b[31m-\x1b[0m\n\x1b[31m-\x1b[0m\n\x1b[31m-\x1b[0m\n");
}

TEST_F(FormatTest, TakesAStyleSheetAfterProseFromStandardInput) {
    start.input = "Styles of the house.\n{name:a;style-def:cs;format:\\b}\n";
    const ProgramResult result = run({"-"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "Styles of the house.\n{ name: a; style-def: cs; format: \\b }\n");
    start.input = "interface Style   { name: string; format: string }\n";
    EXPECT_EQ(run({"-"}).errors, "<stdin>: The file is neither a description nor a stylesheet\n");
}

TEST_F(FormatTest, TakesStandardInputForAFileOfAName) {
    start.input = "; later  \n";
    EXPECT_EQ(run({"-"}).errors, "<stdin>: The file is neither a description nor a stylesheet\n");
    EXPECT_EQ(run({"--stdin-filename", "sub/a.rtfspec", "-"}).output, "; later\n");
    EXPECT_EQ(run({"--stdin-filename=a.rtfss", "--check", "-"}).output, "a.rtfss\n");
    EXPECT_EQ(run({"--stdin-filename=a.rtfss", "--diff", "-"}).output,
              "--- a/a.rtfss\n+++ b/a.rtfss\n@@ -1 +1 @@\n-; later  \n+; later\n");
    EXPECT_EQ(run({"--stdin-filename=a.txt", "-"}).errors,
              "a.txt: The file is neither a description nor a stylesheet\n");
    EXPECT_EQ(run({"--stdin-filename=a.rtfss", "b.rtfss"}).status, 2);
    EXPECT_FALSE(folder.has("sub"));
}

}  // namespace
}  // namespace quorvane::cli
