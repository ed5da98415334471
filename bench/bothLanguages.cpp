#include "bench/bothLanguages.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quorvane::bench {

namespace {

std::string head(Language language) {
    return std::string(language == Language::Extended ? "; quorvane 2\n" : "") +
           "(doc\n(paper-width=11906)\n(paper-height=16838)\n";
}

void appendTableCell(std::string_view width, std::string_view text, std::string& description) {
    description += "(c\n";
    if (!width.empty()) {
        description.append("(cw=").append(width).append(")\n");
    }
    description.append("(p\n(pt=").append(text).append(")\np)\nc)\n");
}

struct InvoiceCell {
    std::string_view width;
    std::string_view text;
    std::string_view style = "normal";
    std::string_view alignment = "left";
};

template <std::size_t count>
void appendInvoiceRow(std::string_view leaves, const std::array<InvoiceCell, count>& cells,
                      std::string& description) {
    description.append("(row\n").append(leaves);
    for (const InvoiceCell& cell : cells) {
        description.append("(cell\n(cell-width=").append(cell.width).append(")\n(para\n");
        description.append("(para-text=").append(cell.text).append(")\n");
        description.append("(para-style=").append(cell.style).append(")\n");
        description.append("(para-alignment=").append(cell.alignment).append(")\n");
        description.append("para)\ncell)\n");
    }
    description += "row)\n";
}

}  // namespace

std::string tableDescription(Language language, Widths widths, Letters letters, std::int32_t rows) {
    constexpr std::array<std::string_view, columnsOfTable> shares = {"15", "55", "30"};
    const bool isAscii = letters == Letters::Ascii;
    const bool isList = language == Language::Extended && widths == Widths::OfColumns;
    const bool hasWidths = widths != Widths::Even && !isList;
    std::string description = head(language) + (isList ? "(columns=15 55 30)\n" : "");
    for (std::int32_t row = 0; row < rows; ++row) {
        const std::string number = std::to_string(row);
        const std::array<std::string, columnsOfTable> texts = {
            "Article " + number, isAscii ? "Glass vase, blue, 30 cm" : "Čistá váza, modrá, 30 cm",
            (isAscii ? "1250.00 EUR " : "1250,00 € à ") + number};
        description += "(r\n";
        for (std::size_t column = 0; column < texts.size(); ++column) {
            appendTableCell(hasWidths ? shares[column] : "", texts[column], description);
        }
        description += "r)\n";
    }
    return description + "doc)\n";
}

std::string invoiceDescription(Language language, std::int32_t number) {
    using Cells = std::array<InvoiceCell, 4>;
    std::string description = head(language) + "(left-margin=1533)\n(right-margin=1533)\n";
    appendInvoiceRow("(row-bottom-border=thick)\n",
                     std::array<InvoiceCell, 2>{
                         {{"60", "Adler & Finch Joinery", "entry"}, {"40", "Mill Road 8"}}},
                     description);
    const std::string title = "Invoice <bold=" + std::to_string(number) + ">";
    appendInvoiceRow(
        "", std::array<InvoiceCell, 2>{{{"60", "Mr. James Whitfield"}, {"40", title, "entry"}}},
        description);
    constexpr std::int32_t items = 20;
    for (std::int32_t item = 1; item <= items; ++item) {
        const std::string position = std::to_string(item);
        appendInvoiceRow(item % 2 == 0 ? "(row-backcolor=silver)\n(row-bottom-border=thin)\n"
                                       : "(row-bottom-border=thin)\n",
                         Cells{{{"10", position, "remark", "right"},
                                {"50", "Oak window, <bold=double> glazing, 90 x 120 cm", "entry"},
                                {"15", "4 pcs", "entry", "centered"},
                                {"25", "1250.00 EUR", "entry", "right"}}},
                         description);
    }
    appendInvoiceRow("(row-top-border=thick)\n",
                     std::array<InvoiceCell, 2>{
                         {{"60", "Total", "entry"}, {"40", "25000.00 EUR", "entry", "right"}}},
                     description);
    return description + "doc)\n";
}

std::int64_t linesOfInvoice() {
    const std::string text = invoiceDescription(Language::Original, 1);
    return std::count(text.begin(), text.end(), '\n');
}

}  // namespace quorvane::bench
