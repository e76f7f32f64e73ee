#!/usr/bin/env python3
"""Adds up parts lists with fractions, and compares the totals that mekbom prints of them, in metric and imperial units.

    python3 Examples/check_totals.py build/MekBomHost/mekbom [FOLDER]

Lists are printed of the shipped hall, of a few rows with pieces and without, of parts within
parts, and, if FOLDER holds them, of a fabricator's
frame, its assemblies and a table of profiles. A total of weights is the sum of weight times pieces over the rows of the
list, read from the file by Python's own csv: 4 pieces of 134.4 kg are 537.6 kg. Prints every difference and ends with
status 1 if there is one.
"""

import csv
import json
import pathlib
import re
import subprocess
import sys
import tempfile
from collections import defaultdict
from fractions import Fraction
from typing import Callable, NamedTuple

from printed_list import number, print_list

HERE = pathlib.Path(__file__).parent
HALL = HERE / "hall.csv"
REAL_FILES = ("steel-frame.csv", "steel-frame-assemblies.csv", "profiles.csv")
ROUNDED_ALIKE = {"steel-frame.csv, bolt-list, imperial": ("MB110",)}  # bolts of 9 and of 10 mm are both 3/8"
NO_WEIGHT = ("MB413",)                  # some rows have none
AREAS = ("--input-unit", "%Paint=m2")   # the frame's surfaces name no unit


class Unit(NamedTuple):
    symbol: str         # behind the heading, in brackets
    size: Fraction      # of what is printed, in mm, kg or m2; feet and inches are read as inches
    step: Fraction      # between two numbers that can be printed


# How totals are printed without any options, one unit for each kind.
UNITS = {
    "metric": {
        "length": Unit(" [mm]", Fraction(1), Fraction(1, 10)),
        "weight": Unit(" [kg]", Fraction(1), Fraction(1, 100)),
        "area": Unit(" [m²]", Fraction(1), Fraction(1, 100)),
        "none": Unit("", Fraction(1), Fraction(1, 10 ** 6)),
    },
    "imperial": {
        "length": Unit(" [ft-in]", Fraction("25.4"), Fraction(1, 16)),
        "weight": Unit(" [lb]", Fraction("0.45359237"), Fraction(1, 10)),
        "area": Unit(" [ft²]", Fraction("0.09290304"), Fraction(1, 100)),
        "none": Unit("", Fraction(1), Fraction(1, 10 ** 6)),
    },
}
# Formulas keep six decimals of mm, kg and mm2 for every row, and rows are added as floating-point numbers.
ROW_SLACK = {"length": Fraction(1, 10 ** 6), "weight": Fraction(1, 10 ** 6), "area": Fraction(1, 10 ** 12),
             "none": Fraction(1, 10 ** 9)}


class Total(NamedTuple):
    heading: str
    kind: str
    value: Callable     # of one row; None where the row has no such datum


class Case(NamedTuple):
    name: str
    data: pathlib.Path
    options: list
    is_listed: Callable     # whether a row belongs to the list
    group: dict             # from heading to token: a group's header shows these, and its footer "Total"
    totals: list
    facts: pathlib.Path     # the file that is added up
    mistakes: tuple         # codes of what is to be told


def read_rows(path):
    """The rows as dicts from token to cell, "%Length [mm]" under "Length"; data that a row lacks are not in it."""
    with open(path, newline="", encoding="utf-8") as file:
        return [{column.lstrip("%").split(" [")[0]: cell for column, cell in row.items() if cell}
                for row in csv.DictReader(file)]


def pieces(row):
    return Fraction(row.get("Quantity", 1))


def of_row(token):
    return lambda row: Fraction(row[token]) if token in row else None


def of_pieces(token):
    return lambda row: Fraction(row[token]) * pieces(row) if token in row else None


PIECES = Total("Pieces", "none", pieces)
LENGTH = Total("Total length", "length", of_pieces("Length"))
WEIGHT = Total("Weight", "weight", of_pieces("Weight"))
AREA = Total("Area", "area", of_pieces("Paint"))
ASSEMBLIES = Total("Number", "none", of_pieces("IsMP"))


def shipped_lists(data, *options, facts=None, mistakes=()):
    """The lists of parts and bolts that are shipped, and the one with every column."""
    def case(template, is_listed, group, *totals):
        return Case(f"{data.name}, {template}", data, ["--template", template, *options], is_listed, group, totals,
                    facts or data, mistakes)

    return [
        case("cutting-list", lambda row: "Name" in row, {"Profile": "Name", "Material": "Material"},
             PIECES, LENGTH, WEIGHT, AREA),
        case("parts-list", lambda row: "BoltName" not in row and ("PNum" in row or "Name" in row), {}, PIECES, WEIGHT),
        case("bolt-list", lambda row: "BoltName" in row, {}, PIECES),
        case("assembly-list", lambda row: "MNum" in row, {"Mark": "MNum"}, ASSEMBLIES, PIECES, WEIGHT, AREA),
    ]


def list_as_is(program, folder, data, *options, facts=None, mistakes=()):
    """The list that new-list writes: every column, and totals of what pieces can be weighed by."""
    template = folder / f"{data.stem}-as-is.json"
    template.write_bytes(subprocess.run([program, "new-list", data], check=True, capture_output=True).stdout)
    columns = [column.get("label") for column in json_of(template)["columns"]]
    totals = [total for total in (Total("Quantity", "none", pieces),
                                  Total("Total weight", "weight", of_pieces("Weight"))) if total.heading in columns]
    return Case(f"{data.name}, as it is", data, ["--template", template, *options], lambda row: True, {}, totals,
                facts or data, mistakes)


def json_of(template):
    """A template without its comments, which stand in lines of their own or behind a comma."""
    text = re.sub(r"(^|\s)//.*$", "", template.read_text(encoding="utf-8"), flags=re.MULTILINE)
    return json.loads(text)


def own_list(folder, data, group, tokens, *options):
    """A list with a line for each row, totals of `tokens` (from heading to token and kind) and a group for each value of
    the token `group`."""
    sums = [{"token": f"%SumBy:%{token}"} for token, _ in tokens.values()]
    are_assemblies = any(token.startswith("Assembly") for token, _ in tokens.values())
    template = folder / f"{data.stem}-own.json"
    template.write_text(json.dumps({
        "equalLines": "keep",
        **({"allow": {"MB308": "each row of the file is an assembly"}} if are_assemblies else {}),
        "columns": [{"token": f"%{group}", "label": "Group", "order": "natural"},
                    *({"token": f"%{token}", "label": heading} for heading, (token, _) in tokens.items())],
        "sections": [
            {"type": "kReportHeader", "children": [
                {"type": "kGroupHeader", "tuples": [{"token": f"%GroupBy:%{group}"}, {"token": f"%SortAscBy:%{group}"},
                                                    {"token": f"%{group}"}],
                 "children": [{"type": "kDetails", "tuples": [{"token": f"%{token}"} for token, _ in tokens.values()]}]},
                {"type": "kGroupFooter", "label": "Total", "tuples": sums}]},
            {"type": "kReportFooter", "label": "Total", "tuples": sums}],
    }), encoding="utf-8")
    totals = [Total(heading, kind, of_row(token)) for heading, (token, kind) in tokens.items()]
    return Case(f"{data.name}, by {group}", data, ["--template", template, *options], lambda row: True, {"Group": group},
                totals, data, ())


def agree(cell, rows, total, unit):
    """Whether `cell` is the total of `rows`, to half of what its last digit is worth."""
    values = [value for value in map(total.value, rows) if value is not None]
    if not values:
        return cell == ""
    slack = ROW_SLACK[total.kind] * len(values) / unit.size
    return cell != "" and abs(number(cell) - sum(values) / unit.size) <= unit.step / 2 + slack


def check_line(name, printed, cells, rows, totals, units):
    """How many totals of the line `cells` are not those of `rows`; says which."""
    wrong = 0
    for total in totals:
        unit = units[total.kind]
        cell = cells[printed.headings.index(total.heading + unit.symbol)]
        if not agree(cell, rows, total, unit):
            values = [value for value in map(total.value, rows) if value is not None]
            print(f"{name}: {total.heading}: printed {cell!r}, the {len(rows)} rows come to "
                  f"{float(sum(values) / unit.size)}{unit.symbol}", file=sys.stderr)
            wrong += 1
    return wrong


def check_groups(case, printed, rows, units):
    """How many totals of groups are wrong; groups that are missing or too many count, too."""
    expected = defaultdict(list)
    for row in rows:
        expected[tuple(row.get(token, "") for token in case.group.values())].append(row)
    places = [printed.headings.index(heading) for heading in case.group]
    wrong = 0
    key = None
    for cells in printed.lines[:-1]:
        if cells[0] == "Total":
            wrong += check_line(f"{case.name}, {key}", printed, cells, expected.pop(key, []), case.totals, units)
        elif cells[0]:
            key = tuple(cells[place] for place in places)
    for key in expected:
        print(f"{case.name}: {key} has no total", file=sys.stderr)
    return wrong + len(expected)


def check(program, case):
    """How many totals of a list are wrong, in both systems of units."""
    everything = read_rows(case.facts)
    rows = [row for row in everything if case.is_listed(row)]
    wrong = 0
    for system, units in UNITS.items():
        printed = print_list(program, "--data", case.data, *case.options, "--units", system, "--check-totals")
        name = f"{case.name}, {system}"
        wrong += check_line(name, printed, printed.lines[-1], rows, case.totals, units) if case.totals else 0
        wrong += check_groups(case._replace(name=name), printed, rows, units) if case.group else 0
        mistakes = {*case.mistakes, *ROUNDED_ALIKE.get(name, ())}
        if set(printed.mistakes) != mistakes:
            print(f"{name}: tells {printed.mistakes}, expected {sorted(mistakes)}", file=sys.stderr)
            wrong += 1
        counts = [f"{len(read_rows(case.data))} rows read", f"{len(rows)} listed"]
        if not all(count in printed.foot[0] for count in counts):
            print(f"{name}: printed {printed.foot[0]!r}, expected {counts}", file=sys.stderr)
            wrong += 1
    return wrong


# Rows of several pieces, of one that is not named, and without a weight; the same as pieces and as totals of the row.
PIECE_ROWS = """PNum,Name,Material,Quantity,Length [mm],Weight [kg],Paint [m2]
b1,IPE300,S355,4,3185,134.4,3.69
b1,IPE300,S355,4,3185,134.4,3.69
b2,IPE300,S355,,6000,253.2,6.96
p1,PL10*120,S235,16,240,2.26,0.07
p1,PL10*120,S235,3,240,2.26,0.07
p2,PL8*100,S235,7,150,0.94,0.03
p2,PL8*100,S235,,150,0.94,0.03
g1,GRATING,S235,2,1000,,
"""
PIECE_TOKENS = ("Weight", "Paint")


def as_row_totals(text):
    """The same rows, whose weights and areas are those of all pieces together."""
    rows = list(csv.DictReader(text.splitlines()))
    for row in rows:
        for column in row:
            if column.split(" [")[0] in PIECE_TOKENS and row[column]:
                row[column] = str(float(Fraction(row[column]) * Fraction(row["Quantity"] or 1)))
    return "\n".join([",".join(rows[0]), *(",".join(row.values()) for row in rows), ""])


# Assemblies within assemblies, five deep, in no order; b1 stands in two of them, and b3 in none.
NESTED_ROWS = """Handle,Parent,PNum,Name,Material,Quantity,Length [mm],Weight [kg]
7,3,b1,IPE300,S355,2,3185,134.4
1,,T1,,,3,,
3,2,A1,,,4,,288.82
8,3,p1,PL10*120,S235,9,240,2.26
4,3,S1,,,5,,0.0
2,1,M1,,,1,,
9,2,b1,IPE300,S355,6,3185,134.4
5,4,S2,,,7,,
10,5,p2,PL8*100,S235,11,150,
11,,b3,IPE300,S355,2,6000,253.2
"""


def flattened(text, sets):
    """The rows without parts, each with its pieces: added up from the top down, one call for each piece of the tree."""
    rows = list(csv.DictReader(text.splitlines()))
    pieces_of = defaultdict(int)

    def add(row, times):
        parts = [part for part in rows if part["Parent"] == row["Handle"]]
        for part in parts:
            add(part, times * int(part["Quantity"]))
        if not parts:
            pieces_of[row["Handle"]] += times

    for row in rows:
        if not row["Parent"]:
            add(row, sets * int(row["Quantity"]))
    leaves = [{**row, "Quantity": str(pieces_of[row["Handle"]])} for row in rows if row["Handle"] in pieces_of]
    return "\n".join([",".join(rows[0]), *(",".join(row.values()) for row in leaves), ""])


def nested_lists(folder):
    """Lists whose pieces are multiplied along parents, for one set and for twelve."""
    nested = folder / "nested.csv"
    nested.write_text(NESTED_ROWS, encoding="utf-8")
    for sets in (1, 12):
        flat = folder / f"flat-{sets}.csv"
        flat.write_text(flattened(NESTED_ROWS, sets), encoding="utf-8")
        yield from shipped_lists(nested, "--flatten", "--sets", str(sets), facts=flat, mistakes=NO_WEIGHT)[:2]


def cases(program, folder, real_data):
    """All lists whose totals are checked."""
    by_piece = folder / "pieces.csv"
    by_row = folder / "row-totals.csv"
    by_piece.write_text(PIECE_ROWS, encoding="utf-8")
    by_row.write_text(as_row_totals(PIECE_ROWS), encoding="utf-8")
    row_totals = ("--row-totals", ",".join(f"%{token}" for token in PIECE_TOKENS))
    found = [
        *shipped_lists(HALL),
        list_as_is(program, folder, HALL, mistakes=NO_WEIGHT),
        own_list(folder, HALL, "Phase", {"Steel": ("Weight", "weight"), "Surface": ("Paint", "area")}),
        *shipped_lists(by_piece, mistakes=NO_WEIGHT)[:2],
        list_as_is(program, folder, by_piece, mistakes=NO_WEIGHT),
        *shipped_lists(by_row, *row_totals, facts=by_piece, mistakes=NO_WEIGHT)[:2],
        list_as_is(program, folder, by_row, *row_totals, facts=by_piece, mistakes=NO_WEIGHT),
        *nested_lists(folder),
    ]
    if real_data is not None:
        frame, assemblies, profiles = (real_data / name for name in REAL_FILES)
        found += [
            *shipped_lists(frame, *AREAS),
            list_as_is(program, folder, frame, *AREAS, mistakes=NO_WEIGHT),
            own_list(folder, frame, "Role", {"Net": ("ExactWeight", "weight"), "Surface": ("Paint", "area")}, *AREAS),
            list_as_is(program, folder, assemblies),
            own_list(folder, assemblies, "MNum", {"Weight": ("AssemblyWeight", "weight")}),
            list_as_is(program, folder, profiles),
            own_list(folder, profiles, "family", {"kg/m": ("kg_per_m", "none"), "area": ("area_cm2", "none")}),
        ]
    return found


def main(program, folder_of_real_data=""):
    real_data = pathlib.Path(folder_of_real_data)
    if not all((real_data / name).is_file() for name in REAL_FILES):
        real_data = None
    with tempfile.TemporaryDirectory() as folder:
        found = cases(program, pathlib.Path(folder), real_data)
        wrong = sum(check(program, case) for case in found)
    print(f"{len(found)} lists in metric and imperial units, {wrong} totals wrong"
          + ("" if real_data is not None else "; no real data: configure with -DMEK_REAL_DATA_DIR=<folder of steel-frame.csv>"))
    return 1 if wrong else 0


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
