#include "cli/outputPaths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "cli/UsageError.h"
#include "tests/cli/TemporaryFolder.h"

namespace quorvane::cli {
namespace {

/// The one file that a document goes to.
std::string outputOf(const std::string& description, RenderOptions options = {}) {
    options.descriptions = {description};
    return assignOutputs(options).at(0).output;
}

std::string usageErrorOf(const RenderOptions& options) {
    try {
        assignOutputs(options);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "no error";
}

RenderOptions withDescriptions(std::vector<std::string> descriptions) {
    RenderOptions options;
    options.descriptions = std::move(descriptions);
    return options;
}

TEST(OutputPaths, AreBesideTheDescriptionsWithTheExtensionRtf) {
    EXPECT_EQ(outputOf("letter.rtfspec"), "letter.rtf");
    EXPECT_EQ(outputOf("in/letter.rtfspec"), "in/letter.rtf");
    EXPECT_EQ(outputOf("../a.b/letter"), "../a.b/letter.rtf");
    EXPECT_EQ(outputOf("letter.draft.txt"), "letter.draft.rtf");
}

TEST(OutputPaths, AreStandardOutputForStandardInput) {
    EXPECT_EQ(outputOf("-"), "-");
}

TEST(OutputPaths, AreTheFileThatWasNamed) {
    RenderOptions options;
    options.output = "out/some.name";
    EXPECT_EQ(outputOf("letter.rtfspec", options), "out/some.name");
    EXPECT_EQ(outputOf("-", options), "out/some.name");
}

TEST(OutputPaths, AreInTheFolderThatWasNamed) {
    RenderOptions options;
    options.outputFolder = "out";
    EXPECT_EQ(outputOf("in/letter.rtfspec", options), "out/letter.rtf");
    EXPECT_EQ(outputOf("-", options), "out/stdin.rtf");
}

TEST(OutputPaths, KeepTheOrderOfTheDescriptions) {
    const auto assignments = assignOutputs(withDescriptions({"b.rtfspec", "a.rtfspec"}));
    ASSERT_EQ(assignments.size(), 2U);
    EXPECT_EQ(assignments[0].description, "b.rtfspec");
    EXPECT_EQ(assignments[0].output, "b.rtf");
    EXPECT_EQ(assignments[1].description, "a.rtfspec");
    EXPECT_EQ(assignments[1].output, "a.rtf");
}

TEST(OutputPaths, RefuseOneFileForSeveralDescriptions) {
    RenderOptions options = withDescriptions({"a.rtfspec", "b.rtfspec"});
    options.output = "out.rtf";
    EXPECT_EQ(usageErrorOf(options),
              "--output takes one description; use --output-dir for several");
}

TEST(OutputPaths, RefuseAFileWithoutAName) {
    RenderOptions options = withDescriptions({"a.rtfspec"});
    options.output = "";
    EXPECT_EQ(usageErrorOf(options), "--output needs the name of a file");
}

TEST(OutputPaths, RefuseTwoDocumentsInOneFile) {
    EXPECT_EQ(usageErrorOf(withDescriptions({"a.rtfspec", "b.rtfspec", "a.txt"})),
              "the documents of a.rtfspec and a.txt would both be written to a.rtf");
}

TEST(OutputPaths, RefuseTheSameDescriptionTwice) {
    EXPECT_EQ(
        usageErrorOf(withDescriptions({"a.rtfspec", "./x/../a.rtfspec"})),
        "the documents of a.rtfspec and ./x/../a.rtfspec would both be written to ./x/../a.rtf");
}

TEST(OutputPaths, RefuseStandardOutputTwice) {
    EXPECT_EQ(usageErrorOf(withDescriptions({"-", "-"})),
              "the documents of - and - would both be written to -");
}

TEST(OutputPaths, RefuseTwoDescriptionsOfOneNameInAFolder) {
    RenderOptions options = withDescriptions({"x/a.rtfspec", "y/a.rtfspec"});
    options.outputFolder = "out";
    EXPECT_EQ(usageErrorOf(options),
              "the documents of x/a.rtfspec and y/a.rtfspec would both be written to out/a.rtf");
}

TEST(OutputPaths, RefuseTwoDocumentsInOneFileThatALinkNamesToo) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b.rtf", folder / "a.rtf");
    const RenderOptions options = withDescriptions({folder / "a.rtfspec", folder / "b.rtfspec"});
    EXPECT_EQ(usageErrorOf(options), "the documents of " + folder / "a.rtfspec" + " and " +
                                         folder / "b.rtfspec" + " would both be written to " +
                                         folder / "b.rtf");
}

TEST(OutputPaths, RefuseToReplaceADescription) {
    const TemporaryFolder folder;
    const std::string description = folder.write("a.rtf", "(doc");
    EXPECT_EQ(usageErrorOf(withDescriptions({description})),
              "the document of " + description + " would replace " + description);
}

TEST(OutputPaths, RefuseToReplaceAnotherDescription) {
    const TemporaryFolder folder;
    const std::string other = folder.write("b.rtf", "(doc");
    RenderOptions options = withDescriptions({folder / "b.rtfspec", other});
    EXPECT_EQ(usageErrorOf(options),
              "the document of " + folder / "b.rtfspec" + " would replace " + other);
}

TEST(OutputPaths, RefuseToReplaceTheStylesheet) {
    const TemporaryFolder folder;
    RenderOptions options = withDescriptions({"-"});
    options.styleSheet = folder.write("a.rtfss", "");
    options.output = options.styleSheet;
    EXPECT_EQ(usageErrorOf(options), "the document of - would replace " + *options.styleSheet);
}

TEST(OutputPaths, MayBeADeviceThatIsReadToo) {
    RenderOptions options;
    options.output = "/dev/tty";
    EXPECT_EQ(outputOf("/dev/tty", options), "/dev/tty");
}

}  // namespace
}  // namespace quorvane::cli
