#include "quorvane/support/CMap.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

using List = std::vector<Value>;

CMap threeEntries() {
    CMap map;
    map.add("b", 2);
    map.add(3, "three");
    map.add("a", 1);
    return map;
}

void expectEntries(const CMap& map, const List& keys, const List& items) {
    EXPECT_EQ(map.Keys(), keys);
    EXPECT_EQ(map.Items(), items);
    EXPECT_EQ(map.Count(), static_cast<std::int32_t>(keys.size()));
}

TEST(CMapTest, IsEmptyAtFirst) {
    const CMap map;
    EXPECT_EQ(map.Count(), 0);
    EXPECT_TRUE(map.IsMapEmpty());
    EXPECT_FALSE(map.Exists("a"));
}

TEST(CMapTest, HasEmptyKeysAndItemsRatherThanListsWithoutElements) {
    CMap map;
    EXPECT_EQ(map.Keys(), std::nullopt);
    EXPECT_EQ(map.Items(), std::nullopt);
    map.add("a", 1);
    map.Remove("a");
    EXPECT_EQ(map.Keys(), std::nullopt);
    EXPECT_EQ(map.Items(), std::nullopt);
}

TEST(CMapTest, KeepsItsEntriesInTheOrderOfAdding) {
    expectEntries(threeEntries(), {"b", 3, "a"}, {2, "three", 1});
    EXPECT_FALSE(threeEntries().IsMapEmpty());
}

TEST(CMapTest, FindsTheValueOfAKey) {
    const CMap map = threeEntries();
    EXPECT_TRUE(map.Exists("a"));
    EXPECT_EQ(map.Item("a"), Value(1));
    EXPECT_EQ(map.Item(3), Value("three"));
}

TEST(CMapTest, TakesTextKeysToTheLetter) {
    const CMap map = threeEntries();
    EXPECT_FALSE(map.Exists("A"));
    EXPECT_FALSE(map.Exists("3"));
    EXPECT_FALSE(map.Exists("b "));
}

TEST(CMapTest, TakesNumberKeysByTheirValue) {
    const CMap map = threeEntries();
    EXPECT_TRUE(map.Exists(3.0));
    EXPECT_TRUE(map.Exists(std::int16_t{3}));
    EXPECT_FALSE(map.Exists(3.5));
    EXPECT_FALSE(map.Exists(true));
}

TEST(CMapTest, TakesObjectKeysByTheirIdentity) {
    const auto one = std::make_shared<Object>();
    const auto other = std::make_shared<Object>();
    CMap map;
    map.add(one, 1);
    EXPECT_TRUE(map.Exists(one));
    EXPECT_FALSE(map.Exists(other));
}

TEST(CMapTest, HoldsObjectsByReference) {
    auto child = std::make_shared<CMap>();
    CMap map;
    map.add(1001, child);
    child->add("a", 1);
    EXPECT_EQ(map.Item(1001).object<CMap>()->Item("a"), Value(1));
}

TEST(CMapTest, AddingAPresentKeyIsAnError) {
    CMap map = threeEntries();
    EXPECT_EQ(errorNumberOf([&] { map.add("b", 9); }), 457);
    EXPECT_EQ(errorNumberOf([&] { map.add(3.0, 9); }), 457);
    expectEntries(map, {"b", 3, "a"}, {2, "three", 1});
}

TEST(CMapTest, ItemOfAnAbsentKeyIsAnError) {
    const CMap map = threeEntries();
    EXPECT_EQ(errorNumberOf([&] { map.Item("x"); }), 5);
    EXPECT_EQ(errorNumberOf([] { CMap().Item("x"); }), 5);
    EXPECT_EQ(map.Count(), 3);
}

TEST(CMapTest, SettingAnItemStoresItInItsPlaceOrAddsIt) {
    CMap map = threeEntries();
    map.setItem(3, "drei");
    map.setItem("c", 4);
    expectEntries(map, {"b", 3, "a", "c"}, {2, "drei", 1, 4});
}

TEST(CMapTest, RemovesAnEntry) {
    CMap map = threeEntries();
    map.Remove(3);
    expectEntries(map, {"b", "a"}, {2, 1});
    EXPECT_FALSE(map.Exists(3));
    EXPECT_EQ(map.Item("a"), Value(1));
}

TEST(CMapTest, AddsAtTheEndWhatWasRemoved) {
    CMap map = threeEntries();
    map.Remove("b");
    map.add("b", 5);
    expectEntries(map, {3, "a", "b"}, {"three", 1, 5});
}

TEST(CMapTest, RemovingAnAbsentKeyIsAnError) {
    CMap map = threeEntries();
    EXPECT_EQ(errorNumberOf([&] { map.Remove("x"); }), 5);
    EXPECT_EQ(map.Count(), 3);
    EXPECT_EQ(errorNumberOf([] { CMap().Remove("x"); }), 5);
}

TEST(CMapTest, RemovesAllEntries) {
    CMap map = threeEntries();
    map.RemoveAll();
    EXPECT_TRUE(map.IsMapEmpty());
    EXPECT_FALSE(map.Exists("a"));
    map.add("a", 9);
    expectEntries(map, {"a"}, {9});
}

TEST(CMapTest, RenamesAKeyInItsPlace) {
    CMap map = threeEntries();
    map.Key(3, "c");
    expectEntries(map, {"b", "c", "a"}, {2, "three", 1});
    EXPECT_FALSE(map.Exists(3));
    EXPECT_EQ(map.Item("c"), Value("three"));
}

TEST(CMapTest, RenamesAKeyToItself) {
    CMap map = threeEntries();
    map.Key(3, 3.0);
    expectEntries(map, {"b", 3, "a"}, {2, "three", 1});
    EXPECT_TRUE(map.Keys()->at(1).holds<double>());
}

TEST(CMapTest, RenamingAnAbsentKeyIsAnError) {
    CMap map = threeEntries();
    EXPECT_EQ(errorNumberOf([&] { map.Key("x", "y"); }), 5);
    expectEntries(map, {"b", 3, "a"}, {2, "three", 1});
}

TEST(CMapTest, RenamingToAnotherEntrysKeyIsAnError) {
    CMap map = threeEntries();
    EXPECT_EQ(errorNumberOf([&] { map.Key("b", "a"); }), 457);
    expectEntries(map, {"b", 3, "a"}, {2, "three", 1});
}

TEST(CMapTest, Keys2ValuesReturnsTheValuesInTheMapsOrder) {
    const CMap map = threeEntries();
    EXPECT_EQ(map.Keys2Values(map.Keys()), map.Items());
    EXPECT_EQ(map.Keys2Values(List{"a", "x", "b", "a"}), (List{2, 1}));
}

TEST(CMapTest, Keys2ValuesIsEmptyWhenThereIsNothingToReturn) {
    const CMap map = threeEntries();
    EXPECT_EQ(map.Keys2Values(std::nullopt), std::nullopt);
    EXPECT_EQ(map.Keys2Values(List{}), std::nullopt);
    EXPECT_EQ(map.Keys2Values(List{"x"}), std::nullopt);
    EXPECT_EQ(CMap().Keys2Values(List{"a"}), std::nullopt);
}

TEST(CMapTest, SubMapHoldsThePresentKeysInTheOrderAskedFor) {
    const auto part = threeEntries().subMap(List{"a", "x", "b"});
    ASSERT_TRUE(part);
    expectEntries(*part, {"a", "b"}, {1, 2});
}

TEST(CMapTest, SubMapTakesAKeyThatIsAskedForTwiceOnce) {
    const auto part = threeEntries().subMap(List{"a", "b", "a"});
    ASSERT_TRUE(part);
    expectEntries(*part, {"a", "b"}, {1, 2});
}

TEST(CMapTest, SubMapIsNullForEmptyKeysOrAnEmptyMap) {
    EXPECT_EQ(threeEntries().subMap(std::nullopt), nullptr);
    EXPECT_EQ(CMap().subMap(List{"a"}), nullptr);
}

TEST(CMapTest, SubMapIsAnEmptyMapWhenNoKeyIsPresent) {
    const auto part = threeEntries().subMap(List{"x"});
    ASSERT_TRUE(part);
    EXPECT_TRUE(part->IsMapEmpty());
}

TEST(CMapTest, CopiesShareNothingButTheirObjects) {
    const CMap map = threeEntries();
    CMap copy = map;
    copy.setItem("b", 9);
    copy.Remove("a");
    expectEntries(map, {"b", 3, "a"}, {2, "three", 1});
    expectEntries(copy, {"b", 3}, {9, "three"});
}

TEST(CMapTest, DoesAsAPlainListOfPairsDoes) {
    std::mt19937 random(1);
    const auto randomKey = [&random]() -> Value {
        const auto number = static_cast<std::int32_t>(random() % 40);
        return random() % 2 == 0 ? Value(number) : Value("key" + std::to_string(number));
    };
    for (int round = 0; round < 20; ++round) {
        CMap map;
        std::vector<std::pair<Value, Value>> model;
        for (std::int32_t step = 0; step < 500; ++step) {
            const Value key = randomKey();
            const auto entry = std::find_if(model.begin(), model.end(),
                                            [&](const auto& pair) { return pair.first == key; });
            const bool isPresent = entry != model.end();
            ASSERT_EQ(map.Exists(key), isPresent);
            switch (random() % 5) {
                case 0:
                    ASSERT_EQ(errorNumberOf([&] { map.add(key, step); }), isPresent ? 457 : 0);
                    if (!isPresent) {
                        model.emplace_back(key, step);
                    }
                    break;
                case 1:
                    map.setItem(key, step);
                    if (isPresent) {
                        entry->second = step;
                    } else {
                        model.emplace_back(key, step);
                    }
                    break;
                case 2:
                    ASSERT_EQ(errorNumberOf([&] { map.Remove(key); }), isPresent ? 0 : 5);
                    if (isPresent) {
                        model.erase(entry);
                    }
                    break;
                case 3: {
                    const Value renamed = randomKey();
                    const bool isTaken =
                        !(renamed == key) &&
                        std::any_of(model.begin(), model.end(),
                                    [&](const auto& pair) { return pair.first == renamed; });
                    const int expected = !isPresent ? 5 : isTaken ? 457 : 0;
                    ASSERT_EQ(errorNumberOf([&] { map.Key(key, renamed); }), expected);
                    if (expected == 0) {
                        entry->first = renamed;
                    }
                    break;
                }
                default:
                    if (isPresent) {
                        ASSERT_EQ(map.Item(key), entry->second);
                    }
            }
        }
        List keys;
        List items;
        for (const auto& [key, item] : model) {
            keys.push_back(key);
            items.push_back(item);
        }
        expectEntries(map, keys, items);
    }
}

TEST(CMapTest, HoldsManyEntriesOfEveryKindOfKey) {
    constexpr std::int32_t count = 50000;
    std::vector<std::shared_ptr<Object>> objects;
    CMap map;
    for (std::int32_t i = 0; i < count; ++i) {
        objects.push_back(std::make_shared<Object>());
        map.add(i * 1024, i);
        map.add(std::to_string(i), i);
        map.add(objects.back(), i);
    }
    EXPECT_EQ(map.Count(), 3 * count);
    for (std::int32_t i = 0; i < count; ++i) {
        ASSERT_EQ(map.Item(i * 1024), Value(i));
        ASSERT_EQ(map.Item(std::to_string(i)), Value(i));
        ASSERT_EQ(map.Item(objects[static_cast<std::size_t>(i)]), Value(i));
    }
}

}  // namespace
}  // namespace quorvane
