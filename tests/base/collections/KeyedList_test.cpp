#include "quorvane/base/collections/KeyedList.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "tests/support/errorNumberOf.h"
#include "tests/support/failingAllocations.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// An element with a number to identify it by; it is deleted with its last reference.
struct Entry : KeyedListElement {
    explicit Entry(int number_) : number(number_) { ++living; }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    ~Entry() { --living; }

    int number;
    int references = 0;
    static inline int living = 0;
};

void retain(Entry* entry) noexcept {
    ++entry->references;
}

void release(Entry* entry) noexcept {
    if (--entry->references == 0) {
        delete entry;
    }
}

using List = KeyedList<Entry>;

// A key that needs memory of its own.
constexpr const char* longKey = "a key of more letters than most have";

Ref<Entry> entry(int number) {
    return Ref<Entry>(new Entry(number));
}

void add(List& list, const Ref<Entry>& element, const Value& key = Missing{},
         const Value& before = Missing{}, const Value& after = Missing{}) {
    list.insert(list.placeFor(key, before, after), element);
}

void add(List& list, int number, const Value& key = Missing{}, const Value& before = Missing{},
         const Value& after = Missing{}) {
    add(list, entry(number), key, before, after);
}

List listOf(int count) {
    List list;
    for (int number = 1; number <= count; ++number) {
        add(list, number);
    }
    return list;
}

// One, two and three, with the keys "a", "B" and "c".
List keyedList() {
    List list;
    add(list, 1, "a");
    add(list, 2, "B");
    add(list, 3, "c");
    return list;
}

std::vector<int> numbers(const List& list) {
    std::vector<int> found;
    for (const Entry* element : list) {
        found.push_back(element->number);
    }
    return found;
}

TEST(KeyedList, IsEmptyAtFirst) {
    const List list;

    EXPECT_EQ(list.count(), 0U);
    EXPECT_EQ(list.begin(), list.end());
    EXPECT_EQ(list.find("a"), nullptr);
}

TEST(KeyedList, IsTheSizeOfAPointer) {
    EXPECT_EQ(sizeof(List), sizeof(void*));
}

TEST(KeyedList, AddsAtTheEndByDefault) {
    const List list = listOf(3);

    EXPECT_EQ(list.count(), 3U);
    EXPECT_THAT(numbers(list), ElementsAre(1, 2, 3));
}

TEST(KeyedList, PutsANewElementBeforeTheOnlyOne) {
    List list = listOf(1);

    add(list, 2, Missing{}, 1);

    EXPECT_THAT(numbers(list), ElementsAre(2, 1));
}

TEST(KeyedList, PutsAKeyedElementBeforeTheOnlyOne) {
    List list = listOf(1);

    add(list, 2, "b", 1);

    EXPECT_THAT(numbers(list), ElementsAre(2, 1));
    EXPECT_EQ(list.find("b")->number, 2);
}

TEST(KeyedList, PutsANewElementBeforeTheOnlyOneWithAKey) {
    List list;
    add(list, 1, "a");

    add(list, 2, Missing{}, "a");

    EXPECT_THAT(numbers(list), ElementsAre(2, 1));
}

TEST(KeyedList, PutsANewElementAfterTheOnlyOne) {
    List list = listOf(1);

    add(list, 2, Missing{}, Missing{}, 1);

    EXPECT_THAT(numbers(list), ElementsAre(1, 2));
}

TEST(KeyedList, GrowsAtItsHeadAsAtItsTail) {
    List list;
    std::vector<int> expected;
    for (int number = 1; number <= 200; ++number) {
        add(list, number, Missing{}, number == 1 ? Value(Missing{}) : Value(1));
        expected.insert(expected.begin(), number);
    }

    EXPECT_EQ(numbers(list), expected);
}

TEST(KeyedList, PutsANewElementBeforeAPosition) {
    List list = listOf(3);

    add(list, 4, Missing{}, 2);

    EXPECT_THAT(numbers(list), ElementsAre(1, 4, 2, 3));
}

TEST(KeyedList, PutsANewElementAfterAPosition) {
    List list = listOf(3);

    add(list, 4, Missing{}, Missing{}, 2);

    EXPECT_THAT(numbers(list), ElementsAre(1, 2, 4, 3));
}

TEST(KeyedList, PutsANewElementBeforeAKey) {
    List list = keyedList();

    add(list, 4, Missing{}, "b");

    EXPECT_THAT(numbers(list), ElementsAre(1, 4, 2, 3));
}

TEST(KeyedList, PutsANewElementAfterAKey) {
    List list = keyedList();

    add(list, 4, Missing{}, Missing{}, "C");

    EXPECT_THAT(numbers(list), ElementsAre(1, 2, 3, 4));
}

TEST(KeyedList, RoundsAPositionBeforeWhichItInsertsHalvesToEven) {
    List list = listOf(3);

    add(list, 4, Missing{}, 2.5);
    add(list, 5, Missing{}, Missing{}, 3.5);

    EXPECT_THAT(numbers(list), ElementsAre(1, 4, 2, 3, 5));
}

TEST(KeyedList, TakesEmptyBeforeAndAfterForMissing) {
    List list = listOf(2);

    add(list, 3, Missing{}, Empty{}, Empty{});
    add(list, 4, Missing{}, Empty{}, 1);

    EXPECT_THAT(numbers(list), ElementsAre(1, 4, 2, 3));
}

TEST(KeyedList, TakesAnEmptyKeyForNone) {
    List list;

    add(list, 1, Empty{});
    add(list, 2, Empty{});

    EXPECT_EQ(list.count(), 2U);
}

TEST(KeyedList, FilesAnEmptyTextAsAKeyLikeAnyOther) {
    List list = listOf(1);

    add(list, 2, "");

    EXPECT_EQ(list.find("")->number, 2);
    EXPECT_EQ(errorNumberOf([&] { list.placeFor("", Missing{}, Missing{}); }), 457);
}

TEST(KeyedList, FindsByKeyWithoutRegardToCase) {
    List list;
    add(list, 1, "Caf\xC3\xA9");

    EXPECT_EQ(list.find("CAF\xC3\x89")->number, 1);
    EXPECT_EQ(list.find("cafe"), nullptr);
}

TEST(KeyedList, DistinguishesKeysThatDifferInALetter) {
    List list;
    add(list, 1, "a");
    add(list, 2, "a ");
    add(list, 3, std::string_view("a\0", 2));

    EXPECT_EQ(list.find("a")->number, 1);
    EXPECT_EQ(list.find("a ")->number, 2);
    EXPECT_EQ(list.find(std::string_view("a\0", 2))->number, 3);
}

TEST(KeyedList, RefusesAKeyThatIsThereAlready) {
    const List list = keyedList();

    EXPECT_EQ(errorNumberOf([&] { list.placeFor("b", Missing{}, Missing{}); }), 457);
}

TEST(KeyedList, FreesTheKeyOfARemovedElement) {
    List list = keyedList();

    list.removeAt(2);
    add(list, 4, "b");

    EXPECT_THAT(numbers(list), ElementsAre(1, 3, 4));
    EXPECT_EQ(list.find("B")->number, 4);
}

TEST(KeyedList, RefusesKeysOfAnotherType) {
    const List list = listOf(1);

    for (const Value& key :
         {Value(7), Value(std::int16_t{7}), Value(7.0), Value(true), Value(Null{}), Value(Date{1}),
          Value(1.0F), Value(std::shared_ptr<Object>(new Object))}) {
        EXPECT_EQ(errorNumberOf([&] { list.placeFor(key, Missing{}, Missing{}); }), 13);
    }
}

TEST(KeyedList, RefusesBeforeAndAfterTogether) {
    const List list = listOf(2);

    EXPECT_EQ(errorNumberOf([&] { list.placeFor(Missing{}, 1, 2); }), 5);
}

TEST(KeyedList, RefusesBadPositionsToInsertAt) {
    const List list = keyedList();

    for (const Value& position :
         {Value(0), Value(-1), Value(4), Value(0.5), Value(3.6), Value("nosuch"), Value(Null{}),
          Value(true), Value(Date{1}), Value(std::nan("")), Value(INFINITY)}) {
        EXPECT_EQ(errorNumberOf([&] { list.placeFor(Missing{}, position, Missing{}); }), 5);
        EXPECT_EQ(errorNumberOf([&] { list.placeFor(Missing{}, Missing{}, position); }), 5);
    }
}

TEST(KeyedList, RefusesEveryPositionToInsertAtWhileItIsEmpty) {
    const List list;

    EXPECT_EQ(errorNumberOf([&] { list.placeFor(Missing{}, 1, Missing{}); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.placeFor(Missing{}, Missing{}, 0); }), 5);
}

TEST(KeyedList, ChecksTheTypeOfTheKeyFirst) {
    const List list = keyedList();

    EXPECT_EQ(errorNumberOf([&] { list.placeFor(7, 99, Missing{}); }), 13);
    EXPECT_EQ(errorNumberOf([&] { list.placeFor(7, 1, 1); }), 13);
}

TEST(KeyedList, ChecksThePositionBeforeTheDuplicateKey) {
    const List list = keyedList();

    EXPECT_EQ(errorNumberOf([&] { list.placeFor("a", 99, Missing{}); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.placeFor("a", 1, 1); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.placeFor("a", 1, Missing{}); }), 457);
}

TEST(KeyedList, FindsThePositionThatAnIndexNames) {
    const List list = keyedList();

    EXPECT_EQ(list.positionOfIndex(1), 1U);
    EXPECT_EQ(list.positionOfIndex(std::int16_t{3}), 3U);
    EXPECT_EQ(list.positionOfIndex(1.5), 2U);
    EXPECT_EQ(list.positionOfIndex(2.5F), 2U);
    EXPECT_EQ(list.positionOfIndex(3.5 - 1e-9), 3U);
    EXPECT_EQ(list.positionOfIndex("C"), 3U);
}

TEST(KeyedList, RefusesAnIndexOutOfRange) {
    const List list = keyedList();

    for (const Value& index : {Value(0), Value(4), Value(-1), Value(0.5), Value("nosuch"),
                               Value(""), Value(1e300), Value(std::nan(""))}) {
        EXPECT_EQ(errorNumberOf([&] { (void)list.positionOfIndex(index); }), 5);
    }
}

TEST(KeyedList, RefusesAnIndexThatIsNeitherNumberNorText) {
    const List list = keyedList();

    for (const Value& index : {Value(true), Value(Empty{}), Value(Missing{}), Value(Null{}),
                               Value(Date{1}), Value(std::shared_ptr<Object>(new Object))}) {
        EXPECT_EQ(errorNumberOf([&] { (void)list.positionOfIndex(index); }), 13);
    }
}

TEST(KeyedList, RemovesByPosition) {
    List list = listOf(5);

    EXPECT_EQ(list.removeAt(2)->number, 2);
    EXPECT_EQ(list.removeAt(1)->number, 1);
    EXPECT_EQ(list.removeAt(3)->number, 5);

    EXPECT_THAT(numbers(list), ElementsAre(3, 4));
}

TEST(KeyedList, CanBeEmptiedAndFilledAgain) {
    List list = keyedList();
    list.removeAt(2);
    list.removeAt(2);
    list.removeAt(1);

    EXPECT_EQ(list.count(), 0U);
    EXPECT_EQ(list.find("a"), nullptr);
    add(list, 4, "a");
    add(list, 5, Missing{}, 1);
    EXPECT_THAT(numbers(list), ElementsAre(5, 4));
}

TEST(KeyedList, RemovesItsOnlyElement) {
    List list = listOf(1);

    EXPECT_EQ(list.removeAt(1)->number, 1);

    EXPECT_EQ(list.count(), 0U);
}

void addNumbered(List& list, std::uint32_t number, const Ref<Entry>& element) {
    list.insert(list.placeForNumber(number), element);
}

// So many elements as those numbers, which are their keys too.
List numberedList(const std::vector<std::uint32_t>& numbers) {
    List list;
    for (const std::uint32_t number : numbers) {
        addNumbered(list, number, entry(static_cast<int>(number)));
    }
    return list;
}

TEST(NumberedKeyedList, FindsItsElementsByTheTextsOfTheirNumbers) {
    const List list = numberedList({1001, 1002, 1005, 999'999'999});

    EXPECT_THAT(numbers(list), ElementsAre(1001, 1002, 1005, 999'999'999));
    EXPECT_EQ(list.find("1005")->number, 1005);
    EXPECT_EQ(list.find("999999999")->number, 999'999'999);
    for (const char* key : {"", "1003", "01005", "+1005", " 1005", "1005 ", "1005.0", "0"}) {
        EXPECT_EQ(list.find(key), nullptr) << key;
    }
}

TEST(NumberedKeyedList, CanBeLong) {
    std::vector<std::uint32_t> ascending(1000);
    std::iota(ascending.begin(), ascending.end(), 10'000'001);
    List list = numberedList(ascending);
    EXPECT_EQ(list.find("10000001")->number, 10'000'001);
    EXPECT_EQ(list.find("10001000")->number, 10'001'000);
    EXPECT_EQ(list.find("10001001"), nullptr);

    add(list, 1, "x", 2);
    list.replaceAt(4, entry(2), "y");

    EXPECT_EQ(list.find("x"), &list.at(2));
    EXPECT_EQ(list.find("y"), &list.at(4));
    EXPECT_EQ(list.find("10000003"), nullptr);
    EXPECT_EQ(list.find("10001000"), &list.at(1001));
    EXPECT_EQ(errorNumberOf([&] { addNumbered(list, 10'000'500, entry(3)); }), 457);
}

TEST(NumberedKeyedList, RefusesANumberWhoseTextIsAKey) {
    List list = numberedList({7});
    add(list, 1, "9");

    for (const std::uint32_t number : {7U, 9U}) {
        EXPECT_EQ(errorNumberOf([&] { addNumbered(list, number, entry(2)); }), 457);
    }
    EXPECT_EQ(errorNumberOf([&] { list.placeFor("7", Missing{}, Missing{}); }), 457);
    addNumbered(list, 8, entry(3));
    EXPECT_THAT(numbers(list), ElementsAre(7, 1, 3));
}

TEST(NumberedKeyedList, TakesNumbersInAnyOrder) {
    const List list = numberedList({5, 3, 4});

    EXPECT_THAT(numbers(list), ElementsAre(5, 3, 4));
    EXPECT_EQ(list.find("3")->number, 3);
}

TEST(NumberedKeyedList, FreesTheNumberOfARemovedElement) {
    List list = numberedList({1, 2, 3, 4});

    list.removeAt(2);

    EXPECT_EQ(list.find("2"), nullptr);
    EXPECT_EQ(list.find("3")->number, 3);
    add(list, 9, "2", 1);
    EXPECT_EQ(list.find("2")->number, 9);
    EXPECT_THAT(numbers(list), ElementsAre(9, 1, 3, 4));
}

TEST(NumberedKeyedList, GivesAReplacedElementItsNewKeyAlone) {
    List list = numberedList({1, 2, 3});

    EXPECT_EQ(errorNumberOf([&] { list.replaceAt(2, entry(9), "2"); }), 457);
    list.replaceAt(2, entry(9), "new");

    EXPECT_EQ(list.find("2"), nullptr);
    EXPECT_EQ(list.find("NEW")->number, 9);
    EXPECT_EQ(list.find("3")->number, 3);
}

TEST(NumberedKeyedList, NeedsNoMemoryToRemoveAnElement) {
    for (const std::size_t position : {1U, 2U, 4U}) {
        List list = numberedList({1, 2, 3, 4});
        failingAllocations::successesLeft = 0;
        list.removeAt(position);
        failingAllocations::successesLeft = -1;
        EXPECT_EQ(list.count(), 3U);
    }
}

TEST(NumberedKeyedList, StaysAsItWasWhenMemoryRunsOut) {
    // One element more than are searched one by one, and one fewer.
    for (const std::uint32_t count : {0U, 4U, 63U, 64U}) {
        const auto prepare = [count] {
            std::vector<std::uint32_t> list(count);
            std::iota(list.begin(), list.end(), 1);
            return std::pair(numberedList(list), entry(0));
        };
        const auto attempt = [count](auto& subject) {
            addNumbered(subject.first, count + 1, subject.second);
            add(subject.first, 1, longKey);
        };
        const auto check = [count](const auto& subject) {
            const List& list = subject.first;
            ASSERT_GE(list.count(), count);
            ASSERT_EQ(list.find(longKey), nullptr);
            for (std::uint32_t number = 1; number <= list.count(); ++number) {
                ASSERT_EQ(list.find(std::to_string(number)), &list.at(number));
            }
        };

        EXPECT_GE(failEachAllocation(prepare, attempt, check), 2);
    }
    EXPECT_EQ(Entry::living, 0);
}

TEST(KeyedList, HoldsItsElementsUntilTheyAreRemoved) {
    {
        List list = keyedList();
        EXPECT_EQ(Entry::living, 3);
        list.removeAt(1);
        EXPECT_EQ(Entry::living, 2);
    }
    EXPECT_EQ(Entry::living, 0);
}

TEST(KeyedList, ReleasesItsElementsWhenItIsCleared) {
    List list = keyedList();

    list.clear();

    EXPECT_EQ(Entry::living, 0);
    EXPECT_EQ(list.count(), 0U);
}

TEST(KeyedList, LeavesARemovedElementToItsHolder) {
    List list = listOf(2);
    const Ref<Entry> held(&list.at(1));

    list.removeAt(1);

    EXPECT_EQ(held->number, 1);
    EXPECT_EQ(held->references, 1);
}

TEST(KeyedList, FindsThePositionOfAnElement) {
    const List list = listOf(5);

    for (std::size_t position = 1; position <= 5; ++position) {
        EXPECT_EQ(list.positionOf(list.at(position)), position);
    }
}

TEST(KeyedList, FindsThePositionOfItsOnlyElement) {
    const List list = listOf(1);

    EXPECT_EQ(list.positionOf(list.at(1)), 1U);
}

TEST(KeyedList, FindsNoPositionOfAnElementThatIsNotInIt) {
    List list = listOf(300);
    const Ref<Entry> removed = list.removeAt(100);
    const Ref<Entry> other = entry(7);

    EXPECT_EQ(list.positionOf(*removed), 0U);
    EXPECT_EQ(list.positionOf(*other), 0U);
    EXPECT_EQ(List().positionOf(*other), 0U);
    EXPECT_EQ(listOf(1).positionOf(*other), 0U);
    EXPECT_EQ(errorNumberOf([&] { (void)list.requiredPositionOf(*removed); }), 5);
}

TEST(KeyedList, FindsPositionsAfterMuchWasMovedUp) {
    List list = listOf(2000);
    for (int i = 0; i < 900; ++i) {
        list.removeAt(100);
    }

    for (std::size_t position = 1; position <= list.count(); ++position) {
        ASSERT_EQ(list.positionOf(list.at(position)), position);
    }
}

TEST(KeyedList, PutsANewElementInThePlaceOfAnother) {
    List list = keyedList();

    list.replaceAt(2, entry(4), "d");

    EXPECT_THAT(numbers(list), ElementsAre(1, 4, 3));
    EXPECT_EQ(list.find("D")->number, 4);
    EXPECT_EQ(list.find("b"), nullptr);
    EXPECT_EQ(list.positionOf(*list.find("d")), 2U);
    EXPECT_EQ(Entry::living, 3);
}

TEST(KeyedList, PutsANewElementInThePlaceOfItsOnlyOne) {
    List list = listOf(1);

    list.replaceAt(1, entry(4), "d");

    EXPECT_THAT(numbers(list), ElementsAre(4));
    EXPECT_EQ(list.find("d")->number, 4);
    EXPECT_EQ(Entry::living, 1);
}

TEST(KeyedList, RefusesToReplaceUnderAKeyThatIsThereAlready) {
    List list = keyedList();

    EXPECT_EQ(errorNumberOf([&] { list.replaceAt(2, entry(4), "a"); }), 457);
    EXPECT_EQ(errorNumberOf([&] { list.replaceAt(2, entry(4), "b"); }), 457);

    EXPECT_THAT(numbers(list), ElementsAre(1, 2, 3));
    EXPECT_EQ(list.find("b")->number, 2);
}

TEST(KeyedList, IsEmptyAfterItWasMoved) {
    List source = keyedList();

    List list = std::move(source);

    EXPECT_THAT(numbers(list), ElementsAre(1, 2, 3));
    EXPECT_EQ(list.find("b")->number, 2);
    EXPECT_THAT(numbers(source), IsEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(KeyedList, ReleasesItsElementsWhenAnotherIsMovedIntoIt) {
    List list = listOf(3);

    list = keyedList();

    EXPECT_EQ(Entry::living, 3);
    EXPECT_EQ(list.find("a")->number, 1);
}

TEST(KeyedList, StaysAsItWasWhenMemoryForAnElementRunsOut) {
    for (const int count : {0, 1, 3, 4, 6, 9}) {
        const auto prepare = [count] { return std::pair(listOf(count), entry(0)); };
        const auto attempt = [](auto& subject) { add(subject.first, subject.second, longKey); };
        const auto check = [count](const auto& subject) {
            const List& list = subject.first;
            ASSERT_EQ(list.count(), static_cast<std::size_t>(count));
            ASSERT_EQ(list.find(longKey), nullptr);
            ASSERT_EQ(subject.second->references, 1);
            for (int number = 1; number <= count; ++number) {
                ASSERT_EQ(list.at(static_cast<std::size_t>(number)).number, number);
            }
        };

        EXPECT_GE(failEachAllocation(prepare, attempt, check), 3);
    }
    EXPECT_EQ(Entry::living, 0);
}

TEST(KeyedList, StaysAsItWasWhenMemoryForOneMoreKeyRunsOut) {
    // With so many keys the next one needs more room, and tables.
    for (const int count : {4, 8}) {
        const auto prepare = [count] {
            List list;
            for (int number = 1; number <= count; ++number) {
                add(list, number, "k" + std::to_string(number));
            }
            return std::pair(std::move(list), entry(0));
        };
        const auto attempt = [](auto& subject) { add(subject.first, subject.second, longKey); };
        const auto check = [count](const auto& subject) {
            const List& list = subject.first;
            ASSERT_EQ(list.count(), static_cast<std::size_t>(count));
            ASSERT_EQ(list.find(longKey), nullptr);
            ASSERT_EQ(subject.second->references, 1);
            for (int number = 1; number <= count; ++number) {
                ASSERT_EQ(list.find("K" + std::to_string(number))->number, number);
            }
        };

        EXPECT_GE(failEachAllocation(prepare, attempt, check), 4);
    }
    EXPECT_EQ(Entry::living, 0);
}

TEST(KeyedList, CanBeUsedAfterMemoryRanOut) {
    const auto prepare = [] { return listOf(1); };
    const auto attempt = [](List& list) { add(list, 2, "key", 1); };
    const auto check = [](List& list) {
        add(list, 3, "key", 1);
        add(list, 4);
        ASSERT_THAT(numbers(list), ElementsAre(3, 1, 4));
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 3);
}

TEST(KeyedList, StaysAsItWasWhenMemoryToReplaceAnElementRunsOut) {
    const auto prepare = [] { return std::pair(listOf(1), entry(2)); };
    const auto attempt = [](auto& subject) { subject.first.replaceAt(1, subject.second, longKey); };
    const auto check = [](const auto& subject) {
        ASSERT_THAT(numbers(subject.first), ElementsAre(1));
        ASSERT_EQ(subject.first.find(longKey), nullptr);
        ASSERT_EQ(subject.second->references, 1);
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 3);
    EXPECT_EQ(Entry::living, 0);
}

// What a keyed list does, done plainly: every search begins at the first element.
class PlainList {
public:
    struct Item {
        int number;
        std::optional<std::string> key;
    };

    std::vector<Item> items;

    std::size_t indexOfKey(const std::string& key) const {
        std::size_t index = 0;
        while (index < items.size() &&
               !(items[index].key && lowerCase(*items[index].key) == lowerCase(key))) {
            ++index;
        }
        return index;
    }

    // 0-based; an error's number is thrown as it is.
    std::size_t indexNamed(const Value& index, int errorOfOtherTypes) const {
        if (index.isText()) {
            const std::size_t found = indexOfKey(index.text());
            return found < items.size() ? found : throw 5;
        }
        if (!index.isNumber()) {
            throw errorOfOtherTypes;
        }
        const double position = std::nearbyint(index.number());
        if (!(position >= 1 && position <= static_cast<double>(items.size()))) {
            throw 5;
        }
        return static_cast<std::size_t>(position) - 1;
    }

    int add(int number, const Value& key, const Value& before, const Value& after) {
        try {
            if (!key.isAbsent() && !key.isText()) {
                throw 13;
            }
            std::size_t index = items.size();
            if (!before.isAbsent() && !after.isAbsent()) {
                throw 5;
            }
            if (!before.isAbsent()) {
                index = indexNamed(before, 5);
            }
            if (!after.isAbsent()) {
                index = indexNamed(after, 5) + 1;
            }
            std::optional<std::string> text;
            if (key.isText()) {
                text = key.text();
                if (indexOfKey(*text) < items.size()) {
                    throw 457;
                }
            }
            items.insert(items.begin() + static_cast<std::ptrdiff_t>(index), {number, text});
        } catch (int error) {
            return error;
        }
        return 0;
    }

    int remove(const Value& index) {
        try {
            items.erase(items.begin() + static_cast<std::ptrdiff_t>(indexNamed(index, 13)));
        } catch (int error) {
            return error;
        }
        return 0;
    }

    int replace(std::size_t index, int number, const std::string& key) {
        if (indexOfKey(key) < items.size()) {
            return 457;
        }
        items[index] = {number, key};
        return 0;
    }
};

class RandomCalls {
public:
    explicit RandomCalls(unsigned seed) : random_(seed) {}

    std::size_t below(std::size_t bound) { return random_() % bound; }

    std::string keyText() {
        static const std::vector<std::string> stems{"a", "B", "\xC3\xA9", "\xC3\x89", "", "k"};
        std::string key = stems[below(stems.size())];
        if (below(3) != 0) {
            key += std::to_string(below(200));
        }
        return key;
    }

    Value key() {
        switch (below(20)) {
            case 0:
                return 7;
            case 1:
                return Null{};
            case 2:
                return Empty{};
            default:
                return below(2) == 0 ? Value(keyText()) : Value(Missing{});
        }
    }

    Value index(std::size_t count) {
        switch (below(12)) {
            case 0:
                return Missing{};
            case 1:
                return true;
            case 2:
                return static_cast<double>(below(count + 2)) + 0.5;
            case 3:
            case 4:
            case 5:
                return keyText();
            case 6:
                return 1;
            case 7:
                return static_cast<std::int32_t>(count);
            default:
                return static_cast<std::int32_t>(below(count + 2));
        }
    }

private:
    std::mt19937 random_;
};

void expectEqual(const List& list, const PlainList& plain) {
    ASSERT_EQ(list.count(), plain.items.size());
    for (std::size_t i = 0; i < plain.items.size(); ++i) {
        ASSERT_EQ(list.at(i + 1).number, plain.items[i].number);
        ASSERT_EQ(list.positionOf(list.at(i + 1)), i + 1);
        if (plain.items[i].key) {
            ASSERT_EQ(list.find(*plain.items[i].key), &list.at(i + 1));
        }
    }
}

class KeyedListLikeAPlainOne : public testing::TestWithParam<unsigned> {};

TEST_P(KeyedListLikeAPlainOne, BehavesAlikeForAnyCalls) {
    RandomCalls calls(GetParam());
    List list;
    PlainList plain;
    const auto addToBoth = [&](std::uint32_t number, int step) {
        const std::string key = std::to_string(number);
        ASSERT_EQ(errorNumberOf([&] { addNumbered(list, number, entry(step)); }),
                  plain.add(step, key, Missing{}, Missing{}));
    };
    for (int step = 1; step <= 6000; ++step) {
        if (step % 1000 == 500) {
            // Most lists whose elements have numbers get them all before anything else happens.
            list.clear();
            plain.items.clear();
            for (std::uint32_t number = 1; number <= 150;
                 number += 1 + static_cast<std::uint32_t>(calls.below(3))) {
                addToBoth(number, step);
            }
        }
        if (calls.below(16) == 0) {
            addToBoth(1 + static_cast<std::uint32_t>(calls.below(200)), step);
        }
        const std::size_t count = plain.items.size();
        const bool grows = step / 1000 % 2 == 0;
        const std::size_t kind = calls.below(12);
        if (kind < (grows ? 8U : 4U)) {
            const Value key = calls.key();
            const Value before = calls.below(3) == 0 ? calls.index(count) : Value(Missing{});
            const Value after = calls.below(4) == 0 ? calls.index(count) : Value(Missing{});
            ASSERT_EQ(errorNumberOf([&] { add(list, step, key, before, after); }),
                      plain.add(step, key, before, after));
        } else if (kind < 11) {
            const Value index = calls.index(count);
            ASSERT_EQ(errorNumberOf([&] { list.removeAt(list.positionOfIndex(index)); }),
                      plain.remove(index));
        } else if (count > 0) {
            const std::size_t index = calls.below(count);
            const std::string key = calls.keyText();
            ASSERT_EQ(errorNumberOf([&] { list.replaceAt(index + 1, entry(step), key); }),
                      plain.replace(index, step, key));
        }
        ASSERT_EQ(list.count(), plain.items.size());
        if (!plain.items.empty()) {
            const std::size_t index = calls.below(plain.items.size());
            ASSERT_EQ(list.at(index + 1).number, plain.items[index].number);
            ASSERT_EQ(list.positionOf(list.at(index + 1)), index + 1);
        }
        if (step % 250 == 0) {
            expectEqual(list, plain);
        }
    }
    EXPECT_EQ(static_cast<std::size_t>(Entry::living), list.count());
}

INSTANTIATE_TEST_SUITE_P(Seeds, KeyedListLikeAPlainOne, testing::Range(1U, 9U));

// The following finish in time only because their calls do not walk over the list.

TEST(LongKeyedList, AddsAndRemovesAtBothEnds) {
    List list;
    const int count = 100'000;
    for (int number = 1; number <= count; ++number) {
        add(list, number);
        add(list, -number, Missing{}, 1);
    }
    for (int number = 1; number < count; ++number) {
        list.removeAt(1);
        list.removeAt(list.count());
    }

    EXPECT_THAT(numbers(list), ElementsAre(-1, 1));
}

TEST(LongKeyedList, ServesAsAQueue) {
    List list = listOf(1000);
    for (int number = 1001; number <= 200'000; ++number) {
        add(list, number);
        list.removeAt(1);
    }

    EXPECT_EQ(list.count(), 1000U);
    EXPECT_EQ(list.at(1).number, 199'001);
}

TEST(LongKeyedList, FindsKeysAndPositions) {
    List list;
    const int count = 100'000;
    for (int number = 1; number <= count; ++number) {
        add(list, number, std::to_string(number));
    }
    for (int number = 1; number <= count; ++number) {
        const Entry* found = list.find(std::to_string(number));
        ASSERT_EQ(list.positionOf(*found), static_cast<std::size_t>(number));
    }
}

TEST(LongKeyedList, FindsPositionsAfterManyRemovalsInTheMiddle) {
    List list = listOf(100'000);
    for (std::size_t position = 2; position < 20'000; ++position) {
        list.removeAt(position);
    }
    for (std::size_t position = 1; position <= list.count(); ++position) {
        ASSERT_EQ(list.positionOf(list.at(position)), position);
    }
}

}  // namespace
}  // namespace quorvane
