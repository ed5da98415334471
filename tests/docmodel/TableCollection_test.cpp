#include "quorvane/docmodel/TableCollection.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/docmodel/documentParts.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// What rows, cells and paragraphs have in common is tested on each of them. The elements are
// distinguished by a number that each kind keeps in some property of its own.

struct Rows {
    static Ref<CRtfTableRows> of(const CellDocument& document) {
        const Ref<CRtfTableRows> rows = document.document->TableRows();
        rows->RemoveHead();
        return rows;
    }
    static void setNumber(CRtfTableRow& row, int number) {
        row.setBackColor(static_cast<tColorIndex>(number));
    }
    static int number(const CRtfTableRow& row) { return row.BackColor(); }
};

struct Cells {
    static Ref<CRtfTableCells> of(const CellDocument& document) {
        document.cells->RemoveHead();
        return document.cells;
    }
    static void setNumber(CRtfTableCell& cell, int number) {
        cell.setAlign(static_cast<tCellAlign>(number));
    }
    static int number(const CRtfTableCell& cell) { return cell.Align(); }
};

struct Paragraphs {
    static Ref<CRtfParagraphs> of(const CellDocument& document) { return document.paragraphs; }
    static void setNumber(CRtfParagraph& paragraph, int number) {
        paragraph.setAlign(static_cast<tCellAlign>(number));
    }
    static int number(const CRtfParagraph& paragraph) { return paragraph.Align(); }
};

template <class Kind>
class Collection : public testing::Test {
protected:
    CellDocument parts;
    CRtfDoc& document = *parts.document;
    decltype(Kind::of(parts)) list = Kind::of(parts);

    void SetUp() override { document.setChanged(false); }

    // Adds an element that bears the number.
    void add(int number, const Value& key = Missing{}, const Value& before = Missing{},
             const Value& after = Missing{}) {
        const std::vector<const void*> old = elements();
        list->add(key, before, after);
        for (int position = 1; position <= list->Count(); ++position) {
            const auto element = list->Item(position);
            if (std::find(old.begin(), old.end(), element.get()) == old.end()) {
                Kind::setNumber(*element, number);
            }
        }
    }

    std::vector<const void*> elements() const {
        std::vector<const void*> found;
        for (int position = 1; position <= list->Count(); ++position) {
            found.push_back(list->Item(position).get());
        }
        return found;
    }

    std::vector<int> numbers() const {
        std::vector<int> found;
        for (int position = 1; position <= list->Count(); ++position) {
            found.push_back(Kind::number(*list->Item(position)));
        }
        return found;
    }

    template <class Action>
    bool changes(Action action) {
        return marksChanged(document, action);
    }

    // Expects the call to fail with the error, and neither list nor flag to be changed by it.
    template <class Call>
    void expectError(std::int32_t error, Call call) {
        const std::vector<const void*> old = elements();
        document.setChanged(false);
        EXPECT_EQ(errorNumberOf(call), error);
        ASSERT_NE(currentError(), nullptr);
        EXPECT_EQ(currentError()->number, error);
        EXPECT_FALSE(document.Changed());
        EXPECT_EQ(elements(), old);
    }
};

using Kinds = testing::Types<Rows, Cells, Paragraphs>;

class KindNames {
public:
    template <class Kind>
    static std::string GetName(int) {
        if constexpr (std::is_same_v<Kind, Rows>) {
            return "Rows";
        } else if constexpr (std::is_same_v<Kind, Cells>) {
            return "Cells";
        } else {
            return "Paragraphs";
        }
    }
};

TYPED_TEST_SUITE(Collection, Kinds, KindNames);

TYPED_TEST(Collection, IsEmptyAtFirst) {
    EXPECT_EQ(this->list->Count(), 0);
    EXPECT_EQ(this->list->PeekHead(), nullptr);
    EXPECT_EQ(this->list->PeekTail(), nullptr);
}

TYPED_TEST(Collection, AddsAtTheEndWithoutAPosition) {
    this->add(1);
    this->add(2);
    this->add(3, "key");

    EXPECT_THAT(this->numbers(), ElementsAre(1, 2, 3));
}

TYPED_TEST(Collection, AddsBeforeOrAfterAPositionOrAKey) {
    this->add(1, "one");
    this->add(2, "two", 1);
    this->add(3, Missing{}, "ONE");
    this->add(4, Missing{}, Missing{}, 1);
    this->add(5, Missing{}, Missing{}, "One");
    this->add(6, "six", 2.5);

    EXPECT_THAT(this->numbers(), ElementsAre(2, 6, 4, 3, 1, 5));
}

TYPED_TEST(Collection, TakesEmptyArgumentsForMissing) {
    this->add(1, Empty{}, Empty{}, Empty{});
    this->add(2, Empty{}, 1, Empty{});

    EXPECT_THAT(this->numbers(), ElementsAre(2, 1));
}

TYPED_TEST(Collection, AddsAtItsHead) {
    this->list->AddHead();
    TypeParam::setNumber(*this->list->PeekHead(), 1);
    this->list->AddHead("key");
    TypeParam::setNumber(*this->list->PeekHead(), 2);
    this->list->AddHead(Empty{});
    TypeParam::setNumber(*this->list->PeekHead(), 3);

    EXPECT_THAT(this->numbers(), ElementsAre(3, 2, 1));
    EXPECT_EQ(this->list->Item("Key"), this->list->Item(2));
}

TYPED_TEST(Collection, FilesAKeyWhenItAddsAtTheHeadOfAnEmptyList) {
    this->list->AddHead("key");

    EXPECT_EQ(this->list->Count(), 1);
    EXPECT_EQ(this->list->Item("key"), this->list->PeekHead());
}

TYPED_TEST(Collection, AddsAtItsTail) {
    this->list->AddTail("key");
    TypeParam::setNumber(*this->list->PeekTail(), 1);
    this->list->AddTail();
    TypeParam::setNumber(*this->list->PeekTail(), 2);
    this->list->AddTail(Empty{});
    TypeParam::setNumber(*this->list->PeekTail(), 3);

    EXPECT_THAT(this->numbers(), ElementsAre(1, 2, 3));
    EXPECT_EQ(this->list->Item("KEY"), this->list->PeekHead());
}

TYPED_TEST(Collection, PeeksAtItsEnds) {
    this->add(1);
    EXPECT_EQ(this->list->PeekHead(), this->list->PeekTail());
    this->add(2);

    EXPECT_EQ(TypeParam::number(*this->list->PeekHead()), 1);
    EXPECT_EQ(TypeParam::number(*this->list->PeekTail()), 2);
}

TYPED_TEST(Collection, ReturnsTheSameElementHoweverItIsNamed) {
    this->add(1);
    this->add(2, "key");

    const auto element = this->list->Item(2);
    EXPECT_EQ(this->list->Item("key"), element);
    EXPECT_EQ(this->list->Item(1.5), element);
    EXPECT_EQ(this->list->Item(2.5), element);
    EXPECT_EQ(this->list->Item(2.0F), element);
    EXPECT_EQ(this->list->Item(std::int16_t{2}), element);
    EXPECT_EQ(this->list->PeekTail(), element);
}

TYPED_TEST(Collection, TakesANumberInATextForAKey) {
    this->add(1);
    this->add(2, "1");

    EXPECT_EQ(TypeParam::number(*this->list->Item("1")), 2);
    EXPECT_EQ(TypeParam::number(*this->list->Item(1)), 1);
}

TYPED_TEST(Collection, RemovesByPositionOrKey) {
    this->add(1);
    this->add(2, "two");
    this->add(3);
    this->add(4);

    this->list->Remove("TWO");
    EXPECT_THAT(this->numbers(), ElementsAre(1, 3, 4));
    this->list->Remove(1.5);
    EXPECT_THAT(this->numbers(), ElementsAre(1, 4));
    this->list->Remove(1);
    EXPECT_THAT(this->numbers(), ElementsAre(4));
}

TYPED_TEST(Collection, RemovesAtItsEnds) {
    this->add(1);
    this->add(2);
    this->add(3);

    this->list->RemoveHead();
    EXPECT_THAT(this->numbers(), ElementsAre(2, 3));
    this->list->removeTail();
    EXPECT_THAT(this->numbers(), ElementsAre(2));
    this->list->RemoveHead();
    EXPECT_THAT(this->numbers(), IsEmpty());
}

TYPED_TEST(Collection, ForgetsTheKeyOfARemovedElement) {
    this->add(1, "key");
    this->list->Remove(1);

    this->expectError(5, [&] { this->list->Item("key"); });
    this->add(2, "key");
    EXPECT_EQ(TypeParam::number(*this->list->Item("key")), 2);
}

TYPED_TEST(Collection, RefusesAKeyThatIsThereAlready) {
    this->add(1, "Key");

    this->expectError(457, [&] { this->list->add("kEY"); });
    this->expectError(457, [&] { this->list->add("key", 1); });
    this->expectError(457, [&] { this->list->AddHead("key"); });
    this->expectError(457, [&] { this->list->AddTail("key"); });
}

TYPED_TEST(Collection, RefusesAKeyThatIsNotAText) {
    this->add(1);
    for (const Value& key : {Value(7), Value(1.5), Value(true), Value(Null{}), Value(Date{1})}) {
        this->expectError(13, [&] { this->list->add(key); });
        this->expectError(13, [&] { this->list->AddHead(key); });
        this->expectError(13, [&] { this->list->AddTail(key); });
    }
}

TYPED_TEST(Collection, RefusesABadPositionToAddAt) {
    this->add(1, "key");
    for (const Value& position : {Value(0), Value(2), Value(-1), Value("nosuch"), Value(true),
                                  Value(Null{}), Value(std::nan(""))}) {
        this->expectError(5, [&] { this->list->add(Missing{}, position); });
        this->expectError(5, [&] { this->list->add(Missing{}, Missing{}, position); });
    }
}

TYPED_TEST(Collection, RefusesTwoPositionsToAddAt) {
    this->add(1);

    this->expectError(5, [&] { this->list->add(Missing{}, 1, 1); });
}

TYPED_TEST(Collection, ChecksTypeThenPositionThenKey) {
    this->add(1, "key");

    this->expectError(13, [&] { this->list->add(7, 99); });
    this->expectError(13, [&] { this->list->add(7, 1, 1); });
    this->expectError(5, [&] { this->list->add("key", 99); });
    this->expectError(5, [&] { this->list->add("key", 1, 1); });
}

TYPED_TEST(Collection, RefusesAnIndexThatNamesNoElement) {
    this->add(1, "key");
    for (const Value& index :
         {Value(0), Value(2), Value(-1), Value(0.5), Value(1.51), Value("nosuch"), Value("1")}) {
        this->expectError(5, [&] { this->list->Item(index); });
        this->expectError(5, [&] { this->list->Remove(index); });
    }
}

TYPED_TEST(Collection, RefusesAnIndexThatIsNeitherNumberNorText) {
    this->add(1);
    for (const Value& index :
         {Value(true), Value(Empty{}), Value(Missing{}), Value(Null{}), Value(Date{1})}) {
        this->expectError(13, [&] { this->list->Item(index); });
        this->expectError(13, [&] { this->list->Remove(index); });
    }
}

TYPED_TEST(Collection, HasTheStandardDescriptionsOfItsErrors) {
    this->add(1, "key");
    const auto description = [](auto call) -> std::string {
        try {
            call();
        } catch (const RtfError& error) {
            EXPECT_EQ(error.source, "");
            return error.description;
        }
        return {};
    };

    EXPECT_EQ(description([&] { this->list->Item(2); }), "Invalid procedure call or argument");
    EXPECT_EQ(description([&] { this->list->Item(true); }), "Type mismatch");
    EXPECT_EQ(description([&] { this->list->add("key"); }),
              "This key is already associated with an element of this collection");
}

TYPED_TEST(Collection, IsChangedByAdding) {
    EXPECT_TRUE(this->changes([&] { this->list->add(); }));
    EXPECT_TRUE(this->changes([&] { this->list->add("key", 1); }));
    EXPECT_TRUE(this->changes([&] { this->list->AddHead(); }));
    EXPECT_TRUE(this->changes([&] { this->list->AddTail(); }));
}

TYPED_TEST(Collection, IsChangedByRemoving) {
    this->list->add("key");
    this->list->add();
    this->list->add();
    this->list->add();

    EXPECT_TRUE(this->changes([&] { this->list->Remove("key"); }));
    EXPECT_TRUE(this->changes([&] { this->list->Remove(1); }));
    EXPECT_TRUE(this->changes([&] { this->list->RemoveHead(); }));
    EXPECT_TRUE(this->changes([&] { this->list->removeTail(); }));
}

TYPED_TEST(Collection, IsChangedByRemovingTheHeadWhileEmpty) {
    EXPECT_TRUE(this->changes([&] { this->list->RemoveHead(); }));
    EXPECT_EQ(this->list->Count(), 0);
}

TYPED_TEST(Collection, IsNotChangedByReading) {
    this->list->add("key");

    EXPECT_FALSE(this->changes([&] {
        (void)this->list->Count();
        (void)this->list->Item(1);
        (void)this->list->Item("key");
        (void)this->list->PeekHead();
        (void)this->list->PeekTail();
        (void)this->list->Parent();
    }));
}

TYPED_TEST(Collection, ForgetsTheLastErrorWithEveryCallThatCanFail) {
    this->list->add("key");
    const auto expectForgotten = [](auto call) {
        setCurrentError(RtfError(RunTimeError::Overflow));
        call();
        EXPECT_EQ(currentError(), nullptr);
    };

    expectForgotten([&] { this->list->Item(1); });
    expectForgotten([&] { this->list->add(); });
    expectForgotten([&] { this->list->AddHead(); });
    expectForgotten([&] { this->list->AddTail(); });
    expectForgotten([&] { this->list->Remove("key"); });
    expectForgotten([&] { this->list->RemoveHead(); });
    expectForgotten([&] { this->list->removeTail(); });
}

// The collection as a vector whose every search begins at the first element.
struct PlainCollection {
    struct Element {
        int number;
        std::optional<std::string> key;
    };
    std::vector<Element> elements;

    std::ptrdiff_t find(const std::string& key) const {
        for (std::size_t i = 0; i < elements.size(); ++i) {
            if (elements[i].key == key) {
                return static_cast<std::ptrdiff_t>(i);
            }
        }
        return -1;
    }

    // 0-based index of a position or a key, -1 when no element has it.
    std::ptrdiff_t find(const Value& index) const {
        if (index.isText()) {
            return find(index.text());
        }
        const auto position = static_cast<std::ptrdiff_t>(index.number());
        return position <= std::ssize(elements) ? position - 1 : -1;
    }
};

TYPED_TEST(Collection, DoesWhatAPlainListDoes) {
    std::mt19937 random(5);
    const auto below = [&random](std::size_t bound) { return static_cast<int>(random() % bound); };
    PlainCollection plain;
    const auto anyIndex = [&]() -> Value {
        return below(3) == 0 ? Value(std::to_string(below(60)))
                             : Value(below(plain.elements.size() + 2));
    };
    for (int step = 1; step <= 3000; ++step) {
        auto& elements = plain.elements;
        const int kind = below(step / 500 % 2 == 0 ? 14 : 20);
        if (kind < 10) {
            const std::optional<std::string> key =
                below(2) == 0 ? std::optional(std::to_string(below(60))) : std::nullopt;
            const int place = below(5);
            std::ptrdiff_t index = std::ssize(elements);
            Value before = Missing{};
            Value after = Missing{};
            if (place == 0) {
                before = anyIndex();
                index = plain.find(before);
            } else if (place == 1) {
                after = anyIndex();
                index = plain.find(after);
                index += index < 0 ? 0 : 1;
            } else if (place == 2) {
                index = 0;
            }
            const int expected = index < 0 ? 5 : key && plain.find(*key) >= 0 ? 457 : 0;
            const Value keyValue = key ? Value(*key) : Value(Missing{});
            this->document.setChanged(false);
            ASSERT_EQ(errorNumberOf([&] {
                          if (place == 2) {
                              this->list->AddHead(keyValue);
                          } else if (place == 3) {
                              this->list->AddTail(keyValue);
                          } else {
                              this->list->add(keyValue, before, after);
                          }
                      }),
                      expected);
            ASSERT_EQ(this->document.Changed(), expected == 0);
            if (expected == 0) {
                elements.insert(elements.begin() + index, {step, key});
                TypeParam::setNumber(*this->list->Item(static_cast<int>(index) + 1), step);
            }
        } else if (kind < 16) {
            const Value index = anyIndex();
            const std::ptrdiff_t found = plain.find(index);
            this->document.setChanged(false);
            ASSERT_EQ(errorNumberOf([&] { this->list->Remove(index); }), found < 0 ? 5 : 0);
            ASSERT_EQ(this->document.Changed(), found >= 0);
            if (found >= 0) {
                elements.erase(elements.begin() + found);
            }
        } else if (!elements.empty() && kind < 18) {
            this->list->RemoveHead();
            elements.erase(elements.begin());
        } else if (!elements.empty()) {
            this->list->removeTail();
            elements.pop_back();
        }
        ASSERT_EQ(this->list->Count(), std::ssize(elements));
        if (step % 50 == 0) {
            for (std::size_t i = 0; i < elements.size(); ++i) {
                const auto element = this->list->Item(static_cast<int>(i) + 1);
                ASSERT_EQ(TypeParam::number(*element), elements[i].number);
                if (elements[i].key) {
                    ASSERT_EQ(this->list->Item(*elements[i].key), element);
                }
            }
        }
    }
}

}  // namespace
}  // namespace quorvane
