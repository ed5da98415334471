"""What is wrong: the exception of this package, and diagnostics."""

from __future__ import annotations

from typing import Any, NamedTuple, Optional, Sequence, Tuple, Type


class Diagnostic(NamedTuple):
    """One problem in a text. ``str(diagnostic)`` is a line for people."""

    severity: str
    """"error" or "warning"."""
    identifier: str
    """The kind of diagnostic, such as "wrong-color"."""
    message: str
    """What is wrong."""
    hint: str
    """What could be done about it, or an empty text."""
    file: str
    """The file, or the name of the text: "description", "stylesheet" or "data"."""
    line: int
    """The line, from 1."""
    column: int
    """The column in characters, from 1."""
    length: int
    """How many characters it is about, on this line."""
    byte_offset: int
    """The place in bytes, from the beginning of the text."""
    byte_length: int
    """The length in bytes."""
    fix: Optional[str]
    """What to put in this place instead, if that is certain."""

    @property
    def is_error(self) -> bool:
        """True for an error, false for a warning."""
        return self.severity == "error"

    def __str__(self) -> str:
        return (f"{self.file}:{self.line}:{self.column}: {self.severity}: {self.message} "
                f"[{self.identifier}]")


class Error(Exception):
    """What Quorvane cannot do, and why. ``str(error)`` begins with the place if there is one."""

    message: str
    """What is wrong, without its place."""
    identifier: str
    """The kind of error, such as "wrong-value"."""
    file: Optional[str]
    """The file, or the name of the text, that the error is about."""
    line: Optional[int]
    """The line in it, from 1."""
    column: Optional[int]
    """The column in characters, from 1."""
    number: int
    """The number of this error in the C++ library, 0 if it has none."""
    diagnostics: Tuple[Diagnostic, ...]
    """Everything that was found in a text; the error itself is the first error among it. For a
    table of a file, the rows that were left out before the error."""

    def __init__(self, message: str, identifier: str = "wrong-call", file: Optional[str] = None,
                 line: Optional[int] = None, column: Optional[int] = None, number: int = 0,
                 diagnostics: Sequence[Diagnostic] = ()) -> None:
        super().__init__(message)
        self.message = message
        self.identifier = identifier
        self.file = file
        self.line = line
        self.column = column
        self.number = number
        self.diagnostics = tuple(diagnostics)

    def __str__(self) -> str:
        parts = (self.file, self.line, self.column) if self.file else ()
        place = ":".join(str(part) for part in parts if part)
        errors = [each for each in self.diagnostics if each.is_error]
        is_among = any((each.message, each.line, each.column) ==
                       (self.message, self.line or 0, self.column or 0) for each in errors)
        more = len(errors) - is_among
        return ((f"{place}: " if place else "") + self.message +
                (f" ({more} more in diagnostics)" if more > 0 else ""))

    def __reduce__(self) -> Tuple[Type[Error], Tuple[Any, ...]]:
        return type(self), (self.message, self.identifier, self.file, self.line, self.column,
                            self.number, self.diagnostics)


class FileError(Error, OSError):
    """A file that cannot be read or written, with the reason of the system."""
