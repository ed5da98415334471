#include "quorvane/base/memory/SharedText.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/support/UnreadableText.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

using namespace std::string_view_literals;

TEST(SharedText, IsTheSizeOfAPointer) {
    EXPECT_EQ(sizeof(SharedText), sizeof(void*));
}

TEST(SharedText, IsEmptyAtFirst) {
    const SharedText text;

    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.view(), "");
    EXPECT_EQ(text.text(), "");
}

TEST(SharedText, HoldsItsCharacters) {
    const SharedText text("Total\0 \xC3\xA9"sv);

    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text.view(), "Total\0 \xC3\xA9"sv);
    EXPECT_EQ(text.text(), "Total\0 \xC3\xA9"sv);
}

TEST(SharedText, IsEmptyWhenMadeOfNothing) {
    EXPECT_TRUE(SharedText("").empty());
}

TEST(SharedText, CopiesWhatItIsMadeOf) {
    std::string source = "abc";
    const SharedText text(source);

    source = "xyz";

    EXPECT_EQ(text.view(), "abc");
}

TEST(SharedText, SharesItsCharactersWithItsCopies) {
    const SharedText text("abc");
    const SharedText copy = text;  // NOLINT(performance-unnecessary-copy-initialization)

    EXPECT_EQ(copy.view().data(), text.view().data());
}

TEST(SharedText, LivesAsLongAsACopyDoes) {
    SharedText copy;
    {
        const SharedText text("abc");
        copy = text;
    }

    EXPECT_EQ(copy.view(), "abc");
}

TEST(SharedText, IsEmptyAfterItWasMoved) {
    SharedText text("abc");

    const SharedText moved = std::move(text);

    EXPECT_EQ(moved.view(), "abc");
    EXPECT_TRUE(text.empty());  // NOLINT(bugprone-use-after-move)
}

TEST(SharedText, TakesTheTextAssignedToIt) {
    SharedText text("abc");

    text = SharedText("de");
    EXPECT_EQ(text.view(), "de");

    text = SharedText();
    EXPECT_TRUE(text.empty());
}

TEST(SharedText, SurvivesBeingAssignedToItself) {
    SharedText text("abc");
    const SharedText& same = text;

    text = same;

    EXPECT_EQ(text.view(), "abc");
}

TEST(SharedText, OfMoreThanFourGigabytesIsRefused) {
    const UnreadableText huge(std::size_t{1} << 32U);
    EXPECT_EQ(errorNumberOf([&] { SharedText text(huge.view()); }), 6);
}

TEST(SharedText, IsReleasedInAnyOrder) {
    std::vector<SharedText> texts(1, SharedText("abc"));
    for (int i = 0; i < 9; ++i) {
        texts.push_back(texts.front());
    }

    texts.erase(texts.begin(), texts.begin() + 4);
    texts.pop_back();

    EXPECT_EQ(texts.size(), 5U);
    EXPECT_EQ(texts.back().view(), "abc");
}

}  // namespace
}  // namespace quorvane
