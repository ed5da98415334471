#include "quorvane/stylesheet/StyleAnswers.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

class StyleAnswersTest : public testing::Test {
protected:
    StyleAnswersTest() {
        styles.add("normal", "^ds^f\\f9");
        styles.add("title", "^ds^f\\b");
        answers = StyleAnswers(styles, "unknown");
    }

    std::string answer(std::string_view name) const {
        return std::string(answers.find(styles, name));
    }

    StyleList styles;
    StyleAnswers answers;
};

TEST(SelectionWords, AreKindNumberAndFormat) {
    EXPECT_EQ(selectionWords({"x", "^ds^f\\b\\fs20"}, 101), "\\s101\\b\\fs20 ");
    EXPECT_EQ(selectionWords({"x", "^dcs"}, 0), "\\cs0 ");
    EXPECT_EQ(selectionWords({"x", ""}, 100), "\\100 ");
}

TEST_F(StyleAnswersTest, SelectAStyleByItsName) {
    EXPECT_EQ(answer("normal"), "\\s100\\f9 ");
    EXPECT_EQ(answer("title"), "\\s101\\b ");
}

TEST_F(StyleAnswersTest, TakeNoRegardOfCase) {
    EXPECT_EQ(answer("TITLE"), "\\s101\\b ");
    EXPECT_EQ(answer("Title"), "\\s101\\b ");
}

TEST_F(StyleAnswersTest, DoNotTrimTheName) {
    EXPECT_EQ(answer(" title"), "unknown");
    EXPECT_EQ(answer("title "), "unknown");
    EXPECT_EQ(answer("title\t"), "unknown");
    EXPECT_EQ(answer("title\r\n"), "unknown");
}

TEST_F(StyleAnswersTest, AnswerAnUnknownNameAsTheyWereTold) {
    EXPECT_EQ(answer("nosuch"), "unknown");
    EXPECT_EQ(answer(""), "unknown");
}

TEST_F(StyleAnswersTest, AnswerTheSameWhenAskedAgain) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(answer("title"), "\\s101\\b ");
        EXPECT_EQ(answer("nosuch"), "unknown");
    }
}

TEST_F(StyleAnswersTest, AnswerMoreNamesThanTheyRemember) {
    for (int i = 0; i < 20'000; ++i) {
        ASSERT_EQ(answer("nosuch" + std::to_string(i)), "unknown");
        ASSERT_EQ(answer("title"), "\\s101\\b ");
    }
}

TEST_F(StyleAnswersTest, StayWhereTheyAreWhileOthersAreAskedFor) {
    const std::string_view first = answers.find(styles, "title");
    const std::string_view unknown = answers.find(styles, "nosuch");

    for (int i = 0; i < 10'000; ++i) {
        answers.find(styles, std::to_string(i));
    }

    EXPECT_EQ(first, "\\s101\\b ");
    EXPECT_EQ(unknown, "unknown");
}

TEST(StyleAnswers, AreForUnknownNamesOnlyInAnEmptyList) {
    const StyleList styles;
    const StyleAnswers answers(styles, "unknown");

    EXPECT_EQ(answers.find(styles, "normal"), "unknown");
}

}  // namespace
}  // namespace quorvane
