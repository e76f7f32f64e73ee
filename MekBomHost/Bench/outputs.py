"""Times mekbom from a CSV file to the same list in each format, and pandas' own writer of workbooks on the same rows.

    python3 outputs.py --program mekbom --data parts.csv --runs 2

The data are those of generate_parts.py, the list is large-report.json. Prints one JSON object per line and format: the
medians of wall time and processor time in seconds and of peak memory in MiB, and the size of the file in MiB. Formats
take turns, and of several runs the first, which fills caches, does not count; pandas takes minutes and runs once. A
workbook with more or fewer lines than the data have rows ends it with status 1.
"""

import argparse
import json
import os
import pathlib
import re
import statistics
import sys
import tempfile
import zipfile

import whole_job

ENDINGS = {"text": "txt", "csv": "csv", "tsv": "tsv", "json": "json", "html": "html", "xlsx": "xlsx"}
NUMBER_OF_LINE = re.compile(rb'<c r="O\d+"(?: s="\d+")?(?: t="n")?><v>')  # texts have another type
BLOCK = 1 << 20
MIB = 1 << 20


def commands(program):
    """Name to command; each writes the file that it names last."""
    report = [program, "report", "--data", "parts.csv", "--template", str(whole_job.HERE / "large-report.json"), "-o"]
    found = {name: [*report, f"list.{ending}"] for name, ending in ENDINGS.items()}
    if whole_job.has_modules("pandas", "xlsxwriter"):
        found["pandas, xlsx"] = [whole_job.PYTHON, str(whole_job.HERE / "Peers/workbook.py"), "parts.csv", "pandas.xlsx"]
    else:
        print("pandas is skipped: python3-pandas or python3-xlsxwriter is not installed", file=sys.stderr)
    return found


def num_lines(workbook):
    """How many numbers stand in the list's last column, on all sheets: one for each line of details."""
    lines = 0
    with zipfile.ZipFile(workbook) as parts:
        for name in parts.namelist():
            if name.startswith("xl/worksheets/sheet"):
                with parts.open(name) as sheet:
                    lines += sum(len(NUMBER_OF_LINE.findall(tags)) for tags in whole_tags(sheet))
    return lines


def whole_tags(sheet):
    """The text of a sheet in blocks, none of which ends within a cell."""
    rest = b""
    while block := sheet.read(BLOCK):
        rest += block
        end = rest.rfind(b"<c ")
        yield rest[:end]
        rest = rest[end:]
    yield rest


def measure(programs, runs, folder):
    measured = {name: [] for name in programs}
    for index in range(runs):
        for name, command in programs.items():
            if name.startswith("pandas") and index > 0:
                continue
            result = whole_job.run(command, None, folder)
            if index > 0 or runs == 1 or name.startswith("pandas"):
                measured[name].append(result)
    return measured


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, help="the mekbom to measure")
    parser.add_argument("--data", required=True, help="what generate_parts.py wrote")
    parser.add_argument("--runs", type=int, default=3)
    arguments = parser.parse_args()

    programs = commands(os.path.abspath(arguments.program))
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "parts.csv").symlink_to(os.path.abspath(arguments.data))
        measured = measure(programs, arguments.runs, folder)
        with open(arguments.data, "rb") as data:
            rows = sum(1 for _ in data) - 1
        for workbook in folder.glob("*.xlsx"):
            if (lines := num_lines(workbook)) != rows:
                sys.exit(f"outputs.py: {workbook.name} has {lines} lines for {rows} rows")
        sizes = {name: (folder / command[-1]).stat().st_size / MIB for name, command in programs.items()}
    for name, results in measured.items():
        medians = whole_job.Run(*map(statistics.median, zip(*results)))
        print(json.dumps({"name": name, "seconds": round(medians.seconds, 3),
                          "processor_seconds": round(medians.processor_seconds, 3),
                          "peak_mib": round(medians.peak_mib), "file_mib": round(sizes[name], 1)}))


if __name__ == "__main__":
    main()
