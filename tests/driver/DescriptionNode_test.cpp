#include "quorvane/driver/DescriptionNode.h"

#include <gmock/gmock.h>

#include "tests/driver/ParsedDescription.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

ErrorFacts noValidKey(const std::string& number) {
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

std::string textOfNumber(double number) {
    return Leaf{.number = number, .kind = LeafKind::Number}.valueText();
}

TEST(Leaf, WritesANumberInItsShortestForm) {
    EXPECT_EQ(textOfNumber(12.0), "12");
    EXPECT_EQ(textOfNumber(1.5), "1.5");
    EXPECT_EQ(textOfNumber(-0.0), "0");
    EXPECT_EQ(textOfNumber(1001), "1001");
}

TEST(Leaf, WritesATextAsItIs) {
    EXPECT_EQ(Leaf{.text = "0012"}.valueText(), "0012");
    EXPECT_EQ(Leaf{}.valueText(), "");
}

}  // namespace
}  // namespace quorvane
