"""compareExtended.py DESCRIPTION PDF: compares the pages that LibreOffice makes of a description in
the extended language with the description: the heading, the page header and the page footer stand
on every page, and each text of the other rows stands on one page as it is written."""

import re
import subprocess
import sys

description_path, pdf = sys.argv[1:]
faults = []


def expect(condition, fault):
    if not condition:
        faults.append(fault)


def one_line(text):
    return " ".join(text.split())


def values(text, key):
    """The values of a key, each as one line."""
    pattern = rf'^ *\({key}=(?:"""(.*?)"""|([^\n]*))\)$'
    return [one_line(block or line)
            for block, line in re.findall(pattern, text, re.MULTILINE | re.DOTALL)]


def main():
    with open(description_path, encoding="utf-8") as file:
        description = file.read()
    command = ["pdftotext", "-layout", "-enc", "UTF-8", pdf, "-"]
    text = subprocess.run(command, capture_output=True, check=True).stdout.decode()
    pages = [one_line(page) for page in text.split("\f")[:-1]]
    expect(len(pages) > 1, f"there are {len(pages)} pages")

    rows = re.split(r"^  \(r$", description, flags=re.MULTILINE)
    heading = [row for row in rows[1:] if "(row-heading=yes)" in row]
    body = [row for row in rows[1:] if "(row-heading=yes)" not in row]
    # Inline styles show their texts only.
    shown = [re.sub(r"<\w+=([^>]*)>", r"\1", value) for row in heading for value in values(row, "pt")]
    left, _, right = values(rows[0], "header")[0].split("|")
    for number, page in enumerate(pages, 1):
        for part in [*shown, left, right]:
            expect(part in page, f"page {number} lacks {part!r}")
        # Small blanks are lost.
        expect(f"{number}/{len(pages)}" in page.replace(" ", ""), f"page {number} lacks its number")
        expect(page.count(shown[0]) == 1, f"page {number} has more than one {shown[0]!r}")
    names = [values(row, "pt")[1] for row in body if len(values(row, "pt")) > 1]
    for name in names + values(body[-1], "pt"):
        count = sum(page.count(name) for page in pages)
        expect(count == 1, f"{name!r} stands {count} times")
    expect(len(names) > 20, f"only {len(names)} rows were compared")
    print(f"{description_path}: " + ("as it was" if not faults else "differs"))
    print("\n".join(faults), end="\n" if faults else "")
    sys.exit(1 if faults else 0)


main()
