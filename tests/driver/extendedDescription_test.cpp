#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/driver/CRtfDriver.h"
#include "tests/driver/ParsedDescription.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// What a driver makes of a description in the extended language; its lines are written with "|"
/// between them, after the line with the mark.
class Extended {
public:
    explicit Extended(const std::string& text, const std::string& styleSheet = {}) {
        driver->setReadsExtended(true);
        if (!styleSheet.empty()) {
            driver->LoadStyleSheetFromMemmory(styleSheet);
        }
        driver->setNotifyErrorHandler([this](CRtfDriver&, const RtfError& error) {
            errors.push_back(std::to_string(error.line) + ": " + error.description);
        });
        driver->ParseFromMemmory(lines("; quorvane 2|" + text));
    }
    Extended(const Extended&) = delete;
    Extended& operator=(const Extended&) = delete;
    ~Extended() { driver->setNotifyErrorHandler({}); }

    Ref<CRtfDoc> document() const { return driver->RtfObject(); }
    Ref<CRtfTableRow> row(std::int32_t position = 1) const {
        return document()->TableRows()->Item(position);
    }
    Ref<CRtfTableCell> cell(std::int32_t position = 1) const {
        return row()->TableCells()->Item(position);
    }
    std::string text() const { return cell()->Paragraphs()->Item(1)->Text(); }
    /// The right edges of the cells of a row.
    std::vector<std::int32_t> edges() const {
        std::vector<std::int32_t> all;
        const std::string& rtf = document()->Contents();
        constexpr std::string_view word = "\\cellx";
        for (std::size_t at = rtf.find(word); at != std::string::npos;
             at = rtf.find(word, at + 1)) {
            all.push_back(std::stoi(rtf.substr(at + word.size())));
        }
        return all;
    }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    std::vector<std::string> errors;
};

std::string docOf(const std::string& leaves, const std::string& cells = "(c|(p|(pt=x)|p)|c)") {
    return "(doc|" + (leaves.empty() ? "" : leaves + "|") + "(r|" + cells + "|r)|doc)";
}

std::string paraOf(const std::string& leaves) {
    return docOf("", "(c|(p|" + leaves + "|p)|c)");
}

std::string textOf(const std::string& value) {
    const Extended extended(paraOf("(pt=" + value + ")"));
    EXPECT_THAT(extended.errors, IsEmpty());
    return extended.text();
}

TEST(ExtendedDescription, IsReadWhenTheDriverIsToldSo) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    const std::string text = lines("; quorvane 2|" + paraOf("(pt={a})"));
    driver->ParseFromMemmory(text);
    EXPECT_EQ(driver->RtfObject()
                  ->TableRows()
                  ->Item(1)
                  ->TableCells()
                  ->Item(1)
                  ->Paragraphs()
                  ->Item(1)
                  ->Text(),
              "{a}");
    driver->setReadsExtended(true);
    driver->ParseFromMemmory(text);
    EXPECT_EQ(driver->RtfObject()
                  ->TableRows()
                  ->Item(1)
                  ->TableCells()
                  ->Item(1)
                  ->Paragraphs()
                  ->Item(1)
                  ->Text(),
              "\\{a\\}");
}

TEST(ExtendedDescription, EndsInASmallParagraph) {
    EXPECT_TRUE(Extended("(doc|(r|(c|(p|(pt=a)|p)|c)|r)|doc)").document()->EndsInSmallParagraph());
}

TEST(ExtendedDescription, IsNotReadWithoutItsFirstLine) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->setReadsExtended(true);
    driver->ParseFromMemmory(lines(paraOf("(pt={a})")));
    EXPECT_EQ(driver->RtfObject()
                  ->TableRows()
                  ->Item(1)
                  ->TableCells()
                  ->Item(1)
                  ->Paragraphs()
                  ->Item(1)
                  ->Text(),
              "{a}");
}

TEST(ExtendedDescription, ShowsTextAsItIsWritten) {
    EXPECT_EQ(textOf("Total (net); {a} \\b"), "Total (net); \\{a\\} \\\\b");
    EXPECT_EQ(textOf("a=b)c"), "a=b)c");
    EXPECT_EQ(textOf("007"), "007");
    EXPECT_EQ(textOf("\xE2\x82\xAC\xF0\x9F\x98\x80"), "{\\uc1\\u8364?\\u-10179?\\u-8704?}");
}

TEST(ExtendedDescription, ShowsTheLinesOfAValueBetweenItsMarks) {
    EXPECT_EQ(textOf("\"\"\"|  Dear customer,||  ; thank you|  \"\"\""),
              "Dear customer,\\line \\line ; thank you");
}

TEST(ExtendedDescription, TakesRawControlWordsApartFromTheText) {
    const Extended extended(paraOf("(rtf=\\b\\fs28)|(pt={x})"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_EQ(extended.text(), "\\b\\fs28 \\{x\\}");
    EXPECT_EQ(Extended(paraOf("(rtf=\\emdash)")).text(), "\\emdash ");
}

TEST(ExtendedDescription, KnowsTheInlineStylesOfTheStyleSheet) {
    const Extended extended(paraOf("(pt=<strong=a> <weak=b>)"),
                            "{name: strong; style-def: cs; format: \\b}");
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_THAT(extended.text(), HasSubstr("\\b"));
    EXPECT_THAT(extended.text(), HasSubstr("a} \\'3Cweak=b\\'3E"));
}

TEST(ExtendedDescription, ReportsAStyleThatTheStyleSheetLacks) {
    const std::string sheet = "{name: normal; style-def: s; format: \\b}";
    for (const auto& [leaf, error] :
         {std::pair("(cs=normal)|(p|(pt=a)|p)", "5: The stylesheet has no cell style normal."),
          std::pair("(p|(pt=a)|(ps=normel)|p)",
                    "7: The stylesheet has no paragraph style normel.")}) {
        const std::string text = "(doc|(r|(c|" + std::string(leaf) + "|c)|r)|doc)";
        EXPECT_THAT(Extended(text, sheet).errors, ElementsAre(error));
        EXPECT_THAT(Extended(text).errors, IsEmpty());
    }
}

TEST(ExtendedDescription, SetsThePageBeforeTheCells) {
    const Extended extended(docOf("(left-margin=2cm)|(right-margin=2cm)|(page=a4-landscape)"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_EQ(extended.document()->PageWidth(), 16838);
    EXPECT_EQ(extended.document()->PageHeight(), 11906);
    EXPECT_EQ(extended.document()->LeftMargin(), 1134);
    EXPECT_EQ(extended.document()->PageNumberStart(), 1);
    EXPECT_THAT(extended.edges(), ElementsAre(16838 - 2 * 1134));
}

TEST(ExtendedDescription, HasAPageOfA4ByDefault) {
    const Extended extended(docOf(""));
    EXPECT_EQ(extended.document()->PageWidth(), 11906);
    EXPECT_EQ(extended.document()->PageHeight(), 16838);
}

TEST(ExtendedDescription, TakesMarginsInAnyOrder) {
    const Extended extended(docOf("(page=a6)|(left-margin=5000)|(right-margin=300)"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_EQ(extended.document()->LeftMargin(), 5000);
    EXPECT_EQ(extended.document()->RightMargin(), 300);
}

constexpr const char* threeCells = "(c|(p|(pt=x)|p)|c)|(c|(p|(pt=x)|p)|c)|(c|(p|(pt=x)|p)|c)";
// Leaves 10000 twips for the text.
const std::string evenPage = "(paper-width=12000)|(left-margin=1000)|(right-margin=1000)";

TEST(ExtendedDescription, GivesTheColumnsTheirWidths) {
    EXPECT_THAT(Extended(docOf(evenPage + "|(columns=50 10 40)", threeCells)).edges(),
                ElementsAre(5000, 6000, 10000));
    EXPECT_THAT(
        Extended(docOf(evenPage, "(columns=20% 1000 30%)|" + std::string(threeCells))).errors,
        ElementsAre("7: The columns take 1050 % of the text area; make them narrower, so that "
                    "they take 100 % at most."));
}

TEST(ExtendedDescription, TakesTheWidthsOfCellsAsShares) {
    const Extended extended(
        docOf(evenPage,
              "(c|(cell-width=20)|(p|(pt=x)|p)|c)|(c|(p|(pt=x)|p)|c)|(c|(cw=2in)|(p|(pt=x)|p)"
              "|c)"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_THAT(extended.edges(), ElementsAre(2000, 7120, 10000));
}

TEST(ExtendedDescription, LetsCellsSpanColumns) {
    const Extended extended(
        docOf(evenPage + "|(columns=50 10 40)", "(c|(p|(pt=x)|p)|c)|(c|(span=2)|(p|(pt=x)|p)|c)"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_THAT(extended.edges(), ElementsAre(5000, 10000));
}

TEST(ExtendedDescription, SetsWhatRowsDoAtTheEndOfAPage) {
    const Extended extended(
        "(doc|(r|(row-heading=yes)|(row-keep=yes)|(row-keep-with-next=yes)|"
        "(c|(p|(pt=x)|p)|c)|r)|(r|(row-page-break=yes)|(c|(p|(pt=y)|p)|c)|r)|"
        "doc)");
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_TRUE(extended.row()->RepeatsAsHeading());
    EXPECT_TRUE(extended.row()->KeepTogether());
    EXPECT_TRUE(extended.row()->KeepWithNext());
    EXPECT_FALSE(extended.row()->StartsPage());
    EXPECT_TRUE(extended.row(2)->StartsPage());
}

TEST(ExtendedDescription, SetsTheHeaderAndTheFooter) {
    Extended extended(docOf(""));
    extended.driver->ParseFromMemmory(
        "; quorvane 2\n(doc\n(header=Prices)\n(footer=a | {page} of {pages} | b)\n"
        "(r\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)");
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_EQ(extended.document()->PageHeader().left, "Prices");
    EXPECT_EQ(extended.document()->PageFooter().left, "a");
    EXPECT_EQ(extended.document()->PageFooter().center, "{page} of {pages}");
    EXPECT_EQ(extended.document()->PageFooter().right, "b");
}

TEST(ExtendedDescription, KeepsTheDataOfMarkedFieldsAsItIsWritten) {
    const Extended extended(paraOf("(para-marked-field={\xC3\xA9})|(pt=x)"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_THAT(extended.document()->Contents(), HasSubstr("7BE97D"));
    EXPECT_THAT(Extended(paraOf("(para-marked-field=\xC5\x99)|(pt=x)")).errors,
                ElementsAre(testing::StartsWith("6: ")));
}

TEST(ExtendedDescription, TakesColorsByTheirComponents) {
    const Extended extended(docOf("", "(c|(cb=#123456)|(p|(pt=x)|p)|c)"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_THAT(extended.document()->Contents(), HasSubstr("\\red18\\green52\\blue86;"));
}

TEST(ExtendedDescription, TakesMarginsOfTheNamedPage) {
    const Extended extended(docOf("(left-margin=25cm)|(page=a3-landscape)"));
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_EQ(extended.document()->LeftMargin(), 14173);
}

TEST(ExtendedDescription, LetsSmallNumbersBeKeys) {
    const Extended extended(
        "(doc|(r|(row-key=2)|(c|(p|(para-key=1)|(pt=x)|p)|c)|r)|(r|(c|(p|(pt=y)|p)|c)|r)|doc)");
    EXPECT_THAT(extended.errors, IsEmpty());
}

TEST(ExtendedDescription, IsClearedBeforeTheHandlerOfItsError) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->setReadsExtended(true);
    driver->setNotifyErrorHandler([](CRtfDriver& sender, const RtfError&) {
        sender.ParseFromMemmory(lines("; quorvane 2|" + paraOf("(pt=instead)")));
    });
    driver->ParseFromMemmory(lines("; quorvane 2|" + docOf("(page=x)")));
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
    driver->setNotifyErrorHandler({});
}

TEST(ExtendedDescription, HasNoLimitOfRows) {
    std::string text = "(doc|";
    for (int i = 0; i < 1500; ++i) {
        text += "(r|(c|(p|(pt=x)|p)|c)|r)|";
    }
    const Extended extended(text + "doc)");
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_EQ(extended.document()->TableRows()->Count(), 1500);
}

TEST(ExtendedDescription, TakesAnyTextAsAKey) {
    const Extended extended("(doc|(r|(row-key=P\xC5\x99\xC3\xAD)|(c|(p|(pt=x)|p)|c)|r)|doc)");
    EXPECT_THAT(extended.errors, IsEmpty());
    EXPECT_NO_THROW(extended.document()->TableRows()->Item("P\xC5\x99\xC3\xAD"));
}

struct Wrong {
    const char* text;
    const char* error;
};

TEST(ExtendedDescription, ReportsItsFirstErrorAndBuildsNothing) {
    const Wrong all[] = {
        {"(doc|(r|(c|(p|(pt=x)|p)|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "8: A cell cannot stand in a cell; write cell) before it."},
        {"(doc|(r|(c|(p|(pt=x)|p)|c)|r)|doc)|(r|doc)",
         "11: Nothing can stand outside doc; write it before the line doc)."},
        {"(doc|(r|(c|(p|(pt=\"\"\"|x)|p)|c)|r)|doc)",
         "6: The value that begins here does not end."},
        {"(doc|(header=\"\"\"|a|\"\"\")|(r|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "3: Only the text of a paragraph can stand between \"\"\"; write the value without them, "
         "on one line."},
        {"(doc|(r|(c|(p|(pt=x) ; comment|p)|c)|r)|doc)", "6: (pt=x) ; comment has a wrong syntax"},
        {"(doc|(r ; comment|(c|(p|(pt=x)|p)|c)|r)|doc)", "3: (r ; comment has a wrong syntax"},
        {"(doc|(page=a44)|(r|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "3: \"a44\" is not a page; write one of a3, a4, a5, a6, b5, letter, legal, tabloid, "
         "executive, each also with -landscape, or use paper-width and paper-height."},
        {"(doc|(left-margin=30cm)|(r|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "3: \"30cm\" leaves no room between the margins; write less."},
        {"(doc|(r|(c|(cb=rde)|(p|(pt=x)|p)|c)|r)|doc)", "5: rde isn't a recognized color."},
        {"(doc|(r|(c|(cell-color=red)|(p|(pt=x)|p)|c)|r)|doc)",
         "5: cell-color isn't a valid keyword."},
        {"(doc|(r|(c|(p|(ps=x)|p)|c)|r)|doc)", "5: In a para group para-text is mandatory."},
        {"(doc|(r|(row-heading=maybe)|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "4: \"maybe\"; write yes or no."},
        {"(doc|(r|(c|(p|(pt=a\x01)|p)|c)|r)|doc)",
         "6: No document can show the control character U+0001 (byte 2)"},
        {"(doc|(r|(c|(p|(rtf=\\cell)|p)|c)|r)|doc)",
         "6: \"\\cell\" cannot stand here; write words that format text."},
        {"(doc|(page=a6)|(left-margin=10cm)|(r|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "4: \"10cm\" leaves no room between the margins; write less."},
        {"(doc|(paper-width=1cm)|(r|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "2: The margins leave no room on the page; make them smaller."},
        {"(doc|(r|(c|(p|(pt=\xFF)|p)|c)|r)|doc)", "6: A byte of this line is not UTF-8."},
        {"(doc|(r|(c|(p|(pt=\"\"\"a)|p)|(p|(pt=\"\"\"|b|\"\"\")|p)|c)|r)|doc)",
         "6: The value that begins here does not end."},
        {"(doc|(r|(c|(p|(rtf=})|p)|c)|r)|doc)",
         "6: \"}\" closes a group that it does not open; remove }."},
        {"(doc|(header={seite})|(r|(c|(p|(pt=x)|p)|c)|r)|doc)", "3: "},
        {"(doc|(columns=50 50)|(r|(c|(span=3)|(p|(pt=x)|p)|c)|r)|doc)", "4: Cell 1 of row 1 "},
        {"(doc|(r|(c|(p|(pt=x)|p)|c)|r)|(r|(row-heading=yes)|(c|(p|(pt=x)|p)|c)|r)|doc)",
         "10: Row 2 cannot repeat as a heading, because row 1 does not."},
        {"(doc|(columns=50 50)|(r|(c|(cw=20)|(p|(pt=x)|p)|c)|r)|doc)",
         "6: The columns give the cell its width; remove cell-width, or columns."},
    };
    for (const Wrong& wrong : all) {
        const Extended extended(wrong.text);
        ASSERT_EQ(extended.errors.size(), 1U) << wrong.text;
        EXPECT_THAT(extended.errors.front(), testing::StartsWith(wrong.error)) << wrong.text;
        EXPECT_EQ(extended.document()->TableRows()->Count(), 0) << wrong.text;
    }
}

TEST(ExtendedDescription, IsReadFromAFileInUtf8) {
    Extended extended("(doc|doc)");
    extended.platform.files["price.rtfspec"] =
        "\xEF\xBB\xBF" + lines("; quorvane 2|" + paraOf("(pt=\xC5\x99)"));
    extended.driver->ParseFile("price.rtfspec");
    EXPECT_EQ(extended.text(), "{\\uc1\\u345?}");
}

}  // namespace
}  // namespace quorvane
