#!/usr/bin/env python3
"""Compares the lists that mekbom prints of hall.csv with lists made here, by plain sums and nothing of the engine's.

    python3 Examples/check_hall.py build/MekBomHost/mekbom

Prints every difference and ends with status 1 if there is one. Holds the data against what such a hall weighs, too.
"""

import csv
import itertools
import pathlib
import re
import sys

from printed_list import print_list

HERE = pathlib.Path(__file__).parent
FLOOR = 24 * 42         # m2, frame to frame
PRINTED = 0.005 + 1e-6  # lists show two decimals

# The columns of each list as they are printed. Total: the weight of all pieces together, as TotalLength is their length.
CUTTING_LIST = ("Name", "Material", "Length", "Quantity", "TotalLength", "Weight", "Total", "Paint")
ASSEMBLY_LIST = ("MNum", "MQuantity", "PNum", "Role", "Name", "Material", "Length", "Quantity", "Weight", "Total",
                 "Paint")
BOLT_LIST = ("BoltName", "Standard", "Material", "Diameter", "Length", "Quantity")
PARTS_LIST = ("PNum", "Role", "Name", "Material", "Length", "Quantity", "Weight", "Total")
NUMBERS = ("Length", "Quantity", "Weight", "Paint", "Diameter", "AssemblyWeight", "MQuantity", "IsMP")


def read_hall():
    """The rows as dicts, "%Length [mm]" under "Length"; numbers as numbers, data that a row lacks not at all."""
    with open(HERE / "hall.csv", newline="", encoding="utf-8") as file:
        rows = list(csv.DictReader(file))
    names = {column: column.lstrip("%").split(" ")[0] for column in rows[0]}
    return [{names[column]: float(cell) if names[column] in NUMBERS else cell for column, cell in row.items() if cell}
            for row in rows]


def natural(cell):
    """A sorting key that takes digits by value, so that PL8 comes before PL10."""
    pieces = re.findall(r"\d+|\D", str(cell))
    return [(0, int(piece), "") if piece.isdigit() else (1, 0, piece) for piece in pieces]


def groups(rows, *columns):
    """(key, rows) of the rows that agree in `columns`, in natural order; the key is a dict."""
    def key(row):
        return [row[column] for column in columns]

    ordered = sorted(rows, key=lambda row: [natural(cell) for cell in key(row)])
    return [(dict(zip(columns, cells)), list(same)) for cells, same in itertools.groupby(ordered, key)]


def pick(row, *columns):
    return {column: row[column] for column in columns}


def sums(rows, *columns):
    return {column: sum(row[column] for row in rows) for column in columns}


def total_weight(rows):
    return {"Total": sum(row["Weight"] for row in rows)}


# A list as it should be printed: one dict for each line, from column to cell; a column that is not in it is empty.

def cutting_list(parts):
    def totals(rows):
        return {**sums(rows, "Quantity", "Paint"), "TotalLength": sum(row["Length"] for row in rows),
                **total_weight(rows)}

    lines = []
    for key, rows in groups(parts, "Name", "Material"):
        lines.append(key)
        for length, same in reversed(groups(rows, "Length")):
            lines.append({**length, "Weight": same[0]["Weight"], **totals(same)})
        lines.append({"Name": "Total", **totals(rows)})
    return lines + [{"Name": "Total", **totals(parts)}]


def bolt_list(bolts):
    lines = [{**key, **sums(rows, "Quantity")} for key, rows in groups(bolts, *BOLT_LIST[:-1])]
    return lines + [{"BoltName": "Total", **sums(bolts, "Quantity")}]


def parts_list(parts):
    lines = [{**key, **pick(rows[0], "Role", "Weight"), **sums(rows, "Quantity"), **total_weight(rows)}
             for key, rows in groups(parts, "PNum", "Name", "Material", "Length")]
    return lines + [{"PNum": "Total", **sums(parts, "Quantity"), **total_weight(parts)}]


def assembly_list(parts):
    lines = []
    for key, rows in groups(parts, "MNum"):
        number = sum(row["IsMP"] for row in rows)
        lines.append({**key, "MQuantity": number, "Role": rows[0]["MName"],
                      "Weight": sum(row["Weight"] for row in rows) / number})
        for main in (1, 0):
            for _, same in groups([row for row in rows if row["IsMP"] == main], "PNum"):
                lines.append({**pick(same[0], "PNum", "Role", "Name", "Material", "Length", "Weight"),
                              **sums(same, "Quantity", "Paint"), **total_weight(same)})
        lines.append({"MNum": "Total", "MQuantity": number, **sums(rows, "Quantity", "Paint"), **total_weight(rows)})
    number = sum(row["IsMP"] for row in parts)
    return lines + [{"MNum": "Total", "MQuantity": number, **sums(parts, "Quantity", "Paint"), **total_weight(parts)}]


def agree(printed, expected):
    if isinstance(expected, str):
        return printed == expected
    return printed != "" and abs(float(printed) - expected) <= PRINTED


def compare(name, printed, expected, columns):
    """How many lines are not as expected; says which."""
    wrong = 0
    for cells, line in itertools.zip_longest(printed, expected, fillvalue=()):
        wanted = [line.get(column, "") for column in columns] if line else []
        if len(cells) != len(wanted) or not all(map(agree, cells, wanted)):
            print(f"{name}: printed  {cells}\n{name}: expected {wanted}", file=sys.stderr)
            wrong += 1
    return wrong


def check_plausible(rows, parts):
    """How many things are not as in a hall of this size."""
    weight = sum(row["Weight"] for row in parts) / FLOOR
    marks = groups(parts, "PNum")
    facts = {
        "every handle stands once": len({row["Handle"] for row in rows}) == len(rows),
        "20 to 45 kg of steel on a square metre": 20 < weight < 45,
        "one mark, one part": len(marks) == len(groups(parts, "PNum", "Role", "Name", "Material", "Length", "Weight")),
        "as many main parts as assemblies": all(sum(row["IsMP"] for row in same) == same[0]["MQuantity"]
                                                for _, same in groups(parts, "MNum")),
    }
    for fact, holds in facts.items():
        if not holds:
            print(f"hall.csv: not so: {fact}", file=sys.stderr)
    return sum(not holds for holds in facts.values())


def main(program):
    rows = read_hall()
    parts = [row for row in rows if "BoltName" not in row]
    bolts = [row for row in rows if "BoltName" in row]
    wrong = check_plausible(rows, parts)
    for template, expected, columns in (("cutting-list.json", cutting_list(parts), CUTTING_LIST),
                                        ("assembly-list.json", assembly_list(parts), ASSEMBLY_LIST),
                                        ("bolt-list.json", bolt_list(bolts), BOLT_LIST),
                                        ("parts-list.json", parts_list(parts), PARTS_LIST)):
        printed = print_list(program, "--data", HERE / "hall.csv", "--template", HERE / "Templates" / template)
        wrong += compare(template, printed.lines, expected, columns)
    return 1 if wrong else 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
