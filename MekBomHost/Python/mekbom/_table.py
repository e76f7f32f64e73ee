"""Rows in memory as columns of numbers and texts, which libmekbom takes.

A value is a number, a text or nothing: None, NaN and an empty text are nothing. Whole numbers that a double does not hold
exactly go as their digits, so that none is changed on the way.
"""

import ctypes
import math
import numbers
from typing import Any, Iterable, Mapping, Sequence

try:
    import numpy
except ImportError:
    numpy = None  # rows are read all the same

from . import _library

LARGEST_EXACT = 2**53


class Table:
    """Columns of equal length, kept until the library has copied them."""

    def __init__(self, columns: Mapping[str, Sequence[Any]], num_rows: int):
        self.num_rows = num_rows
        self._kept: list[Any] = []
        self.columns = (_library.Column * len(columns))(
            *(self._column(heading, values) for heading, values in columns.items()))

    def _column(self, heading: str, values: Sequence[Any]) -> _library.Column:
        column = _library.Column(encoded(heading, "a heading"))
        if (doubles := _doubles_of(values)) is not None:
            self._kept.append(doubles)
            column.numbers = doubles.ctypes.data_as(ctypes.POINTER(ctypes.c_double))
            return column
        items = values.tolist() if hasattr(values, "tolist") else values
        if (joined := _joined(items)) is not None:
            column.texts = self._pointers_into(joined)
            return column
        texts, floats = _split(heading, items)
        if texts is not None:
            array = (ctypes.c_char_p * self.num_rows)(*texts)
            self._kept.append(array)
            column.texts = ctypes.cast(array, ctypes.POINTER(ctypes.c_char_p))
        if floats is not None:
            doubles = (ctypes.c_double * self.num_rows)(*floats)
            self._kept.append(doubles)
            column.numbers = ctypes.cast(doubles, ctypes.POINTER(ctypes.c_double))
        return column

    def _pointers_into(self, joined: bytes) -> Any:
        """Pointers to the texts, each of which ends with a zero."""
        begins = numpy.empty(self.num_rows, dtype=numpy.uintp)
        begins[0] = 0
        begins[1:] = numpy.flatnonzero(numpy.frombuffer(joined, dtype=numpy.uint8) == 0)[:-1] + 1
        begins += ctypes.cast(joined, ctypes.c_void_p).value
        self._kept += [joined, begins]
        return ctypes.cast(begins.ctypes.data, ctypes.POINTER(ctypes.c_char_p))


def of_rows(rows: Iterable[Mapping[str, Any]]) -> Table:
    """Rows as mappings from headings to values; a row may lack headings that others have."""
    columns: dict[str, list[Any]] = {}
    num_rows = 0
    for row in rows:
        for heading, value in row.items():
            column = columns.get(heading)
            if column is None:
                column = columns[heading] = []
            column.extend([None] * (num_rows - len(column)))
            column.append(value)
        num_rows += 1
    _require_texts(columns)
    for column in columns.values():
        column.extend([None] * (num_rows - len(column)))
    return Table(columns, num_rows)


def of_frame(frame: Any) -> Table:
    """A pandas DataFrame; its index is no column."""
    headings = list(frame.columns)
    _require_texts(headings)
    if len(set(headings)) < len(headings):
        raise ValueError("two columns of the DataFrame have the same heading")
    return Table({heading: frame.iloc[:, index] for index, heading in enumerate(headings)}, len(frame))


def _require_texts(headings: Iterable[Any]) -> None:
    for heading in headings:
        if not isinstance(heading, str):
            raise TypeError(f"the heading {heading!r} is no text such as \"Name\" or \"Length [mm]\"")


def _doubles_of(values: Any) -> Any:
    """An array of doubles for a column that numpy or pandas knows to be of numbers that these hold; None for others."""
    dtype = getattr(values, "dtype", None)
    kind = getattr(dtype, "kind", "O")
    if kind == "f" and getattr(dtype, "itemsize", 0) in (2, 4, 8) or kind in "iu" and len(values) > 0 and _are_exact(values):
        doubles = values.to_numpy(dtype="float64", na_value=math.nan) if hasattr(values, "to_numpy") else values
        return numpy.ascontiguousarray(doubles, dtype="float64")  # a column of a frame may be a part of rows
    return None


def _are_exact(integers: Any) -> bool:
    present = integers.dropna() if hasattr(integers, "dropna") else integers
    return len(present) == 0 or max(abs(int(present.min())), abs(int(present.max()))) <= LARGEST_EXACT


def _joined(values: Sequence[Any]) -> bytes | None:
    """The texts of a column of texts and of nothing, a zero behind each; None for others, and for texts to be refused.

    They are encoded all at once, in a tenth of the time that single ones take. Without numpy that would gain nothing.
    """
    if numpy is None or len(values) == 0:
        return None
    try:
        joined = "\0".join(["" if value is None or value != value else value for value in values])
        return joined.encode() + b"\0" if joined.count("\0") == len(values) - 1 else None
    except (TypeError, UnicodeEncodeError):
        return None


def _split(heading: str, values: Iterable[Any]) -> tuple[list[bytes | None] | None, list[float] | None]:
    """The texts and the numbers of a column; None in place of a list that would be empty throughout."""
    texts: list[bytes | None] = []
    floats: list[float] = []
    has_texts = has_floats = False
    for value in values:
        text, number = None, math.nan
        if isinstance(value, str):
            text = encoded(value, f'column "{heading}", row {len(texts) + 1}')
            has_texts = True
        elif not _is_nothing(value):
            if _is_double(value):
                number = float(value)
                has_floats = True
            elif isinstance(value, (bytes, bytearray)):
                raise TypeError(f'column "{heading}", row {len(texts) + 1}: bytes are no text; decode them')
            else:
                text = str(value).encode()
                has_texts = True
        texts.append(text)
        floats.append(number)
    return texts if has_texts else None, floats if has_floats else None


def _is_nothing(value: Any) -> bool:
    """None, NaN, and pandas' own NA and NaT, which are equal to nothing, not even to themselves."""
    if value is None:
        return True
    try:
        return bool(value != value)
    except TypeError:  # what NA answers is no truth value
        return True


def _is_double(value: Any) -> bool:
    if isinstance(value, bool) or not isinstance(value, numbers.Real):
        return False
    return not isinstance(value, numbers.Integral) or abs(value) <= LARGEST_EXACT


def encoded(text: str, where: str) -> bytes:
    if "\0" in text:
        raise ValueError(f"{where}: a text has a zero character")
    try:
        return text.encode()
    except UnicodeEncodeError as error:
        raise ValueError(f"{where}: a text is not Unicode: {error.reason}") from error
