"""Rows of values as texts for the C library."""

from __future__ import annotations

from collections.abc import Mapping
from ctypes import c_char_p, c_size_t
from itertools import chain, islice
from typing import Any, Iterable, Iterator, List, Sequence, Tuple

# Rows that go to the library in one call. A call costs about as much as a row.
ROWS_IN_CALL = 500

ONLY_TEXTS = {str}


def is_missing(value: Any) -> bool:
    """True for None and for what data frames put in the place of missing values."""
    if value is None:
        return True
    try:
        return bool(value != value)  # NaN and NaT
    except (TypeError, ValueError):
        return type(value).__name__ == "NAType"


def text_of_cell(value: Any) -> str:
    """The text of a value; empty if it is missing."""
    if isinstance(value, str):
        return value
    return "" if is_missing(value) else str(value)


def texts_of_row(row: Iterable[Any]) -> List[str]:
    """The texts of the cells of a row."""
    if type(row) is not list and type(row) is not tuple:
        _require_cells(row)
    return [value if type(value) is str else text_of_cell(value) for value in row]


def _require_cells(row: Iterable[Any]) -> None:
    """Refuses what has its values in no order, or has names for them."""
    if isinstance(row, (str, bytes)):
        raise TypeError(f"A row is a sequence of cells, not a text: {row!r}")
    if isinstance(row, (Mapping, set, frozenset)):
        raise TypeError(f"A row is a sequence of cells, not a {type(row).__name__}: {row!r}. "
                        "Rows with names of fields are for table and table_to.")


def cell_arguments(texts: Sequence[str]) -> Tuple[Any, Any, int]:
    """The texts of the cells of one row as three arguments."""
    encoded = [text.encode() for text in texts]
    count = len(encoded)
    # A text ends before its first zero byte, unless its length is given.
    lengths = (c_size_t * count)(*map(len, encoded)) if "\0" in "".join(texts) else None
    return (c_char_p * count)(*encoded), lengths, count


def joined(rows: Sequence[Sequence[str]]) -> bytes:
    """The texts of rows, each with a zero byte after it."""
    return ("\0".join(chain.from_iterable(rows)) + "\0").encode()


def batches(rows: Iterable[Iterable[Any]]) -> Iterator[List[Any]]:
    """Rows, as many at a time as a call takes."""
    remaining = iter(rows)
    batch = list(islice(remaining, ROWS_IN_CALL))
    while batch:
        yield batch
        batch = list(islice(remaining, ROWS_IN_CALL))


def are_texts(rows: Iterable[Any], count: int) -> bool:
    """True if all rows are sequences of so many texts, which need no conversion."""
    return all((type(row) is list or type(row) is tuple) and len(row) == count
               and set(map(type, row)) == ONLY_TEXTS for row in rows)
