"""A handle of the C library."""

from __future__ import annotations

import operator
import os
import threading
from ctypes import byref, c_size_t, c_void_p
from threading import get_ident
from typing import Any, Callable, List, Optional, Sequence, Tuple, Type, Union

from ._errors import Diagnostic, Error, FileError
from ._library import FILE_ERROR, OUT_OF_MEMORY, bytes_at, lib


def text_of(text: Optional[bytes]) -> str:
    """A text that the library returned."""
    return (text or b"").decode("utf-8", "replace")


def argument(text: str) -> Tuple[bytes, int]:
    """A text as two arguments."""
    try:
        encoded = text.encode()
    except AttributeError:
        raise TypeError(f"A text is a str, not {type(text).__name__}: {text!r}") from None
    return encoded, len(encoded)


def path_argument(path: Union[str, "os.PathLike[str]"]) -> Tuple[bytes, int]:
    """A path as two arguments."""
    text = os.fspath(path)
    if "\0" in text:
        raise ValueError(f"A path has no zero byte: {text!r}")
    encoded = text.encode("utf-8", "surrogateescape")
    return encoded, len(encoded)


_LIMIT = 1 << 31


def number_argument(number: int, name: str) -> int:
    """A number as an argument. One of more than 32 bits would silently become another one."""
    value = operator.index(number)
    if not -_LIMIT <= value < _LIMIT:
        raise Error(f"{name} is out of range: {value}.", "wrong-value")
    return value


class Handle:
    """A handle, which one thread at a time uses; the others wait. A call releases the GIL."""

    _KIND = ""

    def __init__(self) -> None:
        # A signal handler can use the handle while its thread is here.
        self._lock = threading.RLock()
        self._caller: Optional[int] = None
        self._raised: List[BaseException] = []
        self._pointer: Optional[c_void_p] = None
        self._free: Callable[[c_void_p], None] = getattr(lib, f"quorvane_{self._KIND}_free")
        pointer = c_void_p()
        if getattr(lib, f"quorvane_{self._KIND}_new")(byref(pointer)):
            raise MemoryError("There is not enough memory.")
        self._pointer = pointer

    def __del__(self) -> None:
        # Without a pointer the constructor did not get that far.
        if getattr(self, "_pointer", None) is not None:
            self.close()

    def close(self) -> None:
        """Releases the memory at once, and not when nothing refers to the object any more."""
        self._require_outside()
        with self._lock:
            pointer, self._pointer = self._pointer, None
            if pointer is not None:
                self._free(pointer)

    def _call(self, function: Callable[..., int], *arguments: Any) -> None:
        thread = get_ident()
        if self._caller == thread:
            self._require_outside()
        with self._lock:
            self._require_open()
            self._caller = thread
            try:
                status = function(self._pointer, *arguments)
            finally:
                self._caller = None
            if self._raised:
                raise self._raised_error()
            if status:
                raise self._error(status)

    def _call_shortly(self, function: Callable[..., int], *arguments: Any) -> None:
        """A call that neither waits nor calls back: one of `short_lib`, which keeps the GIL.

        Nothing else runs meanwhile, neither another thread nor a signal handler.
        """
        if self._caller is not None:
            self._require_outside()
        with self._lock:
            status = function(self._pointer, *arguments)
            if status:
                self._require_open()
                raise self._error(status)

    def _require_open(self) -> None:
        if self._pointer is None:
            raise Error(f"The {self._KIND} is closed.")

    def _require_outside(self) -> None:
        """A file object, and what else a call calls, cannot call again: it would wait forever."""
        if self._caller == get_ident():
            raise Error(f"The {self._KIND} cannot be used while it calls.")

    def _bytes(self, function: Callable[..., int], *arguments: Any) -> bytes:
        """What a function returns as a text that is to be freed."""
        text, length = c_void_p(), c_size_t()
        self._call(function, *arguments, byref(text), byref(length))
        try:
            return bytes_at(text.value or 0, length.value)
        finally:
            lib.quorvane_free(text)

    def _raised_error(self) -> BaseException:
        """What a callback raised during the call."""
        error = self._raised[0]
        self._raised.clear()
        return error

    def _error(self, status: int) -> BaseException:
        if status == OUT_OF_MEMORY:
            return MemoryError("There is not enough memory.")
        error = getattr(lib, f"quorvane_{self._KIND}_error")(self._pointer).contents
        kind: Type[Error] = FileError if status == FILE_ERROR else Error
        return kind(text_of(error.message), text_of(error.identifier), text_of(error.file) or None,
                    error.line or None, error.column or None, error.number, self._found())

    def _found(self) -> Sequence[Diagnostic]:
        """The diagnostics of the last call."""
        return ()
