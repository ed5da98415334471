#include "quorvane/base/platform/fileReplacement.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>

#include "tests/cli/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

/// Has no memory for the path of the unfinished file.
class FailingWatch : public UnfinishedFileWatch {
public:
    void begin(const fs::path& path) override {
        existed = fs::exists(path);
        throw std::bad_alloc();
    }

    bool existed = false;
};

TEST(FileReplacement, LeavesNoFileBehindWhenTheWatchFails) {
    const cli::TemporaryFolder folder;
    FailingWatch watch;

    EXPECT_THROW(openReplacement(folder / "a.rtf", watch), std::bad_alloc);

    EXPECT_TRUE(watch.existed);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

}  // namespace
}  // namespace quorvane
