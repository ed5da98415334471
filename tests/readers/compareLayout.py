"""compareLayout.py FOLDER NAME: compares what LibreOffice and AbiWord make of a document of several
pages with what it was written from. The folder has NAME.json (the expectations), NAME.pdf (the pages
of LibreOffice), NAME.fodt (its document) and NAME.html (AbiWord's), and the two pictures."""

import base64
import html.parser
import json
import re
import subprocess
import sys
import xml.etree.ElementTree as xml

NAMESPACES = {
    "draw": "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0",
    "fo": "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0",
    "office": "urn:oasis:names:tc:opendocument:xmlns:office:1.0",
    "style": "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
    "svg": "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0",
    "table": "urn:oasis:names:tc:opendocument:xmlns:table:1.0",
    "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0",
}
COLOR = "#1f4e79"
HEADER, FOOTER = "Left {1}", "Page {} of {}"
HEADING = ["HeadA HeadB HeadC", "SubA SubB SubC SubD SubE"]
faults = []


def equal(what, actual, expected):
    if actual != expected:
        faults.append(f"{what}: {actual}, should be {expected}")


def near(what, actual, expected):
    """LibreOffice reports lengths with four digits."""
    if len(actual) != len(expected) or any(abs(a - e) > 3 for a, e in zip(actual, expected)):
        faults.append(f"{what}: {actual}, should be {expected}")


def name(prefixed):
    prefix, local = prefixed.split(":")
    return "{" + NAMESPACES[prefix] + "}" + local


def twips(length):
    number, unit = re.fullmatch(r"([\d.]+)(in|cm|mm|pt)", length).groups()
    return float(number) * {"in": 1440, "cm": 1440 / 2.54, "mm": 144 / 2.54, "pt": 20}[unit]


def text_of(element):
    """The text of an element, without the bytes of pictures."""
    def inner(part):
        return "" if part.tag == name("draw:frame") else (part.text or "") + "".join(
            inner(child) + (child.tail or "") for child in part)

    return " ".join(inner(element).split())


def row_texts(number):
    """The texts of a row's own cells."""
    letters = "bce" if number % 10 in (2, 3) else "bcde"
    return [f"r{number}"] + [f"r{number}{letter}" for letter in letters]


def compare_pages(path, model):
    text = subprocess.run(["pdftotext", "-layout", path, "-"], check=True, capture_output=True,
                          encoding="utf-8").stdout
    pages = [[" ".join(line.split()) for line in page.splitlines() if line.strip()]
             for page in text.split("\f")[:-1]]
    if len(pages) < 5:
        faults.append(f"there are {len(pages)} pages, should be 5 or more")
    rows = []
    for number, page in enumerate(pages, 1):
        equal(f"the header of page {number}", page[0], HEADER + " \u0141\u00f3d\u017a")
        equal(f"the heading of page {number}", page[1:3], HEADING)
        equal(f"how often the heading is on page {number}", sum("HeadB" in line for line in page), 1)
        equal(f"the footer of page {number}", page[-1], FOOTER.format(number, len(pages)))
        words = {word for line in page[3:-1] for word in line.split()}
        rows.append(sorted(int(word[1:]) for word in words if re.fullmatch(r"r\d+", word)))
    equal("the rows of all pages", sum(rows, []), list(range(1, model["rows"] + 1)))
    equal("whether a page starts with the row", model["rowThatStartsPage"] in
          [page[0] for page in rows if page], True)
    equal("where the two last rows are", rows[-1][-2:], [model["rows"] - 1, model["rows"]])


class Office:
    """A flat OpenDocument text."""

    def __init__(self, path):
        self.root = xml.parse(path).getroot()
        self.styles = {(style.get(name("style:family")), style.get(name("style:name"))): style
                       for style in self.root.iter(name("style:style"))}

    def property(self, family, element, attribute, group, key):
        style = element.get(name(attribute))
        while style and (family, style) in self.styles:
            found = self.styles[family, style]
            properties = found.find(group, NAMESPACES)
            value = properties.get(name(key)) if properties is not None else None
            if value is not None:
                return value
            style = found.get(name("style:parent-style-name"))
        return None

    def columns(self, table):
        return [twips(self.property("table-column", column, "table:style-name",
                                    "style:table-column-properties", "style:column-width"))
                for column in table.iter(name("table:table-column"))
                for _ in range(int(column.get(name("table:number-columns-repeated"), "1")))]

    def rows(self, table):
        """The cells of each row as their texts and spans; covered ones are None."""
        return [[None if cell.tag == name("table:covered-table-cell") else
                 (text_of(cell), int(cell.get(name("table:number-columns-spanned"), "1")),
                  int(cell.get(name("table:number-rows-spanned"), "1")))
                 for cell in row] for row in table.iter(name("table:table-row"))]

    def compare_heading(self, model):
        header = self.root.find(".//style:master-page[@style:name='Standard']/style:header",
                                NAMESPACES)
        table = header.find("table:table", NAMESPACES)
        near("the columns of the heading", self.columns(table), model["columns"])
        equal("the heading", self.rows(table),
              [[("HeadA", 1, 1), ("HeadB", 3, 1), None, None, ("HeadC", 1, 1)],
               [(f"Sub{letter}", 1, 1) for letter in "ABCDE"]])
        for cell in table.find("table:table-row", NAMESPACES):
            if cell.tag == name("table:table-cell"):
                equal("the ground of the heading", self.property(
                    "table-cell", cell, "table:style-name", "style:table-cell-properties",
                    "fo:background-color"), COLOR)

    def compare_footer(self):
        footer = self.root.find(".//style:master-page[@style:name='Standard']/style:footer",
                                NAMESPACES)
        for field in ("text:page-number", "text:page-count"):
            equal(f"how many {field} the footer has", len(list(footer.iter(name(field)))), 1)
        span = next(footer.iter(name("text:span")), None)
        paragraph = footer.find("text:p", NAMESPACES)
        font = (self.property("text", span, "text:style-name", "style:text-properties",
                              "style:font-name") if span is not None else None) or self.property(
            "paragraph", paragraph, "text:style-name", "style:text-properties", "style:font-name")
        equal("the font of the footer", font, "Liberation Mono")

    def compare_body(self, model):
        tables = self.root.findall(".//office:text/table:table", NAMESPACES)
        equal("how many tables the body has", len(tables), 2)
        number = 0
        for table in tables:
            near("the columns of the body", self.columns(table), model["columns"])
            for row in self.rows(table):
                number += 1
                expected = [(text, 1, 1) for text in row_texts(number)]
                if number % 10 == 1 and number + 2 <= model["rows"]:
                    expected[3] = (expected[3][0], 1, 3)
                elif number % 10 in (2, 3):
                    expected.insert(3, None)
                equal(f"row {number}", row, expected)
            for row in table.iter(name("table:table-row")):
                equal("whether a row stays together", self.property(
                    "table-row", row, "table:style-name", "style:table-row-properties",
                    "fo:keep-together"), "always")
        equal("how many rows the body has", number, model["rows"])

    def compare_pictures(self, model, files):
        frames = list(self.root.iter(name("draw:frame")))
        equal("how many pictures there are", len(frames), len(files))
        for frame, size, path in zip(frames, model["pictures"], files):
            near("the size of a picture", [twips(frame.get(name("svg:width"))),
                                           twips(frame.get(name("svg:height")))],
                 [size["width"], size["height"]])
            data = frame.find("draw:image/office:binary-data", NAMESPACES).text
            with open(path, "rb") as file:
                equal(f"whether the picture is {path}", base64.b64decode(data) == file.read(), True)


class AbiWord(html.parser.HTMLParser):
    """The cells and pictures of an HTML page."""

    def __init__(self, path):
        super().__init__()
        self.cells, self.pictures = [], 0
        with open(path, encoding="utf-8") as file:
            self.feed(file.read())

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag == "td":
            self.cells.append(["", int(attributes.get("colspan") or 1),
                               int(attributes.get("rowspan") or 1),
                               COLOR in attributes.get("style", "")])
        elif tag == "img":
            self.pictures += 1

    def handle_data(self, data):
        if self.cells:
            self.cells[-1][0] += data.strip()

    def compare(self, model):
        heading = [["HeadA", 1, 1, True], ["HeadB", 3, 1, True], ["HeadC", 1, 1, True]]
        heading += [[f"Sub{letter}", 1, 1, False] for letter in "ABCDE"]
        equal("AbiWord's heading", self.cells[:8], heading)
        expected = [[text, 1, 3 if number % 10 == 1 and text.endswith("d") else 1, False]
                    for number in range(1, model["rows"] + 1) for text in row_texts(number)]
        # The texts of the footer follow the last cell.
        actual = self.cells[8:8 + len(expected)]
        actual[-1][0] = actual[-1][0][:len(expected[-1][0])]
        equal("AbiWord's cells", actual, expected)
        equal("AbiWord's pictures", self.pictures, len(model["pictures"]))


def main():
    folder, document, *pictures = sys.argv[1:]
    with open(f"{folder}/{document}.json", encoding="utf-8") as file:
        model = json.load(file)
    compare_pages(f"{folder}/{document}.pdf", model)
    office = Office(f"{folder}/{document}.fodt")
    office.compare_heading(model)
    office.compare_footer()
    office.compare_body(model)
    office.compare_pictures(model, pictures)
    AbiWord(f"{folder}/{document}.html").compare(model)
    print(f"{document}: " + ("as it was" if not faults else "differs"))
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


main()
