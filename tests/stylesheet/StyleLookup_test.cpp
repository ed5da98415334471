#include "quorvane/stylesheet/StyleLookup.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

class StyleLookupTest : public testing::Test {
protected:
    StyleLookupTest() {
        styles.add("normal", "^ds^f\\f9");
        styles.add("title", "^ds^f\\b");
        lookup = StyleLookup(styles, {}, "unknown");
    }

    std::string wordsFor(std::string_view name) const {
        return std::string(lookup.find(styles, name));
    }

    StyleList styles;
    StyleLookup lookup;
};

TEST(SelectionWords, AreKindNumberAndFormat) {
    EXPECT_EQ(selectionWords({"x", "^ds^f\\b\\fs20"}, 101), "\\s101\\b\\fs20 ");
    EXPECT_EQ(selectionWords({"x", "^dcs"}, 0), "\\cs0 ");
    EXPECT_EQ(selectionWords({"x", ""}, 100), "\\100 ");
}

TEST_F(StyleLookupTest, SelectsAStyleByItsName) {
    EXPECT_EQ(wordsFor("normal"), "\\s100\\f9 ");
    EXPECT_EQ(wordsFor("title"), "\\s101\\b ");
}

TEST_F(StyleLookupTest, IgnoresCase) {
    EXPECT_EQ(wordsFor("TITLE"), "\\s101\\b ");
    EXPECT_EQ(wordsFor("Title"), "\\s101\\b ");
}

TEST_F(StyleLookupTest, DoesNotTrimTheName) {
    EXPECT_EQ(wordsFor(" title"), "unknown");
    EXPECT_EQ(wordsFor("title "), "unknown");
    EXPECT_EQ(wordsFor("title\t"), "unknown");
    EXPECT_EQ(wordsFor("title\r\n"), "unknown");
}

TEST_F(StyleLookupTest, ReturnsTheGivenWordsForAnUnknownName) {
    EXPECT_EQ(wordsFor("nosuch"), "unknown");
    EXPECT_EQ(wordsFor(""), "unknown");
}

TEST_F(StyleLookupTest, ReturnsTheSameWordsEveryTime) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(wordsFor("title"), "\\s101\\b ");
        EXPECT_EQ(wordsFor("nosuch"), "unknown");
    }
}

TEST_F(StyleLookupTest, FindsMoreNamesThanItKeeps) {
    for (int i = 0; i < 20'000; ++i) {
        ASSERT_EQ(wordsFor("nosuch" + std::to_string(i)), "unknown");
        ASSERT_EQ(wordsFor("title"), "\\s101\\b ");
    }
}

TEST_F(StyleLookupTest, KeepsWordsInPlaceWhileOthersAreLookedUp) {
    const std::string_view first = lookup.find(styles, "title");
    const std::string_view unknown = lookup.find(styles, "nosuch");

    for (int i = 0; i < 10'000; ++i) {
        lookup.find(styles, std::to_string(i));
    }

    EXPECT_EQ(first, "\\s101\\b ");
    EXPECT_EQ(unknown, "unknown");
}

TEST(StyleLookup, FindsNoNameInAnEmptyList) {
    const StyleList styles;
    const StyleLookup lookup(styles, {}, "unknown");

    EXPECT_EQ(lookup.find(styles, "normal"), "unknown");
}

}  // namespace
}  // namespace quorvane
