// The built program's "render": what it writes, what it refuses to, and how it reports why.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

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

class RenderTest : public ProgramTest {
protected:
    RenderTest() : ProgramTest({"render"}) {}

    /// What a run reports that does not begin, without the line about the help.
    std::string refusalOf(std::vector<std::string> arguments) {
        const ProgramResult result = run(std::move(arguments));
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.output, "");
        const std::vector<std::string> lines = linesOf(result.errors);
        EXPECT_EQ(lines.size(), 2U) << result.errors;
        return lines.empty() ? std::string() : lines.front();
    }
};

using NeverOverwrites = RenderTest;

TEST_F(NeverOverwrites, TheDescriptionThatFollowsAnOptionWithoutItsValue) {
    const std::string a = descriptionOf("One");
    const std::string b = descriptionOf("Two");
    folder.write("a.rtfspec", a);
    folder.write("b.rtfspec", b);
    EXPECT_EQ(refusalOf({"--output=", "a.rtfspec", "b.rtfspec"}),
              "quorvane: --output= needs a value");
    EXPECT_EQ(refusalOf({"-o", "", "a.rtfspec"}), "quorvane: --output: the value is empty");
    EXPECT_EQ(refusalOf({""}), "quorvane: DESCRIPTION: the value is empty");
    EXPECT_EQ(folder.read("a.rtfspec"), a);
    EXPECT_EQ(folder.read("b.rtfspec"), b);
    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec", "b.rtfspec"));
}

TEST_F(NeverOverwrites, AnyDescriptionOrStylesheetWhateverItsName) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    const std::string text = descriptionOf("Other");
    const std::string ending = "; name another file, or move that one away";
    const std::vector<std::pair<std::string, std::string>> others = {
        {"b.rtfspec", text},
        {"b.rtf", "; mine\r\n\r\n" + text},
        {"b", "\xEF\xBB\xBF" + text},
        {"c.rtfspec", ""},
        {"d.txt", "(pt=Text)\n"},
        {"e.txt", std::string("\xFF\xFE(\0d\0o\0c\0\n\0", 12)},
        {"f.txt", std::string("(\0d\0o\0c\0\n\0", 10)},
        {"g.rtfspec", "To come.\n"},
    };
    for (const auto& [name, bytes] : others) {
        folder.write(name, bytes);
        EXPECT_EQ(refusalOf({"-o", name, "a.rtfspec"}),
                  "quorvane: the document of a.rtfspec would replace " + name +
                      ", which is a description" + ending);
        EXPECT_EQ(folder.read(name), bytes) << name;
    }
    for (const std::string name : {"s.rtfss", "s.rtf", "s"}) {
        folder.write(name, goodStyleSheet);
        EXPECT_EQ(refusalOf({"-o", name, "a.rtfspec"}),
                  "quorvane: the document of a.rtfspec would replace " + name +
                      ", which is a stylesheet" + ending);
        EXPECT_EQ(folder.read(name), goodStyleSheet);
    }
}

TEST_F(NeverOverwrites, ADescriptionThatStandsWhereADocumentWouldGo) {
    folder.write("a.txt", descriptionOf("Text"));
    folder.write("a.rtf", descriptionOf("Other"));
    std::filesystem::create_directory(folder / "out");
    folder.write("out/a.rtf", descriptionOf("Other"));
    EXPECT_THAT(refusalOf({"a.txt"}), HasSubstr("a.rtf, which is a description"));
    EXPECT_THAT(refusalOf({"--output-dir", "out", "a.txt"}),
                HasSubstr("out/a.rtf, which is a description"));
    EXPECT_THAT(refusalOf({"--keep-going", "--check", "a.txt"}),
                HasSubstr("a.rtf, which is a description"));
    EXPECT_EQ(folder.read("a.rtf"), descriptionOf("Other"));
    EXPECT_EQ(folder.read("out/a.rtf"), descriptionOf("Other"));
}

TEST_F(NeverOverwrites, AnInputThatHasAnotherNameToo) {
    folder.write("a.rtfspec", "nothing that is known");
    folder.write("s.rtfss", goodStyleSheet);
    std::filesystem::create_hard_link(folder / "a.rtfspec", folder / "hard.rtf");
    std::filesystem::create_symlink("a.rtfspec", folder / "soft.rtf");
    for (const std::string name : {"hard.rtf", "soft.rtf"}) {
        EXPECT_EQ(refusalOf({"-o", name, "a.rtfspec"}),
                  "quorvane: the document of a.rtfspec would replace a.rtfspec");
    }
    std::filesystem::create_hard_link(folder / "s.rtfss", folder / "style.rtf");
    EXPECT_EQ(refusalOf({"-o", "style.rtf", "-s", "s.rtfss", "a.rtfspec"}),
              "quorvane: the document of a.rtfspec would replace s.rtfss");
    EXPECT_EQ(folder.read("a.rtfspec"), "nothing that is known");
    EXPECT_EQ(folder.read("s.rtfss"), goodStyleSheet);
}

TEST_F(NeverOverwrites, ButReplacesDocumentsAndOtherFiles) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    const std::vector<std::string> others = {
        "{\\rtf1 (doc}", "old", "", "{\\rtf1", "{\\rtf", "int main(void) { return 0; }\n"};
    for (const std::string& bytes : others) {
        folder.write("a.rtf", bytes);
        const ProgramResult result = run({"a.rtfspec"});
        EXPECT_EQ(result.status, 0) << bytes << result.errors;
        EXPECT_THAT(folder.read("a.rtf"), HasSubstr("Text"));
    }
    // RTF is not a description, whatever its name.
    folder.write("b.rtfspec", "{\\rtf1 old}");
    EXPECT_EQ(run({"-o", "b.rtfspec", "a.rtfspec"}).status, 0);
    EXPECT_EQ(run({"-o", "/dev/null", "a.rtfspec"}).status, 0);
}

using KeepsGoing = RenderTest;

TEST_F(KeepsGoing, ButKeepsTheOlderDocumentWhereNothingCouldBeBuilt) {
    folder.write("a.rtf", "{\\rtf1 the good one}");
    folder.write("a.rtfspec", "(row\n(cell\ncell)\nrow)\n");
    const ProgramResult result = run({"--keep-going", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "a.rtfspec:1:1: error: The provided file isn't a correct rtfspec file. "
              "[wrong-file-type]\n"
              "    (row\n"
              "    ^~~~\n"
              "    hint: a description begins with (doc and ends with doc)\n"
              "a.rtfspec: error: Nothing could be built; a.rtf was not written.\n");
    EXPECT_EQ(folder.read("a.rtf"), "{\\rtf1 the good one}");
}

TEST_F(KeepsGoing, AndWritesNoDocumentOfNothingButStyles) {
    folder.write("style.rtfss", goodStyleSheet);
    folder.write("a.rtfspec", "(row\n(cell\ncell)\nrow)\n");
    EXPECT_EQ(run({"--keep-going", "-s", "style.rtfss", "a.rtfspec"}).status, 1);
    EXPECT_EQ(run({"--keep-going", "-o", "-", "a.rtfspec"}).output, "");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec", "style.rtfss"));
}

TEST_F(KeepsGoing, AndSaysInAnObjectMoreThatNothingCouldBeBuilt) {
    folder.write("a.rtfspec", "(row\n(cell\ncell)\nrow)\n");
    const std::vector<std::string> objects =
        linesOf(run({"--keep-going", "--diagnostics=json", "a.rtfspec"}).errors);
    EXPECT_EQ(objects.size(), 5U);
    EXPECT_EQ(objects.back(),
              R"({"file":"a.rtfspec","line":null,"number":5,"level":null,"source":null,)"
              R"("message":"Nothing could be built; a.rtf was not written.","kind":"raised"})");
}

TEST_F(KeepsGoing, AndWritesWhatIsEmptyWithoutAnError) {
    folder.write("a.rtfspec", "(doc ; (r\ndoc)\n");
    EXPECT_EQ(run({"--keep-going", "a.rtfspec"}).status, 0);
    EXPECT_EQ(folder.read("a.rtf"), "{}");
}

using ChecksTexts = RenderTest;

TEST_F(ChecksTexts, AndRefusesABraceWithoutItsPartner) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=a { b)\np)\nc)\nr)\ndoc)\n");
    folder.acceptBrokenDocuments();
    const std::string report =
        "a.rtfspec:5:7: error: Unmatched {. [unbalanced-brace]\n"
        "    (pt=a { b)\n"
        "          ^\n"
        "    hint: write \\{ for a literal brace\n";
    const ProgramResult result = run({"--check", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, report);
    EXPECT_FALSE(folder.has("a.rtf"));

    const ProgramResult kept = run({"--check", "--keep-going", "a.rtfspec"});
    EXPECT_EQ(kept.status, 1);
    EXPECT_EQ(kept.errors, report);
    EXPECT_THAT(folder.read("a.rtf"), HasSubstr("a { b"));
}

TEST_F(ChecksTexts, AndRefusesABackslashThatSwallowsWhatFollows) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=C:\\5)\np)\nc)\nr)\ndoc)\n");
    const ProgramResult result = run({"--check", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors,
                HasSubstr("a.rtfspec:5:7: error: The backslash swallows what follows it. "
                          "[lone-backslash]\n"));
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(ChecksTexts, AndRefusesAFormatThatBreaksDocuments) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=Text)\np)\nc)\nr)\ndoc)\n");
    folder.write("b.rtfspec", folder.read("a.rtfspec"));
    folder.write("style.rtfss", "{name: normal; style-def: s; format: \\f0\\5}");
    const ProgramResult result = run({"--check", "-s", "style.rtfss", "a.rtfspec", "b.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("style.rtfss:1:41: error: The backslash swallows what "
                                         "follows it. [lone-backslash]\n"));
    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec", "b.rtfspec", "style.rtfss"));
}

TEST_F(ChecksTexts, AndReportsARefusalAsOneObjectAfterTheEvents) {
    folder.write(
        "a.rtfspec",
        "(doc\n(r\n(rb=crimson)\n(c\n(p\n(pt=a { b)\np)\n(p\n(pt=C:\\5)\np)\nc)\nr)\ndoc)\n");
    const std::vector<std::string> objects =
        linesOf(run({"--check", "--diagnostics=json", "a.rtfspec"}).errors);
    ASSERT_EQ(objects.size(), 3U);
    EXPECT_THAT(objects[0], HasSubstr(R"("kind":"event")"));
    EXPECT_THAT(objects[1], HasSubstr(R"("kind":"event")"));
    EXPECT_EQ(objects[2], R"({"file":"a.rtfspec","line":6,"number":5,"level":null,"source":null,)"
                          R"x("message":"Unmatched {. [unbalanced-brace] (and 1 more)",)x"
                          R"("kind":"check"})");
}

TEST_F(ChecksTexts, ButNotThoseThatAreToBeIgnored) {
    folder.write("a.rtfspec",
                 "(doc\n(r\n(c\n(p\n; quorvane: ignore unbalanced-brace\n(pt=a { b)\np)\nc)\nr)\n"
                 "doc)\n");
    folder.acceptBrokenDocuments();
    for (const char* option : {"--check", "--fail-on=warning"}) {
        const ProgramResult result = run({option, "a.rtfspec"});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errors, "");
    }
    EXPECT_TRUE(folder.has("a.rtf"));
}

TEST_F(RenderTest, FailsOnAnErrorThatIsToBeIgnored) {
    folder.write("a.rtfspec",
                 "(doc\n(r\n; quorvane: ignore wrong-color\n(rb=crimson)\n(c\n(p\n(pt=x)\np)\nc)\n"
                 "r)\ndoc)\n");
    const ProgramResult result = run({"a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "a.rtfspec:4: error: crimson isn't a recognized color.\n");
}

TEST_F(ChecksTexts, OnlyWhenAsked) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(pt=a { b)\np)\nc)\nr)\ndoc)\n");
    folder.acceptBrokenDocuments();
    const ProgramResult result = run({"a.rtfspec"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(folder.has("a.rtf"));
}

using FailsOn = RenderTest;

const std::string emptyText = "(doc\n(r\n(c\n(p\n(pt=)\np)\nc)\nr)\ndoc)\n";
const std::string warning =
    "a.rtfspec:5:5: warning: Empty paragraph: it will not appear in the document. [empty-text]\n"
    "    (pt=)\n"
    "        ^\n";

TEST_F(FailsOn, WarningsOfTheCheckWhenAsked) {
    folder.write("a.rtfspec", emptyText);
    EXPECT_EQ(run({"a.rtfspec"}).errors, "");
    EXPECT_EQ(run({"--check", "--fail-on=error", "a.rtfspec"}).errors, "");
    std::filesystem::remove(folder / "a.rtf");

    const ProgramResult result = run({"--fail-on=warning", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, warning + "a.rtfspec: error: 1 warning, with --fail-on=warning\n");
    EXPECT_FALSE(folder.has("a.rtf"));

    const ProgramResult kept = run({"--fail-on=warning", "--keep-going", "a.rtfspec"});
    EXPECT_EQ(kept.status, 1);
    EXPECT_TRUE(folder.has("a.rtf"));
}

TEST_F(FailsOn, WarningsAboutStylesheets) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    folder.write("style.rtfss", goodStyleSheet + "\n{name: b; format: \\b}\n");
    const ProgramResult result = run({"--fail-on=warning", "-s", "style.rtfss", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("style.rtfss:2:2: warning: The definition has no "
                                         "style-def and becomes a cell style. [no-style-kind]\n"));
    EXPECT_THAT(result.errors, HasSubstr(", with --fail-on=warning\n"));
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(FailsOn, WarningsAboutStylesThatAreNotThere) {
    folder.write("a.rtfspec", "(doc\n(r\n(c\n(p\n(ps=none)\n(pt=Text)\np)\nc)\nr)\ndoc)\n");
    folder.write("style.rtfss", goodStyleSheet);
    const ProgramResult result = run({"--fail-on=warning", "-s", "style.rtfss", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("[unknown-paragraph-style]\n"));
}

TEST_F(FailsOn, WhatTheCheckCallsAnError) {
    folder.write("a.rtfspec", "(doc\n(r\n(colour=5)\n(c\n(p\n(pt=Text)\np)\nc)\nr)\ndoc)\n");
    const ProgramResult result = run({"--fail-on=warning", "a.rtfspec"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("a.rtfspec:3:2: error: colour isn't a valid keyword."));
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(FailsOn, WarningsInOneObject) {
    folder.write("a.rtfspec", emptyText);
    EXPECT_EQ(run({"--fail-on=warning", "--diagnostics=json", "a.rtfspec"}).errors,
              R"({"file":"a.rtfspec","line":5,"number":5,"level":null,"source":null,)"
              R"("message":"Empty paragraph: it will not appear in the document. [empty-text]",)"
              R"("kind":"check"})"
              "\n");
}

using RenderReports = RenderTest;

TEST_F(RenderReports, EachMistakeOnceAndNotWhatFollowsFromIt) {
    folder.write("a.rtfspec", "(doc x\n(r\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)\n");
    const std::string report =
        "a.rtfspec:1:1: error: (doc x has a wrong syntax [wrong-syntax]\n"
        "    (doc x\n"
        "    ^~~~~~\n"
        "    hint: only a comment, which begins with ;, can follow (doc\n";
    EXPECT_EQ(run({"a.rtfspec"}).errors, report);
    EXPECT_EQ(run({"--check", "a.rtfspec"}).errors, report);
}

TEST_F(RenderReports, AllMistakesOfTheKindThatEndsTheRendering) {
    folder.write("a.rtfspec",
                 "(doc\n(r\n(rb=crimson)\n(c\n(cb=scarlet)\n(p\n(pt=x)\np)\nc)\nr)\ndoc)\n");
    const std::vector<std::string> lines = linesOf(run({"a.rtfspec"}).errors);
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_EQ(lines[0], "a.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]");
    EXPECT_EQ(lines[4], "a.rtfspec:5:5: error: scarlet isn't a recognized color. [wrong-color]");
}

TEST_F(RenderReports, OnlyWhatMakesTheRenderingFail) {
    const std::string unknownKey = "(doc\n(r\n(colour=5)\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)\n";
    folder.write("a.rtfspec", unknownKey);
    const ProgramResult accepted = run({"a.rtfspec"});
    EXPECT_EQ(accepted.status, 0);
    EXPECT_EQ(accepted.errors, "");
    folder.write("a.rtfspec",
                 "(doc\n(r\n(colour=5)\n(rb=crimson)\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)\n");
    const ProgramResult refused = run({"a.rtfspec"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errors,
              "a.rtfspec:4:5: error: crimson isn't a recognized color. [wrong-color]\n"
              "    (rb=crimson)\n"
              "        ^~~~~~~\n"
              "    hint: did you mean dark-red?\n");
}

TEST_F(RenderReports, EveryEventAsAnObjectAsBefore) {
    folder.write("a.rtfspec", "(doc x\n(r\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)\n");
    EXPECT_EQ(run({"--diagnostics=json", "a.rtfspec"}).errors,
              R"({"file":"a.rtfspec","line":1,"number":-2147221493,"level":"eSyntaxError",)"
              R"("source":"sLine is neither a recognized node nor a leaf\r\nsLeaf = (doc x\r\n)"
              R"(CRtfDriver.treeWalkerBuild","message":"(doc x has a wrong syntax",)"
              R"("kind":"event"})"
              "\n"
              R"({"file":"a.rtfspec","line":null,"number":5,"level":null,"source":null,)"
              R"("message":"Invalid procedure call or argument","kind":"event"})"
              "\n");
}

TEST_F(RenderReports, AFileThatCannotBeReadInTheWordsOfTheSystem) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    std::filesystem::create_directory(folder / "folder.rtfspec");
    const std::string missing = "nosuch.rtfspec: No such file or directory\n";
    EXPECT_EQ(run({"nosuch.rtfspec"}).errors, missing);
    start.arguments = {"check", "nosuch.rtfspec"};
    EXPECT_EQ(runProgram(start).errors, missing);
    start.arguments = {"format", "nosuch.rtfspec"};
    EXPECT_EQ(runProgram(start).errors, missing);
    EXPECT_EQ(run({"no/such.rtfspec"}).errors, "no/such.rtfspec: No such file or directory\n");
    EXPECT_EQ(run({"a.rtfspec/b"}).errors, "a.rtfspec/b: Not a directory\n");
    EXPECT_EQ(run({"folder.rtfspec"}).errors, "folder.rtfspec: Is a directory\n");
    EXPECT_EQ(run({"-s", "no.rtfss", "a.rtfspec"}).errors, "no.rtfss: No such file or directory\n");
    EXPECT_EQ(run({"/dev/zero", "-o", "a.rtf"}).errors, "/dev/zero: Is a device\n");
    EXPECT_EQ(run({"-o", "no/a.rtf", "a.rtfspec"}).errors, "no/a.rtf: No such file or directory\n");
}

TEST_F(RenderReports, ADescriptionWithErrorsWithoutMakingTheFolder) {
    folder.write("a.rtfspec", "(doc\n");
    EXPECT_EQ(run({"--mkdir", "--output-dir", "x/y", "a.rtfspec"}).status, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "x"));
}

TEST_F(RenderReports, AFolderThatCannotBeMade) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    std::filesystem::create_symlink("nosuch/x", folder.path() / "link");
    const ProgramResult result = run({"--mkdir", "--output-dir", "link", "a.rtfspec"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, StartsWith("link/a.rtf: "));
}

TEST_F(RenderReports, AMissingFolderForDocumentsAndMakesItWhenAsked) {
    folder.write("a.rtfspec", descriptionOf("Text"));
    const ProgramResult missing = run({"--output-dir", "x/y", "a.rtfspec"});
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.errors, "x/y: No such file or directory; --mkdir creates it\n");
    EXPECT_EQ(run({"--mkdir", "--output-dir", "x/y", "a.rtfspec"}).status, 0);
    EXPECT_THAT(folder.read("x/y/a.rtf"), HasSubstr("Text"));
    EXPECT_EQ(run({"--mkdir", "--output-dir", "x/y", "a.rtfspec"}).status, 0);
    const ProgramResult file = run({"--mkdir", "--output-dir", "a.rtfspec", "a.rtfspec"});
    EXPECT_EQ(file.status, 2);
    EXPECT_EQ(file.errors, "a.rtfspec: Not a directory\n");
    EXPECT_EQ(run({"--mkdir", "--output-dir", "a.rtfspec/b", "a.rtfspec"}).errors,
              "a.rtfspec/b: Not a directory\n");
}

}  // namespace
}  // namespace quorvane::cli
