#include "quorvane/driver/CRtfDriver.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/driver/ParsedDescription.h"
#include "tests/driver/documentText.h"
#include "tests/support/soundDocuments.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* oneCell = "(doc\n(r\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)";
constexpr const char* goodSheet = "{name:normal;style-def:s;format:\\f9\\fs20}";
constexpr const char* badKeyword = "{nam:normal;style-def:s}";
constexpr const char* badBraces = "{name:normal;style-def:s}}";

ErrorFacts wrongFileType() {
    return driverErrorOf(eWrongFileType, "The provided file isn't a correct rtfspec file.",
                         "CRtfDriver.AnalyseData");
}

ErrorFacts missingElements() {
    return driverErrorOf(eRequiredElementMissing,
                         "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell",
                         "CRtfDriver.AnalyseData");
}

ErrorFacts wrongRoot(int line) {
    return driverErrorOf(eWrongRootNode, "(doc must be the first node.", "CRtfDriver.Analysedata",
                         line);
}

ErrorFacts wrongPath(const std::string& description) {
    return driverErrorOf(eWrongPath, description, "Error: eWrongPath\r\nCRtfDriver.ParseFile");
}

ErrorFacts refusedStyleSheet(const std::string& name) {
    return driverErrorOf(eWrongFileType, name + " isn't a valid stylesheet.",
                         "CRtfDriver.StyleSheetFile");
}

ErrorFacts noKeyword(const std::string& key, const std::string& walker, int line) {
    return driverErrorOf(eWrongKeyword, key + " isn't a valid keyword.",
                         "CRtfDriver." + walker + "WalkerSyntax", line);
}

ErrorFacts mustHave(const std::string& what, const std::string& walker, int line) {
    return driverErrorOf(eWrongKeyword, "Must have at least one " + what + ".",
                         "CRtfDriver." + walker + "WalkerSyntax", line);
}

ErrorFacts noNumber(const std::string& key, int line) {
    return driverErrorOf(eWrongValue, "Value for " + key + " should be numeric.",
                         "CRtfDriver.treeWalkerSemantic", line);
}

ErrorFacts wrongNodeType(const std::string& text, int line) {
    return driverErrorOf(eWrongNodeType, "Wrong node type in " + text, "CRtfDriver.treeWalkerBuild",
                         line);
}

std::vector<ErrorFacts> errorsOf(const std::string& text, Checks checks = Checks::Off) {
    return ParsedDescription(lines(text), checks).errors;
}

std::vector<ErrorFacts> checkedErrorsOf(const std::string& text) {
    return errorsOf(text, Checks::On);
}

class CRtfDriverTest : public testing::Test {
protected:
    void TearDown() override { expectSoundDocuments(platform); }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
};

TEST_F(CRtfDriverTest, HasItsDefaults) {
    EXPECT_FALSE(driver->ErroneousInput());
    EXPECT_TRUE(driver->notifyError());
    EXPECT_EQ(driver->StyleSheetFile(), "");
    EXPECT_EQ(driver->Contents(), "{}");
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 0);
    EXPECT_FALSE(driver->RtfObject()->StyleSheetOk());
}

TEST_F(CRtfDriverTest, KeepsItsSwitches) {
    driver->setErroneousInput(true);
    driver->setNotifyError(false);
    EXPECT_TRUE(driver->ErroneousInput());
    EXPECT_FALSE(driver->notifyError());
    driver->setErroneousInput(false);
    driver->setNotifyError(true);
    EXPECT_FALSE(driver->ErroneousInput());
    EXPECT_TRUE(driver->notifyError());
}

TEST(DriverOfUnicodeTexts, WritesAnyCharacterOfAText) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    const char* const description =
        "(doc\n(r\n(c\n(p\n(pt=Dvo\u0159\u00E1k \U0001F600 \\b x)\np)\nc)\nr)\ndoc)";
    EXPECT_FALSE(driver->UnicodeTexts());
    driver->ParseFromMemmory(description);
    EXPECT_THAT(driver->Contents(), HasSubstr("Dvo\u0159\u00E1k \U0001F600 \\b x\\cell"));
    driver->setUnicodeTexts(true);
    driver->ParseFromMemmory(description);
    EXPECT_THAT(driver->Contents(), HasSubstr("Dvo{\\uc1\\u345?}\u00E1k "
                                              "{\\uc1\\u-10179?\\u-8704?} \\b x\\cell"));
}

TEST(DriverOfUnicodeTexts, ReportsACharacterThatIsNotInAText) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->setUnicodeTexts(true);
    std::vector<std::string> errors;
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError& error) {
        errors.push_back(std::to_string(error.line) + " " + error.description);
    });
    driver->ParseFromMemmory("(doc\n(r\n(c\n(p\n(ps=tu\u010Dn\u00E9)\n(pt=x)\np)\nc)\nr)\ndoc)");
    EXPECT_THAT(errors, ElementsAre("5 \u010D isn't in Windows-1252; only the text of a paragraph "
                                    "can hold it."));
}

TEST_F(CRtfDriverTest, HasTheSameDocumentAllItsLife) {
    const Ref<CRtfDoc> document = driver->RtfObject();
    driver->ParseFromMemmory(oneCell);
    driver->ParseFromMemmory("");
    EXPECT_EQ(driver->RtfObject().get(), document.get());
}

TEST_F(CRtfDriverTest, LeavesItsDocumentToWhoeverHoldsIt) {
    driver->ParseFromMemmory(oneCell);
    const Ref<CRtfDoc> document = driver->RtfObject();
    driver = {};
    EXPECT_EQ(document->TableRows()->Item("1001")->TableCells()->Count(), 1);
    EXPECT_THAT(document->Contents(), HasSubstr(" x\\cell\\row}}"));
}

TEST_F(CRtfDriverTest, RunsOnTheSystemByDefault) {
    const Ref<CRtfDriver> systemDriver = CRtfDriver::create();
    systemDriver->ParseFromMemmory(oneCell);
    EXPECT_EQ(systemDriver->RtfObject()->TableRows()->Count(), 1);
}

TEST_F(CRtfDriverTest, WritesTheCompleteExample) {
    driver->ParseFromMemmory(
        lines("(doc|(paper-width=11906)|(paper-height=16838)|(top-margin=1440)|(r ; header row|"
              "(rb=light-yellow)|(rbb=thin)|(c|(cw=50)|(ca=centered)|(p|(pt=Name)|(ps=1)|p)|(p|"
              "(pt=Surname)|p)|c)|(cell|(cell-width=50)|(para|(para-text=Total)|"
              "(para-alignment=right)|para)|cell)|r)|doc)"));
    EXPECT_EQ(driver->Contents(),
              documentText(
                  R"(\margb1418\margl1701\margt1440\margr1701\paperw11906\paperh16838\pgnstart2)",
                  "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 "
                  "\\clbrdrb\\brdrs\\brdrw10\\clcbpat21\\cellx4588 "
                  "\\clbrdrb\\brdrs\\brdrw10\\clcbpat21\\cellx8840 "
                  "\r\n\r\n\r\n\\pard\\plain\\intbl \\qc Name"
                  "\r\n\r\n\\par\\pard\\plain\\intbl \\qc Surname\\cell "
                  "\r\n\r\n\r\n\\pard\\plain\\intbl \\qr Total\\cell\\row}"));
}

TEST_F(CRtfDriverTest, WritesTheSameDocumentWithAndWithoutChecks) {
    const ParsedDescription plain(oneCell);
    const ParsedDescription checked(oneCell, Checks::On);
    EXPECT_THAT(checked.errors, IsEmpty());
    EXPECT_EQ(checked.driver->Contents(), plain.driver->Contents());
}

TEST_F(CRtfDriverTest, PassesItsFileToTheDocument) {
    driver->ParseFromMemmory(paraWithText("Größe 5 €"));
    driver->Commit("out.rtf");
    EXPECT_THAT(platform.files["out.rtf"], HasSubstr("\\intbl Gr\xF6\xDF"
                                                     "e 5 \x80\\cell"));
    EXPECT_EQ(platform.files["out.rtf"].substr(0, 6), "{\\rtf1");
}

TEST_F(CRtfDriverTest, ReadsAFileInItsCodePage) {
    platform.files["in.rtfspec"] =
        "(doc\r\n(r\r\n(c\r\n(p\r\n(pt=Gr\xF6\xDF"
        "e 5 \x80)\r\np)\r\nc)"
        "\r\nr)\r\ndoc)\r\n";
    driver->ParseFile("in.rtfspec");
    EXPECT_EQ(driver->RtfObject()
                  ->TableRows()
                  ->Item(1)
                  ->TableCells()
                  ->Item(1)
                  ->Paragraphs()
                  ->Item(1)
                  ->Text(),
              "Größe 5 €");
}

TEST_F(CRtfDriverTest, AnalyzesAFileAsItAnalyzesAText) {
    std::vector<ErrorFacts> errors;
    driver->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { errors.push_back(factsOf(error)); });
    platform.files["in"] = lines("(doc|(r|(c|(cb=crimson)|c)|r)|doc)");
    driver->ParseFile("in");
    EXPECT_EQ(errors, errorsOf("(doc|(r|(c|(cb=crimson)|c)|r)|doc)"));
    EXPECT_EQ(errors.size(), 1u);
}

TEST_F(CRtfDriverTest, RefusesAnEmptyPath) {
    EXPECT_EQ(errorOf([&] { driver->ParseFile(""); }), wrongPath("Path is empty!"));
    EXPECT_EQ(factsOf(*currentError()), wrongPath("Path is empty!"));
    EXPECT_THAT(platform.operations, IsEmpty());
}

TEST_F(CRtfDriverTest, RefusesAFileThatIsNotThere) {
    EXPECT_EQ(errorOf([&] { driver->ParseFile("no such.rtfspec"); }),
              wrongPath("no such.rtfspec doesn't exist or is unreacheable"));
    EXPECT_EQ(factsOf(*currentError()),
              wrongPath("no such.rtfspec doesn't exist or is unreacheable"));
}

TEST_F(CRtfDriverTest, RefusesAFileThatCannotBeReadWithTheCause) {
    platform.files["in"] = oneCell;
    platform.fail("readFile", RunTimeError::PathFileAccessError);
    try {
        driver->ParseFile("in");
        FAIL() << "no error";
    } catch (const RtfError& error) {
        EXPECT_EQ(factsOf(error), wrongPath("in doesn't exist or is unreacheable"));
        ASSERT_NE(error.cause, nullptr);
        EXPECT_TRUE(error.cause->is(RunTimeError::PathFileAccessError));
    }
}

TEST_F(CRtfDriverTest, LeavesTheDocumentAloneWhenAPathIsRefused) {
    driver->ParseFromMemmory(oneCell);
    EXPECT_THROW(driver->ParseFile(""), RtfError);
    EXPECT_THROW(driver->ParseFile("no such"), RtfError);
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
}

TEST_F(CRtfDriverTest, RaisesTheErrorsOfPathAndStyleSheetToTheCallerOnly) {
    int events = 0;
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { ++events; });
    platform.files["bad.rtfss"] = badKeyword;
    EXPECT_THROW(driver->ParseFile(""), RtfError);
    EXPECT_THROW(driver->ParseFile("no such"), RtfError);
    EXPECT_THROW(driver->setStyleSheetFile("bad.rtfss"), RtfError);
    EXPECT_THROW(driver->LoadStyleSheetFromMemmory(badKeyword), RtfError);
    EXPECT_EQ(events, 0);
}

TEST_F(CRtfDriverTest, RaisesThemAlsoWithTheEventSwitchedOff) {
    driver->setNotifyError(false);
    EXPECT_EQ(errorOf([&] { driver->ParseFile(""); }), wrongPath("Path is empty!"));
}

TEST_F(CRtfDriverTest, TakesAnEmptyFileForAnEmptyText) {
    platform.files["empty"] = "";
    driver->ParseFile("empty");
    EXPECT_EQ(platform.clipboardTexts, (std::vector<std::string>{""}));
}

TEST_F(CRtfDriverTest, ReadsAStyleSheetFile) {
    platform.files["a.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    EXPECT_EQ(driver->StyleSheetFile(), "a.rtfss");
    EXPECT_TRUE(driver->RtfObject()->StyleSheetOk());
    EXPECT_THAT(driver->Contents(), HasSubstr("{\\stylesheet\r\n{\\f9\\fs20 normal;}}"));
}

TEST_F(CRtfDriverTest, KnowsAStyleSheetByItsExtensionInAnyCase) {
    for (const std::string name : {"a.RTFSS", "b.Rtfss", ".rtfss", "c.d.rtfSS"}) {
        platform.files[name] = goodSheet;
        driver->setStyleSheetFile(name);
        EXPECT_EQ(driver->StyleSheetFile(), name);
        EXPECT_TRUE(driver->RtfObject()->StyleSheetOk());
    }
}

TEST_F(CRtfDriverTest, IgnoresANameWithAnotherExtension) {
    platform.files["a.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    for (const char* name : {"a.txt", "", "rtfss", "a.rtfss.bak", "a.rtfs", "a.rtfss/b"}) {
        driver->setStyleSheetFile(name);
        EXPECT_EQ(driver->StyleSheetFile(), "a.rtfss") << name;
        EXPECT_TRUE(driver->RtfObject()->StyleSheetOk()) << name;
    }
}

TEST_F(CRtfDriverTest, IgnoresTheNameThatIsSetAlready) {
    platform.files["a.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    platform.files["a.rtfss"] = badKeyword;
    platform.operations.clear();
    driver->setStyleSheetFile("a.rtfss");
    EXPECT_THAT(platform.operations, IsEmpty());
    EXPECT_TRUE(driver->RtfObject()->StyleSheetOk());
}

TEST_F(CRtfDriverTest, TakesANameInAnotherCaseForAnother) {
    platform.files["a.rtfss"] = goodSheet;
    platform.files["A.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    driver->setStyleSheetFile("A.rtfss");
    EXPECT_EQ(driver->StyleSheetFile(), "A.rtfss");
}

TEST_F(CRtfDriverTest, KeepsTheNameOfAStyleSheetThatIsNotThere) {
    platform.files["a.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    driver->setStyleSheetFile("missing.rtfss");
    EXPECT_EQ(driver->StyleSheetFile(), "missing.rtfss");
    EXPECT_FALSE(driver->RtfObject()->StyleSheetOk());
}

TEST_F(CRtfDriverTest, TakesAStyleSheetThatCannotBeReadForAnEmptyOne) {
    platform.files["a.rtfss"] = badKeyword;
    platform.fail("readFile", RunTimeError::PathFileAccessError);
    driver->setStyleSheetFile("a.rtfss");
    EXPECT_EQ(driver->StyleSheetFile(), "a.rtfss");
    EXPECT_TRUE(driver->RtfObject()->StyleSheetOk());
}

TEST_F(CRtfDriverTest, RefusesABadStyleSheetWithTheCause) {
    platform.files["a.rtfss"] = badKeyword;
    try {
        driver->setStyleSheetFile("a.rtfss");
        FAIL() << "no error";
    } catch (const RtfError& error) {
        EXPECT_EQ(factsOf(error), refusedStyleSheet("a.rtfss"));
        ASSERT_NE(error.cause, nullptr);
        EXPECT_EQ(error.cause->number, 445);
    }
    EXPECT_EQ(factsOf(*currentError()), refusedStyleSheet("a.rtfss"));
    EXPECT_EQ(driver->StyleSheetFile(), "");
    EXPECT_FALSE(driver->RtfObject()->StyleSheetOk());
}

TEST_F(CRtfDriverTest, GivesUnbalancedBracesAsTheCause) {
    platform.files["a.rtfss"] = badBraces;
    try {
        driver->setStyleSheetFile("a.rtfss");
        FAIL() << "no error";
    } catch (const RtfError& error) {
        EXPECT_EQ(error.description, "a.rtfss isn't a valid stylesheet.");
        ASSERT_NE(error.cause, nullptr);
        EXPECT_EQ(error.cause->number, 31037);
    }
}

TEST_F(CRtfDriverTest, ReadsARefusedStyleSheetAgainWhenItIsSetAgain) {
    platform.files["a.rtfss"] = badKeyword;
    EXPECT_THROW(driver->setStyleSheetFile("a.rtfss"), RtfError);
    EXPECT_THROW(driver->setStyleSheetFile("a.rtfss"), RtfError);
    platform.files["a.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    EXPECT_EQ(driver->StyleSheetFile(), "a.rtfss");
    EXPECT_TRUE(driver->RtfObject()->StyleSheetOk());
}

TEST_F(CRtfDriverTest, LoadsAStyleSheetFromAText) {
    platform.files["a.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    driver->LoadStyleSheetFromMemmory("{name:big;style-def:s;format:\\fs40}");
    EXPECT_EQ(driver->StyleSheetFile(), "");
    EXPECT_TRUE(driver->RtfObject()->StyleSheetOk());
    EXPECT_THAT(driver->Contents(), HasSubstr("\\s100 \\fs40 big;}"));
}

TEST_F(CRtfDriverTest, RaisesTheErrorsOfAStyleSheetTextAsTheyAre) {
    EXPECT_EQ(errorOf([&] { driver->LoadStyleSheetFromMemmory(badKeyword); }).number, 445);
    EXPECT_EQ(errorOf([&] { driver->LoadStyleSheetFromMemmory(badBraces); }).number, 31037);
    EXPECT_FALSE(driver->RtfObject()->StyleSheetOk());
}

TEST_F(CRtfDriverTest, KeepsTheStyleSheetBetweenAnalyses) {
    platform.files["a.rtfss"] = goodSheet;
    driver->setStyleSheetFile("a.rtfss");
    driver->ParseFromMemmory(oneCell);
    driver->ParseFromMemmory(oneCell);
    EXPECT_EQ(driver->StyleSheetFile(), "a.rtfss");
    EXPECT_THAT(driver->Contents(), HasSubstr("{\\stylesheet"));
}

TEST_F(CRtfDriverTest, BuildsOnlyTheSecondOfTwoDescriptions) {
    driver->ParseFromMemmory(lines("(doc|(r|(c|c)|r)|(r|(c|c)|r)|doc)"));
    driver->ParseFromMemmory(paraWithText("second"));
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
    EXPECT_EQ(driver->RtfObject()
                  ->TableRows()
                  ->Item("1001")
                  ->TableCells()
                  ->Item("2001")
                  ->Paragraphs()
                  ->Item("3001")
                  ->Text(),
              "second");
}

TEST_F(CRtfDriverTest, BeginsEachAnalysisOnTheDefaultPage) {
    driver->ParseFromMemmory(docWith("(paper-width=5000)|(left-margin=100)|(page-number-start=9)"));
    driver->ParseFromMemmory(oneCell);
    EXPECT_EQ(driver->Contents(),
              documentText(defaultPage,
                           "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 "
                           "\r\n\r\n\r\n\\pard\\plain\\intbl x\\cell\\row}"));
}

TEST_F(CRtfDriverTest, LeavesTheOldRowsToWhoeverHoldsThem) {
    driver->ParseFromMemmory(paraWithText("old"));
    const Ref<CRtfTableRows> old = driver->RtfObject()->TableRows();
    driver->ParseFromMemmory(oneCell);
    EXPECT_EQ(old->Item("1001")->TableCells()->Item(1)->Paragraphs()->Item(1)->Text(), "old");
    EXPECT_NE(old.get(), driver->RtfObject()->TableRows().get());
}

TEST_F(CRtfDriverTest, KeepsTheTextOfTheDocumentUntilSomethingIsChanged) {
    driver->ParseFromMemmory(oneCell);
    const std::string before = driver->Contents();
    driver->ParseFromMemmory("");
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 0);
    EXPECT_EQ(driver->Contents(), before);
    driver->RtfObject()->Refresh();
    EXPECT_EQ(driver->Contents(), documentText(defaultPage, ""));
}

TEST_F(CRtfDriverTest, HasNothingToDoWithAnotherDriver) {
    const Ref<CRtfDriver> other = CRtfDriver::create(platform);
    int events = 0;
    other->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { ++events; });
    other->ParseFromMemmory(paraWithText("other"));
    driver->setErroneousInput(true);
    driver->setNotifyError(false);
    driver->ParseFromMemmory("");
    EXPECT_EQ(events, 0);
    EXPECT_FALSE(other->ErroneousInput());
    EXPECT_TRUE(other->notifyError());
    EXPECT_THAT(other->Contents(), HasSubstr("other"));
    EXPECT_EQ(driver->Contents(), "{}");
}

TEST_F(CRtfDriverTest, PutsATextWithoutADocOnTheClipboard) {
    driver->ParseFromMemmory("(row\r\n(cell\r\nGröße");
    EXPECT_EQ(platform.clipboardTexts, (std::vector<std::string>{"(row\r\n(cell\r\nGröße"}));
    driver->ParseFromMemmory("");
    EXPECT_EQ(platform.clipboardTexts.size(), 2u);
    EXPECT_EQ(platform.clipboardTexts.back(), "");
}

TEST_F(CRtfDriverTest, LeavesTheClipboardAloneOtherwise) {
    driver->ParseFromMemmory("x (doc y");
    driver->ParseFromMemmory(oneCell);
    EXPECT_THAT(platform.clipboardTexts, IsEmpty());
}

TEST_F(CRtfDriverTest, ReportsThatTheClipboardFailedAndGoesOn) {
    std::vector<ErrorFacts> errors;
    driver->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { errors.push_back(factsOf(error)); });
    platform.fail("setClipboardText", RunTimeError::PermissionDenied);
    driver->ParseFromMemmory("x");
    ASSERT_EQ(errors.size(), 5u);
    EXPECT_EQ(errors[0].number, 70);
    EXPECT_EQ(errors[1], missingElements());
}

TEST(Analysis, ReportsEveryStepForAnEmptyText) {
    EXPECT_THAT(errorsOf(""),
                ElementsAre(wrongFileType(), missingElements(), wrongRoot(0), absentKey()));
    EXPECT_THAT(checkedErrorsOf(""), ElementsAre(wrongFileType(), missingElements(), wrongRoot(0),
                                                 absentKey(), absentKey(), absentKey()));
}

TEST(Analysis, ReportsATextWithoutADocAndGoesOn) {
    const std::string text = "(row|(cell|cell)|row)";
    EXPECT_THAT(errorsOf(text),
                ElementsAre(wrongFileType(), missingElements(), wrongRoot(1), absentKey()));
    EXPECT_THAT(checkedErrorsOf(text), ElementsAre(wrongFileType(), missingElements(), wrongRoot(1),
                                                   absentKey(), absentKey(), absentKey()));
}

TEST(Analysis, WantsADocAndOneOfRowAndCell) {
    EXPECT_THAT(errorsOf("(doc|doc)"), ElementsAre(missingElements()));
    for (const char* element : {"(row", "(r", "(cell", "(c", "(rubbish", "; (c"}) {
        EXPECT_THAT(errorsOf("; " + std::string(element) + "|(doc|doc)"), IsEmpty());
    }
    for (const char* element : {"(para", "(p", "(ROW", "(C", "( r", "row", "r)"}) {
        EXPECT_THAT(errorsOf("; " + std::string(element) + "|(doc|doc)"),
                    ElementsAre(missingElements()));
    }
}

TEST(Analysis, FindsTheDocAnywhereInTheText) {
    EXPECT_THAT(errorsOf("; (doc (r"), ElementsAre(wrongRoot(0), absentKey()));
    EXPECT_THAT(errorsOf("(r|r)|x(docx"),
                ElementsAre(wrongRoot(1),
                            driverErrorOf(eSyntaxError, "x(docx has a wrong syntax",
                                          "sLine is neither a recognized node nor a leaf\r\n"
                                          "sLeaf = x(docx\r\nCRtfDriver.treeWalkerBuild",
                                          3),
                            absentKey()));
}

TEST(Analysis, WantsTheDocInLowerCaseButReadsItAllTheSame) {
    const ParsedDescription parsed(lines("(DOC|(R|(C|C)|R)|DOC)"));
    EXPECT_THAT(parsed.errors, ElementsAre(wrongFileType(), missingElements(), wrongRoot(1)));
    EXPECT_EQ(parsed.row("1001")->TableCells()->Count(), 1);
}

TEST(Analysis, WantsTheDocInTheFirstLine) {
    EXPECT_THAT(errorsOf("(k=1)|(doc|(r|(c|c)|r)|doc)"), ElementsAre(wrongRoot(1)));
    EXPECT_THAT(errorsOf("|; x|(k=1)|(doc|(r|(c|c)|r)|doc)"), ElementsAre(wrongRoot(3)));
    EXPECT_THAT(errorsOf("|; x|  (doc ; y|(r|(c|c)|r)|doc)"), IsEmpty());
}

TEST(Analysis, WantsTheEndOfTheDocInTheLastLine) {
    EXPECT_THAT(errorsOf("(doc|(r|(c|c)|r)"), ElementsAre(wrongRoot(5)));
    EXPECT_THAT(errorsOf("(doc|(r|(c|c)|r)|DOC)"), ElementsAre(wrongRoot(6)));
    EXPECT_THAT(errorsOf("(doc|(r|(c|c)|r)|doc)|(k=1)|;|"), ElementsAre(wrongRoot(7)));
    EXPECT_THAT(errorsOf("(doc|(r|(c|c)|r)|doc) ; end||; more|"), IsEmpty());
}

TEST(Analysis, WantsTheParenthesisOfTheLastLineToo) {
    EXPECT_THAT(
        errorsOf("(doc|(r|(c|c)|r)|doc"),
        ElementsAre(wrongRoot(6), driverErrorOf(eSyntaxError, "doc has a wrong syntax",
                                                "sLine is neither a recognized node nor a leaf\r\n"
                                                "sLeaf = doc\r\nCRtfDriver.treeWalkerBuild",
                                                6)));
}

TEST(Analysis, ReportsTheFirstLineWhenBothAreWrong) {
    EXPECT_THAT(errorsOf("(k=1)|(doc|(r|r)|doc)|(k=2)"), testing::Contains(wrongRoot(1)));
}

TEST(Analysis, LooksAtFourCharactersOfTheFirstAndTheLastLineOnly) {
    EXPECT_THAT(errorsOf("(doc=1)|(r|r)|doc)x"),
                ElementsAre(driverErrorOf(eSyntaxError, "doc)x has a wrong syntax",
                                          "sLine is neither a recognized node nor a leaf\r\n"
                                          "sLeaf = doc)x\r\nCRtfDriver.treeWalkerBuild",
                                          4),
                            absentKey()));
}

TEST(Analysis, MissesTheDocInEveryStepThatNeedsIt) {
    EXPECT_THAT(errorsOf("(doc=1)|(r|r)|doc)"), ElementsAre(absentKey()));
    EXPECT_THAT(checkedErrorsOf("(doc=1)|(r|r)|doc)"),
                ElementsAre(absentKey(), absentKey(), absentKey()));
}

TEST(Analysis, BuildsWhatWasReadBeforeAnError) {
    const ParsedDescription parsed(lines("(doc|(r|(c|(p|(pt=x)|c) ; too early|(c|c)|r)|doc)"));
    EXPECT_THAT(parsed.errors, ElementsAre(wrongNodeType("c) ; too early", 6)));
    EXPECT_EQ(parsed.rows()->Count(), 1);
    EXPECT_EQ(parsed.row()->TableCells()->Count(), 1);
    EXPECT_EQ(parsed.para()->Text(), "x");
}

TEST(Analysis, ReportsTheErrorsOfAllStepsInTheirOrder) {
    const std::string text = "(doc|(r|(foo=bar)|(rb=crimson)|(c|(p|p)|c)|r)|(r|doc)";
    EXPECT_THAT(
        checkedErrorsOf(text),
        ElementsAre(wrongNodeType("doc)", 11), noKeyword("foo", "row", 3), noNumber("foo", 3),
                    driverErrorOf(eWrongValue, "crimson isn't a recognized color.",
                                  "CRtfDriver.treWalkerSemantic", 4)));
}

TEST(Analysis, ReportsAllSevenErrorsThatOneTextCanHave) {
    EXPECT_THAT(checkedErrorsOf("x"),
                ElementsAre(wrongFileType(), missingElements(), wrongRoot(1),
                            driverErrorOf(eSyntaxError, "x has a wrong syntax",
                                          "sLine is neither a recognized node nor a leaf\r\n"
                                          "sLeaf = x\r\nCRtfDriver.treeWalkerBuild",
                                          1),
                            absentKey(), absentKey(), absentKey()));
}

TEST(Analysis, ChecksOnlyOnRequest) {
    const std::string text = "(doc|(r|(colour=red)|(c|(p|(PT=Total)|p)|c)|r)|doc)";
    EXPECT_THAT(errorsOf(text), IsEmpty());
    EXPECT_THAT(checkedErrorsOf(text),
                ElementsAre(noKeyword("colour", "row", 3), noNumber("colour", 3)));
}

TEST(Analysis, BuildsWhatFailedTheChecks) {
    const ParsedDescription parsed(lines("(doc|(r|(colour=red)|(rb=gold)|(c|c)|r)|doc)"),
                                   Checks::On);
    EXPECT_EQ(parsed.errors.size(), 2u);
    EXPECT_EQ(parsed.row()->BackColor(), eGold);
}

TEST(Analysis, GoesOnWithTheValuesWhenTheSyntaxIsWrong) {
    EXPECT_THAT(checkedErrorsOf("(doc|(r|(rtb=medium)|r)|doc)"),
                ElementsAre(mustHave("cell", "row", 2),
                            driverErrorOf(eWrongValue, "medium isn't a recognized border.",
                                          "CRtfDriver.treWalkerSemantic", 3),
                            driverErrorOf(eWrongValue, "medium isn't a recognized border.",
                                          "CRtfDriver.treWalkerSemantic", 3)));
}

TEST(Analysis, ReportsAnInvalidAlignmentInTheBuildOnly) {
    EXPECT_THAT(checkedErrorsOf(cellWith("(ca=middle)")),
                ElementsAre(driverErrorOf(eWrongValue, "middle isn't a recognized alignment.",
                                          "CRtfDriver.treWalkerSemantic", 4)));
}

TEST(Analysis, TakesANumberForANameWithAndWithoutChecks) {
    EXPECT_THAT(errorsOf(rowWith("(rb=32)")), IsEmpty());
    const ParsedDescription checked(rowWith("(rb=32)|(rtb=10)"), Checks::On);
    EXPECT_THAT(checked.errors, IsEmpty());
    EXPECT_EQ(checked.row()->BackColor(), eSilver);
    EXPECT_EQ(checked.row()->TopBorder(), eThin);
}

TEST(Analysis, ReportsANumberThatIsNotAValueOnceWhenItBuilds) {
    for (const Checks checks : {Checks::On, Checks::Off}) {
        EXPECT_THAT(ParsedDescription(rowWith("(rb=58)"), checks).errors,
                    ElementsAre(driverErrorOf(eWrongValue, "58 isn't a recognized color.",
                                              "CRtfDriver.treWalkerSemantic", 3)));
        EXPECT_THAT(ParsedDescription(rowWith("(rtb=11)"), checks).errors,
                    ElementsAre(driverErrorOf(eWrongValue, "11 isn't a recognized border.",
                                              "CRtfDriver.treWalkerSemantic", 3)));
    }
}

TEST(Analysis, ReportsADocWithoutRows) {
    EXPECT_THAT(checkedErrorsOf("(doc|doc)|; (r|doc)"), ElementsAre(mustHave("row", "doc", 1)));
}

TEST(Analysis, DropsTheFirstOfTwoRowOpenersWhenItChecks) {
    const std::string text = "(doc|(r|(r|(c|c)|r)|doc)";
    const ParsedDescription checked(lines(text), Checks::On);
    EXPECT_THAT(checked.errors, IsEmpty());
    EXPECT_EQ(checked.rows()->Count(), 1);
    EXPECT_EQ(checked.row("1001")->TableCells()->Count(), 1);

    const ParsedDescription plain(lines(text));
    EXPECT_THAT(plain.errors, IsEmpty());
    EXPECT_EQ(plain.rows()->Count(), 2);
    EXPECT_EQ(plain.row("1001")->TableCells()->Count(), 0);
    EXPECT_EQ(plain.row("1003")->TableCells()->Count(), 1);
}

TEST(Analysis, ClosesARowThatWasLeftOpenWhenItChecks) {
    const std::string text = "(doc|(r|(c|c)|(r|(c|c)|r)|doc)";
    EXPECT_EQ(ParsedDescription(lines(text), Checks::On).row("1002")->TableCells()->Count(), 1);
    EXPECT_EQ(ParsedDescription(lines(text)).row("1003")->TableCells()->Count(), 1);
}

TEST(Analysis, RefusesTheEndOfTheDocWhileARowIsOpenInBothModes) {
    const std::string text = "(doc|(r|(c|c)|doc)";
    EXPECT_THAT(errorsOf(text), ElementsAre(wrongNodeType("doc)", 5)));
    EXPECT_THAT(checkedErrorsOf(text), ElementsAre(wrongNodeType("doc)", 5)));
}

TEST(Analysis, OpensARowInsideAParagraphOrACellInBothModes) {
    for (const Checks checks : {Checks::Off, Checks::On}) {
        const ParsedDescription parsed(
            lines("(doc|(r|(c|(p|(pt=a)|(r|(c|(cb=gold)|(r|(c|(p|(pt=b)|p)|c)|r)|doc)"), checks);
        EXPECT_THAT(parsed.errors, IsEmpty());
        EXPECT_EQ(parsed.rows()->Count(), 3);
        EXPECT_EQ(parsed.para(1, 1, 1)->Text(), "a");
        EXPECT_EQ(parsed.cell(1, 2)->BackColor(), eGold);
        EXPECT_EQ(parsed.para(1, 1, 3)->Text(), "b");
    }
}

TEST(Analysis, KeepsTheLineNumbersOfTheTextWhenItRepairs) {
    EXPECT_THAT(checkedErrorsOf("(doc|(r|(r|(c|(x=1)|c)|(r|(c|(y=1)|c)|r)|doc)"),
                ElementsAre(noKeyword("x", "cell", 5)));
    EXPECT_THAT(checkedErrorsOf("(doc|(r|(r|(c|c)|(r|(c|(cb=a)|c)|r)|doc)"),
                ElementsAre(driverErrorOf(eWrongValue, "a isn't a recognized color.",
                                          "CRtfDriver.treWalkerSemantic", 8),
                            driverErrorOf(eWrongValue, "a isn't a recognized color.",
                                          "CRtfDriver.treWalkerSemantic", 8)));
    EXPECT_THAT(checkedErrorsOf("(doc|(r|(r|(c|c)|(r|(c|c)|p)|doc)"),
                ElementsAre(wrongNodeType("p)", 9)));
}

TEST(Analysis, CountsLinesByAnyLineBreak) {
    for (const std::string lineBreak : {"\n", "\r", "\r\n"}) {
        std::string text = lines("|  |; comment|(doc|\t|(r|(c|; x|(cw=wide)|c)|r)|doc)|");
        for (std::size_t at = text.find('\n'); at != std::string::npos;
             at = text.find('\n', at + lineBreak.size())) {
            text.replace(at, 1, lineBreak);
        }
        EXPECT_THAT(ParsedDescription(text).errors, ElementsAre(typeMismatch(9)));
    }
}

TEST(Analysis, CountsLinesByDifferentLineBreaks) {
    EXPECT_THAT(ParsedDescription("(doc\r(r\r\n(c\n\r(cw=wide)\n\nc)\r\rr)\r\n\r\ndoc)").errors,
                ElementsAre(typeMismatch(5)));
}

TEST(Analysis, ReportsTheLineOfEveryKindOfError) {
    const std::string before = "; first||(doc|";
    const std::string after = "|; last|doc)";
    const auto lineOf = [&](const std::string& text, Checks checks = Checks::Off) {
        const std::vector<ErrorFacts> errors = errorsOf(before + text + after, checks);
        return errors.empty() ? -1 : errors.front().line;
    };
    EXPECT_EQ(lineOf("x|(r"), 4);
    EXPECT_EQ(lineOf("(r|(c|||r)"), 8);
    EXPECT_EQ(lineOf("(r|(rb=red)||(rb=blue)|r)"), 7);
    EXPECT_EQ(lineOf("(title=x)|(r|(c|c)|r)", Checks::On), 4);
    EXPECT_EQ(lineOf("(r|||r)", Checks::On), 4);
    EXPECT_EQ(lineOf("(r|(c||(p|(ps=x)|p)|c)|r)", Checks::On), 7);
    EXPECT_EQ(lineOf("(r|(c|(p|(pt=x)||(doc|doc)|p)|c)|r)", Checks::On), 9);
    EXPECT_EQ(lineOf("(r||(rb=crimson)|(c|c)|r)", Checks::On), 6);
    EXPECT_EQ(lineOf("(r|(rtb=1)|(c|c)|r)", Checks::On), 5);
    EXPECT_EQ(lineOf("(r|(c|(cw=x)|c)|r)", Checks::On), 6);
    EXPECT_EQ(lineOf("(r|(c|c)|r)|(paper-width=x)"), 8);
    EXPECT_EQ(lineOf("(r|(c|c)|||(row-key=1001)|r)"), 9);
    EXPECT_EQ(lineOf("(r|(c|(cw=1e9)|c)|r)"), 6);
}

TEST(Analysis, ReportsTheLineOfANodeThatIsInTheWrongPlace) {
    const std::vector<ErrorFacts> errors =
        checkedErrorsOf("(doc|(r|(c|c)||(doc|(r|(c|c)|r)|doc)|r)|doc)");
    EXPECT_THAT(errors, testing::Contains(driverErrorOf(
                            eSyntaxError, "Invalid node declaration in this context\r\n",
                            "CRtDriver.treeWalkerSemantic", 6)));
}

TEST(Analysis, ReportsTheLineOfTheFirstRowBeyondTheLimit) {
    std::string text = "(doc||";
    for (int i = 0; i < 1000; ++i) {
        text += "(r|r)|";
    }
    const ParsedDescription parsed(lines(text + "doc)"));
    EXPECT_THAT(parsed.errors, ElementsAre(driverErrorOf(eWrongNumberOfNodes, "Too many row nodes.",
                                                         "CRtfDriver.treeWakerBuild", 2001)));
    EXPECT_EQ(parsed.rows()->Count(), 999);
    EXPECT_EQ(parsed.rows()->PeekTail().get(), parsed.row("1999").get());
}

}  // namespace
}  // namespace quorvane
