"""compareReaders.py FOLDER NAME...: compares what LibreOffice, AbiWord and pandoc read with what the
object model held. For each NAME the folder has NAME.rtf, NAME.rtfss (its styles), NAME.json (the
model), NAME.fodt (LibreOffice), NAME.html (AbiWord) and NAME.pandoc (pandoc's JSON)."""

import html
import html.parser
import json
import re
import sys
import xml.etree.ElementTree as xml

NAMESPACES = {
    "fo": "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0",
    "style": "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
    "table": "urn:oasis:names:tc:opendocument:xmlns:table:1.0",
    "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0",
}
SIDES = ("top", "right", "bottom", "left")
# The measures of a page, and by how many twips LibreOffice reports them differently: it keeps
# hundredths of a millimeter, and gives a paper that is almost a known one the size of that.
PAGE_MEASURES = {"page-width": 3, "page-height": 3, "margin-top": 0.5, "margin-right": 0.5,
                 "margin-bottom": 0.5, "margin-left": 0.5}
ALIGNMENTS = {0: None, 1: "center", 2: "start", 3: "end", 4: "justify"}


def name(prefixed):
    prefix, local = prefixed.split(":")
    return "{" + NAMESPACES[prefix] + "}" + local


def squeezed(text):
    return " ".join(text.split())


def twips(length):
    """A length such as "0.6139in" in twips."""
    number, unit = re.fullmatch(r"(-?[\d.]+)(in|cm|mm|pt)", length).groups()
    return float(number) * {"in": 1440, "cm": 1440 / 2.54, "mm": 144 / 2.54, "pt": 20}[unit]


def office_text(element):
    """The text of an element of LibreOffice's, without numbers of pages."""
    if element.tag == name("text:page-number"):
        return ""
    if element.tag in (name("text:tab"), name("text:line-break"), name("text:s")):
        return " "
    return (element.text or "") + "".join(office_text(child) + (child.tail or "")
                                          for child in element)


def format_of(font, size, color, **effects):
    """A format in words such as "Arial 10 bold #990000"; a text without a color is "automatic"."""
    return " ".join([font, f"{size:g}", *(effect for effect, is_on in effects.items() if is_on),
                     color or "automatic"])


def joined(parts):
    """Parts of a text with their formats, without blanks; neighbors of one format are one."""
    result = []
    for text, text_format in parts:
        text = "".join(text.split())
        if text and result and result[-1][1] == text_format:
            result[-1] = (result[-1][0] + text, text_format)
        elif text:
            result.append((text, text_format))
    return result


class Model:
    """The table as the object model held it."""

    def __init__(self, folder, document):
        with open(f"{folder}/{document}.json", encoding="utf-8") as file:
            model = json.load(file)
        self.page, self.rows = model["page"], model["rows"]
        with open(f"{folder}/{document}.rtf", encoding="cp1252") as file:
            rtf = file.read()
        table = re.search(r"\{\\colortbl(.*?)\}", rtf, re.S).group(1)
        self.colors = ["#%02x%02x%02x" % tuple(int(part) for part in color)
                       for color in re.findall(r"\\red(\d+)\\green(\d+)\\blue(\d+)", table)]
        table = re.search(r"\{\\fonttbl(.*?)\}\}", rtf, re.S).group(1)
        self.fonts = dict(re.findall(r"\\f(\d+)\\\S* ([^;]*);", table))
        with open(f"{folder}/{document}.rtfss", encoding="cp1252") as file:
            names = re.findall(r"\{ *name:([^;]*); *style-def: *s *;", file.read())
        self.styles = {style.strip().lower() for style in ",".join(names).split(",")}

    def fill(self, cell):
        return self.colors[cell["fill"] - 1] if cell["fill"] > 0 else None

    def style(self, paragraph, readers_own):
        """The style that a reader finds by its number. A name that the sheet does not have is
        number 0, the default style: "normal", which the document lists without a number, or else
        the reader's own. None for "normal" by name: that has a number, which the list lacks."""
        style = paragraph["style"].strip().lower()
        if style == "normal":
            return None
        if style in self.styles:
            return style
        return "normal" if "normal" in self.styles else readers_own

    def parts(self, paragraph):
        return joined((self.text(part), self.format(part["words"]))
                      for part in paragraph["parts"])

    def format(self, words):
        """The format that control words give."""
        def has(word):
            return re.search(rf"\\{word}(?![a-z\d])", words) is not None

        def number(word, otherwise):
            return int((re.findall(rf"\\{word}(\d+)", words) or [otherwise])[-1])

        color = number("cf", 0)
        return format_of(self.fonts[str(number("f", 0))], number("fs", 24) / 2,
                         self.colors[color - 1] if color > 0 else None, bold=has("b"),
                         italic=has("i"), underlined=has("ul"), struck=has("strike"))

    @staticmethod
    def text(paragraph):
        return squeezed(re.sub(r"<[A-Za-z][^=<>]*=([^<>]*)>", r"\1", plain(paragraph["text"])))

    def paragraphs(self, cell):
        return [paragraph for paragraph in cell["paragraphs"] if self.text(paragraph)]

    def texts(self, only_behind_line_breaks=False):
        texts = [[[] for cell in row] for row in self.rows]
        for row, row_texts in zip(self.rows, texts):
            for cell, cell_texts in zip(row, row_texts):
                for paragraph in self.paragraphs(cell):
                    text = paragraph["text"]
                    if only_behind_line_breaks:
                        text = re.sub(r".*\\line\b", "", text)
                    text = self.text({"text": text})
                    if text:
                        cell_texts.append(text)
        return texts

    def fills(self):
        return [[self.fill(cell) for cell in row] for row in self.rows]


def plain(text):
    """A text without the RTF that a host may write into it."""
    text = re.sub(r"\\'([0-9a-f]{2})", lambda code: bytes.fromhex(code.group(1)).decode("cp1252"),
                  text)
    text = re.sub(r"\\u(\d+)\s?\??", lambda code: chr(int(code.group(1))), text)
    text = re.sub(r"\{\\field.*?PAGE.*\}", "", text)
    text = re.sub(r"\\bullet\b ?", "\u2022", text)
    text = re.sub(r"\\(tab|line|par)\b ?|\\~", " ", text)
    return re.sub(r"\\[a-z]+-?\d* ?|[{}]", "", text)


class LibreOffice:
    """A flat OpenDocument text."""

    def __init__(self, path):
        root = xml.parse(path).getroot()
        self.styles = {(style.get(name("style:family")), style.get(name("style:name"))): style
                       for style in root.iter(name("style:style"))}
        self.defaults = root.find(".//style:default-style[@style:family='paragraph']/"
                                  "style:text-properties", NAMESPACES)
        self.page = self.page_of(root)
        self.rows = []
        self.edges = []
        for table in root.iter(name("table:table")):
            edges = self.column_edges(table)
            for row in table.iter(name("table:table-row")):
                self.rows.append(list(row.findall("table:table-cell", NAMESPACES)))
                self.edges.append(self.right_edges(row, edges))

    @staticmethod
    def page_of(root):
        """The measures of the page in twips."""
        layout = root.find(".//style:master-page[@style:name='Standard']", NAMESPACES).get(
            name("style:page-layout-name"))
        properties = root.find(f".//style:page-layout[@style:name='{layout}']/"
                               "style:page-layout-properties", NAMESPACES)
        return {measure: twips(properties.get(name("fo:" + measure))) for measure in PAGE_MEASURES}

    def column_edges(self, table):
        """The right edges of a table's columns in twips."""
        edges = []
        for column in table.iter(name("table:table-column")):
            width = twips(self.property("table-column", column.get(name("table:style-name")),
                                        "style:table-column-properties", "style:column-width"))
            for _ in range(int(column.get(name("table:number-columns-repeated"), "1"))):
                edges.append((edges[-1] if edges else 0) + width)
        return edges

    @staticmethod
    def right_edges(row, column_edges):
        """The right edges of a row's cells, each of which may span columns."""
        columns = 0
        edges = []
        for cell in row.findall("table:table-cell", NAMESPACES):
            columns += int(cell.get(name("table:number-columns-spanned"), "1"))
            edges.append(column_edges[columns - 1])
        return edges

    def property(self, family, style, group, key):
        while style and (family, style) in self.styles:
            element = self.styles[family, style]
            properties = element.find(group, NAMESPACES)
            value = properties.get(name(key)) if properties is not None else None
            if value is not None:
                return value
            style = element.get(name("style:parent-style-name"))
        return None

    def cell_property(self, cell, key):
        return self.property("table-cell", cell.get(name("table:style-name")),
                             "style:table-cell-properties", key)

    def fill(self, cell):
        value = self.cell_property(cell, "fo:background-color")
        return None if value in (None, "transparent") else value

    def borders(self, cell):
        return [self.cell_property(cell, "fo:border-" + side)
                or self.cell_property(cell, "fo:border") for side in SIDES]

    def paragraphs(self, cell):
        return [paragraph for paragraph in cell.findall("text:p", NAMESPACES)
                if squeezed(office_text(paragraph))]

    def parts(self, paragraph):
        return joined(self.parts_of(paragraph, "paragraph", []))

    def parts_of(self, element, family, outer):
        """The parts of a paragraph or a span, which stands within elements of other styles."""
        styles = [(family, element.get(name("text:style-name"))), *outer]
        text_format = self.format(styles)
        yield element.text or "", text_format
        for child in element:
            if child.tag == name("text:span"):
                yield from self.parts_of(child, "text", styles)
            else:
                yield office_text(child), text_format
            yield child.tail or "", text_format

    def format(self, styles):
        def value(key):
            for family, style in styles:
                found = self.property(family, style, "style:text-properties", key)
                if found is not None:
                    return found
            return self.defaults.get(name(key))

        return format_of(value("style:font-name"), twips(value("fo:font-size")) / 20,
                         value("fo:color"), bold=value("fo:font-weight") == "bold",
                         italic=value("fo:font-style") == "italic",
                         underlined=value("style:text-underline-style") not in (None, "none"),
                         struck=value("style:text-line-through-style") not in (None, "none"))

    def alignment(self, paragraph):
        return self.property("paragraph", paragraph.get(name("text:style-name")),
                             "style:paragraph-properties", "fo:text-align")

    def style(self, paragraph):
        style = paragraph.get(name("text:style-name"))
        while re.fullmatch(r"P\d+", style):
            style = self.styles["paragraph", style].get(name("style:parent-style-name"))
        return self.styles["paragraph", style].get(name("style:display-name"), style).lower()


class AbiWord(html.parser.HTMLParser):
    """The table of an HTML page: rows of cells with their ground and the texts of paragraphs."""

    def __init__(self, path):
        super().__init__()
        self.texts = []
        self.fills = []
        self.in_paragraph = False
        with open(path, encoding="utf-8") as file:
            self.feed(file.read())

    def handle_starttag(self, tag, attributes):
        if tag == "tr":
            self.texts.append([])
            self.fills.append([])
        elif tag == "td":
            style = dict(attributes).get("style", "")
            ground = re.search(r"background-color:(#[0-9a-f]{6})", style)
            self.fills[-1].append(ground.group(1) if ground else None)
            self.texts[-1].append([])
        elif tag in ("p", "h1", "h2", "h3", "h4", "h5", "h6") and self.texts:
            self.in_paragraph = True
            self.texts[-1][-1].append("")

    def handle_endtag(self, tag):
        if tag in ("p", "h1", "h2", "h3", "h4", "h5", "h6"):
            self.in_paragraph = False

    def handle_data(self, data):
        if self.in_paragraph and self.texts and self.texts[-1] and self.texts[-1][-1]:
            self.texts[-1][-1][-1] += data


def pandoc_text(part):
    if isinstance(part, list):
        return "".join(pandoc_text(item) for item in part)
    if isinstance(part, dict):
        if part.get("t") in ("Space", "SoftBreak", "LineBreak"):
            return " "
        if part.get("t") == "Str":
            return part["c"]
        return pandoc_text(part.get("c", []))
    return ""


def pandoc_rows(path):
    with open(path, encoding="utf-8") as file:
        blocks = json.load(file)["blocks"]
    rows = []
    for block in blocks:
        if block["t"] == "Table":
            for body in block["c"][4]:
                rows += body[3]
    return [[[squeezed(pandoc_text(paragraph)) for paragraph in cell[4]] for cell in row[1]]
            for row in rows]


class Comparison:
    def __init__(self, document):
        self.document = document
        self.faults = []

    def equal(self, what, actual, expected):
        if actual != expected:
            self.faults.append(f"{self.document}: {what}: {actual}, should be {expected}")

    def near(self, what, actual, expected, tolerance):
        self.equal(what, expected if abs(actual - expected) <= tolerance else actual, expected)

    def libre_office(self, model, reader):
        rows = [[[squeezed(office_text(paragraph))
                  for paragraph in reader.paragraphs(cell)] for cell in row]
                for row in reader.rows]
        self.equal("LibreOffice's texts", rows, model.texts())
        if rows != model.texts():
            return
        self.page(reader.page, model.page)
        for row, edges, model_row in zip(reader.rows, reader.edges, model.rows):
            self.edges(squeezed(office_text(row[0])), edges, model_row)
            for cell, model_cell in zip(row, model_row):
                text = squeezed(office_text(cell))
                self.equal(f"LibreOffice's ground of '{text}'", reader.fill(cell),
                           model.fill(model_cell))
                self.borders(text, reader.borders(cell), model_cell)
                for paragraph, expected in zip(reader.paragraphs(cell),
                                               model.paragraphs(model_cell)):
                    self.paragraph(reader, paragraph, model, expected)

    def page(self, actual, page):
        # It does not read the number of the first page.
        for measure, tolerance in PAGE_MEASURES.items():
            self.near(f"LibreOffice's {measure}", actual[measure], page[measure], tolerance)

    def edges(self, text, actual, row):
        # It draws the last cell of a row up to the right edge of the table, and reports lengths with
        # four digits.
        right = 0
        for number, (edge, cell) in enumerate(zip(actual[:-1], row)):
            right += cell["width"]
            self.near(f"LibreOffice's edge {number + 1} of the row of '{text}'", edge, right, 3)

    def borders(self, text, actual, cell):
        for side, border, width in zip(SIDES, actual, cell["borders"]):
            self.equal(f"LibreOffice's {side} border of '{text}'", border,
                       f"{width / 20:g}pt solid #000000" if width > 0 else "none")

    def paragraph(self, reader, paragraph, model, expected):
        text = squeezed(office_text(paragraph))
        self.equal(f"LibreOffice's alignment of '{text}'", reader.alignment(paragraph),
                   ALIGNMENTS[expected["align"]])
        style = model.style(expected, readers_own="standard")
        if style:
            self.equal(f"LibreOffice's style of '{text}'", reader.style(paragraph), style)
        self.equal(f"LibreOffice's formats of '{text}'", reader.parts(paragraph),
                   model.parts(expected))

    def abi_word(self, model, reader):
        # Its HTML leaves blanks out where the format of the text changes, and what stands in front
        # of a line break within a paragraph.
        def without_blanks(rows):
            return [[[text for text in ("".join(text.split()) for text in cell) if text]
                     for cell in row] for row in rows]

        self.equal("AbiWord's texts", without_blanks(reader.texts),
                   without_blanks(model.texts(only_behind_line_breaks=True)))
        # Color 0, which a cell style without a ground gives, is black to it.
        expected = [["#000000" if cell["style"] and cell["fill"] == 0 else model.fill(cell)
                     for cell in row] for row in model.rows]
        self.equal("AbiWord's grounds", reader.fills, expected)

    def pandoc(self, model, rows):
        texts = [[[text for text in cell if text] for cell in row] for row in rows]
        expected = model.texts()
        # It fills up every row to the longest.
        longest = max(len(row) for row in expected)
        self.equal("pandoc's texts", texts,
                   [row + [[]] * (longest - len(row)) for row in expected])


def main():
    folder, documents = sys.argv[1], sys.argv[2:]
    faults = []
    for document in documents:
        comparison = Comparison(document)
        model = Model(folder, document)
        if not model.rows:
            faults.append(f"{document}: has no rows")
            continue
        comparison.libre_office(model, LibreOffice(f"{folder}/{document}.fodt"))
        comparison.abi_word(model, AbiWord(f"{folder}/{document}.html"))
        comparison.pandoc(model, pandoc_rows(f"{folder}/{document}.pandoc"))
        print(f"{document}: " + ("as it was" if not comparison.faults else "differs"))
        faults += comparison.faults
    print("\n".join(faults))
    sys.exit(1 if faults or not documents else 0)


main()
