"""A table of any rows, in one call."""

from __future__ import annotations

from typing import Any, Optional, Sequence

from ._columns import AnyColumn
from ._lines import Line
from ._rows import formatted_rows, table_of, with_alignments
from ._sources import Source
from ._tablewriter import TableWriter
from ._target import Destination


def table(rows: Any, columns: Optional[Sequence[AnyColumn]] = None, *, title: str = "",
          heading: bool = True, page: Optional[str] = None, margin: Optional[str] = None,
          stripe: Optional[str] = None, border: Optional[str] = None,
          stylesheet: Optional[Source] = None, header: Optional[Line] = None,
          footer: Optional[Line] = None, widths: str = "even") -> bytes:
    """Returns a document with one table of these rows.

    >>> rtf = quorvane.table([{"Article": "Vase", "Price": 12.5}], title="Prices")

    Rows are an iterable of sequences, of mappings, of named tuples or of data classes; a data frame
    of pandas or polars; or the cursor of a database after a query. Names of fields are the
    headings. ``columns`` selects fields, in this order, by their names or with `Column`. Columns of
    numbers are at the right. Missing values are empty cells; all others show as ``str`` has them.

    `TableWriter` explains the options; with ``widths="fit"`` the columns are as wide as their
    contents ask for.
    """
    writer = _written(None, rows, columns, title, heading, page, margin, stripe, border,
                      stylesheet, header, footer, widths)
    return writer.rtf


def table_to(destination: Destination, rows: Any, columns: Optional[Sequence[AnyColumn]] = None, *,
             title: str = "", heading: bool = True, page: Optional[str] = None,
             margin: Optional[str] = None, stripe: Optional[str] = None,
             border: Optional[str] = None, stylesheet: Optional[Source] = None,
             header: Optional[Line] = None, footer: Optional[Line] = None,
             widths: str = "even") -> int:
    """Writes a document with one table of these rows to a path or a binary file object.

    It returns the number of rows. Rows are written and forgotten: a generator of any length takes
    the same memory. A file appears whole, in the place of one that was there. See `table`.
    """
    writer = _written(destination, rows, columns, title, heading, page, margin, stripe, border,
                      stylesheet, header, footer, widths)
    return writer.rows


def _written(destination: Optional[Destination], rows: Any,
             columns: Optional[Sequence[AnyColumn]], title: str, heading: bool,
             page: Optional[str], margin: Optional[str], stripe: Optional[str],
             border: Optional[str], stylesheet: Optional[Source], header: Optional[Line],
             footer: Optional[Line], widths: str) -> TableWriter:
    content = with_alignments(table_of(rows, columns))
    with TableWriter(destination, content.columns, title=title,
                     heading=heading and content.has_heading, page=page, margin=margin,
                     stripe=stripe, border=border, stylesheet=stylesheet, header=header,
                     footer=footer, widths=widths) as writer:
        writer.add_rows(formatted_rows(content))
    return writer
