#include "quorvane/driver/driverErrors.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/driver/ParsedDescription.h"

namespace quorvane {
namespace {

struct NamedLevel {
    tErrorLevel level;
    std::int32_t number;
    const char* name;
};

constexpr NamedLevel levels[] = {
    {eNoStyleSheet, static_cast<std::int32_t>(0x80040001), "eNoStyleSheet"},
    {eWrongFileType, static_cast<std::int32_t>(0x80040002), "eWrongFileType"},
    {eWrongPath, static_cast<std::int32_t>(0x80040003), "eWrongPath"},
    {eRequiredElementMissing, static_cast<std::int32_t>(0x80040004), "eRequiredElementMissing"},
    {eWrongRootNode, static_cast<std::int32_t>(0x80040005), "eWrongRootNode"},
    {eWrongKeyword, static_cast<std::int32_t>(0x80040006), "eWrongKeyword"},
    {eWrongNumberOfNodes, static_cast<std::int32_t>(0x80040007), "eWrongNumberOfNodes"},
    {eWrongValue, static_cast<std::int32_t>(0x80040008), "eWrongValue"},
    {eWrongStyleSheet, static_cast<std::int32_t>(0x80040009), "eWrongStyleSheet"},
    {eWrongNodeType, static_cast<std::int32_t>(0x8004000A), "eWrongNodeType"},
    {eSyntaxError, static_cast<std::int32_t>(0x8004000B), "eSyntaxError"},
};

TEST(driverErrors, AreNumberedFromTheirBaseByLevel) {
    for (const NamedLevel& expected : levels) {
        EXPECT_EQ(driverError(expected.level, "").number, expected.number) << expected.name;
    }
}

TEST(driverErrors, HaveALevel) {
    for (const NamedLevel& expected : levels) {
        EXPECT_EQ(errorLevel(expected.number), expected.level) << expected.name;
    }
}

TEST(driverErrors, NameTheirLevel) {
    for (const NamedLevel& expected : levels) {
        EXPECT_EQ(errorLevelName(expected.level), expected.name);
    }
}

TEST(driverErrors, HaveNoLevelOutsideTheirRange) {
    EXPECT_EQ(errorLevel(static_cast<std::int32_t>(0x80040000)), std::nullopt);
    EXPECT_EQ(errorLevel(static_cast<std::int32_t>(0x8004000C)), std::nullopt);
    EXPECT_EQ(errorLevel(static_cast<std::int32_t>(0x800405EA)), std::nullopt);
    EXPECT_EQ(errorLevel(INT32_MIN), std::nullopt);
    EXPECT_EQ(errorLevel(INT32_MAX), std::nullopt);
    EXPECT_EQ(errorLevel(91), std::nullopt);
    EXPECT_EQ(errorLevel(0), std::nullopt);
}

TEST(driverErrors, CarryDescriptionSourceAndLine) {
    EXPECT_EQ(factsOf(driverError(eWrongValue, "what", "where", 7)),
              (ErrorFacts{static_cast<std::int32_t>(0x80040008), "what", "where", 7}));
}

TEST(driverErrors, HaveNoSourceAndNoLineByDefault) {
    EXPECT_EQ(factsOf(driverError(eWrongPath, "what")),
              (ErrorFacts{static_cast<std::int32_t>(0x80040003), "what", "", 0}));
}

TEST(driverErrors, GetTheLineOfTheBodyThatRaisesThem) {
    const auto body = [] { raise(RunTimeError::TypeMismatch); };
    EXPECT_EQ(errorOf([&] { atLine(12, body); }), typeMismatch(12));
}

TEST(driverErrors, KeepTheirOwnLine) {
    const auto body = [] { raise(driverError(eWrongValue, "x", "", 3)); };
    EXPECT_EQ(errorOf([&] { atLine(12, body); }).line, 3);
}

TEST(driverErrors, KeepTheirLineWhenTheyPassAnOuterBody) {
    const auto body = [] { atLine(4, [] { raise(RunTimeError::Overflow); }); };
    EXPECT_EQ(errorOf([&] { atLine(2, body); }), overflow(4));
}

TEST(driverErrors, DoNotTouchABodyThatRaisesNothing) {
    int calls = 0;
    atLine(1, [&] { ++calls; });
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace quorvane
