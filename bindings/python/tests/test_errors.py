"""Errors."""

import pathlib
import pickle
import re
from typing import Callable, List

import pytest
import quorvane
import quorvane._library

TWO_MISTAKES = "(doc\n(r\n(rb=lightyellow)\nr)\ndoc)\n"


def error_of(description: str) -> quorvane.Error:
    with pytest.raises(quorvane.Error) as raised:
        quorvane.render(description)
    return raised.value


def test_a_zero_byte_cuts_no_path(tmp_path: pathlib.Path) -> None:
    with pytest.raises(ValueError, match="^A path has no zero byte: "):
        quorvane.Document().save(str(tmp_path / "a") + "\0b.rtf")
    assert list(tmp_path.iterdir()) == []


def test_the_name_of_a_file_is_no_text() -> None:
    calls: List[Callable[[], object]] = [
        lambda: quorvane.render("invoice.rtfspec"),
        lambda: quorvane.Document(stylesheet="house.rtfss")]
    for call in calls:
        with pytest.raises(ValueError, match="looks like the name of a file; use pathlib.Path"):
            call()


def test_an_error_has_the_place_and_all_diagnostics() -> None:
    error = error_of(TWO_MISTAKES)
    assert (error.file, error.line, error.column) == ("description", 2, 1)
    assert (error.message, error.identifier) == ("Must have at least one cell.", "no-cell")
    assert [each.identifier for each in error.diagnostics] == ["no-cell", "wrong-color"]
    assert error.number != 0


def test_an_error_shows_its_place_and_how_many_there_are() -> None:
    assert str(error_of(TWO_MISTAKES)) == (
        "description:2:1: Must have at least one cell. (1 more in diagnostics)")


def test_an_error_passes_from_process_to_process() -> None:
    error = error_of(TWO_MISTAKES)
    copy = pickle.loads(pickle.dumps(error))
    assert type(copy) is quorvane.Error
    assert str(copy) == str(error)
    assert copy.diagnostics == error.diagnostics


def test_a_file_that_cannot_be_written_is_an_os_error() -> None:
    with pytest.raises(OSError) as raised:
        quorvane.render_to("/nowhere/page.rtf", "(doc\n(r\n(c\n(p\np)\nc)\nr)\ndoc)\n")
    assert isinstance(raised.value, quorvane.FileError)
    assert str(raised.value) == "/nowhere/page.rtf: No such file or directory"
    copy = pickle.loads(pickle.dumps(raised.value))
    assert (type(copy), str(copy)) == (quorvane.FileError, str(raised.value))


def test_the_version_is_that_of_the_library() -> None:
    assert re.fullmatch(r"\d+\.\d+\.\d+", quorvane.__version__)
    assert quorvane.__version__ == quorvane._library.version()
