#include "cli/RenderJob.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <string>
#include <vector>

#include "cli/UsageError.h"
#include "cli/causeText.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/driverErrors.h"
#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/WithoutPrivileges.h"
#include "tests/cli/descriptions.h"
#include "tests/support/FakePlatform.h"

namespace quorvane::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A job on files of a folder of its own.
class RenderJobTest : public testing::Test {
protected:
    ExitStatus run() { return run(systemPlatform()); }
    ExitStatus run(Platform& platform) {
        const auto report = [this](const ReportedError& diagnostic) {
            reported.push_back(diagnostic);
        };
        return RenderJob(options, {report}, platform).run();
    }

    std::string usageError() {
        try {
            run();
        } catch (const UsageError& error) {
            return error.what();
        }
        return "no error";
    }

    /// What a host writes that renders the description with the stylesheet in the same way.
    std::string bytesOfHost(const std::string& description) const {
        const auto driver = CRtfDriver::create();
        if (options.styleSheet) {
            driver->setStyleSheetFile(*options.styleSheet);
        }
        driver->setErroneousInput(options.check);
        driver->ParseFile(description);
        driver->Commit(folder / "host.rtf");
        const std::string bytes = folder.read("host.rtf");
        std::filesystem::remove(folder / "host.rtf");
        return bytes;
    }

    TemporaryFolder folder;
    RenderOptions options;
    std::vector<ReportedError> reported;
};

TEST_F(RenderJobTest, WritesTheBytesThatAHostWrites) {
    const std::string description = folder.write("a.rtfspec", descriptionOf("Caf\xE9 \x80 5"));
    options.descriptions = {description};
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_THAT(reported, IsEmpty());
    EXPECT_EQ(folder.read("a.rtf"), bytesOfHost(description));
    EXPECT_THAT(folder.read("a.rtf"), HasSubstr("Caf\xE9 \x80 5"));
}

TEST_F(RenderJobTest, TakesTheStylesFromTheStylesheet) {
    const std::string description = folder.write("a.rtfspec", descriptionOf("Text"));
    options.descriptions = {description};
    options.styleSheet = folder.write("style.rtfss", goodStyleSheet);
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_THAT(folder.read("a.rtf"), HasSubstr("\\f0\\fs24\\cf3"));
    EXPECT_EQ(folder.read("a.rtf"), bytesOfHost(description));
}

TEST_F(RenderJobTest, TakesAStylesheetWithItsExtensionInAnyCase) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.styleSheet = folder.write("STYLE.RTFSS", goodStyleSheet);
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_THAT(folder.read("a.rtf"), HasSubstr("\\f0\\fs24\\cf3"));
}

TEST_F(RenderJobTest, ReadsTheStylesheetOnce) {
    FakePlatform platform;
    platform.files = {{"style.rtfss", goodStyleSheet},
                      {"a.rtfspec", descriptionOf("One")},
                      {"b.rtfspec", descriptionOf("Two")}};
    options.descriptions = {"a.rtfspec", "b.rtfspec"};
    options.styleSheet = "style.rtfss";
    options.outputFolder = folder.path().string();
    EXPECT_EQ(run(platform), ExitStatus::Success);
    EXPECT_THAT(platform.operations,
                ElementsAre("readFile style.rtfss", "readFile a.rtfspec", "readFile b.rtfspec"));
    EXPECT_THAT(folder.read("a.rtf"), HasSubstr("\\f0\\fs24\\cf3"));
    EXPECT_THAT(folder.read("b.rtf"), HasSubstr("\\f0\\fs24\\cf3"));
}

TEST_F(RenderJobTest, LeavesTheClipboardAlone) {
    FakePlatform platform;
    platform.files = {{"a.rtfspec", "no description"}};
    options.descriptions = {"a.rtfspec"};
    EXPECT_EQ(run(platform), ExitStatus::ContentErrors);
    EXPECT_THAT(platform.clipboardTexts, IsEmpty());
}

TEST_F(RenderJobTest, ReportsAnErrorOfTheAnalysisAsAnEvent) {
    const std::string description = folder.write("a.rtfspec", descriptionWithBadColor);
    options.descriptions = {description};
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].kind, ErrorKind::Event);
    EXPECT_EQ(reported[0].file, description);
    EXPECT_EQ(errorLevel(reported[0].error.number), eWrongValue);
    EXPECT_EQ(reported[0].error.description, "crimson isn't a recognized color.");
    EXPECT_EQ(reported[0].error.line, 3);
}

TEST_F(RenderJobTest, WritesNothingAfterAnError) {
    options.descriptions = {folder.write("a.rtfspec", descriptionWithBadColor)};
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(RenderJobTest, LeavesAnOldFileAfterAnError) {
    options.descriptions = {folder.write("a.rtfspec", descriptionWithBadColor)};
    folder.write("a.rtf", "old");
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    EXPECT_EQ(folder.read("a.rtf"), "old");
}

TEST_F(RenderJobTest, WritesWhatCouldBeBuiltWhenItKeepsGoing) {
    const std::string description = folder.write("a.rtfspec", descriptionWithBadColor);
    options.descriptions = {description};
    options.keepGoing = true;
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    EXPECT_EQ(folder.read("a.rtf"), bytesOfHost(description));
}

TEST_F(RenderJobTest, RepairsAndChecksOnlyWhenAsked) {
    const std::string unknownKey = "(doc\n(r\n(colour=5)\n(c\n(p\n(pt=Text)\np)\nc)\nr)\ndoc)\n";
    options.descriptions = {folder.write("a.rtfspec", unknownKey)};
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_THAT(reported, IsEmpty());

    options.check = true;
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(errorLevel(reported[0].error.number), eWrongKeyword);
}

TEST_F(RenderJobTest, ReportsWhyADescriptionCannotBeRead) {
    options.descriptions = {folder / "missing.rtfspec"};
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].kind, ErrorKind::Raised);
    EXPECT_EQ(reported[0].file, folder / "missing.rtfspec");
    EXPECT_EQ(errorLevel(reported[0].error.number), eWrongPath);
    EXPECT_EQ(reported[0].error.description,
              folder / "missing.rtfspec" + " doesn't exist or is unreacheable");
    ASSERT_TRUE(reported[0].error.cause);
    EXPECT_EQ(reported[0].error.cause->number, 53);
}

TEST_F(RenderJobTest, ReportsThatADescriptionIsAFolder) {
    std::filesystem::create_directory(folder / "a.rtfspec");
    options.descriptions = {folder / "a.rtfspec"};
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(causeText(reported[0].error), "Path/File access error (Is a directory)");
}

TEST_F(RenderJobTest, ReportsThatADescriptionIsInAFolderThatIsClosed) {
    std::filesystem::create_directory(folder / "closed");
    options.descriptions = {folder.write("closed/a.rtfspec", descriptionOf("Text"))};
    std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
    std::filesystem::permissions(folder / "closed", std::filesystem::perms::none);
    {
        const WithoutPrivileges guard;
        EXPECT_EQ(run(), ExitStatus::Failure);
    }
    std::filesystem::permissions(folder / "closed", std::filesystem::perms::owner_all);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(causeText(reported[0].error), "Path/File access error (Permission denied)");
}

TEST_F(RenderJobTest, HasNothingToAddToTheRefusalOfADevice) {
    options.descriptions = {"/dev/zero"};
    options.output = folder / "a.rtf";
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(causeText(reported[0].error), "Path/File access error");
}

TEST_F(RenderJobTest, WritesNothingForADescriptionThatCannotBeReadEvenWhenItKeepsGoing) {
    options.descriptions = {folder / "missing.rtfspec"};
    options.keepGoing = true;
    EXPECT_EQ(run(), ExitStatus::Failure);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(RenderJobTest, ReportsARefusedStylesheetWithWhatItsParserSaid) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.styleSheet = folder.write("style.rtfss", badStyleSheet);
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].kind, ErrorKind::Raised);
    EXPECT_EQ(reported[0].file, *options.styleSheet);
    EXPECT_EQ(errorLevel(reported[0].error.number), eWrongFileType);
    EXPECT_EQ(reported[0].error.description, *options.styleSheet + " isn't a valid stylesheet.");
    ASSERT_TRUE(reported[0].error.cause);
    EXPECT_EQ(reported[0].error.cause->number, 445);
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(RenderJobTest, ReportsTheErrorsOfADescriptionAfterThoseOfTheStylesheet) {
    options.descriptions = {folder.write("a.rtfspec", descriptionWithBadColor)};
    options.styleSheet = folder.write("style.rtfss", badStyleSheet);
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    ASSERT_EQ(reported.size(), 2U);
    EXPECT_EQ(reported[0].file, *options.styleSheet);
    EXPECT_EQ(reported[1].file, options.descriptions[0]);
}

TEST_F(RenderJobTest, RendersWithoutARefusedStylesheetWhenItKeepsGoing) {
    const std::string description = folder.write("a.rtfspec", descriptionOf("Text"));
    options.descriptions = {description};
    options.keepGoing = true;
    const std::string withoutStyles = bytesOfHost(description);
    options.styleSheet = folder.write("style.rtfss", badStyleSheet);
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    EXPECT_EQ(folder.read("a.rtf"), withoutStyles);
}

TEST_F(RenderJobTest, RendersNothingWithoutTheStylesheetThatItWasGiven) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text")),
                            folder.write("b.rtfspec", descriptionOf("Text"))};
    options.styleSheet = folder / "missing.rtfss";
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].kind, ErrorKind::Raised);
    EXPECT_EQ(reported[0].file, folder / "missing.rtfss");
    EXPECT_EQ(reported[0].error.number, 53);
    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec", "b.rtfspec"));
}

TEST_F(RenderJobTest, RendersWithoutAMissingStylesheetWhenItKeepsGoing) {
    const std::string description = folder.write("a.rtfspec", descriptionOf("Text"));
    options.descriptions = {description};
    options.keepGoing = true;
    const std::string withoutStyles = bytesOfHost(description);
    options.styleSheet = folder / "missing.rtfss";
    EXPECT_EQ(run(), ExitStatus::Failure);
    EXPECT_EQ(reported.size(), 1U);
    EXPECT_EQ(folder.read("a.rtf"), withoutStyles);
}

TEST_F(RenderJobTest, ReportsThatAStylesheetIsAFolder) {
    std::filesystem::create_directory(folder / "style.rtfss");
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.styleSheet = folder / "style.rtfss";
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].error.number, 75);
}

TEST_F(RenderJobTest, ReportsThatAStylesheetMayNotBeRead) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.styleSheet = folder.write("style.rtfss", goodStyleSheet);
    std::filesystem::permissions(*options.styleSheet, std::filesystem::perms::none);
    std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
    const WithoutPrivileges guard;
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].error.number, 75);
    EXPECT_EQ(causeText(reported[0].error), "Permission denied");
}

TEST_F(RenderJobTest, RefusesAStylesheetWithAnotherExtension) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.styleSheet = folder.write("style.txt", goodStyleSheet);
    EXPECT_EQ(usageError(),
              "the stylesheet " + *options.styleSheet + " must have the extension rtfss");
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(RenderJobTest, RefusesTwoDocumentsInOneFileBeforeItWritesAny) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text")),
                            folder.write("b.rtfspec", descriptionOf("Text")),
                            folder.write("a.txt", descriptionOf("Text"))};
    EXPECT_THAT(usageError(), HasSubstr("would both be written to"));
    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec", "a.txt", "b.rtfspec"));
}

TEST_F(RenderJobTest, WritesIntoTheFolderThatWasNamed) {
    std::filesystem::create_directory(folder / "out");
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("One")),
                            folder.write("b.rtfspec", descriptionOf("Two"))};
    options.outputFolder = folder / "out";
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_THAT(folder.read("out/a.rtf"), HasSubstr("One"));
    EXPECT_THAT(folder.read("out/b.rtf"), HasSubstr("Two"));
    EXPECT_FALSE(folder.has("a.rtf"));
}

TEST_F(RenderJobTest, ReportsOnceThatTheFolderIsMissing) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("One")),
                            folder.write("b.rtfspec", descriptionOf("Two"))};
    options.outputFolder = folder / "out";
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].file, folder / "out");
    EXPECT_EQ(reported[0].error.number, 76);
    ASSERT_TRUE(reported[0].error.cause);
    EXPECT_EQ(reported[0].error.cause->description, "the folder of --output-dir must exist");
}

TEST_F(RenderJobTest, ReportsThatTheFolderIsAFile) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("One"))};
    options.outputFolder = folder.write("out", "");
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].error.number, 76);
}

TEST_F(RenderJobTest, ReportsThatAFileCannotBeWritten) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.output = folder / "missing/a.rtf";
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].kind, ErrorKind::Raised);
    EXPECT_EQ(reported[0].file, *options.output);
    EXPECT_EQ(reported[0].error.number, 76);
    EXPECT_EQ(reported[0].error.description, "Path not found");
}

TEST_F(RenderJobTest, ReportsThatADeviceIsFull) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.output = "/dev/full";
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].error.number, 61);
}

TEST_F(RenderJobTest, KeepsAFileThatMayNotBeWritten) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    std::filesystem::permissions(
        folder.write("a.rtf", "old"),
        std::filesystem::perms::owner_read | std::filesystem::perms::others_read);
    std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
    {
        const WithoutPrivileges guard;
        EXPECT_EQ(run(), ExitStatus::Failure);
    }
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].error.number, 75);
    EXPECT_EQ(folder.read("a.rtf"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf", "a.rtfspec"));
}

TEST_F(RenderJobTest, TreatsEachDescriptionOnItsOwn) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("One")),
                            folder.write("b.rtfspec", descriptionWithBadColor),
                            folder / "missing.rtfspec",
                            folder.write("c.rtfspec", descriptionOf("Three"))};
    EXPECT_EQ(run(), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 2U);
    EXPECT_EQ(reported[0].file, folder / "b.rtfspec");
    EXPECT_EQ(reported[1].file, folder / "missing.rtfspec");
    EXPECT_EQ(folder.read("a.rtf"), bytesOfHost(folder / "a.rtfspec"));
    EXPECT_EQ(folder.read("c.rtf"), bytesOfHost(folder / "c.rtfspec"));
    EXPECT_FALSE(folder.has("b.rtf"));
}

TEST_F(RenderJobTest, RendersADocumentAfterOthersAsItRendersItAlone) {
    options.styleSheet = folder.write("style.rtfss", goodStyleSheet);
    const std::string large(2 * 1024 * 1024, 'x');
    const std::vector<std::string> descriptions = {
        folder.write("wide.rtfspec",
                     "(doc\n(paper-width=20000)\n(r\n(c\n(p\n(pt=w)\np)\nc)\nr)\ndoc)\n"),
        folder.write("plain.rtfspec", descriptionOf("Text")),
        folder.write("large.rtfspec", descriptionOf(large)),
        folder.write("afterLarge.rtfspec", descriptionOf("Text")),
        folder.write("faulty.rtfspec", "(doc\n(r\n(c\n(p\n(pt=x)\n(pa=askew)\np)\nc)\nr)\ndoc)\n"),
        folder.write("afterFaulty.rtfspec", descriptionOf("Text")),
    };
    options.descriptions = descriptions;
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
    EXPECT_EQ(reported.size(), 1u);
    for (const char* name : {"wide", "plain", "large", "afterLarge", "afterFaulty"}) {
        const std::string description = folder / (std::string(name) + ".rtfspec");
        EXPECT_TRUE(folder.read(std::string(name) + ".rtf") == bytesOfHost(description)) << name;
    }
}

TEST_F(RenderJobTest, WritesNoDocumentAgainForADescriptionThatMakesNothing) {
    const std::string nothing = "(doc ; (r\ndoc)\n";
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text")),
                            folder.write("b.rtfspec", nothing),
                            folder.write("c.rtfspec", descriptionOf("Text")),
                            folder.write("d.rtfspec", "(doc\n(page-number-start=2)\n; (r\ndoc)\n")};
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_EQ(folder.read("b.rtf"), "{}");
    EXPECT_EQ(folder.read("c.rtf"), folder.read("a.rtf"));
    EXPECT_EQ(folder.read("d.rtf"), "{}");
}

TEST_F(RenderJobTest, WritesTheStylesAloneForADescriptionThatMakesNothing) {
    options.styleSheet = folder.write("style.rtfss", goodStyleSheet);
    const std::string nothing = folder.write("b.rtfspec", "(doc ; (r\ndoc)\n");
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text")), nothing};
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_EQ(folder.read("b.rtf"), bytesOfHost(nothing));
    EXPECT_NE(folder.read("b.rtf"), folder.read("a.rtf"));
}

TEST_F(RenderJobTest, ReturnsTheWorstStatusWhereverItCame) {
    options.descriptions = {folder.write("b.rtfspec", descriptionWithBadColor),
                            folder.write("a.rtfspec", descriptionOf("One"))};
    EXPECT_EQ(run(), ExitStatus::ContentErrors);
}

TEST_F(RenderJobTest, DoesNotCountARefusedMarkedField) {
    const std::string numberAsField = "(doc\n(r\n(c\n(p\n(pt=Text)\n(pmf=5)\np)\nc)\nr)\ndoc)\n";
    options.descriptions = {folder.write("a.rtfspec", numberAsField)};
    EXPECT_EQ(run(), ExitStatus::Success);
    EXPECT_THAT(reported, IsEmpty());
    EXPECT_TRUE(folder.has("a.rtf"));
}

TEST_F(RenderJobTest, ReportsEachDescriptionBeforeItBegins) {
    std::vector<std::string> steps;
    options.descriptions = {folder.write("a.rtfspec", descriptionWithBadColor),
                            folder.write("b.rtfspec", descriptionOf("Two"))};
    RenderReceivers receivers;
    receivers.report = [&](const ReportedError&) { steps.push_back("error"); };
    receivers.progress = [&](std::size_t number, std::size_t count, const std::string& name) {
        steps.push_back(std::to_string(number) + "/" + std::to_string(count) + " " + name);
    };
    RenderJob job(options, receivers);
    job.run();
    EXPECT_THAT(steps,
                ElementsAre("1/2 " + folder / "a.rtfspec", "error", "2/2 " + folder / "b.rtfspec"));
}

/// A platform on which there is no memory for the file of one name.
class PlatformWithoutMemory : public FakePlatform {
public:
    explicit PlatformWithoutMemory(std::string name) : name_(std::move(name)) {}

    std::string readFile(const std::string& path) override {
        if (path == name_) {
            throw std::bad_alloc();
        }
        return FakePlatform::readFile(path);
    }

private:
    std::string name_;
};

TEST_F(RenderJobTest, ReportsThatMemoryDoesNotSufficeAndGoesOnWithTheNext) {
    PlatformWithoutMemory platform("a.rtfspec");
    platform.files = {{"b.rtfspec", descriptionOf("Two")}};
    options.descriptions = {"a.rtfspec", "b.rtfspec"};
    options.outputFolder = folder.path().string();
    EXPECT_EQ(run(platform), ExitStatus::Failure);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_EQ(reported[0].kind, ErrorKind::Raised);
    EXPECT_EQ(reported[0].file, "a.rtfspec");
    EXPECT_EQ(reported[0].error.number, 7);
    EXPECT_EQ(reported[0].error.description, "Out of memory");
    EXPECT_THAT(folder.names(), ElementsAre("b.rtf"));
}

TEST_F(RenderJobTest, CountsAnErrorThatCannotBeReported) {
    options.descriptions = {folder.write("a.rtfspec", descriptionOf("Text"))};
    options.output = "/dev/full";
    RenderJob job(options, {[](const ReportedError&) { throw std::bad_alloc(); }});
    EXPECT_EQ(job.run(), ExitStatus::Failure);
}

}  // namespace
}  // namespace quorvane::cli
