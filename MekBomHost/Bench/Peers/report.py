"""The large report by pandas: python3 report.py parts.csv report.txt

What is fastest here: typed columns, one sort over numbers, one %-format per row. The marks are a letter and a number,
so that their natural order is that of the number.
"""

import sys

import pandas

COLUMNS = ["Handle", "Num", "MNum", "Material", "Name", "Length", "Weight", "Paint", "Quantity", "Phase", "Class",
           "Coating", "Thick", "Width"]
SHOWN = ["Material", "MNum", "Handle", "Num", "Name", "Length", "Weight", "Paint", "Quantity", "Phase", "Class",
         "Coating", "Thick", "Width", "Total"]
TEXTS = {"Handle": str, "Num": str, "MNum": "category", "Material": "category", "Name": "category",
         "Coating": "category"}
HEADING = "%-8s  %-6s  %-6s  %-5s  %-6s  %8s  %12s  %6s  %8s  %5s  %5s  %-7s  %5s  %5s  %8s\n"
DETAILS = "%-8s  %-6s  %-6s  %-5s  %-6s  %8.1f  %12.2f  %6.2f  %8d  %5d  %5d  %-7s  %5g  %5g  %8.1f\n%s"
SUM = "%61.2f\n"


def sums_after_rows(rows):
    """For each row the lines of the sums that end with it: an empty text for most."""
    tails = [""] * len(rows)
    for keys in (["Material", "Mark"], ["Material"]):
        groups = rows.groupby(keys, sort=False, observed=True)
        last_rows = groups.size().cumsum() - 1
        for row, weight in zip(last_rows.tolist(), groups["Weight"].sum().tolist()):
            tails[row] += SUM % weight
    tails[-1] += SUM % rows["Weight"].sum()
    return tails


def main():
    rows = pandas.read_csv(sys.argv[1], header=0, names=COLUMNS, dtype=TEXTS, keep_default_na=False)
    marks = rows["MNum"].cat
    rows["Mark"] = pandas.Series(marks.categories.str[1:].astype(int)).to_numpy()[marks.codes]
    rows = rows.sort_values(["Material", "Mark", "Length"], ascending=[True, True, False], ignore_index=True)
    rows["Total"] = rows["Length"] * rows["Quantity"] / 1000
    columns = [rows[name].tolist() for name in SHOWN] + [sums_after_rows(rows)]
    with open(sys.argv[2], "w", encoding="utf-8") as out:
        out.write(HEADING % tuple(SHOWN))
        out.writelines(DETAILS % row for row in zip(*columns))


if __name__ == "__main__":
    main()
