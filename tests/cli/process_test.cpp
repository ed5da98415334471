#include "cli/process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/values/RtfError.h"
#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/WithoutPrivileges.h"

namespace quorvane::cli {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

/// The error that the action raises; its number is 0 when it raises none.
RtfError errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RtfError& error) {
        return error;
    }
    return RtfError(0, "no error");
}

std::unique_ptr<OutputFile> openReplacement(const std::string& path) {
    return quorvane::openReplacement(path, unfinishedFileWatch());
}

void replace(const std::string& path, std::string_view bytes) {
    const auto file = openReplacement(path);
    file->write(bytes);
    file->close();
}

mode_t permissionsOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
}

TEST(Replacement, IsANewFile) {
    const TemporaryFolder folder;
    replace(folder / "a.rtf", "new");
    EXPECT_EQ(folder.read("a.rtf"), "new");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf"));
}

TEST(Replacement, HoldsAllThatIsWrittenInTurn) {
    const TemporaryFolder folder;
    const auto file = openReplacement(folder / "a.rtf");
    file->write("one ");
    file->write("");
    file->write(std::string("t\0wo\r\n", 6));
    file->close();
    EXPECT_EQ(folder.read("a.rtf"), std::string("one t\0wo\r\n", 10));
}

TEST(Replacement, TakesThePlaceOfALongerFile) {
    const TemporaryFolder folder;
    folder.write("a.rtf", "a longer one");
    replace(folder / "a.rtf", "new");
    EXPECT_EQ(folder.read("a.rtf"), "new");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf"));
}

TEST(Replacement, LeavesTheOldFileUntilItIsClosed) {
    const TemporaryFolder folder;
    folder.write("a.rtf", "old");
    const auto file = openReplacement(folder / "a.rtf");
    file->write("new");
    EXPECT_EQ(folder.read("a.rtf"), "old");
    file->close();
    EXPECT_EQ(folder.read("a.rtf"), "new");
}

TEST(Replacement, IsNothingWhenItIsNotClosed) {
    const TemporaryFolder folder;
    folder.write("a.rtf", "old");
    openReplacement(folder / "a.rtf")->write("new");
    openReplacement(folder / "b.rtf")->write("new");
    EXPECT_EQ(folder.read("a.rtf"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf"));
}

TEST(Replacement, PassesOverFilesThatAreInItsWay) {
    const TemporaryFolder folder;
    const std::string name = ".quorvane-" + std::to_string(::getpid()) + "-1.tmp";
    folder.write(name, "of another");
    replace(folder / "a.rtf", "new");
    EXPECT_EQ(folder.read("a.rtf"), "new");
    EXPECT_EQ(folder.read(name), "of another");
}

TEST(Replacement, KeepsThePermissionsOfTheOldFile) {
    const TemporaryFolder folder;
    ::chmod(folder.write("a.rtf", "old").c_str(), 0640);
    replace(folder / "a.rtf", "new");
    EXPECT_EQ(permissionsOf(folder / "a.rtf"), 0640U);
}

TEST(Replacement, OfNothingHasTheUsualPermissions) {
    const TemporaryFolder folder;
    const mode_t before = ::umask(027);
    replace(folder / "a.rtf", "new");
    ::umask(before);
    EXPECT_EQ(permissionsOf(folder / "a.rtf"), 0640U);
}

TEST(Replacement, FollowsALink) {
    const TemporaryFolder folder;
    folder.write("b.rtf", "old");
    fs::create_symlink("b.rtf", folder / "a.rtf");
    replace(folder / "a.rtf", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "a.rtf"));
    EXPECT_EQ(folder.read("b.rtf"), "new");
}

TEST(Replacement, FollowsALinkToAFileThatIsNotThereYet) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/b.rtf", folder / "a.rtf");
    replace(folder / "a.rtf", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "a.rtf"));
    EXPECT_EQ(folder.read("sub/b.rtf"), "new");
}

TEST(Replacement, OfADeviceWritesToTheDevice) {
    replace("/dev/null", "new");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(Replacement, OfAPipeWritesToThePipe) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] { received = folder.read("pipe"); });
    replace(folder / "pipe", "new");
    reader.join();
    EXPECT_EQ(received, "new");
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST(Replacement, OfAFullDeviceIsError61) {
    const RtfError error = errorOf([] { replace("/dev/full", "new"); });
    EXPECT_EQ(error.number, 61);
    ASSERT_TRUE(error.cause);
    EXPECT_EQ(error.cause->description, "No space left on device");
}

TEST(Replacement, OfAFolderIsError75) {
    const TemporaryFolder folder;
    const RtfError error = errorOf([&] { openReplacement(folder.path().string()); });
    EXPECT_EQ(error.number, 75);
    ASSERT_TRUE(error.cause);
    EXPECT_EQ(error.cause->description, "Is a directory");
}

TEST(Replacement, InAMissingFolderIsError76) {
    const TemporaryFolder folder;
    const RtfError error = errorOf([&] { openReplacement(folder / "missing/a.rtf"); });
    EXPECT_EQ(error.number, 76);
    ASSERT_TRUE(error.cause);
    EXPECT_EQ(error.cause->description, "No such file or directory");
}

TEST(Replacement, BelowAFileIsError76) {
    const TemporaryFolder folder;
    folder.write("a", "");
    EXPECT_EQ(errorOf([&] { openReplacement(folder / "a/b.rtf"); }).number, 76);
}

TEST(Replacement, OfALinkThatLeadsInACircleIsError57) {
    const TemporaryFolder folder;
    fs::create_symlink("a", folder / "a");
    EXPECT_EQ(errorOf([&] { openReplacement(folder / "a"); }).number, 57);
}

TEST(Replacement, WithTooLongANameIsError57AndLeavesNothingBehind) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { replace(folder / std::string(300, 'a'), "new"); }).number, 57);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(Replacement, MayHaveTheLongestNameThatThereIs) {
    const TemporaryFolder folder;
    replace(folder / std::string(255, 'a'), "new");
    EXPECT_THAT(folder.names(), ElementsAre(std::string(255, 'a')));
}

TEST(Replacement, OfAFileThatMayNotBeWrittenIsError75) {
    const TemporaryFolder folder;
    fs::permissions(folder.path(), fs::perms::all);
    ::chmod(folder.write("a.rtf", "old").c_str(), 0444);
    const WithoutPrivileges guard;
    const RtfError error = errorOf([&] { openReplacement(folder / "a.rtf"); });
    EXPECT_EQ(error.number, 75);
    ASSERT_TRUE(error.cause);
    EXPECT_EQ(error.cause->description, "Permission denied");
}

TEST(Replacement, InAFolderThatMayNotBeWrittenIsError75) {
    const TemporaryFolder folder;
    ::chmod(folder.path().c_str(), 0555);
    const WithoutPrivileges guard;
    EXPECT_EQ(errorOf([&] { openReplacement(folder / "a.rtf"); }).number, 75);
}

TEST(Replacement, OfAFileThatTurnsIntoAFolderFailsAndLeavesNothingBehind) {
    const TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] {
                  const auto file = openReplacement(folder / "a.rtf");
                  fs::create_directory(folder / "a.rtf");
                  file->close();
              }).number,
              75);
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf"));
}

TEST(ReplacementDeathTest, IsTakenAlongByASignalThatEndsTheProcess) {
    for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) {
        const TemporaryFolder folder;
        folder.write("a.rtf", "old");
        EXPECT_EXIT(
            {
                prepareProcess();
                const auto file = openReplacement(folder / "a.rtf");
                file->write("new");
                std::raise(number);
            },
            testing::KilledBySignal(number), "");
        EXPECT_THAT(folder.names(), ElementsAre("a.rtf"));
        EXPECT_EQ(folder.read("a.rtf"), "old");
    }
}

TEST(ReplacementDeathTest, IsTakenAlongWithThoseOfOtherThreads) {
    const TemporaryFolder folder;
    EXPECT_EXIT(
        {
            prepareProcess();
            const auto first = openReplacement(folder / "a.rtf");
            std::unique_ptr<OutputFile> second;
            std::thread([&] { second = openReplacement(folder / "b.rtf"); }).join();
            const auto third = openReplacement(folder / "c.rtf");
            second->close();
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_THAT(folder.names(), ElementsAre("b.rtf"));
}

TEST(ReplacementDeathTest, IsMadeAndNotedBeforeASignalEndsTheProcess) {
    const TemporaryFolder folder;
    EXPECT_EXIT(
        {
            prepareProcess();
            unfinishedFileWatch().hold();
            std::raise(SIGTERM);
            const std::string path = folder.write("unfinished", "");
            UnfinishedPath unfinished{path};
            unfinishedFileWatch().begin(unfinished);
            folder.write("other", "");
            unfinishedFileWatch().resume();
            std::exit(5);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_THAT(folder.names(), ElementsAre("other"));
}

TEST(ReplacementDeathTest, IsNotBegunByAnotherThreadWhileTheProcessEnds) {
    const TemporaryFolder folder;
    EXPECT_EXIT(
        {
            prepareProcess();
            unfinishedFileWatch().hold();
            std::raise(SIGTERM);
            std::thread([&] { replace(folder / "a.rtf", "new"); }).detach();
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            unfinishedFileWatch().resume();
            std::exit(5);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(ReplacementDeathTest, StaysWhenASignalComesAfterIt) {
    const TemporaryFolder folder;
    EXPECT_EXIT(
        {
            prepareProcess();
            replace(folder / "a.rtf", "new");
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EQ(folder.read("a.rtf"), "new");
}

TEST(ProcessDeathTest, GoesOnWhenItsStarterIgnoresASignal) {
    EXPECT_EXIT(
        {
            std::signal(SIGHUP, SIG_IGN);
            prepareProcess();
            std::raise(SIGHUP);
            std::exit(5);
        },
        testing::ExitedWithCode(5), "");
}

/// Ends the process with the number of the error.
[[noreturn]] void replaceByTooLargeAFile(const std::string& path) {
    constexpr rlim_t largestFile = 1000;
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = largestFile;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    prepareProcess();
    std::exit(errorOf([&] { replace(path, std::string(largestFile + 1, 'x')); }).number);
}

TEST(ReplacementDeathTest, OfTooLargeAFileIsError61AndKeepsTheOldOne) {
    const TemporaryFolder folder;
    folder.write("a.rtf", "old");
    EXPECT_EXIT(replaceByTooLargeAFile(folder / "a.rtf"), testing::ExitedWithCode(61), "");
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf"));
    EXPECT_EQ(folder.read("a.rtf"), "old");
}

}  // namespace
}  // namespace quorvane::cli
