"""Lists as mekbom prints them, read back into cells, for the checks beside this file."""

import pathlib
import re
import shlex
import subprocess
from fractions import Fraction
from typing import NamedTuple

SHAPES = pathlib.Path(__file__).parent.parent / "MekBomHost" / "Test" / "Reports" / "Shapes"
OF_OTHER_FORMATS = ("--values", "plain")


def shapes():
    """The folder and the arguments of each of the tests' lists of one peculiarity, as a text prints it."""
    for command in sorted(SHAPES.glob("*/command.txt")):
        verb, *words = shlex.split(command.read_text(encoding="utf-8").replace("{here}", str(command.parent)))
        if verb == "report":
            yield command.parent, [word for word in words if word not in OF_OTHER_FORMATS]


class PrintedList(NamedTuple):
    headings: list
    lines: list     # the cells of each line of the table, headings and rules left out
    foot: list      # what the list is made of, below the table
    mistakes: list  # the codes of what was found, such as MB413


def print_list(program, *arguments):
    """The list that `program` prints. The rule under the headings says where columns begin and end, and what the list is
    made of stands below the last blank line."""
    command = [program, "report", *map(str, arguments)]
    run = subprocess.run(command, check=True, capture_output=True, encoding="utf-8")
    text = run.stdout.splitlines()
    rule = next(index for index, line in enumerate(text) if line.startswith("---"))
    spans = [column.span() for column in re.finditer("-+", text[rule])]
    foot = max(index for index, line in enumerate(text) if not line)

    def cells(line):
        return [line[begin:end].strip() for begin, end in spans]

    lines = [cells(line) for line in text[rule + 1:foot] if line and line != text[rule]]
    return PrintedList(cells(text[rule - 1]), lines, text[foot + 1:],
                       re.findall(r" (MB\d+): ", run.stderr))


def number(cell):
    """The number that a cell shows, exactly: "12.5" is 12.5, and 7' 6 1/2" is 90.5, in inches."""
    if not re.search("['\"]", cell):
        return Fraction(cell)
    feet, inches, above, below = re.fullmatch(r"(?:(\d+)')? ?(?:(\d+)(?!/))? ?(?:(\d+)/(\d+))?\"?", cell).groups()
    return 12 * Fraction(feet or 0) + Fraction(inches or 0) + Fraction(int(above or 0), int(below or 1))
