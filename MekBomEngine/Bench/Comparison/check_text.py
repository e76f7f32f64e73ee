"""Whether a program of the comparison made the same report as the limit program, whose text is that of the engine.

    python3 check_text.py limit.txt other.txt

Numbers may differ as programs round: they show as many decimals, and one whose next digit is exactly 5 may go either
way; trailing zeros may be shown or not. Rows of a group whose lengths read the same may stand in any order: nearly
equal ones keep theirs in the engine, while other programs put the longer one first.
"""

import sys
from itertools import groupby, zip_longest

LENGTH = 5  # the column that rows of a group are sorted by
NUMBERS = {5, 6, 7, 12, 13, 14}


def rows_of(path):
    """The lines as lists of cells, neighbours of the same length ordered by their handles."""
    with open(path, encoding="utf-8") as file:
        rows = (line.rstrip("\n").split("\t") for line in file)
        for key, group in groupby(rows, key=lambda row: float(row[LENGTH]) if len(row) > LENGTH else None):
            yield from group if key is None else sorted(group)


def is_same_number(expected, found):
    decimals = len(found.partition(".")[2])
    try:
        return abs(float(expected) - float(found)) < 1.01 * 10**-decimals
    except ValueError:
        return False


def is_same_row(expected, found):
    if len(expected) != len(found):
        return False
    can_round = NUMBERS if len(expected) > 1 else {0}  # a lone cell is a name or a sum
    return all(a == b or (i in can_round and is_same_number(a, b)) for i, (a, b) in enumerate(zip(expected, found)))


def first_difference(expected_path, found_path):
    """The first line that differs, as a message; None when the reports are the same."""
    for number, (expected, found) in enumerate(zip_longest(rows_of(expected_path), rows_of(found_path)), start=1):
        if expected != found and (expected is None or found is None or not is_same_row(expected, found)):
            return f"{found_path}:{number}: found {found}, expected {expected}"
    return None


if __name__ == "__main__":
    difference = first_difference(sys.argv[1], sys.argv[2])
    if difference:
        sys.exit(difference)
