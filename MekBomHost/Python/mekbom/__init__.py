"""Lists of steel parts: sorted, grouped, summed, computed by formulas and shown in the reader's units.

    import mekbom

    report = mekbom.report("parts.csv", "cutting-list", units="imperial")
    print(report)                           # the table that the program mekbom prints
    report.write("list.xlsx")
    for line in report.lines:
        print(line.role, line.values, line.handles)

Parts may be files, rows as mappings, or a pandas DataFrame; a template a file, the name of a shipped list, or a mapping
with the keys of template files. Everything is made in memory by libmekbom, which also makes the program's lists.
"""

from ._report import Column, Finding, Line, Lines, Report, ReportError, Stopped, check, describe, report, version

__all__ = ["Column", "Finding", "Line", "Lines", "Report", "ReportError", "Stopped", "check", "describe", "report",
           "version"]
