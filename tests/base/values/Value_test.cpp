#include "quorvane/base/values/Value.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quorvane {
namespace {

class Thing : public Object {};
class OtherThing : public Object {};

std::int16_t shortInteger(int value) {
    return static_cast<std::int16_t>(value);
}

/// One value of each kind.
std::vector<Value> oneOfEachKind() {
    return {Missing{},
            Empty{},
            Null{},
            true,
            shortInteger(1),
            2,
            3.5F,
            4.5,
            Date{5},
            "text",
            Value(std::shared_ptr<Object>(std::make_shared<Thing>()))};
}

TEST(Value, IsEmptyAtFirst) {
    EXPECT_TRUE(Value().holds<Empty>());
}

TEST(Value, HoldsWhatItWasMadeOf) {
    EXPECT_TRUE(Value(Missing{}).holds<Missing>());
    EXPECT_TRUE(Value(Empty{}).holds<Empty>());
    EXPECT_TRUE(Value(Null{}).holds<Null>());
    EXPECT_TRUE(Value(true).holds<bool>());
    EXPECT_TRUE(Value(shortInteger(1)).holds<std::int16_t>());
    EXPECT_TRUE(Value(1).holds<std::int32_t>());
    EXPECT_TRUE(Value(1.5F).holds<float>());
    EXPECT_TRUE(Value(1.5).holds<double>());
    EXPECT_TRUE(Value(Date{1}).holds<Date>());
    EXPECT_TRUE(Value(std::string("a")).holds<std::string>());
    EXPECT_TRUE(Value(std::shared_ptr<Object>()).holds<std::shared_ptr<Object>>());
}

TEST(Value, TakesALiteralForAText) {
    EXPECT_TRUE(Value("a").isText());
    EXPECT_EQ(Value("a").text(), "a");
}

TEST(Value, TakesAPartOfATextForAText) {
    EXPECT_EQ(Value(std::string_view("abc").substr(1)).text(), "bc");
}

TEST(Value, KeepsANulInAText) {
    EXPECT_EQ(Value(std::string("a\0b", 3)).text(), std::string("a\0b", 3));
}

TEST(Value, IsAbsentWhenMissingOrEmptyOnly) {
    for (const Value& value : oneOfEachKind()) {
        EXPECT_EQ(value.isAbsent(), value.holds<Missing>() || value.holds<Empty>())
            << value.data().index();
    }
}

TEST(Value, IsTextWhenAStringOnly) {
    for (const Value& value : oneOfEachKind()) {
        EXPECT_EQ(value.isText(), value.holds<std::string>()) << value.data().index();
    }
}

TEST(Value, IsANumberWhenAnIntegerOrFloatingOnly) {
    for (const Value& value : oneOfEachKind()) {
        const bool expected = value.holds<std::int16_t>() || value.holds<std::int32_t>() ||
                              value.holds<float>() || value.holds<double>();
        EXPECT_EQ(value.isNumber(), expected) << value.data().index();
    }
}

TEST(Value, ReturnsEveryKindOfNumberAsADouble) {
    EXPECT_EQ(Value(shortInteger(-32768)).number(), -32768.0);
    EXPECT_EQ(Value(std::numeric_limits<std::int32_t>::max()).number(), 2147483647.0);
    EXPECT_EQ(Value(0.5F).number(), 0.5);
    EXPECT_EQ(Value(0.1).number(), 0.1);
}

TEST(Value, HasNoNumberWhenItIsNotANumber) {
    EXPECT_THROW(static_cast<void>(Value("1").number()), std::bad_variant_access);
}

TEST(Value, HasNoTextWhenItIsNotAText) {
    EXPECT_THROW(static_cast<void>(Value(1).text()), std::bad_variant_access);
}

TEST(Value, ReturnsAnObjectAsItsClass) {
    const auto thing = std::make_shared<Thing>();

    EXPECT_EQ(Value(std::shared_ptr<Object>(thing)).object<Thing>(), thing);
}

TEST(Value, ReturnsNoObjectOfAnotherClass) {
    const Value value(std::shared_ptr<Object>(std::make_shared<Thing>()));

    EXPECT_EQ(value.object<OtherThing>(), nullptr);
}

TEST(Value, ReturnsNoObjectWhenItHoldsSomethingElse) {
    EXPECT_EQ(Value("a").object<Thing>(), nullptr);
}

TEST(Value, NumbersAreEqualByValueWhateverTheirKind) {
    EXPECT_EQ(Value(shortInteger(2)), Value(2));
    EXPECT_EQ(Value(2), Value(2.0));
    EXPECT_EQ(Value(2.0), Value(2.0F));
    EXPECT_NE(Value(2), Value(2.5));
    EXPECT_NE(Value(2), Value(3));
}

TEST(Value, TextsAreEqualToTheLetter) {
    EXPECT_EQ(Value("abc"), Value("abc"));
    EXPECT_NE(Value("abc"), Value("ABC"));
    EXPECT_NE(Value("abc"), Value("abc "));
}

TEST(Value, ObjectsAreEqualByIdentity) {
    const auto first = std::shared_ptr<Object>(std::make_shared<Thing>());
    const auto second = std::shared_ptr<Object>(std::make_shared<Thing>());

    EXPECT_EQ(Value(first), Value(first));
    EXPECT_NE(Value(first), Value(second));
}

TEST(Value, DatesAndBooleansAreEqualByValue) {
    EXPECT_EQ(Value(Date{1.5}), Value(Date{1.5}));
    EXPECT_NE(Value(Date{1.5}), Value(Date{2}));
    EXPECT_EQ(Value(true), Value(true));
    EXPECT_NE(Value(true), Value(false));
}

TEST(Value, ValuesOfDifferentKindsAreNotEqual) {
    const std::vector<Value> values{Missing{}, Empty{}, Null{}, true, 1, Date{1}, "1"};

    for (std::size_t i = 0; i < values.size(); ++i) {
        for (std::size_t j = 0; j < values.size(); ++j) {
            EXPECT_EQ(values[i] == values[j], i == j) << i << " and " << j;
        }
    }
}

TEST(ValueHash, AgreesForNumbersThatAreEqual) {
    const ValueHash hash;

    EXPECT_EQ(hash(Value(shortInteger(2))), hash(Value(2)));
    EXPECT_EQ(hash(Value(2)), hash(Value(2.0F)));
    EXPECT_EQ(hash(Value(2.0F)), hash(Value(2.0)));
    EXPECT_EQ(hash(Value(0.0)), hash(Value(-0.0)));
}

TEST(ValueHash, AgreesForEqualValuesOfEveryKind) {
    const ValueHash hash;

    for (const Value& value : oneOfEachKind()) {
        const Value copy = value;
        ASSERT_EQ(copy, value) << value.data().index();
        EXPECT_EQ(hash(copy), hash(value)) << value.data().index();
    }
}

TEST(ValueHash, DistinguishesTextsNumbersDatesAndObjects) {
    const ValueHash hash;
    const auto first = std::shared_ptr<Object>(std::make_shared<Thing>());
    const auto second = std::shared_ptr<Object>(std::make_shared<Thing>());

    EXPECT_NE(hash(Value("a")), hash(Value("b")));
    EXPECT_NE(hash(Value(1)), hash(Value(2)));
    EXPECT_NE(hash(Value(Date{1})), hash(Value(Date{2})));
    EXPECT_NE(hash(Value(first)), hash(Value(second)));
}

}  // namespace
}  // namespace quorvane
