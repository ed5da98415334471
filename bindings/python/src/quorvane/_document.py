"""Documents that are built from rows, cells and paragraphs."""

from __future__ import annotations

import os
from typing import Any, Iterable, Optional, Tuple, Union

from ._borders import SIDES
from ._cells import batches, cell_arguments, joined, texts_of_row
from ._elements import DocumentHandle, Elements, Row, Widths, widths_text
from ._handle import argument, number_argument, path_argument
from ._library import lib, short_lib
from ._lines import Line, texts_of_line
from ._sources import Source, read_source
from ._target import BinaryWriter, Target


class Document(DocumentHandle):
    """A document of rows, cells and paragraphs.

    >>> doc = quorvane.Document(columns="70 30")
    >>> doc.add_row(["Article", "Price"]).set(background="#1f4e79", heading=True)
    >>> doc.add_row(["Vase", "12.50"])
    >>> doc.save("prices.rtf")

    The options are those of `set`. All texts show as they are. `Row`, `Cell` and `Paragraph` are
    places in the document: after one was inserted before others or removed, take them again.
    """

    def __init__(self, *, stylesheet: Optional[Source] = None, page: Optional[str] = None,
                 page_size: Optional[Tuple[str, str]] = None, margin: Optional[str] = None,
                 left_margin: Optional[str] = None, right_margin: Optional[str] = None,
                 top_margin: Optional[str] = None, bottom_margin: Optional[str] = None,
                 columns: Optional[Widths] = None, header: Optional[Line] = None,
                 footer: Optional[Line] = None, first_page: Optional[int] = None,
                 heading_in_table: Optional[bool] = None) -> None:
        super().__init__()
        self.set(stylesheet=stylesheet, page=page, page_size=page_size, margin=margin,
                 left_margin=left_margin, right_margin=right_margin, top_margin=top_margin,
                 bottom_margin=bottom_margin, columns=columns, header=header, footer=footer,
                 first_page=first_page, heading_in_table=heading_in_table)

    def set(self, *, stylesheet: Optional[Source] = None, page: Optional[str] = None,
            page_size: Optional[Tuple[str, str]] = None, margin: Optional[str] = None,
            left_margin: Optional[str] = None, right_margin: Optional[str] = None,
            top_margin: Optional[str] = None, bottom_margin: Optional[str] = None,
            columns: Optional[Widths] = None, header: Optional[Line] = None,
            footer: Optional[Line] = None, first_page: Optional[int] = None,
            heading_in_table: Optional[bool] = None) -> Document:
        """Sets what is not None, and returns the document.

        stylesheet
            in either language; it comes before texts and styles that need it
        page, page_size
            such as "letter" or "a4-landscape", or width and height such as ("21cm", "10cm")
        margin, left_margin, right_margin, top_margin, bottom_margin
            a length such as "2cm", for all sides or one
        columns
            the widths of the cells of all rows: percent, lengths or "auto", as "20 auto 3cm" or as
            a list. Without it the cells of a row have the same width.
        header, footer
            the lines at the top and at the bottom of each page: the text in the center, or three
            texts for left, center and right. {page} and {pages} are numbers.
        first_page
            the number of the first page
        heading_in_table
            writes the rows of the heading as rows of the table that repeat, and not in the header
        """
        if stylesheet is not None:
            text = read_source(stylesheet).text
            self._call(lib.quorvane_document_set_stylesheet, text, len(text))
        if page is not None:
            self._call(lib.quorvane_document_set_page, *argument(page))
        if page_size is not None:
            self._call(lib.quorvane_document_set_page_size, *argument(page_size[0]),
                       *argument(page_size[1]))
        for side, width in (("all", margin), ("left", left_margin), ("right", right_margin),
                            ("top", top_margin), ("bottom", bottom_margin)):
            if width is not None:
                self._call(lib.quorvane_document_set_margin, SIDES[side], *argument(width))
        if columns is not None:
            self._call(lib.quorvane_document_set_columns, *argument(widths_text(columns)))
        for function, line in ((lib.quorvane_document_set_header, header),
                               (lib.quorvane_document_set_footer, footer)):
            if line is not None:
                self._call(function, *(each for text in texts_of_line(line)
                                       for each in argument(text)))
        if first_page is not None:
            self._call(lib.quorvane_document_set_first_page,
                       number_argument(first_page, "first_page"))
        if heading_in_table is not None:
            self._call(lib.quorvane_document_set_heading_form,
                       number_argument(heading_in_table, "heading_in_table"))
        return self

    @property
    def rows(self) -> Elements[Row]:
        """The rows, as a sequence: ``for row in doc.rows``, ``doc.rows[-1]``, ``del doc.rows[0]``.
        """
        return Elements(self, (), Row, short_lib.quorvane_document_count_rows,
                        short_lib.quorvane_document_remove_row)

    def add_row(self, cells: Iterable[Any] = (), style: str = "") -> Row:
        """Adds a row with a cell for each value, whose paragraphs have this style; returns it.

        A value shows as ``str`` has it; None and NaN are empty cells.
        """
        return Row(self, (self._index(short_lib.quorvane_document_add_row,
                                      *cell_arguments(texts_of_row(cells)), *argument(style)),))

    def add_rows(self, rows: Iterable[Iterable[Any]], style: str = "") -> None:
        """Adds rows, many in one call. An error leaves the rows before it."""
        for values in batches(rows):
            batch = [texts_of_row(row) for row in values]
            count = len(batch[0])
            texts = joined(batch)
            if any(len(row) != count for row in batch) or texts.count(0) != count * len(batch):
                for row in batch:
                    self.add_row(row, style)
            else:
                self._call(lib.quorvane_document_add_rows, texts, len(texts), count, len(batch),
                           *argument(style))

    def insert_row(self, index: int, cells: Iterable[Any] = (), style: str = "") -> Row:
        """Inserts a row before the one with an index, as ``list.insert``, and returns it."""
        place = self._index(short_lib.quorvane_document_insert_row,
                            self.rows._insertion_place(index))
        self._moves += 1
        row = Row(self, (place,))
        for text in texts_of_row(cells):
            row.add_cell(text, style)
        return row

    @property
    def rtf(self) -> bytes:
        """The document as the bytes of a file."""
        return self._bytes(lib.quorvane_document_rtf)

    def save(self, path: Union[str, os.PathLike[str]]) -> None:
        """Writes the document to a file, which appears whole, in the place of one that was there.

        Raises `FileError`, which is an ``OSError``, with the reason of the system.
        """
        self._call(lib.quorvane_document_save, *path_argument(path))

    def write_to(self, file: BinaryWriter) -> None:
        """Writes the document to a binary file object."""
        target = Target(file, self._raised)
        self._call(lib.quorvane_document_write, target.callback, None)

    def __bytes__(self) -> bytes:
        return self.rtf

    def __enter__(self) -> Document:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def __repr__(self) -> str:
        state = "closed" if self._pointer is None else f"{len(self.rows)} rows"
        return f"<quorvane.Document: {state}>"
