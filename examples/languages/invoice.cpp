// Writes an invoice with a logo: invoice LOGO FILE

#include <quorvane/quorvane.h>

#include <iostream>
#include <string>
#include <string_view>

using namespace quorvane;

constexpr std::string_view styles = R"(; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
)";

struct Item {
    const char* article;
    int quantity;
    int cents;
};

constexpr Item items[] = {
    {"Espresso machine", 1, 64900}, {"Café crème, 1 kg", 12, 1890}, {"Mug {large}", 6, 950}};

std::string money(int cents) {
    return std::to_string(cents / 100) + "." + std::to_string(100 + cents % 100).substr(1);
}

Document invoice(const char* logo) {
    Document document;
    document.setStyleSheet(styles);
    document.setColumns({60, 15, 25});
    document.setHeader({.left = "Northmoor Coffee"});
    document.setFooter({.center = "{page} / {pages}"});

    const Row letterhead = document.addRow({"Invoice 2027-0042", "", ""}, "title");
    letterhead[2][0].setPicture(Picture::fromFile(logo, {.height = "15mm"}));
    document.addRow({"Article", "Quantity", "Amount"}, "column").setBackColor("#1f4e79");
    int total = 0;
    for (const auto& [article, quantity, cents] : items) {
        document.addRow({article, std::to_string(quantity), money(quantity * cents)}, "normal");
        total += quantity * cents;
    }
    document.addRow({"Total", "", money(total)}, "total").setBackColor("#dde7f0");
    for (const Row row : document.rows()) {
        row[1].setAlign(eRight);
        row[2].setAlign(eRight);
    }
    return document;
}

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: invoice LOGO FILE\n";
        return 2;
    }
    try {
        invoice(argv[1]).save(argv[2]);
    } catch (const Error& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
