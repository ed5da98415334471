"""Rich Text Format documents made of one table.

`render` makes a document of a description and a stylesheet, and fills templates with data. `check`
reports what is wrong with them, `format` puts them into their canonical form. `table` and
`TableWriter` make a document of rows, and `table_of_file` of a CSV or JSON file. `Document` builds
one of rows, cells and paragraphs.

Nothing that a function is given is changed, nothing depends on the locale, and all functions may be
used by several threads at a time, which run side by side while the library renders, checks or
writes.
"""

from ._columns import AnyColumn, Column
from ._document import Document
from ._elements import Cell, Paragraph, Row, Widths
from ._errors import Diagnostic, Error, FileError
from ._filetable import DataFile, FileColumns, table_of_file, table_of_file_to
from ._functions import check, format, render, render_to
from ._job import Files, Job, Rendered
from ._library import version
from ._lines import Line
from ._sources import Source
from ._table import table, table_to
from ._tablewriter import TableWriter
from ._target import BinaryWriter, Destination

__version__ = version()

__all__ = [
    "AnyColumn", "BinaryWriter", "Cell", "Column", "DataFile", "Destination", "Diagnostic",
    "Document", "Error", "FileColumns", "FileError", "Files", "Job", "Line", "Paragraph",
    "Rendered", "Row", "Source", "TableWriter", "Widths", "check", "format", "render", "render_to",
    "table", "table_of_file", "table_of_file_to", "table_to",
]
