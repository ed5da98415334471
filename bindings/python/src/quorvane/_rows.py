"""Rows from whatever has rows: sequences, mappings, data frames, cursors of databases."""

from __future__ import annotations

import dataclasses
from itertools import chain
from numbers import Number
from typing import Any, Callable, Iterable, Iterator, List, NamedTuple, Optional, Sequence, Tuple

from ._cells import is_missing, text_of_cell
from ._columns import AnyColumn, Column, column_of
from ._errors import Error

Row = Sequence[Any]

# Of so many rows, the values decide how columns are aligned.
ROWS_LOOKED_AT = 100


class Table(NamedTuple):
    """The columns of a table and its rows, with a value for each column."""

    columns: List[Column]
    rows: Iterator[Row]
    has_heading: bool
    """False if there are no names for columns."""


def table_of(source: Any, columns: Optional[Sequence[AnyColumn]]) -> Table:
    """The columns and rows of a source."""
    wanted = None if columns is None else [column_of(column) for column in columns]
    names, rows = _named_rows(source)
    if names is None:
        return _unnamed(rows, wanted)
    if wanted is None:
        return Table([Column(name) for name in names], rows, True)
    places = [_place(names, column) for column in wanted]
    return Table(wanted, (_picked(row, places) for row in rows), True)


def _place(names: List[str], column: Column) -> int:
    try:
        return names.index(column.name)
    except ValueError:
        raise Error(f"The rows have no field {column.name!r}. They have: {', '.join(names)}.",
                    "wrong-column") from None


def _picked(row: Row, places: List[int]) -> Row:
    return [row[place] for place in places]


def _unnamed(rows: Iterator[Row], wanted: Optional[List[Column]]) -> Table:
    if wanted is not None:
        return Table(wanted, rows, True)
    first = next(rows, None)
    if first is None:
        raise Error("There are no rows to take the columns from; give the columns.",
                    "wrong-column")
    return Table([Column("") for _ in first], chain([first], rows), False)


def _named_rows(source: Any) -> Tuple[Optional[List[str]], Iterator[Row]]:
    """The names of the fields if there are some, and rows with a value for each."""
    if hasattr(source, "columns"):
        names = [str(name) for name in source.columns]
        if hasattr(source, "itertuples"):  # pandas
            return names, source.itertuples(index=False, name=None)
        if hasattr(source, "iter_rows"):  # polars
            return names, source.iter_rows()
    if getattr(source, "description", None):  # a cursor of a database
        return [str(field[0]) for field in source.description], iter(source)
    return _rows_of_items(iter(source))


def _rows_of_items(items: Iterator[Any]) -> Tuple[Optional[List[str]], Iterator[Row]]:
    first = next(items, None)
    if first is None:
        return None, iter(())
    rows = chain([first], items)
    if hasattr(first, "keys"):
        names = list(first.keys())
        return [str(name) for name in names], _rows_of_mappings(rows, names)
    if hasattr(first, "_fields"):
        return list(first._fields), rows
    if dataclasses.is_dataclass(first):
        names = [field.name for field in dataclasses.fields(first)]
        return names, ([getattr(row, name) for name in names] for row in rows)
    return None, rows


def _rows_of_mappings(rows: Iterable[Any], names: List[Any]) -> Iterator[Row]:
    for number, row in enumerate(rows, 1):
        keys = row.keys()
        unknown = [key for key in keys if key not in names] if len(keys) else []
        if unknown:
            raise Error(f"Row {number} has the field {unknown[0]!r}, which the first row does not "
                        "have. Name the fields in the first row, with None for those without a "
                        "value.", "wrong-column")
        present = set(keys)
        yield [row[name] if name in present else None for name in names]


def with_alignments(table: Table) -> Table:
    """Puts columns of numbers at the right if nothing else is wanted."""
    begin = list(row for _, row in zip(range(ROWS_LOOKED_AT), table.rows))
    columns = [column if column.align or not _is_number_column(begin, place)
               else column._replace(align="right") for place, column in enumerate(table.columns)]
    return table._replace(columns=columns, rows=chain(begin, table.rows))


def _is_number_column(rows: List[Row], place: int) -> bool:
    values = [row[place] for row in rows if place < len(row) and not is_missing(row[place])]
    return bool(values) and all(isinstance(value, Number) and not isinstance(value, bool)
                                for value in values)


def formatted_rows(table: Table) -> Iterator[Row]:
    """The rows, with the texts that columns make of their values."""
    formats = [column.format or text_of_cell for column in table.columns]
    if all(column.format is None for column in table.columns):
        return table.rows
    return (_formatted(row, formats) for row in table.rows)


def _formatted(row: Row, formats: List[Callable[[Any], str]]) -> Row:
    texts = ["" if is_missing(value) else make(value) for make, value in zip(formats, row)]
    return texts + list(row[len(texts):])
