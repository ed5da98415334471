#include "data/recordsJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/data/textReader.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Records = std::vector<std::vector<std::string>>;

struct Read {
    std::vector<std::string> names;
    /// An error is a record of its line and its message.
    Records records;
};

Read read(const std::string& json) {
    RecordsText text(readerOf(json), EncodingChoice::Auto);
    JsonRecords source(text);
    Read result;
    std::vector<std::string_view> fields;
    for (;;) {
        try {
            if (!source.next(fields)) {
                result.names = source.names();
                return result;
            }
            result.records.emplace_back(fields.begin(), fields.end());
        } catch (const RecordError& error) {
            result.records.push_back({std::to_string(error.line), error.description});
        }
    }
}

/// The only error in a text.
std::string errorOf(const std::string& json) {
    const Read result = read(json);
    return result.records.size() == 1 ? result.records[0].at(0) + ": " + result.records[0].at(1)
                                      : "not one";
}

TEST(JsonRecords, AreTheObjectsOfAList) {
    const Read result =
        read("\n[{\"a\": 1, \"b\": \"x\\n\\u0159\"}\n, {\"b\":\"}\\\"{\", \"a\":2}] ");
    EXPECT_THAT(result.names, ElementsAre("a", "b"));
    EXPECT_EQ(result.records, (Records{{"1", "x\n\u0159"}, {"2", "}\"{"}}));
}

TEST(JsonRecords, AreTheObjectsOfJsonLines) {
    EXPECT_EQ(read("{\"a\":1}\n{\"a\":2}\r\n\n{\"a\":3}").records, (Records{{"1"}, {"2"}, {"3"}}));
    EXPECT_EQ(read("{\"a\":1}{\"a\":2}").records, (Records{{"1"}, {"2"}}));
    EXPECT_EQ(read("").records, Records());
    EXPECT_EQ(read("[ ]").records, Records());
}

TEST(JsonRecords, HaveNumbersAsTheyAreWritten) {
    EXPECT_EQ(read("[{\"a\":1.50,\"b\":-0,\"c\":12345678901234567890123,\"d\":1e3}]").records,
              (Records{{"1.50", "0", "12345678901234567890123", "1e3"}}));
}

TEST(JsonRecords, ShowTruthValuesNullListsAndObjects) {
    const Read result =
        read(R"([{"a":true,"b":null,"c":["x",2,null],"d":{"e":{"f":1},"g":2},"h":3}])");
    EXPECT_THAT(result.names, ElementsAre("a", "b", "c", "d.e.f", "d.g", "h"));
    EXPECT_EQ(result.records, (Records{{"true", "", "x, 2, ", "1", "2", "3"}}));
}

TEST(JsonRecords, HaveNewNamesAfterThoseBefore) {
    const Read result = read(R"({"a":1} {"c":3,"a":2} {})");
    EXPECT_THAT(result.names, ElementsAre("a", "c"));
    EXPECT_EQ(result.records, (Records{{"1"}, {"2", "3"}, {"", ""}}));
}

TEST(JsonRecords, ReportARecordThatIsWrongAndReadOn) {
    EXPECT_EQ(read("{\n\"a\":1}\n{\"a\":\n tru}\n{\"a\":3}").records.size(), 3U);
    EXPECT_THAT(read("{\n\"a\":1}\n{\"a\":\n tru}\n{\"a\":3}").records[1],
                ElementsAre("4", HasSubstr("This is not JSON: ")));
    EXPECT_EQ(read("[{\"a\":1,\"a\":2},{\"a\":3}]").records,
              (Records{{"1", "The record has \"a\" twice."}, {"3"}}));
    EXPECT_EQ(read("[{\"a\":[[1]]},{\"a\":[{}]},{\"a\":3}]").records,
              (Records{{"1", "\"a\" is a list of lists or objects, which a cell cannot show."},
                       {"1", "\"a\" is a list of lists or objects, which a cell cannot show."},
                       {"3"}}));
}

TEST(JsonRecords, LoseNothingToALineBeforeThatIsWrong) {
    const std::string unended = "The record does not end; } is missing.";
    const std::string noObject = "A record must be an object, which begins with {.";
    EXPECT_EQ(read("{\"n\":1}\n{\"n\":2\n[1,2]\n\nnull\n{\"n\":6}\n{\"n\":7}").records,
              (Records{{"1"}, {"2", unended}, {"3", noObject}, {"5", noObject}, {"6"}, {"7"}}));
    EXPECT_EQ(read("{\"n\":1}\n{\"n\":2\n {\"n\":3}\n\t{\"n\":4}").records,
              (Records{{"1"}, {"2", unended}, {"3"}, {"4"}}));
    EXPECT_EQ(read("{\"n\":1}\n{\"n\":2,\"x\":\n{\"n\":3}\n{\"n\":4}").records,
              (Records{{"1"}, {"2", unended}, {"3"}, {"4"}}));
    EXPECT_EQ(read("{\n\"n\":1\n}\n{\"n\":2,\n\"x\":1\n{\"n\":3}\n{\"n\":4 \n").records,
              (Records{{"1"}, {"4", unended}, {"3"}, {"7", unended}}));
}

TEST(JsonRecords, KeepLittleOfAListWithoutBlanks) {
    std::string json = "[{\"a\":0}";
    for (int i = 1; i < 100'000; ++i) {
        json += ",{\"a\":" + std::to_string(i) + "}";
    }
    RecordsText text(readerOf(json + "]"), EncodingChoice::Auto);
    JsonRecords source(text);
    std::vector<std::string_view> fields;
    std::size_t most = 0;
    while (source.next(fields)) {
        most = std::max(most, text.size());
    }
    EXPECT_GT(json.size(), 1'000'000U);
    EXPECT_LT(most, 300'000U);
}

TEST(JsonRecords, ReportWhatIsNoListOfRecords) {
    EXPECT_EQ(errorOf("[1]"),
              "1: A record must be an object, which begins with {. What follows is not read.");
    EXPECT_EQ(errorOf("\n\"a\""), "2: A record must be an object, which begins with {.");
    EXPECT_EQ(errorOf("[{\"a\":1"), "1: The record does not end; } is missing.");
    EXPECT_EQ(errorOf("[\n"), "2: The list of records does not end; ] is missing.");
    EXPECT_EQ(read("[{}{}]").records[1],
              (std::vector<std::string>{
                  "1", "A comma is missing between two records. What follows is not read."}));
    EXPECT_EQ(read("[{},]").records[1],
              (std::vector<std::string>{
                  "1", "The list of records ends after a comma; remove the comma."}));
    EXPECT_EQ(
        read("[{}]\n[").records[1],
        (std::vector<std::string>{
            "2", "The list of records ends, but the file does not. What follows is not read."}));
}

TEST(JsonRecords, RefuseDeepAndLongRecords) {
    std::string deep;
    for (int i = 0; i < 100000; ++i) {
        deep += "{\"a\":";
    }
    EXPECT_EQ(errorOf(deep + "1" + std::string(100000, '}')),
              "1: The record has more than 32 objects in each other.");
    EXPECT_THAT(errorOf("{\"a\":" + std::string(100000, '[')), HasSubstr("does not end"));
    EXPECT_EQ(errorOf("{\"a\":\"" + std::string(5 * 1024 * 1024, 'x')),
              "1: The record has more than 4 MB.");
}

TEST(JsonRecords, RefuseNewFieldsWithoutEnd) {
    std::string lines;
    for (int i = 0; i < 4097; ++i) {
        lines += "{\"k" + std::to_string(i) + "\":1}\n";
    }
    const Records records = read(lines).records;
    ASSERT_EQ(records.size(), 4097U);
    EXPECT_EQ(records[4095].size(), 4096U);
    EXPECT_THAT(records[4096],
                ElementsAre("4097", "The records have more than 4096 fields of different names."));
}

TEST(JsonRecords, ReadTheSameWhereverTheBlocksOfAFileEnd) {
    const std::string record = R"({"a":"\\\"}","b":{"c":[1,2]}})";
    for (std::size_t shift = 0; shift < record.size(); ++shift) {
        const std::string json = std::string(65536 - shift, ' ') + record + "\n" + record;
        EXPECT_EQ(read(json).records, (Records{{"\\\"}", "1, 2"}, {"\\\"}", "1, 2"}})) << shift;
    }
}

}  // namespace
}  // namespace quorvane::data
