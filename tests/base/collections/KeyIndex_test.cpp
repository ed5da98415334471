#include "quorvane/base/collections/KeyIndex.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace quorvane {
namespace {

struct Thing {};

TEST(KeyIndex, FindsNothingAtFirst) {
    const KeyIndex<Thing> index;

    EXPECT_EQ(index.find("a"), nullptr);
    EXPECT_EQ(index.find(""), nullptr);
}

TEST(KeyIndex, FindsWhatWasFiledUnderAKey) {
    Thing first;
    Thing second;
    KeyIndex<Thing> index;

    index.add("a", &first);
    index.add("", &second);

    EXPECT_EQ(index.find("a"), &first);
    EXPECT_EQ(index.find(""), &second);
    EXPECT_EQ(index.find("b"), nullptr);
}

TEST(KeyIndex, TakesNoRegardOfCase) {
    Thing thing;
    KeyIndex<Thing> index;

    index.add("STRASSE \xC3\x84", &thing);

    EXPECT_EQ(index.find("Strasse \xC3\xA4"), &thing);
}

TEST(KeyIndex, ForgetsTheKeyOfARemovedElement) {
    Thing first;
    Thing second;
    KeyIndex<Thing> index;
    index.add("a", &first);
    index.add("b", &second);

    index.remove(&first);

    EXPECT_EQ(index.find("a"), nullptr);
    EXPECT_EQ(index.find("b"), &second);
}

TEST(KeyIndex, CanFileAnotherUnderAForgottenKey) {
    Thing first;
    Thing second;
    KeyIndex<Thing> index;
    index.add("a", &first);
    index.remove(&first);

    index.add("A", &second);

    EXPECT_EQ(index.find("a"), &second);
}

TEST(KeyIndex, IgnoresTheRemovalOfAnElementWithoutAKey) {
    Thing filed;
    const Thing other;
    KeyIndex<Thing> index;
    index.add("a", &filed);

    index.remove(&other);

    EXPECT_EQ(index.find("a"), &filed);
}

TEST(KeyIndex, FindsKeysOfEveryLengthHoweverManyThereAre) {
    constexpr std::size_t longest = 40;
    std::vector<Thing> things(longest + 1);
    KeyIndex<Thing> index;
    const auto keyOf = [](std::size_t length) { return std::string(length, 'k'); };
    for (std::size_t length = 0; length <= longest; ++length) {
        index.add(keyOf(length), &things[length]);
        for (std::size_t filed = 0; filed <= longest; ++filed) {
            ASSERT_EQ(index.find(keyOf(filed)), filed <= length ? &things[filed] : nullptr)
                << filed << " of " << length;
        }
    }

    for (std::size_t length = 0; length <= longest; length += 2) {
        index.remove(&things[length]);
    }
    for (std::size_t length = 0; length <= longest; ++length) {
        EXPECT_EQ(index.find(keyOf(length)), length % 2 == 0 ? nullptr : &things[length]) << length;
    }
}

}  // namespace
}  // namespace quorvane
