"""Where a document goes: a path or a file object."""

from __future__ import annotations

import os
from typing import Any, List, Protocol, Union

from ._library import WriteCallback, bytes_at


class BinaryWriter(Protocol):
    """What can be written to: a binary file, io.BytesIO, a response of a web server."""

    def write(self, data: bytes) -> Any:
        """Writes bytes."""


Destination = Union[str, "os.PathLike[str]", BinaryWriter]
"""A path, or an object with a method ``write`` that takes bytes."""


def is_path(destination: Destination) -> bool:
    """True for a path, false for a file object."""
    if isinstance(destination, (str, os.PathLike)):
        return True
    if not hasattr(destination, "write"):
        raise TypeError("A document goes to a path or to a file object, not to "
                        f"{type(destination).__name__}.")
    return False


def write_all(file: BinaryWriter, data: bytes) -> None:
    """Writes bytes, also to a file that does not take them all at once."""
    rest = data
    while rest:
        written = file.write(rest)
        if not isinstance(written, int):
            return
        if written <= 0:
            raise BlockingIOError("The file object takes no more bytes.")
        rest = rest[written:]


class Target:
    """Writes to a file object for the C library, and notes what that raises."""

    def __init__(self, file: BinaryWriter, raised: List[BaseException]) -> None:
        self._file = file
        self._raised = raised
        self.callback = WriteCallback(self._write)

    def _write(self, _user: object, address: int, length: int) -> int:
        try:
            write_all(self._file, bytes_at(address, length))
        except BaseException as error:  # No exception passes the library; the call raises it.
            self._raised.append(error)
            return 1
        return 0
