#include "quorvane/driver/DescriptionTree.h"

#include <gmock/gmock.h>

#include "tests/driver/treeText.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Leaf leaf(std::string_view key, std::string_view text, int line) {
    return {.key = originalVocabulary().leafKey(key), .text = text, .line = line};
}

Leaf numberLeaf(std::string_view key, double number, std::string_view text, int line) {
    return {.key = originalVocabulary().leafKey(key),
            .text = text,
            .number = number,
            .kind = LeafKind::Number,
            .line = line};
}

/// The leaf as it is in the tree; null when its key is there already.
Leaf* add(DescriptionTree& tree, DescriptionNode& node, const Leaf& leaf) {
    Leaf* const added = tree.addLeaf(node, leaf.key);
    if (added) {
        *added = leaf;
    }
    return added;
}

TEST(DescriptionTree, AddsAChildUnderItsNumber) {
    DescriptionTree tree;
    const DescriptionNode& row = tree.AddNode(tree.root(), NodeKind::Row, 1001, 5);
    EXPECT_EQ(&tree.root().child(1001), &row);
    EXPECT_EQ(row.number, 1001);
    EXPECT_EQ(row.line, 5);
    EXPECT_TRUE(row.leaves().empty());
    EXPECT_TRUE(row.children().empty());
}

TEST(DescriptionTree, AddsChildrenOfEveryKind) {
    DescriptionTree tree;
    DescriptionNode& root = tree.root();
    tree.AddNode(root, NodeKind::Row, 1001, 2);
    tree.AddNode(root, NodeKind::Cell, 2001, 3);
    tree.AddNode(root, NodeKind::Para, 3001, 4);
    tree.AddNode(root, NodeKind::Doc, 1, 5);
    EXPECT_THAT(childNumbers(root), ElementsAre(1001, 2001, 3001, 1));
}

TEST(DescriptionTree, RefusesToAddWhatIsNotANode) {
    DescriptionTree tree;
    EXPECT_EQ(
        errorOf([&] { tree.AddNode(tree.root(), NodeKind::None, 1001, 8); }),
        driverErrorOf(eWrongNodeType, "Can't add this type of node: 4", "CRtfDriver.AddNode", 8));
    EXPECT_EQ(
        errorOf([&] { tree.AddNode(tree.root(), static_cast<NodeKind>(-1), 1001, 0); }).description,
        "Can't add this type of node: -1");
    EXPECT_TRUE(tree.root().children().empty());
}

TEST(DescriptionTree, KeepsTheKindAndTheOpenerOfANode) {
    DescriptionTree tree;
    const DescriptionNode& row = tree.AddNode(tree.root(), NodeKind::Row, 1001, 2, "(r ; first");
    EXPECT_EQ(row.kind, NodeKind::Row);
    EXPECT_EQ(row.opener, "(r ; first");
}

TEST(DescriptionTree, KeepsLeavesAndChildrenApartInTheOrderOfTheDescription) {
    DescriptionTree tree;
    DescriptionNode& row = tree.root();
    add(tree, row, numberLeaf("row-key", 7, "7", 3));
    tree.AddNode(row, NodeKind::Cell, 2001, 4);
    add(tree, row, leaf("row-backcolor", "red", 5));
    tree.AddNode(row, NodeKind::Cell, 2002, 6);

    EXPECT_THAT(leafKeys(row), ElementsAre("row-key", "row-backcolor"));
    EXPECT_THAT(childNumbers(row), ElementsAre(2001, 2002));
}

TEST(DescriptionTree, TakesAKeyOfDigitsForNoNumber) {
    DescriptionTree tree;
    add(tree, tree.root(), leaf("2001", "x", 3));
    tree.AddNode(tree.root(), NodeKind::Cell, 2001, 4);
    EXPECT_THAT(leafKeys(tree.root()), ElementsAre("2001"));
    EXPECT_THAT(childNumbers(tree.root()), ElementsAre(2001));
}

TEST(DescriptionTree, HasNeitherLeavesNorChildrenAtFirst) {
    const DescriptionTree tree;
    EXPECT_THAT(leafKeys(tree.root()), IsEmpty());
    EXPECT_THAT(childNumbers(tree.root()), IsEmpty());
}

TEST(DescriptionTree, KeepsALeafWithItsValueTextAndLine) {
    DescriptionTree tree;
    add(tree, tree.root(), numberLeaf("para-text", 12, "0012", 3));
    const Leaf kept = leafOf(tree.root(), "para-text");
    EXPECT_EQ(kept.value(), Value(12));
    EXPECT_EQ(kept.valueText(), "12");
    EXPECT_EQ(kept.text, "0012");
    EXPECT_EQ(kept.line, 3);
}

TEST(DescriptionTree, RefusesAKeyThatIsThereAndHasItsLeaf) {
    for (const char* key : {"para-text", "any-other"}) {
        DescriptionTree tree;
        const Leaf* first = add(tree, tree.root(), leaf(key, "a", 3));
        const Leaf second = leaf(key, "b", 9);
        EXPECT_EQ(add(tree, tree.root(), second), nullptr);
        EXPECT_EQ(&tree.leafOf(tree.root(), second.key), first);
        EXPECT_EQ(leafOf(tree.root(), key).text, "a");
        EXPECT_THAT(leafKeys(tree.root()), ElementsAre(key));
    }
}

TEST(DescriptionTree, TakesTheSameKeyInDifferentNodes) {
    DescriptionTree tree;
    DescriptionNode& row = tree.AddNode(tree.root(), NodeKind::Row, 1001, 1);
    for (const char* key : {"para-text", "any-other"}) {
        add(tree, tree.root(), leaf(key, "a", 3));
        add(tree, row, leaf(key, "b", 4));
        EXPECT_EQ(leafOf(tree.root(), key).text, "a");
        EXPECT_EQ(leafOf(row, key).text, "b");
    }
}

TEST(DescriptionTree, DistinguishesKeysToTheLetter) {
    DescriptionTree tree;
    add(tree, tree.root(), leaf("para-text", "a", 3));
    add(tree, tree.root(), leaf("Para-Text", "b", 4));
    EXPECT_THAT(leafKeys(tree.root()), ElementsAre("para-text", "Para-Text"));
}

TEST(DescriptionTree, HasNoChildOfAnotherNumber) {
    DescriptionTree tree;
    tree.AddNode(tree.root(), NodeKind::Doc, 2, 1);
    EXPECT_EQ(errorOf([&] { tree.root().child(1); }), absentKey());
}

TEST(DescriptionTree, FreesNodesThatAreNestedAsDeepAsCanBe) {
    DescriptionTree tree;
    DescriptionNode* innermost = &tree.root();
    for (int depth = 0; depth < 200000; ++depth) {
        innermost = &tree.AddNode(*innermost, NodeKind::Doc, 1, 1);
    }
    EXPECT_TRUE(innermost->children().empty());
}

}  // namespace
}  // namespace quorvane
