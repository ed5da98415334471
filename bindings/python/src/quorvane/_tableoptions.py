"""The options that all tables have."""

from __future__ import annotations

from typing import List, Optional, Tuple

from ._handle import argument
from ._lines import Line, texts_of_line
from ._sources import Source, read_source

_TITLE, _HEADING, _PAGE, _MARGIN, _STRIPE, _BORDER, _STYLESHEET, _HEADER, _FOOTER = (
    0, 1, 2, 3, 4, 5, 6, 7, 10)

Setting = Tuple[int, bytes, int]
"""The arguments of a call that sets an option."""


def settings_of(title: str, heading: bool, page: Optional[str], margin: Optional[str],
                stripe: Optional[str], border: Optional[str], stylesheet: Optional[Source],
                header: Optional[Line], footer: Optional[Line]) -> List[Setting]:
    """What is not None; `TableWriter` explains the options."""
    texts = [(_TITLE, title), (_HEADING, yes_or_no(heading)), (_PAGE, page), (_MARGIN, margin),
             (_STRIPE, stripe), (_BORDER, border)]
    settings = [(option, *argument(text))
                for option, text in texts + _lines(_HEADER, header) + _lines(_FOOTER, footer)
                if text is not None]
    if stylesheet is not None:
        sheet = read_source(stylesheet).text
        settings.append((_STYLESHEET, sheet, len(sheet)))
    return settings


def yes_or_no(choice: bool) -> str:
    """A choice as the value of an option."""
    return "yes" if choice else "no"


def _lines(first: int, line: Optional[Line]) -> List[Tuple[int, Optional[str]]]:
    """The options of a header or a footer, of which the first is that of its left."""
    return [] if line is None else list(enumerate(texts_of_line(line), first))
