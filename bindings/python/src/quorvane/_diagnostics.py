"""The diagnostics of a handle."""

from __future__ import annotations

from typing import Any, Tuple

from ._errors import Diagnostic
from ._handle import text_of
from ._library import CDiagnostic, lib


def diagnostics_of(kind: str, pointer: Any) -> Tuple[Diagnostic, ...]:
    """What the last call of a handle of this kind found."""
    count = getattr(lib, f"quorvane_{kind}_diagnostic_count")(pointer)
    get = getattr(lib, f"quorvane_{kind}_diagnostic")
    return tuple(_diagnostic(get(pointer, index).contents) for index in range(count))


def _diagnostic(found: CDiagnostic) -> Diagnostic:
    return Diagnostic(
        "warning" if found.severity else "error", text_of(found.identifier), text_of(found.message),
        text_of(found.hint), text_of(found.file), found.line, found.column, found.length,
        found.byte_offset, found.byte_length, None if found.fix is None else text_of(found.fix))
