"""libmekbom as ctypes sees it: the functions of mekbom.h, and where the library and the shipped lists are found."""

import ctypes
import ctypes.util
import os
import pathlib
from typing import Iterator

DONE = 0
STOPPED = 5

# In the order in which they are offered: of lists that suit equally well the first is taken.
SHIPPED_LISTS = ("cutting-list", "assembly-list", "bolt-list", "parts-list")


class Text(ctypes.Structure):
    """mekbom_text: bytes that belong to their session."""

    _fields_ = [("bytes", ctypes.POINTER(ctypes.c_char)), ("size", ctypes.c_size_t)]

    def copy(self) -> bytes:
        return ctypes.string_at(self.bytes, self.size)


class Column(ctypes.Structure):
    """mekbom_column: a heading, and for each row a number or a text."""

    _fields_ = [("heading", ctypes.c_char_p), ("numbers", ctypes.POINTER(ctypes.c_double)),
                ("texts", ctypes.POINTER(ctypes.c_char_p))]


PROGRESS = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_int, ctypes.c_size_t)

_SESSION = ctypes.c_void_p
_NAMED_BYTES = [_SESSION, ctypes.c_char_p, ctypes.c_char_p, ctypes.c_size_t]
_FUNCTIONS = {
    "mekbom_version": (ctypes.c_char_p, []),
    "mekbom_open": (_SESSION, []),
    "mekbom_close": (None, [_SESSION]),
    "mekbom_add_parts": (ctypes.c_int, _NAMED_BYTES),
    "mekbom_add_rows": (ctypes.c_int, [_SESSION, ctypes.c_char_p, ctypes.POINTER(Column), ctypes.c_size_t,
                                       ctypes.c_size_t]),
    "mekbom_set_assemblies": (ctypes.c_int, _NAMED_BYTES),
    "mekbom_set_template": (ctypes.c_int, _NAMED_BYTES),
    "mekbom_offer_template": (ctypes.c_int, _NAMED_BYTES),
    "mekbom_set_options": (ctypes.c_int, [_SESSION, ctypes.c_char_p, ctypes.c_size_t]),
    "mekbom_set_progress": (ctypes.c_int, [_SESSION, PROGRESS, ctypes.c_void_p]),
    "mekbom_evaluate": (ctypes.c_int, [_SESSION]),
    "mekbom_check": (ctypes.c_int, [_SESSION]),
    "mekbom_findings": (Text, [_SESSION]),
    "mekbom_write": (Text, [_SESSION, ctypes.c_char_p]),
    "mekbom_columns": (Text, [_SESSION]),
    "mekbom_num_lines": (ctypes.c_size_t, [_SESSION]),
    "mekbom_lines": (Text, [_SESSION, ctypes.c_size_t, ctypes.c_size_t]),
    "mekbom_handles": (Text, [_SESSION, ctypes.c_size_t]),
    "mekbom_describe": (Text, [_SESSION, ctypes.c_char_p]),
}


def _candidates() -> Iterator[str]:
    """The library that MEKBOM_LIBRARY names, one installed with the package, that of the system."""
    if named := os.environ.get("MEKBOM_LIBRARY"):
        yield named
        return
    for parent in pathlib.Path(__file__).resolve().parents:
        yield from map(str, parent.glob("libmekbom.so.1"))
    yield "libmekbom.so.1"
    if found := ctypes.util.find_library("mekbom"):
        yield found


def _load() -> ctypes.CDLL:
    reasons = []
    for name in _candidates():
        try:
            library = ctypes.CDLL(name)
        except OSError as error:
            reasons.append(str(error))
            continue
        for function, (result, arguments) in _FUNCTIONS.items():
            getattr(library, function).restype = result
            getattr(library, function).argtypes = arguments
        return library
    raise ImportError("libmekbom is not found; MEKBOM_LIBRARY may name it: " + "; ".join(reasons))


library = _load()


def _folder_of_lists() -> pathlib.Path | None:
    """Where the shipped lists are: in the folder that MEKBOM_SHARE names, or where they are installed."""
    if named := os.environ.get("MEKBOM_SHARE"):
        shares = [pathlib.Path(named)]
    else:
        package = pathlib.Path(__file__).resolve().parent
        shares = [package, *(parent / "share" / "mekbom" for parent in package.parents)]
    return next((share / "Templates" for share in shares if (share / "Templates").is_dir()), None)


def shipped_lists() -> dict[str, pathlib.Path]:
    """The files of the shipped lists by their names; none where they are not installed."""
    folder = _folder_of_lists()
    return {} if folder is None else {name: folder / f"{name}.json" for name in SHIPPED_LISTS}
