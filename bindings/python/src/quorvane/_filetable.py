"""Tables of data files."""

from __future__ import annotations

import os
import re
from ctypes import c_void_p
from typing import List, Optional, Sequence, Tuple, Union

from ._columns import ALIGNMENTS, AnyColumn, Column, column_of
from ._diagnostics import diagnostics_of
from ._errors import Diagnostic, Error
from ._handle import Handle, argument, number_argument, path_argument
from ._job import Rendered, choice
from ._library import lib
from ._lines import Line
from ._sources import Source
from ._tableoptions import Setting, settings_of, yes_or_no
from ._target import Destination, Target, is_path

_GROUP_PAGES, _COLUMNS, _LOCALE, _DELIMITER, _ENCODING, _SORT = 13, 14, 15, 16, 17, 18
_GROUP_BY, _TOTAL, _TOTAL_LABEL, _LIMIT, _KEEP_GOING = 19, 20, 21, 22, 23

FORMATS = {"auto": 0, "csv": 1, "json": 2}

DataFile = Union[str, "os.PathLike[str]", bytes]
"""The path of a file, or the bytes that a file has."""

FileColumns = Union[str, Sequence[AnyColumn]]
"""Columns as the command takes them, such as "sku:12%,price:Price:right:money:2", or a list."""


def table_of_file(file: DataFile, columns: Optional[FileColumns] = None, *, title: str = "",
                  heading: bool = True, page: Optional[str] = None, margin: Optional[str] = None,
                  stripe: Optional[str] = None, border: Optional[str] = None,
                  stylesheet: Optional[Source] = None, header: Optional[Line] = None,
                  footer: Optional[Line] = None, sort: str = "", group_by: str = "",
                  group_pages: bool = False, total: Union[str, Sequence[str]] = (),
                  total_label: str = "", locale: str = "", delimiter: str = "",
                  encoding: str = "auto", format: str = "auto", limit: Optional[int] = None,
                  keep_going: bool = False) -> Rendered:
    """Returns a document with a table of a CSV, JSON or JSON Lines file, with its diagnostics.

    >>> rtf = quorvane.table_of_file("articles.csv", sort="Kind,Price:desc", group_by="Kind")

    The document is the one that ``quorvane table`` makes with the same options: columns are as wide
    as their contents ask for, numbers are at the right, and a wide table gets a page in landscape.
    The library reads the file itself, so that there is no Python object for a row.

    file
        a path, or the bytes that a file has
    columns
        the fields to show, in their order: their names or `Column`, or a text as the command takes
        it, with filters: "sku:12%,price:Price:right:money:2". All fields by default.
    sort
        the order of the rows: "Price:desc,Name"
    group_by, group_pages
        a field whose values are headings above the rows that share them, and whether each of these
        begins a page
    total, total_label
        fields whose columns end in their exact sum, and what that row begins with
    locale
        how filters write numbers, and how the file has them: "de-DE", or a sample as "1.234,56"
    delimiter, encoding, format
        what is not to be found out: a character or "tab"; "utf-8" or "windows-1252"; "csv" or
        "json", which stands for JSON Lines too
    limit
        how many rows are shown at most
    keep_going
        leaves out the rows that are wrong; each is among the diagnostics

    `TableWriter` explains the other options. A row that is wrong raises `Error` with its line, and
    a file that cannot be read raises `FileError`.
    """
    settings = settings_of(title, heading, page, margin, stripe, border, stylesheet, header, footer)
    settings += _settings(columns, sort, group_by, group_pages, total, total_label, locale,
                          delimiter, encoding, limit, keep_going)
    with FileTable(file, settings, choice(format, FORMATS, "format")) as table:
        return table.rendered()


def table_of_file_to(destination: Destination, file: DataFile,
                     columns: Optional[FileColumns] = None, *, title: str = "",
                     heading: bool = True, page: Optional[str] = None, margin: Optional[str] = None,
                     stripe: Optional[str] = None, border: Optional[str] = None,
                     stylesheet: Optional[Source] = None, header: Optional[Line] = None,
                     footer: Optional[Line] = None, sort: str = "", group_by: str = "",
                     group_pages: bool = False, total: Union[str, Sequence[str]] = (),
                     total_label: str = "", locale: str = "", delimiter: str = "",
                     encoding: str = "auto", format: str = "auto", limit: Optional[int] = None,
                     keep_going: bool = False) -> Tuple[Diagnostic, ...]:
    """Writes a table of a data file to a path or a binary file object; returns the diagnostics.

    Rows are written and forgotten, unless they are sorted: a file of any length takes the same
    memory. A document appears whole, in the place of one that was there, but never in that of
    the data: a path that leads to its file is an `Error`. See `table_of_file`.
    """
    settings = settings_of(title, heading, page, margin, stripe, border, stylesheet, header, footer)
    settings += _settings(columns, sort, group_by, group_pages, total, total_label, locale,
                          delimiter, encoding, limit, keep_going)
    with FileTable(file, settings, choice(format, FORMATS, "format")) as table:
        return table.write_to(destination)


class FileTable(Handle):
    """A table of a data file."""

    _KIND = "table"

    def __init__(self, file: DataFile, settings: Sequence[Setting], file_format: int) -> None:
        super().__init__()
        # The library does not copy them.
        self._data = file if isinstance(file, bytes) else b""
        if isinstance(file, bytes):
            self._call(lib.quorvane_table_set_data, self._data, len(self._data), file_format,
                       None, 0)
        else:
            self._call(lib.quorvane_table_set_data_file, *path_argument(file), file_format)
        for setting in settings:
            self._call(lib.quorvane_table_set, *setting)

    def rendered(self) -> Rendered:
        """The document in memory."""
        self._call(lib.quorvane_table_begin)
        self._call(lib.quorvane_table_finish)
        rendered = Rendered(self._bytes(lib.quorvane_table_take))
        rendered.diagnostics = self._found()
        return rendered

    def write_to(self, destination: Destination) -> Tuple[Diagnostic, ...]:
        """Writes the document."""
        if is_path(destination):
            self._call(lib.quorvane_table_begin_file,
                       *path_argument(destination))  # type: ignore[arg-type]
            self._call(lib.quorvane_table_finish)
        else:
            target = Target(destination, self._raised)  # type: ignore[arg-type]
            self._call(lib.quorvane_table_begin_to, target.callback, c_void_p())
            self._call(lib.quorvane_table_finish)
        return self._found()

    def _found(self) -> Tuple[Diagnostic, ...]:
        return diagnostics_of("table", self._pointer)

    def __enter__(self) -> FileTable:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()


def _settings(columns: Optional[FileColumns], sort: str, group_by: str, group_pages: bool,
              total: Union[str, Sequence[str]], total_label: str, locale: str, delimiter: str,
              encoding: str, limit: Optional[int], keep_going: bool) -> List[Setting]:
    """The options of data. An empty text is the default."""
    totals = [total] if isinstance(total, str) else list(total)
    if "" in totals and total != "":
        # The library would remove the others.
        raise Error("A field in total has no name.", "wrong-value")
    texts = [(_GROUP_PAGES, yes_or_no(group_pages)), (_COLUMNS, _columns_text(columns)),
             (_LOCALE, locale), (_DELIMITER, delimiter), (_ENCODING, encoding), (_SORT, sort),
             (_GROUP_BY, group_by), *((_TOTAL, name) for name in totals),
             (_TOTAL_LABEL, total_label),
             (_LIMIT, "" if limit is None else str(number_argument(limit, "limit"))),
             (_KEEP_GOING, yes_or_no(keep_going))]
    return [(option, *argument(text)) for option, text in texts]


def _columns_text(columns: Optional[FileColumns]) -> str:
    """Columns as the command takes them."""
    if columns is None or isinstance(columns, str):
        return columns or ""
    texts = [_column_text(column_of(column)) for column in columns]
    if not texts:
        raise Error("There are no columns.", "wrong-column")
    return ",".join(texts)


# In a list of columns, another text would be a heading, a filter or a column.
_WIDTH = re.compile(r"([0-9]+\.?[0-9]*|\.[0-9]+)( ?%|mm|cm|in|pt)")


def _column_text(column: Column) -> str:
    if column.format is not None:
        raise Error(f"The column {column.name!r} has a format, which is for rows of Python. Write "
                    "the columns as a text with filters, such as \"Price:money:2\".",
                    "wrong-column")
    if column.width and not _WIDTH.fullmatch(column.width):
        raise Error(f"{column.width!r} is not the width of a column; write a number with %, mm, "
                    "cm, in or pt.", "wrong-column")
    choice(column.align, ALIGNMENTS, "alignment")
    parts = [_quoted(column.name), _quoted(column.heading), column.width, column.align]
    return ":".join(part for part in parts if part)


def _quoted(text: str) -> str:
    """A text that can hold any character in a list of columns."""
    return '"' + text.replace('"', '""') + '"'
