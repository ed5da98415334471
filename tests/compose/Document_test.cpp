#include "quorvane/compose/Document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <ranges>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "tests/compose/described.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

static_assert(std::ranges::random_access_range<Rows> && std::ranges::sized_range<Rows>);
static_assert(std::ranges::random_access_range<Cells> && std::ranges::view<Cells>);
static_assert(std::ranges::random_access_range<Paragraphs> &&
              std::ranges::borrowed_range<Paragraphs>);
static_assert(!std::is_copy_constructible_v<Document> &&
              std::is_nothrow_move_constructible_v<Document>);
static_assert(std::is_copy_constructible_v<Row> && std::is_nothrow_move_constructible_v<Cell>);

constexpr std::string_view styles =
    "; quorvane 2\n"
    "{ name: normal; style-def: s; font: Arial; size: 10pt }\n"
    "{ name: heading; style-def: s; bold; color: #1f4e79; based-on: normal }\n"
    "{ name: strong; style-def: cs; bold }\n"
    "{ name: em; style-def: cs; italic }\n"
    "{ name: marked; style-def: cell; background: light-yellow }\n";

template <class Action>
std::string errorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.identifier() + ": " + error.message();
    }
    return "no error";
}

std::vector<std::string> textsOf(const Row& row) {
    std::vector<std::string> texts;
    for (const Cell cell : row.cells()) {
        for (const Paragraph paragraph : cell.paragraphs()) {
            texts.push_back(paragraph.rtf());
        }
    }
    return texts;
}

std::string cellEdges(Document& document) {
    std::string edges;
    const std::string rtf = document.rtf();
    for (std::size_t at = rtf.find("\\cellx"); at != std::string::npos;
         at = rtf.find("\\cellx", at + 1)) {
        edges += rtf.substr(at + 6, rtf.find_first_not_of("0123456789", at + 6) - at - 6) + " ";
    }
    return edges;
}

class DocumentTest : public testing::Test {
protected:
    Document document;
};

TEST_F(DocumentTest, WritesARowOfTextsAsItsDescription) {
    document.addRow({"Article", "Price"});
    document.addRow({"Vase {blue} \\ <b=1>", "12.50 €"});
    EXPECT_EQ(document.rtf(),
              described("(row\n(cell\n(para\n(pt=Article)\npara)\ncell)\n"
                        "(cell\n(para\n(pt=Price)\npara)\ncell)\nrow)\n"
                        "(row\n(cell\n(para\n(pt=Vase {blue} \\ <b=1>)\npara)\ncell)\n"
                        "(cell\n(para\n(pt=12.50 €)\npara)\ncell)\nrow)\n"));
}

TEST_F(DocumentTest, WritesTheseBytesForOneCell) {
    document.addRow({"a"});
    EXPECT_THAT(document.rtf(),
                testing::EndsWith("\\trleft0 \\cellx8504 \r\n\r\n\r\n\\pard\\plain\\intbl a\\cell"
                                  "\\row}\\pard\\plain\\sl-20\\slmult0\\fs2\\par}"));
}

TEST_F(DocumentTest, WritesWhatItsObjectModelWrites) {
    document.addRow({"a", "b"}).setBorders(eThin);
    document.addRow({"c", "d"});
    EXPECT_EQ(document.rtf(), codePage1252FromUtf8(document.native()->Contents()));
}

TEST_F(DocumentTest, WithoutRowsIsWhatADocumentWithoutRowsIs) {
    const Ref<CRtfDoc> empty = CRtfDoc::create();
    empty->setPageWidth(11906);
    empty->setPageHeight(16838);
    empty->setPageNumberStart(1);
    empty->setEndsInSmallParagraph(true);
    EXPECT_EQ(document.rtf(), empty->Contents());
}

TEST_F(DocumentTest, WritesARowWithoutCells) {
    document.addRow();
    EXPECT_THAT(document.rtf(), HasSubstr("\\trleft0\\row}"));
}

TEST_F(DocumentTest, ShowsBlanksLineBreaksTabsAndAnyCharacter) {
    document.addRow({"a  b\r\nc\td", "ř 😀"});
    EXPECT_THAT(textsOf(document[0]),
                ElementsAre("a {} b\\line c\\tab d", "{\\uc1\\u345?} {\\uc1\\u-10179?\\u-8704?}"));
}

TEST_F(DocumentTest, RefusesATextThatNoDocumentCanShowAndAddsNothing) {
    EXPECT_EQ(errorOf([&] {
                  document.addRow({"a", "b\x01"});
              }),
              "wrong-value: No document can show the control character U+0001 (byte 2)");
    EXPECT_EQ(document.size(), 0U);
    const Row row = document.addRow({"a"});
    EXPECT_EQ(errorOf([&] {
                  row.addCells({"b", "\xFF"});
              }),
              "wrong-value: Byte FF is not UTF-8 (byte 1)");
    EXPECT_EQ(row.size(), 1U);
    EXPECT_THAT(errorOf([&] { row[0].addParagraph("\xC3"); }), HasSubstr("not UTF-8"));
    EXPECT_EQ(row[0].size(), 1U);
}

TEST_F(DocumentTest, TakesTextsOfAnyKind) {
    const std::vector<std::string> strings = {"a", "b"};
    const std::vector<std::string_view> views = {"c"};
    const std::vector<Text> texts = {"d", bold("e")};
    document.addRow(strings);
    document.addRow(views);
    document.addRow(texts);
    const char* const none = nullptr;
    document.addRow({strings[0], views[0], none, "x" + bold("y")});
    EXPECT_THAT(textsOf(document[0]), ElementsAre("a", "b"));
    EXPECT_THAT(textsOf(document[1]), ElementsAre("c"));
    EXPECT_THAT(textsOf(document[2]), ElementsAre("d", "{\\b e}"));
    EXPECT_THAT(textsOf(document[3]), ElementsAre("a", "c", "", "x{\\b y}"));
}

TEST_F(DocumentTest, WritesStyledTextsAsInlineStyles) {
    document.setStyleSheet(styles);
    document.addRow({"Total " + styled("strong", "12 " + styled("em", "net")) + " < 13"}, "normal");
    EXPECT_EQ(document.rtf(),
              described("(row\n(cell\n(para\n(pt=Total <strong=12 <em=net>> < 13)\n(ps=normal)\n"
                        "para)\ncell)\nrow)\n",
                        styles));
}

TEST_F(DocumentTest, WritesRawRtfAsItsDescription) {
    document.addRow({rtf("\\b\\fs28") + "{Total} ř"});
    EXPECT_EQ(document.rtf(), described("(row\n(cell\n(para\n(rtf=\\b\\fs28)\n(pt={Total} ř)\n"
                                        "para)\ncell)\nrow)\n"));
}

TEST_F(DocumentTest, RefusesRawRtfThatCouldChangeTheDocument) {
    EXPECT_EQ(errorOf([&] { document.addRow({rtf("\\cell")}); }),
              "wrong-value: \"\\cell\" cannot stand here; write words that format text.");
    EXPECT_THAT(errorOf([&] { document.addRow({rtf("{\\b a")}); }), HasSubstr("write }"));
    EXPECT_EQ(document.size(), 0U);
}

TEST_F(DocumentTest, RefusesStylesThatTheStylesheetLacks) {
    const Row row = document.addRow({"a"}, "anything");
    document.setStyleSheet(styles);
    EXPECT_EQ(errorOf([&] { document.addRow({"a"}, "odd"); }),
              "undefined-style: The stylesheet has no paragraph style odd.");
    EXPECT_EQ(errorOf([&] { row[0].setStyle("normal"); }),
              "undefined-style: The stylesheet has no cell style normal.");
    EXPECT_EQ(errorOf([&] { row[0][0].setText(styled("marked", "x")); }),
              "undefined-style: The stylesheet has no character style marked.");
    EXPECT_EQ(document.size(), 1U);
    EXPECT_EQ(row[0][0].style(), "anything");
}

TEST_F(DocumentTest, LooksUpNamesAgainInAnotherStylesheet) {
    document.setStyleSheet("{ name: a; style-def: s; format: \\b }");
    const Row row = document.addRow({"x"}, "a");
    document.setStyleSheet("{ name: b; style-def: s; format: \\b }");
    EXPECT_THAT(errorOf([&] { row[0][0].setStyle("a"); }), HasSubstr("no paragraph style a"));
}

TEST_F(DocumentTest, KeepsTheStylesheetWhenAnotherOneIsWrong) {
    document.setStyleSheet(styles);
    try {
        document.setStyleSheet("{ name: a; style-def: s; format: \\b }\n{ name b }");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.line(), 2);
        EXPECT_FALSE(error.diagnostics().empty());
        EXPECT_THAT(error.what(), testing::StartsWith("line 2:"));
    }
    document.addRow({"x"}, "heading");
    EXPECT_TRUE(document.native()->StyleSheetOk());
}

TEST_F(DocumentTest, RefusesAStylesheetWithCharactersThatWouldBeLost) {
    EXPECT_THAT(errorOf([&] { document.setStyleSheet("{ name: ř; style-def: s; format: \\b }"); }),
                testing::StartsWith("unencodable-style"));
    EXPECT_THAT(errorOf([&] { document.setStyleSheet("{ name: \xFF }"); }), HasSubstr("not UTF-8"));
}

TEST_F(DocumentTest, WritesPageAndColumnsAsTheirDescription) {
    document.setColumns({15, "55%", "3cm"});
    document.setMargins({.left = "2cm", .right = 1134, .top = "1in", .bottom = 0});
    document.setPage("a5-landscape");
    document.setPageNumberStart(3);
    document.addRow({"a", "b", "c"});
    EXPECT_EQ(document.rtf(),
              described("(page=a5-landscape)\n(left-margin=2cm)\n(right-margin=1134)\n"
                        "(top-margin=1in)\n(bottom-margin=0)\n(page-number-start=3)\n"
                        "(columns=15 55% 3cm)\n"
                        "(row\n(cell\n(para\n(pt=a)\npara)\ncell)\n(cell\n(para\n(pt=b)\npara)\n"
                        "cell)\n(cell\n(para\n(pt=c)\npara)\ncell)\nrow)\n"));
}

TEST_F(DocumentTest, WritesAPageOfAnySize) {
    document.setPage("20cm", 14000);
    EXPECT_THAT(document.rtf(), HasSubstr("\\paperw11339\\paperh14000"));
}

TEST_F(DocumentTest, FitsColumnsAndPageInAnyOrder) {
    document.addRow({"a", "b"});
    document.addRow({"c", "d", "e"}).setColumns({10, "auto", "auto"});
    document.addRow({"f", "g"}).setColumns({20});
    document[2].setColumns({});
    document.setColumns({50, 50});
    document.setPage(12000, 16000);
    document.setMargins({.left = 1000, .right = 1000});
    EXPECT_EQ(cellEdges(document), "5000 10000 1000 5500 10000 5000 10000 ");
    document.setPage(7000, 16000);
    EXPECT_EQ(cellEdges(document), "2500 5000 500 2750 5000 2500 5000 ");
}

TEST_F(DocumentTest, SharesTheTextAreaEvenlyWithoutColumns) {
    const Row row = document.addRow({"a", "b", "c", "d"});
    document.setPage(12000, 16000);
    document.setMargins({.left = 1000, .right = 1000});
    EXPECT_EQ(cellEdges(document), "2500 5000 7500 10000 ");
    row[1].remove();
    row[0].remove();
    EXPECT_EQ(cellEdges(document), "5000 10000 ");
}

TEST_F(DocumentTest, RefusesNumbersAndTextsThatMeanNothing) {
    EXPECT_THAT(errorOf([&] { document.setPage("a44"); }), HasSubstr("\"a44\" is not a page"));
    EXPECT_THAT(errorOf([&] { document.setPage(0, 100); }), HasSubstr("too little"));
    EXPECT_THAT(errorOf([&] { document.setPage(100, 99999); }), HasSubstr("too much"));
    EXPECT_THAT(errorOf([&] { document.setMargins({.left = -1}); }), HasSubstr("0 or more"));
    EXPECT_THAT(errorOf([&] { document.setMargins({.left = "2 miles"}); }),
                HasSubstr("\"2 miles\" is not a length"));
    EXPECT_THAT(errorOf([&] { document.setPageNumberStart(0); }), HasSubstr("from 1 to 32767"));
    EXPECT_THAT(errorOf([&] { document.setColumns({-5}); }), HasSubstr("width of a column"));
    EXPECT_THAT(errorOf([&] { document.setColumns({"wide"}); }), HasSubstr("width of a column"));
    EXPECT_THAT(errorOf([&] { Width::twips(0); }), HasSubstr("width of a column"));
    EXPECT_THAT(errorOf([&] { Color("crimson"); }), HasSubstr("\"crimson\" is not a color"));
    EXPECT_THAT(errorOf([&] { Color("#12345"); }), HasSubstr("six hexadecimal digits"));
    EXPECT_THAT(errorOf([&] { Color::rgb(0, 256, 0); }), HasSubstr("from 0 to 255, not 256"));
    EXPECT_THAT(errorOf([&] { Color(static_cast<tColorIndex>(58)); }), HasSubstr("\"58\""));
    EXPECT_THAT(errorOf([&] { document.addFont("a;b"); }), testing::StartsWith("wrong-value"));
    EXPECT_THAT(errorOf([&] { document.setHeader({.left = "{pge}"}); }),
                testing::StartsWith("wrong-value"));
    EXPECT_EQ(document.rtf(), Document().rtf());
}

TEST_F(DocumentTest, NamesWhatDoesNotFitWhenItIsRendered) {
    document.addRow({"a", "b"});
    document.setColumns({60, 60});
    EXPECT_THAT(errorOf([&] { document.rtf(); }), HasSubstr("120 %"));
    document.setColumns({60});
    EXPECT_THAT(errorOf([&] { document.rtf(); }), testing::StartsWith("wrong-document: "));
    document.setColumns({});
    document.setMargins({.left = "15cm", .right = "15cm"});
    EXPECT_EQ(errorOf([&] { document.rtf(); }),
              "wrong-value: The margins leave no room on the page; make them smaller.");
    EXPECT_THAT(errorOf([&] { document.native(); }), HasSubstr("The margins leave no room"));
    document.setMargins({});
    EXPECT_EQ(cellEdges(document), "4252 8504 ");
}

TEST_F(DocumentTest, WritesHeadersFootersAndHeadingsAsTheirDescription) {
    document.setHeader({.left = "Novák & Söhne", .right = "€"});
    document.setFooter({.center = "{page} / {pages}"});
    document.setHeadingForm(HeadingForm::RowProperty);
    document.addRow({"a"}).setHeading().setKeep();
    document.addRow({"b"}).setKeepWithNext();
    document.addRow({"c"}).setPageBreak();
    const auto row = [](const std::string& keys, const std::string& text) {
        return "(row\n" + keys + "(cell\n(para\n(pt=" + text + ")\npara)\ncell)\nrow)\n";
    };
    EXPECT_EQ(
        document.rtf(),
        described("(header=Novák & Söhne||€)\n(footer=|{page} / {pages})\n(heading=trhdr)\n" +
                  row("(row-heading=yes)\n(row-keep=yes)\n", "a") +
                  row("(row-keep-with-next=yes)\n", "b") + row("(row-page-break=yes)\n", "c")));
    EXPECT_TRUE(document[0].isHeading() && document[0].keeps());
    EXPECT_TRUE(document[1].keepsWithNext() && document[2].breaksPage());
    EXPECT_FALSE(document[1].isHeading() || document[1].keeps() || document[1].breaksPage());
}

TEST_F(DocumentTest, WritesAHeadingInThePageHeaderAsItsDescription) {
    document.setColumns({40, 60});
    document.addRow({"a", "b"}).setHeading();
    document.addRow({"c", "d"});
    const std::string rows =
        "(row\n(row-heading=yes)\n(cell\n(para\n(pt=a)\npara)\ncell)\n(cell\n(para\n(pt=b)\npara)\n"
        "cell)\nrow)\n"
        "(row\n(cell\n(para\n(pt=c)\npara)\ncell)\n(cell\n(para\n(pt=d)\npara)\ncell)\nrow)\n";
    EXPECT_EQ(document.rtf(), described("(columns=40 60)\n" + rows));
}

TEST_F(DocumentTest, WritesColorsBordersAndAlignmentsAsTheirDescription) {
    document.setStyleSheet(styles);
    Row row = document.addRow();
    row.setBackColor("navy-blue").setBorders(eThin);
    row.addCell("a", "heading").setAlign(eRight);
    row.addCell("b").setBackColor("#dce6f1").setTopBorder(eThick);
    row.addCell("c")[0].setAlign(eCentered);
    document.addRow({"d"})[0].setStyle("marked").setBorders(eHair);
    EXPECT_EQ(
        document.rtf(),
        described("(row\n(row-backcolor=navy-blue)\n(row-top-border=thin)\n(row-bottom-border=thin)"
                  "\n(row-left-border=thin)\n"
                  "(row-right-border=thin)\n"
                  "(cell\n(ca=right)\n(para\n(pt=a)\n(ps=heading)\npara)\ncell)\n"
                  "(cell\n(cb=#dce6f1)\n(cell-top-border=thick)\n(para\n(pt=b)\npara)\ncell)\n"
                  "(cell\n(para\n(pt=c)\n(pa=centered)\npara)\ncell)\nrow)\n"
                  "(row\n(cell\n(cs=marked)\n(cell-top-border=hair)\n(cell-bottom-border=hair)\n("
                  "cell-left-border=hair)\n(cell-right-border=hair)\n"
                  "(para\n(pt=d)\npara)\ncell)\nrow)\n",
                  styles));
    EXPECT_EQ(row.backColor(), eNavyBlue);
    EXPECT_EQ(row.leftBorder(), eThin);
    EXPECT_EQ(row[1].topBorder(), eThick);
    EXPECT_EQ(row[1].rightBorder(), eThin);
    EXPECT_EQ(row[0].align(), eRight);
    EXPECT_EQ(row[0][0].color(), eWhite);
}

TEST_F(DocumentTest, GivesALaterCellTheBordersAndTheBackgroundOfItsRow) {
    Document other;
    document.addRow().setBorders(eThick).setBackColor(eBlue).addCells({"a", "b"});
    other.addRow({"a", "b"}).setBackColor(eBlue).setBorders(eThick);
    EXPECT_EQ(document.rtf(), other.rtf());
}

TEST_F(DocumentTest, RendersAnAlignmentThatIsSetAfterARendering) {
    const Row row = document.addRow({"a"});
    document.rtf();
    row[0].setAlign(eRight);
    EXPECT_THAT(document.rtf(), HasSubstr("\\qr a"));
    const std::string before = document.native()->Contents();
    row[0][0].setMarkedField("note");
    EXPECT_NE(document.native()->Contents(), before);
}

TEST_F(DocumentTest, WritesSpansAsTheirDescription) {
    document.setColumns({20, 40, 40});
    Row first = document.addRow({"2026", "Spring"});
    first[0].setVspan(2);
    first[1].setSpan(2);
    document.addRow({"March", "April"});
    const auto cell = [](const std::string& keys, const std::string& text) {
        return "(cell\n" + keys + "(para\n(pt=" + text + ")\npara)\ncell)\n";
    };
    EXPECT_EQ(document.rtf(), described("(columns=20 40 40)\n(row\n" + cell("(vspan=2)\n", "2026") +
                                        cell("(span=2)\n", "Spring") + "row)\n(row\n" +
                                        cell("", "March") + cell("", "April") + "row)\n"));
    EXPECT_EQ(first[0].vspan(), 2);
    EXPECT_EQ(first[1].span(), 2);
    EXPECT_THAT(errorOf([&] { first[0].setSpan(64); }), HasSubstr("from 1 to 63"));
    EXPECT_THAT(errorOf([&] { first[0].setVspan(0); }), HasSubstr("\"0\""));
}

TEST_F(DocumentTest, WritesPicturesAsTheirDescription) {
    Row row = document.addRow();
    row.addCell().addParagraph(Picture(logoPng(), {.height = "15mm"}));
    row.addCell("b")[0].setPicture(Picture(logoPng()));
    EXPECT_EQ(document.rtf(),
              described("(row\n(cell\n(para\n(picture=a.png)\n(picture-height=15mm)\npara)\ncell)\n"
                        "(cell\n(para\n(pt=b)\n(picture=a.png)\npara)\ncell)\nrow)\n"));
    EXPECT_TRUE(row[1][0].hasPicture());
    EXPECT_FALSE(row[1][0].removePicture().hasPicture());
}

TEST_F(DocumentTest, RefusesWhatIsNotAPicture) {
    EXPECT_THAT(errorOf([] { Picture("GIF89a"); }), testing::StartsWith("wrong-value"));
    EXPECT_THAT(errorOf([] { Picture(logoPng(), {.width = -1}); }),
                testing::StartsWith("wrong-value"));
    FakePlatform platform;
    platform.files["a.png"] = "text";
    try {
        Picture::fromFile("a.png", {}, platform);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.file(), "a.png");
        EXPECT_THAT(error.what(), testing::StartsWith("a.png: "));
    }
    EXPECT_THAT(errorOf([&] { Picture::fromFile("b.png", {}, platform); }),
                testing::StartsWith("unreadable-file"));
}

TEST_F(DocumentTest, WritesMarkedFieldsAsTheirDescription) {
    const Row row = document.addRow({"a"});
    row[0].setMarkedField("item é");
    row[0][0].setMarkedField(4711);
    EXPECT_EQ(document.rtf(), described("(row\n(cell\n(cmf=item é)\n(para\n(pt=a)\n(pmf=4711)\n"
                                        "para)\ncell)\nrow)\n"));
    EXPECT_EQ(errorOf([&] { row[0].setMarkedField("ř"); }),
              "unencodable-value: ř is not in Windows-1252; the data of a marked field can only "
              "have characters of it.");
    EXPECT_THAT(errorOf([&] { row[0][0].setMarkedField("\x01"); }),
                testing::StartsWith("unencodable-value"));
}

TEST_F(DocumentTest, InsertsAndRemovesRowsCellsAndParagraphs) {
    document.addRow({"a", "c"});
    document.addRow({"e"});
    document[0].insertCell(1, "b");
    document[0].insertCell(3).addParagraph("d2");
    document[0][3].insertParagraph(0, "d1");
    document.insertRow(1).addCells({"x"});
    EXPECT_THAT(textsOf(document[0]), ElementsAre("a", "b", "c", "d1", "d2"));
    EXPECT_THAT(textsOf(document[1]), ElementsAre("x"));
    document[0][3][0].remove();
    document[0][1].remove();
    document[1].remove();
    EXPECT_THAT(textsOf(document[0]), ElementsAre("a", "c", "d2"));
    EXPECT_EQ(document.size(), 2U);
    EXPECT_EQ(document[1].index(), 1U);
    EXPECT_EQ(document[0][2].index(), 2U);
    EXPECT_EQ(document[0][2][0].index(), 0U);
}

TEST_F(DocumentTest, RefusesIndexesThatDoNotExist) {
    EXPECT_EQ(errorOf([&] { document[0]; }),
              "wrong-call: There is no index 0, as there are 0 rows, cells or paragraphs.");
    document.addRow({"a"});
    EXPECT_THAT(errorOf([&] { document[1]; }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { document[0][1]; }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { document[0][0][1]; }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { document.insertRow(2); }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { document[0].insertCell(2); }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { document.rows().begin()[-1]; }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { Document().rows().front(); }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { Document().rows().back(); }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(errorOf([&] { document.row("no"); }),
                testing::StrEq("wrong-call: There is no key \"no\"."));
}

TEST_F(DocumentTest, ChangesATextAndRemovesIt) {
    const Paragraph paragraph = document.addRow({"a"})[0][0];
    paragraph.addText(" b").addText(bold("c"));
    EXPECT_EQ(paragraph.rtf(), "a b{\\b c}");
    paragraph.addText(rtf(" "));
    paragraph.setText("");
    EXPECT_EQ(paragraph.rtf(), "");
    EXPECT_EQ(paragraph.setColor("red").color(), eRed);
    EXPECT_EQ(paragraph.setAlign(eJustified).align(), eJustified);
}

TEST(Handles, KeepARowThatIsRemoved) {
    Document document;
    const Row row = document.addRow({"a"});
    const Cell cell = row[0];
    row.setColumns({50});
    row.remove();
    row.addCell("b").setAlign(eRight);
    EXPECT_THAT(textsOf(row), ElementsAre("a", "b"));
    EXPECT_EQ(document.rtf(), Document().rtf());
    EXPECT_EQ(errorOf([&] { row.remove(); }),
              "wrong-call: This row, cell or paragraph was removed before.");
    EXPECT_THAT(errorOf([&] { row.index(); }), testing::StartsWith("wrong-call"));
    EXPECT_EQ(cell.index(), 0U);
    EXPECT_EQ(cell.row(), row);
}

TEST(Handles, KeepTheRowOfACellAndTheCellOfAParagraph) {
    Document document;
    const Paragraph paragraph = document.addRow({"a"})[0][0];
    document[0].remove();
    EXPECT_EQ(paragraph.cell().row().size(), 1U);
    paragraph.setText("b");
    paragraph.cell().addParagraph("c").setStyle("any");
    EXPECT_THAT(textsOf(paragraph.cell().row()), ElementsAre("b", "c"));
    const Cell cell = paragraph.cell();
    cell.remove();
    EXPECT_THAT(errorOf([&] { cell.index(); }), testing::StartsWith("wrong-call"));
    paragraph.remove();
    EXPECT_THAT(errorOf([&] { paragraph.remove(); }), testing::StartsWith("wrong-call"));
    EXPECT_EQ(paragraph.setText("d").rtf(), "d");
}

TEST(Handles, OutliveTheirDocument) {
    Row row;
    Rows rows = Document().rows();
    {
        Document document;
        row = document.addRow({"a"});
        rows = document.rows();
    }
    row.addCell("b");
    EXPECT_THAT(textsOf(rows[0]), ElementsAre("a", "b"));
    EXPECT_EQ(row.index(), 0U);
}

TEST(Handles, FollowADocumentThatIsMoved) {
    Document first;
    const Row row = first.addRow({"a"});
    Document second = std::move(first);
    row.addCell("b");
    EXPECT_THAT(textsOf(second[0]), ElementsAre("a", "b"));
    EXPECT_EQ(second[0], row);
    first = std::move(second);
    EXPECT_EQ(first.size(), 1U);
}

TEST(Handles, ToNothingAreErrors) {
    const std::string error =
        "wrong-call: This is a handle to nothing, or a document that was moved from.";
    EXPECT_EQ(errorOf([] { Row().addCell("a"); }), error);
    EXPECT_EQ(errorOf([] { Row().setColumns({50}); }), error);
    EXPECT_EQ(errorOf([] { Row().index(); }), error);
    EXPECT_EQ(errorOf([] { Row().remove(); }), error);
    EXPECT_EQ(errorOf([] { Row().setKeep(); }), error);
    EXPECT_EQ(errorOf([] { Row().setBackColor(eRed); }), error);
    EXPECT_EQ(errorOf([] { Cell().addParagraph("a"); }), error);
    EXPECT_EQ(errorOf([] { Cell().setMarkedField("a"); }), error);
    EXPECT_EQ(errorOf([] { Cell().row().size(); }), error);
    EXPECT_EQ(errorOf([] { Cell().index(); }), error);
    EXPECT_EQ(errorOf([] { Cell().setStyle("a"); }), error);
    EXPECT_EQ(errorOf([] { Paragraph().setText("a"); }), error);
    EXPECT_EQ(errorOf([] { Paragraph().addText("a"); }), error);
    EXPECT_EQ(errorOf([] { Paragraph().cell(); }), error);
    EXPECT_EQ(errorOf([] { Paragraph().index(); }), error);
    EXPECT_EQ(errorOf([] { *Rows::iterator(); }), error);
    Document document;
    const Document moved = std::move(document);
    EXPECT_EQ(errorOf([&] { document.rtf(); }), error);          // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(errorOf([&] { document.addRow({"a"}); }), error);  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(errorOf([&] { document.rows().size(); }), error);  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(errorOf([&] { document.setPage("a4"); }), error);  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(errorOf([&] { document.save("never.rtf"); }),
              error);  // NOLINT(bugprone-use-after-move)
}

// Before version 16, clang cannot compile the views of this standard library.
#if !defined(__clang__) || __clang_major__ >= 16
TEST(Ranges, CanBeFilteredAndReversed) {
    Document document;
    document.addRow({"a", "b", "c", "d"});
    for (const Cell cell : document[0].cells() | std::views::drop(1) | std::views::reverse) {
        cell.addParagraph("x");
    }
    EXPECT_THAT(textsOf(document[0]), ElementsAre("a", "b", "x", "c", "x", "d", "x"));
}
#endif

TEST(Ranges, CanBeSearched) {
    Document document;
    document.addRow({"a", "b", "c", "d"});
    document[0].cells()[1].addParagraph("x");
    const Cells cells = document[0].cells();
    const auto found =
        std::ranges::find_if(cells, [](const Cell& cell) { return cell.size() > 1; });
    EXPECT_EQ(found - cells.begin(), 1);
    EXPECT_EQ(found->index(), 1U);
    EXPECT_EQ(std::ranges::distance(cells), 4);
    EXPECT_LT(cells.begin(), found);
    EXPECT_EQ((1 + cells.begin())[1], cells[2]);
    auto next = cells.end();
    EXPECT_EQ(*--next, cells.back());
    EXPECT_EQ((next--)->index(), 3U);
    EXPECT_EQ((next++)->index(), 2U);
}

TEST(Ranges, CanChangeWhileTheyAreWalked) {
    Document document;
    document.addRow({"a"});
    document.addRow({"b"});
    Rows::iterator at = document.rows().begin() + 1;
    document[0].remove();
    EXPECT_THAT(errorOf([&] { *at; }), testing::StartsWith("wrong-call"));
    EXPECT_THAT(textsOf(*--at), ElementsAre("b"));
}

TEST(NativeDocuments, CanBeTakenAndChanged) {
    const Ref<CRtfDoc> native = CRtfDoc::create();
    native->TableRows()->AddTail(Value("first"));
    Document document(native);
    document.row("first").addCell("a");
    EXPECT_EQ(document.native(), native);
    EXPECT_EQ(document[0].native(), native->TableRows()->Item(1));
    EXPECT_EQ(document[0][0].native()->Paragraphs()->Item(1), document[0][0][0].native());
    EXPECT_EQ(document.rtf(), native->Contents());
}

TEST(NativeDocuments, KeepTheWidthsOfTheirCellsUntilAPageIsSet) {
    const Ref<CRtfDoc> native = CRtfDoc::create();
    Document document(native);
    document.addRow({"a", "b"});
    native->TableRows()->Item(1)->TableCells()->Item(1)->setWidth(eTwips, 1000);
    EXPECT_EQ(cellEdges(document), "1000 8840 ");
    document.setPage(native->PageWidth(), 16000);
    EXPECT_EQ(cellEdges(document), "4420 8840 ");
}

TEST(Writing, PutsTheSameBytesIntoAStringAStreamAndAFile) {
    FakePlatform platform;
    Document document(platform);
    for (int i = 0; i < 1000; ++i) {
        document.addRow({std::to_string(i), "é € ř"});
    }
    std::ostringstream stream;
    document.write(stream);
    document.save("a.rtf");
    EXPECT_EQ(stream.str(), document.rtf());
    EXPECT_EQ(platform.files["a.rtf"], document.rtf());
    EXPECT_GT(stream.str().size(), 100000U);
}

TEST(Writing, ReportsAStreamThatFails) {
    Document document;
    document.addRow({"a"});
    std::ofstream closed;
    EXPECT_EQ(errorOf([&] { document.write(closed); }),
              "unwritable-file: The stream cannot be written.");
    std::ofstream throwing;
    throwing.exceptions(std::ios::badbit);
    EXPECT_THROW(document.write(throwing), std::ios_base::failure);
    document.addRow({"b"});
    EXPECT_THAT(document.rtf(), HasSubstr(" b\\cell"));
}

TEST(Writing, LeavesTheFileThatIsThereWhenTheDocumentIsWrong) {
    FakePlatform platform;
    platform.files["a.rtf"] = "before";
    Document document(platform);
    document.addRow({"a", "b"});
    document.setColumns({50});
    EXPECT_THAT(errorOf([&] { document.save("a.rtf"); }), testing::StartsWith("wrong-document"));
    EXPECT_EQ(platform.files["a.rtf"], "before");
}

TEST(Writing, NamesTheFileAndTheReasonOfTheSystem) {
    Document document;
    try {
        document.save("/no/such/folder/a.rtf");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.file(), "/no/such/folder/a.rtf");
        EXPECT_EQ(error.identifier(), "unwritable-file");
        EXPECT_STREQ(error.what(), "/no/such/folder/a.rtf: No such file or directory");
    }
}

TEST(Writing, ReadsAStylesheetFileInEitherEncoding) {
    FakePlatform platform;
    platform.files["a.rtfss"] = "{ name: n\xE9; style-def: s; format: \\b }";
    platform.files["b.rtfss"] = "{ name: n\xC3\xA9; style-def: s; format: \\b }";
    for (const char* const name : {"a.rtfss", "b.rtfss"}) {
        Document document(platform);
        document.setStyleSheetFile(name);
        document.addRow({"x"}, "né");
        EXPECT_THAT(document.rtf(), HasSubstr("\\s100\\b x"));
    }
    Document document(platform);
    EXPECT_THAT(errorOf([&] { document.setStyleSheetFile("c.rtfss"); }),
                testing::StartsWith("unreadable-file"));
}

}  // namespace
}  // namespace quorvane
