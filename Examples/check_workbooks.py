#!/usr/bin/env python3
"""Reads workbooks that mekbom writes with openpyxl, and compares them cell by cell with the same lists as text.

    python3 Examples/check_workbooks.py build/MekBomHost/mekbom [FOLDER]

Lists are written of the shipped hall with all shipped templates, of the tests' lists of one peculiarity each, and, if FOLDER
holds them, of a fabricator's frame, its assemblies and a table of profiles; in metric and imperial units. What a cell shows is computed from its number and its
format, and must be what the list prints. Prints every difference and ends with status 1 if there is one; without openpyxl
it ends with status 77 and says so.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
from decimal import ROUND_HALF_UP, Decimal

from printed_list import print_list, shapes

DEBIANS_PYTHON = "/usr/bin/python3"  # which need not be the one that runs this script

try:
    import openpyxl
except ImportError:
    if sys.executable != DEBIANS_PYTHON and os.path.exists(DEBIANS_PYTHON):
        os.execv(DEBIANS_PYTHON, [DEBIANS_PYTHON, *sys.argv])
    print("check_workbooks.py: python3-openpyxl is not installed: no workbook is read back")
    sys.exit(77)

HERE = pathlib.Path(__file__).parent
HALL = HERE / "hall.csv"
TEMPLATES = sorted(path.stem for path in (HERE / "Templates").glob("*.json"))
UNITS = ("metric", "imperial")
FRAME = "steel-frame.csv"
AREAS = ("--input-unit", "%Paint=m2")   # the frame's surfaces name no unit
OTHER_FILES = ("steel-frame-assemblies.csv", "profiles.csv")
FORMAT = re.compile(r"(#(?:\\ ###)*\\ ##0|0)(?:\.(0+))?")
MOST_LEVELS = 7
NOT_TAKEN_APART = ("markup", "scripts-of-the-world")   # printed: lines within cells, characters that are wide or none


def shown(cell):
    """What spreadsheets show of a cell: its number in fifteen digits, rounded away from zero."""
    if cell.value is None:
        return ""
    if isinstance(cell.value, str):
        return cell.value.replace("_x005F_", "_")   # which openpyxl leaves as it is written
    whole, decimals = FORMAT.fullmatch(cell.number_format).groups()
    number = Decimal(format(cell.value, ".15g"))
    step = Decimal(1).scaleb(-len(decimals or ""))
    text = f"{number.quantize(step, ROUND_HALF_UP):f}"
    if whole != "0":
        digits, point, rest = text.partition(".")
        text = f"{int(digits):,}".replace(",", " ") + point + rest
    return text


def heading_row(sheet):
    """The one above the first that scrolls."""
    return int(re.fullmatch(r"A(\d+)", sheet.freeze_panes)[1]) - 1


def rows_of(sheet):
    """The rows of the list as they are shown, its heading row first; not those that show nothing."""
    rows = [[shown(cell).strip() for cell in row] for row in sheet.iter_rows(min_row=heading_row(sheet))]
    return [row for row in rows if any(row)]


def differences(path, printed):
    """What the workbook has otherwise than the printed list."""
    workbook = openpyxl.load_workbook(path)
    sheet = workbook.worksheets[0]
    rows = rows_of(sheet)
    found = []
    if rows[0] != printed.headings:
        found.append(f"headings {rows[0]}, printed {printed.headings}")
    if len(rows) - 1 != len(printed.lines):
        found.append(f"{len(rows) - 1} rows, printed {len(printed.lines)} lines")
    found += [f"row {cells}, printed {line}" for cells, line in zip(rows[1:], printed.lines) if cells != line]
    found += look_differences(sheet) + foot_differences(workbook, printed)
    return found


def look_differences(sheet):
    found = []
    row = heading_row(sheet)
    if sheet.print_title_rows not in (f"{row}:{row}", f"${row}:${row}"):
        found.append(f"rows {sheet.print_title_rows} on each page, wanted {row}")
    if "&P" not in (sheet.oddFooter.right.text or ""):
        found.append("no page numbers")
    levels = {sheet.row_dimensions[index].outlineLevel for index in range(row, sheet.max_row + 1)}
    if max(levels) > MOST_LEVELS or levels != set(range(max(levels) + 1)):
        found.append(f"levels {sorted(levels)} of the outline")
    for column in sheet.iter_cols(min_row=row):
        width = sheet.column_dimensions[column[0].column_letter].width
        widest = max((len(shown(cell)) for cell in column if not isinstance(cell.value, str)), default=0)
        if width < widest:
            found.append(f"column {column[0].value} is {width} wide, its numbers {widest}")
    return found


def foot_differences(workbook, printed):
    """What the list is made of stands above it, and its numbers on a sheet of their own."""
    sheet, about = workbook.worksheets
    found = []
    above = [sheet.cell(row, 1).value for row in range(1, heading_row(sheet))]
    found += [f"no {line} above the list" for line in printed.foot if line not in above]
    numbers = {row[1] for row in about.iter_rows(values_only=True)}
    told = printed.foot[0]
    for word in re.findall(r"(\d+) (?:rows? read|listed)", told):
        if int(word) not in numbers:
            found.append(f"{word} of {told} is not on the sheet {about.title}")
    return found


def cases(folder):
    for units in UNITS:
        for template in TEMPLATES:
            yield HALL, ["--template", template, "--units", units]
            if folder:
                yield folder / FRAME, ["--template", template, "--units", units, *AREAS]
        for name in OTHER_FILES if folder else ():
            yield folder / name, ["--units", units]
    for path, arguments in shapes():
        if path.name not in NOT_TAKEN_APART:
            yield path, arguments


def main():
    program, *folders = sys.argv[1:]
    folder = pathlib.Path(folders[0]) if folders and folders[0] else None
    num_cases = num_wrong = 0
    with tempfile.TemporaryDirectory() as scratch:
        path = pathlib.Path(scratch) / "list.xlsx"
        for data, options in cases(folder):
            arguments = options if "--data" in options else ["--data", data, *options]
            subprocess.run([program, "report", *map(str, arguments), "-o", path], capture_output=True, check=True)
            num_cases += 1
            found = differences(path, print_list(program, *arguments))
            for difference in found[:10]:
                print(f"{data.name} {' '.join(options)}: {difference}")
            num_wrong += 1 if found else 0
    print(f"{num_cases} workbooks read, {num_wrong} differ from what is printed")
    sys.exit(1 if num_wrong or not num_cases else 0)


if __name__ == "__main__":
    main()
