// laidOutTable PNG JPEG DOCUMENT: writes a document of several pages with columns, spans, a
// heading, page header and footer, added colors and fonts, and two pictures, and prints what
// readers should find in it as JSON.

#include <fstream>
#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/rtf/escape.h"

using namespace quorvane;
using nlohmann::json;

namespace {

constexpr int rowCount = 150;
constexpr int rowThatStartsPage = 100;
const std::vector<std::int32_t> columns{1000, 4900, 900, 3000, 2600};

std::string contentsOf(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Ref<CRtfParagraph> addParagraph(CRtfTableCell& cell, const std::string& text) {
    cell.Paragraphs()->AddTail();
    const Ref<CRtfParagraph> paragraph = cell.Paragraphs()->PeekTail();
    paragraph->setText(rtfText(text));
    paragraph->setStyle("normal");
    return paragraph;
}

Ref<CRtfTableRow> addRow(CRtfDoc& document, const std::vector<std::string>& texts) {
    document.TableRows()->AddTail();
    const Ref<CRtfTableRow> row = document.TableRows()->PeekTail();
    for (const std::string& text : texts) {
        row->TableCells()->AddTail();
        addParagraph(*row->TableCells()->PeekTail(), text);
    }
    row->setTopBorder(eThin);
    row->setBottomBorder(eThin);
    row->setLeftBorder(eThin);
    row->setRightBorder(eThin);
    return row;
}

void setPage(CRtfDoc& document) {
    const std::int32_t font = document.addFont("Liberation Mono");
    document.LoadStyleSheetFromMemmory(
        "{name: normal; style-def: s; format: \\f0\\fs20}"
        "{name: footer; style-def: s; format: \\f" +
        std::to_string(font) + "\\fs16}");
    document.setPageWidth(15842);
    document.setPageHeight(12242);
    document.setPageNumberStart(1);
    document.setColumnWidths(columns);
    document.setPageHeader("Left {{1}}", "",
                           "\xC5\x81\xC3\xB3"
                           "d\xC5\xBA");
    document.setPageFooter("", "Page {page} of {pages}", "");
}

void addHeading(CRtfDoc& document) {
    const Ref<CRtfTableRow> first = addRow(document, {"HeadA", "HeadB", "HeadC"});
    first->TableCells()->Item(2)->setColumnSpan(3);
    first->setRepeatsAsHeading(true);
    addRow(document, {"SubA", "SubB", "SubC", "SubD", "SubE"})->setRepeatsAsHeading(true);
    const tColorIndex color = document.addColor(0x1F, 0x4E, 0x79);
    for (int cell = 1; cell <= 3; ++cell) {
        first->TableCells()->Item(cell)->setBackColor(color);
        first->TableCells()->Item(cell)->Paragraphs()->Item(1)->setForeColor(eWhite);
    }
}

void addRows(CRtfDoc& document) {
    for (int number = 1; number <= rowCount; ++number) {
        const std::string name = "r" + std::to_string(number);
        std::vector<std::string> texts{name, name + "b", name + "c", name + "d", name + "e"};
        // In every tenth row the fourth cell takes the next two as well.
        if (number % 10 == 2 || number % 10 == 3) {
            texts.erase(texts.begin() + 3);
        }
        const Ref<CRtfTableRow> row = addRow(document, texts);
        if (number % 10 == 1) {
            row->TableCells()->Item(4)->setRowSpan(3);
        }
        row->setKeepTogether(true);
        row->setStartsPage(number == rowThatStartsPage);
        row->setKeepWithNext(number == rowCount - 1);
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        std::cerr << "laidOutTable PNG JPEG DOCUMENT\n";
        return 2;
    }
    try {
        const Ref<CRtfDoc> document = CRtfDoc::create();
        setPage(*document);
        addHeading(*document);
        addRows(*document);
        const Ref<CRtfTableCells> cells =
            document->TableRows()->Item(rowThatStartsPage + 2)->TableCells();
        const RtfPicture png(contentsOf(arguments[1]), 2000);
        const RtfPicture jpeg(contentsOf(arguments[2]));
        cells->Item(2)->Paragraphs()->Item(1)->setPicture(png);
        cells->Item(5)->Paragraphs()->Item(1)->setPicture(jpeg);
        document->Commit(arguments[3]);
        json pictures = json::array();
        for (const RtfPicture& picture : {png, jpeg}) {
            pictures.push_back({{"width", picture.Width()}, {"height", picture.Height()}});
        }
        std::cout << json{{"columns", columns},
                          {"rows", rowCount},
                          {"rowThatStartsPage", rowThatStartsPage},
                          {"pictures", pictures}}
                  << "\n";
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
