#include "quorvane/diagnostics/description/NullPlatform.h"

#include <gtest/gtest.h>

#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

TEST(NullPlatform, HasNoFiles) {
    NullPlatform platform;
    EXPECT_FALSE(platform.fileExists("a.rtf"));
    EXPECT_EQ(errorNumberOf([&] { platform.readFile("a.rtf"); }), 53);
    EXPECT_EQ(errorNumberOf([&] { platform.deleteFile("a.rtf"); }), 53);
    EXPECT_EQ(errorNumberOf([&] { platform.createFile("a.rtf"); }), 75);
}

TEST(NullPlatform, HasNoProgram) {
    NullPlatform platform;
    EXPECT_EQ(platform.programFolder(), "");
    EXPECT_EQ(platform.programFileName(), "");
    EXPECT_EQ(platform.programVersion().major, 0);
    EXPECT_EQ(platform.resourceString(8700), std::nullopt);
    EXPECT_EQ(errorNumberOf([&] { platform.createReporter("Errors.Collection"); }), 429);
}

}  // namespace
}  // namespace quorvane
