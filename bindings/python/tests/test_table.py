"""Tables of rows."""

import collections
import dataclasses
import datetime
import decimal
import io
import os
import pathlib
import re
import sqlite3
from typing import Any, Dict, Iterator, List, Sequence, Tuple

import pytest
import quorvane

from bodies import body

VASE_ROW = (b"{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\trkeep \\cellx4819 \\cellx9638 \r\n\r\n\r\n"
            b"\\pard\\plain\\intbl\\s100\\f0\\fs18\\sb40\\sa40 Vase \\{{\\uc1\\u8364?}\\}\\cell "
            b"\r\n\r\n\r\n"
            b"\\pard\\plain\\intbl\\s100\\f0\\fs18\\sb40\\sa40 \\qr 12.5\\cell\\row}"
            b"\\pard\\plain\\sl-20\\slmult0\\fs2\\par}")
MAPPINGS = [{"Article": "Vase {€}", "Price": 12.5}]
ITEM = collections.namedtuple("ITEM", "Article Price")


@dataclasses.dataclass
class Item:
    Article: str
    Price: float


class Pandas:
    """A data frame with the part of pandas' interface that is used."""

    columns = ["Article", "Price"]

    def itertuples(self, index: bool = True, name: Any = "Pandas") -> Iterator[Tuple[Any, ...]]:
        assert (index, name) == (False, None)
        return iter([("Vase {€}", 12.5)])


class Polars:
    """A data frame with the part of polars' interface that is used."""

    columns = ["Article", "Price"]

    def iter_rows(self) -> Iterator[Tuple[Any, ...]]:
        return iter([("Vase {€}", 12.5)])


def texts_of(rtf: bytes) -> List[List[str]]:
    """The texts of the cells of the table, row by row."""
    rows = rtf[rtf.rindex(b"\\footer"):].split(b"{\\intbl")[1:]
    return [[text_of(cell) for cell in row.split(b"\\pard\\plain\\intbl") if b"\\cell" in cell[5:]
             and b"\\cellx" not in cell] for row in rows]


def text_of(cell: bytes) -> str:
    """A text without the control words before it."""
    return re.sub(r"^(\\[a-z]+-?\d* ?|\s)*", "", cell.split(b"\\cell")[0].decode())


def test_a_row_with_names_is_refused_where_cells_have_places() -> None:
    row = {"Price": 12.5, "Article": "Vase"}
    message = "A row is a sequence of cells, not a dict: {'Price': 12.5, 'Article': 'Vase'}. " \
        "Rows with names of fields are for table and table_to."
    doc = quorvane.Document()
    with quorvane.TableWriter(None, ["Article", "Price"]) as writer:
        for add in (writer.add_row, lambda row: writer.add_rows([row]), writer.add_total,
                    doc.add_row, lambda row: doc.add_rows([row])):
            with pytest.raises(TypeError, match=f"^{re.escape(message)}$"):
                add(row)  # type: ignore[operator]
            with pytest.raises(TypeError, match="not a set"):
                add({"Vase"})  # type: ignore[operator]
        writer.add_row(row.values())
        assert writer.rows == 1
    assert len(doc.rows) == 0


def test_a_line_has_at_most_three_texts() -> None:
    assert b" left\\tab center\\tab" in quorvane.table([["a"]], header=("left", "center", ""))
    for line in (("a", "b", "c", "d"), (1, 2, 3)):
        with pytest.raises(TypeError, match="^A line is a text, or three texts for left, center"):
            quorvane.table([["a"]], footer=line)  # type: ignore[arg-type]
        with pytest.raises(TypeError, match="^A line is a text, or three texts for left, center"):
            quorvane.Document(header=line)  # type: ignore[arg-type]


def test_a_text_of_another_type_is_named() -> None:
    with pytest.raises(TypeError, match="^A text is a str, not int: 2027$"):
        quorvane.table([["a"]], title=2027)  # type: ignore[arg-type]


def test_mappings_become_a_table_with_a_heading() -> None:
    rtf = quorvane.table(MAPPINGS)
    assert body(rtf) == VASE_ROW
    assert b" Article\\cell" in rtf
    assert b" \\qr Price\\cell" in rtf


@pytest.mark.parametrize("rows", [
    iter(MAPPINGS), [ITEM("Vase {€}", 12.5)], [Item("Vase {€}", 12.5)], Pandas(), Polars(),
    sqlite3.connect(":memory:").execute("select 'Vase {€}' as Article, 12.5 as Price"),
], ids=["mappings", "named tuples", "data classes", "pandas", "polars", "cursor"])
def test_all_sources_with_names_make_the_same_table(rows: Any) -> None:
    assert quorvane.table(rows) == quorvane.table(MAPPINGS)


def test_rows_of_sqlite_have_names() -> None:
    connection = sqlite3.connect(":memory:")
    connection.row_factory = sqlite3.Row
    rows = connection.execute("select 'Vase {€}' as Article, 12.5 as Price").fetchall()
    assert quorvane.table(rows) == quorvane.table(MAPPINGS)


def test_sequences_with_columns_make_the_same_table() -> None:
    assert quorvane.table([("Vase {€}", 12.5)], ["Article", "Price"]) == quorvane.table(MAPPINGS)


def test_sequences_without_columns_make_a_table_without_heading() -> None:
    rtf = quorvane.table([("Vase {€}", 12.5)])
    assert body(rtf) == VASE_ROW
    assert b"{\\header" not in rtf


def test_columns_select_fields_in_their_order() -> None:
    rtf = quorvane.table(MAPPINGS, ["Price", quorvane.Column("Name", field="Article")])
    assert texts_of(rtf) == [["12.5", "Vase \\{{\\uc1\\u8364?}\\}"]]
    assert b" Name\\cell" in rtf


def test_a_column_that_no_row_has_is_an_error() -> None:
    with pytest.raises(quorvane.Error, match="no field 'Weight'. They have: Article, Price."):
        quorvane.table(MAPPINGS, ["Weight"])


def test_a_field_that_the_first_row_lacks_is_an_error() -> None:
    with pytest.raises(quorvane.Error, match="Row 2 has the field 'b', which the first row does"):
        quorvane.table([{"a": 1}, {"a": 1, "b": 2}])


def test_columns_have_widths_alignments_and_formats() -> None:
    columns = [quorvane.Column("Article", "70%", "center"),
               quorvane.Column("Price", "30%", format="{:.2f} €".format)]
    rtf = quorvane.table([*MAPPINGS, {"Price": None}], columns)
    assert b"\\cellx6747 " in rtf
    assert texts_of(rtf) == [["Vase \\{{\\uc1\\u8364?}\\}", "12.50 {\\uc1\\u8364?}"], ["{}", "{}"]]
    assert rtf.count(b"\\qc") == 3


def test_an_unknown_alignment_is_a_value_error() -> None:
    with pytest.raises(ValueError, match="The alignment is one of '', 'center', 'left'"):
        quorvane.table(MAPPINGS, [quorvane.Column("Article", align="middle")])


def test_values_show_as_text_and_missing_ones_are_empty() -> None:
    class NAType:
        def __bool__(self) -> bool:
            raise TypeError("boolean value of NA is ambiguous")

        def __ne__(self, other: object) -> Any:
            return self

    row = [1, decimal.Decimal("1.50"), datetime.date(2027, 2, 1), True]
    assert texts_of(quorvane.table([row])) == [["1", "1.50", "2027-02-01", "True"]]
    assert texts_of(quorvane.table([[None, float("nan"), NAType()]])) == [["{}", "{}", "{}"]]


def test_only_columns_of_numbers_are_at_the_right() -> None:
    rtf = quorvane.table([(1, "1", True, None), (None, 2, False, None)])
    assert rtf.count(b"\\qr") == 2
    assert b"\\qr 1\\cell" in rtf


def test_rows_can_be_short() -> None:
    assert texts_of(quorvane.table([("a", "b"), ("c",), ()])) == [
        ["a", "b"], ["c", "{}"], ["{}", "{}"]]


@pytest.mark.parametrize("row, message", [
    (("a", "b", "c"), r"Row 701: The row has 3 cells; the table has 2 columns."),
    (("a", "x\0y"), r"Row 701: Cell 2: No document can show the control character U\+0000"),
    (("a", "x\1y"), r"Row 701: Cell 2: No document can show the control character U\+0001"),
])
def test_a_wrong_row_is_an_error_with_its_number(row: Sequence[str], message: str) -> None:
    with pytest.raises(quorvane.Error, match=message):
        quorvane.table([("a", "b")] * 700 + [row] + [("a", "b")] * 700)


def test_a_row_that_is_a_text_is_a_type_error() -> None:
    with pytest.raises(TypeError, match="A row is a sequence of cells, not a text: 'Vase'"):
        quorvane.table(["Vase"])


def test_no_rows_need_columns() -> None:
    with pytest.raises(quorvane.Error, match="no rows to take the columns from"):
        quorvane.table([])
    assert b" Article\\cell" in quorvane.table([], ["Article"])


def test_options_are_those_of_the_command() -> None:
    rtf = quorvane.table(MAPPINGS, title="Prices", page="letter", margin="1in", border="hair",
                         stripe="none", header="Dvořák", footer=("left", "", "{page}"))
    assert b"\\paperw12240" in rtf
    assert b"\\margl1440" in rtf
    assert b" Prices\\cell" in rtf
    assert b"\\brdrw5" in rtf
    assert b"Dvo{\\uc1\\u345?}{\\uc1\\u225?}k" in rtf or b"Dvo{\\uc1\\u345?}\\'E1k" in rtf
    assert b" left\\tab \\tab {\\field{\\*\\fldinst PAGE}" in rtf


def test_a_wrong_option_is_an_error() -> None:
    with pytest.raises(quorvane.Error, match='"a77" is not a page'):
        quorvane.table(MAPPINGS, page="a77")


def test_rows_of_any_number_are_written(tmp_path: pathlib.Path) -> None:
    target = tmp_path / "rows.rtf"
    assert quorvane.table_to(target, ((str(number),) for number in range(1234))) == 1234
    assert texts_of(target.read_bytes()) == [[str(number)] for number in range(1234)]


def test_a_file_object_gets_the_same_bytes() -> None:
    file = io.BytesIO()
    assert quorvane.table_to(file, MAPPINGS) == 1
    assert file.getvalue() == quorvane.table(MAPPINGS)


def test_rows_that_raise_leave_no_file(tmp_path: pathlib.Path) -> None:
    def rows() -> Iterator[Tuple[str]]:
        yield ("a",)
        raise RuntimeError("the connection is gone")

    (tmp_path / "old.rtf").write_bytes(b"old")
    with pytest.raises(RuntimeError, match="the connection is gone"):
        quorvane.table_to(tmp_path / "old.rtf", rows())
    with pytest.raises(RuntimeError):
        quorvane.table_to(tmp_path / "new.rtf", rows())
    assert os.listdir(tmp_path) == ["old.rtf"]
    assert (tmp_path / "old.rtf").read_bytes() == b"old"


def test_a_folder_that_does_not_exist_is_an_os_error() -> None:
    with pytest.raises(OSError, match="/nowhere/rows.rtf: No such file or directory"):
        quorvane.table_to("/nowhere/rows.rtf", MAPPINGS)


def test_a_full_file_object_raises_its_own_error() -> None:
    class Full:
        def write(self, data: bytes) -> int:
            raise OSError(28, "No space left on device")

    with pytest.raises(OSError) as raised:
        quorvane.table_to(Full(), [("x" * 100,)] * 10000)
    assert raised.value.errno == 28


def test_columns_are_as_wide_as_their_contents_ask_for() -> None:
    rows = [{"Article": "Vase", "Price": "12,50"}, {"Article": "Bowl", "Price": "7,00"}]
    expected = quorvane.table(rows, [quorvane.Column("Article", "93.14%"),
                                     quorvane.Column("Price", "6.85%", "right")])
    assert quorvane.table(rows, widths="fit") == expected
    assert quorvane.table(rows, widths="fit") == quorvane.table_of_file(
        "Article;Price\nVase;12,50\nBowl;7,00\n".encode())
    file = io.BytesIO()
    assert quorvane.table_to(file, rows, widths="fit") == 2
    assert file.getvalue() == expected


def test_columns_with_a_width_keep_it() -> None:
    rtf = quorvane.table([("Vase", 1)], [quorvane.Column("Article", "30%"), "Number"], widths="fit")
    assert rtf == quorvane.table([("Vase", 1)], [
        quorvane.Column("Article", "30%"), quorvane.Column("Number", "70%", "right")])


def test_only_wide_tables_with_fitted_columns_are_in_landscape() -> None:
    wide = [["x" * 30] * 9]
    assert b"\\paperw16838" in quorvane.table(wide, widths="fit")
    assert b"\\paperw11906" in quorvane.table(wide)
    assert b"\\paperw11906" in quorvane.table(wide, widths="fit", page="a4")


def test_rows_after_the_first_ones_are_written_as_they_come() -> None:
    written: List[bytes] = []

    class Noting:
        def write(self, data: bytes) -> None:
            written.append(data)

    with quorvane.TableWriter(Noting(), ["Number"], widths="fit") as writer:
        writer.add_rows((number,) for number in range(900))
        assert not written
        writer.add_rows((number,) for number in range(900, 5000))
        assert written
    assert b" 4999\\cell" in b"".join(written)


def test_a_wrong_row_of_a_table_with_fitted_columns_is_an_error_with_its_number() -> None:
    with pytest.raises(quorvane.Error, match="Row 3: Cell 1: No document can show"):
        quorvane.table([("a",), ("b",), ("\1",)], widths="fit")


def test_unknown_widths_are_a_value_error() -> None:
    with pytest.raises(ValueError, match="The choice of widths is one of 'even', 'fit', not 'wi"):
        quorvane.table(MAPPINGS, widths="wide")


def test_a_writer_writes_rows_groups_and_totals() -> None:
    with quorvane.TableWriter(None, ["Article", "Price"]) as writer:
        writer.add_group("Glass")
        writer.add_row(["Vase", 1])
        writer.add_rows([["Bowl", 2], ["Dish"]])
        writer.add_total(["Total", 3])
    assert texts_of(writer.rtf) == [["Glass"], ["Vase", "1"], ["Bowl", "2"], ["Dish", "{}"],
                                    ["Total", "3"]]
    assert b"\\s103" in writer.rtf
    assert writer.rows == 3


def test_a_writer_goes_on_after_a_wrong_row() -> None:
    with quorvane.TableWriter(None, ["Article"]) as writer:
        writer.add_row(["Vase"])
        with pytest.raises(quorvane.Error, match="The row has 2 cells"):
            writer.add_row(["Bowl", "Dish"])
        writer.add_row(["Cup"])
    assert texts_of(writer.rtf) == [["Vase"], ["Cup"]]


def test_a_writer_that_is_not_finished_has_no_document() -> None:
    writer = quorvane.TableWriter(None, ["Article"])
    with pytest.raises(quorvane.Error, match="The table is not finished."):
        writer.rtf
    writer.finish()
    with pytest.raises(quorvane.Error, match="The table is finished"):
        writer.add_row(["Vase"])
    assert writer.rtf.startswith(b"{\\rtf1")


def test_a_writer_shows_what_it_is() -> None:
    writer = quorvane.TableWriter(None, ["Article"])
    writer.add_row(["Vase"])
    assert repr(writer) == "<quorvane.TableWriter: 1 columns, 1 rows, open>"
    writer.finish()
    assert repr(writer) == "<quorvane.TableWriter: 1 columns, 1 rows, finished>"


def test_a_stylesheet_of_ones_own_formats_the_cells() -> None:
    names = ("table-cell", "table-heading", "table-title", "table-group", "table-total", "footer")
    stylesheet = "; quorvane 2\n" + "".join(
        f"{{ name: {name}; style-def: paragraph; size: {size}pt }}\n"
        for size, name in enumerate(names, 7))
    assert b"\\fs14 Vase" in quorvane.table(MAPPINGS, stylesheet=stylesheet)
