// Whatever happens to its files, the command says so and exits with 2, an older document stays, a
// new one is whole or absent, and nothing unfinished is left behind.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <string>
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

        expectFailure(run({"render", "a.rtfspec"}), "a.rtf: error[");

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

/// A file system of two pages, while it lives.
class SmallDisk {
public:
    explicit SmallDisk(const std::filesystem::path& folder) : folder_(folder) {
        std::filesystem::create_directory(folder_);
        isMounted_ = ::mount("none", folder_.c_str(), "tmpfs", 0, "size=8k") == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        if (isMounted_) {
            ::umount(folder_.c_str());
        }
    }

    bool isMounted() const { return isMounted_; }

private:
    std::filesystem::path folder_;
    bool isMounted_ = false;
};

TEST_F(FailingFiles, LeaveNothingOnADiskThatIsTooSmall) {
    const SmallDisk disk(folder.path() / "small");
    if (!disk.isMounted()) {
        GTEST_SKIP() << "mounting a file system takes the right to do so";
    }
    folder.write("a.rtfspec", descriptionOf(std::string(20'000, 'x')));

    expectFailure(run({"render", "-o", "small/a.rtf", "a.rtfspec"}),
                  "small/a.rtf: error[61]: Disk full");

    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "small"));
}

TEST_F(FailingFiles, LeaveAFolderInTheWayAsItIs) {
    std::filesystem::create_directories(folder.path() / "a.rtf" / "inner");

    expectFailure(run({"render", "a.rtfspec"}), "a.rtf: error[75]:");

    EXPECT_TRUE(std::filesystem::exists(folder.path() / "a.rtf" / "inner"));
    EXPECT_THAT(folder.names(), ElementsAre("a.rtf", "a.rtfspec"));
}

TEST_F(FailingFiles, AreToldWhenTheirPathsAreTooLong) {
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
