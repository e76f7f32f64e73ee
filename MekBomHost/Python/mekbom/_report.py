"""Reports: what goes into one, and what can be read from it."""

import collections.abc
import dataclasses
import json
import os
import pathlib
import tempfile
from typing import Any, Callable, Iterable, Iterator, Mapping, Sequence, Union, overload

from . import _library, _table

Value = Union[str, float, int, None]
Parts = Any  # a file, several files, rows as mappings, or a DataFrame
Template = Union[str, os.PathLike, Mapping[str, Any], None]
Progress = Callable[[str, int], Any]

_STEPS = ("reading", "evaluating")
_BLOCK = 4096  # lines that are fetched at once


@dataclasses.dataclass(frozen=True)
class Finding:
    """Something wrong, or worth knowing: its text is what the program prints."""

    severity: str  # "error", "warning" or "note"
    code: str  # "MB710"; empty for a fault of the library's own
    message: str
    source: str = ""  # the file or the option
    line: int = 0  # in the source, from 1; 0 where that is not known
    column: int = 0
    path: str = ""  # in a template: "/columns/2/width"
    field: str = ""  # of a row: the heading

    def __str__(self) -> str:
        return self.message


class ReportError(Exception):
    """There is no report. Its findings tell why."""

    def __init__(self, findings: Sequence[Finding]):
        self.findings = list(findings)
        errors = [finding.message for finding in findings if finding.severity == "error"]
        super().__init__("\n".join(errors) or "the report failed")


class Stopped(Exception):
    """There is no report since `progress` asked for none."""


@dataclasses.dataclass(frozen=True)
class Column:
    """A column of a report."""

    token: str  # "%Length"
    label: str  # "Cut"
    heading: str  # "Cut [ft-in]"
    kind: str  # "length" and the like, "number", "text", or "mixed" for several units
    unit: str | None  # of values: "ft"
    shown_unit: str | None  # of shown texts: "ft-in"


@dataclasses.dataclass(frozen=True)
class Line:
    """A line of a report, with a value for each column."""

    line: int  # from 0
    level: int  # 0 is the outermost
    role: str  # "header", "footer", "group" for both on one line, or "line"
    label: str  # "Total"; empty for most lines
    values: list[Value]  # numbers in the unit of their column, with all their digits
    shown: list[str | None]  # as printed
    handles: list[str | None]  # of the parts of an ordinary line that its values count
    merged_handles: list[str | None]  # of those that were merged away


class Lines(collections.abc.Sequence):
    """The lines of a report, which are fetched when they are asked for."""

    def __init__(self, session: "_Session"):
        self._session = session
        self._block: list[Line] = []
        self._first = 0

    def __len__(self) -> int:
        return _library.library.mekbom_num_lines(self._session.pointer)

    @overload
    def __getitem__(self, index: int) -> Line: ...
    @overload
    def __getitem__(self, index: slice) -> list[Line]: ...

    def __getitem__(self, index):
        if isinstance(index, slice):
            return [self[i] for i in range(*index.indices(len(self)))]
        position = index + len(self) if index < 0 else index
        if not 0 <= position < len(self):
            raise IndexError("a report has no such line")
        if not self._first <= position < self._first + len(self._block):
            self._fetch(position - position % _BLOCK)
        return self._block[position - self._first]

    def _fetch(self, first: int) -> None:
        text = _library.library.mekbom_lines(self._session.pointer, first, _BLOCK).copy()
        self._block = [_line_of(fields) for fields in json.loads(text)]
        self._first = first


class Report:
    """An evaluated report; made by report()."""

    def __init__(self, session: "_Session"):
        self._session = session
        self.findings = session.findings()  # warnings and notes
        self.columns = [_column_of(fields) for fields in json.loads(session.text("mekbom_columns"))]
        self.lines = Lines(session)

    @property
    def title(self) -> str:
        return json.loads(self.to_bytes("json"))["title"] or ""

    def handles(self, line: int) -> list[str | None]:
        """The handles of the parts behind a line, counted as in lines; of a total those that it counts."""
        line = range(len(self.lines))[line]
        return json.loads(self._session.text("mekbom_handles", line))["handles"]

    def to_bytes(self, format: str = "text") -> bytes:
        """The report as "text", "csv", "tsv", "xlsx", "html" or "json"."""
        content = _library.library.mekbom_write(self._session.pointer, _table.encoded(format, "a format")).copy()
        if not content:
            raise ReportError([finding for finding in self._session.findings() if finding.severity == "error"])
        return content

    def __str__(self) -> str:
        return self.to_bytes("text").decode()

    def write(self, file: str | os.PathLike, format: str | None = None) -> None:
        """Writes a file, in the format that its name ends with unless another one is given."""
        path = pathlib.Path(file)
        ending = path.suffix[1:].lower()
        content = self.to_bytes(format or {"txt": "text", "htm": "html", "lst": "text"}.get(ending, ending))
        path = path.resolve()
        with tempfile.NamedTemporaryFile(dir=path.parent, prefix=path.name, delete=False) as beside:
            try:
                beside.write(content)
                beside.close()
                os.chmod(beside.name, _mode_for(path))
                os.replace(beside.name, path)
            except BaseException:
                os.unlink(beside.name)
                raise

    def to_dataframe(self):
        """The ordinary lines as a pandas DataFrame with a column for each of the report, headed with the unit of its values.

        Lines have the values of their groups in the columns that only headers show. Totals are left out, so that a column
        adds up to its total; numbers have all their digits.
        """
        import pandas

        rows = list(self._lines_with_groups())
        headings = _unlike(_heading_of_values(column) for column in self.columns)
        columns = {heading: [row[index] for row in rows] for index, heading in enumerate(headings)}
        return pandas.DataFrame(columns, columns=headings)

    def _lines_with_groups(self) -> Iterator[list[Value]]:
        shown = {index for line in self.lines if line.role == "line" for index, value in enumerate(line.values) if
                 value is not None}
        headers: list[list[Value]] = []
        for line in self.lines:
            if line.role in ("footer", "group"):
                headers = headers[:line.level]
            elif line.role == "header":
                empty: list[Value] = [None] * len(self.columns)
                headers = headers[:line.level] + [empty] * (line.level - len(headers)) + [line.values]
            elif line.role == "line":
                yield [value if index in shown else
                       next((header[index] for header in reversed(headers[:line.level]) if header[index] is not None), None)
                       for index, value in enumerate(line.values)]


class _Session:
    """A session of the library, which is closed with the last object that refers to it."""

    def __init__(self) -> None:
        self.pointer = _library.library.mekbom_open()
        if not self.pointer:
            raise MemoryError

    def __del__(self) -> None:
        _library.library.mekbom_close(getattr(self, "pointer", None))

    def text(self, function: str, *arguments: Any) -> str:
        return getattr(_library.library, function)(self.pointer, *arguments).copy().decode()

    def findings(self) -> list[Finding]:
        fields = [field.name for field in dataclasses.fields(Finding)]
        return [Finding(**{name: finding[name] for name in fields}) for finding in
                json.loads(self.text("mekbom_findings") or "[]")]

    def call(self, function: str, *arguments: Any) -> None:
        status = getattr(_library.library, function)(self.pointer, *arguments)
        if status == _library.STOPPED:
            raise Stopped
        if status != _library.DONE:
            raise ReportError(self.findings())

    def add_file(self, function: str, file: str | os.PathLike) -> None:
        content = pathlib.Path(file).read_bytes()
        self.call(function, os.fsencode(file), content, len(content))

    def add_parts(self, parts: Parts) -> None:
        if isinstance(parts, collections.abc.Mapping):
            raise TypeError("parts are a list of rows; this is a single one, or columns")
        if isinstance(parts, (str, os.PathLike)):
            return self.add_file("mekbom_add_parts", parts)
        if hasattr(parts, "iloc") and hasattr(parts, "columns"):
            return self._add_table("DataFrame", _table.of_frame(parts))
        items = list(parts)
        if items and all(isinstance(item, (str, os.PathLike)) for item in items):
            for item in items:
                self.add_file("mekbom_add_parts", item)
            return None
        if not all(isinstance(item, collections.abc.Mapping) for item in items):
            raise TypeError("parts are a file, several files, rows as mappings, or a DataFrame")
        return self._add_table("rows", _table.of_rows(items))

    def _add_table(self, name: str, table: _table.Table) -> None:
        self.call("mekbom_add_rows", name.encode(), table.columns, len(table.columns), table.num_rows)

    def set_template(self, template: Template) -> None:
        shipped = _library.shipped_lists()
        if template is None:
            if not shipped:
                raise FileNotFoundError("the shipped lists are not found; MEKBOM_SHARE may name their folder")
            for path in shipped.values():
                self.add_file("mekbom_offer_template", path)
        elif isinstance(template, collections.abc.Mapping):
            content = json.dumps(template).encode()
            self.call("mekbom_set_template", b"template", content, len(content))
        else:
            self.add_file("mekbom_set_template", shipped.get(os.fspath(template), template))

    def set_options(self, options: Mapping[str, Any]) -> None:
        given = {name.replace("_", "-"): value for name, value in options.items() if value is not None}
        content = json.dumps(given).encode()
        self.call("mekbom_set_options", content, len(content))

    def evaluate(self, progress: Progress | None) -> None:
        raised: list[BaseException] = []

        def tell(_user: Any, step: int, num_rows: int) -> int:
            try:
                return int(progress(_STEPS[step], num_rows) is False)
            except BaseException as error:  # must not cross the library; raised again below
                raised.append(error)
                return 1

        call = _library.PROGRESS(tell) if progress is not None else _library.PROGRESS()
        self.call("mekbom_set_progress", call, None)
        try:
            self.call("mekbom_evaluate")
        except Stopped:
            if raised:
                raise raised[0] from None
            raise
        finally:
            self.call("mekbom_set_progress", _library.PROGRESS(), None)


def report(parts: Parts, template: Template = None, *, assemblies: str | os.PathLike | None = None,
           progress: Progress | None = None, **options: Any) -> Report:
    """Makes a report.

    parts       a file (CSV, workbook, JSON), several files, rows as mappings from headings to values, or a DataFrame;
                headings are those of parts lists: "Name", "Length [mm]", "%Weight". Numbers are taken as they are: a
                float32 of 0.1 is 0.10000000149011612
    template    a file, the name of a shipped list such as "cutting-list", a mapping with the keys of template files, or
                None for the shipped list that suits the columns
    assemblies  a file with what parts have from the assembly that they name
    progress    is called with "reading" or "evaluating" and the number of rows done; False stops the report
    options     those of "mekbom report", with _ in place of -: units="imperial", unit={"length": "m/2"}, flatten=True

    Raises ReportError where there is no report, with findings that tell why; Stopped; OSError for files.
    """
    session = _Session()
    session.set_options(options)
    session.set_template(template)
    session.add_parts(parts)
    if assemblies is not None:
        session.add_file("mekbom_set_assemblies", assemblies)
    session.evaluate(progress)
    return Report(session)


def check(template: Template, parts: Parts = None, **options: Any) -> list[Finding]:
    """The mistakes of a template, and with parts those that only data show: as "mekbom check" does."""
    session = _Session()
    session.set_options(options)
    session.set_template(template)
    if parts is not None:
        session.add_parts(parts)
    try:
        session.call("mekbom_check")
    except ReportError as error:
        return error.findings
    return session.findings()


def describe(what: str) -> Any:
    """What there is to choose from: "tokens", "kinds", "units", "formats", "schema" or "list-schema"."""
    text = _Session().text("mekbom_describe", _table.encoded(what, "what is described"))
    if not text:
        raise ValueError(f'"{what}" is nothing that can be described')
    return json.loads(text)


def version() -> str:
    """That of libmekbom."""
    return _library.library.mekbom_version().decode()


def _line_of(fields: Mapping[str, Any]) -> Line:
    return Line(fields["line"], fields["level"], fields["role"], fields.get("label", ""), fields["values"],
                fields["shown"], fields.get("handles", []), fields.get("mergedHandles", []))


def _column_of(fields: Mapping[str, Any]) -> Column:
    return Column(fields["token"], fields["label"], fields["heading"], fields["kind"], fields["unit"],
                  fields["shownUnit"])


def _heading_of_values(column: Column) -> str:
    """The heading, with the unit of the values where the list shows another: "Cut [ft]" for "Cut [ft-in]"."""
    if column.unit is None or column.shown_unit is None or column.unit == column.shown_unit:
        return column.heading
    return column.heading.replace(f"[{column.shown_unit}]", f"[{column.unit}]")


def _mode_for(path: pathlib.Path) -> int:
    """That of the file that is replaced, or what a new one gets."""
    if path.exists():
        return path.stat().st_mode
    mask = os.umask(0)
    os.umask(mask)
    return 0o666 & ~mask


def _unlike(headings: Iterable[str]) -> list[str]:
    """The headings, with numbers behind those that stood before."""
    seen: dict[str, int] = {}
    unlike = []
    for heading in headings:
        seen[heading] = seen.get(heading, 0) + 1
        unlike.append(heading if seen[heading] == 1 else f"{heading} ({seen[heading]})")
    return unlike
