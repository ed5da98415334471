"""standard_job.py FOLDER ROWS OUT makes the document of c_table by the Python package in this
folder.
"""

import sys

folder, rows, out_path = sys.argv[1:]
sys.path.insert(0, folder)

import quorvane

STYLES = ("{ name: normal; style-def: s; format: \\f0\\fs20 }\r\n"
          "{ name: entry; style-def: s; format: \\f5\\fs18; based-on: normal }\r\n"
          "{ name: remark; style-def: s; format: \\f9\\fs16\\i; based-on: normal }\r\n"
          "{ name: bold; style-def: cs; format: \\b }\r\n")
STYLES_OF_ROWS = ("normal", "entry", "remark")

document = quorvane.Document(stylesheet=STYLES)
for number in range(int(rows)):
    texts = [f"Article {number:07} in box {cell}" for cell in range(5)]
    texts[1] = "Article "
    row = document.add_row(texts, STYLES_OF_ROWS[number % 3])
    paragraph = row.cells[1].paragraphs[0]
    paragraph.add_styled_text(f"{number:07}", "bold")
    paragraph.add_text(" in box 1")
    row.set(border="thin")
    if number % 2:
        row.set(background="silver")
document.save(out_path)
