#include "quorvane/driver/DescriptionParser.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/driver/ParsedDescription.h"
#include "tests/driver/treeText.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string treeOf(const std::string& text) {
    const ReadDescription read(lines(text));
    EXPECT_EQ(read.error, ErrorFacts());
    return read.tree;
}

ErrorFacts wrongSyntax(const std::string& line, int number) {
    return driverErrorOf(eSyntaxError, line + " has a wrong syntax",
                         "sLine is neither a recognized node nor a leaf\r\nsLeaf = " + line +
                             "\r\nCRtfDriver.treeWalkerBuild",
                         number);
}

ErrorFacts wrongNodeType(const std::string& line, int number) {
    return driverErrorOf(eWrongNodeType, "Wrong node type in " + line, "CRtfDriver.treeWalkerBuild",
                         number);
}

ErrorFacts tooManyNodes(const std::string& kind, int number) {
    return driverErrorOf(eWrongNumberOfNodes, "Too many " + kind + " nodes.",
                         "CRtfDriver.treeWakerBuild", number);
}

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

std::vector<std::string> repaired(const std::string& text) {
    std::vector<std::string> result;
    const std::string source = lines(text);
    for (const SourceLine& line : repairLines(PreProcessRawData(source))) {
        result.emplace_back(line.text);
    }
    return result;
}

TEST(DescriptionParser, ReadsACompleteDescription) {
    EXPECT_EQ(treeOf("(doc|(paper-width=11906)|(paper-height=16838)|(top-margin=1440)|"
                     "(r ; header row|(rb=light-yellow)|(rbb=thin)|"
                     "(c|(cw=50)|(ca=centered)|(p|(pt=Name)|(ps=1)|p)|(p|(pt=Surname)|p)|c)|"
                     "(cell|(cell-width=50)|(para|(para-text=Total)|(para-alignment=right)|para)|"
                     "cell)|r)|doc)"),
              "{1{paper-width=11906 paper-height=16838 top-margin=1440 "
              "1001{row-backcolor=\"light-yellow\" row-bottom-border=\"thin\" "
              "2001{cell-width=50 cell-alignment=\"centered\" "
              "3001{para-text=\"Name\" para-style=1} 3002{para-text=\"Surname\"}} "
              "2002{cell-width=50 3003{para-text=\"Total\" para-alignment=\"right\"}}}}}");
}

TEST(DescriptionParser, ReadsNothingOfNoLines) {
    EXPECT_EQ(treeOf(""), "{}");
}

TEST(DescriptionParser, NumbersTheNodesOfEachKindThroughTheDescription) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(p|p)|c)|(c|c)|r)|(r|(c|(p|p)|(p|p)|c)|r)|doc)"),
              "{1{1001{2001{3001{}} 2002{}} 1002{2003{3002{} 3003{}}}}}");
}

TEST(DescriptionParser, NumbersFromTheStartWithEveryParser) {
    EXPECT_EQ(treeOf("(doc|(r|r)|doc)"), "{1{1001{}}}");
    EXPECT_EQ(treeOf("(doc|(r|r)|doc)"), "{1{1001{}}}");
}

TEST(DescriptionParser, ReadsNodeNamesInAnyCase) {
    EXPECT_EQ(treeOf("(doc|(R|(CELL|(Para|PARA)|Cell)|ROW)|(Row|r)|DOC)"),
              "{1{1001{2001{3001{}}} 1002{}}}");
}

TEST(DescriptionParser, ReadsKeysAsTheyAreWritten) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(p|(PT=Total)|(Para-Style=x)|p)|c)|r)|doc)"),
              "{1{1001{2001{3001{PT=\"Total\" Para-Style=\"x\"}}}}}");
}

TEST(DescriptionParser, ReadsShortAndLongKeysAsTheSame) {
    EXPECT_EQ(treeOf("(rb=red)|(rtb=thin)|(rbb=thin)|(rlb=thin)|(rrb=thin)"),
              treeOf("(row-backcolor=red)|(row-top-border=thin)|(row-bottom-border=thin)|"
                     "(row-left-border=thin)|(row-right-border=thin)"));
    EXPECT_EQ(treeOf("(cb=x)|(ctb=x)|(cbb=x)|(clb=x)|(crb=x)|(cw=1)|(ca=x)|(cs=x)|(cmf=x)"),
              treeOf("(cell-backcolor=x)|(cell-top-border=x)|(cell-bottom-border=x)|"
                     "(cell-left-border=x)|(cell-right-border=x)|(cell-width=1)|"
                     "(cell-alignment=x)|(cell-style=x)|(cell-marked-field=x)"));
    EXPECT_EQ(treeOf("(pt=x)|(ps=x)|(pa=x)|(pmf=x)"),
              treeOf("(para-text=x)|(para-style=x)|(para-alignment=x)|(para-marked-field=x)"));
}

TEST(DescriptionParser, ExpandsTheNamesOfNodesAsKeysToo) {
    EXPECT_EQ(treeOf("(r=1)|(c=2)|(p=3)"), "{row=1 cell=2 para=3}");
}

TEST(DescriptionParser, ReadsLeavesBeforeBetweenAndAfterChildren) {
    EXPECT_EQ(treeOf("(doc|(r|(c|c)|(rb=red)|(c|c)|(rtb=thin)|r)|doc)"),
              "{1{1001{2001{} row-backcolor=\"red\" 2002{} row-top-border=\"thin\"}}}");
}

TEST(DescriptionParser, ReadsTheFormsOfNumbers) {
    const auto valueOf = [](const std::string& text) { return treeOf("(k=" + text + ")"); };
    EXPECT_EQ(valueOf("0012"), "{k=12}");
    EXPECT_EQ(valueOf("+1.50"), "{k=1.5}");
    EXPECT_EQ(valueOf("-5"), "{k=-5}");
    EXPECT_EQ(valueOf("1e3"), "{k=1000}");
    EXPECT_EQ(valueOf("1E+3"), "{k=1000}");
    EXPECT_EQ(valueOf("25e-1"), "{k=2.5}");
    EXPECT_EQ(valueOf("1."), "{k=1}");
    EXPECT_EQ(valueOf(".5"), "{k=0.5}");
    EXPECT_EQ(valueOf("-.5"), "{k=-0.5}");
    EXPECT_EQ(valueOf("-0"), "{k=0}");
    EXPECT_EQ(valueOf("1e-999"), "{k=0}");
    EXPECT_EQ(valueOf("12345678901234567890"), "{k=1.2345678901234567e+19}");
    EXPECT_EQ(valueOf("  7  "), "{k=7}");
}

TEST(DescriptionParser, ReadsEverythingElseAsText) {
    const auto valueOf = [](const std::string& text) { return treeOf("(k=" + text + ")"); };
    for (const char* text : {"12a", "a12",   "1,5",    "1 000", "0x10", "&H10", "inf",   "Infinity",
                             "nan", "1e999", "-1e999", ".",     "+",    "-",    "e3",    "1e",
                             "1e+", "1.5.2", "--1",    "+-1",   "1d3",  "",     "1_000", "\t5"}) {
        const std::string asText(text);
        EXPECT_EQ(valueOf(asText), "{k=\"" + asText + "\"}");
    }
}

TEST(DescriptionParser, KeepsTheTextAndTheLineOfALeaf) {
    const ReadDescription read(lines("; first||(pt = 0012 )|(ps=x)"));
    EXPECT_EQ(leafOf(read.root(), "para-text").text, "0012");
    EXPECT_EQ(leafOf(read.root(), "para-text").line, 3);
    EXPECT_EQ(leafOf(read.root(), "para-style").text, "x");
    EXPECT_EQ(leafOf(read.root(), "para-style").line, 4);
}

TEST(DescriptionParser, KeepsTheLineOfANode) {
    const ReadDescription read(lines("(doc||(r|; cell|(c"));
    const DescriptionNode& doc = read.root().child(1);
    EXPECT_EQ(read.root().line, 0);
    EXPECT_EQ(doc.line, 1);
    EXPECT_EQ(doc.child(1001).line, 3);
    EXPECT_EQ(doc.child(1001).child(2001).line, 5);
}

TEST(DescriptionParser, ReadsValuesWithEqualsSignsSemicolonsAndOpeningParentheses) {
    EXPECT_EQ(treeOf("(a=b=c)|(d=e;f)|(g=h(i)|(j=;)|(k=(l)"),
              R"({a="b=c" d="e;f" g="h(i" j=";" k="(l"})");
}

TEST(DescriptionParser, ReadsOddKeys) {
    EXPECT_EQ(treeOf("(=x)|(a;=b)|(c);=d)|(1001=e)"), R"({="x" a;="b" c);="d" 1001="e"})");
}

TEST(DescriptionParser, ReadsALineWithALeafInItsCommentAsALeaf) {
    EXPECT_EQ(treeOf("(doc|(r ; as wide as (cw=50)"), "{1{r ; as wide as (cw=50}}");
}

TEST(DescriptionParser, LetsCommentsFollowEveryKindOfLine) {
    EXPECT_EQ(treeOf("(doc ; a|(r;b|(c\t; c|(p ; (d|(pt=x) ; e|p);f|c)\t;g|r) ; h|doc) ; i"),
              "{1{1001{2001{3001{para-text=\"x\"}}}}}");
}

TEST(DescriptionParser, ClosesCellAndRowForARow) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(cw=5)|(r|(rb=red)|r)|doc)"),
              "{1{1001{2001{cell-width=5}} 1004{row-backcolor=\"red\"}}}");
}

TEST(DescriptionParser, ClosesParagraphCellAndRowForARow) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(p|(pt=a)|(r|r)|doc)"),
              "{1{1001{2001{3001{para-text=\"a\"}}} 1005{}}}");
}

TEST(DescriptionParser, ClosesARowForARow) {
    EXPECT_EQ(treeOf("(doc|(r|(r|(c|c)|r)|doc)"), "{1{1001{} 1003{2001{}}}}");
}

TEST(DescriptionParser, ClosesACellForACellAndAParagraphForAParagraph) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(c|(p|(p|p)|c)|r)|doc)"), "{1{1001{2001{} 2003{3001{} 3003{}}}}}");
}

TEST(DescriptionParser, ClosesParagraphAndCellForACell) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(p|(c|c)|r)|doc)"), "{1{1001{2001{3001{}} 2004{}}}}");
}

TEST(DescriptionParser, CountsAnOpenerAgainOnEveryLevelThatItCloses) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(p|(r|(c|(p|(r|(c|(p|p)|c)|r)|(r|r)|doc)"),
              "{1{1001{2001{3001{}}} 1005{2002{3002{}}} 1009{2003{3003{}}} 1010{}}}");
}

TEST(DescriptionParser, CountsOnFromTheNumberOfTheLastNodeOfTheKind) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(r|(c|c)|(c|c)|r)|(r|r)|doc)"),
              "{1{1001{2001{}} 1004{2002{} 2003{}} 1005{}}}");
}

TEST(DescriptionParser, EndsAtAnOpenerThatCanStandNowhere) {
    EXPECT_EQ(treeOf("(doc|(c|(cw=5)|c)|x|doc)"), "{1{}}");
    EXPECT_EQ(treeOf("(doc|(r|(p|(pt=x)|p)|r)|doc)"), "{1{1001{}}}");
    EXPECT_EQ(treeOf("(doc|(p|p)|doc)"), "{1{}}");
}

TEST(DescriptionParser, OpensADocAnywhere) {
    EXPECT_EQ(treeOf("(doc|(doc|(r|(doc|doc)|(c|(doc|doc)|(p|(doc|doc)|p)|c)|r)|doc)|doc)"),
              "{1{2{1001{3{} 2001{4{} 3001{5{}}}}}}}");
}

TEST(DescriptionParser, ReadsTheInsideOfANestedDocAsThatOfAnyDoc) {
    EXPECT_EQ(treeOf("(doc|(r|(doc|(paper-width=5)|(r|(c|c)|r)|doc)|(c|c)|r)|doc)"),
              "{1{1001{2{paper-width=5 1002{2001{}}} 2002{}}}}");
}

TEST(DescriptionParser, ReadsARowThatStandsOutsideTheDoc) {
    EXPECT_EQ(treeOf("(r|(c|c)|r)|(doc|(r|r)|doc)|(r|r)|(rb=red)"),
              "{1001{2001{}} 1{1002{}} 1003{} row-backcolor=\"red\"}");
}

TEST(DescriptionParser, EndsAtTheCloserOfADocOutsideTheDoc) {
    EXPECT_EQ(treeOf("(doc|doc)|doc)|x|(r"), "{1{}}");
    EXPECT_EQ(treeOf("doc)|(doc|doc)"), "{}");
}

TEST(DescriptionParser, LeavesOpenWhatNoLineCloses) {
    EXPECT_EQ(treeOf("(doc|(r|(c|(p|(pt=x)"), "{1{1001{2001{3001{para-text=\"x\"}}}}}");
}

TEST(DescriptionParser, RefusesTheCloserOfAnotherNode) {
    const ReadDescription read(lines("(doc|(r|(c|(p|(pt=x)|c) ; too early|(c|c)|r)|doc)"));
    EXPECT_EQ(read.error, wrongNodeType("c) ; too early", 6));
    EXPECT_EQ(read.tree, "{1{1001{2001{3001{para-text=\"x\"}}}}}");
}

TEST(DescriptionParser, RefusesEveryCloserButTheOwnOne) {
    const std::string openers[] = {"(doc", "(doc|(r", "(doc|(r|(c", "(doc|(r|(c|(p"};
    const std::string closers[] = {"doc)", "r)", "c)", "p)"};
    for (std::size_t open = 0; open < 4; ++open) {
        for (std::size_t close = 0; close < 4; ++close) {
            const ReadDescription read(lines(openers[open] + "|" + closers[close]));
            const int line = static_cast<int>(open) + 2;
            EXPECT_EQ(read.error,
                      open == close ? ErrorFacts() : wrongNodeType(closers[close], line));
        }
    }
}

TEST(DescriptionParser, RefusesTheCloserOfARowOutsideTheDoc) {
    EXPECT_EQ(ReadDescription(lines("(doc|doc)|r)")).error, wrongNodeType("r)", 3));
}

TEST(DescriptionParser, RefusesTheCloserOfTheDocWhileARowIsOpen) {
    EXPECT_EQ(ReadDescription(lines("(doc|(r|doc)")).error, wrongNodeType("doc)", 3));
}

TEST(DescriptionParser, NamesAWrongCloserAsItIsWritten) {
    EXPECT_EQ(ReadDescription(lines("(doc|  Row)\t;x")).error, wrongNodeType("Row)\t;x", 2));
}

TEST(DescriptionParser, RefusesAnUnreadableLine) {
    const ReadDescription read(lines("(doc|(r|(c|(p|(pt Total)|p)|c)|r)|doc)"));
    EXPECT_EQ(read.error, wrongSyntax("(pt Total)", 5));
    EXPECT_EQ(read.tree, "{1{1001{2001{3001{}}}}}");
}

TEST(DescriptionParser, RefusesEveryKindOfUnreadableLine) {
    for (const char* line : {"x", "(", ")", "()", "(rows", "rows)", "(r)", "(r (c", "(pt=x) y",
                             "(pt=x", "pt=x)", "(doc)", "p) p)", "(pt=a)b)", "( r"}) {
        EXPECT_EQ(ReadDescription(lines("(doc|" + std::string(line))).error, wrongSyntax(line, 2));
    }
}

TEST(DescriptionParser, RefusesAKeyThatStandsTwiceInANode) {
    const ReadDescription read(lines("(doc|(r|(c|(cw=5)||(cw=6)|(cb=red)"));
    EXPECT_EQ(read.error, duplicateKey(6));
    EXPECT_EQ(read.tree, "{1{1001{2001{cell-width=5}}}}");
}

TEST(DescriptionParser, RefusesAKeyInItsShortFormBesideItsLongForm) {
    EXPECT_EQ(ReadDescription(lines("(para-text=a)|(pt=a)")).error, duplicateKey(2));
    EXPECT_EQ(ReadDescription(lines("(x=a)|( x =b)")).error, duplicateKey(2));
}

TEST(DescriptionParser, TakesTheSameKeyInDifferentNodes) {
    EXPECT_EQ(treeOf("(doc|(k=1)|(r|(k=2)|r)|(r|(k=3)|r)|doc)"), "{1{k=1 1001{k=2} 1002{k=3}}}");
}

TEST(DescriptionParser, TakesAKeyThatIsTheNumberOfAChild) {
    EXPECT_EQ(treeOf("(doc|(r|r)|(1001=5)|doc)"), "{1{1001{} 1001=5}}");
}

TEST(DescriptionParser, Takes999RowsAndNoMore) {
    const ReadDescription fits(lines("(doc|" + repeated("(r|r)|", 999) + "doc)"));
    EXPECT_EQ(fits.error, ErrorFacts());
    EXPECT_EQ(childNumbers(fits.root().child(1)).back(), 1999);

    const ReadDescription tooMany(lines("(doc|" + repeated("(r|r)|", 1000) + "doc)"));
    EXPECT_EQ(tooMany.error, tooManyNodes("row", 2000));
    EXPECT_EQ(childNumbers(tooMany.root().child(1)).size(), 999u);
}

TEST(DescriptionParser, Takes999CellsAndNoMore) {
    const ReadDescription fits(lines("(doc|(r|" + repeated("(c|c)|", 999) + "r)|doc)"));
    EXPECT_EQ(fits.error, ErrorFacts());
    EXPECT_EQ(childNumbers(fits.root().child(1).child(1001)).back(), 2999);

    const ReadDescription tooMany(lines("(doc|(r|" + repeated("(c|c)|", 1000) + "r)|doc)"));
    EXPECT_EQ(tooMany.error, tooManyNodes("cell", 2001));
    EXPECT_EQ(childNumbers(tooMany.root().child(1).child(1001)).size(), 999u);
}

TEST(DescriptionParser, Takes999ParagraphsAndNoMore) {
    const ReadDescription fits(lines("(doc|(r|(c|" + repeated("(p|p)|", 999) + "c)|r)|doc)"));
    EXPECT_EQ(fits.error, ErrorFacts());
    EXPECT_EQ(childNumbers(fits.root().child(1).child(1001).child(2001)).back(), 3999);

    const ReadDescription tooMany(lines("(doc|(r|(c|" + repeated("(p|p)|", 1000) + "c)|r)|doc)"));
    EXPECT_EQ(tooMany.error, tooManyNodes("para", 2002));
    EXPECT_EQ(childNumbers(tooMany.root().child(1).child(1001).child(2001)).size(), 999u);
}

TEST(DescriptionParser, Takes999DocsAndNoMore) {
    const ReadDescription fits(lines("(doc|" + repeated("(doc|doc)|", 998) + "doc)"));
    EXPECT_EQ(fits.error, ErrorFacts());
    EXPECT_EQ(childNumbers(fits.root().child(1)).back(), 999);

    const ReadDescription tooMany(lines("(doc|" + repeated("(doc|doc)|", 999) + "doc)"));
    EXPECT_EQ(tooMany.error, tooManyNodes("doc", 1998));
    EXPECT_EQ(childNumbers(tooMany.root().child(1)).size(), 998u);
}

TEST(DescriptionParser, CountsTheCellsOfAllRowsTogether) {
    const std::string text = "(doc|" + repeated("(r|(c|c)|(c|c)|r)|", 500) + "doc)";
    EXPECT_EQ(ReadDescription(lines(text)).error, tooManyNodes("cell", 1 + 499 * 6 + 4));
}

TEST(DescriptionParser, ReachesTheLimitSoonerByNumbersThatAreSkipped) {
    const ReadDescription read(lines("(doc|" + repeated("(r|", 600)));
    EXPECT_EQ(childNumbers(read.root().child(1)).size(), 500u);
    EXPECT_EQ(childNumbers(read.root().child(1)).back(), 1999);
    EXPECT_EQ(read.error, tooManyNodes("row", 502));
}

TEST(DescriptionParser, CountsTowardsTheLimitOnEveryLevelThatAnOpenerCloses) {
    const auto nextRowAfter = [](int rows) {
        return ReadDescription(lines("(doc|" + repeated("(r|r)|", rows) + "(r|(c|(r|r)|doc)"));
    };
    EXPECT_EQ(nextRowAfter(995).error, ErrorFacts());
    EXPECT_EQ(nextRowAfter(996).error, tooManyNodes("row", 1 + 996 * 2 + 3));
    EXPECT_EQ(nextRowAfter(997).error, tooManyNodes("row", 1 + 997 * 2 + 3));
    EXPECT_EQ(nextRowAfter(998).error, tooManyNodes("row", 1 + 998 * 2 + 3));
}

TEST(DescriptionParser, ChecksTheLimitBeforeTheNesting) {
    const std::string cells = repeated("(c|c)|", 999);
    EXPECT_EQ(ReadDescription(lines("(doc|(r|" + cells + "r)|(c")).error,
              tooManyNodes("cell", 2 + 999 * 2 + 2));
}

TEST(DescriptionParser, HasNoLimitForLeaves) {
    std::string text = "(doc|";
    for (int i = 0; i < 5000; ++i) {
        text += "(key" + std::to_string(i) + "=" + std::to_string(i) + ")|";
    }
    const ReadDescription read(lines(text));
    EXPECT_EQ(read.error, ErrorFacts());
    EXPECT_EQ(leafKeys(read.root().child(1)).size(), 5000u);
    EXPECT_EQ(leafOf(read.root().child(1), "key4999").value(), Value(4999));
}

TEST(repairLines, LeavesAWellFormedDescriptionAsItIs) {
    EXPECT_THAT(repaired("(doc|(r|(c|c)|r)|(r|(c|c)|r)|doc)"),
                ElementsAre("(doc", "(r", "(c", "c)", "r)", "(r", "(c", "c)", "r)", "doc)"));
}

TEST(repairLines, MakesNothingOfNothing) {
    EXPECT_THAT(repaired(""), IsEmpty());
}

TEST(repairLines, DropsTheFirstOfTwoOpenersOfARow) {
    EXPECT_THAT(repaired("(doc|(r|(r|(c"), ElementsAre("(doc", "(r", "(c"));
}

TEST(repairLines, DropsAllButTheLastOfManyOpenersOfARow) {
    EXPECT_THAT(repaired("(doc|(r|(r|(r|(r|(c"), ElementsAre("(doc", "(r", "(c"));
}

TEST(repairLines, KeepsTheLineNumberOfTheOpenerThatStays) {
    const auto result = repairLines(PreProcessRawData("(doc\n(r\n\n(r\n(c"));
    ASSERT_EQ(result.size(), 3u);
    EXPECT_EQ(result[1].number, 4);
    EXPECT_EQ(result[2].number, 5);
}

TEST(repairLines, ClosesARowBetweenItsLastCellAndTheNextRow) {
    EXPECT_THAT(repaired("(r|(c|c)|(r|(c|c)|r)"),
                ElementsAre("(r", "(c", "c)", "r)", "(r", "(c", "c)", "r)"));
}

TEST(repairLines, GivesAnInsertedCloserTheLineOfTheNextRow) {
    const auto result = repairLines(PreProcessRawData("c)\n\n(r"));
    ASSERT_EQ(result.size(), 3u);
    EXPECT_EQ(result[0].number, 1);
    EXPECT_EQ(result[1].number, 3);
    EXPECT_EQ(result[2].number, 3);
}

TEST(repairLines, ClosesTheRowBeforeSeveralOpenersOfWhichOneStays) {
    EXPECT_THAT(repaired("c)|(r|(r|(c"), ElementsAre("c)", "r)", "(r", "(c"));
}

TEST(repairLines, ClosesEveryRowThatWasLeftOpen) {
    EXPECT_THAT(repaired("(r|c)|(r|c)|(r|c)"),
                ElementsAre("(r", "c)", "r)", "(r", "c)", "r)", "(r", "c)"));
}

TEST(repairLines, SeesOpenersAcrossBlankLinesAndComments) {
    EXPECT_THAT(repaired("(r||; x|(r"), ElementsAre("(r"));
    EXPECT_THAT(repaired("c)|; x||(r"), ElementsAre("c)", "r)", "(r"));
}

TEST(repairLines, SeesLinesWithoutTheBlanksAroundThem) {
    EXPECT_THAT(repaired("  (r\t| (r "), ElementsAre("(r"));
}

TEST(repairLines, SeesTheShortFormsOnly) {
    EXPECT_THAT(repaired("(row|(row"), ElementsAre("(row", "(row"));
    EXPECT_THAT(repaired("(row|(r"), ElementsAre("(row", "(r"));
    EXPECT_THAT(repaired("(r|(row"), ElementsAre("(r", "(row"));
    EXPECT_THAT(repaired("cell)|(r"), ElementsAre("cell)", "(r"));
    EXPECT_THAT(repaired("c)|(row"), ElementsAre("c)", "(row"));
}

TEST(repairLines, SeesLowerCaseOnly) {
    EXPECT_THAT(repaired("(R|(R"), ElementsAre("(R", "(R"));
    EXPECT_THAT(repaired("(R|(r"), ElementsAre("(R", "(r"));
    EXPECT_THAT(repaired("C)|(r"), ElementsAre("C)", "(r"));
}

TEST(repairLines, SeesNoLinesWithAComment) {
    EXPECT_THAT(repaired("(r ; x|(r"), ElementsAre("(r ; x", "(r"));
    EXPECT_THAT(repaired("(r|(r ; x"), ElementsAre("(r", "(r ; x"));
    EXPECT_THAT(repaired("c) ; x|(r"), ElementsAre("c) ; x", "(r"));
    EXPECT_THAT(repaired("c)|(r;"), ElementsAre("c)", "(r;"));
}

TEST(repairLines, DoesNotSeeWhatIsNotNextToEachOther) {
    EXPECT_THAT(repaired("(r|(rb=red)|(r"), ElementsAre("(r", "(rb=red)", "(r"));
    EXPECT_THAT(repaired("c)|r)|(r"), ElementsAre("c)", "r)", "(r"));
    EXPECT_THAT(repaired("p)|(r|r)|(r"), ElementsAre("p)", "(r", "r)", "(r"));
}

}  // namespace
}  // namespace quorvane
