// Every call of the system that concerns a file fails once, and then for good, in everything that
// reads or writes files: a document is whole or absent, an older one stays for as long as it can,
// what failed is reported, and all works again afterwards. Only what cannot be removed any more,
// since the disk is gone for good, may stay in part.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/CheckJob.h"
#include "cli/FormatJob.h"
#include "cli/RenderJob.h"
#include "cli/UsageError.h"
#include "quorvane/compose/Document.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/driverErrors.h"
#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/descriptions.h"
#include "tests/failingFiles/failingFileCalls.h"

namespace quorvane {
namespace {

using testing::AnyOf;
using testing::Eq;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;

struct Failure {
    Fault fault;
    int error;
};

/// One call that fails, and a disk that goes, gets full or is locked.
const std::vector<Failure> failures = {{Fault::Once, EIO},
                                       {Fault::Once, ENOSPC},
                                       {Fault::FromThenOn, EIO},
                                       {Fault::FromThenOn, ENOSPC},
                                       {Fault::FromThenOn, EACCES}};

class FailingCalls : public testing::Test {
protected:
    FailingCalls() {
        folder.write("a.rtfspec", description);
        folder.write("a.rtfss", cli::goodStyleSheet);
        const Ref<CRtfDoc> document = filledDocument();
        document->Commit(folder / "whole");
        whole = folder.read("whole");
        std::filesystem::remove(folder / "whole");
        folder.acceptBrokenDocuments();  // this test's own business
    }

    Ref<CRtfDoc> filledDocument() const {
        const Ref<CRtfDriver> driver = CRtfDriver::create();
        driver->setStyleSheetFile(folder / "a.rtfss");
        driver->ParseFile(folder / "a.rtfspec");
        return driver->RtfObject();
    }

    /// Lets each call of the action fail in each way, in a run of its own between `prepare` and
    /// `check`, which is given the calls up to the first that failed.
    void failEachCall(const std::function<void()>& prepare, const std::function<void()>& action,
                      const std::function<void(const std::vector<std::string>&, Fault)>& check) {
        for (const Failure& failure : failures) {
            for (std::size_t number = 0;; ++number) {
                prepare();
                std::vector<std::string> calls =
                    withFailingCall(number, failure.fault, failure.error, action);
                if (calls.size() <= number) {
                    break;
                }
                calls.resize(number + 1);
                SCOPED_TRACE(calls.back() + " fails with " + std::to_string(failure.error) +
                             " as call " + std::to_string(number));
                check(calls, failure.fault);
                ++runs;
            }
        }
    }

    /// The file's bytes; nothing when it is not there.
    std::optional<std::string> bytesOf(const std::string& name) const {
        return folder.has(name) ? std::optional(folder.read(name)) : std::nullopt;
    }

    static bool wasRemoved(const std::vector<std::string>& calls) {
        return std::find(calls.begin(), calls.end() - 1, "unlink") != calls.end() - 1;
    }

    const std::string description = cli::descriptionOf(std::string(3000, 'x'));
    cli::TemporaryFolder folder;
    std::string whole;
    int runs = 0;
};

TEST_F(FailingCalls, LeaveADescriptionReadOrReportedAsUnreachable) {
    Ref<CRtfDriver> driver;
    std::optional<RtfError> error;
    failEachCall(
        [&] {
            driver = CRtfDriver::create();
            driver->setStyleSheetFile(folder / "a.rtfss");
            error.reset();
        },
        [&] {
            try {
                driver->ParseFile(folder / "a.rtfspec");
            } catch (const RtfError& raised) {
                error = raised;
            }
        },
        [&](const auto&, Fault) {
            EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), error ? 0 : 1);
            if (error) {
                EXPECT_EQ(errorLevel(error->number), eWrongPath);
                ASSERT_NE(error->cause, nullptr);
                EXPECT_NE(error->cause->number, 0);
            }
            driver->ParseFile(folder / "a.rtfspec");
            driver->Commit(folder / "a.rtf");
            EXPECT_EQ(folder.read("a.rtf"), whole);
        });
    EXPECT_GE(runs, 20);
}

TEST_F(FailingCalls, LeaveAStyleSheetLoadedOrEmpty) {
    Ref<CRtfDoc> document;
    failEachCall([&] { document = CRtfDoc::create(); },
                 [&] { document->setStyleSheetFile(folder / "a.rtfss"); },
                 [&](const auto&, Fault) {
                     EXPECT_THAT(document->GetParagraphStyle("normal"),
                                 AnyOf(Eq("\\s100\\f0\\fs24\\cf3 "), Eq(" ")));
                     document->setStyleSheetFile(folder / "a.rtfss");
                     EXPECT_EQ(document->GetParagraphStyle("normal"), "\\s100\\f0\\fs24\\cf3 ");
                 });
    EXPECT_GE(runs, 20);
}

TEST_F(FailingCalls, LeaveAFileToBeFoundByAPattern) {
    bool isFound = false;
    failEachCall([] {}, [&] { isFound = systemPlatform().fileExists(folder / "*.rtfs?"); },
                 [&](const std::vector<std::string>& calls, Fault fault) {
                     // A folder that cannot be read hides its files; the rest is no obstacle.
                     if (fault == Fault::Once) {
                         EXPECT_EQ(isFound, calls.back() == "lstat" || calls.back() == "close");
                     }
                     EXPECT_TRUE(systemPlatform().fileExists(folder / "*.rtfs?"));
                 });
    EXPECT_GE(runs, 15);
}

/// Commits of a document, and what they report.
class FailingCommits : public FailingCalls {
protected:
    void commit() {
        reported = 0;
        document->setAbsorbedErrorObserver([this](const AbsorbedError&) { ++reported; });
        try {
            document->Commit(folder / "a.rtf");
        } catch (const RtfError&) {
            ++reported;
        }
    }

    Ref<CRtfDoc> document = filledDocument();
    int reported = 0;
};

TEST_F(FailingCommits, LeaveANewDocumentWholeOrAbsent) {
    failEachCall([&] { std::filesystem::remove(folder / "a.rtf"); }, [&] { commit(); },
                 [&](const auto&, Fault fault) {
                     if (reported == 0) {
                         EXPECT_EQ(bytesOf("a.rtf"), whole);
                     } else if (fault == Fault::Once) {
                         EXPECT_FALSE(folder.has("a.rtf"));
                     }
                     commit();
                     EXPECT_EQ(folder.read("a.rtf"), whole);
                 });
    EXPECT_GE(runs, 18);
}

TEST_F(FailingCommits, KeepTheOlderDocumentUntilItIsRemoved) {
    // Longer than the new one: none of it may remain after that.
    const std::string older(whole.size() + 100, 'o');
    failEachCall([&] { folder.write("a.rtf", older); }, [&] { commit(); },
                 [&](const std::vector<std::string>& calls, Fault fault) {
                     const auto bytes = bytesOf("a.rtf");
                     if (reported == 0) {
                         EXPECT_EQ(bytes, whole);
                     } else if (!wasRemoved(calls)) {
                         EXPECT_EQ(bytes, older);
                     } else if (fault == Fault::Once) {
                         EXPECT_EQ(bytes, std::nullopt);
                     }
                     commit();
                     EXPECT_EQ(folder.read("a.rtf"), whole);
                 });
    EXPECT_GE(runs, 25);
}

/// The command's jobs on the folder.
class FailingJobs : public FailingCalls {
protected:
    FailingJobs() {
        options.descriptions = {folder / "a.rtfspec"};
        options.styleSheet = folder / "a.rtfss";
    }

    auto teller() {
        reported.clear();
        return [this](const cli::ReportedError& diagnostic) { reported.push_back(diagnostic); };
    }

    void render() { status = cli::RenderJob(options, {teller()}).run(); }
    void format() {
        cli::FormatOptions formatted;
        formatted.files = {folder / "a.rtfspec"};
        status = cli::FormatJob(
                     formatted, [](const std::string&, TextEncoding) {}, teller())
                     .run();
    }

    /// That the job did all, or nothing and says so; and that nothing unfinished is there unless it
    /// cannot be removed.
    void expectWholeOrNothing(const std::optional<std::string>& done,
                              const std::optional<std::string>& undone, const std::string& name,
                              Fault fault) {
        if (status == cli::ExitStatus::Success) {
            EXPECT_THAT(reported, IsEmpty());
            EXPECT_EQ(bytesOf(name), done);
        } else {
            EXPECT_EQ(status, cli::ExitStatus::Failure);
            EXPECT_THAT(reported, SizeIs(1));
            EXPECT_EQ(bytesOf(name), undone);
        }
        for (const std::string& file : folder.names()) {
            const bool isUnfinished = file.ends_with(".tmp");
            EXPECT_FALSE(isUnfinished && fault == Fault::Once) << file;
            if (isUnfinished) {
                std::filesystem::remove(folder / file);
            }
        }
    }

    cli::RenderOptions options;
    std::vector<cli::ReportedError> reported;
    cli::ExitStatus status = cli::ExitStatus::Success;
};

TEST_F(FailingJobs, LeaveANewDocumentWholeOrAbsent) {
    failEachCall([&] { std::filesystem::remove(folder / "a.rtf"); }, [&] { render(); },
                 [&](const auto&, Fault fault) {
                     expectWholeOrNothing(whole, std::nullopt, "a.rtf", fault);
                 });
    EXPECT_GE(runs, 50);
}

TEST_F(FailingJobs, KeepTheOlderDocumentUntilTheNewOneIsWhole) {
    const std::string older(whole.size() + 100, 'o');
    failEachCall(
        [&] { folder.write("a.rtf", older); }, [&] { render(); },
        [&](const auto&, Fault fault) { expectWholeOrNothing(whole, older, "a.rtf", fault); });
    EXPECT_GE(runs, 60);
}

TEST_F(FailingJobs, KeepADescriptionUntilItsCanonicalFormIsWhole) {
    format();
    const std::string formatted = folder.read("a.rtfspec");
    ASSERT_NE(formatted, description);
    failEachCall([&] { folder.write("a.rtfspec", description); }, [&] { format(); },
                 [&](const auto&, Fault fault) {
                     expectWholeOrNothing(formatted, description, "a.rtfspec", fault);
                 });
    EXPECT_GE(runs, 40);
}

TEST_F(FailingJobs, KeepALinkAndReplaceWhatItLeadsTo) {
    const std::string older(whole.size() + 100, 'o');
    const auto prepare = [&] {
        folder.write("target.rtf", older);
        std::filesystem::remove(folder / "a.rtf");
        std::filesystem::create_symlink("target.rtf", folder / "a.rtf");
    };
    failEachCall(
        prepare, [&] { render(); },
        [&](const auto&, Fault fault) {
            expectWholeOrNothing(whole, older, "target.rtf", fault);
            EXPECT_TRUE(std::filesystem::is_symlink(folder / "a.rtf"));
        });
    EXPECT_GE(runs, 60);
}

TEST_F(FailingJobs, KeepADescriptionThatTheDocumentWouldReplace) {
    std::filesystem::create_directory(folder / "sub");
    std::filesystem::create_symlink("a.rtfspec", folder / "a.rtf");
    const std::string other = cli::descriptionOf("Another");
    folder.write("other.rtf", other);
    for (const char* name : {"a.rtfspec", "a.rtf", "sub/../a.rtfspec", "other.rtf"}) {
        options.output = folder / name;
        const auto tryToRender = [&] {
            status = cli::ExitStatus::Failure;
            try {
                render();
            } catch (const cli::UsageError&) {
                reported.clear();
            }
        };
        failEachCall([&] { folder.write("a.rtfspec", description); }, tryToRender,
                     [&](const auto&, Fault) {
                         EXPECT_EQ(status, cli::ExitStatus::Failure);
                         EXPECT_EQ(bytesOf("a.rtfspec"), description) << name;
                         EXPECT_EQ(bytesOf("other.rtf"), other) << name;
                     });
    }
    EXPECT_GE(runs, 10);
}

TEST_F(FailingJobs, ReportAFolderThatCannotBeFound) {
    options.outputFolder = folder / "sub";
    const auto prepare = [&] {
        std::filesystem::remove_all(folder / "sub");
        std::filesystem::create_directory(folder / "sub");
    };
    failEachCall(
        prepare, [&] { render(); },
        [&](const auto&, Fault fault) {
            expectWholeOrNothing(whole, std::nullopt, "sub/a.rtf", fault);
        });
    EXPECT_GE(runs, 50);
}

/// The command's check of files, and all that it finds.
class FailingChecks : public FailingJobs {
protected:
    void check(const std::vector<std::string>& names) {
        cli::CheckOptions checked;
        for (const std::string& name : names) {
            checked.files.push_back(folder / name);
        }
        checked.styleSheet = options.styleSheet;
        found.clear();
        status = cli::CheckJob(
                     checked,
                     [this](const std::string& file, const Diagnostic& diagnostic,
                            const cli::FileWindow&) {
                         found.push_back(file + ": " + diagnostic.message);
                     },
                     teller())
                     .run();
    }

    /// That a file is checked as it is, or said to be unreadable.
    void expectCheckedOrTold(const std::string& name) {
        check({name});
        const std::vector<std::string> all = found;
        const cli::ExitStatus usual = status;
        ASSERT_THAT(all, Not(IsEmpty()));
        failEachCall([] {}, [&] { check({name}); },
                     [&](const auto&, Fault) {
                         if (reported.empty()) {
                             EXPECT_EQ(status, usual);
                             EXPECT_EQ(found, all);
                         } else {
                             EXPECT_EQ(status, cli::ExitStatus::Failure);
                             EXPECT_THAT(all, IsSupersetOf(found));
                         }
                     });
    }

    std::vector<std::string> found;
};

TEST_F(FailingChecks, FindEverythingInADescriptionOrReportTheFailure) {
    folder.write("b.rtfspec", cli::descriptionWithBadColor);
    expectCheckedOrTold("b.rtfspec");
    EXPECT_GE(runs, 30);
}

TEST_F(FailingChecks, FindEverythingInAStyleSheetOrReportTheFailure) {
    folder.write("b.rtfss", cli::badStyleSheet);
    expectCheckedOrTold("b.rtfss");
    EXPECT_GE(runs, 30);
}

TEST_F(FailingChecks, FindEverythingInARichTextFileOrReportTheFailure) {
    // Longer than what is read at once.
    folder.write("b.rtf", "{\\rtf1 " + std::string(std::size_t{1500} * 1024, 'x') + "}}");
    expectCheckedOrTold("b.rtf");
    EXPECT_GE(runs, 30);
}

TEST_F(FailingJobs, GoOnAfterAnInterruption) {
    int interruptions = 0;
    for (std::size_t number = 0;; ++number) {
        folder.write("a.rtf", "older");
        const std::vector<std::string> calls =
            withFailingCall(number, Fault::Once, EINTR, [&] { render(); });
        if (calls.size() <= number) {
            break;
        }
        // Only calls that can wait are interrupted.
        const std::string& name = calls[number];
        if (name == "open" || name == "read" || name == "write" || name == "close") {
            EXPECT_EQ(status, cli::ExitStatus::Success) << name;
            EXPECT_EQ(folder.read("a.rtf"), whole) << name;
            ++interruptions;
        }
    }
    EXPECT_GE(interruptions, 8);
}

TEST_F(FailingJobs, GoOnWhereTheSystemMovesOneByteAtATime) {
    const std::vector<std::string> calls =
        withFailingCall(0, Fault::ShortTransfers, 0, [&] { render(); });

    EXPECT_EQ(status, cli::ExitStatus::Success);
    EXPECT_EQ(folder.read("a.rtf"), whole);
    EXPECT_GT(calls.size(), whole.size());
}

TEST_F(FailingCommits, GoOnWhereTheSystemMovesOneByteAtATime) {
    const std::vector<std::string> calls =
        withFailingCall(0, Fault::ShortTransfers, 0, [&] { commit(); });

    EXPECT_EQ(reported, 0);
    EXPECT_EQ(folder.read("a.rtf"), whole);
    EXPECT_GT(calls.size(), whole.size());
}

class FailingSaves : public FailingCalls {
protected:
    FailingSaves() { document.addRow({std::string(100'000, 'x')}); }

    void save() {
        error.reset();
        try {
            document.save(folder / "a.rtf");
        } catch (const Error& thrown) {
            error = thrown;
        }
    }

    Document document;
    std::optional<Error> error;
};

TEST_F(FailingSaves, LeaveTheOlderFileOrTheWholeNewOneAndSayWhy) {
    const std::string bytes = document.rtf();
    failEachCall([&] { folder.write("a.rtf", "older"); }, [&] { save(); },
                 [&](const std::vector<std::string>&, Fault fault) {
                     ASSERT_EQ(bytesOf("a.rtf"), error ? "older" : bytes);
                     if (error) {
                         EXPECT_EQ(error->identifier(), "unwritable-file");
                         EXPECT_EQ(error->file(), folder / "a.rtf");
                         EXPECT_THAT(error->message(), Not(IsEmpty()));
                     }
                     if (fault == Fault::Once) {
                         EXPECT_THAT(folder.names(), SizeIs(3));
                     }
                     for (const std::string& file : folder.names()) {
                         if (!file.starts_with("a.rtf") || file.ends_with(".tmp")) {
                             std::filesystem::remove(folder / file);
                         }
                     }
                     save();
                     EXPECT_FALSE(error);
                     EXPECT_EQ(folder.read("a.rtf"), bytes);
                 });
    EXPECT_GE(runs, 20);
}

TEST_F(FailingSaves, GoOnWhereTheSystemMovesOneByteAtATime) {
    withFailingCall(0, Fault::ShortTransfers, 0, [&] { save(); });
    EXPECT_FALSE(error);
    EXPECT_EQ(folder.read("a.rtf"), document.rtf());
}

}  // namespace
}  // namespace quorvane
