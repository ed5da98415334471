#include "quorvane/base/memory/PooledText.h"

#include <gtest/gtest.h>

#include "tests/support/UnreadableText.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using namespace std::string_view_literals;

class PooledTextTest : public testing::Test {
protected:
    ~PooledTextTest() override {
        text.clear(pool);
        other.clear(pool);
    }

    MemoryPool pool;
    PooledText text;
    PooledText other;
};

TEST_F(PooledTextTest, IsTheSizeOfAPointer) {
    EXPECT_EQ(sizeof(PooledText), sizeof(void*));
}

TEST_F(PooledTextTest, IsEmptyAtFirst) {
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.view(), "");
    EXPECT_EQ(text.text(), "");
}

TEST_F(PooledTextTest, HoldsItsCharacters) {
    text.assign("Total\0 \xC3\xA9"sv, pool);

    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text.view(), "Total\0 \xC3\xA9"sv);
    EXPECT_EQ(text.text(), "Total\0 \xC3\xA9"sv);
}

TEST_F(PooledTextTest, TakesTheTextAssignedToIt) {
    text.assign("abc", pool);

    text.assign("de", pool);
    EXPECT_EQ(text.view(), "de");

    text.assign("", pool);
    EXPECT_TRUE(text.empty());
}

TEST_F(PooledTextTest, CanBeAssignedAPartOfItself) {
    text.assign("abcdef", pool);

    text.assign(text.view().substr(2, 3), pool);

    EXPECT_EQ(text.view(), "cde");
}

TEST_F(PooledTextTest, IsEmptyAfterItWasCleared) {
    text.assign("abc", pool);

    text.clear(pool);

    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.view(), "");
}

TEST_F(PooledTextTest, IsACopyOfTheOneItIsAssigned) {
    text.assign("abc", pool);
    other.assign(text.view(), pool);

    text.clear(pool);

    EXPECT_EQ(other.view(), "abc");
}

TEST_F(PooledTextTest, OfMoreThanFourGigabytesIsRefused) {
    const UnreadableText huge(std::size_t{1} << 32U);
    text.assign("abc", pool);

    EXPECT_EQ(errorNumberOf([&] { text.assign(huge.view(), pool); }), 6);

    EXPECT_EQ(text.view(), "abc");
}

TEST_F(PooledTextTest, HoldsLongTexts) {
    const std::string longText(100'000, 'x');

    text.assign(longText, pool);

    EXPECT_EQ(text.view(), longText);
}

}  // namespace
}  // namespace quorvane
