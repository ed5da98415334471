"""joinedPages.py write QUORVANE FOLDER
   joinedPages.py compare FOLDER
Joins records of different lengths and formats in one document; then compares its pages in
LibreOffice: each record begins a page, numbers its pages from 1, and has its own page header, page
footer and paper."""

import json
import pathlib
import subprocess
import sys

DESCRIPTION = """; quorvane 2
(doc
(page={{page}})
{{#title}}
(header={{title}})
(footer=page {page} of {{@index}})
{{/title}}
{{#rows}}
(r
(c
(p
(pt=Row {{.}})
p)
c)
r)
{{/rows}}
doc)
"""
RECORDS = [
    {"page": "a4", "title": "First", "rows": list(range(1, 4))},
    {"page": "a5", "title": "Second", "rows": list(range(1, 41))},
    {"page": "a4-landscape", "title": "", "rows": [1]},
    {"page": "a4", "title": "Fourth", "rows": list(range(1, 3))},
]
# Title, first row, page number and width in points.
EXPECTED = [
    ("First", "Row 1", "page 1 of 1", 595),
    ("Second", "Row 1", "page 1 of 2", 420),
    ("Second", None, "page 2 of 2", 420),
    (None, "Row 1", None, 842),
    ("Fourth", "Row 1", "page 1 of 4", 595),
]


def write(quorvane, folder):
    (folder / "joined.rtfspec").write_text(DESCRIPTION)
    (folder / "joined.jsonl").write_text("".join(json.dumps(record) + "\n" for record in RECORDS))
    subprocess.run([quorvane, "render", "--join", "--data", folder / "joined.jsonl", "-o",
                    folder / "joined.rtf", folder / "joined.rtfspec"], check=True)


def page_of(pdf, number):
    text = subprocess.run(["pdftotext", "-f", str(number), "-l", str(number), pdf, "-"],
                          capture_output=True, check=True).stdout.decode()
    lines = [line.strip() for line in text.replace("\f", "").splitlines() if line.strip()]
    sizes = subprocess.run(["pdfinfo", "-f", str(number), "-l", str(number), pdf],
                           capture_output=True, check=True).stdout.decode()
    width = next(line for line in sizes.splitlines() if line.startswith("Page") and "size:" in line)
    return (next((line for line in lines if line in ("First", "Second", "Fourth")), None),
            "Row 1" if "Row 1" in lines else None,
            next((line for line in lines if line.startswith("page ")), None),
            round(float(width.split("size:")[1].split()[0])))


def compare(folder):
    pdf = folder / "joined.pdf"
    info = subprocess.run(["pdfinfo", pdf], capture_output=True, check=True).stdout.decode()
    count = int(next(line for line in info.splitlines() if line.startswith("Pages:")).split()[1])
    pages = [page_of(pdf, number) for number in range(1, count + 1)]
    is_right = pages == EXPECTED
    print("joined pages: " + ("as they should be" if is_right else f"{pages}"))
    sys.exit(0 if is_right else 1)


if sys.argv[1] == "write":
    write(sys.argv[2], pathlib.Path(sys.argv[3]))
else:
    compare(pathlib.Path(sys.argv[2]))
