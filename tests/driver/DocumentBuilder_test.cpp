#include "quorvane/driver/DocumentBuilder.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/driver/ParsedDescription.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a description gives without any error.
class BuiltDocument : public ParsedDescription {
public:
    explicit BuiltDocument(const std::string& text) : ParsedDescription(lines(text)) {
        EXPECT_THAT(errors, IsEmpty()) << text;
    }
};

/// The errors of the build: a description that is read without one gives no others.
std::vector<ErrorFacts> errorsOf(const std::string& text) {
    return ParsedDescription(lines(text)).errors;
}

ErrorFacts wrongValue(const std::string& description, int line) {
    return driverErrorOf(eWrongValue, description, "CRtfDriver.treWalkerSemantic", line);
}

/// The rows as they are rendered.
std::string tableOf(const ParsedDescription& parsed) {
    const std::string& all = parsed.driver->Contents();
    const std::string pageEnd = "\\widowctrl\r\n";
    const std::size_t begin = all.find(pageEnd) + pageEnd.size();
    return all.substr(begin, all.size() - begin - 1);
}

/// Width of every cell of the first row in twips.
std::vector<std::int32_t> widthsOf(const ParsedDescription& parsed, const Value& row = 1) {
    std::vector<std::int32_t> widths;
    const Ref<CRtfTableCells> cells = parsed.row(row)->TableCells();
    for (std::int32_t position = 1; position <= cells->Count(); ++position) {
        widths.push_back(cells->Item(position)->Width(eTwips));
    }
    return widths;
}

std::vector<std::int32_t> bordersOf(const Ref<CRtfTableCell>& cell) {
    return {cell->TopBorder(), cell->BottomBorder(), cell->LeftBorder(), cell->RightBorder()};
}

std::vector<std::int32_t> bordersOf(const Ref<CRtfTableRow>& row) {
    return {row->TopBorder(), row->BottomBorder(), row->LeftBorder(), row->RightBorder()};
}

TEST(DocumentBuilder, SetsThePage) {
    const BuiltDocument built(
        docWith("(paper-height=16838)|(paper-width=11906)|"
                "(page-number-start=7)|(left-margin=1000)|"
                "(right-margin=1100)|(top-margin=1200)|"
                "(bottom-margin=1300)"));
    const Ref<CRtfDoc> document = built.driver->RtfObject();
    EXPECT_EQ(document->PageHeight(), 16838);
    EXPECT_EQ(document->PageWidth(), 11906);
    EXPECT_EQ(document->PageNumberStart(), 7);
    EXPECT_EQ(document->LeftMargin(), 1000);
    EXPECT_EQ(document->RightMargin(), 1100);
    EXPECT_EQ(document->TopMargin(), 1200);
    EXPECT_EQ(document->BottomMargin(), 1300);
}

TEST(DocumentBuilder, RoundsTheMeasuresOfThePageHalvesToEven) {
    const BuiltDocument built(
        docWith("(paper-width=9000.5)|(paper-height=9001.5)|"
                "(left-margin=99.51)|(right-margin=1e2)"));
    EXPECT_EQ(built.driver->RtfObject()->PageWidth(), 9000);
    EXPECT_EQ(built.driver->RtfObject()->PageHeight(), 9002);
    EXPECT_EQ(built.driver->RtfObject()->LeftMargin(), 100);
    EXPECT_EQ(built.driver->RtfObject()->RightMargin(), 100);
}

TEST(DocumentBuilder, GivesAMarginThatDoesNotFitItsFallback) {
    const BuiltDocument built(
        docWith("(bottom-margin=0)|(left-margin=-5)|(top-margin=99999)|"
                "(right-margin=99999)|(page-number-start=0)"));
    EXPECT_EQ(built.driver->RtfObject()->BottomMargin(), 0);
    EXPECT_EQ(built.driver->RtfObject()->LeftMargin(), 1);
    EXPECT_EQ(built.driver->RtfObject()->TopMargin(), 2);
    EXPECT_EQ(built.driver->RtfObject()->RightMargin(), 3);
    EXPECT_EQ(built.driver->RtfObject()->PageNumberStart(), 2);
}

// Lower and left margin against the default page, upper and right one against the new page.
TEST(DocumentBuilder, SetsThePageInTheOrderOfTheKeys) {
    const BuiltDocument built(
        docWith("(paper-height=30000)|(paper-width=9000)|"
                "(bottom-margin=13000)|(top-margin=14000)|"
                "(left-margin=9300)|(right-margin=6398)"));
    EXPECT_EQ(built.driver->RtfObject()->BottomMargin(), 0);
    EXPECT_EQ(built.driver->RtfObject()->TopMargin(), 14000);
    EXPECT_EQ(built.driver->RtfObject()->LeftMargin(), 9300);
    EXPECT_EQ(built.driver->RtfObject()->RightMargin(), 3);
}

TEST(DocumentBuilder, PassesOverAKeyOfTheDocThatItDoesNotKnow) {
    const BuiltDocument built(docWith("(title=x)|(Paper-Width=5)|(row-key=1)|(=)"));
    EXPECT_EQ(built.driver->RtfObject()->PageWidth(), 12242);
}

TEST(DocumentBuilder, RefusesATextForAMeasureOfThePage) {
    for (const std::string key : {"paper-height", "paper-width", "page-number-start", "left-margin",
                                  "right-margin", "bottom-margin", "top-margin"}) {
        EXPECT_THAT(errorsOf(docWith("(" + key + "=wide)")), ElementsAre(typeMismatch(2)));
        EXPECT_THAT(errorsOf(docWith("(" + key + "=)")), ElementsAre(typeMismatch(2)));
    }
}

TEST(DocumentBuilder, RefusesAMeasureThatLeaves32Bits) {
    EXPECT_THAT(errorsOf(docWith("(paper-width=2147483648)")), ElementsAre(overflow(2)));
    EXPECT_THAT(errorsOf(docWith("(paper-width=-2147483649)")), ElementsAre(overflow(2)));
    EXPECT_THAT(errorsOf(docWith("(paper-width=1e300)")), ElementsAre(overflow(2)));
    EXPECT_THAT(errorsOf(docWith("(paper-width=2147483647)")), IsEmpty());
}

TEST(DocumentBuilder, KeepsWhatItDidBeforeABadMeasureOfThePage) {
    const ParsedDescription parsed(
        docWith("(bottom-margin=100)|(top-margin=100)|(paper-width=wide)|(left-margin=100)"));
    EXPECT_THAT(parsed.errors, ElementsAre(typeMismatch(4)));
    EXPECT_EQ(parsed.driver->RtfObject()->BottomMargin(), 100);
    EXPECT_EQ(parsed.driver->RtfObject()->LeftMargin(), 100);
    EXPECT_EQ(parsed.driver->RtfObject()->TopMargin(), 1418);
    EXPECT_EQ(parsed.rows()->Count(), 1);
    EXPECT_EQ(parsed.para()->Text(), "");
}

TEST(DocumentBuilder, FilesRowsCellsAndParagraphsUnderTheirNumbers) {
    const BuiltDocument built(
        "(doc|(r|(c|(p|(pt=a)|p)|(p|(pt=b)|p)|c)|(c|c)|r)|"
        "(r|(c|(p|(pt=c)|p)|c)|r)|doc)");
    EXPECT_EQ(built.rows()->Count(), 2);
    EXPECT_EQ(built.row("1001")->TableCells()->Count(), 2);
    EXPECT_EQ(built.row("1002")->TableCells()->Count(), 1);
    EXPECT_EQ(built.para("3001", "2001", "1001")->Text(), "a");
    EXPECT_EQ(built.para("3002", "2001", "1001")->Text(), "b");
    EXPECT_EQ(built.cell("2002", "1001")->Paragraphs()->Count(), 0);
    EXPECT_EQ(built.para("3003", "2003", "1002")->Text(), "c");
}

TEST(DocumentBuilder, FilesRowsUnderNumbersThatSkip) {
    const BuiltDocument built("(doc|(r|(c|(p|(pt=a)|(r|(c|(p|(pt=b)|p)|c)|r)|doc)");
    EXPECT_EQ(built.para(1, 1, "1001")->Text(), "a");
    EXPECT_EQ(built.para(1, 1, "1005")->Text(), "b");
    EXPECT_EQ(built.rows()->Count(), 2);
}

TEST(DocumentBuilder, FilesThemInTheOrderOfTheDescription) {
    const BuiltDocument built(
        "(doc|(r|(rb=red)|(c|(cb=blue)|c)|(c|(cb=gold)|(p|(pt=x)|p)|"
        "(p|(pt=y)|p)|c)|r)|(r|(rb=pink)|r)|doc)");
    EXPECT_EQ(built.row(1)->BackColor(), eRed);
    EXPECT_EQ(built.row(2)->BackColor(), ePink);
    EXPECT_EQ(built.cell(1)->BackColor(), eBlue);
    EXPECT_EQ(built.cell(2)->BackColor(), eGold);
    EXPECT_EQ(built.para(1, 2)->Text(), "x");
    EXPECT_EQ(built.para(2, 2)->Text(), "y");
}

TEST(DocumentBuilder, PassesOverANestedDocWithAllThatIsInIt) {
    const BuiltDocument built(
        "(doc|(doc|(paper-width=5)|(r|(c|c)|r)|doc)|(r|(doc|doc)|"
        "(c|(doc|doc)|(p|(doc|(pt=x)|doc)|(pt=y)|p)|c)|r)|doc)");
    EXPECT_EQ(built.driver->RtfObject()->PageWidth(), 12242);
    EXPECT_EQ(built.rows()->Count(), 1);
    EXPECT_EQ(built.row("1002")->TableCells()->Count(), 1);
    EXPECT_EQ(built.para()->Text(), "y");
}

TEST(DocumentBuilder, BuildsNothingOfWhatStandsOutsideTheDoc) {
    const BuiltDocument built("(doc|(r|r)|doc)|(r|(c|c)|r)|(paper-width=5)|doc)");
    EXPECT_EQ(built.rows()->Count(), 1);
    EXPECT_EQ(built.driver->RtfObject()->PageWidth(), 12242);
}

const std::vector<std::pair<std::string, int>> colors = {
    {"black", 3},        {"blue", 4},         {"cyan", 7},           {"green", 18},
    {"magenta", 23},     {"red", 30},         {"yellow", 37},        {"white", 36},
    {"navy-blue", 24},   {"dark-cyan", 8},    {"dark-green", 10},    {"dark-magenta", 11},
    {"dark-red", 12},    {"dark-yellow", 14}, {"deep-sky-blue", 15}, {"gray", 17},
    {"silver", 32},      {"dark-gray", 9},    {"brown", 5},          {"olive-green", 25},
    {"slate-blue", 34},  {"orange", 26},      {"lime-green", 22},    {"dark-slate-blue", 13},
    {"sea-green", 31},   {"aquamarine", 1},   {"light-blue", 19},    {"purple", 29},
    {"gold", 16},        {"chartreuse", 6},   {"turquoise", 35},     {"sky-blue", 33},
    {"peach-puff", 27},  {"bisque", 2},       {"pink", 28},          {"light-yellow", 21},
    {"light-green", 20}, {"none", 0},
};

TEST(DocumentBuilder, SetsTheBackColorOfARowByEveryName) {
    for (const auto& [name, value] : colors) {
        EXPECT_EQ(BuiltDocument(rowWith("(row-backcolor=" + name + ")")).row()->BackColor(), value);
    }
}

TEST(DocumentBuilder, SetsTheBackColorOfACellByEveryName) {
    for (const auto& [name, value] : colors) {
        const BuiltDocument built(cellWith("(cell-backcolor=" + name + ")"));
        EXPECT_EQ(built.cell()->BackColor(), value);
        EXPECT_EQ(built.row()->BackColor(), eNoColor);
    }
}

TEST(DocumentBuilder, TakesNamesInAnyCase) {
    const BuiltDocument built(cellWith("(cb=Light-Yellow)|(ctb=THIN)|(ca=Centered)"));
    EXPECT_EQ(built.cell()->BackColor(), eLightYellow);
    EXPECT_EQ(built.cell()->TopBorder(), eThin);
    EXPECT_EQ(built.cell()->Align(), eCentered);
}

TEST(DocumentBuilder, TakesTheNumberOfEveryColor) {
    for (int value = 0; value <= 57; ++value) {
        EXPECT_EQ(BuiltDocument(rowWith("(rb=" + std::to_string(value) + ")")).row()->BackColor(),
                  value);
    }
}

TEST(DocumentBuilder, TakesANumberInAnyFormForAColor) {
    for (const char* form : {"0032", "32.0", "3.2e1", "+32"}) {
        EXPECT_EQ(BuiltDocument(cellWith("(cb=" + std::string(form) + ")")).cell()->BackColor(),
                  eSilver);
    }
}

TEST(DocumentBuilder, RefusesANumberThatIsNotAColor) {
    EXPECT_THAT(errorsOf(rowWith("(rb=58)")),
                ElementsAre(wrongValue("58 isn't a recognized color.", 3)));
    EXPECT_THAT(errorsOf(cellWith("(cb=-1)")),
                ElementsAre(wrongValue("-1 isn't a recognized color.", 4)));
    EXPECT_THAT(errorsOf(cellWith("(cb=1.5)")),
                ElementsAre(wrongValue("1.5 isn't a recognized color.", 4)));
    EXPECT_THAT(errorsOf(cellWith("(cb=4294967296)")),
                ElementsAre(wrongValue("4294967296 isn't a recognized color.", 4)));
    EXPECT_THAT(errorsOf(cellWith("(cb=1e300)")),
                ElementsAre(wrongValue("1e+300 isn't a recognized color.", 4)));
}

TEST(DocumentBuilder, RefusesAWordThatIsNotAColor) {
    EXPECT_THAT(errorsOf(rowWith("(rb=crimson)")),
                ElementsAre(wrongValue("crimson isn't a recognized color.", 3)));
    EXPECT_THAT(errorsOf(cellWith("(cb=)")),
                ElementsAre(wrongValue(" isn't a recognized color.", 4)));
}

struct BorderKey {
    const char* key;
    const char* shortKey;
    /// Position in `bordersOf`.
    std::size_t side;
};

constexpr BorderKey rowBorders[] = {{"row-top-border", "rtb", 0},
                                    {"row-bottom-border", "rbb", 1},
                                    {"row-left-border", "rlb", 2},
                                    {"row-right-border", "rrb", 3}};
constexpr BorderKey cellBorders[] = {{"cell-top-border", "ctb", 0},
                                     {"cell-bottom-border", "cbb", 1},
                                     {"cell-left-border", "clb", 2},
                                     {"cell-right-border", "crb", 3}};
constexpr std::pair<const char*, int> borderNames[] = {
    {"none", -1}, {"hair", 5}, {"thin", 10}, {"normal", 20}, {"thick", 30}};

std::vector<std::int32_t> oneBorder(std::size_t side, int width) {
    std::vector<std::int32_t> borders(4, -1);
    borders[side] = width;
    return borders;
}

TEST(DocumentBuilder, SetsEachBorderOfARowByEveryName) {
    for (const BorderKey& border : rowBorders) {
        for (const auto& [name, width] : borderNames) {
            for (const std::string key : {border.key, border.shortKey}) {
                const BuiltDocument built(rowWith("(" + key + "=" + name + ")"));
                EXPECT_EQ(bordersOf(built.row()), oneBorder(border.side, width)) << key << name;
                EXPECT_EQ(bordersOf(built.cell()), oneBorder(border.side, width)) << key << name;
            }
        }
    }
}

TEST(DocumentBuilder, SetsEachBorderOfACellByEveryName) {
    for (const BorderKey& border : cellBorders) {
        for (const auto& [name, width] : borderNames) {
            for (const std::string key : {border.key, border.shortKey}) {
                const BuiltDocument built(cellWith("(" + key + "=" + name + ")"));
                EXPECT_EQ(bordersOf(built.cell()), oneBorder(border.side, width)) << key << name;
                EXPECT_EQ(bordersOf(built.row()), oneBorder(0, -1)) << key << name;
            }
        }
    }
}

TEST(DocumentBuilder, TakesTheWidthOfABorderForItsName) {
    for (const char* width : {"-1", "5", "10", "20", "30"}) {
        const BuiltDocument built(cellWith("(ctb=" + std::string(width) + ")"));
        EXPECT_EQ(built.cell()->TopBorder(), std::stoi(width));
    }
}

TEST(DocumentBuilder, TakesAwayTheBorderAndTheGroundOfTheRow) {
    const BuiltDocument built("(doc|(r|(rtb=thick)|(rb=gold)|(c|(ctb=none)|(cb=none)|c)|r)|doc)");
    EXPECT_EQ(built.cell()->TopBorder(), eNone);
    EXPECT_EQ(built.cell()->BackColor(), eNoColor);
    EXPECT_EQ(tableOf(built),
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 \r\n\\cell\\row}");
}

TEST(DocumentBuilder, RefusesWhatIsNotABorder) {
    for (const BorderKey& border : rowBorders) {
        EXPECT_THAT(errorsOf(rowWith("(" + std::string(border.key) + "=medium)")),
                    ElementsAre(wrongValue("medium isn't a recognized border.", 3)));
    }
    for (const BorderKey& border : cellBorders) {
        EXPECT_THAT(errorsOf(cellWith("(" + std::string(border.key) + "=medium)")),
                    ElementsAre(wrongValue("medium isn't a recognized border.", 4)));
    }
    for (const std::string number : {"0", "-2", "7", "31", "10.5", "999", "1000"}) {
        EXPECT_THAT(errorsOf(cellWith("(ctb=" + number + ")")),
                    ElementsAre(wrongValue(number + " isn't a recognized border.", 4)));
    }
}

constexpr std::pair<const char*, int> alignmentNames[] = {
    {"left", 2}, {"right", 3}, {"centered", 1}, {"justified", 4}, {"none", 0}};

TEST(DocumentBuilder, SetsTheAlignmentOfACellByEveryName) {
    for (const auto& [name, value] : alignmentNames) {
        for (const std::string key : {"ca", "cell-alignment"}) {
            EXPECT_EQ(BuiltDocument(cellWith("(" + key + "=" + name + ")")).cell()->Align(), value);
        }
    }
}

TEST(DocumentBuilder, SetsTheAlignmentOfAParagraphByEveryName) {
    for (const auto& [name, value] : alignmentNames) {
        for (const std::string key : {"pa", "para-alignment"}) {
            EXPECT_EQ(BuiltDocument(paraWith("(" + key + "=" + name + ")")).para()->Align(), value);
        }
    }
}

TEST(DocumentBuilder, TakesTheNumberOfAnAlignmentForItsName) {
    for (int value = 0; value <= 4; ++value) {
        EXPECT_EQ(BuiltDocument(cellWith("(ca=" + std::to_string(value) + ")")).cell()->Align(),
                  value);
    }
}

TEST(DocumentBuilder, RefusesWhatIsNotAnAlignment) {
    EXPECT_THAT(errorsOf(cellWith("(ca=center)")),
                ElementsAre(wrongValue("center isn't a recognized alignment.", 4)));
    EXPECT_THAT(errorsOf(paraWith("(pa=)")),
                ElementsAre(wrongValue(" isn't a recognized alignment.", 5)));
    for (const std::string number : {"5", "-1", "1.5"}) {
        EXPECT_THAT(errorsOf(paraWith("(pa=" + number + ")")),
                    ElementsAre(wrongValue(number + " isn't a recognized alignment.", 5)));
    }
}

TEST(DocumentBuilder, SetsTheTextExactlyAsItIsRead) {
    for (const std::string text :
         {"Total", "0012", "+1.50", "1e3", "a  b", "a=b;c", "\\b x", "{y}", "<x=y>", "\tz\t"}) {
        EXPECT_EQ(BuiltDocument(paraWith("(pt=  " + text + " )")).para()->Text(), text);
        EXPECT_EQ(BuiltDocument(paraWith("(para-text=" + text + ")")).para()->Text(), text);
    }
}

TEST(DocumentBuilder, LeavesAnEmptyTextEmpty) {
    EXPECT_EQ(BuiltDocument(paraWith("(pt=)")).para()->Text(), "");
}

TEST(DocumentBuilder, SetsTheStylesOfCellsAndParagraphs) {
    const BuiltDocument built(cellWith("(cs=Shaded Box)|(p|(ps=Heading)|p)"));
    EXPECT_EQ(built.cell()->Style(), "Shaded Box");
    EXPECT_EQ(built.para()->Style(), "Heading");
    EXPECT_EQ(BuiltDocument(cellWith("(cell-style=x)")).cell()->Style(), "x");
    EXPECT_EQ(BuiltDocument(paraWith("(para-style=x)")).para()->Style(), "x");
}

TEST(DocumentBuilder, WritesANumericStyleInItsShortestForm) {
    const std::pair<const char*, const char*> forms[] = {
        {"1", "1"}, {"0012", "12"}, {"1.50", "1.5"}, {".5", "0.5"}, {"1e3", "1000"}, {"-0", "0"}};
    for (const auto& [written, shortest] : forms) {
        const std::string end = "=" + std::string(written) + ")";
        EXPECT_EQ(BuiltDocument(paraWith("(ps" + end)).para()->Style(), shortest);
        EXPECT_EQ(BuiltDocument(cellWith("(cs" + end)).cell()->Style(), shortest);
    }
}

TEST(DocumentBuilder, MarksAParagraphWithItsData) {
    const std::string start = "{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin";
    const std::string para = "\r\n\\pard\\plain\\intbl x{\\*\\txfieldend}";
    for (const std::string key : {"pmf", "para-marked-field"}) {
        EXPECT_THAT(tableOf(BuiltDocument(paraWith("(pt=x)|(" + key + "=AB)"))),
                    testing::HasSubstr(start + "\\txfielddata 4142}" + para));
    }
    EXPECT_THAT(tableOf(BuiltDocument(paraWith("(pt=x)|(pmf=)"))),
                testing::HasSubstr(start + "}" + para));
}

TEST(DocumentBuilder, MarksAParagraphWithoutDataForANumber) {
    EXPECT_THAT(tableOf(BuiltDocument(paraWith("(pt=x)|(pmf=12)"))),
                testing::HasSubstr("\\txfieldbin}\r\n\\pard\\plain\\intbl x{\\*\\txfieldend}"));
}

TEST(DocumentBuilder, MarksACellWithItsData) {
    for (const std::string key : {"cmf", "cell-marked-field"}) {
        EXPECT_EQ(tableOf(BuiltDocument("(doc|(r|(c|(" + key + "=id=7)|c)|r)|doc)")),
                  "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 {\\*\\txfieldstart"
                  "\\txfieldtype0\\txfieldflags128\\txfieldbin\\txfielddata 69643D37}\r\n"
                  "{\\*\\txfieldend}\\cell\\row}");
    }
}

TEST(DocumentBuilder, LeavesACellUnmarkedForANumber) {
    EXPECT_EQ(tableOf(BuiltDocument("(doc|(r|(c|(cmf=12)|c)|r)|doc)")),
              "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 \r\n\\cell\\row}");
}

TEST(DocumentBuilder, ReportsToTheObserverThatACellRefusedANumberForItsMarkedField) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    std::vector<std::string> absorbed;
    driver->setAbsorbedErrorObserver([&](const AbsorbedError& error) {
        absorbed.push_back(error.moduleName + " " + error.procedureName + " " +
                           error.error.description);
    });
    driver->ParseFromMemmory(cellWith("(cmf=12)"));
    EXPECT_THAT(absorbed, ElementsAre("CRtfTableCell.cls asMarkedField A Marked Text Field Data "
                                      "can only be String or Long"));
}

TEST(DocumentBuilder, PassesOverKeysOfRowsCellsAndParagraphsThatItDoesNotKnow) {
    const BuiltDocument built(
        "(doc|(r|(colour=red)|(cb=red)|(RB=red)|(c|(colour=red)|(rb=red)|"
        "(p|(PT=x)|(cw=5)|p)|c)|r)|doc)");
    EXPECT_EQ(built.row()->BackColor(), eNoColor);
    EXPECT_EQ(built.cell()->BackColor(), eNoColor);
    EXPECT_EQ(built.para()->Text(), "");
}

TEST(DocumentBuilder, AppliesTheLeavesOfARowBeforeThoseOfItsCells) {
    const BuiltDocument built(
        "(doc|(r|(c|(ctb=thick)|(cb=gold)|c)|(c|c)|(rtb=thin)|(rbb=hair)|"
        "(rb=pink)|r)|doc)");
    EXPECT_EQ(bordersOf(built.cell(1)), (std::vector<std::int32_t>{30, 5, -1, -1}));
    EXPECT_EQ(bordersOf(built.cell(2)), (std::vector<std::int32_t>{10, 5, -1, -1}));
    EXPECT_EQ(built.cell(1)->BackColor(), eGold);
    EXPECT_EQ(built.cell(2)->BackColor(), ePink);
}

TEST(DocumentBuilder, MakesTheTextOfDarkRowsAndCellsWhite) {
    const BuiltDocument built(
        "(doc|(r|(rb=black)|(c|(p|(pt=a)|p)|c)|(c|(cb=white)|(p|(pt=b)|p)|c)|"
        "r)|(r|(c|(cb=57)|(p|(pt=c)|p)|c)|(c|(p|(pt=d)|p)|c)|r)|doc)");
    EXPECT_EQ(built.para(1, 1, 1)->ForeColor(), eWhite);
    EXPECT_EQ(built.para(1, 2, 1)->ForeColor(), eWhite);
    EXPECT_EQ(built.para(1, 1, 2)->ForeColor(), eWhite);
    EXPECT_EQ(built.para(1, 2, 2)->ForeColor(), eNoColor);
}

TEST(DocumentBuilder, AppliesTheLeavesOfANodeInAscendingOrder) {
    EXPECT_THAT(errorsOf(rowWith("(rtb=medium)|(rlb=wide)|(rb=crimson)")),
                ElementsAre(wrongValue("crimson isn't a recognized color.", 5)));
    EXPECT_THAT(errorsOf(cellWith("(cw=wide)|(ctb=wide)|(cb=wide)|(ca=wide)")),
                ElementsAre(wrongValue("wide isn't a recognized alignment.", 7)));
    EXPECT_THAT(errorsOf(docWith("(top-margin=a)|(bottom-margin=b)")),
                ElementsAre(typeMismatch(3)));
}

TEST(DocumentBuilder, AppliesTheLeavesOfTheDocFirst) {
    EXPECT_THAT(errorsOf("(doc|(r|(rb=crimson)|r)|(top-margin=a)|doc)"),
                ElementsAre(typeMismatch(5)));
}

TEST(DocumentBuilder, GoesThroughACellWithItsParagraphsBeforeTheNext) {
    EXPECT_THAT(errorsOf("(doc|(r|(c|(p|(pa=a)|p)|c)|(c|(ca=b)|c)|r)|doc)"),
                ElementsAre(wrongValue("a isn't a recognized alignment.", 5)));
    EXPECT_THAT(errorsOf("(doc|(r|(c|(p|(pa=a)|p)|(ca=b)|c)|r)|doc)"),
                ElementsAre(wrongValue("b isn't a recognized alignment.", 7)));
}

TEST(DocumentBuilder, EndsAtItsFirstErrorAndKeepsWhatIsThere) {
    const ParsedDescription parsed(
        lines("(doc|(r|(rb=red)|(c|(cb=gold)|(ctb=medium)|(cw=50)|(p|(pt=a)|p)|c)|(c|(cb=blue)|c)|"
              "r)|(r|(rb=pink)|(c|(p|(pt=b)|p)|c)|r)|doc)"));
    EXPECT_THAT(parsed.errors, ElementsAre(wrongValue("medium isn't a recognized border.", 6)));
    EXPECT_EQ(parsed.row(1)->BackColor(), eRed);
    EXPECT_EQ(parsed.cell(1, 1)->BackColor(), eGold);
    EXPECT_EQ(parsed.cell(2, 1)->BackColor(), eRed);
    EXPECT_EQ(parsed.row(2)->BackColor(), eNoColor);
    EXPECT_EQ(parsed.para(1, 1, 1)->Text(), "");
    EXPECT_EQ(parsed.para(1, 1, 2)->Text(), "");
    EXPECT_EQ(widthsOf(parsed), (std::vector<std::int32_t>{4420, 4420}));
}

TEST(DocumentBuilder, SpreadsTheCellsOfEachRowEvenly) {
    const BuiltDocument built("(doc|(r|(c|c)|(c|c)|(c|c)|r)|(r|(c|c)|r)|(r|(c|c)|(c|c)|r)|doc)");
    EXPECT_EQ(widthsOf(built, 1), (std::vector<std::int32_t>{2947, 2947, 2947}));
    EXPECT_EQ(widthsOf(built, 2), (std::vector<std::int32_t>{8840}));
    EXPECT_EQ(widthsOf(built, 3), (std::vector<std::int32_t>{4420, 4420}));
}

TEST(DocumentBuilder, SpreadsThemOnTheDefaultPage) {
    const BuiltDocument built("(doc|(paper-width=20000)|(left-margin=100)|(r|(c|c)|(c|c)|r)|doc)");
    EXPECT_EQ(widthsOf(built), (std::vector<std::int32_t>{4420, 4420}));
}

TEST(DocumentBuilder, SetsAWidthInPerCentOfTheUsableWidth) {
    for (const std::string key : {"cw", "cell-width"}) {
        const BuiltDocument built(cellWith("(" + key + "=25)"));
        EXPECT_EQ(built.cell()->Width(ePercent), 25);
        EXPECT_EQ(built.cell()->Width(eTwips), 2210);
    }
}

TEST(DocumentBuilder, TakesTheUsableWidthOfThePageThatTheDescriptionSets) {
    const BuiltDocument built("(doc|(paper-width=13402)|(r|(c|(cw=25)|c)|(c|c)|r)|doc)");
    EXPECT_EQ(widthsOf(built), (std::vector<std::int32_t>{2500, 6340}));
}

TEST(DocumentBuilder, GivesTheBoundaryOfACellToItsRightNeighbor) {
    const BuiltDocument built("(doc|(r|(c|(cw=10)|c)|(c|(cw=20)|c)|(c|c)|(c|c)|r)|doc)");
    EXPECT_EQ(widthsOf(built), (std::vector<std::int32_t>{884, 1768, 3978, 2210}));
}

TEST(DocumentBuilder, GivesTheBoundaryOfTheLastCellToItsLeftNeighbor) {
    const BuiltDocument built("(doc|(r|(c|c)|(c|(cw=75)|c)|r)|doc)");
    EXPECT_EQ(widthsOf(built), (std::vector<std::int32_t>{2210, 6630}));
}

TEST(DocumentBuilder, LeavesEveryCell200Twips) {
    EXPECT_EQ(widthsOf(BuiltDocument("(doc|(r|(c|(cw=1)|c)|(c|c)|r)|doc)")),
              (std::vector<std::int32_t>{200, 8640}));
    EXPECT_EQ(widthsOf(BuiltDocument("(doc|(r|(c|(cw=100)|c)|(c|c)|r)|doc)")),
              (std::vector<std::int32_t>{8640, 200}));
    EXPECT_EQ(widthsOf(BuiltDocument("(doc|(r|(c|(cw=-5)|c)|(c|c)|r)|doc)")),
              (std::vector<std::int32_t>{200, 8640}));
    EXPECT_EQ(widthsOf(BuiltDocument("(doc|(r|(c|(cw=500)|c)|r)|doc)")),
              (std::vector<std::int32_t>{8840}));
}

TEST(DocumentBuilder, RoundsAFractionOfAPerCentToEven) {
    EXPECT_EQ(widthsOf(BuiltDocument("(doc|(r|(c|(cw=24.5)|c)|r)|doc)")),
              (std::vector<std::int32_t>{2122}));
    EXPECT_EQ(widthsOf(BuiltDocument("(doc|(r|(c|(cw=25.5)|c)|r)|doc)")),
              (std::vector<std::int32_t>{2298}));
}

TEST(DocumentBuilder, RefusesATextForAWidth) {
    EXPECT_THAT(errorsOf(cellWith("(cw=wide)")), ElementsAre(typeMismatch(4)));
    EXPECT_THAT(errorsOf(cellWith("(cw=)")), ElementsAre(typeMismatch(4)));
}

TEST(DocumentBuilder, RefusesAWidthThatLeaves32Bits) {
    EXPECT_THAT(errorsOf(cellWith("(cw=1e10)")), ElementsAre(overflow(4)));
    EXPECT_THAT(errorsOf(cellWith("(cw=1000000)")), ElementsAre(overflow(4)));
}

TEST(DocumentBuilder, RefilesARowUnderItsKey) {
    const BuiltDocument built("(doc|(r|(row-key=7)|(c|(p|(pt=x)|p)|c)|r)|doc)");
    EXPECT_EQ(built.rows()->Count(), 1);
    EXPECT_EQ(built.para("3001", "2001", "7")->Text(), "x");
    EXPECT_EQ(errorOf([&] { built.row("1001"); }).number, 5);
}

TEST(DocumentBuilder, KeepsTheLookOfARowThatItRefiles) {
    const BuiltDocument built(
        rowWith("(rb=gold)|(rtb=thin)|(rbb=thick)|(rlb=hair)|(rrb=normal)|"
                "(row-key=7)"));
    EXPECT_EQ(built.row("7")->BackColor(), eGold);
    EXPECT_EQ(bordersOf(built.row("7")), (std::vector<std::int32_t>{10, 30, 5, 20}));
    EXPECT_EQ(built.cell()->BackColor(), eGold);
    EXPECT_EQ(bordersOf(built.cell()), (std::vector<std::int32_t>{10, 30, 5, 20}));
}

TEST(DocumentBuilder, RefilesACellUnderItsKey) {
    const BuiltDocument built(cellWith("(cell-key=9)"));
    EXPECT_EQ(built.row()->TableCells()->Count(), 1);
    EXPECT_EQ(built.para("3001", "9")->Text(), "x");
    EXPECT_EQ(errorOf([&] { built.cell("2001"); }).number, 5);
}

TEST(DocumentBuilder, KeepsGroundBordersAndWidthOfACellThatItRefiles) {
    const BuiltDocument built(
        "(doc|(r|(rtb=thin)|(c|(cb=gold)|(cbb=thick)|(clb=hair)|(crb=normal)|(cell-key=9)|(cw=30)|"
        "c)|(c|c)|r)|doc)");
    EXPECT_EQ(built.cell("9")->BackColor(), eGold);
    EXPECT_EQ(bordersOf(built.cell("9")), (std::vector<std::int32_t>{10, 30, 5, 20}));
    EXPECT_EQ(widthsOf(built), (std::vector<std::int32_t>{2652, 6188}));
}

TEST(DocumentBuilder, KeepsTheEvenWidthOfACellThatItRefiles) {
    const BuiltDocument built("(doc|(r|(c|c)|(c|(cell-key=9)|c)|(c|c)|r)|doc)");
    EXPECT_EQ(widthsOf(built), (std::vector<std::int32_t>{2947, 2947, 2947}));
    EXPECT_EQ(built.row()->TableCells()->indexOf(built.cell("9").get()), 2);
}

TEST(DocumentBuilder, KeepsAWidthThatANeighborSetForACellThatItRefiles) {
    const BuiltDocument built("(doc|(r|(c|(cw=25)|c)|(c|(cell-key=9)|c)|r)|doc)");
    EXPECT_EQ(widthsOf(built), (std::vector<std::int32_t>{2210, 6630}));
}

// Of a cell's keys only the alignment sorts before the key and is not copied.
TEST(DocumentBuilder, LosesTheAlignmentOfACellThatItRefiles) {
    const BuiltDocument built(cellWith("(ca=right)|(cell-key=9)"));
    EXPECT_EQ(built.cell("9")->Align(), eNoDefault);
}

TEST(DocumentBuilder, AppliesTheKeysAfterTheKeyToTheRefiledCell) {
    const BuiltDocument built(
        "(doc|(r|(c|(cell-key=9)|(clb=hair)|(cmf=AB)|(crb=thin)|(cs=box)|"
        "(ctb=thick)|(cw=50)|c)|(c|c)|r)|doc)");
    EXPECT_EQ(bordersOf(built.cell("9")), (std::vector<std::int32_t>{30, -1, 5, 10}));
    EXPECT_EQ(built.cell("9")->Style(), "box");
    EXPECT_EQ(built.cell("9")->Width(ePercent), 50);
    EXPECT_THAT(tableOf(built), testing::HasSubstr("\\txfielddata 4142}"));
}

TEST(DocumentBuilder, AppliesTheBordersAfterTheKeyToTheRefiledRow) {
    const BuiltDocument built(rowWith("(rlb=hair)|(rrb=thin)|(rtb=thick)|(row-key=7)"));
    EXPECT_EQ(bordersOf(built.row("7")), (std::vector<std::int32_t>{30, -1, 5, 10}));
    EXPECT_EQ(bordersOf(built.cell()), (std::vector<std::int32_t>{30, -1, 5, 10}));
}

TEST(DocumentBuilder, RefilesAParagraphUnderItsKeyWithTextAndStyle) {
    const BuiltDocument built(paraWith("(pt=x)|(ps=s)|(para-key=4)"));
    EXPECT_EQ(built.cell()->Paragraphs()->Count(), 1);
    EXPECT_EQ(built.para("4")->Text(), "x");
    EXPECT_EQ(built.para("4")->Style(), "s");
    EXPECT_EQ(errorOf([&] { built.para("3001"); }).number, 5);
}

TEST(DocumentBuilder, LosesTheAlignmentOfAParagraphThatItRefiles) {
    EXPECT_EQ(BuiltDocument(paraWith("(pa=right)|(para-key=4)")).para("4")->Align(), eNoDefault);
}

TEST(DocumentBuilder, AppliesTheMarkedFieldToTheRefiledParagraph) {
    EXPECT_THAT(tableOf(BuiltDocument(paraWith("(pmf=AB)|(para-key=4)"))),
                testing::HasSubstr("\\txfielddata 4142}"));
}

TEST(DocumentBuilder, LosesTheWhiteOfAParagraphThatItRefilesInADarkCell) {
    const BuiltDocument built(cellWith("(cb=navy-blue)|(p|(pt=x)|(para-key=4)|p)|(p|(pt=y)|p)"));
    EXPECT_EQ(built.para(1)->ForeColor(), eNoColor);
    EXPECT_EQ(built.para(2)->ForeColor(), eWhite);
}

TEST(DocumentBuilder, KeepsTheWhiteOfTheParagraphsOfACellThatItRefiles) {
    const BuiltDocument built(cellWith("(cb=navy-blue)|(cell-key=9)"));
    EXPECT_EQ(built.para()->ForeColor(), eWhite);
}

TEST(DocumentBuilder, RefilesARowWhereItStands) {
    const BuiltDocument built(
        "(doc|(r|(rb=red)|r)|(r|(rb=gold)|(row-key=7)|r)|(r|(rb=blue)|r)|"
        "doc)");
    EXPECT_EQ(built.row(1)->BackColor(), eRed);
    EXPECT_EQ(built.row(2).get(), built.row("7").get());
    EXPECT_EQ(built.row(2)->BackColor(), eGold);
    EXPECT_EQ(built.row(3).get(), built.row("1003").get());
    EXPECT_EQ(built.rows()->Count(), 3);
}

TEST(DocumentBuilder, RefilesAParagraphWhereItStands) {
    const BuiltDocument built(
        "(doc|(r|(c|(p|(pt=a)|p)|(p|(pt=b)|(para-key=4)|p)|(p|(pt=c)|p)|c)|"
        "r)|doc)");
    EXPECT_EQ(built.para(1)->Text(), "a");
    EXPECT_EQ(built.para(2).get(), built.para("4").get());
    EXPECT_EQ(built.para(2)->Text(), "b");
    EXPECT_EQ(built.para(3).get(), built.para("3003").get());
}

TEST(DocumentBuilder, RefilesEveryEntryOnTheWayDown) {
    const BuiltDocument built(
        "(doc|(r|(row-key=1)|(c|(cell-key=2)|(p|(para-key=3)|(pt=x)|p)|c)|r)|"
        "doc)");
    EXPECT_EQ(built.para("3", "2", "1")->Text(), "x");
    EXPECT_EQ(built.para("3", "2", "1")->Parent()->Parent().get(), built.row("1").get());
}

// The first row refuses its marked field, and the observer looks at the second row.
TEST(DocumentBuilder, TakesCellsAndParagraphsOfARefiledRowAsTheObjectsTheyAre) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    const Ref<CRtfDoc> document = driver->RtfObject();
    Ref<CRtfTableRow> oldRow;
    Ref<CRtfTableCell> oldCell;
    Ref<CRtfParagraph> oldParagraph;
    driver->setAbsorbedErrorObserver([&](const AbsorbedError&) {
        oldRow = document->TableRows()->Item("1002");
        oldCell = oldRow->TableCells()->Item("2002");
        oldParagraph = oldCell->Paragraphs()->Item("3001");
    });
    driver->ParseFromMemmory(
        lines("(doc|(r|(c|(cmf=1)|c)|r)|(r|(row-key=7)|(c|(p|(pt=x)|p)|c)|r)|doc)"));

    const Ref<CRtfTableRow> newRow = document->TableRows()->Item("7");
    EXPECT_NE(newRow.get(), oldRow.get());
    EXPECT_EQ(newRow->TableCells()->Item("2002").get(), oldCell.get());
    EXPECT_EQ(oldCell->Parent().get(), newRow.get());
    EXPECT_EQ(oldCell->Paragraphs()->Item("3001").get(), oldParagraph.get());
    EXPECT_EQ(oldParagraph->Text(), "x");
    EXPECT_EQ(oldRow->TableCells()->Count(), 0);
}

TEST(DocumentBuilder, TakesTheParagraphsOfARefiledCellAsTheObjectsTheyAre) {
    FakePlatform platform;
    const Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    const Ref<CRtfDoc> document = driver->RtfObject();
    Ref<CRtfTableCell> oldCell;
    Ref<CRtfParagraph> oldParagraph;
    driver->setAbsorbedErrorObserver([&](const AbsorbedError&) {
        oldCell = document->TableRows()->Item(1)->TableCells()->Item("2002");
        oldParagraph = oldCell->Paragraphs()->Item("3001");
    });
    driver->ParseFromMemmory(
        lines("(doc|(r|(c|(cmf=1)|c)|(c|(cell-key=9)|(p|(pt=x)|p)|c)|r)|doc)"));

    const Ref<CRtfTableCell> newCell = document->TableRows()->Item(1)->TableCells()->Item("9");
    EXPECT_NE(newCell.get(), oldCell.get());
    EXPECT_EQ(newCell->Paragraphs()->Item("3001").get(), oldParagraph.get());
    EXPECT_EQ(oldParagraph->Parent().get(), newCell.get());
    EXPECT_EQ(oldCell->Paragraphs()->Count(), 0);
}

TEST(DocumentBuilder, FilesUnderANumberInItsShortestForm) {
    EXPECT_EQ(BuiltDocument(rowWith("(row-key=007)")).row("7")->BackColor(), eNoColor);
    EXPECT_EQ(BuiltDocument(rowWith("(row-key=1.50)")).row("1.5")->BackColor(), eNoColor);
    EXPECT_EQ(BuiltDocument(cellWith("(cell-key=1e20)")).cell("1e+20")->Style(), "");
    EXPECT_EQ(BuiltDocument(paraWith("(para-key=-0)")).para("0")->Style(), "");
}

TEST(DocumentBuilder, FilesUnderATextAsItIs) {
    EXPECT_EQ(BuiltDocument(rowWith("(row-key=Head Row)")).row("head row")->BackColor(), eNoColor);
    EXPECT_EQ(BuiltDocument(rowWith("(row-key=)")).row("")->BackColor(), eNoColor);
}

TEST(DocumentBuilder, RefusesTheOwnNumberAsAKey) {
    EXPECT_THAT(errorsOf(rowWith("(row-key=1001)")), ElementsAre(duplicateKey(3)));
    EXPECT_THAT(errorsOf(cellWith("(cell-key=2001)")), ElementsAre(duplicateKey(4)));
    EXPECT_THAT(errorsOf(paraWith("(para-key=3001)")), ElementsAre(duplicateKey(5)));
}

TEST(DocumentBuilder, RefusesAKeyThatAnotherEntryHas) {
    EXPECT_THAT(errorsOf("(doc|(r|(row-key=1002)|r)|(r|r)|doc)"), ElementsAre(duplicateKey(3)));
    EXPECT_THAT(errorsOf("(doc|(r|(row-key=7)|r)|(r|(row-key=7.0)|r)|doc)"),
                ElementsAre(duplicateKey(6)));
    EXPECT_THAT(errorsOf("(doc|(r|(row-key=a)|r)|(r|(row-key=A)|r)|doc)"),
                ElementsAre(duplicateKey(6)));
    EXPECT_THAT(errorsOf("(doc|(r|(c|(cell-key=2002)|c)|(c|c)|r)|doc)"),
                ElementsAre(duplicateKey(4)));
    EXPECT_THAT(errorsOf("(doc|(r|(c|(p|(para-key=3002)|p)|(p|p)|c)|r)|doc)"),
                ElementsAre(duplicateKey(5)));
}

TEST(DocumentBuilder, TakesAKeyThatAnotherEntryGaveUp) {
    const BuiltDocument built(
        "(doc|(r|(rb=red)|(row-key=7)|r)|(r|(rb=gold)|(row-key=1001)|r)|doc)");
    EXPECT_EQ(built.row("7")->BackColor(), eRed);
    EXPECT_EQ(built.row("1001")->BackColor(), eGold);
}

TEST(DocumentBuilder, TakesTheSameKeyInDifferentRowsAndCells) {
    const BuiltDocument built(
        "(doc|(r|(c|(cell-key=1)|(p|(para-key=1)|(pt=a)|p)|c)|r)|"
        "(r|(c|(cell-key=1)|(p|(para-key=1)|(pt=b)|p)|c)|r)|doc)");
    EXPECT_EQ(built.para("1", "1", 1)->Text(), "a");
    EXPECT_EQ(built.para("1", "1", 2)->Text(), "b");
}

TEST(DocumentBuilder, LeavesAnEntryWhereItWasWhenItsKeyIsRefused) {
    const ParsedDescription parsed(
        lines("(doc|(r|(rb=gold)|(row-key=1002)|(rtb=thin)|(c|c)|r)|(r|(rb=red)|r)|doc)"));
    EXPECT_THAT(parsed.errors, ElementsAre(duplicateKey(4)));
    EXPECT_EQ(parsed.row("1001").get(), parsed.row(1).get());
    EXPECT_EQ(parsed.row(1)->BackColor(), eGold);
    EXPECT_EQ(parsed.row(1)->TopBorder(), eNone);
    EXPECT_EQ(parsed.row(1)->TableCells()->Count(), 1);
    EXPECT_EQ(parsed.row(2)->BackColor(), eNoColor);
}

TEST(DocumentBuilder, RendersRowsWithAllTheirKeys) {
    const BuiltDocument built(
        "(doc|(r|(rb=silver)|(rtb=thin)|(rbb=thin)|(rlb=thin)|(rrb=thin)|(c|(ca=right)|(p|(pt=a)|"
        "(ps=s)|p)|c)|(c|(cw=25)|(p|(pt=b)|(pa=justified)|p)|(p|(pt=c)|p)|c)|r)|(r|(c|c)|r)|doc)");
    EXPECT_EQ(
        tableOf(built),
        "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 "
        "\\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10"
        "\\clbrdrt\\brdrs\\brdrw10\\clcbpat32\\cellx6630 "
        "\\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10"
        "\\clbrdrt\\brdrs\\brdrw10\\clcbpat32\\cellx8840 "
        "\r\n\r\n\r\n\\pard\\plain\\intbl \\qr a\\cell "
        "\r\n\r\n\r\n\\pard\\plain\\intbl \\qj b\r\n\r\n\\par\\pard\\plain\\intbl c\\cell\\row}"
        "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8840 \r\n\\cell\\row}");
}

}  // namespace
}  // namespace quorvane
