"""Tables of data files."""

import io
import pathlib
from typing import Any, Dict

import pytest
import quorvane
from quorvane import Column

PRICES = "Article;Price\r\nVase;12,50\r\nBowl;7,00\r\n".encode()
# The columns that these prices ask for.
FITTED = [Column("Article", "93.14%"), Column("Price", "6.85%", "right")]
EXPECTED = quorvane.table([("Vase", "12,50"), ("Bowl", "7,00")], FITTED)


def test_a_file_becomes_a_table_with_fitted_columns(tmp_path: pathlib.Path) -> None:
    path = tmp_path / "prices.csv"
    path.write_bytes(PRICES)
    assert quorvane.table_of_file(path) == EXPECTED
    assert quorvane.table_of_file(str(path)) == EXPECTED
    assert quorvane.table_of_file(path).diagnostics == ()


def test_the_bytes_of_a_file_become_the_same_table() -> None:
    assert quorvane.table_of_file(PRICES) == EXPECTED


@pytest.mark.parametrize("data", [
    b'[{"Article": "Vase", "Price": "12,50"}, {"Article": "Bowl", "Price": "7,00"}]',
    b'{"Article": "Vase", "Price": "12,50"}\n{"Article": "Bowl", "Price": "7,00"}\n',
])
def test_json_becomes_the_same_table(data: bytes) -> None:
    assert quorvane.table_of_file(data) == EXPECTED
    assert quorvane.table_of_file(data, format="json") == EXPECTED


def test_a_table_of_a_file_goes_to_a_path_or_a_file_object(tmp_path: pathlib.Path) -> None:
    assert quorvane.table_of_file_to(tmp_path / "prices.rtf", PRICES) == ()
    assert (tmp_path / "prices.rtf").read_bytes() == EXPECTED
    file = io.BytesIO()
    assert quorvane.table_of_file_to(file, PRICES) == ()
    assert file.getvalue() == EXPECTED


def test_rows_are_sorted_grouped_and_added_up() -> None:
    data = b"Kind,Article,Price\nWood,Shelf,3.5\nGlass,Vase,1\nGlass,Bowl,20\n"
    with quorvane.TableWriter(None, [Column("Article", "93.14%"), Column("Price", "6.85%", "right")]
                              ) as writer:
        writer.add_group("Glass")
        writer.add_rows([("Bowl", "20"), ("Vase", "1")])
        writer.add_group("Wood")
        writer.add_row(("Shelf", "3.5"))
        writer.add_total(("Sum", "24.5"))
    found = quorvane.table_of_file(data, 'Article:93.14%,Price:6.85%:right', sort="Kind,Price:desc",
                                   group_by="Kind", total="Price", total_label="Sum")
    assert found == writer.rtf
    assert found == quorvane.table_of_file(data, FITTED, sort="Kind,Price:desc", group_by="Kind",
                                           total=["Price"], total_label="Sum")


def test_columns_are_a_list_or_a_text_with_filters() -> None:
    data = 'sku,"Name, ""full"""\n17,vase\n'.encode()
    columns = [Column("Article", "60%", "center", field='Name, "full"'), Column("sku", "40%")]
    assert quorvane.table_of_file(data, columns) == quorvane.table([("vase", "17")], [
        Column("Article", "60%", "center"), Column("sku", "40%", "right")])
    assert quorvane.table_of_file(data, "sku:100%:left:number:1") == quorvane.table(
        [("17.0",)], [Column("sku", "100%", "left")])
    assert quorvane.table_of_file(data, ["sku"]) == quorvane.table_of_file(data, "sku")


def test_a_column_with_a_format_is_an_error() -> None:
    with pytest.raises(quorvane.Error, match="'Price' has a format, which is for rows of Python"):
        quorvane.table_of_file(PRICES, [Column("Price", format="{:.2f}".format)])
    with pytest.raises(quorvane.Error, match="There are no columns."):
        quorvane.table_of_file(PRICES, [])


@pytest.mark.parametrize("options", [
    {"locale": "de-DE"}, {"delimiter": ";"}, {"encoding": "windows-1252"}, {"format": "csv"},
    {"limit": 2}, {"keep_going": True}, {"group_pages": False}, {"page": "a4"}, {"margin": "2cm"},
])
def test_an_option_may_say_what_is_so(options: Dict[str, Any]) -> None:
    assert quorvane.table_of_file(PRICES, **options) == EXPECTED


def test_options_reach_the_library() -> None:
    rtf: bytes = quorvane.table_of_file(b"a;b\n1.250;caf\xe9\n2;x\n", "a:money,b", locale="de-DE",
                                 encoding="windows-1252", delimiter=";", limit=1, title="T",
                                 header="H", heading=False, page="letter")
    assert b" 1.250,00\\cell" in rtf
    assert b" caf\\'E9\\cell" in rtf
    assert b" x\\cell" not in rtf
    assert b"\\paperw12240" in rtf
    assert b" T\\cell" in rtf
    assert b" a\\cell" not in rtf
    pages: bytes = quorvane.table_of_file(b"k,a\nx,1\ny,2\n", group_by="k", group_pages=True)
    assert b"\\pagebb" in pages


def test_a_row_that_is_wrong_is_an_error_with_its_line(tmp_path: pathlib.Path) -> None:
    path = tmp_path / "list.csv"
    path.write_bytes(b"name,price\nVase,12\nBowl,7,50\nCandle,3\n")
    (tmp_path / "old.rtf").write_bytes(b"old")
    with pytest.raises(quorvane.Error) as raised:
        quorvane.table_of_file_to(tmp_path / "old.rtf", path)
    assert str(raised.value) == f"{path}:3: The row has 3 fields, and the heading has 2."
    assert (raised.value.file, raised.value.line) == (str(path), 3)
    assert (tmp_path / "old.rtf").read_bytes() == b"old"


def test_rows_that_are_left_out_are_diagnostics() -> None:
    rtf = quorvane.table_of_file(b"name,price\nVase,12\nBowl,7,50\nCandle,3\n", keep_going=True)
    assert [str(each) for each in rtf.diagnostics] == [
        "data:3:1: error: The row has 3 fields, and the heading has 2. [wrong-value]"]
    assert rtf == quorvane.table_of_file(b"name,price\nVase,12\nCandle,3\n")


def test_an_error_has_the_rows_that_were_left_out_before_it() -> None:
    with pytest.raises(quorvane.Error) as raised:
        quorvane.table_of_file(b'n,p\nVase,1\nBowl,7,50\nJug,1,2\n"Dish,3\n', keep_going=True)
    assert [str(each) for each in raised.value.diagnostics] == [
        "data:3:1: error: The row has 3 fields, and the heading has 2. [wrong-value]",
        "data:4:1: error: The row has 3 fields, and the heading has 2. [wrong-value]"]
    assert raised.value.line == 5
    assert str(raised.value).endswith(" (2 more in diagnostics)")


@pytest.mark.parametrize("column, message", [
    (Column("Price", width="number"), "'number' is not the width of a column"),
    (Column("Price", width="10%,Article"), "'10%,Article' is not the width of a column"),
    (Column("Price", width="10"), "'10' is not the width of a column; write a number with %, mm"),
    (Column("Price", width="0%"), '"0%" is not the width of a column'),
])
def test_a_wrong_width_is_an_error(column: Column, message: str) -> None:
    with pytest.raises(quorvane.Error, match=message):
        quorvane.table_of_file(PRICES, [column])


@pytest.mark.parametrize("align", ["middle", "auto", "centered", "number"])
def test_an_unknown_alignment_is_a_value_error(align: str) -> None:
    with pytest.raises(ValueError, match=f"The alignment is one of .*, not '{align}'"):
        quorvane.table_of_file(PRICES, [Column("Price", "20%", align)])


@pytest.mark.parametrize("width", ["100%", "3cm", "30.5mm", ".5in", "40pt"])
def test_a_width_is_a_number_with_a_unit(width: str) -> None:
    assert quorvane.table_of_file(PRICES, [Column("Price", width, "left")]) == quorvane.table(
        [("12,50",), ("7,00",)], [Column("Price", width, "left")])


def test_a_width_may_have_a_blank_before_percent() -> None:
    assert quorvane.table_of_file(PRICES, [Column("Article", "70 %"), Column("Price", "30 %")]) == (
        quorvane.table_of_file(PRICES, "Article:70%,Price:30%"))


def test_a_total_without_a_name_is_an_error() -> None:
    for total in ["Price", ""], [""]:
        with pytest.raises(quorvane.Error, match="A field in total has no name."):
            quorvane.table_of_file(PRICES, total=total)
    assert quorvane.table_of_file(PRICES, total="") == EXPECTED
    with pytest.raises(quorvane.Error, match='^The table has no column "c" for a total[.]$'):
        quorvane.table_of_file(PRICES, total="c")


def test_a_document_does_not_replace_its_data(tmp_path: pathlib.Path) -> None:
    path = tmp_path / "prices.csv"
    path.write_bytes(PRICES)
    (tmp_path / "link.rtf").symlink_to(path)
    for same in path, tmp_path / "link.rtf":
        with pytest.raises(quorvane.Error, match="The document would replace ") as raised:
            quorvane.table_of_file_to(same, path)
        assert raised.value.identifier == "wrong-call"
    assert path.read_bytes() == PRICES


def test_groups_that_begin_again_are_a_warning() -> None:
    found = quorvane.table_of_file_to(io.BytesIO(), b"k,n\na,x\nb,y\na,z\n", group_by="k")
    assert [(each.severity, each.identifier) for each in found] == [("warning", "scattered-groups")]


def test_a_file_that_cannot_be_read_is_an_os_error() -> None:
    with pytest.raises(OSError) as raised:
        quorvane.table_of_file("/nowhere/prices.csv")
    assert isinstance(raised.value, quorvane.FileError)
    assert str(raised.value) == "/nowhere/prices.csv: No such file or directory"
    assert raised.value.identifier == "unreadable-file"


def test_a_document_that_cannot_be_written_is_an_os_error() -> None:
    with pytest.raises(OSError, match="/nowhere/rows.rtf: No such file or directory"):
        quorvane.table_of_file_to("/nowhere/rows.rtf", PRICES)


def test_a_file_object_raises_its_own_error() -> None:
    class Full:
        def write(self, data: bytes) -> int:
            raise OSError(28, "No space left on device")

    with pytest.raises(OSError) as raised:
        quorvane.table_of_file_to(Full(), PRICES)
    assert raised.value.errno == 28


@pytest.mark.parametrize("options, message", [
    ({"columns": "Prize"}, 'The data has no field "Prize"; did you mean Price'),
    ({"sort": "Weight"}, 'The data has no field "Weight"'),
    ({"total": "Article"}, '"Vase" is not a number, so that there is no total'),
    ({"delimiter": "ab"}, "The delimiter is one character"),
    ({"encoding": "latin"}, 'The encoding is "auto", "utf-8" or "windows-1252"'),
    ({"limit": -1}, "The limit is a number of rows"),
    ({"limit": 1 << 31}, "limit is out of range"),
    ({"page": "a77"}, '"a77" is not a page'),
])
def test_an_option_that_is_wrong_is_an_error(options: Dict[str, Any], message: str) -> None:
    with pytest.raises(quorvane.Error, match=message):
        quorvane.table_of_file(PRICES, **options)


def test_an_unknown_format_is_a_value_error() -> None:
    with pytest.raises(ValueError, match="The format is one of 'auto', 'csv', 'json', not 'xml'"):
        quorvane.table_of_file(PRICES, format="xml")


def test_a_file_of_another_type_is_a_type_error() -> None:
    with pytest.raises(TypeError):
        quorvane.table_of_file(7)  # type: ignore[arg-type]


def test_a_file_that_is_given_as_bytes_stays_as_long_as_its_table() -> None:
    rows = b"".join(b"%d,%d\n" % (number, number) for number in range(20000))
    rtf = quorvane.table_of_file(b"a,b\n" + rows, sort="a:desc")
    assert rtf.index(b" 19999\\cell") < rtf.index(b" 1\\cell")
