"""Rendering, checking and formatting of descriptions and stylesheets."""

from __future__ import annotations

import datetime
import decimal
import json
import os
import threading
import uuid
from typing import Any, Iterable, List, Mapping, Optional, Sequence, Tuple, TypeVar, Union

from ._diagnostics import diagnostics_of
from ._errors import Diagnostic, Error
from ._handle import Handle, argument, number_argument, path_argument
from ._library import FileCallback, bytes_at, lib
from ._sources import ENCODINGS, ReadSource, Source, read_source
from ._target import BinaryWriter, Destination, Target, is_path, write_all

LANGUAGES = {"any": 0, "description": 1, "stylesheet": 2, "rtf": 3}
NAMES = {"kept": 0, "long": 1, "short": 2}

Files = Mapping[str, bytes]
"""Pictures and parts of templates by the names of their files: "logo.png", "row.rtfpart"."""

Path = Union[str, "os.PathLike[str]"]
AnyText = TypeVar("AnyText", str, bytes)


class Rendered(bytes):
    """The bytes of a document, with the diagnostics of its rendering."""

    diagnostics: Tuple[Diagnostic, ...] = ()

    def write_to(self, file: BinaryWriter) -> None:
        """Writes the document to a binary file object."""
        write_all(file, self)

    def __repr__(self) -> str:
        return f"<quorvane.Rendered: {len(self)} bytes, {len(self.diagnostics)} diagnostics>"


def choice(value: str, choices: Mapping[str, int], what: str) -> int:
    """The number of a choice."""
    try:
        return choices[value]
    except KeyError:
        known = ", ".join(repr(each) for each in choices)
        raise ValueError(f"The {what} is one of {known}, not {value!r}.") from None


def _json_of(data: Any) -> ReadSource:
    """Data as JSON. Texts and files are JSON already."""
    if isinstance(data, (str, bytes, os.PathLike)):
        return read_source(data)
    text = json.dumps(data, ensure_ascii=False, allow_nan=False, default=_plain)
    return ReadSource(text.encode(), None, True)


def _plain(value: Any) -> Any:
    """What JSON has no form for, as text: filters of templates take it as number or date."""
    if isinstance(value, (decimal.Decimal, uuid.UUID)):
        return str(value)
    if isinstance(value, (datetime.date, datetime.time)):
        return value.isoformat()
    raise TypeError(f"{type(value).__name__} cannot be data of a template: {value!r}")


class Job(Handle):
    """Renders, checks and formats texts, many with the same stylesheet and options.

    >>> job = quorvane.Job(pathlib.Path("invoice.rtfss"))
    >>> for order in orders:
    ...     job.render_to(f"{order['number']}.rtf", template, data=order)

    stylesheet
        in either language, as text, as bytes or as the path of a file (``pathlib.Path``)
    path
        the path of the descriptions: diagnostics name it, and pictures and partials come from its
        folder and those in it. A description that is given as ``pathlib.Path`` has its own.
    pictures
        more folders that pictures may come from
    files
        takes pictures and partials from this mapping of names to bytes, and not from files
    locale
        how templates write numbers: "de-DE", "de" or a sample such as "1.234,56"
    encoding
        how bytes and files are read: "utf-8", "windows-1252" or "auto", which decides it as the
        command does. What is a ``str`` needs none.
    check
        checks descriptions before they are rendered: their warnings are among the diagnostics, and
        one with errors is not rendered
    ignore, enable
        identifiers of diagnostics to leave out, or to report though they are off by default

    A job can be used by several threads; one of them at a time renders. Give each its own job to
    render side by side.
    """

    _KIND = "job"

    def __init__(self, stylesheet: Optional[Source] = None, *, path: Optional[Path] = None,
                 pictures: Iterable[Path] = (), files: Optional[Files] = None, locale: str = "",
                 encoding: str = "auto", check: bool = False, ignore: Iterable[str] = (),
                 enable: Iterable[str] = ()) -> None:
        self._encoding = choice(encoding, ENCODINGS, "encoding")
        # What a call leaves in the job is read before another thread calls or closes it.
        self._together = threading.RLock()
        super().__init__()
        self._path = path
        self._files = files
        self._has_data = False
        self._file = b""
        self._file_callback = FileCallback(self._read_file)
        if files is not None:
            self._call(lib.quorvane_job_set_files, self._file_callback, None)
        for folder in pictures:
            self._call(lib.quorvane_job_allow_pictures, *path_argument(folder))
        for identifier in ignore:
            self._call(lib.quorvane_job_ignore, *argument(identifier))
        for identifier in enable:
            self._call(lib.quorvane_job_enable, *argument(identifier))
        self._call(lib.quorvane_job_set_locale, *argument(locale))
        self._call(lib.quorvane_job_set_checks, number_argument(check, "check"))
        if stylesheet is not None:
            self._set_stylesheet(read_source(stylesheet))

    def close(self) -> None:
        """Releases the memory, after what other threads do with the job now."""
        self._require_outside()
        with self._together:
            super().close()

    def render(self, description: Source, *, data: Any = None) -> Rendered:
        """Renders a description and returns the bytes of the document.

        With ``data`` the description is a template, which is filled. Data is a dict or a list of
        what JSON has, of numbers as ``decimal.Decimal``, and of dates; or it is a text of JSON or
        the path of a file. Raises `Error` with `Error.diagnostics` if something is wrong.
        """
        with self._together:
            text = self._begin(description, data)
            rendered = Rendered(self._bytes(lib.quorvane_job_render, text, len(text)))
            rendered.diagnostics = tuple(self._found())
            return rendered

    def render_to(self, destination: Destination, description: Source, *,
                  data: Any = None) -> Tuple[Diagnostic, ...]:
        """Renders a description to a path or a binary file object; returns the diagnostics.

        A file appears whole, in the place of one that was there. Nothing is written if something is
        wrong.
        """
        with self._together:
            text = self._begin(description, data)
            if is_path(destination):
                self._call(lib.quorvane_job_render_file, text, len(text),
                           *path_argument(destination))  # type: ignore[arg-type]
            else:
                target = Target(destination, self._raised)  # type: ignore[arg-type]
                self._call(lib.quorvane_job_render_to, text, len(text), target.callback, None)
            return tuple(self._found())

    def check(self, text: Source, language: str = "any", *,
              data: Any = None) -> List[Diagnostic]:
        """Checks a text, and returns what is wrong with it.

        ``language`` is "description", "stylesheet", "rtf", or "any" for that which it appears to be
        in. With ``data``, a template is filled and the result checked too.
        """
        number = choice(language, LANGUAGES, "language")
        with self._together:
            content = self._begin(text, data)
            self._call(lib.quorvane_job_check, content, len(content), number)
            return list(self._found())

    def format(self, text: AnyText, language: str = "any", *, names: str = "kept") -> AnyText:
        """Returns a description or a stylesheet in its canonical form, as it is: text or bytes.

        ``names`` is "kept", "long" or "short", for the names of nodes and keys.
        """
        numbers = choice(language, LANGUAGES, "language"), choice(names, NAMES, "form of names")
        with self._together:
            content = self._begin(text, None)
            formatted = self._bytes(lib.quorvane_job_format, content, len(content), *numbers)
            return formatted.decode() if isinstance(text, str) else formatted

    def _begin(self, source: Source, data: Any) -> bytes:
        """Prepares for a text, and returns its bytes."""
        text = read_source(source)
        self._set_data(data)
        self._set_encoding(text)
        path = text.path if text.path is not None else self._path or ""
        self._call(lib.quorvane_job_set_path, *path_argument(path))
        return text.text

    def _set_encoding(self, source: ReadSource) -> None:
        encoding = ENCODINGS["utf-8"] if source.is_utf8 else self._encoding
        self._call(lib.quorvane_job_set_encoding, encoding)

    def _set_stylesheet(self, source: ReadSource) -> None:
        self._set_encoding(source)
        self._call(lib.quorvane_job_set_stylesheet, source.text, len(source.text),
                   *path_argument(source.path or ""))

    def _set_data(self, data: Any) -> None:
        if data is None and not self._has_data:
            return
        json_text = ReadSource(b"", None, True) if data is None else _json_of(data)
        if data is not None and not json_text.text:
            raise Error("The data is empty; it must be JSON.", "wrong-json")
        self._call(lib.quorvane_job_set_data, json_text.text, len(json_text.text),
                   *path_argument(json_text.path or ""))
        self._has_data = data is not None

    def _found(self) -> Sequence[Diagnostic]:
        return diagnostics_of("job", self._pointer)

    def _read_file(self, _user: object, _kind: int, name: int, length: int, content: Any,
                   content_length: Any) -> int:
        try:
            assert self._files is not None
            self._file = bytes(self._files[bytes_at(name, length).decode()])
        except KeyError:
            return 1
        except BaseException as error:  # No exception passes the library; the call raises it.
            self._raised.append(error)
            return 1
        content[0] = self._file
        content_length[0] = len(self._file)
        return 0

    def __enter__(self) -> Job:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def __repr__(self) -> str:
        state = "closed" if self._pointer is None else f"path {os.fspath(self._path or '')!r}"
        return f"<quorvane.Job: {state}>"
