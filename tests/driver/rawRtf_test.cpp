#include "quorvane/driver/rawRtf.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/driver/LeafError.h"

namespace quorvane {
namespace {

std::string wrong(std::string_view text) {
    try {
        rawRtf(text);
    } catch (const LeafError& error) {
        EXPECT_EQ(error.fault, DriverFault::WrongValue);
        return error.description;
    }
    return {};
}

TEST(RawRtf, KeepsWordsThatFormatAndEndsTheLastOne) {
    EXPECT_EQ(rawRtf("\\b\\fs28"), "\\b\\fs28 ");
    EXPECT_EQ(rawRtf("\\li-20 "), "\\li-20 ");
    EXPECT_EQ(rawRtf("{\\b x}"), "{\\b x}");
    EXPECT_EQ(rawRtf("\\fs28x"), "\\fs28x");
}

TEST(RawRtf, KeepsCharacters) {
    EXPECT_EQ(rawRtf("a\\emdash"), "a\\emdash ");
    EXPECT_EQ(rawRtf("\\\\b\\~\\{\\'e4"), "\\\\b\\~\\{\\'e4");
    EXPECT_EQ(rawRtf("P\xC5\x99"), "P{\\uc1\\u345?}");
}

TEST(RawRtf, KeepsFields) {
    EXPECT_EQ(rawRtf("{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}"),
              "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}");
}

TEST(RawRtf, MakesNoInlineStyles) {
    EXPECT_EQ(rawRtf("<x=\\b>"), "\\'3Cx=\\b\\'3E");
}

TEST(RawRtf, RefusesGroupsThatAreNotItsOwn) {
    EXPECT_EQ(wrong("{\\b"), "\"{\\b\" opens a group and does not close it; write }.");
    EXPECT_EQ(wrong("a}{"), "\"a}{\" closes a group that it does not open; remove }.");
}

TEST(RawRtf, RefusesWordsThatChangeTheDocument) {
    for (const char* word :
         {"\\cell", "\\row", "\\trowd", "\\pard", "\\sect", "\\mac", "\\ansi", "\\paperw5",
          "\\bin2", "\\fonttbl", "\\nosuchword", "\\pict", "\\plain"}) {
        EXPECT_EQ(wrong(word),
                  '"' + std::string(word) + "\" cannot stand here; write words that format text.");
    }
}

TEST(RawRtf, RefusesNumbersOfCharacters) {
    EXPECT_EQ(wrong("\\u345"), "\"\\u345\" cannot stand here; write the character itself.");
    EXPECT_NE(wrong("\\uc0"), "");
}

TEST(RawRtf, RefusesWhatIsNoSymbol) {
    EXPECT_EQ(wrong("\\\xC5\x99").substr(0, 1), "\"");
    for (const char* text : {"\\", "\\'", "\\'e", "\\'zz", "\\'\xC5\x99", "\\|", "\\<", "a\x01"}) {
        EXPECT_NE(wrong(text), "") << text;
    }
}

}  // namespace
}  // namespace quorvane
