#include "data/recordValues.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "data/recordsSource.h"
#include "tests/data/textReader.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A value as JSON without blanks; texts are in apostrophes.
std::string shown(const DataValue& value) {
    std::string all;
    for (std::size_t i = 0; i < value.items.size(); ++i) {
        all += (i > 0 ? "," : "") + (value.isObject() ? value.names[i] + ":" : "") +
               shown(value.items[i]);
    }
    return value.isObject()                        ? "{" + all + "}"
           : value.isList()                        ? "[" + all + "]"
           : value.kind == DataValue::Kind::String ? "'" + value.text + "'"
           : value.isNull()                        ? "null"
                                                   : value.text;
}

/// Each record with its line before it. An error is a record, too.
std::vector<std::string> all(RecordValues& values) {
    std::vector<std::string> result;
    DataValue record;
    for (;;) {
        try {
            if (!values.next(record)) {
                return result;
            }
            result.push_back(std::to_string(values.line()) + ": " + shown(record));
        } catch (const RecordError& error) {
            result.push_back(std::to_string(error.line) + ": " + error.description);
        }
    }
}

std::vector<std::string> json(const std::string& bytes) {
    RecordsText text(readerOf(bytes), EncodingChoice::Auto);
    return all(*jsonValues(text));
}

std::vector<std::string> csv(const std::string& bytes) {
    RecordsText text(readerOf(bytes), EncodingChoice::Auto);
    return all(*csvValues(text, std::nullopt));
}

TEST(RecordValues, AreTheObjectsOfAListWithAllThatTheyHold) {
    EXPECT_THAT(json("[{\"b\":[1.50,{\"c\":null}],\n\"a\":true},\n{}]"),
                ElementsAre("1: {a:true,b:[1.50,{c:null}]}", "3: {}"));
}

TEST(RecordValues, AreTheObjectsOfJsonLines) {
    EXPECT_THAT(json("{\"a\":1}\r\n\n{\"a\":\"}\"}"), ElementsAre("1: {a:1}", "3: {a:'}'}"));
}

TEST(RecordValues, AreOneRecordForOneObject) {
    EXPECT_THAT(json("\n{\n\"a\":\n{\"b\":\n[\n{\"c\":1}\n]}}\n"),
                ElementsAre("2: {a:{b:[{c:1}]}}"));
}

TEST(RecordValues, AreWrongForOneLineOfJsonLinesAlone) {
    EXPECT_THAT(json("{\"a\":[}\n{\"a\":1}"),
                ElementsAre(HasSubstr("1: This is not JSON"), "2: {a:1}"));
    EXPECT_THAT(json("{\"a\":1\n{\"a\":2}\n{\"a\":3}"),
                ElementsAre("1: The record does not end; } is missing.", "2: {a:2}", "3: {a:3}"));
    EXPECT_THAT(
        json("{\"a\":\"1}\n{\"a\":2}"),
        ElementsAre("1: The record has a text that does not end; \" is missing.", "2: {a:2}"));
    EXPECT_THAT(json("{\"a\":\"\\\n{\"a\":2}"),
                ElementsAre(HasSubstr("1: The record has a text"), "2: {a:2}"));
    EXPECT_THAT(json("a\n{\"a\":2}\n[3]\n{\"a\":4}"),
                ElementsAre("1: A record must be an object, which begins with {.", "2: {a:2}",
                            "3: A record must be an object, which begins with {.", "4: {a:4}"));
}

TEST(RecordValues, EndWithAListThatIsWrong) {
    EXPECT_THAT(json("[{\"a\":1},\n2,{\"a\":3}]"),
                ElementsAre("1: {a:1}",
                            "2: A record must be an object, which begins with {. "
                            "What follows is not read."));
    EXPECT_THAT(json("[{\"a\":1,}\n,{\"a\":3}]"),
                ElementsAre(HasSubstr("1: This is not JSON"), "2: {a:3}"));
}

TEST(RecordValues, RefuseALongLineAndReadOn) {
    EXPECT_THAT(json("{\"a\":1}\n{\"a\":\"" + std::string(5'000'000, 'x') + "\"}\n{\"a\":3}"),
                ElementsAre("1: {a:1}", "2: The record has more than 4 MB.", "3: {a:3}"));
}

TEST(RecordValues, RefuseDeepNesting) {
    EXPECT_THAT(json("{\"a\":" + std::string(1000, '[') + std::string(1000, ']') + "}\n{}"),
                ElementsAre("1: Lists and objects are nested deeper than 500 levels.", "2: {}"));
}

TEST(RecordValues, ReadTheSameWhereverTheBlocksOfAFileEnd) {
    const std::string lines = "{\"a\":\"\n{\"a\":{\"b\":\"\\\"\"}\n{\"a\":1}";
    for (std::size_t shift = 0; shift <= lines.size(); ++shift) {
        EXPECT_THAT(json(std::string(65536 - shift, ' ') + lines),
                    ElementsAre("1: The record has a text that does not end; \" is missing.",
                                "2: The record does not end; } is missing.", "3: {a:1}"))
            << shift;
    }
}

TEST(RecordValues, AreTheRowsOfCsvAsTexts) {
    EXPECT_THAT(csv("sku;name\n1;\"a\nb\"\n2;\n"),
                ElementsAre("2: {name:'a\nb',sku:'1'}", "4: {name:'',sku:'2'}"));
}

TEST(RecordValues, AreWrongForOneRowAlone) {
    EXPECT_THAT(csv("a,b\n1\n2,3\n"),
                ElementsAre("2: The row has 1 field, and the heading has 2.", "3: {a:'2',b:'3'}"));
}

TEST(RecordValues, NeedNamesThatDiffer) {
    RecordsText text(readerOf("b,a,b\n1,2,3\n"), EncodingChoice::Auto);
    try {
        csvValues(text, std::nullopt);
        FAIL();
    } catch (const RecordError& error) {
        EXPECT_EQ(error.description, "The heading has \"b\" twice.");
        EXPECT_EQ(error.line, 1);
    }
}

TEST(RecordValues, CanBePassedOver) {
    RecordsText text(readerOf("{\"a\":1}\n{wrong}\n{\"a\":3}"), EncodingChoice::Auto);
    const std::unique_ptr<RecordValues> values = jsonValues(text);
    EXPECT_TRUE(values->skip());
    EXPECT_TRUE(values->skip());
    EXPECT_THAT(all(*values), ElementsAre("3: {a:3}"));
    EXPECT_FALSE(values->skip());
}

}  // namespace
}  // namespace quorvane::data
