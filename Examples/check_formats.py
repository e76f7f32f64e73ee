#!/usr/bin/env python3
"""Compares the formats that mekbom writes one list in: JSON, CSV with plain numbers, and CSV with the texts of a list.

    python3 Examples/check_formats.py build/MekBomHost/mekbom [FOLDER]             the formats agree, and totals add up
    python3 Examples/check_formats.py --schema build/MekBomHost/mekbom [FOLDER]    JSON is valid by its schema

Lists are printed of the shipped hall, of the tests' lists of one peculiarity each, and, if FOLDER holds it, of a
fabricator's frame, in metric and imperial units, in full and as summaries. Of each: the values of a line of JSON are those of a record of CSV; the texts,
too; every total of a column of the lines is what the lines below it add up to; and the handles are those of the rows that
are listed. Prints every difference and ends with status 1 if there is one, with 77 where the schema cannot be checked as
Python has no jsonschema.
"""

import csv
import io
import json
import math
import pathlib
import subprocess
import sys
from typing import NamedTuple

from printed_list import shapes

HERE = pathlib.Path(__file__).parent
SCHEMA = HERE.parent / "MekBomHost" / "Schema" / "mekbom-list.schema.json"
TEMPLATES = ("cutting-list", "assembly-list", "bolt-list", "parts-list")
SKIPPED = 77
DEFUSED = ("'=", "'+", "'-", "'@", "'\t", "'\r")
ALLOWED = ["--allow", "MB110,MB413"]     # bolts of 9 and of 10 mm are both 3/8"; some rows have no weight


def print_as(program, arguments, output_format):
    result = subprocess.run([program, "report", *arguments, *output_format], capture_output=True, check=False)
    if result.returncode != 0:
        sys.exit(f"{arguments}: {result.stderr.decode()}")
    return result.stdout.decode()


def lists_of(folder):
    """The arguments of each list."""
    data = {"hall": []}
    if folder:
        data[str(folder / "steel-frame.csv")] = ["--input-unit", "%Paint=m2"]
    for name, options in data.items():
        for template in TEMPLATES:
            for units in ("metric", "imperial"):
                for summary in ([], ["--summary"]):
                    yield ["--data", name, *options, *ALLOWED, "--template", template, "--units", units, *summary]
    for _, arguments in shapes():
        yield arguments


class Record(NamedTuple):
    sections: list      # what the headers of its groups, the line itself and its footer show, from the outside in

    def cells(self):
        """By column what the innermost section shows that shows anything in it."""
        cells = {}
        for section in self.sections:
            cells.update({index: cell for index, cell in enumerate(section) if cell is not None})
        return [cells[index] for index in sorted(cells)]


def records_of(node, name, above=()):
    """The values, or shown texts, of each line with those of its groups; groups without lines are records themselves."""
    sections = [*above, *([node[name]] if name in node else []), *([node["header"][name]] if "header" in node else [])]
    inside = node.get("lines") or node.get("groups")
    if inside:
        for child in inside:
            yield from records_of(child, name, sections)
    elif "footer" in node:
        yield Record([*sections, node["footer"][name]])
    elif sections:
        yield Record(sections)


def is_within(cells, row):
    """Whether all cells stand in the row, in their order."""
    rest = iter(row)
    return all(any(cell == other for other in rest) for cell in cells)


def as_number(value):
    try:
        return float(value)
    except (TypeError, ValueError):
        return value


def compare_with_csv(document, text, name, differences):
    """Of CSV the columns are missing that totals alone fill; what group and line show in one column has two."""
    rows = list(csv.reader(io.StringIO(text, newline="")))[1:]
    roots = document.get("groups") or document.get("lines") or []
    records = [record for root in roots for record in records_of(root, name)]
    if len(rows) != len(records):
        differences.append(f"{len(rows)} records of CSV, {len(records)} lines of JSON")
        return
    for number, (row, record) in enumerate(zip(rows, records), 1):
        expected = [as_number(cell) for cell in record.cells()]
        shown = {as_number(cell) for section in record.sections for cell in section if cell is not None}
        found = [as_number(cell[1:] if cell[:2] in DEFUSED else cell) for cell in row if cell]
        if not is_within(expected, found) or not shown.issuperset(found):
            differences.append(f"record {number}: CSV {found}, JSON {expected}")
            return


def sums_of(node, columns):
    """What the lines within a group add up to, by column."""
    sums = [0.0] * columns
    counted = [False] * columns
    for child in node.get("groups") or node.get("lines") or []:
        own, own_counted = (child["values"], [isinstance(value, (int, float)) for value in child["values"]]) \
            if "values" in child else sums_of(child, columns)
        for index in range(columns):
            if own_counted[index]:
                sums[index] += own[index]
                counted[index] = True
    return sums, counted


def compare_totals(node, document, differences):
    """A total stands below what it sums where the token of its column is that of the lines, or a sum of it."""
    sums, counted = sums_of(node, len(document["columns"]))
    for index, value in enumerate((node.get("footer") or {}).get("values") or []):
        if counted[index] and isinstance(value, (int, float)) and \
                not math.isclose(value, sums[index], rel_tol=1e-9, abs_tol=1e-6):
            differences.append(f"total of {document['columns'][index]['label']}: {value}, lines add up to {sums[index]}")
    for child in node.get("groups") or []:
        compare_totals(child, document, differences)


def handles_of(node):
    """Those of lines, or, of groups without lines, those that their totals count."""
    footer = node.get("footer") or {}
    count = len(node.get("handles", [])) + len(node.get("mergedHandles", [])) + len(footer.get("handles", []))
    return count + sum(handles_of(child) for child in node.get("groups") or node.get("lines") or [])


def check_list(program, arguments):
    differences = []
    document = json.loads(print_as(program, arguments, ["--to", "json"]))
    compare_with_csv(document, print_as(program, arguments, ["--to", "csv", "--values", "plain"]), "values", differences)
    compare_with_csv(document, print_as(program, arguments, ["--to", "csv"]), "shown", differences)
    for root in document.get("groups") or []:
        compare_totals(root, document, differences)
    foot = document["foot"]
    handles = sum(handles_of(root) for root in document.get("groups") or document.get("lines") or [])
    if handles != foot["rowsListed"] + foot["rowsMerged"]:
        differences.append(f"{handles} handles of {foot['rowsListed']} rows listed and {foot['rowsMerged']} merged")
    return differences


def check_schema(program, arguments, validator):
    document = json.loads(print_as(program, arguments, ["--to", "json"]))
    return [f"{list(error.absolute_path)}: {error.message}" for error in validator.iter_errors(document)]


def main(words):
    wants_schema = words[:1] == ["--schema"]
    program, *folders = words[1:] if wants_schema else words
    folder = pathlib.Path(folders[0]) if folders and folders[0] else None
    if wants_schema:
        try:
            import jsonschema
        except ImportError:
            print("skipped: no python3-jsonschema")
            return SKIPPED
        schema = json.loads(SCHEMA.read_text(encoding="utf-8"))
        jsonschema.Draft7Validator.check_schema(schema)
        validator = jsonschema.Draft7Validator(schema)
    numbers = 0
    failed = False
    for arguments in lists_of(folder):
        differences = check_schema(program, arguments, validator) if wants_schema else check_list(program, arguments)
        numbers += 1
        for difference in differences[:5]:
            failed = True
            print(f"{' '.join(arguments)}: {difference}")
    print(f"{numbers} lists")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
