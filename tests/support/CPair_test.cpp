#include "quorvane/support/CPair.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvane {
namespace {

TEST(CPairTest, IsEmptyAtFirst) {
    const CPair pair;
    EXPECT_TRUE(pair.first().holds<Empty>());
    EXPECT_TRUE(pair.second().holds<Empty>());
}

TEST(CPairTest, HoldsTwoPlainValues) {
    CPair pair;
    pair.setFirst("a");
    pair.setSecond(1.5);
    EXPECT_EQ(pair.first(), Value("a"));
    EXPECT_EQ(pair.second(), Value(1.5));
}

TEST(CPairTest, HoldsObjectsByReference) {
    const auto object = std::make_shared<Object>();
    CPair pair;
    pair.setFirst(object);
    EXPECT_EQ(pair.first().object<Object>(), object);
}

TEST(CPairTest, ReleasesItsObjectsWithItself) {
    std::weak_ptr<Object> first;
    std::weak_ptr<Object> second;
    {
        CPair pair;
        pair.setFirst(std::make_shared<Object>());
        pair.setSecond(std::make_shared<Object>());
        first = pair.first().object<Object>();
        second = pair.second().object<Object>();
        EXPECT_FALSE(first.expired());
    }
    EXPECT_TRUE(first.expired());
    EXPECT_TRUE(second.expired());
}

}  // namespace
}  // namespace quorvane
