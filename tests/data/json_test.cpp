#include "data/json.h"

#include <gmock/gmock.h>

#include <string>

namespace quorvane::data {
namespace {

using testing::HasSubstr;

/// What is wrong with a text: "position: message".
std::string errorIn(const std::string& text) {
    JsonError error;
    return readJson(text, error) ? "" : std::to_string(error.position) + ": " + error.message;
}

TEST(Json, KeepsNumbersAsTheyAreWritten) {
    JsonError error;
    const auto value = readJson(R"({"b":[1.10,12345678901234567890123],"a":-7})", error);
    ASSERT_TRUE(value);
    EXPECT_EQ(value->find("b")->items[0].text, "1.10");
    EXPECT_EQ(value->find("b")->items[1].text, "12345678901234567890123");
    EXPECT_EQ(value->find("a")->text, "-7");
    EXPECT_EQ(value->find("c"), nullptr);
}

TEST(Json, CanBeginWithAByteOrderMark) {
    JsonError error;
    EXPECT_TRUE(readJson("\xEF\xBB\xBF{\"a\":1}", error));
}

TEST(Json, ThatIsWrongSaysWhere) {
    EXPECT_THAT(errorIn("{\"a\":}"), HasSubstr("5: This is not JSON: unexpected '}'"));
    EXPECT_THAT(errorIn("{\"a\":1,}"), HasSubstr("; remove the comma before it"));
    EXPECT_THAT(errorIn("{\"a\":1 \"b\":2}"), HasSubstr("; a comma is missing before it"));
    EXPECT_THAT(errorIn("{\"a\":1e400}"), HasSubstr("the number '1e400' is too large"));
    EXPECT_THAT(errorIn("[1, 2"), HasSubstr("5: This is not JSON: unexpected end of input"));
    EXPECT_THAT(errorIn(""), HasSubstr("0: This is not JSON: "));
    EXPECT_THAT(errorIn("{} x"), HasSubstr("3: This is not JSON: "));
    EXPECT_THAT(errorIn("\"\xFF\""), HasSubstr("1: This is not JSON: "));
    EXPECT_THAT(errorIn("\"\\ud800\""), HasSubstr("This is not JSON: "));
}

TEST(Json, ThatHasANameTwiceIsWrong) {
    EXPECT_EQ(errorIn(R"([{"a":1,"b":2,"a":3}])"), "19: The object that ends here has \"a\" twice");
}

TEST(Json, InUtf16IsWrong) {
    EXPECT_THAT(errorIn(std::string("\xFF\xFE{\0}\0", 6)), HasSubstr("is in UTF-16"));
}

TEST(Json, CanBeNestedAsDeepAsItSays) {
    const std::string deep = std::string(maxJsonDepth, '[') + std::string(maxJsonDepth, ']');
    EXPECT_EQ(errorIn(deep), "");
    EXPECT_EQ(errorIn("[" + deep + "]"),
              "500: Lists and objects are nested deeper than 500 levels");
    EXPECT_THAT(errorIn(std::string(1'000'000, '[')), HasSubstr("nested deeper"));
}

}  // namespace
}  // namespace quorvane::data
