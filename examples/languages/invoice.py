"""Writes an invoice: python3 invoice.py [FILE]"""

import sys
from pathlib import Path

import quorvane

invoice = {
    "number": "2027-0042",
    "date": "2027-03-01",
    "customer": "Dvořák & Søn",
    "lines": [
        {"article": "Espresso machine", "quantity": 1, "amount": 649.00},
        {"article": "Café crème, 1 kg", "quantity": 12, "amount": 226.80},
        {"article": "Mug {large}", "quantity": 6, "amount": 57.00},
    ],
    "total": 932.80,
}

file = sys.argv[1] if len(sys.argv) > 1 else "invoice.rtf"
try:
    quorvane.render_to(file, Path("invoice.rtfspec"), Path("invoice.rtfss"), data=invoice)
except (quorvane.Error, OSError) as error:
    sys.exit(str(error))
