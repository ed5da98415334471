#include "quorvane/support/CSet.h"

#include <gmock/gmock.h>

#include <new>

#include "tests/support/FakePlatform.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

class PlatformWithoutMemory : public FakePlatform {
public:
    std::optional<std::string> resourceString(int) override { throw std::bad_alloc(); }
};

TEST(CSetTest, IsEmptyAtFirst) {
    const CSet set;
    EXPECT_EQ(set.Count(), 0);
    EXPECT_TRUE(set.IsSetEmpty());
    EXPECT_EQ(set.Items(), std::nullopt);
}

TEST(CSetTest, TakesAMemberOnce) {
    CSet set;
    set.add("a");
    set.add("a");
    EXPECT_EQ(set.Count(), 1);
    EXPECT_FALSE(set.IsSetEmpty());
}

TEST(CSetTest, KeepsItsMembersInTheOrderOfAdding) {
    CSet set;
    set.add("b");
    set.add(3);
    set.add("a");
    set.add("b");
    ASSERT_TRUE(set.Items());
    EXPECT_THAT(*set.Items(), ElementsAre(Value("b"), Value(3), Value("a")));
}

TEST(CSetTest, KnowsItsMembersToTheLetter) {
    CSet set;
    set.add("row-key");
    EXPECT_TRUE(set.Exists("row-key"));
    EXPECT_FALSE(set.Exists("Row-Key"));
    EXPECT_FALSE(set.Exists("row-ke"));
}

TEST(CSetTest, RemovesAMember) {
    CSet set;
    set.add("a");
    set.add("b");
    set.Remove("a");
    EXPECT_FALSE(set.Exists("a"));
    EXPECT_TRUE(set.Exists("b"));
}

TEST(CSetTest, RemovingWhatIsNotAMemberIsAnError) {
    CSet set;
    set.add("a");
    EXPECT_EQ(errorNumberOf([&] { set.Remove("b"); }), 5);
    EXPECT_EQ(set.Count(), 1);
}

TEST(CSetTest, RemovesAllMembers) {
    CSet set;
    set.add("a");
    set.RemoveAll();
    EXPECT_TRUE(set.IsSetEmpty());
    EXPECT_FALSE(set.Exists("a"));
}

TEST(CSetTest, LoadsThePiecesOfAResourceInOrder) {
    FakePlatform platform;
    platform.resources[100] = "black#blue#black##cyan";
    CSet set;
    set.add("red");
    set.loadFromRes(platform, 100);
    ASSERT_TRUE(set.Items());
    EXPECT_THAT(*set.Items(),
                ElementsAre(Value("red"), Value("black"), Value("blue"), Value(""), Value("cyan")));
}

TEST(CSetTest, StaysAsItWasForAMissingResource) {
    FakePlatform platform;
    CSet set;
    set.add("red");
    set.loadFromRes(platform, 100);
    EXPECT_EQ(set.Count(), 1);
}

TEST(CSetTest, StaysAsItWasForAnEmptyResource) {
    FakePlatform platform;
    platform.resources[100] = "";
    CSet set;
    set.loadFromRes(platform, 100);
    EXPECT_TRUE(set.IsSetEmpty());
}

TEST(CSetTest, LetsNoErrorOfTheResourceEscape) {
    FakePlatform platform;
    platform.fail("resourceString", RunTimeError::DeviceIoError);
    PlatformWithoutMemory platformWithoutMemory;
    CSet set;
    set.loadFromRes(platform, 100);
    set.loadFromRes(platformWithoutMemory, 100);
    EXPECT_TRUE(set.IsSetEmpty());
}

TEST(CSetTest, LeavesAStoredValueAsItIsWhenAnEqualOneIsAdded) {
    CSet set;
    set.add(std::int32_t{1});
    set.add(1.0);

    const auto items = set.Items();
    ASSERT_TRUE(items.has_value());
    ASSERT_EQ(items->size(), 1U);
    EXPECT_TRUE(items->front().holds<std::int32_t>());
}

}  // namespace
}  // namespace quorvane
