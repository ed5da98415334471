#include "quorvane/stylesheet/StyleList.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

namespace quorvane {
namespace {

TEST(Style, ReadsItsSubfields) {
    const Style style{"title", "^ds^f\\f0\\b^bnormal^nbody^ayes"};

    EXPECT_EQ(style.kind(), "s");
    EXPECT_EQ(style.format(), "\\f0\\b");
    EXPECT_EQ(style.basedOn(), "normal");
    EXPECT_EQ(style.next(), "body");
    EXPECT_TRUE(style.isAdditive());
}

TEST(Style, HasEmptySubfieldsWhereItsRecordHasNone) {
    const Style style{"title", ""};

    EXPECT_EQ(style.kind(), "");
    EXPECT_EQ(style.format(), "");
    EXPECT_EQ(style.basedOn(), "");
    EXPECT_EQ(style.next(), "");
    EXPECT_FALSE(style.isAdditive());
}

TEST(Style, TakesTheFirstOfARepeatedItem) {
    const Style style{"x", "^ds^dcs^fone^ftwo^bb^bc^nn^no"};

    EXPECT_EQ(style.kind(), "s");
    EXPECT_EQ(style.format(), "one");
    EXPECT_EQ(style.basedOn(), "b");
    EXPECT_EQ(style.next(), "n");
}

TEST(Style, IsAdditiveWhenItsRecordSaysSoAnywhere) {
    EXPECT_TRUE((Style{"x", "^ano^ayes"}).isAdditive());
    EXPECT_FALSE((Style{"x", "^ano"}).isAdditive());
    EXPECT_FALSE((Style{"^ayes", "^ds"}).isAdditive());
}

TEST(StyleList, IsEmptyAtFirst) {
    const StyleList styles;

    EXPECT_TRUE(styles.empty());
    EXPECT_EQ(styles.count(), 0U);
    EXPECT_EQ(styles.find("normal"), -1);
}

TEST(StyleList, FindsThePositionOfAName) {
    StyleList styles;
    styles.add("normal", "^ds");
    styles.add("title", "^ds^fb");

    EXPECT_EQ(styles.find("normal"), 1);
    EXPECT_EQ(styles.find("title"), 2);
    EXPECT_EQ(styles.at(2).name, "title");
    EXPECT_EQ(styles.at(2).record, "^ds^fb");
    EXPECT_EQ(styles.count(), 2U);
}

TEST(StyleList, MatchesWholeNamesOnly) {
    StyleList styles;
    styles.add("title", "^ds");

    EXPECT_EQ(styles.find("titl"), -1);
    EXPECT_EQ(styles.find("itle"), -1);
    EXPECT_EQ(styles.find("titles"), -1);
    EXPECT_EQ(styles.find(""), -1);
}

TEST(StyleList, FindsTheFirstOfANameThatIsThereTwice) {
    StyleList styles;
    styles.add("a", "^ds^f1");
    styles.add("b", "^ds^f2");
    styles.add("a", "^ds^f3");

    EXPECT_EQ(styles.find("a"), 1);
    EXPECT_EQ(styles.count(), 3U);
}

TEST(StyleList, FindsAnEmptyName) {
    StyleList styles;
    styles.add("a", "^ds");
    styles.add("", "^ds");

    EXPECT_EQ(styles.find(""), 2);
}

TEST(StyleList, FindsANameThatStandsInARecord) {
    StyleList styles;
    styles.add("a", "^ds^fx^tb^nc");
    styles.add("b", "^ds");

    EXPECT_EQ(styles.find("b"), 1);
}

TEST(StyleList, FindsANameThatHoldsASubfield) {
    StyleList styles;
    styles.add("other", "^ds");
    styles.add("a^b", "^ds");

    EXPECT_EQ(styles.find("a^b"), 2);
    EXPECT_EQ(styles.find("a"), 2);
    EXPECT_EQ(styles.find("a^b^ds"), 2);
    EXPECT_EQ(styles.find("b"), -1);
}

TEST(StyleList, IsEmptyAfterItWasCleared) {
    StyleList styles;
    styles.add("a", "^ds");

    styles.clear();

    EXPECT_TRUE(styles.empty());
    EXPECT_EQ(styles.find("a"), -1);
    styles.add("b", "^ds");
    EXPECT_EQ(styles.find("b"), 1);
}

TEST(StyleNumber, Is99MoreThanThePosition) {
    EXPECT_EQ(StyleNumbers().at(1), 100);
    EXPECT_EQ(StyleNumbers().at(25), 124);
}

// The search as it is defined: the first entry that holds "^t", the name and "^".
int plainSearch(const std::vector<std::pair<std::string, std::string>>& entries,
                const std::string& name) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string text = "^t" + entries[i].first + entries[i].second + "^";
        if (text.find("^t" + name + "^") != std::string::npos) {
            return static_cast<int>(i) + 1;
        }
    }
    return -1;
}

TEST(StyleList, FindsWhatAPlainSearchFinds) {
    std::mt19937 random(3);
    const auto text = [&random](std::size_t length) {
        std::string characters;
        for (; length > 0; --length) {
            characters += "ab^tt"[random() % 5];
        }
        return characters;
    };
    for (int round = 0; round < 400; ++round) {
        StyleList styles;
        std::vector<std::pair<std::string, std::string>> entries;
        for (auto count = random() % 12; count > 0; --count) {
            const std::string name = text(random() % 4);
            const std::string record = "^d" + text(random() % 5);
            styles.add(name, record);
            entries.emplace_back(name, record);
        }
        for (int i = 0; i < 50; ++i) {
            const std::string name = text(random() % 5);
            ASSERT_EQ(styles.find(name), plainSearch(entries, name)) << name;
        }
    }
}

TEST(StyleList, FindsNamesAmongMany) {
    StyleList styles;
    for (int i = 1; i <= 50'000; ++i) {
        styles.add("style" + std::to_string(i), "^ds");
    }
    for (int i = 1; i <= 50'000; ++i) {
        ASSERT_EQ(styles.find("style" + std::to_string(i)), i);
    }
}

}  // namespace
}  // namespace quorvane
