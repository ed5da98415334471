#include "cli/SeenNames.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvane::cli {
namespace {

TEST(SeenNames, AreKnownTheSecondTime) {
    SeenNames names;
    EXPECT_TRUE(names.add("a"));
    EXPECT_TRUE(names.add(""));
    EXPECT_TRUE(names.add("b"));
    EXPECT_FALSE(names.add("a"));
    EXPECT_FALSE(names.add(""));
}

TEST(SeenNames, AreKnownAmongMany) {
    SeenNames names;
    constexpr int count = 100'000;
    for (int i = 0; i < count; ++i) {
        ASSERT_TRUE(names.add("out/" + std::to_string(i) + ".rtf")) << i;
    }
    for (int i = 0; i < count; ++i) {
        ASSERT_FALSE(names.add("out/" + std::to_string(i) + ".rtf")) << i;
    }
}

}  // namespace
}  // namespace quorvane::cli
