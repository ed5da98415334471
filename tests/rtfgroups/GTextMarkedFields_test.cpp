#include "quorvane/rtfgroups/GTextMarkedFields.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane {
namespace {

using namespace std::string_view_literals;
using GTextMarkedFields::fieldData;
using GTextMarkedFields::toHexString;
using GTextMarkedFields::toStringRepr;
using GTextMarkedFields::wrapMarkedField;

TEST(GTextMarkedFields, KeepsATextAsItIs) {
    EXPECT_EQ(toStringRepr(" a^b "), " a^b ");
    EXPECT_EQ(toStringRepr(""), "");
}

TEST(GTextMarkedFields, WritesWholeNumbersInDecimal) {
    EXPECT_EQ(toStringRepr(0), "0");
    EXPECT_EQ(toStringRepr(-5), "-5");
    EXPECT_EQ(toStringRepr(70000), "70000");
    EXPECT_EQ(toStringRepr(INT32_MIN), "-2147483648");
    EXPECT_EQ(toStringRepr(INT32_MAX), "2147483647");
    EXPECT_EQ(toStringRepr(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(toStringRepr(std::int16_t{32767}), "32767");
}

TEST(GTextMarkedFields, RefusesDataOfEveryOtherType) {
    for (const Value& value :
         {Value(2.0), Value(2.0F), Value(Date{2}), Value(true), Value(false), Value(Empty{}),
          Value(Null{}), Value(Missing{}), Value(std::make_shared<Object>()),
          Value(std::shared_ptr<Object>())}) {
        try {
            toStringRepr(value);
            ADD_FAILURE() << "taken: alternative " << value.data().index();
        } catch (const RtfError& error) {
            EXPECT_EQ(error.number, -2147219990);
            EXPECT_EQ(error.description, "A Marked Text Field Data can only be String or Long");
            EXPECT_EQ(error.source, "GTextMarkedField.toStringRepr()");
        }
    }
}

TEST(GTextMarkedFields, NamesTheErrorThatRefusesData) {
    EXPECT_EQ(static_cast<std::uint32_t>(GTextMarkedFields::refusedDataError), 0x800405EA);
}

TEST(GTextMarkedFields, WritesBytesInUpperCaseHexadecimal) {
    EXPECT_EQ(toHexString("AB"), "4142");
    EXPECT_EQ(toHexString("-5"), "2D35");
    EXPECT_EQ(toHexString("0"), "30");
    EXPECT_EQ(toHexString(""), "");
}

TEST(GTextMarkedFields, WritesASmallByteAsASingleDigit) {
    EXPECT_EQ(toHexString("\n"), "A");
    EXPECT_EQ(toHexString("\0\x0F\x10"sv), "0F10");
}

TEST(GTextMarkedFields, WritesEveryByteOfTheCodePage) {
    static const std::vector<std::string> expected{
        "0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "A",  "B",  "C",  "D",  "E",
        "F",  "10", "11", "12", "13", "14", "15", "16", "17", "18", "19", "1A", "1B", "1C", "1D",
        "1E", "1F", "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", "2A", "2B", "2C",
        "2D", "2E", "2F", "30", "31", "32", "33", "34", "35", "36", "37", "38", "39", "3A", "3B",
        "3C", "3D", "3E", "3F", "40", "41", "42", "43", "44", "45", "46", "47", "48", "49", "4A",
        "4B", "4C", "4D", "4E", "4F", "50", "51", "52", "53", "54", "55", "56", "57", "58", "59",
        "5A", "5B", "5C", "5D", "5E", "5F", "60", "61", "62", "63", "64", "65", "66", "67", "68",
        "69", "6A", "6B", "6C", "6D", "6E", "6F", "70", "71", "72", "73", "74", "75", "76", "77",
        "78", "79", "7A", "7B", "7C", "7D", "7E", "7F", "80", "81", "82", "83", "84", "85", "86",
        "87", "88", "89", "8A", "8B", "8C", "8D", "8E", "8F", "90", "91", "92", "93", "94", "95",
        "96", "97", "98", "99", "9A", "9B", "9C", "9D", "9E", "9F", "A0", "A1", "A2", "A3", "A4",
        "A5", "A6", "A7", "A8", "A9", "AA", "AB", "AC", "AD", "AE", "AF", "B0", "B1", "B2", "B3",
        "B4", "B5", "B6", "B7", "B8", "B9", "BA", "BB", "BC", "BD", "BE", "BF", "C0", "C1", "C2",
        "C3", "C4", "C5", "C6", "C7", "C8", "C9", "CA", "CB", "CC", "CD", "CE", "CF", "D0", "D1",
        "D2", "D3", "D4", "D5", "D6", "D7", "D8", "D9", "DA", "DB", "DC", "DD", "DE", "DF", "E0",
        "E1", "E2", "E3", "E4", "E5", "E6", "E7", "E8", "E9", "EA", "EB", "EC", "ED", "EE", "EF",
        "F0", "F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "FA", "FB", "FC", "FD", "FE",
        "FF"};
    ASSERT_EQ(expected.size(), 256U);

    for (std::size_t byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(toHexString(utf8FromCodePage1252(bytes)), expected[byte]);
    }
}

TEST(GTextMarkedFields, WritesACharacterThatTheCodePageLacksAsAQuestionMark) {
    EXPECT_EQ(toHexString("\xC5\x81"), "3F");
    EXPECT_EQ(toHexString("\xF0\x9F\x98\x80"), "3F");
}

TEST(GTextMarkedFields, WritesACharacterOfTheCodePageAsItsByte) {
    EXPECT_EQ(toHexString("\xE2\x82\xAC\xC3\xA9"), "80E9");
}

TEST(GTextMarkedFields, KeepsDataAsHexadecimalText) {
    EXPECT_EQ(fieldData("AB\n"), "4142A");
    EXPECT_EQ(fieldData(-5), "2D35");
    EXPECT_EQ(fieldData(""), "");
}

TEST(GTextMarkedFields, EnclosesARunOfText) {
    EXPECT_EQ(wrapMarkedField("Hi", "4142"),
              R"({\*\txfieldstart\txfieldtype0\txfieldflags128\txfieldbin\txfielddata 4142})"
              "Hi"
              R"({\*\txfieldend})");
}

TEST(GTextMarkedFields, WritesNoDataWordWithoutData) {
    EXPECT_EQ(wrapMarkedField("Hi", ""),
              R"({\*\txfieldstart\txfieldtype0\txfieldflags128\txfieldbin}Hi{\*\txfieldend})");
}

TEST(GTextMarkedFields, EnclosesAnEmptyText) {
    EXPECT_EQ(wrapMarkedField("", ""),
              R"({\*\txfieldstart\txfieldtype0\txfieldflags128\txfieldbin}{\*\txfieldend})");
}

}  // namespace
}  // namespace quorvane
