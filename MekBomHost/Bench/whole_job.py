"""Times one whole job, from a CSV file to a sorted, grouped and summed list in a text file, by mekbom and by the tools
that people would use otherwise: the sqlite3 shell, Miller and pandas.

    python3 whole_job.py --program mekbom --data parts.csv --runs 5

The data are those of generate_parts.py; large-report.json is mekbom's description of the job, Peers holds the others'.
Prints one JSON object per line and program: the median wall time in seconds and peak memory in MiB. The programs take
turns, and of several runs the first, which fills caches, does not count. Reports that differ end it with status 1.
"""

import argparse
import itertools
import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from typing import NamedTuple

SLOW_SECONDS = 60
HERE = pathlib.Path(__file__).resolve().parent
PYTHON = "/usr/bin/python3"  # the one that Debian's pandas belongs to
NUM_DETAILS_FIELDS = 15
MARK, LENGTH, WEIGHT, TOTAL = 1, 5, 6, 14  # fields of a details line
NUM_KEYS = 3  # that lines are sorted by: material, mark, length


class Run(NamedTuple):
    seconds: float              # on the wall
    processor_seconds: float    # of all threads
    peak_mib: float


def has_modules(*names):
    """Whether the Python that pandas belongs to has all of them."""
    probe = [PYTHON, "-c", "import " + ", ".join(names)]
    return os.path.exists(PYTHON) and subprocess.run(probe, stderr=subprocess.DEVNULL, check=False).returncode == 0


def peers(program):
    """Name, command, standard input, and what to install when the program is missing."""
    miller = ["mlr", "--icsv", "--onidx", "sort", "-f", "Material", "-t", "MNum", "-nr", "Length [mm]", "then", "put",
              "-q", "-f", str(HERE / "Peers/report.mlr"), "parts.csv"]
    return [
        ("mekbom", [program, "report", "--data", "parts.csv", "--template", str(HERE / "large-report.json"), "-o",
                    "report.txt"], None, None),
        ("sqlite3", ["sqlite3", ":memory:"], HERE / "Peers/report.sql", None if shutil.which("sqlite3") else "sqlite3"),
        ("Miller", miller, None, None if shutil.which("mlr") else "miller"),
        ("pandas", [PYTHON, str(HERE / "Peers/report.py"), "parts.csv", "report.txt"], None,
         None if has_modules("pandas") else "python3-pandas"),
    ]


def run(command, stdin, folder):
    """What one run takes in a folder that holds the parts list; it leaves report.txt there."""
    report = folder / "report.txt"
    report.unlink(missing_ok=True)
    prints_report = command[0] == "mlr"
    with open(stdin or os.devnull, "rb") as source, open(report if prints_report else os.devnull, "wb") as sink:
        begin = time.perf_counter()
        process = subprocess.Popen(command, stdin=source, stdout=sink, cwd=folder)
        _, status, usage = os.wait4(process.pid, 0)
        seconds = time.perf_counter() - begin
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"whole_job.py: {command[0]} ended with status {process.returncode}")
    return Run(seconds, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024)


def content(report):
    """What every program must agree on: each details line's material, mark, length, weight and total, and all sums.

    Lines of a group whose lengths read the same are put in the order of their weights: nearly equal ones keep theirs in
    mekbom, while others put the longer one first.
    """
    details, sums = [], []
    with open(report, encoding="utf-8") as lines:
        for line in lines:
            fields = line.split()
            if len(fields) == NUM_DETAILS_FIELDS and fields[MARK] != "MNum" and not fields[0].startswith("-"):
                details.append((fields[0], fields[MARK], float(fields[LENGTH]), float(fields[WEIGHT]),
                                float(fields[TOTAL])))
            elif len(fields) == 1 and fields[0][0].isdigit():
                sums.append(float(fields[0]))
    tied = itertools.groupby(details, key=lambda line: line[:NUM_KEYS])
    return [line for _, lines in tied for line in sorted(lines)], sums


def differ(first, second):
    """Whether two contents differ by more than the last decimal of what is computed."""
    (details, sums), (other_details, other_sums) = first, second
    if len(details) != len(other_details) or len(sums) != len(other_sums):
        return True
    return (any(a[:4] != b[:4] or abs(a[4] - b[4]) > 0.11 for a, b in zip(details, other_details))
            or any(abs(a - b) > 0.011 for a, b in zip(sums, other_sums)))


def measure(programs, runs, folder):
    """For each program its measured runs, the first of several left out. Leaves each one's report as NAME.txt.

    A program that takes longer than SLOW_SECONDS runs once: what a first run pays more is nothing to that.
    """
    measured = {name: [] for name, _, _ in programs}
    for index in range(runs):
        for name, command, stdin in programs:
            if measured[name] and measured[name][0].seconds > SLOW_SECONDS:
                continue
            result = run(command, stdin, folder)
            if index > 0 or runs == 1 or result.seconds > SLOW_SECONDS:
                measured[name].append(result)
            (folder / "report.txt").replace(folder / (name + ".txt"))
    return measured


def check(names, folder):
    """Ends when the reports differ. Comes last: what this process holds would count as peak memory of those it starts."""
    expected = content(folder / (names[0] + ".txt"))
    for name in names[1:]:
        if differ(expected, content(folder / (name + ".txt"))):
            sys.exit(f"whole_job.py: {name} gives another report than {names[0]}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, help="the mekbom to measure")
    parser.add_argument("--data", required=True, help="what generate_parts.py wrote")
    parser.add_argument("--runs", type=int, default=3)
    arguments = parser.parse_args()

    programs = []
    for name, command, stdin, missing in peers(os.path.abspath(arguments.program)):
        if missing:
            print(json.dumps({"name": name, "skipped": missing + " is not installed"}), flush=True)
        else:
            programs.append((name, command, stdin))
    with tempfile.TemporaryDirectory() as folder:
        (pathlib.Path(folder) / "parts.csv").symlink_to(os.path.abspath(arguments.data))
        measured = measure(programs, arguments.runs, pathlib.Path(folder))
        check(list(measured), pathlib.Path(folder))
    for name, results in measured.items():
        medians = Run(*map(statistics.median, zip(*results)))
        print(json.dumps({"name": name, "seconds": round(medians.seconds, 3), "peak_mib": round(medians.peak_mib)}))


if __name__ == "__main__":
    main()
