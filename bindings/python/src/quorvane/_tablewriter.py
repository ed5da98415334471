"""Tables that are written row by row."""

from __future__ import annotations

from ctypes import byref, c_size_t
from typing import Any, Callable, Iterable, List, Optional, Sequence

from ._cells import are_texts, batches, cell_arguments, joined, texts_of_row
from ._columns import ALIGNMENTS, AnyColumn, column_of
from ._errors import Error, FileError
from ._handle import Handle, argument, path_argument
from ._job import choice
from ._library import lib
from ._lines import Line
from ._sources import Source
from ._tableoptions import settings_of
from ._target import Destination, Target, is_path


WIDTHS = {"even": 0, "fit": 1}


class TableWriter(Handle):
    """Writes a document with one table, row by row, in the same memory for any length.

    >>> with quorvane.TableWriter("prices.rtf", ["Article", "Price"], title="Prices") as writer:
    ...     writer.add_row(["Vase", 12.5])

    destination
        a path, a binary file object, or None for memory: then `rtf` has the document. A file
        appears whole at the end, in the place of one that was there; with an exception in the
        ``with`` block it does not appear.
    columns
        headings, or `Column` objects with widths and alignments
    title, heading
        a row above the heading; whether there is a heading. Both are on every page.
    page, margin
        such as "letter" or "a4-landscape", and a length such as "2cm"
    stripe, border
        the color of every second row, and the border of all cells, such as "hair"; or "none"
    stylesheet
        in either language, with the paragraph styles table-cell, table-heading, table-title,
        table-group, table-total and footer
    header, footer
        the lines at the top and at the bottom of each page: the text in the center, or three texts
        for left, center and right. {page} and {pages} are numbers.
    widths
        of the columns that have none: "even", or "fit" for columns as wide as the first 1,000 rows
        ask for, which are kept until then. With "fit", texts that are numbers are at the right too,
        and a wide table gets a page in landscape unless there is a page.

    What is None is as the command has it. A row that is wrong changes nothing; the next one can be
    added.
    """

    _KIND = "table"

    def __init__(self, destination: Optional[Destination], columns: Sequence[AnyColumn], *,
                 title: str = "", heading: bool = True, page: Optional[str] = None,
                 margin: Optional[str] = None, stripe: Optional[str] = None,
                 border: Optional[str] = None, stylesheet: Optional[Source] = None,
                 header: Optional[Line] = None, footer: Optional[Line] = None,
                 widths: str = "even") -> None:
        super().__init__()
        self._columns = [column_of(column) for column in columns]
        self._rows = 0
        self._is_finished = False
        self._rtf: Optional[bytes] = None
        self._in_memory = destination is None
        self._target: Optional[Target] = None
        if choice(widths, WIDTHS, "choice of widths"):
            self._call(lib.quorvane_table_fit_columns)
        for column in self._columns:
            self._call(lib.quorvane_table_add_column, *argument(column.heading),
                       *argument(column.width), choice(column.align, ALIGNMENTS, "alignment"))
        for setting in settings_of(title, heading, page, margin, stripe, border, stylesheet, header,
                                   footer):
            self._call(lib.quorvane_table_set, *setting)
        self._begin(destination)

    def _begin(self, destination: Optional[Destination]) -> None:
        if destination is None:
            self._call(lib.quorvane_table_begin)
        elif is_path(destination):
            self._call(lib.quorvane_table_begin_file,
                       *path_argument(destination))  # type: ignore[arg-type]
        else:
            self._target = Target(destination, self._raised)  # type: ignore[arg-type]
            self._call(lib.quorvane_table_begin_to, self._target.callback, None)

    @property
    def rows(self) -> int:
        """How many rows were added; groups and totals do not count."""
        return self._rows

    def add_row(self, cells: Iterable[Any]) -> None:
        """Adds a row. Cells that are missing at the end, and those that are None, are empty."""
        self._add(lib.quorvane_table_add_row, texts_of_row(cells))
        self._rows += 1

    def add_rows(self, rows: Iterable[Iterable[Any]]) -> None:
        """Adds rows, many in one call. An error leaves the rows before it."""
        for batch in batches(rows):
            self._add_batch(batch)

    def add_group(self, heading: str) -> None:
        """Adds a heading for the rows after it, as wide as the table."""
        self._call(lib.quorvane_table_add_group, *argument(heading))

    def add_total(self, cells: Iterable[Any]) -> None:
        """Adds a row in the style of totals."""
        self._add(lib.quorvane_table_add_total, texts_of_row(cells))

    def finish(self) -> None:
        """Ends the document. A ``with`` block does so unless it ends with an exception."""
        self._call(lib.quorvane_table_finish)
        self._is_finished = True
        if self._in_memory:
            self._rtf = self._bytes(lib.quorvane_table_take)

    @property
    def rtf(self) -> bytes:
        """The document, if it was written in memory and is finished."""
        if self._rtf is None:
            raise Error("There is no document in memory." if not self._in_memory
                        else "The table is not finished.")
        return self._rtf

    def _add(self, function: Callable[..., int], texts: List[str]) -> None:
        self._call(function, *cell_arguments(texts))

    def _add_batch(self, rows: List[Any]) -> None:
        count = len(self._columns)
        batch: List[List[str]] = rows
        if not are_texts(rows, count):
            batch = [texts_of_row(row) for row in rows]
            if any(len(row) > count for row in batch):
                self._add_singly(batch)
                return
            for row in batch:
                row.extend([""] * (count - len(row)))
        texts = joined(batch)
        if texts.count(0) != count * len(batch):
            self._add_singly(batch)
            return
        added = c_size_t()
        try:
            self._call(lib.quorvane_table_add_rows, texts, len(texts), count, len(batch),
                       byref(added))
        except Error as error:
            raise self._in_row(error, self._rows + added.value + 1) from None
        finally:
            self._rows += added.value

    def _add_singly(self, batch: List[List[str]]) -> None:
        """The error of a row that cannot be joined with others is that of its own call."""
        for row in batch:
            try:
                self.add_row(row)
            except Error as error:
                raise self._in_row(error, self._rows + 1) from None

    @staticmethod
    def _in_row(error: Error, number: int) -> Error:
        if isinstance(error, FileError):
            return error
        return Error(f"Row {number}: {error.message}", *error.__reduce__()[1][1:])

    def __enter__(self) -> TableWriter:
        return self

    def __exit__(self, kind: object, *_: object) -> None:
        try:
            if kind is None and not self._is_finished:
                self.finish()
        finally:
            self.close()

    def __repr__(self) -> str:
        state = ("finished" if self._is_finished else
                 "closed" if self._pointer is None else "open")
        return f"<quorvane.TableWriter: {len(self._columns)} columns, {self._rows} rows, {state}>"
