#include "quorvane/driver/DescriptionNode.h"

#include <gmock/gmock.h>

#include "tests/driver/ParsedDescription.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ToldError noValidKey(const std::string& number) {
    return driverErrorOf(eWrongNodeType, number + " isn't a valid key value.",
                         "CRtfDriver.NodeType");
}

TEST(DescriptionNode, NumbersNodesByKind) {
    EXPECT_EQ(NodeType(0), NodeKind::Doc);
    EXPECT_EQ(NodeType(999), NodeKind::Doc);
    EXPECT_EQ(NodeType(1000), NodeKind::Row);
    EXPECT_EQ(NodeType(1999), NodeKind::Row);
    EXPECT_EQ(NodeType(2000), NodeKind::Cell);
    EXPECT_EQ(NodeType(2999), NodeKind::Cell);
    EXPECT_EQ(NodeType(3000), NodeKind::Para);
    EXPECT_EQ(NodeType(3999), NodeKind::Para);
}

TEST(DescriptionNode, RefusesANumberBelowAllKinds) {
    EXPECT_EQ(errorOf([] { NodeType(-1); }), noValidKey("-1"));
}

TEST(DescriptionNode, RefusesANumberAboveAllKinds) {
    EXPECT_EQ(errorOf([] { NodeType(4000); }), noValidKey("4000"));
}

TEST(DescriptionNode, AddsAChildUnderItsNumber) {
    DescriptionNode doc(1);
    const auto row = AddNode(doc, NodeKind::Row, 1001, 5);
    EXPECT_EQ(doc.child(1001), row);
    EXPECT_EQ(row->line(), 5);
    EXPECT_TRUE(row->IsMapEmpty());
}

TEST(DescriptionNode, AddsChildrenOfEveryKind) {
    DescriptionNode node(1);
    AddNode(node, NodeKind::Row, 1001, 2);
    AddNode(node, NodeKind::Cell, 2001, 3);
    AddNode(node, NodeKind::Para, 3001, 4);
    AddNode(node, NodeKind::Doc, 1, 5);
    EXPECT_THAT(node.childNumbers(), ElementsAre(1001, 2001, 3001, 1));
}

TEST(DescriptionNode, RefusesToAddWhatIsNoNode) {
    DescriptionNode doc(1);
    EXPECT_EQ(
        errorOf([&] { AddNode(doc, NodeKind::None, 1001, 8); }),
        driverErrorOf(eWrongNodeType, "Can't add this type of node: 4", "CRtfDriver.AddNode", 8));
    EXPECT_EQ(errorOf([&] { AddNode(doc, static_cast<NodeKind>(-1), 1001, 0); }).description,
              "Can't add this type of node: -1");
    EXPECT_TRUE(doc.IsMapEmpty());
}

TEST(DescriptionNode, RefusesASecondChildOfTheSameNumber) {
    DescriptionNode doc(1);
    const auto row = AddNode(doc, NodeKind::Row, 1001, 2);
    EXPECT_EQ(errorOf([&] { AddNode(doc, NodeKind::Row, 1001, 3); }).number, 457);
    EXPECT_EQ(doc.child(1001), row);
}

TEST(DescriptionNode, NestsRowInDocCellInRowAndParaInCellOnly) {
    std::vector<std::pair<NodeKind, NodeKind>> nesting;
    for (int parent = 0; parent <= 4; ++parent) {
        for (int child = 0; child <= 4; ++child) {
            if (nests(static_cast<NodeKind>(parent), static_cast<NodeKind>(child))) {
                nesting.emplace_back(static_cast<NodeKind>(parent), static_cast<NodeKind>(child));
            }
        }
    }
    EXPECT_THAT(nesting, ElementsAre(std::pair(NodeKind::Row, NodeKind::Cell),
                                     std::pair(NodeKind::Cell, NodeKind::Para),
                                     std::pair(NodeKind::Doc, NodeKind::Row)));
}

TEST(DescriptionNode, KeepsLeavesAndChildrenApartInTheOrderOfTheDescription) {
    DescriptionNode row(2);
    row.addLeaf("row-key", Leaf(7.0, "7", 3));
    AddNode(row, NodeKind::Cell, 2002, 4);
    row.addLeaf("row-backcolor", Leaf("red", "red", 5));
    AddNode(row, NodeKind::Cell, 2001, 6);

    EXPECT_THAT(row.leafKeys(), ElementsAre("row-key", "row-backcolor"));
    EXPECT_THAT(row.childNumbers(), ElementsAre(2002, 2001));
}

TEST(DescriptionNode, TakesAKeyOfDigitsForNoNumber) {
    DescriptionNode row(2);
    row.addLeaf("2001", Leaf("x", "x", 3));
    AddNode(row, NodeKind::Cell, 2001, 4);
    EXPECT_THAT(row.leafKeys(), ElementsAre("2001"));
    EXPECT_THAT(row.childNumbers(), ElementsAre(2001));
}

TEST(DescriptionNode, HasNeitherLeavesNorChildrenAtFirst) {
    const DescriptionNode node(1);
    EXPECT_THAT(node.leafKeys(), IsEmpty());
    EXPECT_THAT(node.childNumbers(), IsEmpty());
}

TEST(DescriptionNode, KeepsALeafWithItsValueTextAndLine) {
    DescriptionNode para(2);
    para.addLeaf("para-text", Leaf(12.0, "0012", 3));
    EXPECT_EQ(para.leaf("para-text").value, Value(12));
    EXPECT_EQ(para.leaf("para-text").text, "0012");
    EXPECT_EQ(para.leaf("para-text").line, 3);
}

TEST(DescriptionNode, RefusesAKeyThatIsThereAndTellsTheLineOfTheSecond) {
    DescriptionNode para(2);
    para.addLeaf("para-text", Leaf("a", "a", 3));
    EXPECT_EQ(errorOf([&] { para.addLeaf("para-text", Leaf("b", "b", 9)); }), duplicateKey(9));
    EXPECT_EQ(para.leaf("para-text").text, "a");
}

TEST(DescriptionNode, TellsKeysApartToTheLetter) {
    DescriptionNode para(2);
    para.addLeaf("para-text", Leaf("a", "a", 3));
    para.addLeaf("Para-Text", Leaf("b", "b", 4));
    EXPECT_THAT(para.leafKeys(), ElementsAre("para-text", "Para-Text"));
}

TEST(DescriptionNode, HasNoChildOfAnotherNumber) {
    DescriptionNode root(0);
    AddNode(root, NodeKind::Doc, 2, 1);
    EXPECT_EQ(errorOf([&] { root.child(1); }), objectNotSet());
}

TEST(DescriptionNode, FreesNodesThatAreNestedAsDeepAsCanBe) {
    auto root = std::make_shared<DescriptionNode>(0);
    std::weak_ptr<DescriptionNode> innermost = root;
    for (int depth = 0; depth < 200000; ++depth) {
        innermost = AddNode(*innermost.lock(), NodeKind::Doc, 1, 1);
    }
    root.reset();
    EXPECT_TRUE(innermost.expired());
}

TEST(DescriptionNode, LeavesAChildThatIsHeldElsewhereAsItIs) {
    auto doc = std::make_shared<DescriptionNode>(0);
    const auto row = AddNode(*doc, NodeKind::Row, 1001, 1);
    AddNode(*row, NodeKind::Cell, 2001, 2);
    doc.reset();
    EXPECT_THAT(row->childNumbers(), ElementsAre(2001));
    EXPECT_EQ(row->child(2001)->line(), 2);
}

TEST(DescriptionNode, WritesANumberInItsShortestForm) {
    EXPECT_EQ(valueText(12.0), "12");
    EXPECT_EQ(valueText(1.5), "1.5");
    EXPECT_EQ(valueText(-0.0), "0");
    EXPECT_EQ(valueText(1001), "1001");
}

TEST(DescriptionNode, WritesATextAsItIs) {
    EXPECT_EQ(valueText("0012"), "0012");
    EXPECT_EQ(valueText(""), "");
}

}  // namespace
}  // namespace quorvane
