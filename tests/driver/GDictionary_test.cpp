#include "quorvane/driver/GDictionary.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <set>
#include <string>

#include "quorvane/base/platform/RandomNumbers.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = std::vector<Value>;

List sorted(List list) {
    SortVariant(list);
    return list;
}

TEST(GDictionary, KnowsATextFromEverythingElse) {
    EXPECT_TRUE(IsString("para-text"));
    EXPECT_TRUE(IsString(""));
    EXPECT_FALSE(IsString(3));
    EXPECT_FALSE(IsString(Empty{}));
    EXPECT_FALSE(IsString(true));
    EXPECT_FALSE(IsString(std::make_shared<Object>()));
}

TEST(GDictionary, FiltersTheNumbersInOrder) {
    EXPECT_EQ(FilterType({3, "para-text", 1001}, ValueKind::Number), (List{3, 1001}));
}

TEST(GDictionary, FiltersTheTextsInOrder) {
    EXPECT_EQ(FilterType({3, "para-text", 1001}, ValueKind::Text), (List{"para-text"}));
    EXPECT_EQ(FilterType({"b", 3, "a"}, ValueKind::Text), (List{"b", "a"}));
}

TEST(GDictionary, FiltersEveryKindOfNumber) {
    const List numbers{std::int16_t{1}, std::int32_t{2}, 3.5f, 4.5};
    EXPECT_EQ(FilterType(numbers, ValueKind::Number), numbers);
}

TEST(GDictionary, FiltersNothingThatIsNeitherTextNorNumber) {
    const List others{Empty{}, Null{}, true, Date{1}, std::make_shared<Object>()};
    EXPECT_THAT(FilterType(others, ValueKind::Text), IsEmpty());
    EXPECT_THAT(FilterType(others, ValueKind::Number), IsEmpty());
}

TEST(GDictionary, FiltersNothingOfAnEmptyList) {
    EXPECT_THAT(FilterType({}, ValueKind::Text), IsEmpty());
    EXPECT_THAT(FilterType({}, ValueKind::Number), IsEmpty());
}

TEST(GDictionary, NumbersItsKinds) {
    EXPECT_EQ(static_cast<int>(ValueKind::Text), 0);
    EXPECT_EQ(static_cast<int>(ValueKind::Number), 1);
}

TEST(GDictionary, FindsAMemberThatEqualsTheValue) {
    EXPECT_TRUE(isMember("para-text", {3, "para-text"}));
    EXPECT_TRUE(isMember(3.0, {3, "para-text"}));
}

TEST(GDictionary, FindsNoMemberThatDiffers) {
    EXPECT_FALSE(isMember("Para-Text", {3, "para-text"}));
    EXPECT_FALSE(isMember("3", {3, "para-text"}));
    EXPECT_FALSE(isMember("x", {}));
}

TEST(GDictionary, SortsNumbersByValue) {
    EXPECT_EQ(sorted({1001, 20, 3.5, -1, 1000}), (List{-1, 3.5, 20, 1000, 1001}));
}

TEST(GDictionary, SortsTextsByTheirCharacters) {
    EXPECT_EQ(sorted({"b", "B", "a", "ab", "10", "9"}), (List{"10", "9", "B", "a", "ab", "b"}));
}

TEST(GDictionary, SortsNumbersBeforeTexts) {
    EXPECT_EQ(sorted({"a", 2, "1", 1}), (List{1, 2, "1", "a"}));
}

TEST(GDictionary, SortsTwoElementsInTheWrongOrder) {
    EXPECT_EQ(sorted({2, 1}), (List{1, 2}));
}

TEST(GDictionary, LeavesAListOfNoneOrOneOrInOrderAsItIs) {
    EXPECT_THAT(sorted({}), IsEmpty());
    EXPECT_EQ(sorted({1}), (List{1}));
    EXPECT_EQ(sorted({1, 1, 2, "a"}), (List{1, 1, 2, "a"}));
}

TEST(GDictionary, SortsAnyList) {
    std::mt19937 random(1);
    for (int round = 0; round < 200; ++round) {
        List list;
        const std::size_t length = random() % 100;
        for (std::size_t i = 0; i < length; ++i) {
            const auto number = static_cast<std::int32_t>(random() % 30);
            list.push_back(random() % 2 == 0 ? Value(number) : Value(std::to_string(number)));
        }
        const List result = sorted(list);
        EXPECT_TRUE(isSorted(result, true));
        EXPECT_TRUE(std::is_permutation(result.begin(), result.end(), list.begin(), list.end()));
    }
}

TEST(GDictionary, SortsManyEqualElementsInLittleTime) {
    List list(100000, Value("same"));
    list.push_back("a");
    SortVariant(list);
    EXPECT_EQ(list.front(), Value("a"));
    EXPECT_TRUE(isSorted(list, true));
}

TEST(GDictionary, SortingWhatIsNeitherTextNorNumberIsAnError) {
    for (const Value& value : List{Empty{}, true, std::make_shared<Object>()}) {
        EXPECT_EQ(errorNumberOf([&] { sorted({1, value}); }), 13);
        EXPECT_EQ(errorNumberOf([&] { sorted({value, 1}); }), 13);
    }
}

TEST(GDictionary, IsSortedAllowsEqualElements) {
    EXPECT_TRUE(isSorted({1, 1, 2}, true));
    EXPECT_TRUE(isSorted({2, 1, 1}, false));
}

TEST(GDictionary, IsSortedGoesByTheDirection) {
    EXPECT_FALSE(isSorted({1, 2}, false));
    EXPECT_FALSE(isSorted({2, 1}, true));
    EXPECT_FALSE(isSorted({1, 3, 2}, true));
    EXPECT_FALSE(isSorted({3, 1, 2}, false));
}

TEST(GDictionary, IsSortedHoldsForNoneOrOne) {
    for (const bool ascending : {true, false}) {
        EXPECT_TRUE(isSorted({}, ascending));
        EXPECT_TRUE(isSorted({1}, ascending));
    }
}

TEST(GDictionary, TheSortStepSortsItsPartOnly) {
    List list{9, 3, 1, 2, 0};
    SortVariantHelp(list, 1, 3);
    EXPECT_EQ(list, (List{9, 1, 2, 3, 0}));
}

TEST(GDictionary, TheSortStepDoesNothingWithoutASpan) {
    List list{2, 1};
    SortVariantHelp(list, 0, 0);
    SortVariantHelp(list, 1, 0);
    SortVariantHelp(list, 0, -1);
    EXPECT_EQ(list, (List{2, 1}));
}

TEST(GDictionary, TheSortStepExchangesTwoElements) {
    List list{2, 1};
    SortVariantHelp(list, 0, 1);
    EXPECT_EQ(list, (List{1, 2}));
}

TEST(GDictionary, SwapsTwoElements) {
    List list{1, "a", 3};
    VariantSwap(list, 0, 2);
    EXPECT_EQ(list, (List{3, "a", 1}));
    VariantSwap(list, 1, 1);
    EXPECT_EQ(list, (List{3, "a", 1}));
}

TEST(GDictionary, GetRandomOfOneNumberIsThatNumber) {
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(GetRandom(5, 5), 5);
    }
}

TEST(GDictionary, GetRandomReachesBothEnds) {
    bool reachesLow = false;
    bool reachesHigh = false;
    for (int i = 0; i < 1000; ++i) {
        const std::int32_t number = GetRandom(1, 4);
        ASSERT_GE(number, 1);
        ASSERT_LE(number, 4);
        reachesLow = reachesLow || number == 1;
        reachesHigh = reachesHigh || number == 4;
    }
    EXPECT_TRUE(reachesLow);
    EXPECT_TRUE(reachesHigh);
}

TEST(GDictionary, SubstitutesTheFirstOfEqualElementsOnly) {
    EXPECT_EQ(variantSubst("a", "b", {1, "a", "a"}), (List{1, "b", "a"}));
    EXPECT_EQ(variantSubst(1.0, 2, {1, "a"}), (List{2, "a"}));
}

TEST(GDictionary, SubstitutesNothingThatIsNotThere) {
    EXPECT_EQ(variantSubst("x", "b", {1, "a"}), (List{1, "a"}));
    EXPECT_THAT(variantSubst("x", "b", {}), IsEmpty());
}

TEST(GDictionary, GetRandomIsSeededOncePerProcess) {
    // Were it seeded by the clock for each number, numbers asked for at once would be the same.
    std::set<std::int32_t> numbers;
    for (int i = 0; i < 200; ++i) {
        numbers.insert(GetRandom(0, 2'000'000'000));
    }
    EXPECT_GT(numbers.size(), 190U);
    EXPECT_EQ(&RandomNumbers::ofProcess(), &RandomNumbers::ofProcess());
}

TEST(GDictionary, RemovesTheFirstOfEqualElements) {
    EXPECT_EQ(variantRemove("b", {1, "b", 2, "b"}), (List{1, 2, "b"}));
    EXPECT_EQ(variantRemove("x", {1, "b"}), (List{1, "b"}));
    EXPECT_EQ(variantRemove("x", {}), List{});
}

TEST(GDictionary, PutsAValueInFront) {
    EXPECT_EQ(variantCons("a", {1, "b"}), (List{"a", 1, "b"}));
    EXPECT_EQ(variantCons(7, {}), List{7});
}

TEST(GDictionary, JoinsTheElementsAsTexts) {
    EXPECT_EQ(listToString({"a", 12, 1.5, ""}), "a 12 1.5 ");
    EXPECT_EQ(listToString({"a", 12}, ", "), "a, 12");
    EXPECT_EQ(listToString({}), "");
}

TEST(GDictionary, JoinsNoElementThatIsNeitherTextNorNumber) {
    EXPECT_EQ(errorNumberOf([] { listToString({"a", true}); }), 13);
}

}  // namespace
}  // namespace quorvane
