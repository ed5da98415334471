// Builds an order form: orderForm FILE

#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/rtf/escape.h"

using namespace quorvane;

namespace {

// The stylesheet has one character style, so it begins with one paragraph style that nothing uses:
// no number of a style in use is shared. It has the format of "normal".
constexpr std::string_view styles = R"(
    { name: reserved; style-def: s; format: \f0\fs20\cf3 }
    { name: normal; style-def: s; format: \f0\fs20\cf3\sb40\sa40 }
    { name: title; style-def: s; format: \f0\fs40\b\cf55\sa160 }
    { name: party; style-def: s; format: \f0\fs20\cf3 }
    { name: column; style-def: s; format: \f0\fs18\b\cf3\sb60\sa60 }
    { name: total; style-def: s; format: \f0\fs22\b\cf55\sb80\sa80 }
    { name: note; style-def: s; format: \f0\fs20\cf3\sb400\sa160 }
    { name: label; style-def: cs; format: \b\cf9 }
    { name: sum; style-def: cell; format: light-yellow }
)";

struct Item {
    std::string number;
    std::string name;
    int quantity;
    int pence;
};

struct Cell {
    int percent;
    std::string text;
    std::string style = "normal";
    tCellAlign align = eNoDefault;
};

std::string money(int pence) {
    char text[32];
    std::snprintf(text, sizeof text, "%d.%02d", pence / 100, pence % 100);
    return text;
}

void addParagraph(CRtfTableCell& cell, std::string_view text, std::string_view style) {
    const auto paragraphs = cell.Paragraphs();
    paragraphs->AddTail();
    const auto paragraph = paragraphs->PeekTail();
    paragraph->setText(text);
    paragraph->setStyle(style);
}

// Adding a cell spreads the cells of the row evenly, so the widths are set when all cells are
// there. So are the borders and the background of a row, which go to the cells that the row has
// then.
Ref<CRtfTableRow> addRow(CRtfDoc& document, const std::vector<Cell>& cells) {
    document.TableRows()->AddTail();
    const auto row = document.TableRows()->PeekTail();
    const auto tableCells = row->TableCells();
    for (const Cell& cell : cells) {
        tableCells->AddTail();
        const auto tableCell = tableCells->PeekTail();
        tableCell->setAlign(cell.align);
        addParagraph(*tableCell, cell.text, cell.style);
    }
    for (std::size_t i = 0; i < cells.size(); ++i) {
        tableCells->Item(static_cast<std::int32_t>(i + 1))->setWidth(ePercent, cells[i].percent);
    }
    return row;
}

void fill(CRtfDoc& document, const std::vector<Item>& items) {
    addRow(document, {{100, "Order", "title"}});

    const auto parties = addRow(
        document, {{60, "<label=To>", "party"}, {40, "<label=Order No.> 2025-118", "party"}});
    const auto supplier = parties->TableCells()->Item(1);
    addParagraph(*supplier, rtfText("Northmoor Tea & Coffee Ltd"), "party");
    addParagraph(*supplier, "14 Quay Street, Northmoor", "party");
    const auto facts = parties->TableCells()->Item(2);
    addParagraph(*facts, "<label=Date> 18 March 2025", "party");
    addParagraph(*facts, rtfText("Café Lindqvist, Market Square 2"), "party");

    addRow(document, {{100, "Please deliver to the address above by 24 March:", "note"}});

    const auto heading = addRow(document, {{12, "No.", "column"},
                                           {45, "Article", "column"},
                                           {13, "Quantity", "column", eRight},
                                           {14, "Price", "column", eRight},
                                           {16, "Amount", "column", eRight}});
    heading->setBackColor(eSilver);
    heading->setTopBorder(eNormal);
    heading->setBottomBorder(eNormal);

    int total = 0;
    for (const Item& item : items) {
        const int amount = item.quantity * item.pence;
        total += amount;
        const auto row = addRow(document, {{12, rtfText(item.number)},
                                           {45, rtfText(item.name)},
                                           {13, std::to_string(item.quantity), "normal", eRight},
                                           {14, money(item.pence), "normal", eRight},
                                           {16, money(amount), "normal", eRight}});
        row->setBottomBorder(eHair);
        // The program that books the delivery finds the number of the item in the document.
        row->TableCells()->Item(1)->asMarkedField("item " + item.number);
    }

    const auto sum = addRow(
        document,
        {{50, "", "total"}, {30, "Total in pounds", "total"}, {20, money(total), "total", eRight}});
    for (const int position : {2, 3}) {
        const auto cell = sum->TableCells()->Item(position);
        cell->setStyle("sum");
        cell->setBottomBorder(eThick);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: orderForm FILE\n";
        return 2;
    }
    try {
        const auto document = CRtfDoc::create();
        // If the file cannot be written, Commit returns normally, and the observer is called.
        std::string failure;
        document->setAbsorbedErrorObserver(
            [&failure](const AbsorbedError& absorbed) { failure = absorbed.error.description; });

        document->setPageWidth(11906);
        document->setPageHeight(16838);
        document->setLeftMargin(1200);
        document->setRightMargin(1200);
        document->setPageNumberStart(1);
        document->LoadStyleSheetFromMemmory(styles);
        fill(*document, {{"C 101", "House blend, medium roast, 1 kg", 6, 1890},
                         {"C 120", "Decaffeinated, water process, 500 g", 4, 1320},
                         {"T 204", "Darjeeling First Flush 2025, 250 g", 2, 1980},
                         {"A 307", "Cup, porcelain, 180 ml {6 pieces}", 3, 2280}});
        document->Commit(argv[1]);
        if (!failure.empty()) {
            std::cerr << argv[1] << " is not written: " << failure << '\n';
            return 1;
        }
        return 0;
    } catch (const RtfError& error) {
        std::cerr << "error " << error.number << ": " << error.description << '\n';
        return 1;
    }
}
