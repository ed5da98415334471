#include "quorvane/support/KeyIndex.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quorvane
