#include "cli/SeenNames.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

namespace quorvane::cli {
namespace {

TEST(SeenNames, AreKnownTheSecondTime) {
    SeenNames names;
    EXPECT_EQ(names.add("a", 1), std::nullopt);
    EXPECT_EQ(names.add("", 2), std::nullopt);
    EXPECT_EQ(names.add("b", 3), std::nullopt);
    EXPECT_EQ(names.add("a", 4), 1U);
    EXPECT_EQ(names.add("", 5), 2U);
}

TEST(SeenNames, AreKnownAmongMany) {
    SeenNames names;
    constexpr std::uint32_t count = 100'000;
    for (std::uint32_t i = 0; i < count; ++i) {
        ASSERT_EQ(names.add("out/" + std::to_string(i) + ".rtf", i), std::nullopt);
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        ASSERT_EQ(names.add("out/" + std::to_string(i) + ".rtf", count), i);
    }
}

}  // namespace
}  // namespace quorvane::cli
