// Every call of Windows that the library and the command make for a file fails once, and then for
// good: a document is whole or absent, an older one stays for as long as it can, what failed is
// reported, and all works again afterwards. Only what cannot be removed any more, since the disk is
// gone for good, may stay in part.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "cli/FormatJob.h"
#include "cli/RenderJob.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/driverErrors.h"
#include "tests/cli/descriptions.h"
#include "tests/com/failingFiles/failingFileCalls.h"

namespace quorvane::host {
namespace {

namespace files = std::filesystem;
using testing::AnyOf;
using testing::Eq;
using testing::IsEmpty;
using testing::SizeIs;

/// One call that fails, and a disk that goes, gets full or is locked.
constexpr Failure failures[] = {{false, ERROR_IO_DEVICE},
                                {false, ERROR_DISK_FULL},
                                {true, ERROR_IO_DEVICE},
                                {true, ERROR_DISK_FULL},
                                {true, ERROR_ACCESS_DENIED}};

class FailingFiles : public testing::Test {
protected:
    FailingFiles() {
        files::create_directory(folder);
        write("a.rtfspec", description);
        write("a.rtfss", cli::goodStyleSheet);
        filledDocument()->Commit(pathOf("a.rtf"));
        whole = *bytesOf("a.rtf");
        files::remove(folder / "a.rtf");
    }
    ~FailingFiles() override { files::remove_all(folder); }

    std::string pathOf(const char* name) const { return (folder / name).string(); }

    void write(const char* name, const std::string& bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    /// The file's bytes; nothing when it is not there.
    std::optional<std::string> bytesOf(const char* name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return file ? std::optional(std::string(std::istreambuf_iterator<char>(file), {}))
                    : std::nullopt;
    }

    Ref<CRtfDoc> filledDocument() const {
        const Ref<CRtfDriver> driver = CRtfDriver::create();
        driver->setStyleSheetFile(pathOf("a.rtfss"));
        driver->ParseFile(pathOf("a.rtfspec"));
        return driver->RtfObject();
    }

    /// Lets each call of the action fail in each way, in a run of its own between `prepare` and
    /// `check`, which is given the calls up to the first that failed.
    void failEachCall(
        const std::function<void()>& prepare, const std::function<void()>& action,
        const std::function<void(const std::vector<std::string>&, const Failure&)>& check) {
        for (const Failure& failure : failures) {
            for (std::size_t number = 0;; ++number) {
                prepare();
                std::vector<std::string> calls = withFailingCall(number, failure, action);
                if (calls.size() <= number) {
                    break;
                }
                calls.resize(number + 1);
                SCOPED_TRACE(calls.back() + " fails with " + std::to_string(failure.error) +
                             (failure.isForGood ? " for good" : "") + " as call " +
                             std::to_string(number));
                check(calls, failure);
                ++runs;
            }
        }
    }

    const std::string description = cli::descriptionOf(std::string(3000, 'x'));
    const files::path folder = files::temp_directory_path() /
                               ("quorvane-failing-" + std::to_string(GetCurrentProcessId()));
    std::string whole;
    int runs = 0;
};

TEST_F(FailingFiles, LeaveADescriptionReadOrToldAsUnreachable) {
    Ref<CRtfDriver> driver;
    std::optional<RtfError> error;
    failEachCall(
        [&] {
            driver = CRtfDriver::create();
            driver->setStyleSheetFile(pathOf("a.rtfss"));
            error.reset();
        },
        [&] {
            try {
                driver->ParseFile(pathOf("a.rtfspec"));
            } catch (const RtfError& raised) {
                error = raised;
            }
        },
        [&](const auto&, const Failure&) {
            EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), error ? 0 : 1);
            if (error) {
                EXPECT_EQ(errorLevel(error->number), eWrongPath);
            }
            driver->ParseFile(pathOf("a.rtfspec"));
            driver->Commit(pathOf("a.rtf"));
            EXPECT_TRUE(bytesOf("a.rtf") == whole);
        });
    EXPECT_GE(runs, 20);
}

TEST_F(FailingFiles, LeaveAStyleSheetLoadedOrEmpty) {
    Ref<CRtfDoc> document;
    failEachCall([&] { document = CRtfDoc::create(); },
                 [&] { document->setStyleSheetFile(pathOf("a.rtfss")); },
                 [&](const auto&, const Failure&) {
                     EXPECT_THAT(document->GetParagraphStyle("normal"),
                                 AnyOf(Eq("\\s100\\f0\\fs24\\cf3 "), Eq(" ")));
                     document->setStyleSheetFile(pathOf("a.rtfss"));
                     EXPECT_EQ(document->GetParagraphStyle("normal"), "\\s100\\f0\\fs24\\cf3 ");
                 });
    EXPECT_GE(runs, 20);
}

/// Commits of a document, and what they report.
class FailingCommitsOfFiles : public FailingFiles {
protected:
    void commit() {
        reported = 0;
        document->setAbsorbedErrorObserver([this](const AbsorbedError&) { ++reported; });
        try {
            document->Commit(pathOf("a.rtf"));
        } catch (const RtfError&) {
            ++reported;
        }
    }

    Ref<CRtfDoc> document = filledDocument();
    int reported = 0;
};

TEST_F(FailingCommitsOfFiles, LeaveANewDocumentWholeOrAbsent) {
    failEachCall([&] { files::remove(folder / "a.rtf"); }, [&] { commit(); },
                 [&](const auto&, const Failure& failure) {
                     if (reported == 0) {
                         EXPECT_TRUE(bytesOf("a.rtf") == whole);
                     } else if (!failure.isForGood) {
                         EXPECT_TRUE(bytesOf("a.rtf") == std::nullopt);
                     }
                     commit();
                     EXPECT_TRUE(bytesOf("a.rtf") == whole);
                 });
    EXPECT_GE(runs, 18);
}

TEST_F(FailingCommitsOfFiles, KeepTheOlderDocumentUntilItIsRemoved) {
    // Longer than the new one: none of it may remain after that.
    const std::string older(whole.size() + 100, 'o');
    failEachCall([&] { write("a.rtf", older); }, [&] { commit(); },
                 [&](const std::vector<std::string>& calls, const Failure& failure) {
                     const auto bytes = bytesOf("a.rtf");
                     const bool wasRemoved = std::find(calls.begin(), calls.end() - 1,
                                                       "DeleteFileW") != calls.end() - 1;
                     if (reported == 0) {
                         EXPECT_TRUE(bytes == whole);
                     } else if (!wasRemoved) {
                         EXPECT_TRUE(bytes == older);
                     } else if (!failure.isForGood) {
                         EXPECT_TRUE(bytes == std::nullopt);
                     }
                     commit();
                     EXPECT_TRUE(bytesOf("a.rtf") == whole);
                 });
    EXPECT_GE(runs, 20);
}

/// The command's jobs on the folder.
class FailingJobsOfFiles : public FailingFiles {
protected:
    FailingJobsOfFiles() {
        options.descriptions = {pathOf("a.rtfspec")};
        options.styleSheet = pathOf("a.rtfss");
    }

    auto teller() {
        reported.clear();
        return [this](const cli::ReportedError& diagnostic) { reported.push_back(diagnostic); };
    }

    void render() { status = cli::RenderJob(options, {teller()}).run(); }
    void format() {
        cli::FormatOptions formatted;
        formatted.files = {pathOf("a.rtfspec")};
        status = cli::FormatJob(
                     formatted, [](const std::string&, TextEncoding) {}, teller())
                     .run();
    }

    /// That the job did all, or nothing and says so; and that nothing unfinished is there unless it
    /// cannot be removed.
    void expectWholeOrNothing(const std::optional<std::string>& done,
                              const std::optional<std::string>& undone, const char* name,
                              const Failure& failure) {
        if (status == cli::ExitStatus::Success) {
            EXPECT_THAT(reported, IsEmpty());
            EXPECT_TRUE(bytesOf(name) == done);
        } else {
            EXPECT_EQ(status, cli::ExitStatus::Failure);
            EXPECT_THAT(reported, SizeIs(1));
            EXPECT_TRUE(bytesOf(name) == undone);
        }
        for (const files::path& file : files::directory_iterator(folder)) {
            const bool isUnfinished = file.extension() == ".tmp";
            EXPECT_FALSE(isUnfinished && !failure.isForGood) << file;
            if (isUnfinished) {
                files::remove(file);
            }
        }
    }

    cli::RenderOptions options;
    std::vector<cli::ReportedError> reported;
    cli::ExitStatus status = cli::ExitStatus::Success;
};

TEST_F(FailingJobsOfFiles, LeaveANewDocumentWholeOrAbsent) {
    failEachCall([&] { files::remove(folder / "a.rtf"); }, [&] { render(); },
                 [&](const auto&, const Failure& failure) {
                     expectWholeOrNothing(whole, std::nullopt, "a.rtf", failure);
                 });
    EXPECT_GE(runs, 50);
}

TEST_F(FailingJobsOfFiles, KeepTheOlderDocumentUntilTheNewOneIsWhole) {
    const std::string older(whole.size() + 100, 'o');
    failEachCall([&] { write("a.rtf", older); }, [&] { render(); },
                 [&](const auto&, const Failure& failure) {
                     expectWholeOrNothing(whole, older, "a.rtf", failure);
                 });
    EXPECT_GE(runs, 50);
}

TEST_F(FailingJobsOfFiles, KeepADescriptionUntilItsCanonicalFormIsWhole) {
    format();
    const std::string formatted = *bytesOf("a.rtfspec");
    ASSERT_NE(formatted, description);
    failEachCall([&] { write("a.rtfspec", description); }, [&] { format(); },
                 [&](const auto&, const Failure& failure) {
                     expectWholeOrNothing(formatted, description, "a.rtfspec", failure);
                 });
    EXPECT_GE(runs, 40);
}

}  // namespace
}  // namespace quorvane::host
