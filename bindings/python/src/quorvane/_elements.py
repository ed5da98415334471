"""Rows, cells and paragraphs of a document."""

from __future__ import annotations

import operator
import os
from ctypes import byref, c_size_t
from typing import (Any, Callable, Generic, Iterator, List, Optional, Sequence, Tuple, TypeVar,
                    Union, overload)

from ._borders import Border, Sides, border_arguments
from ._columns import ALIGNMENTS
from ._errors import Error
from ._handle import Handle, argument, number_argument, path_argument
from ._job import choice
from ._library import AT_END, lib, short_lib

Widths = Union[str, Sequence[Union[str, float]]]
"""Widths of columns: "20 auto 3cm" or [20, "auto", "3cm"]. A number is percent."""


class DocumentHandle(Handle):
    """The handle of a document, with the number of changes that move elements."""

    _KIND = "document"

    def __init__(self) -> None:
        super().__init__()
        self._moves = 0

    def _index(self, function: Callable[..., int], *arguments: Any) -> int:
        """What a function returns as a number."""
        number = c_size_t()
        self._call_shortly(function, *arguments, byref(number))
        return number.value


class Element:
    """A place in a document."""

    __slots__ = ("_document", "_place", "_moves")

    def __init__(self, document: DocumentHandle, place: Tuple[int, ...]) -> None:
        self._document = document
        self._place = place
        self._moves = document._moves

    def _require_here(self) -> None:
        if self._moves != self._document._moves:
            raise Error(f"The {type(self).__name__.lower()} may have moved, because one was "
                        "inserted or removed. Take it from the document again.")

    def _call(self, function: Callable[..., int], *arguments: Any) -> None:
        document = self._document
        if self._moves != document._moves:
            self._require_here()
        document._call_shortly(function, *self._place, *arguments)

    def _index(self, function: Callable[..., int], *arguments: Any) -> int:
        self._require_here()
        return self._document._index(function, *self._place, *arguments)

    @property
    def index(self) -> int:
        """The place in what it is part of, from 0."""
        return self._place[-1]


AnyElement = TypeVar("AnyElement", bound=Element)


class Elements(Sequence[AnyElement], Generic[AnyElement]):
    """The rows of a document, the cells of a row or the paragraphs of a cell, as a sequence.

    ``del elements[index]`` removes one. Elements that were taken before cannot be used then.
    """

    def __init__(self, document: DocumentHandle, place: Tuple[int, ...],
                 make: Callable[[DocumentHandle, Tuple[int, ...]], AnyElement],
                 count: Callable[..., int], remove: Callable[..., int],
                 owner: Optional[Element] = None) -> None:
        self._document = document
        self._place = place
        self._make = make
        self._count = count
        self._remove = remove
        self._owner = owner

    def __len__(self) -> int:
        if self._owner is not None:
            self._owner._require_here()
        return self._document._index(self._count, *self._place)

    @overload
    def __getitem__(self, index: int) -> AnyElement: ...

    @overload
    def __getitem__(self, index: slice) -> List[AnyElement]: ...

    def __getitem__(self, index: Union[int, slice]) -> Union[AnyElement, List[AnyElement]]:
        if isinstance(index, slice):
            return [self._element(place) for place in range(len(self))[index]]
        return self._make(self._document, (*self._place, self._existing(index)))

    def __delitem__(self, index: int) -> None:
        place = self._existing(index)
        self._document._call_shortly(self._remove, *self._place, place)
        self._document._moves += 1

    def __iter__(self) -> Iterator[AnyElement]:
        for place in range(len(self)):
            yield self._element(place)

    def _element(self, place: int) -> AnyElement:
        return self._make(self._document, (*self._place, place))

    def _existing(self, index: int) -> int:
        number, count = operator.index(index), len(self)
        place = number + count if number < 0 else number
        if not 0 <= place < count:
            raise IndexError(f"There is no index {number}; the length is {count}.")
        return place

    def _insertion_place(self, index: int) -> int:
        """The place that an element is inserted at, as with ``list.insert``."""
        number, count = number_argument(index, "index"), len(self)
        return max(number + count, 0) if number < 0 else min(number, count)

    def __repr__(self) -> str:
        return f"<quorvane: {len(self)} of {self._make.__name__}>"


class Paragraph(Element):
    """A paragraph of a cell."""

    __slots__ = ()

    def set(self, *, text: Optional[str] = None, style: Optional[str] = None,
            color: Optional[str] = None, align: Optional[str] = None,
            marked_field: Optional[str] = None) -> Paragraph:
        """Sets what is not None, and returns the paragraph.

        text
            shows as it is, in the place of the text that is there
        style
            a paragraph style of the stylesheet
        color
            of the text: a name or "#1f4e79"; "none" leaves it to the style
        align
            "left", "right", "center" or "justified"
        marked_field
            makes the paragraph a marked field with this data, which readers do not show
        """
        if text is not None:
            self._call(short_lib.quorvane_paragraph_set_text, *argument(text))
        if style is not None:
            self._call(short_lib.quorvane_paragraph_set_style, *argument(style))
        if color is not None:
            self._call(short_lib.quorvane_paragraph_set_color, *argument(color))
        if align is not None:
            self._call(short_lib.quorvane_paragraph_set_align,
                       choice(align, ALIGNMENTS, "alignment"))
        if marked_field is not None:
            self._call(short_lib.quorvane_paragraph_set_marked_field, *argument(marked_field))
        return self

    def add_text(self, text: str, *, bold: bool = False, italic: bool = False,
                 underlined: bool = False) -> Paragraph:
        """Appends a text, which shows as it is."""
        emphasis = bold * 1 + italic * 2 + underlined * 4
        self._call(short_lib.quorvane_paragraph_add_text, *argument(text), emphasis)
        return self

    def add_styled_text(self, text: str, style: str) -> Paragraph:
        """Appends a text in a character style of the stylesheet."""
        self._call(short_lib.quorvane_paragraph_add_styled_text, *argument(text), *argument(style))
        return self

    def add_rtf(self, rtf: str) -> Paragraph:
        """Appends control words as they are."""
        self._call(short_lib.quorvane_paragraph_add_rtf, *argument(rtf))
        return self

    def set_picture(self, picture: Union[bytes, str, os.PathLike[str]], *, width: str = "",
                    height: str = "") -> Paragraph:
        """Shows a picture before the text: the path or the bytes of a PNG or JPEG file.

        Width and height are lengths such as "3cm". With one of them the picture keeps its
        proportions, with none it has the size of its file. Empty bytes remove the picture.
        """
        function = (lib.quorvane_paragraph_set_picture if isinstance(picture, bytes)
                    else lib.quorvane_paragraph_set_picture_file)
        content = (picture, len(picture)) if isinstance(picture, bytes) else path_argument(picture)
        self._require_here()
        self._document._call(function, *self._place, *content, *argument(width), *argument(height))
        return self

    @property
    def rtf(self) -> str:
        """The text as RTF."""
        self._require_here()
        return self._document._bytes(lib.quorvane_paragraph_rtf, *self._place).decode("latin-1")

    def __repr__(self) -> str:
        row, cell, paragraph = self._place
        return f"<quorvane.Paragraph {paragraph} of cell {cell} in row {row}>"


class Cell(Element):
    """A cell of a row."""

    __slots__ = ()

    @property
    def paragraphs(self) -> Elements[Paragraph]:
        """The paragraphs, as a sequence."""
        return Elements(self._document, self._place, Paragraph,
                        short_lib.quorvane_cell_count_paragraphs,
                        short_lib.quorvane_cell_remove_paragraph, self)

    def add_paragraph(self, text: str = "", style: str = "") -> Paragraph:
        """Adds a paragraph after the others, and returns it."""
        place = self._index(short_lib.quorvane_cell_insert_paragraph, AT_END, *argument(text),
                            *argument(style))
        return Paragraph(self._document, (*self._place, place))

    def insert_paragraph(self, index: int, text: str = "", style: str = "") -> Paragraph:
        """Inserts a paragraph before the one with an index, as ``list.insert``, and returns it."""
        place = self._index(short_lib.quorvane_cell_insert_paragraph,
                            self.paragraphs._insertion_place(index), *argument(text),
                            *argument(style))
        self._document._moves += 1
        return Paragraph(self._document, (*self._place, place))

    def set(self, *, style: Optional[str] = None, align: Optional[str] = None,
            background: Optional[str] = None, border: Optional[Border] = None,
            sides: Sides = "all", span: Optional[Tuple[int, int]] = None,
            marked_field: Optional[str] = None) -> Cell:
        """Sets what is not None, and returns the cell.

        style
            a cell style, which gives the background
        align
            of all paragraphs: "left", "right", "center" or "justified"
        background
            a color by its name or as "#1f4e79"; "none" leaves it to the style
        border, sides
            "none", "hair", "thin", "normal", "thick" or a width in twips, on these sides: "left",
            "right", "top", "bottom" or "all", or several of them
        span
            how many columns and how many rows the cell takes
        marked_field
            makes the cell a marked field with this data, which readers do not show
        """
        if style is not None:
            self._call(short_lib.quorvane_cell_set_style, *argument(style))
        if align is not None:
            self._call(short_lib.quorvane_cell_set_align, choice(align, ALIGNMENTS, "alignment"))
        if background is not None:
            self._call(short_lib.quorvane_cell_set_background, *argument(background))
        if border is not None:
            self._call(short_lib.quorvane_cell_set_border, *border_arguments(border, sides))
        if span is not None:
            columns, rows = span
            self._call(short_lib.quorvane_cell_set_span, number_argument(columns, "span"),
                       number_argument(rows, "span"))
        if marked_field is not None:
            self._call(short_lib.quorvane_cell_set_marked_field, *argument(marked_field))
        return self

    def __repr__(self) -> str:
        row, cell = self._place
        return f"<quorvane.Cell {cell} in row {row}>"


class Row(Element):
    """A row of a document."""

    __slots__ = ()

    @property
    def cells(self) -> Elements[Cell]:
        """The cells, as a sequence."""
        return Elements(self._document, self._place, Cell, short_lib.quorvane_row_count_cells,
                        short_lib.quorvane_row_remove_cell, self)

    def add_cell(self, text: Optional[str] = "", style: str = "") -> Cell:
        """Adds a cell after the others, and returns it.

        It has one paragraph with this text and style; with None for the text it has none.
        """
        place = self._inserted(AT_END, text, style)
        return Cell(self._document, (*self._place, place))

    def insert_cell(self, index: int, text: Optional[str] = "", style: str = "") -> Cell:
        """Inserts a cell before the one with an index, as ``list.insert``, and returns it."""
        place = self._inserted(self.cells._insertion_place(index), text, style)
        self._document._moves += 1
        return Cell(self._document, (*self._place, place))

    def _inserted(self, index: int, text: Optional[str], style: str) -> int:
        content = (None, 0) if text is None else argument(text)
        return self._index(short_lib.quorvane_row_insert_cell, index, *content, *argument(style))

    def set(self, *, columns: Optional[Widths] = None, background: Optional[str] = None,
            border: Optional[Border] = None, sides: Sides = "all",
            heading: Optional[bool] = None, keep: Optional[bool] = None,
            keep_with_next: Optional[bool] = None, page_break: Optional[bool] = None) -> Row:
        """Sets what is not None, and returns the row.

        columns
            the widths of its cells: "20 auto 3cm", or a list; empty goes back to those of the
            document
        background
            a color by its name or as "#1f4e79", or "none"
        border, sides
            of all cells, as for `Cell.set`
        heading
            makes the row part of the heading, which is on every page: the first rows, without a gap
        keep, keep_with_next, page_break
            keeps the row on one page, keeps it on the page of the row below it, begins a page
            with it
        """
        if columns is not None:
            self._call(short_lib.quorvane_row_set_columns, *argument(widths_text(columns)))
        if background is not None:
            self._call(short_lib.quorvane_row_set_background, *argument(background))
        if border is not None:
            self._call(short_lib.quorvane_row_set_border, *border_arguments(border, sides))
        if heading is not None:
            self._call(short_lib.quorvane_row_set_heading, number_argument(heading, "heading"))
        if keep is not None:
            self._call(short_lib.quorvane_row_set_keep, number_argument(keep, "keep"))
        if keep_with_next is not None:
            self._call(short_lib.quorvane_row_set_keep_with_next,
                       number_argument(keep_with_next, "keep_with_next"))
        if page_break is not None:
            self._call(short_lib.quorvane_row_set_page_break,
                       number_argument(page_break, "page_break"))
        return self

    def __repr__(self) -> str:
        return f"<quorvane.Row {self.index}>"


def widths_text(widths: Widths) -> str:
    """Widths as a text."""
    return widths if isinstance(widths, str) else " ".join(str(width) for width in widths)
