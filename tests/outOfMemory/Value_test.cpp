#include "quorvane/base/values/Value.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quorvane/support/CMap.h"
#include "quorvane/support/CSet.h"
#include "tests/outOfMemory/withoutMemory.h"

namespace quorvane {
namespace {

const std::string longText = "a text that is not kept in place";

TEST(ValueOutOfMemory, IsNotCopied) {
    const Value original(longText);

    EXPECT_TRUE(isOutOfMemory([&original] { const Value copy(original); }));

    EXPECT_EQ(original.text(), longText);
}

TEST(ValueOutOfMemory, IsNotAssigned) {
    const Value original(longText);
    Value target(5);

    EXPECT_TRUE(isOutOfMemory([&] { target = original; }));

    EXPECT_EQ(target, Value(5));
}

TEST(ValueOutOfMemory, IsNotFiled) {
    const Value original(longText);
    CMap map;
    CSet set;

    EXPECT_TRUE(isOutOfMemory([&] { map.setItem(original, 1); }));
    EXPECT_TRUE(isOutOfMemory([&] { set.add(original); }));

    EXPECT_TRUE(map.IsMapEmpty());
    EXPECT_EQ(set.Count(), 0);
}

}  // namespace
}  // namespace quorvane
