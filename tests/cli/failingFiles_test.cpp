// Whatever happens to its files, the command says so and exits with 2, an older document stays, a
// new one is whole or absent, and nothing unfinished is left behind.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/descriptions.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

class FailingFiles : public testing::Test {
protected:
    FailingFiles() {
        start.folder = folder.path();
        folder.write("a.rtfspec", descriptionOf("Text"));
    }

    ProgramResult run(std::vector<std::string> arguments) {
        start.arguments = std::move(arguments);
        return runProgram(start);
    }

    void expectFailure(const ProgramResult& result, const std::string& beginning) {
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(linesOf(result.errors), SizeIs(1));
        EXPECT_THAT(result.errors, StartsWith(beginning));
    }

    TemporaryFolder folder;
    ProgramStart start;
};

TEST_F(FailingFiles, KeepTheOlderDocumentWhereverTheDiskGetsFull) {
    ASSERT_EQ(run({"render", "a.rtfspec"}).status, 0);
    const auto size = folder.read("a.rtf").size();
    folder.write("a.rtf", "the older one");
    for (const std::size_t limit : {std::size_t{0}, std::size_t{1}, size / 2, size - 1}) {
        start.prepare = [limit] {
            const rlimit most{limit, limit};
            ::setrlimit(RLIMIT_FSIZE, &most);
        };

        expectFailure(run({"render", "a.rtfspec"}), "a.rtf: File too large\n");

        EXPECT_EQ(folder.read("a.rtf"), "the older one");
        EXPECT_THAT(folder.names(), ElementsAre("a.rtf", "a.rtfspec"));
    }
}

TEST_F(FailingFiles, HoldAWholeDocumentWhereTheDiskJustSuffices) {
    ASSERT_EQ(run({"render", "a.rtfspec"}).status, 0);
    const std::string document = folder.read("a.rtf");
    folder.write("a.rtf", "the older one");
    start.prepare = [size = document.size()] {
        const rlimit most{size, size};
        ::setrlimit(RLIMIT_FSIZE, &most);
    };

    EXPECT_EQ(run({"render", "a.rtfspec"}).status, 0);

    EXPECT_EQ(folder.read("a.rtf"), document);
}

constexpr int notPermitted = 77;
constexpr std::size_t page = 4096;
constexpr std::size_t pagesOfDisk = 16;

void writeFile(const char* path, const std::string& text) {
    std::ofstream(path) << text;
}

/// Gives the process mounts of its own, and a user of its own who may mount.
bool takeOwnMounts() {
    const auto user = std::to_string(::geteuid());
    const auto group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    writeFile("/proc/self/setgroups", "deny");
    writeFile("/proc/self/uid_map", "0 " + user + " 1");
    writeFile("/proc/self/gid_map", "0 " + group + " 1");
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// A file system of 64 KB, while it lives. Nobody else sees it.
class SmallDisk {
public:
    explicit SmallDisk(std::filesystem::path folder) : folder_(std::move(folder)) {
        std::filesystem::create_directory(folder_);
        if (::mount("none", folder_.c_str(), "tmpfs", 0, "size=64k") != 0) {
            ::_exit(notPermitted);
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() { ::umount(folder_.c_str()); }

    /// Writes all of the disk but so many pages full.
    void fillUpTo(std::size_t freePages) const {
        std::ofstream(folder_ / "filler") << std::string(2 * pagesOfDisk * page, 'f') << std::flush;
        const auto size = std::filesystem::file_size(folder_ / "filler");
        std::filesystem::resize_file(folder_ / "filler",
                                     size - std::min<std::size_t>(size, freePages * page));
    }

private:
    std::filesystem::path folder_;
};

/// Runs the body in a process that has mounts of its own. Returns its exit status: 0 when nothing
/// failed.
int withOwnMounts(const std::function<void()>& body) {
    const pid_t process = ::fork();
    if (process == 0) {
        if (!takeOwnMounts()) {
            ::_exit(notPermitted);
        }
        body();
        std::fflush(nullptr);
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(FailingFiles, LeaveADocumentWholeOrAsItWasHoweverLittleTheDiskHolds) {
    folder.write("a.rtfspec", descriptionOf(std::string(20'000, 'x')));
    ASSERT_EQ(run({"render", "a.rtfspec"}).status, 0);
    const std::string whole = folder.read("a.rtf");

    const int status = withOwnMounts([&] {
        for (const bool hasOlder : {false, true}) {
            int successes = 0;
            for (std::size_t freePages = 0; freePages < pagesOfDisk; ++freePages) {
                const SmallDisk disk(folder.path() / "small");
                if (hasOlder) {
                    folder.write("small/a.rtf", "the older one");
                }
                disk.fillUpTo(freePages);

                const ProgramResult result = run({"render", "-o", "small/a.rtf", "a.rtfspec"});

                const bool isThere = folder.has("small/a.rtf");
                if (result.status == 0) {
                    ++successes;
                    EXPECT_EQ(folder.read("small/a.rtf"), whole) << freePages;
                } else {
                    expectFailure(result, "small/a.rtf: No space left on device\n");
                    EXPECT_EQ(isThere, hasOlder) << freePages;
                    EXPECT_TRUE(!isThere || folder.read("small/a.rtf") == "the older one");
                }
                const auto entries = std::filesystem::directory_iterator(folder.path() / "small");
                EXPECT_EQ(std::distance(begin(entries), end(entries)), isThere ? 2 : 1);
            }
            EXPECT_GE(successes, 3);
            EXPECT_LE(successes, 12);
        }
    });

    if (status == notPermitted) {
        GTEST_SKIP() << "this machine does not let its users mount a file system of their own";
    }
    EXPECT_EQ(status, 0);
}

TEST_F(FailingFiles, LeaveAFolderInTheWayAsItIs) {
    std::filesystem::create_directories(folder.path() / "a.rtf" / "inner");

    expectFailure(run({"render", "a.rtfspec"}), "a.rtf: Is a directory\n");

    EXPECT_TRUE(std::filesystem::exists(folder.path() / "a.rtf" / "inner"));
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf", "a.rtfspec"));
}

TEST_F(FailingFiles, AreReportedWhenTheirPathsAreTooLong) {
    const std::string longName(300, 'n');
    std::string longPath;
    for (int i = 0; i < 900; ++i) {
        longPath += "folder/";
    }

    for (const std::string& path : {longName, longPath + "a"}) {
        EXPECT_EQ(run({"render", path + ".rtfspec"}).status, 2);
        expectFailure(run({"render", "-o", path + ".rtf", "a.rtfspec"}), path);
    }

    EXPECT_THAT(folder.names(), ElementsAre("a.rtfspec"));
}

TEST_F(FailingFiles, MayHaveNamesThatAreNotAscii) {
    const std::string name = "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC\xF0\x9F\x98\x80";
    folder.write(name + ".rtfspec", descriptionOf("Text"));

    const ProgramResult result = run({"render", name + ".rtfspec"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(folder.read(name + ".rtf"), EndsWith("\\row}}"));
}

}  // namespace
}  // namespace quorvane::cli
