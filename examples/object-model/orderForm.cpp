// Builds an order form: orderForm FILE

#include <quorvane/quorvane.h>

#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

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

std::string money(int pence) {
    char text[32];
    std::snprintf(text, sizeof text, "%d.%02d", pence / 100, pence % 100);
    return text;
}

void addItems(Document& document, const std::vector<Item>& items) {
    const std::vector<Width> columns = {12, 45, 13, 14, 16};
    const Row heading =
        document.addRow({"No.", "Article", "Quantity", "Price", "Amount"}, "column");
    heading.setColumns(columns).setBackColor("silver");
    heading.setTopBorder(eNormal).setBottomBorder(eNormal);

    int total = 0;
    for (const Item& item : items) {
        const int amount = item.quantity * item.pence;
        total += amount;
        const Row row = document.addRow({item.number, item.name, std::to_string(item.quantity),
                                         money(item.pence), money(amount)},
                                        "normal");
        row.setColumns(columns).setBottomBorder(eHair);
        // The program that books the delivery finds the number of the item in the document.
        row[0].setMarkedField("item " + item.number);
        for (const Cell cell : row.cells() | std::views::drop(2)) {
            cell.setAlign(eRight);
        }
    }
    for (const Cell cell : heading.cells() | std::views::drop(2)) {
        cell.setAlign(eRight);
    }

    const Row sum = document.addRow({"", "Total in pounds", money(total)}, "total");
    sum.setColumns({50, 30, 20});
    for (const Cell cell : sum.cells() | std::views::drop(1)) {
        cell.setStyle("sum").setBottomBorder(eThick);
    }
    sum[2].setAlign(eRight);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: orderForm FILE\n";
        return 2;
    }
    try {
        Document document;
        document.setMargins({.left = 1200, .right = 1200});
        document.setStyleSheet(styles);

        document.addRow({"Order"}, "title");
        const Row parties = document.addRow(
            {styled("label", "To"), styled("label", "Order No.") + " 2025-118"}, "party");
        parties.setColumns({60, 40});
        parties[0].addParagraph("Northmoor Tea & Coffee Ltd", "party");
        parties[0].addParagraph("14 Quay Street, Northmoor", "party");
        parties[1].addParagraph(styled("label", "Date") + " 18 March 2025", "party");
        parties[1].addParagraph("Café Lindqvist, Market Square 2", "party");
        document.addRow({"Please deliver to the address above by 24 March:"}, "note");

        addItems(document, {{"C 101", "House blend, medium roast, 1 kg", 6, 1890},
                            {"C 120", "Decaffeinated, water process, 500 g", 4, 1320},
                            {"T 204", "Darjeeling First Flush 2025, 250 g", 2, 1980},
                            {"A 307", "Cup, porcelain, 180 ml {6 pieces}", 3, 2280}});
        document.save(argv[1]);
        return 0;
    } catch (const Error& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
