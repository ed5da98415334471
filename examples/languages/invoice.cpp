// Writes an invoice: invoice [FILE]

#include <quorvane/quorvane.h>

#include <iostream>
#include <ranges>

using namespace quorvane;

int main(int argc, char** argv) {
    try {
        Document document;
        document.setStyleSheetFile("invoice.rtfss");
        document.setColumns({55, 15, 30});
        document.setHeader({.left = "Northmoor Coffee"});
        document.setFooter({.left = "Invoice 2027-0042", .right = "{page} / {pages}"});

        const Row top = document.addRow();
        const Cell title = top.addCell("Invoice 2027-0042", "title").setSpan(2);
        title.addParagraph("1.3.2027 for Dvořák & Søn", "details");
        top.addCell().addParagraph(Picture::fromFile("logo.png", {.height = "15mm"}));
        document.addRow({"Article", "Quantity", "Amount"}, "column").setBackColor("#1f4e79");
        document.addRow({"Espresso machine", "1", "649.00"});
        document.addRow({"Café crème, 1 kg", "12", "226.80"});
        document.addRow({"Mug {large}", "6", "57.00"});
        const Row total = document.addRow().setBackColor("#dde7f0");
        total.addCell("Total in euros", "total").setSpan(2);
        total.addCell("932.80", "total");

        for (const Row row : document.rows()) {
            for (const Cell cell : row.cells() | std::views::drop(1)) {
                cell.setAlign(eRight);
            }
        }
        document.save(argc > 1 ? argv[1] : "invoice.rtf");
    } catch (const Error& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
