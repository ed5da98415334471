"""Rendering, checking and formatting one text."""

from __future__ import annotations

from typing import Any, Iterable, List, Optional, Tuple

from ._errors import Diagnostic
from ._job import AnyText, Files, Job, Path, Rendered
from ._sources import Source
from ._target import Destination


def render(description: Source, stylesheet: Optional[Source] = None, *, data: Any = None,
           path: Optional[Path] = None, files: Optional[Files] = None, locale: str = "",
           encoding: str = "auto", check: bool = False) -> Rendered:
    """Renders a description and returns the bytes of the document, with its diagnostics.

    >>> rtf = quorvane.render(pathlib.Path("invoice.rtfspec"), pathlib.Path("invoice.rtfss"))

    `Job` explains the options, and `Job.render` the data. To render many descriptions with the same
    stylesheet, use a `Job`: it reads the stylesheet once.
    """
    with Job(stylesheet, path=path, files=files, locale=locale, encoding=encoding,
             check=check) as job:
        return job.render(description, data=data)


def render_to(destination: Destination, description: Source, stylesheet: Optional[Source] = None,
              *, data: Any = None, path: Optional[Path] = None, files: Optional[Files] = None,
              locale: str = "", encoding: str = "auto",
              check: bool = False) -> Tuple[Diagnostic, ...]:
    """Renders a description to a path or a binary file object, and returns the diagnostics.

    A file appears whole, in the place of one that was there. See `Job.render_to`.
    """
    with Job(stylesheet, path=path, files=files, locale=locale, encoding=encoding,
             check=check) as job:
        return job.render_to(destination, description, data=data)


def check(text: Source, language: str = "any", *, stylesheet: Optional[Source] = None,
          data: Any = None, path: Optional[Path] = None, files: Optional[Files] = None,
          locale: str = "", encoding: str = "auto", ignore: Iterable[str] = (),
          enable: Iterable[str] = ()) -> List[Diagnostic]:
    """Checks a description, a stylesheet or an RTF document, and returns what is wrong with it.

    >>> for diagnostic in quorvane.check(pathlib.Path("invoice.rtfspec")):
    ...     print(diagnostic)

    ``stylesheet`` is the one of a description. See `Job.check`.
    """
    with Job(stylesheet, path=path, files=files, locale=locale, encoding=encoding, ignore=ignore,
             enable=enable) as job:
        return job.check(text, language, data=data)


def format(text: AnyText, language: str = "any", *, names: str = "kept",
           path: Optional[Path] = None, encoding: str = "auto") -> AnyText:
    """Returns a description or a stylesheet in its canonical form. See `Job.format`."""
    with Job(path=path, encoding=encoding) as job:
        return job.format(text, language, names=names)
