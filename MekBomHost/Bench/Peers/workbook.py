"""The lines of the large report as a workbook by pandas' own writer: python3 workbook.py parts.csv report.xlsx

One call writes all of them; groups, sums, formats and widths are left out, which it has no call for. Of the two engines
that pandas writes workbooks with, this is the faster one: openpyxl takes half as long again.
"""

import sys

import pandas

from report import COLUMNS, SHOWN, TEXTS


def main():
    rows = pandas.read_csv(sys.argv[1], header=0, names=COLUMNS, dtype=TEXTS, keep_default_na=False)
    rows["Total"] = rows["Length"] * rows["Quantity"] / 1000
    rows[SHOWN].to_excel(sys.argv[2], index=False, engine="xlsxwriter")


if __name__ == "__main__":
    main()
