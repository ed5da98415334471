#include "quorvane/rtf/RtfTextReader.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/base/text/utf8.h"

namespace quorvane {
namespace {

/// The characters of a text; controls and braces in brackets.
std::string partsOf(std::string_view rtf) {
    std::string parts;
    RtfTextReader reader(rtf);
    while (const std::optional<RtfTextPart> part = reader.next()) {
        if (part->kind == RtfTextPart::Kind::Character) {
            appendUtf8(part->code, parts);
        } else {
            parts += "[" + std::string(rtf.substr(part->begin, part->end - part->begin)) + "]";
        }
    }
    return parts;
}

TEST(RtfTextReader, ReadsCharactersHoweverTheyAreWritten) {
    EXPECT_EQ(partsOf(R"(a\'e9\'80\{\}\\\~\_\-\tab x\line y\bullet\emdash  z€)"),
              "aé€{}\\\u00A0\u2011\u00AD\tx\ny\u2022\u2014 z€");
}

TEST(RtfTextReader, ReadsUnicodeAndPassesOverWhatStandsForIt) {
    EXPECT_EQ(partsOf(R"(\u8364?a{\uc1\u8364?}b\uc2\u322l/c)"), "€?a[{]€[}]błc");
    EXPECT_EQ(partsOf(R"(\uc1{\uc0\u8364}\u8364?d)"), "[{]€[}]€d");
    EXPECT_EQ(partsOf(R"(\uc1\u8364\'80e)"), "€e");
    EXPECT_EQ(partsOf(R"(\uc1\u8364{f})"), "€[{]f[}]");
}

TEST(RtfTextReader, JoinsTheHalvesOfACharacter) {
    EXPECT_EQ(partsOf(R"(\u-10179 \u-8704 )"), "😀");
    EXPECT_EQ(partsOf(R"(\uc1\u-10179?a)"),
              "\xED\xA0\xBD"
              "a");
    EXPECT_EQ(partsOf(R"(\uc1\u-10179?\u-10179?\u-8704?)"), "\xED\xA0\xBD😀");
    EXPECT_EQ(partsOf(R"(a\u-10179)"), "a\xED\xA0\xBD");
}

TEST(RtfTextReader, ReadsControlsWithTheBlankThatEndsThem) {
    EXPECT_EQ(partsOf(R"(\b x\fs20\page y\*\chpgn)"), "[\\b ]x[\\fs20][\\page ]y[\\*][\\chpgn]");
}

TEST(RtfTextReader, TakesNumbersOfControlCharactersForControls) {
    EXPECT_EQ(partsOf(R"(\'0a\'09\u9 \u-65526 x)"), "[\\'0a][\\'09][\\u9 ][\\u-65526 ]x");
}

TEST(RtfTextReader, LosesNothingAtTheEnd) {
    EXPECT_EQ(partsOf(R"(\b-)"), "[\\b]-");
    EXPECT_EQ(partsOf(R"(a\'4)"), "a[\\']4");
    EXPECT_EQ(partsOf("a\\"), "a[\\]");
}

}  // namespace
}  // namespace quorvane
