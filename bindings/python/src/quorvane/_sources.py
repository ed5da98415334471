"""Texts that are given: as text, as bytes, or as the path of a file."""

from __future__ import annotations

import os
import pathlib
from typing import NamedTuple, Optional, Union

Source = Union[str, bytes, "os.PathLike[str]"]
"""A text, its bytes, or the path of a file (``pathlib.Path``) that has them."""

ENCODINGS = {"utf-8": 0, "windows-1252": 1, "auto": 2}


class ReadSource(NamedTuple):
    """The bytes of a text, and the path if it is a file."""

    text: bytes
    path: Optional[str]
    is_utf8: bool
    """True if there is no question how to read the bytes."""


def read_source(source: Source) -> ReadSource:
    """Reads a text."""
    if isinstance(source, str):
        if source.endswith((".rtfspec", ".rtfss")) and "\n" not in source:
            raise ValueError(f"{source!r} is a text and looks like the name of a file; use "
                             "pathlib.Path for a path.")
        return ReadSource(source.encode(), None, True)
    if isinstance(source, bytes):
        return ReadSource(source, None, False)
    if isinstance(source, os.PathLike):
        return ReadSource(pathlib.Path(source).read_bytes(), os.fspath(source), False)
    raise TypeError("A text is a str, bytes or a pathlib.Path of a file, not "
                    f"{type(source).__name__}.")
