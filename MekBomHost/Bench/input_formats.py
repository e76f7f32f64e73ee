"""Times one whole job on the same rows in each format of parts lists: from the file to a sorted, grouped and summed
list in a text file, by mekbom.

    python3 input_formats.py --program mekbom --data parts.csv --folder inputs --runs 3

`--data` is what generate_parts.py wrote; `--folder` keeps the files made of it for the next time. Prints one JSON
object per format: the medians of wall time and processor time in seconds and of peak memory in MiB, and the file's size
in MB. The formats take turns, and of several runs the first, which fills caches, does not count. A format that gives
another report ends it with status 1.
"""

import argparse
import json
import os
import pathlib
import statistics
import subprocess
import sys

from convert_parts import FORMATS
from whole_job import HERE, Run, run


def converted(parts, name, folder):
    """The file of that format. A process of its own makes it: what this one held would count as peak memory of those
    that it starts."""
    path = folder / (parts.stem + FORMATS[name][1])
    if not path.exists():
        print(f"writing {path.name}", file=sys.stderr)
        unfinished = folder / "unfinished"
        subprocess.run([sys.executable, HERE / "convert_parts.py", parts, name, unfinished], check=True)
        unfinished.replace(path)
    return path


def require_equal(folder, name):
    """Keeps the first report, and ends this program when another differs."""
    report, first = folder / "report.txt", folder / "first.txt"
    if not first.exists():
        report.replace(first)
    elif subprocess.run(["cmp", first, report], check=False).returncode != 0:
        sys.exit(f"input_formats.py: {name} gives another report")


def measure(program, files, runs, folder):
    """For each format its measured runs, the first of several left out."""
    measured = {name: [] for name in files}
    (folder / "first.txt").unlink(missing_ok=True)
    for index in range(runs):
        for name, path in files.items():
            result = run([program, "report", "--data", path.name, "--template", str(HERE / "large-report.json"), "-o",
                          "report.txt"], None, folder)
            if index > 0 or runs == 1:
                measured[name].append(result)
            require_equal(folder, name)
    return measured


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, help="the mekbom to measure")
    parser.add_argument("--data", required=True, type=pathlib.Path, help="what generate_parts.py wrote")
    parser.add_argument("--folder", required=True, type=pathlib.Path)
    parser.add_argument("--runs", type=int, default=3)
    arguments = parser.parse_args()

    folder = arguments.folder
    folder.mkdir(exist_ok=True)
    files = {name: converted(arguments.data.resolve(), name, folder) for name in FORMATS}
    for name, results in measure(os.path.abspath(arguments.program), files, arguments.runs, folder).items():
        medians = Run(*map(statistics.median, zip(*results)))
        print(json.dumps({"name": name, "seconds": round(medians.seconds, 3),
                          "processor_seconds": round(medians.processor_seconds, 3),
                          "peak_mib": round(medians.peak_mib),
                          "megabytes": round(files[name].stat().st_size / 1e6, 1)}))


if __name__ == "__main__":
    main()
