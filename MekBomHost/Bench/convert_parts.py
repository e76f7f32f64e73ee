"""Writes a parts list that generate_parts.py wrote in another format of parts lists, with the same data.

    python3 convert_parts.py parts.csv "JSON Lines" parts.jsonl

Every format has one text beyond ASCII in each row, plain CSV too. Numbers are stored as numbers where the format has
them.
"""

import argparse
import itertools
import json
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Examples"))
from workbook_file import WorkbookFile

TEXT_COLUMNS = {"Handle", "MNum", "Material", "Name", "Coating"}


def rows_of(path):
    """The header row and all others, as lists of texts."""
    with open(path, encoding="utf-8") as lines:
        header = next(lines).rstrip("\n").split(",")
        yield header
        coating = header.index("Coating")
        for line in lines:
            row = line.rstrip("\n").split(",")
            row[coating] = "Grün " + row[coating]
            yield row


def write_text(rows, path, delimiter=",", encoding="utf-8", decimal_sign="."):
    """A file of lines and fields; no text of the list has a point, or a sign that wants quotes."""
    with open(path, "w", encoding=encoding, newline="") as file:
        for row in rows:
            line = delimiter.join(row) + "\n"
            file.write(line if decimal_sign == "." else line.replace(".", decimal_sign))


def member_of(key, is_text):
    """A format of a key and its value."""
    return json.dumps(key, ensure_ascii=False) + (': "%s"' if is_text else ": %s")


def objects_of(rows):
    """Each row as the text of a JSON object."""
    header = next(rows)
    form = "{" + ", ".join(member_of(key, key in TEXT_COLUMNS) for key in header) + "}"
    return (form % tuple(row) for row in rows)


def write_json(rows, path):
    with open(path, "w", encoding="utf-8") as file:
        file.write("[\n")
        for index, item in enumerate(objects_of(rows)):
            file.write(item if index == 0 else ",\n" + item)
        file.write("\n]\n")


def write_json_lines(rows, path):
    with open(path, "w", encoding="utf-8") as file:
        file.writelines(item + "\n" for item in objects_of(rows))


def number_of(cell):
    return float(cell) if "." in cell else int(cell)


def write_workbook(rows, path):
    header = next(rows)
    to_values = [str if name in TEXT_COLUMNS else number_of for name in header]
    values = ([to_value(cell) for to_value, cell in zip(to_values, row)] for row in rows)
    with WorkbookFile(path) as workbook:
        workbook.add_sheet("Parts", itertools.chain([header], values))


# Name to what writes it, and how such a file ends.
FORMATS = {
    "CSV": (write_text, ".csv"),
    "CSV, semicolons, decimal commas, Windows-1252":
        (lambda rows, path: write_text(rows, path, ";", "windows-1252", ","), "-german.csv"),
    "CSV, tabs": (lambda rows, path: write_text(rows, path, "\t"), "-tabs.csv"),
    "CSV, UTF-16": (lambda rows, path: write_text(rows, path, encoding="utf-16"), "-utf-16.csv"),
    "XLSX": (write_workbook, ".xlsx"),
    "JSON": (write_json, ".json"),
    "JSON Lines": (write_json_lines, ".jsonl"),
}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("parts", help="what generate_parts.py wrote")
    parser.add_argument("format", choices=FORMATS)
    parser.add_argument("output")
    arguments = parser.parse_args()
    write = FORMATS[arguments.format][0]
    write(rows_of(arguments.parts), arguments.output)


if __name__ == "__main__":
    main()
