"""fullPages.py write QUORVANE FOLDER
   fullPages.py compare FOLDER
Renders descriptions of 46 to 54 rows, of which one fills its page exactly, each in the extended
language and once more without the small paragraph after the table; then compares the pages of
LibreOffice: with the paragraph no document ends in an empty page, without it one does."""

import pathlib
import subprocess
import sys

COUNTS = range(46, 55)
SMALL_PARAGRAPH = rb"\pard\plain\sl-20\slmult0\fs2\par"


def write(quorvane, folder):
    for count in COUNTS:
        rows = [f"(r\n(c\n(p\n(pt=Row {number})\np)\nc)\nr)" for number in range(1, count + 1)]
        description = "\n".join(["; quorvane 2", "(doc", "(page=a4)", *rows, "doc)", ""])
        document = folder / f"small-{count}.rtf"
        subprocess.run([quorvane, "render", "-o", document, "-"], input=description.encode(), check=True)
        rtf = document.read_bytes()
        assert rtf.endswith(SMALL_PARAGRAPH + b"}"), document
        (folder / f"none-{count}.rtf").write_bytes(rtf.removesuffix(SMALL_PARAGRAPH + b"}") + b"}")


def ends_in_empty_page(pdf):
    text = subprocess.run(["pdftotext", pdf, "-"], capture_output=True, check=True).stdout.decode()
    return not text.split("\f")[-2].strip()


def compare(folder):
    empty = {kind: [count for count in COUNTS if ends_in_empty_page(folder / f"{kind}-{count}.pdf")]
             for kind in ("small", "none")}
    is_right = not empty["small"] and len(empty["none"]) == 1
    print("full pages: " + ("as they should be" if is_right else f"empty last pages: {empty}"))
    sys.exit(0 if is_right else 1)


if sys.argv[1] == "write":
    write(sys.argv[2], pathlib.Path(sys.argv[3]))
else:
    compare(pathlib.Path(sys.argv[2]))
