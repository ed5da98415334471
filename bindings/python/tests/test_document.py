"""Documents of rows, cells and paragraphs."""

import io
import os
import pathlib
from typing import Any, Callable

import pytest
import quorvane
from quorvane import Document

from bodies import body

LOGO = pathlib.Path(__file__).parent / "logo.png"
STYLES = ("; quorvane 2\n{ name: normal; style-def: paragraph; size: 11pt }\n"
          "{ name: small; style-def: paragraph; size: 7pt }\n"
          "{ name: red; style-def: character; color: red }\n")


def test_a_row_has_a_cell_for_each_value() -> None:
    doc = Document(columns="70 30")
    doc.add_row(["Vase {€}", 12.5])
    assert body(doc.rtf) == (
        b"{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx5953 \\cellx8504 \r\n\r\n\r\n"
        b"\\pard\\plain\\intbl Vase \\{{\\uc1\\u8364?}\\}\\cell \r\n\r\n\r\n"
        b"\\pard\\plain\\intbl 12.5\\cell\\row}\\pard\\plain\\sl-20\\slmult0\\fs2\\par}")


def test_many_rows_are_as_single_ones() -> None:
    rows = [[number, None, "x"] for number in range(1200)]
    many, single = Document(), Document()
    many.add_rows(rows)
    for row in rows:
        single.add_row(row)
    assert many.rtf == single.rtf
    assert len(many.rows) == 1200


def test_many_rows_can_have_different_lengths() -> None:
    doc = Document()
    doc.add_rows([["a"], ["b", "c"], []])
    assert [len(row.cells) for row in doc.rows] == [1, 2, 0]


def test_widths_are_a_text_or_a_list() -> None:
    listed, written = Document(columns=[20, "auto", "3cm"]), Document(columns="20 auto 3cm")
    for doc in (listed, written):
        doc.add_row(["a", "b", "c"])
    assert listed.rtf == written.rtf
    assert b"\\cellx1701 \\cellx6803 \\cellx8504 " in listed.rtf


def test_rows_are_a_sequence() -> None:
    doc = Document()
    doc.add_rows([["a"], ["b"], ["c"]])
    assert [row.cells[0].paragraphs[0].rtf for row in doc.rows] == ["a", "b", "c"]
    assert doc.rows[-1].index == 2
    assert [row.index for row in doc.rows[1:]] == [1, 2]
    assert len(doc.rows) == 3
    with pytest.raises(IndexError, match="There is no index 3; the length is 3."):
        doc.rows[3]


def test_elements_are_removed_and_inserted() -> None:
    doc = Document()
    doc.add_rows([["a", "x"], ["b", "y"], ["c", "z"]])
    del doc.rows[1]
    doc.insert_row(0, ["first", "!"])
    doc.rows[1].insert_cell(1, "between")
    del doc.rows[2].cells[-1]
    doc.rows[2].cells[0].insert_paragraph(0, "above")
    doc.rows[2].cells[0].add_paragraph("below")
    del doc.rows[2].cells[0].paragraphs[1]
    assert [[[paragraph.rtf for paragraph in cell.paragraphs] for cell in row.cells]
            for row in doc.rows] == [[["first"], ["!"]], [["a"], ["between"], ["x"]],
                                     [["above", "below"]]]


@pytest.mark.parametrize("index", [-9, -3, -2, -1, 0, 1, 2, 3, 9])
def test_elements_are_inserted_where_a_list_inserts_them(index: int) -> None:
    expected = ["a", "b"]
    expected.insert(index, "new")
    doc = Document()
    doc.add_rows([["a"], ["b"]])
    row = doc.insert_row(index, ["new"])
    assert [each.cells[0].paragraphs[0].rtf for each in doc.rows] == expected
    assert row.cells[0].paragraphs[0].rtf == "new"

    doc = Document()
    doc.add_row(["a", "b"])
    cell = doc.rows[0].insert_cell(index, "new")
    assert [each.paragraphs[0].rtf for each in doc.rows[0].cells] == expected
    assert cell.paragraphs[0].rtf == "new"

    cell = doc.add_row(["a"]).cells[0]
    cell.add_paragraph("b")
    paragraph = cell.insert_paragraph(index, "new")
    assert [each.rtf for each in doc.rows[1].cells[0].paragraphs] == expected
    assert paragraph.rtf == "new"


def test_an_element_that_may_have_moved_is_not_used() -> None:
    doc = Document()
    doc.add_rows([["a"], ["b"]])
    row, cells = doc.rows[1], doc.rows[1].cells
    doc.add_row(["c"])
    row.set(keep=True)
    del doc.rows[0]
    with pytest.raises(quorvane.Error, match="The row may have moved, because one was inserted"):
        row.set(keep=True)
    with pytest.raises(quorvane.Error, match="The row may have moved"):
        len(cells)


@pytest.mark.parametrize("change, word", [
    (lambda doc: doc.set(page="letter"), b"\\paperw12240"),
    (lambda doc: doc.set(page_size=("10cm", "20cm")), b"\\paperw5669\\paperh11339"),
    (lambda doc: doc.set(margin="1in"), b"\\margb1440\\margl1440\\margt1440\\margr1440"),
    (lambda doc: doc.set(left_margin="1in"), b"\\margl1440\\margt1418"),
    (lambda doc: doc.set(first_page=7), b"\\pgnstart7"),
    (lambda doc: doc.set(header="Prices"), b"\\tab Prices\\tab"),
    (lambda doc: doc.set(footer=("left", "", "{page}")), b" left\\tab \\tab {\\field"),
    (lambda doc: doc.rows[0].set(heading=True), b"{\\header"),
    (lambda doc: doc.set(heading_in_table=True).rows[0].set(heading=True), b"\\trhdr"),
    (lambda doc: doc.rows[0].set(background="silver"), b"\\clcbpat32"),
    (lambda doc: doc.rows[0].set(border="thick", sides="bottom"), b"\\clbrdrb\\brdrs\\brdrw30"),
    (lambda doc: doc.rows[0].set(border=7), b"\\clbrdrt\\brdrs\\brdrw7"),
    (lambda doc: doc.rows[0].set(columns="10 90"), b"\\cellx850 "),
    (lambda doc: doc.rows[0].set(keep=True), b"\\trkeep"),
    (lambda doc: doc.rows[0].set(keep_with_next=True), b"\\keepn"),
    (lambda doc: doc.rows[1].set(page_break=True), b"\\pagebb"),
    (lambda doc: doc.rows[0].cells[0].set(background="silver"), b"\\clcbpat32"),
    (lambda doc: doc.rows[0].cells[0].set(border="hair", sides=["top", "left"]),
     b"\\clbrdrl\\brdrs\\brdrw5\\clbrdrt\\brdrs\\brdrw5"),
    (lambda doc: doc.rows[0].cells[0].set(align="right"), b"\\qr Vase"),
    (lambda doc: doc.rows[0].cells[0].set(marked_field="key"), b"\\txfielddata 6B6579}"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set(text="{", style="small"), b"\\fs14 \\{"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set(align="center"), b"\\qc Vase"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set(color="#010203"),
     b"\\red1\\green2\\blue3;"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set(marked_field="key"),
     b"\\txfielddata 6B6579}"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].add_text("!", bold=True, italic=True),
     b"{\\b {\\i !}}"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].add_text("!", underlined=True), b"{\\ul !}"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].add_styled_text("!", "red"), b"{\\cs"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].add_rtf("{\\b x}"), b"{\\b x}"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set_picture(LOGO, height="1cm"),
     b"\\pichgoal567"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set_picture(LOGO.read_bytes()), b"\\pngblip"),
])
def test_what_is_set_is_in_the_document(change: Callable[[Document], Any], word: bytes) -> None:
    doc = Document(stylesheet=STYLES)
    doc.add_rows([["Vase", "12.50"], ["Bowl", "7"]])
    assert word not in doc.rtf
    change(doc)
    assert word in doc.rtf


def test_a_cell_takes_several_columns() -> None:
    doc = Document(columns="20 30 50")
    doc.add_row().add_cell("wide").set(span=(3, 1))
    assert b"\\trleft0 \\cellx8504 " in doc.rtf


def test_setting_returns_what_was_set() -> None:
    doc = Document()
    assert doc.set(page="a5") is doc
    row = doc.add_row()
    cell = row.add_cell(None)
    paragraph = cell.add_paragraph("a")
    assert row.set(keep=True) is row
    assert cell.set(align="left") is cell
    assert paragraph.set(align="left").add_text("b") is paragraph
    assert paragraph.rtf == "ab"


@pytest.mark.parametrize("change, message", [
    (lambda doc: doc.rows[0].set(background="rred"), '"rred" is not a color'),
    (lambda doc: doc.set(page="a77"), "a77"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set(style="huge"), "huge"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set(text="\1"), "control character"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].add_rtf("}"), "closes a group"),
    (lambda doc: doc.rows[0].cells[0].paragraphs[0].set_picture(b"GIF89a"), "PNG"),
])
def test_a_wrong_value_is_an_error(change: Callable[[Document], Any], message: str) -> None:
    doc = Document(stylesheet=STYLES)
    doc.add_row(["Vase"])
    before = doc.rtf
    with pytest.raises(quorvane.Error, match=message):
        change(doc)
    assert doc.rtf == before


@pytest.mark.parametrize("change, name", [
    (lambda doc: doc.set(first_page=2**32 + 5), "first_page"),
    (lambda doc: doc.set(heading_in_table=2**32), "heading_in_table"),
    (lambda doc: doc.insert_row(2**64 + 1), "index"),
    (lambda doc: doc.insert_row(-2**64), "index"),
    (lambda doc: doc.rows[0].insert_cell(2**64), "index"),
    (lambda doc: doc.rows[0].set(border=2**32 + 5), "border"),
    (lambda doc: doc.rows[0].set(keep=2**32 + 1), "keep"),
    (lambda doc: doc.rows[0].cells[0].insert_paragraph(2**64), "index"),
    (lambda doc: doc.rows[0].cells[0].set(border=-2**32 + 5), "border"),
    (lambda doc: doc.rows[0].cells[0].set(span=(2**32 + 2, 1)), "span"),
    (lambda doc: doc.rows[0].cells[0].set(span=(1, 2**32 + 2)), "span"),
])
def test_a_number_is_not_cut(change: Callable[[Document], Any], name: str) -> None:
    doc = Document()
    doc.add_row(["Vase"])
    before = doc.rtf
    with pytest.raises(quorvane.Error, match=f"^{name} is out of range: -?[0-9]+.$"):
        change(doc)
    assert doc.rtf == before


@pytest.mark.parametrize("change, message", [
    (lambda doc: doc.rows[0].set(border="fat"), "The border is one of 'none', 'hair'"),
    (lambda doc: doc.rows[0].set(border="hair", sides="under"), "The side is one of 'left'"),
    (lambda doc: doc.rows[0].cells[0].set(align="middle"), "The alignment is one of"),
])
def test_a_wrong_choice_is_a_value_error(change: Callable[[Document], Any], message: str) -> None:
    doc = Document()
    doc.add_row(["Vase"])
    with pytest.raises(ValueError, match=message):
        change(doc)


def test_a_zero_byte_is_an_error_and_cuts_no_text() -> None:
    doc = Document()
    with pytest.raises(quorvane.Error, match="control character"):
        doc.add_row(["a\0b"])
    with pytest.raises(quorvane.Error, match="control character"):
        doc.add_rows([["a\0b"]])
    assert len(doc.rows) == 0


def test_a_document_is_saved_whole(tmp_path: pathlib.Path) -> None:
    doc = Document()
    doc.add_row(["Vase"])
    doc.save(tmp_path / "page.rtf")
    assert (tmp_path / "page.rtf").read_bytes() == doc.rtf == bytes(doc)
    assert os.listdir(tmp_path) == ["page.rtf"]
    with pytest.raises(OSError, match="No such file or directory"):
        doc.save(tmp_path / "nowhere" / "page.rtf")


def test_a_document_is_written_to_a_file_object() -> None:
    doc = Document()
    doc.add_row(["Vase"])
    file = io.BytesIO()
    doc.write_to(file)
    assert file.getvalue() == doc.rtf


def test_a_document_closes_with_its_block() -> None:
    with Document() as doc:
        row = doc.add_row(["Vase"])
        assert repr(doc) == "<quorvane.Document: 1 rows>"
    assert repr(doc) == "<quorvane.Document: closed>"
    with pytest.raises(quorvane.Error, match="The document is closed."):
        row.set(keep=True)


def test_elements_show_where_they_are() -> None:
    doc = Document()
    row = doc.add_row(["Vase"])
    assert repr(row) == "<quorvane.Row 0>"
    assert repr(row.cells[0]) == "<quorvane.Cell 0 in row 0>"
    assert repr(row.cells[0].paragraphs[0]) == "<quorvane.Paragraph 0 of cell 0 in row 0>"


def test_a_row_outlives_the_variable_of_its_document() -> None:
    def first_row() -> quorvane.Row:
        return Document().add_row(["Vase"])

    assert first_row().cells[0].paragraphs[0].rtf == "Vase"
