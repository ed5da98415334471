#include "quorvane/base/text/numberText.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace quorvane {
namespace {

constexpr auto noNumber = std::nullopt;

TEST(ReadNumber, ReadsDigits) {
    EXPECT_EQ(readNumber("0"), 0.0);
    EXPECT_EQ(readNumber("11906"), 11906.0);
    EXPECT_EQ(readNumber("0012"), 12.0);
}

TEST(ReadNumber, ReadsASign) {
    EXPECT_EQ(readNumber("+5"), 5.0);
    EXPECT_EQ(readNumber("-5"), -5.0);
}

TEST(ReadNumber, ReadsAPointAnywhereAmongTheDigits) {
    EXPECT_EQ(readNumber("1.5"), 1.5);
    EXPECT_EQ(readNumber(".5"), 0.5);
    EXPECT_EQ(readNumber("5."), 5.0);
    EXPECT_EQ(readNumber("-.25"), -0.25);
}

TEST(ReadNumber, ReadsAnExponent) {
    EXPECT_EQ(readNumber("1e3"), 1000.0);
    EXPECT_EQ(readNumber("1E3"), 1000.0);
    EXPECT_EQ(readNumber("1e+3"), 1000.0);
    EXPECT_EQ(readNumber("15e-1"), 1.5);
    EXPECT_EQ(readNumber("1.e2"), 100.0);
    EXPECT_EQ(readNumber("+.5E+02"), 50.0);
}

TEST(ReadNumber, ReadsToTheNearestDouble) {
    EXPECT_EQ(readNumber("0.1"), 0.1);
    EXPECT_EQ(readNumber("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(readNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(readNumber("5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(ReadNumber, ReadsAsManyDigitsAsThereAre) {
    EXPECT_EQ(readNumber("1" + std::string(400, '0') + "e-400"), 1.0);
    EXPECT_EQ(readNumber("0." + std::string(400, '0') + "1e401"), 1.0);
}

TEST(ReadNumber, TakesWhatIsTooSmallForADoubleAsZero) {
    EXPECT_EQ(readNumber("1e-400"), 0.0);
    EXPECT_EQ(readNumber("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(readNumber("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(readNumber("0." + std::string(800, '0') + "1e400"), 0.0);
    EXPECT_TRUE(std::signbit(*readNumber("-1e-400")));
}

TEST(ReadNumber, ReadsZeroWhateverItsExponent) {
    EXPECT_EQ(readNumber("0e99999999999999999999"), 0.0);
    EXPECT_EQ(readNumber("0.0e-99999999999999999999"), 0.0);
}

TEST(ReadNumber, RefusesWhatIsTooGreatForADouble) {
    EXPECT_EQ(readNumber("1e309"), noNumber);
    EXPECT_EQ(readNumber("-1e309"), noNumber);
    EXPECT_EQ(readNumber("1.7976931348623159e308"), noNumber);
    EXPECT_EQ(readNumber("1e99999999999999999999"), noNumber);
    EXPECT_EQ(readNumber("1e+99999999999999999999"), noNumber);
    EXPECT_EQ(readNumber(std::string(400, '9')), noNumber);
    EXPECT_EQ(readNumber("0.001e320"), noNumber);
}

TEST(ReadNumber, RefusesATextWithoutADigit) {
    for (const char* text : {"", "+", "-", ".", "+.", "e5", ".e5", "-e"}) {
        EXPECT_EQ(readNumber(text), noNumber) << text;
    }
}

TEST(ReadNumber, RefusesAnExponentWithoutADigit) {
    for (const char* text : {"1e", "1E+", "1e-", "1e 5", "1e5.0", "1e5e5"}) {
        EXPECT_EQ(readNumber(text), noNumber) << text;
    }
}

TEST(ReadNumber, RefusesASecondSignOrPoint) {
    for (const char* text : {"--1", "+-1", "-+1", "1..5", "1.2.3", "..5"}) {
        EXPECT_EQ(readNumber(text), noNumber) << text;
    }
}

TEST(ReadNumber, RefusesAnythingBeforeOrAfterTheNumber) {
    for (const char* text : {" 1", "1 ", "1x", "x1", "1-", "1%", "1,5", "1,000",
                             "\xC2\xA0"
                             "1"}) {
        EXPECT_EQ(readNumber(text), noNumber) << text;
    }
}

TEST(ReadNumber, RefusesHexadecimalAndInfinity) {
    for (const char* text : {"0x10", "&H10", "0x1p3", "inf", "-inf", "infinity", "nan", "1f"}) {
        EXPECT_EQ(readNumber(text), noNumber) << text;
    }
}

TEST(NumberText, WritesWholeNumbersWithoutAPoint) {
    EXPECT_EQ(numberText(12), "12");
    EXPECT_EQ(numberText(-5), "-5");
    EXPECT_EQ(numberText(100000), "100000");
    EXPECT_EQ(numberText(999999999999999.0), "999999999999999");
}

TEST(NumberText, WritesTheFewestDigitsThatReadBack) {
    EXPECT_EQ(numberText(1.5), "1.5");
    EXPECT_EQ(numberText(0.5), "0.5");
    EXPECT_EQ(numberText(0.1), "0.1");
    EXPECT_EQ(numberText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(numberText(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(numberText(-2.25), "-2.25");
}

TEST(NumberText, WritesSmallNumbersPlainlyDownToAHundredThousandth) {
    EXPECT_EQ(numberText(0.0001), "0.0001");
    EXPECT_EQ(numberText(0.00001), "0.00001");
    EXPECT_EQ(numberText(-0.00001), "-0.00001");
    EXPECT_EQ(numberText(0.0000099), "9.9e-06");
    EXPECT_EQ(numberText(1e-7), "1e-07");
}

TEST(NumberText, WritesGreatNumbersWithAnExponent) {
    EXPECT_EQ(numberText(1e15), "1e+15");
    EXPECT_EQ(numberText(-1.5e15), "-1.5e+15");
    EXPECT_EQ(numberText(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
    EXPECT_EQ(numberText(-std::numeric_limits<double>::denorm_min()), "-5e-324");
}

TEST(NumberText, WritesEveryPowerOfTwoAsTheStandardLibraryDoes) {
    for (int exponent = -1074; exponent < 1024; ++exponent) {
        const double number = std::ldexp(1.0, exponent);
        const bool isPlain = number >= 1e-5 && number < 1e15;
        std::array<char, 32> buffer{};
        const auto end =
            std::to_chars(buffer.begin(), buffer.end(), number,
                          isPlain ? std::chars_format::fixed : std::chars_format::scientific)
                .ptr;
        EXPECT_EQ(numberText(number), std::string(buffer.data(), end));
    }
}

TEST(NumberText, WritesBothZerosAsZero) {
    EXPECT_EQ(numberText(0.0), "0");
    EXPECT_EQ(numberText(-0.0), "0");
}

TEST(NumberText, ReadsBackAsTheSameNumber) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (std::isfinite(number)) {
            EXPECT_EQ(readNumber(numberText(number)), number);
        }
    }
}

}  // namespace
}  // namespace quorvane
