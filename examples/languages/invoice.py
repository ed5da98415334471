"""Writes an invoice with a logo: invoice.py LOGO FILE"""

import sys

import quorvane

STYLES = """; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
"""
ITEMS = [("Espresso machine", 1, 64900), ("Café crème, 1 kg", 12, 1890), ("Mug {large}", 6, 950)]


def money(cents):
    return f"{cents // 100}.{cents % 100:02}"


def invoice(logo):
    document = quorvane.Document(
        stylesheet=STYLES,
        columns="60 15 25",
        header=("Northmoor Coffee", "", ""),
        footer="{page} / {pages}",
    )
    letterhead = document.add_row(["Invoice 2027-0042", "", ""], "title")
    letterhead.cells[2].paragraphs[0].set_picture(logo, height="15mm")
    document.add_row(["Article", "Quantity", "Amount"], "column").set(background="#1f4e79")
    for article, quantity, cents in ITEMS:
        document.add_row([article, quantity, money(quantity * cents)], "normal")
    total = sum(quantity * cents for _, quantity, cents in ITEMS)
    document.add_row(["Total", "", money(total)], "total").set(background="#dde7f0")
    for row in document.rows:
        for cell in row.cells[1:]:
            cell.set(align="right")
    return document


if len(sys.argv) != 3:
    print("usage: invoice.py LOGO FILE", file=sys.stderr)
    sys.exit(2)
try:
    invoice(sys.argv[1]).save(sys.argv[2])
except quorvane.Error as error:
    sys.exit(str(error))
