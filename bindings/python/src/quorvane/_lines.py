"""Lines at the top and the bottom of pages."""

from __future__ import annotations

from typing import Tuple, Union

Line = Union[str, Tuple[str, str, str]]
"""The text in the center of a line, or those at its left, in its center and at its right. {page} is
the number of the page, {pages} the number of pages, and {{ and }} are braces."""


def texts_of_line(line: Line) -> Tuple[str, str, str]:
    """What is at the left, in the center and at the right."""
    return ("", line, "") if isinstance(line, str) else line
