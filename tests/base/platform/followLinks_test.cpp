#include "quorvane/base/platform/followLinks.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli/TemporaryFolder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using cli::TemporaryFolder;

TEST(FollowLinks, ReturnsAPathThatIsNotALink) {
    const TemporaryFolder folder;
    EXPECT_EQ(followLinks(folder.write("a", "")), folder / "a");
    EXPECT_EQ(followLinks(folder / "missing"), folder / "missing");
}

TEST(FollowLinks, FollowsRelativeLinksFromTheirFolder) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/b", folder / "a");
    fs::create_symlink("c", folder / "sub/b");
    EXPECT_EQ(followLinks(folder / "a"), folder / "sub/c");
}

TEST(FollowLinks, FollowsAbsoluteLinks) {
    const TemporaryFolder folder;
    fs::create_symlink("/nowhere/b", folder / "a");
    EXPECT_EQ(followLinks(folder / "a"), "/nowhere/b");
}

TEST(FollowLinks, ReturnsALinkThatLeadsInACircle) {
    const TemporaryFolder folder;
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    EXPECT_EQ(followLinks(folder / "a"), folder / "a");
}

}  // namespace
}  // namespace quorvane
