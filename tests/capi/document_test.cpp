#include <gtest/gtest.h>
#include <quorvane.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "quorvane/quorvane.h"
#include "tests/capi/support.h"

namespace quorvane::capi {
namespace {

constexpr const char* styles =
    "; quorvane 2\n"
    "{ name: normal; style-def: paragraph; size: 10pt }\n"
    "{ name: head; style-def: paragraph; bold }\n"
    "{ name: strong; style-def: character; bold }\n"
    "{ name: shaded; style-def: cell; background: silver }\n";

std::string bytesOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string rtfOf(const DocumentHandle& document) {
    return textOf([&](char** bytes, size_t* length) {
        return quorvane_document_rtf(document.get(), bytes, length);
    });
}

std::string errorOf(const DocumentHandle& document) {
    return errorText(quorvane_document_error(document.get()));
}

const char* identifierOf(const DocumentHandle& document) {
    return quorvane_document_error(document.get())->identifier;
}

/// A document with one row of two cells.
DocumentHandle smallDocument() {
    DocumentHandle document = newDocument();
    const char* const texts[] = {"a", "b"};
    quorvane_document_add_row(document.get(), texts, nullptr, 2, nullptr, 0, nullptr);
    return document;
}

TEST(Document, WritesTheBytesOfTheCppLibrary) {
    const DocumentHandle c = newDocument();
    quorvane_document* const d = c.get();
    Document cpp;

    EXPECT_EQ(quorvane_document_set_stylesheet(d, QUORVANE_TEXT(styles)), QUORVANE_OK);
    cpp.setStyleSheet(styles);
    EXPECT_EQ(quorvane_document_set_page(d, QUORVANE_TEXT("a5-landscape")), QUORVANE_OK);
    cpp.setPage("a5-landscape");
    EXPECT_EQ(quorvane_document_set_margin(d, QUORVANE_LEFT | QUORVANE_RIGHT, QUORVANE_TEXT("1cm")),
              QUORVANE_OK);
    EXPECT_EQ(quorvane_document_set_margin(d, QUORVANE_TOP, QUORVANE_TEXT("2cm")), QUORVANE_OK);
    cpp.setMargins({.left = "1cm", .right = "1cm", .top = "2cm"});
    EXPECT_EQ(quorvane_document_set_first_page(d, 7), QUORVANE_OK);
    cpp.setPageNumberStart(7);
    EXPECT_EQ(quorvane_document_set_columns(d, QUORVANE_TEXT("20%, 3cm auto")), QUORVANE_OK);
    cpp.setColumns({20, "3cm", "auto"});
    EXPECT_EQ(
        quorvane_document_set_header(d, QUORVANE_TEXT("l"), QUORVANE_TEXT("c"), QUORVANE_TEXT("r")),
        QUORVANE_OK);
    cpp.setHeader({"l", "c", "r"});
    EXPECT_EQ(quorvane_document_set_footer(d, nullptr, 0, QUORVANE_TEXT("{page}"), nullptr, 0),
              QUORVANE_OK);
    cpp.setFooter({"", "{page}", ""});
    EXPECT_EQ(quorvane_document_set_heading_form(d, QUORVANE_HEADING_IN_TABLE), QUORVANE_OK);
    cpp.setHeadingForm(HeadingForm::RowProperty);

    const char* const texts[] = {"No.", "Article {blue}", "Price and more"};
    const size_t lengths[] = {QUORVANE_NUL_TERMINATED, QUORVANE_NUL_TERMINATED, 5};
    size_t row = 9;
    EXPECT_EQ(quorvane_document_add_row(d, texts, lengths, 3, QUORVANE_TEXT("head"), &row),
              QUORVANE_OK);
    EXPECT_EQ(row, 0U);
    EXPECT_EQ(quorvane_row_set_heading(d, 0, 1), QUORVANE_OK);
    EXPECT_EQ(quorvane_row_set_background(d, 0, QUORVANE_TEXT("#dde7f0")), QUORVANE_OK);
    EXPECT_EQ(quorvane_row_set_border(d, 0, QUORVANE_TOP | QUORVANE_BOTTOM, QUORVANE_BORDER_THIN),
              QUORVANE_OK);
    cpp.addRow({"No.", "Article {blue}", "Price"}, "head")
        .setHeading()
        .setBackColor("#dde7f0")
        .setTopBorder(eThin)
        .setBottomBorder(eThin);

    const std::string joined(
        "1\0Vase\0"
        "2\0"
        "2\0Shelf\0"
        "3\0",
        19);
    EXPECT_EQ(
        quorvane_document_add_rows(d, joined.data(), joined.size(), 3, 2, QUORVANE_TEXT("normal")),
        QUORVANE_OK);
    cpp.addRow({"1", "Vase", "2"}, "normal");
    cpp.addRow({"2", "Shelf", "3"}, "normal");
    EXPECT_EQ(quorvane_row_set_keep(d, 1, 1), QUORVANE_OK);
    EXPECT_EQ(quorvane_row_set_keep_with_next(d, 1, 1), QUORVANE_OK);
    EXPECT_EQ(quorvane_row_set_page_break(d, 2, 1), QUORVANE_OK);
    cpp[1].setKeep().setKeepWithNext();
    cpp[2].setPageBreak();

    EXPECT_EQ(quorvane_cell_set_style(d, 1, 1, QUORVANE_TEXT("shaded")), QUORVANE_OK);
    EXPECT_EQ(quorvane_cell_set_align(d, 1, 2, QUORVANE_ALIGN_RIGHT), QUORVANE_OK);
    EXPECT_EQ(quorvane_cell_set_background(d, 1, 0, QUORVANE_TEXT("light-yellow")), QUORVANE_OK);
    EXPECT_EQ(quorvane_cell_set_border(d, 1, 0, QUORVANE_ALL_SIDES, QUORVANE_BORDER_THICK),
              QUORVANE_OK);
    EXPECT_EQ(quorvane_cell_set_marked_field(d, 1, 2, QUORVANE_TEXT("data")), QUORVANE_OK);
    cpp[1][1].setStyle("shaded");
    cpp[1][2].setAlign(eRight);
    cpp[1][0].setBackColor("light-yellow");
    cpp[1][0].setBorders(eThick);
    cpp[1][2].setMarkedField("data");

    EXPECT_EQ(quorvane_document_insert_row(d, QUORVANE_AT_END, &row), QUORVANE_OK);
    EXPECT_EQ(row, 3U);
    EXPECT_EQ(quorvane_row_set_columns(d, 3, QUORVANE_TEXT("50 50")), QUORVANE_OK);
    size_t cell = 9;
    EXPECT_EQ(quorvane_row_insert_cell(d, 3, QUORVANE_AT_END, QUORVANE_TEXT("Total "),
                                       QUORVANE_TEXT("head"), &cell),
              QUORVANE_OK);
    EXPECT_EQ(cell, 0U);
    EXPECT_EQ(quorvane_cell_set_span(d, 3, 0, 2, 1), QUORVANE_OK);
    EXPECT_EQ(quorvane_paragraph_add_text(d, 3, 0, 0, QUORVANE_TEXT("12"),
                                          QUORVANE_BOLD | QUORVANE_ITALIC | QUORVANE_UNDERLINED),
              QUORVANE_OK);
    EXPECT_EQ(quorvane_paragraph_add_styled_text(d, 3, 0, 0, QUORVANE_TEXT(".50"),
                                                 QUORVANE_TEXT("strong")),
              QUORVANE_OK);
    EXPECT_EQ(quorvane_paragraph_add_rtf(d, 3, 0, 0, QUORVANE_TEXT("\\emdash ")), QUORVANE_OK);
    size_t paragraph = 9;
    EXPECT_EQ(quorvane_cell_insert_paragraph(d, 3, 0, QUORVANE_AT_END, QUORVANE_TEXT("second"),
                                             QUORVANE_TEXT("normal"), &paragraph),
              QUORVANE_OK);
    EXPECT_EQ(paragraph, 1U);
    EXPECT_EQ(quorvane_paragraph_set_text(d, 3, 0, 1, QUORVANE_TEXT("changed")), QUORVANE_OK);
    EXPECT_EQ(quorvane_paragraph_set_style(d, 3, 0, 1, QUORVANE_TEXT("head")), QUORVANE_OK);
    EXPECT_EQ(quorvane_paragraph_set_color(d, 3, 0, 1, QUORVANE_TEXT("red")), QUORVANE_OK);
    EXPECT_EQ(quorvane_paragraph_set_align(d, 3, 0, 1, QUORVANE_ALIGN_CENTER), QUORVANE_OK);
    EXPECT_EQ(quorvane_paragraph_set_marked_field(d, 3, 0, 1, QUORVANE_TEXT("more")), QUORVANE_OK);
    const std::string logo = std::string(QUORVANE_EXAMPLES_FOLDER) + "/parts-logo.png";
    EXPECT_EQ(quorvane_paragraph_set_picture_file(d, 3, 0, 1, logo.data(), logo.size(),
                                                  QUORVANE_TEXT("2cm"), nullptr, 0),
              QUORVANE_OK);
    const Row last = cpp.addRow().setColumns({50, 50});
    const Cell total = last.addCell("Total ", "head").setSpan(2).setVspan(1);
    total[0].addText(bold(italic(underlined("12"))));
    total[0].addText(styled("strong", ".50"));
    total[0].addText(rtf("\\emdash "));
    total.addParagraph("second", "normal")
        .setText("changed")
        .setStyle("head")
        .setColor("red")
        .setAlign(eCentered)
        .setMarkedField("more")
        .setPicture(Picture::fromFile(logo, {.width = "2cm"}));

    EXPECT_EQ(rtfOf(c), cpp.rtf());
    EXPECT_NE(rtfOf(c), "<none>");
}

TEST(Document, InsertsAndRemovesParts) {
    const DocumentHandle document = smallDocument();
    size_t index = 9;
    EXPECT_EQ(quorvane_document_insert_row(document.get(), 0, &index), QUORVANE_OK);
    EXPECT_EQ(index, 0U);
    EXPECT_EQ(quorvane_row_insert_cell(document.get(), 1, 1, QUORVANE_TEXT("between"), nullptr, 0,
                                       &index),
              QUORVANE_OK);
    EXPECT_EQ(index, 1U);
    EXPECT_EQ(quorvane_row_insert_cell(document.get(), 1, 0, nullptr, 0, nullptr, 0, nullptr),
              QUORVANE_OK);
    EXPECT_EQ(quorvane_cell_insert_paragraph(document.get(), 1, 1, 0, QUORVANE_TEXT("first"),
                                             nullptr, 0, nullptr),
              QUORVANE_OK);
    size_t count = 9;
    EXPECT_EQ(quorvane_document_count_rows(document.get(), &count), QUORVANE_OK);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(quorvane_row_count_cells(document.get(), 1, &count), QUORVANE_OK);
    EXPECT_EQ(count, 4U);
    EXPECT_EQ(quorvane_cell_count_paragraphs(document.get(), 1, 0, &count), QUORVANE_OK);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(quorvane_cell_count_paragraphs(document.get(), 1, 1, &count), QUORVANE_OK);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(quorvane_cell_remove_paragraph(document.get(), 1, 1, 0), QUORVANE_OK);
    EXPECT_EQ(quorvane_row_remove_cell(document.get(), 1, 2), QUORVANE_OK);
    EXPECT_EQ(quorvane_row_remove_cell(document.get(), 1, 0), QUORVANE_OK);
    EXPECT_EQ(quorvane_document_remove_row(document.get(), 0), QUORVANE_OK);
    EXPECT_EQ(rtfOf(document), rtfOf(smallDocument()));
}

TEST(Document, ReturnsTheTextOfAParagraph) {
    const DocumentHandle document = smallDocument();
    quorvane_paragraph_set_text(document.get(), 0, 1, 0, QUORVANE_TEXT("{b}"));
    EXPECT_EQ(textOf([&](char** bytes, size_t* length) {
                  return quorvane_paragraph_rtf(document.get(), 0, 1, 0, bytes, length);
              }),
              "\\{b\\}");
}

TEST(Document, ShowsPicturesOfBytesAndRemovesThem) {
    const DocumentHandle document = smallDocument();
    const std::string before = rtfOf(document);
    const std::string logo = bytesOf(std::string(QUORVANE_EXAMPLES_FOLDER) + "/parts-logo.png");
    EXPECT_EQ(quorvane_paragraph_set_picture(document.get(), 0, 0, 0, logo.data(), logo.size(),
                                             nullptr, 0, QUORVANE_TEXT("1cm")),
              QUORVANE_OK);
    EXPECT_NE(rtfOf(document).find("\\pict"), std::string::npos);
    EXPECT_EQ(
        quorvane_paragraph_set_picture(document.get(), 0, 0, 0, nullptr, 0, nullptr, 0, nullptr, 0),
        QUORVANE_OK);
    EXPECT_EQ(rtfOf(document), before);
}

TEST(Document, ReportsAPictureThatIsNone) {
    const DocumentHandle document = smallDocument();
    EXPECT_EQ(quorvane_paragraph_set_picture(document.get(), 0, 0, 0, QUORVANE_TEXT("text"),
                                             nullptr, 0, nullptr, 0),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(quorvane_paragraph_set_picture_file(
                  document.get(), 0, 0, 0, QUORVANE_TEXT("missing.png"), nullptr, 0, nullptr, 0),
              QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(document), "missing.png: unreadable-file: " + noFile);
}

TEST(Document, WritesThroughACallbackThatCanStop) {
    const DocumentHandle document = smallDocument();
    Received received;
    EXPECT_EQ(quorvane_document_write(document.get(), Received::write, &received), QUORVANE_OK);
    EXPECT_EQ(received.bytes, rtfOf(document));
    received.calls = 0;
    received.result = 5;
    EXPECT_EQ(quorvane_document_write(document.get(), Received::write, &received),
              QUORVANE_STOPPED);
    EXPECT_EQ(received.calls, 1);
}

TEST(Document, SavesAFile) {
    const DocumentHandle document = smallDocument();
    const std::string path = ::testing::TempDir() + "/quorvane-saved.rtf";
    EXPECT_EQ(quorvane_document_save(document.get(), path.data(), path.size()), QUORVANE_OK);
    EXPECT_EQ(bytesOf(path), rtfOf(document));
    std::filesystem::remove(path);
    EXPECT_EQ(quorvane_document_save(document.get(), QUORVANE_TEXT("/missing/a.rtf")),
              QUORVANE_FILE_ERROR);
    EXPECT_EQ(errorOf(document), "/missing/a.rtf: unwritable-file: " + noFolder);
    EXPECT_EQ(quorvane_document_error_text(document.get()), "/missing/a.rtf: " + noFolder);
}

TEST(Document, ReportsValuesThatAreNone) {
    const DocumentHandle document = smallDocument();
    quorvane_document* const d = document.get();
    const quorvane_status wrong = QUORVANE_WRONG_CONTENT;
    EXPECT_EQ(quorvane_document_set_page(d, QUORVANE_TEXT("a44")), wrong);
    EXPECT_STREQ(identifierOf(document), "wrong-value");
    EXPECT_EQ(quorvane_document_set_page_size(d, QUORVANE_TEXT("10cm"), QUORVANE_TEXT("long")),
              wrong);
    EXPECT_EQ(quorvane_document_set_margin(d, QUORVANE_LEFT, QUORVANE_TEXT("wide")), wrong);
    EXPECT_EQ(quorvane_document_set_first_page(d, 0), wrong);
    EXPECT_EQ(quorvane_document_set_columns(d, QUORVANE_TEXT("20 wide")), wrong);
    EXPECT_EQ(quorvane_document_set_header(d, QUORVANE_TEXT("{"), nullptr, 0, nullptr, 0), wrong);
    EXPECT_EQ(quorvane_document_set_footer(d, QUORVANE_TEXT("{"), nullptr, 0, nullptr, 0), wrong);
    EXPECT_EQ(quorvane_document_set_stylesheet(d, QUORVANE_TEXT("{ name: a; color: }\n{")), wrong);
    EXPECT_EQ(quorvane_row_set_columns(d, 0, QUORVANE_TEXT("-1")), wrong);
    EXPECT_EQ(quorvane_row_set_background(d, 0, QUORVANE_TEXT("pinkish")), wrong);
    EXPECT_EQ(quorvane_cell_set_background(d, 0, 0, QUORVANE_TEXT("pinkish")), wrong);
    EXPECT_EQ(quorvane_paragraph_set_color(d, 0, 0, 0, QUORVANE_TEXT("pinkish")), wrong);
    EXPECT_EQ(quorvane_cell_set_span(d, 0, 0, 0, 1), wrong);
    EXPECT_EQ(quorvane_cell_set_span(d, 0, 0, 2, 0), wrong);
    EXPECT_EQ(quorvane_cell_set_marked_field(d, 0, 0, QUORVANE_TEXT("\xC5\x99")), wrong);
    EXPECT_EQ(quorvane_paragraph_set_marked_field(d, 0, 0, 0, QUORVANE_TEXT("\xC5\x99")), wrong);
    EXPECT_EQ(quorvane_paragraph_set_text(d, 0, 0, 0, QUORVANE_TEXT("\xE9")), wrong);
    EXPECT_EQ(quorvane_paragraph_add_text(d, 0, 0, 0, QUORVANE_TEXT("\x01"), 0), wrong);
    EXPECT_EQ(quorvane_paragraph_add_rtf(d, 0, 0, 0, QUORVANE_TEXT("\\cell")), wrong);
    EXPECT_EQ(rtfOf(document), rtfOf(smallDocument()));
}

TEST(Document, ReportsStylesThatTheStylesheetLacks) {
    const DocumentHandle document = smallDocument();
    quorvane_document* const d = document.get();
    quorvane_document_set_stylesheet(d, QUORVANE_TEXT(styles));
    const std::string before = rtfOf(document);
    const char* const texts[] = {"c"};
    size_t row = 9;
    EXPECT_EQ(quorvane_document_add_row(d, texts, nullptr, 1, QUORVANE_TEXT("none"), &row),
              QUORVANE_WRONG_CONTENT);
    EXPECT_STREQ(identifierOf(document), "undefined-style");
    EXPECT_EQ(quorvane_cell_set_style(d, 0, 0, QUORVANE_TEXT("none")), QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(quorvane_paragraph_set_style(d, 0, 0, 0, QUORVANE_TEXT("none")),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(
        quorvane_paragraph_add_styled_text(d, 0, 0, 0, QUORVANE_TEXT("a"), QUORVANE_TEXT("none")),
        QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(quorvane_row_insert_cell(d, 0, 0, QUORVANE_TEXT("a"), QUORVANE_TEXT("none"), nullptr),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(quorvane_cell_insert_paragraph(d, 0, 0, 0, QUORVANE_TEXT("a"), QUORVANE_TEXT("none"),
                                             nullptr),
              QUORVANE_WRONG_CONTENT);
    EXPECT_EQ(rtfOf(document), before);
}

TEST(Document, ReportsWhatCannotBeRendered) {
    const DocumentHandle document = smallDocument();
    quorvane_document_set_columns(document.get(), QUORVANE_TEXT("50"));
    EXPECT_EQ(rtfOf(document), "<none>");
    EXPECT_STREQ(identifierOf(document), "wrong-document");
    EXPECT_EQ(quorvane_document_save(document.get(), QUORVANE_TEXT("unwritten.rtf")),
              QUORVANE_WRONG_CONTENT);
    EXPECT_FALSE(std::filesystem::exists("unwritten.rtf"));
    quorvane_document_set_columns(document.get(), nullptr, 0);
    EXPECT_EQ(rtfOf(document), rtfOf(smallDocument()));
}

TEST(Document, RefusesIndexesThatDoNotExist) {
    const DocumentHandle document = smallDocument();
    quorvane_document* const d = document.get();
    const quorvane_status wrong = QUORVANE_WRONG_CALL;
    size_t count = 9;
    EXPECT_EQ(quorvane_document_remove_row(d, 1), wrong);
    EXPECT_STREQ(identifierOf(document), "wrong-call");
    EXPECT_EQ(quorvane_document_insert_row(d, 2, nullptr), wrong);
    EXPECT_EQ(quorvane_row_set_heading(d, QUORVANE_AT_END, 1), wrong);
    EXPECT_EQ(quorvane_row_count_cells(d, 1, &count), wrong);
    EXPECT_EQ(quorvane_row_insert_cell(d, 0, 3, nullptr, 0, nullptr, 0, nullptr), wrong);
    EXPECT_EQ(quorvane_row_remove_cell(d, 0, 2), wrong);
    EXPECT_EQ(quorvane_cell_set_align(d, 0, 2, QUORVANE_ALIGN_LEFT), wrong);
    EXPECT_EQ(quorvane_cell_insert_paragraph(d, 0, 0, 2, nullptr, 0, nullptr, 0, nullptr), wrong);
    EXPECT_EQ(quorvane_cell_remove_paragraph(d, 0, 0, 1), wrong);
    EXPECT_EQ(quorvane_paragraph_set_text(d, 0, 0, 1, QUORVANE_TEXT("a")), wrong);
}

TEST(Document, RefusesWrongArguments) {
    const DocumentHandle document = smallDocument();
    quorvane_document* const d = document.get();
    const quorvane_status wrong = QUORVANE_WRONG_CALL;
    EXPECT_EQ(quorvane_document_new(nullptr), wrong);
    EXPECT_EQ(quorvane_document_set_margin(d, 0, QUORVANE_TEXT("1cm")), wrong);
    EXPECT_EQ(quorvane_document_set_margin(d, 16, QUORVANE_TEXT("1cm")), wrong);
    EXPECT_EQ(quorvane_document_set_heading_form(d, 2), wrong);
    EXPECT_EQ(quorvane_document_add_row(d, nullptr, nullptr, 1, nullptr, 0, nullptr), wrong);
    EXPECT_EQ(quorvane_document_add_rows(d, QUORVANE_TEXT("a"), 1, 1, nullptr, 0), wrong);
    EXPECT_EQ(quorvane_document_count_rows(d, nullptr), wrong);
    EXPECT_EQ(quorvane_document_rtf(d, nullptr, nullptr), wrong);
    EXPECT_EQ(quorvane_document_write(d, nullptr, nullptr), wrong);
    EXPECT_EQ(quorvane_row_set_border(d, 0, QUORVANE_LEFT, 0), wrong);
    EXPECT_EQ(quorvane_row_count_cells(d, 0, nullptr), wrong);
    EXPECT_EQ(quorvane_cell_set_align(d, 0, 0, 5), wrong);
    EXPECT_EQ(quorvane_cell_set_border(d, 0, 0, 0, QUORVANE_BORDER_THIN), wrong);
    EXPECT_EQ(quorvane_cell_count_paragraphs(d, 0, 0, nullptr), wrong);
    EXPECT_EQ(quorvane_paragraph_set_align(d, 0, 0, 0, -1), wrong);
    EXPECT_EQ(quorvane_paragraph_add_text(d, 0, 0, 0, QUORVANE_TEXT("a"), 8), wrong);
    EXPECT_EQ(quorvane_paragraph_rtf(d, 0, 0, 0, nullptr, nullptr), wrong);
    EXPECT_EQ(rtfOf(document), rtfOf(smallDocument()));
}

}  // namespace
}  // namespace quorvane::capi
