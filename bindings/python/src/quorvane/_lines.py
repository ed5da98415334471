"""Lines at the top and the bottom of pages."""

from __future__ import annotations

from typing import Tuple, Union

Line = Union[str, Tuple[str, str, str]]
"""The text in the center of a line, or those at its left, in its center and at its right. {page} is
the number of the page, {pages} the number of pages, and {{ and }} are braces."""


def texts_of_line(line: Line) -> Tuple[str, str, str]:
    """What is at the left, in the center and at the right."""
    if isinstance(line, str):
        return "", line, ""
    left, center, right = (*line, "", "", "")[:3]
    if len(line) > 3 or not all(isinstance(text, str) for text in (left, center, right)):
        raise TypeError("A line is a text, or three texts for left, center and right, not "
                        f"{line!r}.")
    return left, center, right
