#include "bench/standardJob.h"

#include <array>

namespace quorvane::bench {

namespace {

constexpr std::array<const char*, 3> styleNames = {"normal", "entry", "remark"};

// Seven digits, so that every text has the same length.
void appendPadded(std::int32_t number, std::string& text) {
    char digits[7];
    for (int i = 6; i >= 0; --i) {
        digits[i] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
    text.append(digits, sizeof digits);
}

// "Article 0012345 in box 3"; in one cell of a row the number is bold.
void setText(CRtfParagraph& paragraph, std::int32_t row, std::int32_t cell, std::string& text) {
    const bool isBold = cell == 1;
    text = isBold ? "Article <bold=" : "Article ";
    appendPadded(row, text);
    text += isBold ? "> in box " : " in box ";
    text += static_cast<char>('0' + cell);
    paragraph.setText(text);
}

// The same as a cell of the modern interface.
void addCell(const Row& tableRow, std::int32_t row, std::int32_t cell, std::string& text) {
    const std::string_view style = styleNames[static_cast<std::size_t>(row % 3)];
    text = "Article ";
    if (cell != 1) {
        appendPadded(row, text);
        text += " in box ";
        text += static_cast<char>('0' + cell);
        tableRow.addCell(text, style);
        return;
    }
    std::string number;
    appendPadded(row, number);
    tableRow.addCell(text + styled("bold", number) + " in box 1", style);
}

// What stands before the first row.
std::string_view emittedHead() {
    static const std::string head = [] {
        const Ref<CRtfDoc> document = CRtfDoc::create();
        document->LoadStyleSheetFromMemmory(standardStyleSheet());
        std::string text = document->Contents();
        text.pop_back();
        return text;
    }();
    return head;
}

constexpr std::string_view plainRow =
    "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\cellx1768"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\cellx3536"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\cellx5304"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\cellx7072"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\cellx8840";

constexpr std::string_view silverRow =
    "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\clcbpat32\\cellx1768"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\clcbpat32\\cellx3536"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\clcbpat32\\cellx5304"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\clcbpat32\\cellx7072"
    " \\clbrdrb\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrr\\brdrs\\brdrw10\\clbrdrt\\brdrs"
    "\\brdrw10\\clcbpat32\\cellx8840";

constexpr std::array<std::string_view, 3> paragraphOpenings = {
    " \r\n\r\n\r\n\\pard\\plain\\intbl\\s100\\f0\\fs20 Article ",
    " \r\n\r\n\r\n\\pard\\plain\\intbl\\s101\\f5\\fs18 Article ",
    " \r\n\r\n\r\n\\pard\\plain\\intbl\\s102\\f9\\fs16\\i Article ",
};

constexpr std::array<std::string_view, 5> plainClosings = {
    " in box 0\\cell", " in box 1\\cell", " in box 2\\cell", " in box 3\\cell", " in box 4\\cell",
};

void emitRow(std::int32_t row, std::string& rtf) {
    rtf += row % 2 == 0 ? plainRow : silverRow;
    const std::string_view opening = paragraphOpenings[static_cast<std::size_t>(row % 3)];
    for (std::int32_t cell = 0; cell < cellsPerRow; ++cell) {
        rtf += opening;
        if (cell == 1) {
            rtf += "{\\cs100\\b ";
            appendPadded(row, rtf);
            rtf += '}';
        } else {
            appendPadded(row, rtf);
        }
        rtf += plainClosings[static_cast<std::size_t>(cell)];
    }
    rtf += "\\row}";
}

}  // namespace

std::string_view standardStyleSheet() {
    return "{ name: normal; style-def: s; format: \\f0\\fs20 }\r\n"
           "{ name: entry; style-def: s; format: \\f5\\fs18; based-on: normal }\r\n"
           "{ name: remark; style-def: s; format: \\f9\\fs16\\i; based-on: normal }\r\n"
           "{ name: bold; style-def: cs; format: \\b }\r\n";
}

std::string fullDescription() {
    std::string text = "(doc\n(paper-width=11906)\n";
    for (int i = 0; i < 999; ++i) {
        text +=
            "(r ; a "
            "row\n(rb=light-yellow)\n(rbb=thin)\n(c\n(cw=50)\n(ca=centered)\n(p\n(pt=Article "
            "<bold=" +
            std::to_string(i) + ">)\n(ps=entry)\np)\nc)\nr)\n";
    }
    return text + "doc)\n";
}

void buildStandardRows(CRtfDoc& document, std::int32_t rows) {
    const Ref<CRtfTableRows> tableRows = document.TableRows();
    std::string text;
    for (std::int32_t row = 0; row < rows; ++row) {
        tableRows->AddTail();
        const Ref<CRtfTableRow> tableRow = tableRows->PeekTail();
        const Ref<CRtfTableCells> cells = tableRow->TableCells();
        for (std::int32_t cell = 0; cell < cellsPerRow; ++cell) {
            cells->AddTail();
            const Ref<CRtfParagraphs> paragraphs = cells->PeekTail()->Paragraphs();
            paragraphs->AddTail();
            const Ref<CRtfParagraph> paragraph = paragraphs->PeekTail();
            setText(*paragraph, row, cell, text);
            paragraph->setStyle(styleNames[static_cast<std::size_t>(row % 3)]);
        }
        tableRow->setTopBorder(eThin);
        tableRow->setBottomBorder(eThin);
        tableRow->setLeftBorder(eThin);
        tableRow->setRightBorder(eThin);
        if (row % 2 == 1) {
            tableRow->setBackColor(eSilver);
        }
    }
}

void buildStandardRows(Document& document, std::int32_t rows) {
    std::string text;
    for (std::int32_t row = 0; row < rows; ++row) {
        const Row tableRow = document.addRow();
        for (std::int32_t cell = 0; cell < cellsPerRow; ++cell) {
            addCell(tableRow, row, cell, text);
        }
        tableRow.setBorders(eThin);
        if (row % 2 == 1) {
            tableRow.setBackColor(eSilver);
        }
    }
}

Ref<CRtfDoc> standardDocument(std::int32_t rows) {
    Ref<CRtfDoc> document = CRtfDoc::create();
    document->LoadStyleSheetFromMemmory(standardStyleSheet());
    buildStandardRows(*document, rows);
    return document;
}

Document modernStandardDocument(std::int32_t rows) {
    Document document(CRtfDoc::create());
    document.setStyleSheet(standardStyleSheet());
    buildStandardRows(document, rows);
    return document;
}

Document ownStandardDocument(std::int32_t rows) {
    Document document;
    document.setStyleSheet(standardStyleSheet());
    buildStandardRows(document, rows);
    return document;
}

std::string emitStandardJob(std::int32_t rows) {
    constexpr std::size_t longestRow = 960;
    std::string rtf;
    rtf.reserve(emittedHead().size() + static_cast<std::size_t>(rows) * longestRow + 1);
    rtf += emittedHead();
    for (std::int32_t row = 0; row < rows; ++row) {
        emitRow(row, rtf);
    }
    rtf += '}';
    return rtf;
}

void streamStandardJob(std::int32_t rows, const std::function<void(std::string_view)>& write) {
    constexpr std::size_t bufferSize = 65536;
    std::string buffer(emittedHead());
    for (std::int32_t row = 0; row < rows; ++row) {
        emitRow(row, buffer);
        if (buffer.size() >= bufferSize) {
            write(buffer);
            buffer.clear();
        }
    }
    buffer += '}';
    write(buffer);
}

}  // namespace quorvane::bench
