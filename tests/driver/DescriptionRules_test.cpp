#include "quorvane/driver/DescriptionRules.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/driver/ParsedDescription.h"
#include "tests/driver/treeText.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

/// What a walk raises for a description that is read without an error.
template <class Walk>
ErrorFacts firstErrorOf(const std::string& text, Walk walk) {
    ReadDescription read(lines(text));
    EXPECT_EQ(read.error, ErrorFacts()) << text;
    const DescriptionRules rules(originalDialect(), raiseViolation);
    return errorOf([&] { walk(rules, read.root().child(1)); });
}

/// The first error of the syntax walk.
ErrorFacts syntaxOf(const std::string& text) {
    return firstErrorOf(text, [](const DescriptionRules& rules, DescriptionNode& doc) {
        rules.docWalkerSyntax(doc);
    });
}

/// The first error of the semantic walk.
ErrorFacts semanticsOf(const std::string& text) {
    return firstErrorOf(text, [](const DescriptionRules& rules, DescriptionNode& doc) {
        rules.treeWalkerSemantic(doc);
    });
}

/// All violations that the walks report in turn, each as its line and its text.
std::vector<std::string> violationsOf(const std::string& text, MisplacedNodes misplaced) {
    ReadDescription read(lines(text));
    std::vector<std::string> violations;
    const auto keep = [&](const Violation& violation) {
        violations.push_back(std::to_string(violation.error.line) + " " +
                             violation.error.description);
    };
    const DescriptionRules rules(originalDialect(), keep, misplaced);
    rules.docWalkerSyntax(read.root().child(1));
    rules.treeWalkerSemantic(read.root().child(1));
    rules.checkBuiltValues(read.root().child(1));
    return violations;
}

constexpr const char* docWalker = "CRtfDriver.docWalkerSyntax";
constexpr const char* rowWalker = "CRtfDriver.rowWalkerSyntax";
constexpr const char* cellWalker = "CRtfDriver.cellWalkerSyntax";
constexpr const char* paraWalker = "CRtfDriver.paraWalkerSyntax";
constexpr const char* paraKeyWalker = "CrtfDriver.paraWalkerSyntax";
constexpr const char* nameWalker = "CRtfDriver.treWalkerSemantic";
constexpr const char* valueWalker = "CRtfDriver.treeWalkerSemantic";

ErrorFacts noKeyword(const std::string& key, const char* source, int line) {
    return driverErrorOf(eWrongKeyword, key + " isn't a valid keyword.", source, line);
}

ErrorFacts noColor(const std::string& value, int line) {
    return driverErrorOf(eWrongValue, value + " isn't a recognized color.", nameWalker, line);
}

ErrorFacts noBorder(const std::string& value, int line) {
    return driverErrorOf(eWrongValue, value + " isn't a recognized border.", nameWalker, line);
}

ErrorFacts notNumeric(const std::string& key, int line) {
    return driverErrorOf(eWrongValue, "Value for " + key + " should be numeric.", valueWalker,
                         line);
}

ErrorFacts wrongPlace(int line) {
    return driverErrorOf(eSyntaxError, "Invalid node declaration in this context\r\n",
                         "CRtDriver.treeWalkerSemantic", line);
}

ErrorFacts noText(int line) {
    return driverErrorOf(eSyntaxError, "In a para group para-text is mandatory.", paraWalker, line);
}

constexpr const char* exampleDescription =
    "(doc|(paper-width=11906)|(paper-height=16838)|(top-margin=1440)|(r ; header row|"
    "(rb=light-yellow)|(rbb=thin)|(c|(cw=50)|(ca=centered)|(p|(pt=Name)|(ps=1)|p)|(p|(pt=Surname)|"
    "p)|c)|(cell|(cell-width=50)|(para|(para-text=Total)|(para-alignment=right)|para)|cell)|r)|"
    "doc)";

TEST(DescriptionSyntax, HasNothingAgainstAGoodDescription) {
    EXPECT_EQ(syntaxOf(exampleDescription), ErrorFacts());
}

TEST(DescriptionSyntax, TakesEveryKeyInItsNode) {
    EXPECT_EQ(syntaxOf(docWith("(paper-height=1)|(paper-width=1)|(page-number-start=1)|"
                               "(left-margin=1)|(right-margin=1)|(bottom-margin=1)|"
                               "(top-margin=1)")),
              ErrorFacts());
    EXPECT_EQ(syntaxOf(rowWith("(row-backcolor=x)|(row-top-border=x)|(row-bottom-border=x)|"
                               "(row-left-border=x)|(row-right-border=x)|(row-key=x)")),
              ErrorFacts());
    EXPECT_EQ(syntaxOf(cellWith("(cell-alignment=x)|(cell-backcolor=x)|(cell-top-border=x)|"
                                "(cell-bottom-border=x)|(cell-left-border=x)|"
                                "(cell-right-border=x)|(cell-key=x)|(cell-width=x)|"
                                "(cell-style=x)|(cell-marked-field=x)")),
              ErrorFacts());
    EXPECT_EQ(syntaxOf(paraWith("(para-text=x)|(para-style=x)|(para-key=x)|(para-alignment=x)|"
                                "(para-marked-field=x)")),
              ErrorFacts());
}

TEST(DescriptionSyntax, TakesEveryShortKeyInItsNode) {
    EXPECT_EQ(syntaxOf(rowWith("(rb=x)|(rtb=x)|(rbb=x)|(rlb=x)|(rrb=x)")), ErrorFacts());
    EXPECT_EQ(syntaxOf(cellWith("(cb=x)|(ctb=x)|(cbb=x)|(clb=x)|(crb=x)|(cw=x)|(ca=x)|(cs=x)|"
                                "(cmf=x)")),
              ErrorFacts());
    EXPECT_EQ(syntaxOf(paraWith("(pt=x)|(ps=x)|(pa=x)|(pmf=x)")), ErrorFacts());
}

TEST(DescriptionSyntax, RefusesAKeyThatTheDocDoesNotHave) {
    EXPECT_EQ(syntaxOf(docWith("(title=x)")), noKeyword("title", docWalker, 2));
}

TEST(DescriptionSyntax, RefusesAKeyThatTheRowDoesNotHave) {
    EXPECT_EQ(syntaxOf(rowWith("(colour=red)")), noKeyword("colour", rowWalker, 3));
}

TEST(DescriptionSyntax, RefusesAKeyThatTheCellDoesNotHave) {
    EXPECT_EQ(syntaxOf(cellWith("(colour=red)")), noKeyword("colour", cellWalker, 4));
}

TEST(DescriptionSyntax, RefusesAKeyThatTheParagraphDoesNotHave) {
    EXPECT_EQ(syntaxOf(paraWith("(pt=x)|(colour=red)")), noKeyword("colour", paraKeyWalker, 6));
}

TEST(DescriptionSyntax, RefusesTheKeysOfOtherNodesUnderTheirLongNames) {
    EXPECT_EQ(syntaxOf(docWith("(rb=red)")), noKeyword("row-backcolor", docWalker, 2));
    EXPECT_EQ(syntaxOf(rowWith("(cw=5)")), noKeyword("cell-width", rowWalker, 3));
    EXPECT_EQ(syntaxOf(cellWith("(pt=x)")), noKeyword("para-text", cellWalker, 4));
    EXPECT_EQ(syntaxOf(paraWith("(pt=x)|(paper-width=5)")),
              noKeyword("paper-width", paraKeyWalker, 6));
    EXPECT_EQ(syntaxOf(rowWith("(c=5)")), noKeyword("cell", rowWalker, 3));
}

TEST(DescriptionSyntax, RefusesAKeyInCapitals) {
    EXPECT_EQ(syntaxOf(paraWith("(pt=x)|(PS=y)")), noKeyword("PS", paraKeyWalker, 6));
    EXPECT_EQ(syntaxOf(paraWith("(PT=Total)")), noText(4));
}

TEST(DescriptionSyntax, RefusesAnEmptyKeyAndAKeyThatIsTheNumberOfANode) {
    EXPECT_EQ(syntaxOf(rowWith("(=x)")), noKeyword("", rowWalker, 3));
    EXPECT_EQ(syntaxOf(rowWith("(2001=x)")), noKeyword("2001", rowWalker, 3));
}

TEST(DescriptionSyntax, WantsARow) {
    EXPECT_EQ(syntaxOf("(doc|(paper-width=5)|doc)"),
              driverErrorOf(eWrongKeyword, "Must have at least one row.", docWalker, 1));
}

TEST(DescriptionSyntax, WantsACellInEveryRow) {
    EXPECT_EQ(syntaxOf("(doc|(r|(c|c)|r)|(r|(rb=red)|r)|doc)"),
              driverErrorOf(eWrongKeyword, "Must have at least one cell.", rowWalker, 6));
}

TEST(DescriptionSyntax, WantsNoParagraphInACell) {
    EXPECT_EQ(syntaxOf("(doc|(r|(c|c)|r)|doc)"), ErrorFacts());
}

TEST(DescriptionSyntax, WantsATextInEveryParagraph) {
    EXPECT_EQ(syntaxOf(paraWith("(ps=x)|(para-key=1)|(pa=right)|(pmf=x)")), noText(4));
    EXPECT_EQ(syntaxOf("(doc|(r|(c|(p|p)|c)|r)|doc)"), noText(4));
}

TEST(DescriptionSyntax, TakesAnEmptyTextForAText) {
    EXPECT_EQ(syntaxOf(paraWith("(pt=)")), ErrorFacts());
}

TEST(DescriptionSyntax, WantsNoNodeInAParagraph) {
    EXPECT_EQ(syntaxOf(paraWith("(pt=x)|(doc|doc)")),
              driverErrorOf(eWrongKeyword, "A paragraph is a terminal node", paraWalker, 6));
}

TEST(DescriptionSyntax, ChecksTheKeysOfTheDocBeforeItsRows) {
    EXPECT_EQ(syntaxOf("(doc|(title=x)|doc)"), noKeyword("title", docWalker, 2));
    EXPECT_EQ(syntaxOf("(doc|(r|r)|(title=x)|doc)"), noKeyword("title", docWalker, 4));
}

TEST(DescriptionSyntax, ChecksTheKeysOfARowBeforeItsCells) {
    EXPECT_EQ(syntaxOf("(doc|(r|(title=x)|r)|doc)"), noKeyword("title", rowWalker, 3));
    EXPECT_EQ(syntaxOf("(doc|(r|(c|(x=1)|c)|(title=x)|r)|doc)"), noKeyword("title", rowWalker, 6));
}

TEST(DescriptionSyntax, ChecksTheKeysOfACellBeforeItsParagraphs) {
    EXPECT_EQ(syntaxOf("(doc|(r|(c|(p|p)|(title=x)|c)|r)|doc)"), noKeyword("title", cellWalker, 6));
}

TEST(DescriptionSyntax, LooksForTheTextOfAParagraphFirstThenAtItsKeysThenForNodesInIt) {
    EXPECT_EQ(syntaxOf(paraWith("(title=x)|(doc|doc)")), noText(4));
    EXPECT_EQ(syntaxOf(paraWith("(doc|doc)|(title=x)|(pt=x)")),
              noKeyword("title", paraKeyWalker, 7));
}

TEST(DescriptionSyntax, ChecksTheKeysOfANodeInAscendingOrder) {
    EXPECT_EQ(syntaxOf(rowWith("(z=1)|(b=2)|(y=3)")), noKeyword("b", rowWalker, 4));
    EXPECT_EQ(syntaxOf(rowWith("(b=1)|(B=2)|(_=3)")), noKeyword("B", rowWalker, 4));
    EXPECT_EQ(syntaxOf(rowWith("(b=1)|(a2=2)|(a10=3)")), noKeyword("a10", rowWalker, 5));
}

TEST(DescriptionSyntax, GoesThroughARowBeforeTheNext) {
    EXPECT_EQ(syntaxOf("(doc|(r|(c|(p|p)|c)|r)|(r|(title=x)|r)|doc)"), noText(4));
}

TEST(DescriptionSyntax, GoesThroughACellBeforeTheNext) {
    EXPECT_EQ(syntaxOf("(doc|(r|(c|(p|p)|c)|(c|(title=x)|c)|r)|doc)"), noText(4));
}

TEST(DescriptionSyntax, TakesANestedDocForTheNodeThatMayStandThere) {
    EXPECT_EQ(syntaxOf("(doc|(doc|(paper-width=5)|doc)|doc)"),
              noKeyword("paper-width", rowWalker, 3));
    EXPECT_EQ(syntaxOf("(doc|(doc|(doc|(doc|(pt=x)|doc)|doc)|doc)|doc)"), ErrorFacts());
}

TEST(DescriptionSyntax, GoesThroughNestedDocsFirstBecauseOfTheirNumbers) {
    EXPECT_EQ(syntaxOf("(doc|(r|(x=1)|(c|c)|r)|(doc|(y=2)|doc)|doc)"),
              noKeyword("y", rowWalker, 8));
}

TEST(DescriptionSemantics, HaveNothingAgainstAGoodDescription) {
    EXPECT_EQ(semanticsOf(exampleDescription), ErrorFacts());
}

TEST(DescriptionSemantics, TakeTheNamesOfColorsInAnyCase) {
    EXPECT_EQ(semanticsOf(rowWith("(rb=Light-Yellow)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(cellWith("(cb=none)")), ErrorFacts());
}

TEST(DescriptionSemantics, RefuseWhatIsNotAColor) {
    EXPECT_EQ(semanticsOf(rowWith("(rb=crimson)")), noColor("crimson", 3));
    EXPECT_EQ(semanticsOf(cellWith("(cb=Crimson)")), noColor("Crimson", 4));
    EXPECT_EQ(semanticsOf(cellWith("(cb=)")), noColor("", 4));
    EXPECT_EQ(semanticsOf(cellWith("(cb=red-brick)")), noColor("red-brick", 4));
}

TEST(DescriptionSemantics, AdmitAnyNumberForAColor) {
    EXPECT_EQ(semanticsOf(rowWith("(rb=32)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(cellWith("(cb=1e9)")), ErrorFacts());
}

TEST(DescriptionSemantics, TakeTheNamesOfBordersInAnyCaseOnEverySide) {
    EXPECT_EQ(semanticsOf(rowWith("(rtb=normal)|(rbb=Hair)|(rlb=THIN)|(rrb=none)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(cellWith("(ctb=normal)|(cbb=thick)|(clb=thin)|(crb=none)")),
              ErrorFacts());
}

TEST(DescriptionSemantics, RefuseWhatIsNotABorderOnEverySide) {
    for (const char* key : {"rtb", "rbb", "rlb", "rrb"}) {
        EXPECT_EQ(semanticsOf(rowWith("(" + std::string(key) + "=medium)")), noBorder("medium", 3));
    }
    for (const char* key : {"ctb", "cbb", "clb", "crb"}) {
        EXPECT_EQ(semanticsOf(cellWith("(" + std::string(key) + "=medium)")),
                  noBorder("medium", 4));
    }
}

TEST(DescriptionSemantics, AdmitAnyNumberForABorder) {
    EXPECT_EQ(semanticsOf(rowWith("(rtb=10)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(cellWith("(crb=-7.5)")), ErrorFacts());
}

TEST(DescriptionSemantics, WantANumberForEveryMeasureAndKey) {
    for (const std::string key : {"paper-height", "paper-width", "page-number-start", "left-margin",
                                  "right-margin", "bottom-margin", "top-margin"}) {
        EXPECT_EQ(semanticsOf(docWith("(" + key + "=wide)")), notNumeric(key, 2));
        EXPECT_EQ(semanticsOf(docWith("(" + key + "=5)")), ErrorFacts());
    }
    EXPECT_EQ(semanticsOf(rowWith("(row-key=a)")), notNumeric("row-key", 3));
    EXPECT_EQ(semanticsOf(rowWith("(row-key=7)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(cellWith("(cell-key=a)")), notNumeric("cell-key", 4));
    EXPECT_EQ(semanticsOf(cellWith("(cell-key=7)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(cellWith("(cw=wide)")), notNumeric("cell-width", 4));
    EXPECT_EQ(semanticsOf(cellWith("(cw=25.5)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(paraWith("(para-key=a)")), notNumeric("para-key", 5));
    EXPECT_EQ(semanticsOf(paraWith("(para-key=7)")), ErrorFacts());
}

TEST(DescriptionSemantics, WantANumberThatADoubleCanHold) {
    EXPECT_EQ(semanticsOf(docWith("(paper-width=1e999)")), notNumeric("paper-width", 2));
    EXPECT_EQ(semanticsOf(docWith("(paper-width=1e300)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(docWith("(paper-width=)")), notNumeric("paper-width", 2));
}

TEST(DescriptionSemantics, WantANumberForEveryUnknownKey) {
    EXPECT_EQ(semanticsOf(rowWith("(colour=red)")), notNumeric("colour", 3));
    EXPECT_EQ(semanticsOf(rowWith("(colour=5)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(paraWith("(PT=Total)")), notNumeric("PT", 5));
}

TEST(DescriptionSemantics, TakeTextAndNumbersForTextsStylesAlignmentsAndMarkedFields) {
    for (const char* value : {"Heading", "5", ""}) {
        const std::string end = "=" + std::string(value) + ")";
        EXPECT_EQ(semanticsOf(paraWith("(pt" + end + "|(ps" + end + "|(pa" + end + "|(pmf" + end)),
                  ErrorFacts());
        EXPECT_EQ(semanticsOf(cellWith("(ca" + end + "|(cs" + end + "|(cmf" + end)), ErrorFacts());
    }
}

TEST(DescriptionSemantics, TakeAKeyInANodeThatDoesNotHaveIt) {
    EXPECT_EQ(semanticsOf(docWith("(pt=x)|(cw=5)")), ErrorFacts());
    EXPECT_EQ(semanticsOf(docWith("(cb=crimson)")), noColor("crimson", 2));
}

TEST(DescriptionSemantics, RefuseAValueThatIsNeitherTextNorNumber) {
    for (const char* key : {"para-text", "para-style", "para-alignment", "cell-alignment",
                            "cell-style", "para-marked-field", "cell-marked-field"}) {
        DescriptionTree tree;
        Leaf& leaf = *tree.addLeaf(tree.root(), originalVocabulary().leafKey(key));
        leaf.kind = LeafKind::Neither;
        leaf.line = 7;
        const DescriptionRules rules(originalDialect(), raiseViolation);
        EXPECT_EQ(errorOf([&] { rules.treeWalkerSemantic(tree.root()); }),
                  driverErrorOf(eWrongValue,
                                "Value for " + std::string(key) + " should be numeric or string.",
                                valueWalker, 7));
    }
}

TEST(DescriptionSemantics, CheckTheLeavesOfANodeInTheOrderOfTheDescription) {
    EXPECT_EQ(semanticsOf(rowWith("(rtb=medium)|(rb=crimson)")), noBorder("medium", 3));
    EXPECT_EQ(semanticsOf(rowWith("(rb=crimson)|(rtb=medium)")), noColor("crimson", 3));
}

TEST(DescriptionSemantics, CheckTheLeavesOfANodeBeforeItsChildren) {
    EXPECT_EQ(semanticsOf("(doc|(r|(c|(cb=crimson)|c)|(rtb=medium)|r)|doc)"),
              noBorder("medium", 6));
}

TEST(DescriptionSemantics, GoThroughTheChildrenInTheOrderOfTheDescription) {
    EXPECT_EQ(semanticsOf("(doc|(r|(c|(cb=a)|c)|r)|(r|(rb=b)|r)|doc)"), noColor("a", 4));
    EXPECT_EQ(semanticsOf("(doc|(r|(rb=a)|r)|(doc|doc)|doc)"), noColor("a", 3));
    EXPECT_EQ(semanticsOf("(doc|(doc|doc)|(r|(rb=a)|r)|doc)"), wrongPlace(2));
}

TEST(DescriptionSemantics, RefuseADocInEveryNode) {
    EXPECT_EQ(semanticsOf("(doc|(doc|doc)|doc)"), wrongPlace(2));
    EXPECT_EQ(semanticsOf("(doc|(r|(doc|doc)|r)|doc)"), wrongPlace(3));
    EXPECT_EQ(semanticsOf("(doc|(r|(c|(doc|doc)|c)|r)|doc)"), wrongPlace(4));
    EXPECT_EQ(semanticsOf("(doc|(r|(c|(p|(doc|doc)|p)|c)|r)|doc)"), wrongPlace(5));
}

TEST(DescriptionSemantics, DoNotLookIntoANodeThatStandsInTheWrongPlace) {
    EXPECT_EQ(semanticsOf("(doc|(doc|(paper-width=wide)|doc)|doc)"), wrongPlace(2));
}

TEST(DescriptionRules, ReportEveryViolationInTheOrderOfTheWalks) {
    EXPECT_THAT(
        violationsOf("(doc|(z=a)|(b=1)|(r|(rb=crimson)|r)|(r|(c|(ca=99)|(cw=1e10)|(p|(ps=x)|p)|"
                     "c)|r)|doc)",
                     MisplacedNodes::ByPlace),
        ElementsAre("3 b isn't a valid keyword.", "2 z isn't a valid keyword.",
                    "4 Must have at least one cell.", "11 In a para group para-text is mandatory.",
                    "2 Value for z should be numeric.", "5 crimson isn't a recognized color.",
                    "9 99 isn't a recognized alignment.", "10 Overflow"));
}

TEST(DescriptionRules, HoldForAMisplacedNodeByItsPlaceOrByItsKind) {
    const std::string text = "(doc|(doc|(paper-width=1)|(r|(c|c)|r)|doc)|doc)";
    EXPECT_THAT(violationsOf(text, MisplacedNodes::ByPlace),
                ElementsAre("3 paper-width isn't a valid keyword.",
                            "5 In a para group para-text is mandatory.",
                            "2 Invalid node declaration in this context\r\n"));
    EXPECT_THAT(violationsOf(text, MisplacedNodes::ByKind),
                ElementsAre("2 Invalid node declaration in this context\r\n"));
}

TEST(DescriptionRules, ReachNodesThatAreNestedAsDeepAsCanBe) {
    DescriptionTree tree;
    DescriptionNode* innermost = &tree.root();
    for (int depth = 0; depth < 200000; ++depth) {
        innermost = &tree.AddNode(*innermost, NodeKind::Doc, 1, 1);
    }
    int misplaced = 0;
    const DescriptionRules rules(
        originalDialect(), [&](const Violation&) { ++misplaced; }, MisplacedNodes::ByKind);
    rules.docWalkerSyntax(tree.root());
    rules.treeWalkerSemantic(tree.root());
    EXPECT_EQ(misplaced, 200000);
}

TEST(DescriptionSemantics, MissNeitherRowsNorTexts) {
    EXPECT_EQ(semanticsOf("(doc|doc)"), ErrorFacts());
    EXPECT_EQ(semanticsOf("(doc|(r|(c|(p|p)|c)|r)|(r|r)|doc)"), ErrorFacts());
}

}  // namespace
}  // namespace quorvane
