#include "quorvane/diagnostics/description/keyHints.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quorvane {
namespace {

std::string hint(NodeKind kind, std::string_view word) {
    return nearKeyHint(kind, word, originalVocabulary()).text;
}

TEST(KeyHints, KnowTheWordsOfOtherLanguages) {
    EXPECT_EQ(hint(NodeKind::Row, "background"), "did you mean row-backcolor?");
    EXPECT_EQ(hint(NodeKind::Cell, "bgcolor"), "did you mean cell-backcolor?");
    EXPECT_EQ(hint(NodeKind::Cell, "Fill"), "did you mean cell-backcolor?");
    EXPECT_EQ(hint(NodeKind::Para, "justify"), "did you mean para-alignment?");
    EXPECT_EQ(hint(NodeKind::Para, "class"), "did you mean para-style?");
    EXPECT_EQ(hint(NodeKind::Para, "content"), "did you mean para-text?");
    EXPECT_EQ(hint(NodeKind::Row, "id"), "did you mean row-key?");
}

TEST(KeyHints, KnowTheWordsOfAKeyInAnyOrderAndWithAnySeparator) {
    EXPECT_EQ(hint(NodeKind::Doc, "margin-left"), "did you mean left-margin?");
    EXPECT_EQ(hint(NodeKind::Doc, "page_width"), "did you mean paper-width?");
    EXPECT_EQ(hint(NodeKind::Row, "border.top"), "did you mean row-top-border?");
    EXPECT_EQ(hint(NodeKind::Cell, "Cell Border Right"), "did you mean cell-right-border?");
}

TEST(KeyHints, KnowAKeyWithoutItsNode) {
    EXPECT_EQ(hint(NodeKind::Cell, "width"), "did you mean cell-width?");
    EXPECT_EQ(hint(NodeKind::Para, "text"), "did you mean para-text?");
}

TEST(KeyHints, SayThatEachSideHasABorderOfItsOwn) {
    EXPECT_EQ(hint(NodeKind::Row, "border"),
              "each side has its own border: row-top-border, -bottom-border, "
              "-left-border, -right-border");
    EXPECT_EQ(hint(NodeKind::Cell, "cell-border"),
              "each side has its own border: cell-top-border, -bottom-border, "
              "-left-border, -right-border");
}

TEST(KeyHints, DoNotMentionBordersWhereANodeHasNone) {
    EXPECT_EQ(hint(NodeKind::Para, "border"), "");
    EXPECT_EQ(hint(NodeKind::Doc, "border"), "");
}

TEST(KeyHints, AreTheNearestKeyInItsLongOrShortForm) {
    EXPECT_EQ(hint(NodeKind::Para, "para-txet"), "did you mean para-text?");
    EXPECT_EQ(hint(NodeKind::Row, "rob"), "did you mean rb?");
}

TEST(KeyHints, AreNoneWhereNothingIsNear) {
    EXPECT_EQ(hint(NodeKind::Doc, "watermark"), "");
    EXPECT_EQ(hint(NodeKind::Row, ""), "");
    EXPECT_EQ(hint(NodeKind::Row, "row"), "");
}

}  // namespace
}  // namespace quorvane
