#include "quorvane/driver/DescriptionLine.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>

namespace quorvane {
namespace {

DescriptionLine taken(std::string_view line) {
    return descriptionLine(line, originalDialect());
}

NodeKind opened(std::string_view line) {
    const DescriptionLine parts = taken(line);
    return parts.type == LineType::Opener ? parts.kind : NodeKind::None;
}

NodeKind closed(std::string_view line) {
    const DescriptionLine parts = taken(line);
    return parts.type == LineType::Closer ? parts.kind : NodeKind::None;
}

bool isLeaf(std::string_view line) {
    return taken(line).type == LineType::Leaf;
}

std::string_view leafKey(std::string_view line) {
    return taken(line).key;
}

std::string_view leafValue(std::string_view line) {
    return taken(line).value;
}

bool isEmptyOrComment(std::string_view text) {
    return isEmptyOrComment(text, originalDialect());
}

void expectNothing(std::initializer_list<const char*> lines) {
    for (const char* line : lines) {
        EXPECT_EQ(taken(line).type, LineType::Unreadable) << line;
        EXPECT_EQ(taken(line).kind, NodeKind::None) << line;
        EXPECT_FALSE(taken(line).isReadable()) << line;
    }
}

TEST(DescriptionLine, KnowsACommentByItsFirstCharacter) {
    EXPECT_TRUE(isEmptyOrComment(";"));
    EXPECT_TRUE(isEmptyOrComment("; first row"));
    EXPECT_TRUE(isEmptyOrComment("  ;"));
    EXPECT_TRUE(isEmptyOrComment(" \t; (r"));
}

TEST(DescriptionLine, IsEmptyWithNothingButBlanks) {
    EXPECT_TRUE(isEmptyOrComment(""));
    EXPECT_TRUE(isEmptyOrComment(" \t"));
}

TEST(DescriptionLine, HasAHeadUpToTheFirstBlankOrComment) {
    EXPECT_EQ(headOf("(row ; first", originalDialect()), "(row");
    EXPECT_EQ(headOf("row);first", originalDialect()), "row)");
    EXPECT_EQ(headOf("(pt\t=x)", originalDialect()), "(pt");
    EXPECT_EQ(headOf("", originalDialect()), "");
}

TEST(DescriptionLine, KnowsNoOtherComment) {
    EXPECT_FALSE(isEmptyOrComment("x ; y"));
    EXPECT_FALSE(isEmptyOrComment("(r ; y"));
}

TEST(DescriptionLine, KnowsTheOpenerOfEveryNode) {
    EXPECT_EQ(opened("(doc"), NodeKind::Doc);
    EXPECT_EQ(opened("(row"), NodeKind::Row);
    EXPECT_EQ(opened("(r"), NodeKind::Row);
    EXPECT_EQ(opened("(cell"), NodeKind::Cell);
    EXPECT_EQ(opened("(c"), NodeKind::Cell);
    EXPECT_EQ(opened("(para"), NodeKind::Para);
    EXPECT_EQ(opened("(p"), NodeKind::Para);
}

TEST(DescriptionLine, KnowsOpenersInAnyCase) {
    EXPECT_EQ(opened("(R"), NodeKind::Row);
    EXPECT_EQ(opened("(Row"), NodeKind::Row);
    EXPECT_EQ(opened("(DOC"), NodeKind::Doc);
}

TEST(DescriptionLine, KnowsTheCloserOfEveryNode) {
    EXPECT_EQ(closed("doc)"), NodeKind::Doc);
    EXPECT_EQ(closed("row)"), NodeKind::Row);
    EXPECT_EQ(closed("r)"), NodeKind::Row);
    EXPECT_EQ(closed("cell)"), NodeKind::Cell);
    EXPECT_EQ(closed("c)"), NodeKind::Cell);
    EXPECT_EQ(closed("para)"), NodeKind::Para);
    EXPECT_EQ(closed("p)"), NodeKind::Para);
}

TEST(DescriptionLine, KnowsClosersInAnyCase) {
    EXPECT_EQ(closed("R)"), NodeKind::Row);
    EXPECT_EQ(closed("Cell)"), NodeKind::Cell);
}

TEST(DescriptionLine, TakesAnOpenerForNoCloserAndACloserForNoOpener) {
    EXPECT_EQ(closed("(r"), NodeKind::None);
    EXPECT_EQ(opened("r)"), NodeKind::None);
}

TEST(DescriptionLine, EndsAHeadAtBlankTabLineBreakAndSemicolon) {
    for (const char* line : {"(r ", "(r\t", "(r\r", "(r\n", "(r;", "(r ; x", "(r;x", "(r\t;x",
                             "(r \t ;", "(r\r\n;x"}) {
        EXPECT_EQ(opened(line), NodeKind::Row) << line;
    }
    for (const char* line : {"r) ", "r)\t", "r)\r", "r)\n", "r);", "r) ; x", "r);x", "r)\t;x"}) {
        EXPECT_EQ(closed(line), NodeKind::Row) << line;
    }
}

TEST(DescriptionLine, LetsOnlyACommentFollowAHead) {
    expectNothing({"(r x", "(r (c", "(r\tx ; y", "(r c)", "r) x", "r) c)", "r) (r", "r)\t.;"});
}

TEST(DescriptionLine, KnowsNoOtherHeads) {
    expectNothing({"(",
                   ")",
                   "()",
                   "( r",
                   "r )",
                   "(r)",
                   "((r",
                   "r))",
                   "(x",
                   "x)",
                   "(rows",
                   "rows)",
                   "(rb",
                   "rb)",
                   "(pt Total)",
                   "row",
                   "(doc:",
                   "",
                   "(row-backcolor",
                   ";",
                   "x"});
}

TEST(DescriptionLine, KnowsALeafByParenthesesAndEqualsSign) {
    for (const char* line : {"(paper-width=11906)", "(pt=Total)", "(pt=)", "(=)", "(=x)",
                             "(pt = x )", "(pt=a=b)", "(pt=(a)", "(r=1)", "(a;=b)", "(a b=c d)"}) {
        EXPECT_TRUE(isLeaf(line)) << line;
    }
}

TEST(DescriptionLine, LetsACommentFollowALeaf) {
    for (const char* line : {"(pt=x);", "(pt=x) ; label", "(pt=x)\t; label", "(pt=x) ; (y) z",
                             "(pt=x) ", "(pt=x)\t"}) {
        EXPECT_TRUE(isLeaf(line)) << line;
    }
}

TEST(DescriptionLine, LetsNothingElseFollowALeaf) {
    expectNothing({"(pt=x) y", "(pt=x))", "(pt=a)b)", "(pt=x) (ps=y)", "(pt=x) .;"});
}

TEST(DescriptionLine, KnowsNoLeafWithoutItsCharactersInOrder) {
    expectNothing({"(pt Total)", "(pt=x", "pt=x)", "=)", "x(pt=y)", "(pt)=x", "(a) ; b=c"});
}

TEST(DescriptionLine, LooksAfterTheFirstClosingParenthesisOfALeaf) {
    EXPECT_TRUE(isLeaf("(a);=b)"));
    EXPECT_TRUE(isLeaf("(a) ; b=c)"));
    EXPECT_FALSE(isLeaf("(a)=b)"));
    EXPECT_FALSE(isLeaf("(a) b=c)"));
}

TEST(DescriptionLine, ReadsTheKeyUpToTheFirstEqualsSign) {
    EXPECT_EQ(leafKey("(pt=x)"), "pt");
    EXPECT_EQ(leafKey("(pt=a=b)"), "pt");
    EXPECT_EQ(leafKey("(=x)"), "");
    EXPECT_EQ(leafKey("(PT=x)"), "PT");
    EXPECT_EQ(leafKey("(a;=b)"), "a;");
    EXPECT_EQ(leafKey("(a);=b)"), "a);");
    EXPECT_EQ(leafKey("((a=b)"), "(a");
}

TEST(DescriptionLine, TrimsBlanksAndNothingElseFromTheKey) {
    EXPECT_EQ(leafKey("(  a b  =x)"), "a b");
    EXPECT_EQ(leafKey("(   =x)"), "");
    EXPECT_EQ(leafKey("(\tpt\t=x)"), "\tpt\t");
}

TEST(DescriptionLine, ReadsTheValueUpToTheClosingParenthesis) {
    EXPECT_EQ(leafValue("(pt=x)"), "x");
    EXPECT_EQ(leafValue("(pt=)"), "");
    EXPECT_EQ(leafValue("(pt=a=b)"), "a=b");
    EXPECT_EQ(leafValue("(pt=a;b)"), "a;b");
    EXPECT_EQ(leafValue("(pt=;)"), ";");
    EXPECT_EQ(leafValue("(pt=x) ; label (y)"), "x");
}

TEST(DescriptionLine, TakesOnlyTheEnclosingParenthesesFromTheValue) {
    EXPECT_EQ(leafValue("(pt=a(b)"), "a(b");
    EXPECT_EQ(leafValue("(pt=(a)"), "(a");
    EXPECT_EQ(leafValue("(pt=(()"), "((");
    EXPECT_EQ(leafValue("(a);=b)"), "b");
    EXPECT_EQ(leafValue("(a) ; b=c)d"), "c");
}

TEST(DescriptionLine, TrimsBlanksAndNothingElseFromTheValue) {
    EXPECT_EQ(leafValue("(pt=  a b  )"), "a b");
    EXPECT_EQ(leafValue("(pt=   )"), "");
    EXPECT_EQ(leafValue("(pt=\tx\t)"), "\tx\t");
}

TEST(DescriptionLine, TakesALineWithALeafInItsCommentForALeaf) {
    constexpr const char* line = "(r ; as wide as (cw=50)";
    EXPECT_TRUE(isLeaf(line));
    EXPECT_EQ(leafKey(line), "r ; as wide as (cw");
    EXPECT_EQ(leafValue(line), "50");
}

TEST(DescriptionLine, TakesALineThatHasMoreAfterTheLeafInItsCommentForAnOpener) {
    EXPECT_FALSE(isLeaf("(r ; as (cw=50) says"));
    EXPECT_EQ(opened("(r ; as (cw=50) says"), NodeKind::Row);
}

// Short lines of the characters that matter.
std::string randomLine(std::mt19937& random) {
    constexpr std::string_view characters = "()=;rcpR \tx";
    std::string line(random() % 9 + 1, ' ');
    for (char& character : line) {
        character = characters[random() % characters.size()];
    }
    return line;
}

// So nothing can be said against a leaf for want of its "=".
TEST(DescriptionLine, TakesNoLineWithoutAnEqualsSignForALeaf) {
    std::mt19937 random(4);
    int leaves = 0;
    for (int i = 0; i < 100000; ++i) {
        const std::string line = randomLine(random);
        if (isLeaf(line)) {
            ++leaves;
            ASSERT_NE(line.find('='), std::string::npos) << line;
        }
    }
    EXPECT_GT(leaves, 100);
}

TEST(DescriptionLine, HasTheNameOfANodeAsItIsWrittenAndWhatFollows) {
    for (const char* line : {"(Row ; first", "Row) ; first"}) {
        EXPECT_EQ(taken(line).name, "Row");
        EXPECT_EQ(taken(line).rest, " ; first");
    }
    EXPECT_EQ(taken("(r").rest, "");
    EXPECT_EQ(taken("(pt=x);y").rest, ";y");
    EXPECT_EQ(taken("(pt=x)").rest, "");
}

TEST(DescriptionLine, HasTheKindOfItsNodeExactlyWhenItOpensOrClosesOne) {
    std::mt19937 random(5);
    int openers = 0;
    int closers = 0;
    for (int i = 0; i < 100000; ++i) {
        const std::string line = randomLine(random);
        const DescriptionLine parts = taken(line);
        const bool opens = parts.type == LineType::Opener;
        const bool closes = parts.type == LineType::Closer;
        ASSERT_EQ(parts.kind != NodeKind::None, opens || closes) << line;
        ASSERT_EQ(parts.name.empty(), !opens && !closes) << line;
        openers += opens ? 1 : 0;
        closers += closes ? 1 : 0;
    }
    EXPECT_GT(openers, 100);
    EXPECT_GT(closers, 100);
}

}  // namespace
}  // namespace quorvane
