#include "tests/com/examples/libraryDocuments.h"

#include <cstdint>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

const char* const styleSheetText = R"(
{ name: reserved; style-def: s; format: \f0\fs20\cf3 }
{ name: normal; style-def: s; format: \f0\fs20\cf3\sb60\sa60 }
{ name: title; style-def: s; format: \f9\fs44\cf24\sa120 }
{ name: facts; style-def: s; format: \f0\fs20\cf3\sb60 }
{ name: receiver; style-def: s; format: \f0\fs22\cf3\sb700 }
{ name: address; style-def: s; format: \f0\fs22\cf3 }
{ name: column; style-def: s; format: \f0\fs18\b\cf24\sb60\sa60 }
{ name: total; style-def: s; format: \f0\fs22\b\cf24\sb80\sa80 }
{ name: note; style-def: s; format: \f0\fs20\cf3\sb600\sa160 }
{ name: label; style-def: cs; format: \cf9 }
{ name: sum; style-def: cell; format: light-yellow }
)";

const char* const descriptionText = R"(
(doc
(paper-width=11906)
(paper-height=16838)
(left-margin=1533)
(right-margin=1533)
(page-number-start=1)
(row
(row-bottom-border=thick)
(cell
(para
(para-text=Reminder)
(para-style=title)
para)
cell)
row)
(row
(cell
(para
(para-text=Our invoice of 2 April 2025 is still open.)
(para-style=note)
para)
cell)
row)
(row
(row-backcolor=light-yellow)
(cell
(cell-width=75)
(para
(para-text=<label=Invoice No.> 2025-0412)
(para-style=total)
para)
cell)
(cell
(cell-alignment=right)
(para
(para-text=212.50)
(para-style=total)
para)
cell)
row)
doc)
)";

namespace {

const char* const closing =
    "Please pay the total by 2 May 2025 to account 12345678 at Castleton Bank and quote the number "
    "of the invoice. The goods remain our property until they are paid for.";

struct Paragraph {
    std::string text;
    std::string style;
};

struct Cell {
    std::vector<Paragraph> paragraphs;
    tCellAlign align = eNoDefault;
};

void fill(CRtfTableRow& row, const std::vector<Cell>& cells,
          const std::vector<std::int32_t>& widths = {}) {
    for (const Cell& cell : cells) {
        row.TableCells()->AddTail();
        const auto added = row.TableCells()->PeekTail();
        added->setAlign(cell.align);
        for (const Paragraph& paragraph : cell.paragraphs) {
            added->Paragraphs()->AddTail();
            added->Paragraphs()->PeekTail()->setText(paragraph.text);
            added->Paragraphs()->PeekTail()->setStyle(paragraph.style);
        }
    }
    for (std::size_t i = 0; i < widths.size(); ++i) {
        row.TableCells()->Item(static_cast<std::int32_t>(i + 1))->setWidth(ePercent, widths[i]);
    }
}

Ref<CRtfTableRow> addRow(CRtfDoc& document) {
    document.TableRows()->AddTail();
    return document.TableRows()->PeekTail();
}

void addItem(CRtfDoc& document, const std::string& number, const std::vector<std::string>& texts) {
    const auto row = addRow(document);
    fill(*row,
         {{{{number, "normal"}}},
          {{{texts[0], "normal"}}},
          {{{texts[1], "normal"}}, eRight},
          {{{texts[2], "normal"}}, eRight},
          {{{texts[3], "normal"}}, eRight}},
         {12, 42, 14, 14});
    row->TableCells()->Item(1)->asMarkedField("item " + number);
    row->setBottomBorder(eHair);
}

// The bytes of the file to which a document or driver commits.
template <class Document>
std::string committed(Document& document) {
    const std::wstring file = temporaryFile(L"library.rtf");
    document.Commit(utf8Text(file));
    const std::string bytes = bytesOfFile(file);
    DeleteFileW(file.c_str());
    return bytes;
}

}  // namespace

std::string libraryInvoice() {
    const auto document = CRtfDoc::create();
    document->setPageWidth(11906);
    document->setPageHeight(16838);
    document->setLeftMargin(1533);
    document->setRightMargin(1533);
    document->setPageNumberStart(1);
    document->LoadStyleSheetFromMemmory(styleSheetText);

    const auto title = addRow(*document);
    fill(*title,
         {{{{"Harbour Light Candles", "title"}}},
          {{{"<label=Invoice No.> 2025-0412", "facts"}, {"<label=Date> 2 April 2025", "facts"}},
           eRight}},
         {60});
    title->setBottomBorder(eThick);
    fill(*addRow(*document), {{{{"Mr Andr\\'e9 Lindqvist", "receiver"},
                                {"Mill Road 8", "address"},
                                {"Castleton CT4 6QW", "address"}}}});
    fill(*addRow(*document), {{{{"We have delivered to you:", "note"}}}});

    const auto heading = addRow(*document);
    fill(*heading,
         {{{{"No.", "column"}}},
          {{{"Article", "column"}}},
          {{{"Quantity", "column"}}, eRight},
          {{{"Price", "column"}}, eRight},
          {{{"Amount", "column"}}, eRight}},
         {12, 42, 14, 14});
    heading->setBackColor(eLightBlue);
    heading->setTopBorder(eNormal);
    heading->setBottomBorder(eNormal);
    addItem(*document, "1101", {"Pillar candle, ivory, 20 cm", "12", "4.80", "57.60"});
    addItem(*document, "1108", {"Tea lights \\{50 pieces\\}", "6", "12.50", "75.00"});
    addItem(*document, "2040", {"Storm lantern, brass", "2", "39.95", "79.90"});

    const auto sum = addRow(*document);
    fill(*sum, {{}, {{{"Total in pounds", "total"}}}, {{{"212.50", "total"}}, eRight}}, {54, 28});
    for (const std::int32_t position : {2, 3}) {
        sum->TableCells()->Item(position)->setStyle("sum");
        sum->TableCells()->Item(position)->setBottomBorder(eThick);
    }
    fill(*addRow(*document), {{{{closing, "note"}}, eJustified}});
    return committed(*document);
}

std::string libraryReminder() {
    const auto driver = CRtfDriver::create();
    driver->LoadStyleSheetFromMemmory(styleSheetText);
    driver->ParseFromMemmory(descriptionText);
    return committed(*driver);
}

std::vector<std::string> textsOfInvoice() {
    return {"Harbour Light Candles",
            "<label=Invoice No.> 2025-0412",
            "<label=Date> 2 April 2025",
            "Mr Andr\\'e9 Lindqvist",
            "Mill Road 8",
            "Castleton CT4 6QW",
            "We have delivered to you:",
            "No.",
            "Article",
            "Quantity",
            "Price",
            "Amount",
            "1101",
            "Pillar candle, ivory, 20 cm",
            "1108",
            "Tea lights {50 pieces}",
            "2040",
            "Storm lantern, brass",
            "Total in pounds",
            closing};
}

}  // namespace quorvane::host
