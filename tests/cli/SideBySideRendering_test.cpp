#include "cli/SideBySideRendering.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <functional>
#include <map>
#include <new>
#include <string>
#include <thread>
#include <variant>
#include <vector>

#include "cli/RenderJob.h"
#include "cli/UsageError.h"
#include "cli/commandLine.h"
#include "cli/diagnosticText.h"
#include "cli/errorJson.h"
#include "cli/errorText.h"
#include "cli/tasksInOrder.h"
#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/randomRenderings.h"
#include "tests/support/FakePlatform.h"

namespace quorvane::cli {
namespace {

using testing::HasSubstr;

/// Receives everything as text, the progress too.
RenderReceivers receiversOfText(std::string& reported, ErrorForm form) {
    RenderReceivers receivers;
    receivers.progress = [&](std::size_t number, std::size_t count, const std::string& name) {
        reported += std::to_string(number) + "/" + std::to_string(count) + " " + name + "\n";
    };
    if (form == ErrorForm::Json) {
        receivers.report = [&](const ReportedError& error) { reported += errorJson(error) + "\n"; };
        return receivers;
    }
    receivers.report = [&](const ReportedError& error) { reported += errorText(error) + "\n"; };
    receivers.locate = [&](const std::string& file, const Diagnostic& diagnostic,
                           const DiagnosticExcerpt& excerpt) {
        reported += diagnosticText(file, diagnostic, excerpt, Colors::Off);
    };
    return receivers;
}

/// What a job comes to.
struct Outcome {
    std::string result;
    std::string reported;
    std::map<std::string, std::string> files;
};

class SideBySideJobs : public testing::Test {
protected:
    Outcome outcomeOf(unsigned seed, std::size_t jobs) {
        const std::vector<std::string> arguments = RandomRendering(seed).prepare(folder);
        RenderOptions options = optionsOf(arguments);
        options.jobs = jobs;
        Outcome outcome;
        try {
            const RenderReceivers receivers =
                receiversOfText(outcome.reported, options.diagnostics);
            outcome.result =
                "status " + std::to_string(static_cast<int>(RenderJob(options, receivers).run()));
        } catch (const UsageError& error) {
            outcome.result = error.what();
        }
        outcome.files = filesBelow(folder.path());
        return outcome;
    }

    static RenderOptions optionsOf(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "render");
        return std::get<RenderOptions>(parseCommandLine(arguments));
    }

    TemporaryFolder folder;
};

TEST_F(SideBySideJobs, ComesToTheSameAsOneAfterTheOther) {
    std::map<std::string, int> results;
    for (unsigned seed = 0; seed < 25; ++seed) {
        const Outcome inTurn = outcomeOf(seed, 1);
        ++results[inTurn.result];
        for (const std::size_t jobs : {2U, 7U}) {
            const Outcome sideBySide = outcomeOf(seed, jobs);
            EXPECT_EQ(sideBySide.result, inTurn.result) << "seed " << seed;
            EXPECT_EQ(sideBySide.reported, inTurn.reported) << "seed " << seed;
            EXPECT_EQ(sideBySide.files, inTurn.files) << "seed " << seed;
        }
    }
    EXPECT_GE(results["status 1"], 3);
    EXPECT_GE(results["status 2"], 3);
}

TEST_F(SideBySideJobs, ReportsAStyleSheetOnce) {
    RenderOptions options;
    options.jobs = 2;
    options.styleSheet = folder.write("style.rtfss", badStyleSheet);
    for (const char* name : {"a.rtfspec", "b.rtfspec", "c.rtfspec", "d.rtfspec"}) {
        options.descriptions.push_back(folder.write(name, descriptionOf("Text")));
    }
    std::string reported;
    RenderReceivers receivers = receiversOfText(reported, ErrorForm::Text);
    receivers.progress = {};
    EXPECT_EQ(RenderJob(options, receivers).run(), ExitStatus::ContentErrors);
    EXPECT_THAT(reported, HasSubstr("style.rtfss:1:2: error: "));
    EXPECT_EQ(reported.find("style.rtfss"), reported.rfind("style.rtfss"));
}

/// Files of the system, and what is done before one is read.
class WatchedPlatform : public FakePlatform {
public:
    std::string readFile(const std::string& path) override {
        beforeReading(path);
        return systemPlatform().readFile(path);
    }

    std::function<void(const std::string& path)> beforeReading;
};

TEST_F(SideBySideJobs, DoesNotRunAheadOfADescriptionThatTakesLong) {
    RenderOptions options;
    options.jobs = 3;
    for (int i = 0; i < 100; ++i) {
        options.descriptions.push_back(
            folder.write("d" + std::to_string(i) + ".rtfspec", descriptionWithBadColor));
    }
    std::atomic<std::size_t> begun = 0;
    std::atomic<std::size_t> reported = 0;
    std::atomic<std::size_t> most = 0;
    WatchedPlatform platform;
    platform.beforeReading = [&](const std::string& path) {
        const std::size_t underWay = ++begun - reported;
        std::size_t before = most;
        while (underWay > before && !most.compare_exchange_weak(before, underWay)) {
        }
        while (path == options.descriptions.front() && begun < tasksUnderWay(options.jobs)) {
            std::this_thread::yield();
        }
    };

    RenderJob(options, {[&](const ReportedError&) { ++reported; }}, platform).run();

    EXPECT_EQ(reported, 100U);
    EXPECT_EQ(most, tasksUnderWay(options.jobs));
}

TEST_F(SideBySideJobs, ReportsThatMemoryDoesNotSufficeAndGoesOnWithTheNext) {
    RenderOptions options;
    options.jobs = 2;
    for (const char* name : {"a.rtfspec", "b.rtfspec", "c.rtfspec"}) {
        options.descriptions.push_back(folder.write(name, descriptionOf("Text")));
    }
    WatchedPlatform platform;
    platform.beforeReading = [&](const std::string& path) {
        if (path == options.descriptions[1]) {
            throw std::bad_alloc();
        }
    };
    std::string reported;
    RenderReceivers receivers = receiversOfText(reported, ErrorForm::Text);
    receivers.progress = {};
    EXPECT_EQ(RenderJob(options, receivers, platform).run(), ExitStatus::Failure);
    EXPECT_EQ(reported, options.descriptions[1] + ": error: Out of memory\n");
    EXPECT_TRUE(folder.has("a.rtf"));
    EXPECT_FALSE(folder.has("b.rtf"));
    EXPECT_TRUE(folder.has("c.rtf"));
}

TEST_F(SideBySideJobs, EndsWhenNothingCanBeReported) {
    RenderOptions options;
    options.jobs = 2;
    for (const char* name : {"a.rtfspec", "b.rtfspec", "c.rtfspec"}) {
        options.descriptions.push_back(folder.write(name, descriptionWithBadColor));
    }
    RenderJob job(options, {[](const ReportedError&) { throw std::bad_alloc(); }});
    EXPECT_THROW(job.run(), std::bad_alloc);
}

}  // namespace
}  // namespace quorvane::cli
