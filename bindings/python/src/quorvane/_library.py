"""The C library that this package carries: its functions, structures and constants.

docs/c.md and the header quorvane.h explain them.
"""

from __future__ import annotations

import ctypes
import pathlib
import sys
from ctypes import POINTER, Structure, c_char_p, c_int, c_size_t, c_void_p
from typing import Any, Dict, List, Type, TypeVar

_FILE_NAMES = {"win32": "quorvane-1.dll", "darwin": "libquorvane.1.dylib"}

AnyLibrary = TypeVar("AnyLibrary", bound=ctypes.CDLL)

AT_END = ctypes.c_size_t(-1).value

OUT_OF_MEMORY = 2
FILE_ERROR = 4


class CError(Structure):
    """quorvane_error"""

    _fields_ = [
        ("status", c_int),
        ("number", c_int),
        ("identifier", c_char_p),
        ("message", c_char_p),
        ("file", c_char_p),
        ("line", c_size_t),
        ("column", c_size_t),
    ]


class CDiagnostic(Structure):
    """quorvane_diagnostic"""

    _fields_ = [
        ("severity", c_int),
        ("identifier", c_char_p),
        ("message", c_char_p),
        ("hint", c_char_p),
        ("file", c_char_p),
        ("line", c_size_t),
        ("column", c_size_t),
        ("length", c_size_t),
        ("byte_offset", c_size_t),
        ("byte_length", c_size_t),
        ("fix", c_char_p),
    ]


WriteCallback = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p, c_size_t)
FileCallback = ctypes.CFUNCTYPE(
    c_int, c_void_p, c_int, c_void_p, c_size_t, POINTER(c_char_p), POINTER(c_size_t))

_TEXT: List[Any] = [c_char_p, c_size_t]
_RESULT: List[Any] = [POINTER(c_void_p), POINTER(c_size_t)]
_CELL_TEXTS: List[Any] = [POINTER(c_char_p), POINTER(c_size_t), c_size_t]
_NUMBER: List[Any] = [POINTER(c_size_t)]
_ROW: List[Any] = [c_size_t]
_CELL: List[Any] = [c_size_t, c_size_t]
_PARAGRAPH: List[Any] = [c_size_t, c_size_t, c_size_t]

# What each function takes after its handle. All of them return a status.
_FUNCTIONS: Dict[str, List[Any]] = {
    "job_set_path": _TEXT,
    "job_allow_pictures": _TEXT,
    "job_set_files": [FileCallback, c_void_p],
    "job_set_stylesheet": _TEXT + _TEXT,
    "job_set_data": _TEXT + _TEXT,
    "job_set_locale": _TEXT,
    "job_set_encoding": [c_int],
    "job_set_checks": [c_int],
    "job_ignore": _TEXT,
    "job_enable": _TEXT,
    "job_render": _TEXT + _RESULT,
    "job_render_to": _TEXT + [WriteCallback, c_void_p],
    "job_render_file": _TEXT + _TEXT,
    "job_check": _TEXT + [c_int],
    "job_format": _TEXT + [c_int, c_int] + _RESULT,
    "table_add_column": _TEXT + _TEXT + [c_int],
    "table_set": [c_int] + _TEXT,
    "table_fit_columns": [],
    "table_set_data": _TEXT + [c_int] + _TEXT,
    "table_set_data_file": _TEXT + [c_int],
    "table_begin": [],
    "table_begin_to": [WriteCallback, c_void_p],
    "table_begin_file": _TEXT,
    "table_add_row": _CELL_TEXTS,
    "table_add_rows": _TEXT + [c_size_t, c_size_t] + _NUMBER,
    "table_add_group": _TEXT,
    "table_add_total": _CELL_TEXTS,
    "table_finish": [],
    "table_take": _RESULT,
    "document_set_page": _TEXT,
    "document_set_page_size": _TEXT + _TEXT,
    "document_set_margin": [c_int] + _TEXT,
    "document_set_first_page": [c_int],
    "document_set_columns": _TEXT,
    "document_set_header": _TEXT + _TEXT + _TEXT,
    "document_set_footer": _TEXT + _TEXT + _TEXT,
    "document_set_heading_form": [c_int],
    "document_set_stylesheet": _TEXT,
    "document_add_row": _CELL_TEXTS + _TEXT + _NUMBER,
    "document_add_rows": _TEXT + [c_size_t, c_size_t] + _TEXT,
    "document_insert_row": [c_size_t] + _NUMBER,
    "document_remove_row": _ROW,
    "document_count_rows": _NUMBER,
    "document_rtf": _RESULT,
    "document_write": [WriteCallback, c_void_p],
    "document_save": _TEXT,
    "row_set_columns": _ROW + _TEXT,
    "row_set_background": _ROW + _TEXT,
    "row_set_border": _ROW + [c_int, c_int],
    "row_set_heading": _ROW + [c_int],
    "row_set_keep": _ROW + [c_int],
    "row_set_keep_with_next": _ROW + [c_int],
    "row_set_page_break": _ROW + [c_int],
    "row_insert_cell": _ROW + [c_size_t] + _TEXT + _TEXT + _NUMBER,
    "row_remove_cell": _CELL,
    "row_count_cells": _ROW + _NUMBER,
    "cell_set_style": _CELL + _TEXT,
    "cell_set_align": _CELL + [c_int],
    "cell_set_background": _CELL + _TEXT,
    "cell_set_border": _CELL + [c_int, c_int],
    "cell_set_span": _CELL + [c_int, c_int],
    "cell_set_marked_field": _CELL + _TEXT,
    "cell_insert_paragraph": _CELL + [c_size_t] + _TEXT + _TEXT + _NUMBER,
    "cell_remove_paragraph": _PARAGRAPH,
    "cell_count_paragraphs": _CELL + _NUMBER,
    "paragraph_set_text": _PARAGRAPH + _TEXT,
    "paragraph_add_text": _PARAGRAPH + _TEXT + [c_int],
    "paragraph_add_styled_text": _PARAGRAPH + _TEXT + _TEXT,
    "paragraph_add_rtf": _PARAGRAPH + _TEXT,
    "paragraph_rtf": _PARAGRAPH + _RESULT,
    "paragraph_set_style": _PARAGRAPH + _TEXT,
    "paragraph_set_color": _PARAGRAPH + _TEXT,
    "paragraph_set_align": _PARAGRAPH + [c_int],
    "paragraph_set_marked_field": _PARAGRAPH + _TEXT,
    "paragraph_set_picture": _PARAGRAPH + _TEXT + _TEXT + _TEXT,
    "paragraph_set_picture_file": _PARAGRAPH + _TEXT + _TEXT + _TEXT,
}


def _load(kind: Type[AnyLibrary]) -> AnyLibrary:
    file = pathlib.Path(__file__).parent / _FILE_NAMES.get(sys.platform, "libquorvane.so.1")
    try:
        return kind(str(file))
    except OSError as error:
        raise ImportError(
            f"The library of Quorvane cannot be loaded: {error}. Install a wheel of quorvane for "
            f"this system and this processor.") from error


# Its calls release the GIL.
lib = _load(ctypes.CDLL)
# Its calls keep the GIL, which takes less time than releasing it where the call does little.
short_lib = _load(ctypes.PyDLL)
lib.quorvane_version.restype = c_char_p
lib.quorvane_free.argtypes = [c_void_p]
lib.quorvane_free.restype = None
for _kind in ("job", "table"):
    getattr(lib, f"quorvane_{_kind}_diagnostic_count").argtypes = [c_void_p]
    getattr(lib, f"quorvane_{_kind}_diagnostic_count").restype = c_size_t
    getattr(lib, f"quorvane_{_kind}_diagnostic").argtypes = [c_void_p, c_size_t]
    getattr(lib, f"quorvane_{_kind}_diagnostic").restype = POINTER(CDiagnostic)
for _kind in sorted({name.split("_")[0] for name in _FUNCTIONS
                     if name.startswith(("job_", "table_", "document_"))}):
    getattr(lib, f"quorvane_{_kind}_new").argtypes = [POINTER(c_void_p)]
    getattr(lib, f"quorvane_{_kind}_free").argtypes = [c_void_p]
    getattr(lib, f"quorvane_{_kind}_free").restype = None
    getattr(lib, f"quorvane_{_kind}_error").argtypes = [c_void_p]
    getattr(lib, f"quorvane_{_kind}_error").restype = POINTER(CError)
for _name, _arguments in _FUNCTIONS.items():
    for _library in (lib, short_lib):
        getattr(_library, f"quorvane_{_name}").argtypes = [c_void_p, *_arguments]


def version() -> str:
    """The version of the library."""
    text: bytes = lib.quorvane_version()
    return text.decode()


# ctypes.string_at takes a length of 31 bits.
_PIECE = 1 << 30


def bytes_at(address: int, length: int) -> bytes:
    """A copy of so many bytes."""
    return b"".join(ctypes.string_at(address + begin, min(_PIECE, length - begin))
                    for begin in range(0, length, _PIECE))
