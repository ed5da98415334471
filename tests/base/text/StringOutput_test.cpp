#include "quorvane/base/text/StringOutput.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace quorvane {
namespace {

TEST(StringOutput, AppendsPiecesInOrderAfterWhatIsThere) {
    std::string text = "before ";
    StringOutput output(text);

    output << "a" << std::string_view("b") << std::string_view() << std::string("c");
    output.flush();

    EXPECT_EQ(text, "before abc");
}

TEST(StringOutput, HandsNothingOnBeforeItIsFlushed) {
    std::string text;
    StringOutput output(text);

    output << "a";

    EXPECT_EQ(text, "");
}

TEST(StringOutput, HandsEveryPieceOnOnce) {
    std::string text;
    StringOutput output(text);

    output << "a";
    output.flush();
    output.flush();

    EXPECT_EQ(text, "a");
}

TEST(StringOutput, WritesNumbersInDecimal) {
    std::string text;
    StringOutput output(text);

    output << std::int32_t{0} << " " << std::int32_t{-1} << " "
           << std::numeric_limits<std::int32_t>::max() << " "
           << std::numeric_limits<std::int32_t>::min();
    output.flush();

    EXPECT_EQ(text, "0 -1 2147483647 -2147483648");
}

TEST(StringOutput, TakesPiecesOfAnyLength) {
    for (const std::size_t length : {1U, 8191U, 8192U, 8193U, 100000U}) {
        std::string text;
        StringOutput output(text);
        const std::string piece(length, 'x');

        output << "(" << piece << ")" << piece;
        output.flush();

        EXPECT_EQ(text, "(" + piece + ")" + piece) << length;
    }
}

TEST(StringOutput, KeepsTheOrderWhenPiecesFillTheBuffer) {
    std::string text;
    StringOutput output(text);
    std::string expected;

    for (std::int32_t i = 0; i < 10000; ++i) {
        output << i << ",";
        expected += std::to_string(i) + ",";
    }
    output.flush();

    EXPECT_EQ(text, expected);
}

}  // namespace
}  // namespace quorvane
