#include "quorvane/support/CStringList.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "quorvane/support/CStringCompare.h"
#include "quorvane/support/currentError.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> stringsOf(const CStringList& list) {
    std::vector<std::string> strings;
    for (const std::string& text : list.NewEnum()) {
        strings.push_back(text);
    }
    return strings;
}

CStringList listOf(std::initializer_list<const char*> strings) {
    CStringList list;
    for (const char* text : strings) {
        list.AddTail(text);
    }
    return list;
}

// "one", "two" and "three", each with its first letter as its key, but for "three".
CStringList keyedList() {
    CStringList list;
    list.add("one", "o");
    list.add("two", "t");
    list.add("three");
    return list;
}

TEST(CStringListTest, IsEmptyAtFirst) {
    const CStringList list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.CharSize(), 0);
    EXPECT_THAT(stringsOf(list), IsEmpty());
}

TEST(CStringListTest, AddsAtTheEnd) {
    CStringList list;
    EXPECT_TRUE(list.add("a"));
    EXPECT_TRUE(list.add("b"));
    EXPECT_THAT(stringsOf(list), ElementsAre("a", "b"));
    EXPECT_FALSE(list.IsEmpty());
    EXPECT_EQ(list.Count(), 2);
}

TEST(CStringListTest, FindsByPositionAndByKey) {
    const CStringList list = keyedList();
    EXPECT_EQ(list.Item(1), "one");
    EXPECT_EQ(list.Item(3), "three");
    EXPECT_EQ(list.Item("t"), "two");
}

TEST(CStringListTest, ComparesKeysWithoutRegardToCase) {
    CStringList list;
    list.add("a", "BottomMargin");
    list.add("b", "\xC3\x89");
    EXPECT_EQ(list.Item("bottommargin"), "a");
    EXPECT_EQ(list.Item("\xC3\xA9"), "b");
    EXPECT_FALSE(list.add("c", "BOTTOMMARGIN"));
}

TEST(CStringListTest, RoundsAPositionHalfToEven) {
    const CStringList list = keyedList();
    EXPECT_EQ(list.Item(0.6), "one");
    EXPECT_EQ(list.Item(1.5), "two");
    EXPECT_EQ(list.Item(2.5f), "two");
    EXPECT_EQ(list.Item(std::int16_t{3}), "three");
    EXPECT_EQ(list.Item(3.4), "three");
}

TEST(CStringListTest, AnUnknownKeyIsAnError) {
    const CStringList list = keyedList();
    EXPECT_EQ(errorNumberOf([&] { list.Item("x"); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.Item(""); }), 5);
}

TEST(CStringListTest, APositionOutsideTheListIsAnError) {
    const CStringList list = keyedList();
    for (const double position : {0.0, 0.5, -1.0, 3.5, 4.0, 1e300, -1e300}) {
        EXPECT_EQ(errorNumberOf([&] { list.Item(position); }), 5) << position;
    }
    EXPECT_EQ(errorNumberOf([&] { list.Item(std::numeric_limits<double>::quiet_NaN()); }), 5);
    EXPECT_EQ(errorNumberOf([] { CStringList().Item(1); }), 5);
}

TEST(CStringListTest, AnIndexThatIsNeitherTextNorNumberIsAnError) {
    CStringList list = keyedList();
    for (const Value& index : {Value(), Value(Missing{}), Value(Null{}), Value(true)}) {
        EXPECT_EQ(errorNumberOf([&] { list.Item(index); }), 13);
        EXPECT_EQ(errorNumberOf([&] { list.setItem(index, "x"); }), 13);
        EXPECT_EQ(errorNumberOf([&] { list.Remove(index); }), 13);
    }
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "two", "three"));
}

TEST(CStringListTest, ReplacesAStringInItsPlace) {
    CStringList list = keyedList();
    list.setItem("t", "zwei");
    list.setItem(3, "drei");
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "zwei", "drei"));
    EXPECT_EQ(list.Item("t"), "zwei");
}

TEST(CStringListTest, ReplacingWhatIsNotThereIsAnError) {
    CStringList list = keyedList();
    EXPECT_EQ(errorNumberOf([&] { list.setItem("x", "y"); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.setItem(4, "y"); }), 5);
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "two", "three"));
}

TEST(CStringListTest, RemovesByPositionAndByKey) {
    CStringList list = keyedList();
    list.Remove("o");
    EXPECT_THAT(stringsOf(list), ElementsAre("two", "three"));
    EXPECT_EQ(list.Item("t"), "two");
    list.Remove(2);
    EXPECT_THAT(stringsOf(list), ElementsAre("two"));
}

TEST(CStringListTest, RemovingWhatIsNotThereIsAnError) {
    CStringList list = keyedList();
    EXPECT_EQ(errorNumberOf([&] { list.Remove("x"); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.Remove(0); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.Remove(4); }), 5);
    EXPECT_EQ(list.Count(), 3);
}

TEST(CStringListTest, AKeyIsFreeAgainWhenItsStringIsRemoved) {
    CStringList list = keyedList();
    list.Remove(1);
    EXPECT_TRUE(list.add("uno", "O"));
    EXPECT_EQ(list.Item("o"), "uno");
}

TEST(CStringListTest, InsertsBeforeAPositionOrKey) {
    CStringList list = keyedList();
    EXPECT_TRUE(list.add("a", Missing{}, 1));
    EXPECT_TRUE(list.add("b", Missing{}, "T"));
    EXPECT_TRUE(list.add("c", "c", 5));
    EXPECT_THAT(stringsOf(list), ElementsAre("a", "one", "b", "two", "c", "three"));
    EXPECT_EQ(list.Item("o"), "one");
    EXPECT_EQ(list.Item("t"), "two");
    EXPECT_EQ(list.Item("c"), "c");
}

TEST(CStringListTest, InsertsAfterAPositionOrKey) {
    CStringList list = keyedList();
    EXPECT_TRUE(list.add("a", "a", Missing{}, 1));
    EXPECT_TRUE(list.add("b", Missing{}, Empty{}, "t"));
    EXPECT_TRUE(list.add("c", Empty{}, Missing{}, 5));
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "a", "two", "b", "three", "c"));
    EXPECT_EQ(list.Item("a"), "a");
    EXPECT_EQ(list.Item("t"), "two");
}

TEST(CStringListTest, AddsNothingUnderAPresentKey) {
    CStringList list = keyedList();
    EXPECT_FALSE(list.add("x", "O"));
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "two", "three"));
    EXPECT_EQ(list.Item("o"), "one");
    EXPECT_EQ(list.CharSize(), 11);
}

TEST(CStringListTest, AddsNothingUnderAKeyThatIsNotAText) {
    CStringList list = keyedList();
    EXPECT_FALSE(list.add("x", 7));
    EXPECT_FALSE(list.add("x", Null{}));
    EXPECT_FALSE(list.add("x", true));
    EXPECT_EQ(list.Count(), 3);
}

TEST(CStringListTest, AddsNothingBeforeOrAfterWhatIsNotThere) {
    CStringList list = keyedList();
    for (const Value& place : {Value(0), Value(4), Value("x"), Value(Null{}), Value(true)}) {
        EXPECT_FALSE(list.add("x", "new", place));
        EXPECT_FALSE(list.add("x", "new", Missing{}, place));
    }
    EXPECT_FALSE(CStringList().add("x", Missing{}, 1));
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "two", "three"));
    EXPECT_EQ(list.CharSize(), 11);
    EXPECT_TRUE(list.add("x", "new"));
}

TEST(CStringListTest, AddsNothingBeforeAndAfter) {
    CStringList list = keyedList();
    EXPECT_FALSE(list.add("x", Missing{}, 1, 1));
    EXPECT_EQ(list.Count(), 3);
}

TEST(CStringListTest, RaisesNothingWhenItAddsNothing) {
    clearCurrentError();
    CStringList list = keyedList();
    list.add("x", "o");
    list.add("x", 7, 1e300, true);
    EXPECT_EQ(currentError(), nullptr);
}

TEST(CStringListTest, TakesAnEmptyTextAsAKeyLikeAnyOther) {
    CStringList list;
    EXPECT_TRUE(list.add("a", ""));
    EXPECT_FALSE(list.add("b", ""));
    EXPECT_EQ(list.Item(""), "a");
}

TEST(CStringListTest, AddsAtTheHeadAndAtTheTail) {
    CStringList list;
    EXPECT_TRUE(list.AddHead("b", "kb"));
    EXPECT_TRUE(list.AddHead("a"));
    EXPECT_TRUE(list.AddTail("c", "kc"));
    EXPECT_FALSE(list.AddHead("x", "KB"));
    EXPECT_FALSE(list.AddTail("x", "KB"));
    EXPECT_THAT(stringsOf(list), ElementsAre("a", "b", "c"));
    EXPECT_EQ(list.Item("kb"), "b");
    EXPECT_EQ(list.Item("kc"), "c");
}

TEST(CStringListTest, ShowsItsHeadAndItsTail) {
    const CStringList list = keyedList();
    EXPECT_EQ(list.GetHead(), "one");
    EXPECT_EQ(list.GetTail(), "three");
    EXPECT_EQ(list.Count(), 3);
}

TEST(CStringListTest, HasNeitherHeadNorTailWhenItIsEmpty) {
    const CStringList list;
    EXPECT_EQ(errorNumberOf([&] { list.GetHead(); }), 5);
    EXPECT_EQ(errorNumberOf([&] { list.GetTail(); }), 5);
}

TEST(CStringListTest, RemovesItsHeadAndItsTail) {
    CStringList list = keyedList();
    list.RemoveHead();
    EXPECT_THAT(stringsOf(list), ElementsAre("two", "three"));
    EXPECT_EQ(list.Item("t"), "two");
    list.removeTail();
    EXPECT_THAT(stringsOf(list), ElementsAre("two"));
    EXPECT_EQ(list.Item("t"), "two");
}

TEST(CStringListTest, RemovesNoHeadOrTailWhenItIsEmpty) {
    CStringList list;
    list.RemoveHead();
    list.removeTail();
    EXPECT_TRUE(list.IsEmpty());
}

TEST(CStringListTest, IndexReturnsThePositionOfTheKeyedString) {
    const CStringList list = keyedList();
    EXPECT_EQ(list.Index("o"), 1);
    EXPECT_EQ(list.Index("T"), 2);
}

TEST(CStringListTest, IndexReturnsTheEarliestOfEqualStrings) {
    CStringList list;
    list.add("same");
    list.add("same", "k");
    EXPECT_EQ(list.Index("k"), 1);
}

TEST(CStringListTest, IndexOfAnAbsentKeyIsNotFound) {
    EXPECT_EQ(keyedList().Index("one"), -1);
    EXPECT_EQ(CStringList().Index("o"), -1);
    EXPECT_EQ(CStringList::notFound, -1);
}

TEST(CStringListTest, CharSizeCountsTheCharactersOfAllStringsEverAdded) {
    CStringList list;
    list.add("abc");
    list.AddHead("caf\xC3\xA9");
    list.AddTail("\xF0\x9F\x98\x80");
    EXPECT_EQ(list.CharSize(), 8);
    list.RemoveHead();
    list.setItem(1, "longer than before");
    EXPECT_EQ(list.CharSize(), 8);
}

TEST(CStringListTest, ClearRemovesAllAndBeginsToCountAgain) {
    CStringList list = keyedList();
    list.clear();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.CharSize(), 0);
    EXPECT_TRUE(list.add("x", "o"));
    EXPECT_EQ(list.CharSize(), 1);
}

TEST(CStringListTest, AppendsAnotherListWithoutItsKeys) {
    CStringList list = listOf({"a"});
    list.nAppend(keyedList());
    EXPECT_THAT(stringsOf(list), ElementsAre("a", "one", "two", "three"));
    EXPECT_EQ(errorNumberOf([&] { list.Item("o"); }), 5);
    EXPECT_EQ(list.CharSize(), 12);
}

TEST(CStringListTest, AppendsNothingOfAnEmptyList) {
    CStringList list = listOf({"a"});
    list.nAppend(CStringList());
    EXPECT_THAT(stringsOf(list), ElementsAre("a"));
}

TEST(CStringListTest, AppendsItselfOnce) {
    CStringList list = listOf({"a", "b"});
    list.nAppend(list);
    EXPECT_THAT(stringsOf(list), ElementsAre("a", "b", "a", "b"));
}

TEST(CStringListTest, JoinsItsStringsWithTheSeparatorBetween) {
    EXPECT_EQ(listOf({"a", "", "c"}).ConCat("\r\n"), "a\r\n\r\nc");
    EXPECT_EQ(listOf({"a", "b"}).ConCat(""), "ab");
    EXPECT_EQ(listOf({"a"}).ConCat("#"), "a");
    EXPECT_EQ(listOf({"", ""}).ConCat("#"), "#");
}

TEST(CStringListTest, JoinsToNothingWhenItIsEmpty) {
    EXPECT_EQ(CStringList().ConCat("#"), "");
}

TEST(CStringListTest, JoinsUpToTheFirstZero) {
    CStringList list = listOf({"a"});
    list.AddTail(std::string("b\0c", 3));
    list.AddTail("d");
    EXPECT_EQ(list.ConCat("#"), "a#b");
    EXPECT_EQ(listOf({"a", "b"}).ConCat(std::string_view("\0", 1)), "a");
}

TEST(CStringListTest, FindsTheFirstStringThatFitsAPattern) {
    const CStringList list = listOf({"\\fonttbl", "Arial", "Arial Black"});
    EXPECT_EQ(list.Find("Arial"), 2);
    EXPECT_EQ(list.Find("Arial*"), 2);
    EXPECT_EQ(list.Find("*Black"), 3);
    EXPECT_EQ(list.Find("?fonttbl"), 1);
}

TEST(CStringListTest, FindsNothingThatFitsNoPattern) {
    EXPECT_EQ(listOf({"Arial"}).Find("arial"), -1);
    EXPECT_EQ(listOf({"Arial"}).Find(""), -1);
    EXPECT_EQ(CStringList().Find("*"), -1);
}

TEST(CStringListTest, FindingAMalformedPatternIsAnError) {
    EXPECT_EQ(errorNumberOf([] { CStringList().Find("["); }), 5);
}

TEST(CStringListTest, SortsByAComparer) {
    CStringList list = listOf({"pear", "Apple", "fig", "apricot", "Banana"});
    list.Sort(CStringCompare());
    EXPECT_THAT(stringsOf(list), ElementsAre("Apple", "apricot", "Banana", "fig", "pear"));
}

TEST(CStringListTest, KeepsTheOrderOfStringsThatAreEqual) {
    CStringList list = listOf({"b", "A", "a", "B", "a", "A"});
    list.Sort(CStringCompare());
    EXPECT_THAT(stringsOf(list), ElementsAre("A", "a", "a", "A", "b", "B"));
}

TEST(CStringListTest, KeepsTheKeysOfSortedStrings) {
    CStringList list = keyedList();
    list.AddHead("zero", "z");
    list.RemoveHead();
    list.AddHead("zero", "z");
    list.Sort(CStringCompare());
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "three", "two", "zero"));
    EXPECT_EQ(list.Item("o"), "one");
    EXPECT_EQ(list.Item("t"), "two");
    EXPECT_EQ(list.Item("z"), "zero");
    list.Remove("t");
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "three", "zero"));
}

TEST(CStringListTest, SortingDoesNotChangeCharSize) {
    CStringList list = keyedList();
    list.removeTail();
    list.Sort(CStringCompare());
    EXPECT_EQ(list.CharSize(), 11);
}

TEST(CStringListTest, SortsNothingWhenItIsEmpty) {
    CStringList list;
    list.Sort(CStringCompare());
    EXPECT_TRUE(list.IsEmpty());
}

TEST(CStringListTest, StaysAsItWasWhenTheComparerThrows) {
    class Throwing : public IStringCompare {
    public:
        std::int32_t comp(std::string_view A, std::string_view B) const override {
            // Whichever element is the pivot, the first round compares "a" with another one.
            if (A == "a" || B == "a") {
                throw std::runtime_error("not comparable");
            }
            return 1;
        }
    };
    CStringList list = listOf({"c", "b", "a", "d", "e"});
    EXPECT_THROW(list.Sort(Throwing()), std::runtime_error);
    EXPECT_THAT(stringsOf(list), ElementsAre("c", "b", "a", "d", "e"));
}

TEST(CStringListTest, SortsManyEqualStringsInLittleTime) {
    class Counting : public IStringCompare {
    public:
        std::int32_t comp(std::string_view A, std::string_view B) const override {
            ++comparisons;
            return A < B ? -1 : A > B ? 1 : 0;
        }
        mutable std::size_t comparisons = 0;
    };
    CStringList list;
    for (int i = 0; i < 20000; ++i) {
        list.AddTail("same");
    }
    Counting comparer;
    list.Sort(comparer);
    EXPECT_EQ(list.Count(), 20000);
    EXPECT_LT(comparer.comparisons, 2000000u);
}

TEST(CStringListTest, SortsRecordsByASubfield) {
    CStringList list = listOf({"^a3^bc", "^a1^bB", "^a2^ba"});
    list.SortBySubField("b");
    EXPECT_THAT(stringsOf(list), ElementsAre("^a2^ba", "^a1^bB", "^a3^bc"));
    list.SortBySubField("A");
    EXPECT_THAT(stringsOf(list), ElementsAre("^a1^bB", "^a2^ba", "^a3^bc"));
}

TEST(CStringListTest, SortsRecordsByTheWholeStringForAnEmptyCode) {
    CStringList list = listOf({"^b1", "^A2", "^a1"});
    list.SortBySubField("");
    EXPECT_THAT(stringsOf(list), ElementsAre("^a1", "^A2", "^b1"));
}

TEST(CStringListTest, CopiesAreListsOfTheirOwn) {
    const CStringList list = keyedList();
    CStringList copy = list;
    copy.Remove("o");
    copy.setItem("t", "zwei");
    EXPECT_THAT(stringsOf(list), ElementsAre("one", "two", "three"));
    EXPECT_EQ(list.Item("t"), "two");
}

TEST(CStringListTest, DoesAsAPlainListDoes) {
    struct Element {
        std::string text;
        std::string key;
    };
    std::mt19937 random(1);
    for (int round = 0; round < 30; ++round) {
        CStringList list;
        std::vector<Element> model;
        const auto place = [&](const std::string& key) {
            const auto found = std::find_if(
                model.begin(), model.end(),
                [&key](const Element& element) { return !key.empty() && element.key == key; });
            return found - model.begin();
        };
        const auto size = [&model] { return static_cast<std::ptrdiff_t>(model.size()); };
        for (int step = 0; step < 400; ++step) {
            const std::string text = std::to_string(random() % 50);
            const std::string key = random() % 2 == 0 ? "" : "k" + std::to_string(random() % 30);
            const Value keyValue = key.empty() ? Value(Missing{}) : Value(key);
            const auto position = static_cast<std::int32_t>(random() % (model.size() + 2));
            const bool hasPosition = position >= 1 && position <= size();
            const bool keyIsTaken = place(key) != size();
            switch (random() % 10) {
                case 0:
                    ASSERT_EQ(list.AddHead(text, keyValue), !keyIsTaken);
                    if (!keyIsTaken) {
                        model.insert(model.begin(), {text, key});
                    }
                    break;
                case 1:
                case 2:
                    ASSERT_EQ(list.AddTail(text, keyValue), !keyIsTaken);
                    if (!keyIsTaken) {
                        model.push_back({text, key});
                    }
                    break;
                case 3:
                    ASSERT_EQ(list.add(text, keyValue, position), hasPosition && !keyIsTaken);
                    if (hasPosition && !keyIsTaken) {
                        model.insert(model.begin() + position - 1, {text, key});
                    }
                    break;
                case 4:
                    ASSERT_EQ(list.add(text, keyValue, Missing{}, position),
                              hasPosition && !keyIsTaken);
                    if (hasPosition && !keyIsTaken) {
                        model.insert(model.begin() + position, {text, key});
                    }
                    break;
                case 5:
                    ASSERT_EQ(errorNumberOf([&] { list.Remove(position); }), hasPosition ? 0 : 5);
                    if (hasPosition) {
                        model.erase(model.begin() + position - 1);
                    }
                    break;
                case 6:
                    if (keyIsTaken) {
                        list.Remove(key);
                        model.erase(model.begin() + place(key));
                    }
                    break;
                case 7:
                    list.RemoveHead();
                    if (!model.empty()) {
                        model.erase(model.begin());
                    }
                    break;
                case 8:
                    list.removeTail();
                    if (!model.empty()) {
                        model.pop_back();
                    }
                    break;
                default:
                    if (step % 10 == 0) {
                        list.Sort(CStringCompare());
                        std::stable_sort(
                            model.begin(), model.end(),
                            [](const Element& a, const Element& b) { return a.text < b.text; });
                    }
            }
            ASSERT_EQ(list.Count(), size());
            for (std::size_t i = 0; i < model.size(); ++i) {
                ASSERT_EQ(list.Item(static_cast<std::int32_t>(i) + 1), model[i].text);
                if (!model[i].key.empty()) {
                    ASSERT_EQ(&list.Item(model[i].key),
                              &list.Item(static_cast<std::int32_t>(i) + 1));
                }
            }
        }
    }
}

TEST(CStringListTest, TakesManyStringsAtEitherEnd) {
    CStringList list;
    list.add("first", "f");
    for (int i = 0; i < 100000; ++i) {
        list.AddHead("head");
        list.AddTail("tail");
    }
    EXPECT_EQ(list.Count(), 200001);
    EXPECT_EQ(list.Item("f"), "first");
    EXPECT_EQ(list.Index("f"), 100001);
    while (list.Count() > 1) {
        list.RemoveHead();
        list.removeTail();
    }
    EXPECT_EQ(list.Item("f"), "first");
}

TEST(CStringListTest, CharSizeHas32Bits) {
    static_assert(std::is_same_v<decltype(CStringList().CharSize()), std::int32_t>);
    CStringList list;
    const std::string text(std::size_t{1} << 28U, 'x');
    for (int i = 0; i < 9; ++i) {
        list.AddTail(text);
        list.removeTail();
    }
    EXPECT_EQ(list.CharSize(), 2147483647);
}

}  // namespace
}  // namespace quorvane
