#include "data/DataSchema.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/data/FilledTemplate.h"

namespace quorvane::data {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<std::string> faultsOf(const std::string& schema, const std::string& json) {
    JsonFault fault;
    const std::optional<DataSchema> read = DataSchema::of(jsonValue(schema), fault);
    EXPECT_TRUE(read) << fault.pointer << ": " << fault.message;
    std::vector<std::string> messages;
    if (read) {
        for (const JsonFault& each : read->faultsIn(jsonValue(json))) {
            messages.push_back(each.message);
        }
    }
    return messages;
}

/// What is wrong with a schema, after its place.
std::string faultOfSchema(const std::string& schema) {
    JsonFault fault;
    EXPECT_FALSE(DataSchema::of(jsonValue(schema), fault)) << schema;
    return fault.pointer + ": " + fault.message;
}

TEST(DataSchema, TakesDataThatMeetsIt) {
    EXPECT_THAT(faultsOf(R"({"type":"object","required":["a"]})", R"({"a":1})"), IsEmpty());
    EXPECT_THAT(faultsOf("true", "[1]"), IsEmpty());
}

TEST(DataSchema, NamesTheKindsThatAreWanted) {
    EXPECT_THAT(faultsOf(R"({"properties":{"a":{"type":["number","string"]}}})", R"({"a":[]})"),
                ElementsAre("/a is a list; the schema asks for a number or a text."));
    EXPECT_THAT(faultsOf(R"({"type":"object"})", "[]"),
                ElementsAre("The data is a list; the schema asks for an object."));
}

TEST(DataSchema, NamesWhatIsMissing) {
    EXPECT_THAT(faultsOf(R"({"properties":{"l":{"items":{"required":["price"]}}}})",
                         R"({"l":[{"price":1},{"prise":2}]})"),
                ElementsAre("/l/1 has no price, which the schema requires (did you mean prise?)."));
}

TEST(DataSchema, ShowsThePlaceWithItsPointer) {
    EXPECT_THAT(faultsOf(R"({"properties":{"a/b~":{"type":"null"}}})", R"({"a/b~":1})"),
                ElementsAre("/a~1b~0 is a number; the schema asks for null."));
}

TEST(DataSchema, ListsTheValuesThatAreWanted) {
    EXPECT_THAT(faultsOf(R"({"enum":["a","b"]})", R"("c")"),
                ElementsAre("The data is \"c\"; the schema asks for \"a\" or \"b\"."));
    EXPECT_THAT(faultsOf(R"({"const":1})", "2"),
                ElementsAre("The data is 2; the schema asks for 1."));
}

TEST(DataSchema, SaysHowMuchIsWanted) {
    EXPECT_THAT(faultsOf(R"({"maximum":5})", "6"),
                ElementsAre("The data must be less than or equal to 5."));
    EXPECT_THAT(faultsOf(R"({"minItems":2})", "[1]"),
                ElementsAre("The data must contain no fewer than 2 items."));
    EXPECT_THAT(faultsOf(R"({"minLength":2})", R"("x")"),
                ElementsAre("The data must be no fewer than 2 characters long."));
}

TEST(DataSchema, ShowsThePatternThatIsWanted) {
    EXPECT_THAT(faultsOf(R"({"pattern":"^x+$"})", R"("y")"),
                ElementsAre("The data is \"y\"; the schema asks for a text of the form ^x+$."));
}

TEST(DataSchema, ReportsThePartsOfAFormThatFail) {
    EXPECT_THAT(faultsOf(R"({"anyOf":[{"type":"null"},{"required":["a"],"properties":)"
                         R"({"a":{"type":"null"}}}]})",
                         R"({"a":1})"),
                ElementsAre("/a is a number; the schema asks for null."));
    EXPECT_THAT(faultsOf(R"({"anyOf":[{"type":"null"},{"type":"string"}]})", "1"),
                ElementsAre("The data is 1, which is none of the forms that the schema takes."));
}

TEST(DataSchema, RefusesNamesThatItDoesNotKnow) {
    EXPECT_THAT(faultsOf(R"({"properties":{"a":{}},"additionalProperties":false})", R"({"b":1})"),
                ElementsAre("The data has names that the schema does not know: b."));
}

TEST(DataSchema, ReportsTheFirstHundredFaults) {
    std::string list = "[1";
    for (int i = 0; i < 200; ++i) {
        list += ",1";
    }
    EXPECT_THAT(faultsOf(R"({"items":{"type":"null"}})", list + "]"), SizeIs(100));
}

TEST(DataSchema, CanReferToItself) {
    const std::string tree = R"({"properties":{"inner":{"$ref":"#"}},"required":["a"]})";
    EXPECT_THAT(faultsOf(tree, R"({"a":1,"inner":{"a":2,"inner":{}}})"),
                ElementsAre("/inner/inner has no a, which the schema requires."));
}

TEST(DataSchema, MatchesLongTexts) {
    const std::string text(100'000, 'a');
    EXPECT_THAT(faultsOf(R"({"pattern":"^(a+)+$"})", '"' + text + '"'), IsEmpty());
    EXPECT_THAT(faultsOf(R"({"pattern":"^(a+)+$"})", '"' + text + "b\""), SizeIs(1));
}

TEST(DataSchema, RefusesDataThatIsNestedTooDeepForIt) {
    const std::string tree = R"({"allOf":[{"allOf":[{"items":{"$ref":"#"}}]}]})";
    const std::string deep = std::string(400, '[') + std::string(400, ']');
    EXPECT_THAT(faultsOf(tree, deep),
                ElementsAre("The data is nested too deep to be validated with this schema."));
    EXPECT_THAT(faultsOf(R"({"items":{"$ref":"#"}})", deep), IsEmpty());
}

TEST(WrongSchema, IsOneWithAWrongKeyword) {
    EXPECT_EQ(faultOfSchema("[]"), ": A schema is an object, true or false.");
    EXPECT_EQ(faultOfSchema(R"({"properties":{"a":{"type":"txt"}}})"),
              "/properties/a/type: type takes array, boolean, integer, null, number, object or "
              "string, or a list of them.");
    EXPECT_EQ(faultOfSchema(R"({"required":"a"})"), "/required: required takes a list of names.");
    EXPECT_EQ(faultOfSchema(R"({"items":[{"minLength":-1}]})"),
              "/items/0/minLength: minLength takes a whole number that is not negative.");
    EXPECT_EQ(faultOfSchema(R"({"pattern":"("})"),
              "/pattern: This is not a regular expression, or one that cannot be used here: (.");
}

TEST(WrongSchema, IsOneWhoseReferenceLeadsNowhere) {
    EXPECT_EQ(faultOfSchema(R"({"$ref":"#/definitions/a"})"),
              "/$ref: #/definitions/a is not in this file.");
    EXPECT_EQ(faultOfSchema(R"({"$ref":"http://example.com/a"})"),
              "/$ref: A reference leads to a place in the same file, such as #/definitions/line; "
              "http://example.com/a does not.");
}

TEST(WrongSchema, IsOneThatNeverEnds) {
    EXPECT_EQ(faultOfSchema(R"({"$ref":"#"})"),
              ": This schema refers to itself without a value in between.");
    EXPECT_EQ(faultOfSchema(R"({"definitions":{"a":{"allOf":[{"$ref":"#/definitions/a"}]}}})"),
              "/definitions/a: This schema refers to itself without a value in between.");
}

TEST(WrongSchema, IsOneThatIsNestedTooDeep) {
    std::string schema = "{}";
    for (int i = 0; i < 200; ++i) {
        schema = R"({"not":)" + schema + "}";
    }
    EXPECT_THAT(faultOfSchema(schema),
                testing::EndsWith("nested deeper than 150 levels, references included."));
}

std::string textAt(const std::string& json, const std::string& pointer) {
    const JsonPlace place = jsonPlace(json, pointer);
    return json.substr(place.begin, place.end - place.begin);
}

TEST(JsonPlaces, AreThoseOfValues) {
    const std::string json = "\xEF\xBB\xBF {\"a\": [1, 22 ,{\"b/c\":\"x\\n\"}], \"d\" : true}";
    EXPECT_EQ(textAt(json, "/a/0"), "1");
    EXPECT_EQ(textAt(json, "/a/1"), "22");
    EXPECT_EQ(textAt(json, "/a/2"), "{");
    EXPECT_EQ(textAt(json, "/a/2/b~1c"), "\"x\\n\"");
    EXPECT_EQ(textAt(json, "/a"), "[");
    EXPECT_EQ(textAt(json, "/d"), "true");
    EXPECT_EQ(textAt(json, ""), "{");
    EXPECT_EQ(textAt("12", ""), "12");
}

}  // namespace
}  // namespace quorvane::data
