"""What does the report cost in pandas, from the loaded frame to the last line of text?

    python3 pandas_report.py --data parts.csv [--runs N] [--text report.txt]

Measured as its fastest way: texts are factorised and only the distinct ones ranked, rows put in order by one lexsort
over whole numbers and lengths, sums taken over the sorted rows, lines formatted by Python's % on whole tuples, which is
faster than to_csv and than formatting column by column. Numbers keep their trailing zeros.
"""

import numpy
import pandas

from comparison_run import measure

TEXTS = ["Handle", "Num", "MNum", "Material", "Name", "Phase", "Class", "Coating"]
LINE = "%s\t%s\t%s\t%s\t%s\t%.1f\t%.2f\t%.2f\t%d\t%s\t%s\t%s\t%.1f\t%.1f\t%.1f\n"


def load(path):
    return pandas.read_csv(path, dtype={name: str for name in TEXTS})


def ranks(texts, key):
    """Each row's rank among the distinct texts, ordered by key."""
    codes, distinct = pandas.factorize(texts)
    rank_of_code = numpy.empty(len(distinct), dtype=numpy.int64)
    rank_of_code[sorted(range(len(distinct)), key=lambda code: key(distinct[code]))] = numpy.arange(len(distinct))
    return rank_of_code[codes]


def natural_key(mark):
    return int(mark[1:])


def in_report_order(frame):
    """The rows sorted, and where groups by material and mark, and by material, begin."""
    materials = ranks(frame["Material"], str)
    groups = materials * (len(frame) + 1) + ranks(frame["MNum"], natural_key)
    order = numpy.lexsort((-frame["Length [mm]"].to_numpy(), groups))
    return frame.take(order), starts(groups[order]), starts(materials[order])


def starts(sorted_groups):
    return numpy.concatenate(([0], numpy.flatnonzero(numpy.diff(sorted_groups)) + 1))


def details_lines(rows):
    formula = rows["Length [mm]"] * rows["Quantity"] / 1000
    columns = [rows[name].tolist() for name in rows.columns] + [formula.tolist()]
    return [LINE % row for row in zip(*columns)]


def make_report(frame):
    rows, mark_starts, material_starts = in_report_order(frame)
    weights = rows["Weight [kg]"].to_numpy()
    lines = details_lines(rows)
    marks = rows["MNum"].to_numpy()[mark_starts].tolist()
    materials = dict(zip(material_starts.tolist(), rows["Material"].to_numpy()[material_starts].tolist()))
    mark_sums = numpy.add.reduceat(weights, mark_starts).tolist()
    material_sums = numpy.add.reduceat(weights, material_starts).tolist()

    pieces = []
    finished_materials = iter(material_sums)
    ends = mark_starts[1:].tolist() + [len(rows)]
    for mark, start, end, weight in zip(marks, mark_starts.tolist(), ends, mark_sums):
        if start in materials:
            pieces.append(materials[start] + "\n")
        pieces.append(mark + "\n")
        pieces.extend(lines[start:end])
        pieces.append("%.2f\n" % weight)
        if end in materials or end == len(rows):
            pieces.append("%.2f\n" % next(finished_materials))
    pieces.append("%.2f\n" % sum(material_sums))
    return "".join(pieces)


if __name__ == "__main__":
    measure(f"pandas {pandas.__version__}", load, make_report)
