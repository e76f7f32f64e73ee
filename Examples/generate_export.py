#!/usr/bin/env python3
"""Writes export.csv, the parts of the shipped hall as a spreadsheet program of many countries exports them:
semicolons, decimal commas, a line for each mark, and headings of the trade instead of tokens.

    python3 Examples/generate_export.py            writes export.csv beside this file
    python3 Examples/generate_export.py --check    exit status 1 when the file is not what would be written, or when its
                                                   pieces and kilograms are not those of hall.csv

Bolts are left out. A line's length and weight are those of one piece, as in hall.csv.
"""

import csv
import io
import pathlib
import re
import sys
from collections import Counter
from fractions import Fraction

HERE = pathlib.Path(__file__).parent
COLUMNS = {"Mark": "%PNum", "Profile": "%Name", "Grade": "%Material", "Qty": "%Quantity", "Length [mm]": "%Length [mm]",
           "Weight [kg]": "%Weight [kg]"}


def hall_parts():
    with open(HERE / "hall.csv", newline="", encoding="utf-8") as file:
        return [row for row in csv.DictReader(file) if row["%Name"]]


def mark_order(mark):
    """m before p, m2 before m10."""
    letters, digits = re.fullmatch(r"([a-z]+)(\d+)", mark).groups()
    return letters, int(digits)


def as_export(parts):
    """The text of the file: equal parts as one line."""
    other = [token for token in COLUMNS.values() if token != "%Quantity"]
    pieces = Counter()
    for part in parts:
        pieces[tuple(part[token] for token in other)] += int(part["%Quantity"])
    text = io.StringIO()
    writer = csv.writer(text, delimiter=";", lineterminator="\n")
    writer.writerow(COLUMNS)
    for cells, number in sorted(pieces.items(), key=lambda item: mark_order(item[0][0])):
        line = dict(zip(other, cells), **{"%Quantity": str(number)})
        writer.writerow(line[token].replace(".", ",") if token.endswith("]") else line[token]
                        for token in COLUMNS.values())
    return text.getvalue()


def totals_of_hall(parts):
    """Pieces and kilograms, each exact."""
    return (sum(int(part["%Quantity"]) for part in parts),
            sum(int(part["%Quantity"]) * Fraction(part["%Weight [kg]"]) for part in parts))


def totals_of_export(text):
    lines = list(csv.DictReader(io.StringIO(text), delimiter=";"))
    return (sum(int(line["Qty"]) for line in lines),
            sum(int(line["Qty"]) * Fraction(line["Weight [kg]"].replace(",", ".")) for line in lines))


def check(path, parts):
    found = path.read_text(encoding="utf-8") if path.is_file() else ""
    if found != as_export(parts):
        return f"{path} is not what {pathlib.Path(__file__).name} writes"
    if totals_of_export(found) != totals_of_hall(parts):
        return f"{path} has other totals than hall.csv"
    return ""


def main(arguments):
    path = HERE / "export.csv"
    parts = hall_parts()
    if arguments == ["--check"]:
        wrong = check(path, parts)
        if wrong:
            print(wrong, file=sys.stderr)
        return 1 if wrong else 0
    if arguments:
        print(__doc__, file=sys.stderr)
        return 2
    path.write_text(as_export(parts), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
