"""The columns of a table."""

from __future__ import annotations

from typing import Any, Callable, NamedTuple, Optional, Union

ALIGNMENTS = {"": 0, "center": 1, "left": 2, "right": 3, "justified": 4}


class Column(NamedTuple):
    """A column of a table."""

    heading: str
    """What the heading row shows."""
    width: str = ""
    """Percent of the table ("20%") or a length ("3cm"). Either all columns have one or none,
    but with ``widths="fit"`` and in a table of a file, those without one are as wide as their
    contents ask for."""
    align: str = ""
    """"left", "right", "center" or "justified". Without it, `table` puts numbers at the right."""
    field: Optional[str] = None
    """The name of the values in the rows, if it is not the heading."""
    format: Optional[Callable[[Any], str]] = None
    """Makes the text of a value, such as ``"{:.2f}".format``. Values that are missing have none."""

    @property
    def name(self) -> str:
        """The name of the values in the rows."""
        return self.heading if self.field is None else self.field


AnyColumn = Union[str, Column]
"""A column, or its heading."""


def column_of(column: AnyColumn) -> Column:
    """The column that a heading stands for."""
    return Column(column) if isinstance(column, str) else column
