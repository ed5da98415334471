"""Borders and the sides that have them."""

from __future__ import annotations

from typing import Iterable, Tuple, Union

from ._handle import number_argument
from ._job import choice

BORDERS = {"none": -1, "hair": 5, "thin": 10, "normal": 20, "thick": 30}
SIDES = {"left": 1, "right": 2, "top": 4, "bottom": 8, "all": 15}

Border = Union[str, int]
""""none", "hair", "thin", "normal", "thick", or a width in twips (1/1440 inch)."""

Sides = Union[str, Iterable[str]]
""""left", "right", "top", "bottom" or "all", or several of them."""


def border_arguments(border: Border, sides: Sides) -> Tuple[int, int]:
    """A border as two arguments."""
    width = (choice(border, BORDERS, "border") if isinstance(border, str)
             else number_argument(border, "border"))
    return sides_argument(sides), width


def sides_argument(sides: Sides) -> int:
    """Sides as an argument."""
    number = 0
    for side in [sides] if isinstance(sides, str) else sides:
        number |= choice(side, SIDES, "side")
    return number
