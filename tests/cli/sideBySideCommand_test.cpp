// quorvane render -j, as a whole process.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/ProgramTest.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/randomRenderings.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::AnyOf;

class SideBySideCommand : public ProgramTest {
protected:
    SideBySideCommand() : ProgramTest({"render"}) {}

    void expectSameResult(const ProgramResult& result, const ProgramResult& inTurn,
                          const std::string& what) {
        EXPECT_EQ(result.status, inTurn.status) << what;
        EXPECT_EQ(result.output, inTurn.output) << what;
        EXPECT_EQ(result.errors, inTurn.errors) << what;
    }

    /// Writes so many good descriptions and returns their names.
    std::vector<std::string> writeDescriptions(int count) {
        std::vector<std::string> names;
        for (int i = 0; i < count; ++i) {
            names.push_back("d" + std::to_string(i) + ".rtfspec");
            folder.write(names.back(), descriptionOf("Text " + std::to_string(i)));
        }
        return names;
    }
};

std::vector<std::string> with(const std::string& option, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), option);
    return arguments;
}

TEST_F(SideBySideCommand, WritesAndReportsWhatOneAfterTheOtherDoes) {
    for (unsigned seed = 100; seed < 112; ++seed) {
        start.errorsOnTerminal = seed % 4 == 0;
        const auto resultOf = [&](const std::string& jobs) {
            std::vector<std::string> arguments = RandomRendering(seed).prepare(folder);
            arguments.insert(arguments.begin() + static_cast<std::ptrdiff_t>(arguments.size() / 2),
                             "-");
            start.input = descriptionOf("From standard input");
            return run(with(jobs, arguments));
        };
        const ProgramResult inTurn = resultOf("-j1");
        const auto files = filesBelow(folder.path());
        for (const char* jobs : {"-j2", "-j7", "-j0"}) {
            const std::string what = std::string(jobs) + ", seed " + std::to_string(seed);
            expectSameResult(resultOf(jobs), inTurn, what);
            EXPECT_EQ(filesBelow(folder.path()), files) << what;
        }
    }
}

// The address sanitizer needs more addresses than are left here.
#if !defined(__SANITIZE_ADDRESS__)
TEST_F(SideBySideCommand, DoesAllOnOneThreadWhereTheSystemAllowsNoMore) {
    const std::vector<std::string> names = writeDescriptions(50);
    start.prepare = [] {
        constexpr rlim_t megabyte = 1024 * 1024;
        // Each thread would need a stack of this size.
        const rlimit stack{1000 * megabyte, RLIM_INFINITY};
        const rlimit addresses{500 * megabyte, 500 * megabyte};
        ::setrlimit(RLIMIT_STACK, &stack);
        ::setrlimit(RLIMIT_AS, &addresses);
    };
    const ProgramResult result = run(with("-j4", names));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(folder.has("d0.rtf"));
    EXPECT_TRUE(folder.has("d49.rtf"));
}
#endif

/// Lets another process send the signal to this one after a time.
void signalAfter(std::chrono::microseconds time, int number) {
    const pid_t process = ::getpid();
    if (::fork() == 0) {
        ::usleep(static_cast<useconds_t>(time.count()));
        ::kill(process, number);
        ::_exit(0);
    }
}

TEST_F(SideBySideCommand, LeavesWholeDocumentsOnlyWhereverASignalEndsIt) {
    const std::vector<std::string> names = writeDescriptions(60);
    const auto before = std::chrono::steady_clock::now();
    ASSERT_EQ(run(with("-j4", names)).status, 0);
    const auto whole = filesBelow(folder.path());
    const auto time = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - before);
    constexpr int rounds = 20;
    int interruptions = 0;
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < 60; ++i) {
            const std::string document = "d" + std::to_string(i) + ".rtf";
            if (i % 2 == 0) {
                folder.write(document, "older");
            } else {
                std::filesystem::remove(folder / document);
            }
        }
        const int number = round % 2 == 0 ? SIGINT : SIGTERM;
        start.prepare = [&] { signalAfter(time * round / rounds, number); };

        const ProgramResult result = run(with("-j4", names));

        interruptions += result.status == -1 ? 1 : 0;
        EXPECT_EQ(result.errors, "");
        for (const auto& [name, bytes] : filesBelow(folder.path())) {
            ASSERT_TRUE(whole.contains(name)) << name;
            EXPECT_THAT(bytes, AnyOf(whole.at(name), "older")) << name;
        }
    }
    EXPECT_GT(interruptions, 0);
}

}  // namespace
}  // namespace quorvane::cli
