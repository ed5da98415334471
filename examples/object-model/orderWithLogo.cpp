// Builds an order form of any length with a logo on each page: orderWithLogo LOGO FILE

#include <quorvane/quorvane.h>

#include <iostream>
#include <string>

int main(int argc, char** argv) {
    using namespace quorvane;
    if (argc != 3) {
        std::cerr << "usage: orderWithLogo LOGO FILE\n";
        return 2;
    }
    try {
        Document document;
        document.setPage("a4");
        document.setMargins({.left = "2cm", .right = "2cm", .top = "2cm", .bottom = "2cm"});
        document.setFooter({.left = "Order 2025-118", .right = "{page} / {pages}"});
        document.setColumns({"25mm", "auto", "25mm"});
        document.setStyleSheet(R"(; quorvane 2
            { name: normal; style-def: paragraph; font: Arial; size: 10pt; space-after: 2pt }
            { name: title; style-def: paragraph; based-on: normal; size: 20pt; bold }
            { name: column; style-def: paragraph; based-on: normal; bold; color: white }
            { name: footer; style-def: paragraph; based-on: normal; size: 8pt; color: gray })");

        // The first rows are the heading, which is on every page.
        const Row letterhead = document.addRow().setHeading();
        letterhead.addCell("Order", "title").setSpan(2);
        letterhead.addCell().addParagraph(Picture::fromFile(argv[1], {.width = "20mm"}));
        document.addRow({"No.", "Article", "Quantity"}, "column")
            .setHeading()
            .setBackColor("#1f4e79");

        for (int number = 1; number <= 60; ++number) {
            const Row row = document.addRow(
                {"C " + std::to_string(100 + number),
                 "Coffee of the roast " + std::to_string(number), std::to_string(number % 7 + 1)},
                "normal");
            row.setKeep().setBottomBorder(eHair);
            row[2].setAlign(eRight);
        }
        document.save(argv[2]);
    } catch (const Error& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
