"""compareEscaped.py TEXTS FODT: compares texts (a JSON list) with those of the cells that LibreOffice
read in a document of them, character by character."""

import json
import os
import sys
import xml.etree.ElementTree as xml

TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"
TABLE = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"


def shown(element):
    """The text of an element, exactly as it is shown."""
    if element.tag == TEXT + "s":
        return " " * int(element.get(TEXT + "c", "1"))
    if element.tag in (TEXT + "tab", TEXT + "line-break"):
        return "\t" if element.tag == TEXT + "tab" else "\n"
    return (element.text or "") + "".join(shown(child) + (child.tail or "") for child in element)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        texts = json.load(file)
    cells = ["\n".join(shown(paragraph) for paragraph in cell.iter(TEXT + "p"))
             for cell in xml.parse(sys.argv[2]).iter(TABLE + "table-cell")]
    if len(cells) != len(texts):
        sys.exit(f"{len(texts)} texts were written, and {len(cells)} cells read")
    wrong = [(text, cell) for text, cell in zip(texts, cells) if text != cell]
    for text, cell in wrong[:5]:
        at = len(os.path.commonprefix([text, cell]))
        print(f"written: {ascii(text[at:at + 10])}, read: {ascii(cell[at:at + 10])}")
    if wrong:
        sys.exit(f"{len(wrong)} of {len(texts)} texts were not read as they were")
    print(f"LibreOffice shows {len(texts)} escaped texts exactly")


main()
