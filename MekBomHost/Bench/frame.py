"""Times the Python package from a DataFrame to an evaluated list, and mekbom from the CSV file of the same rows to the text.

    MEKBOM_LIBRARY=libmekbom.so PYTHONPATH=../Python python3 frame.py --program mekbom --data parts.csv --runs 5

The data are those of generate_parts.py, the list is large-report.json. The two take turns; prints one JSON object with the
medians of processor time in seconds and their ratio. The frame is there before the clock starts.
"""

import argparse
import json
import pathlib
import resource
import statistics
import subprocess
import tempfile
import time

import pandas

import mekbom

TEMPLATE = pathlib.Path(__file__).resolve().parent / "large-report.json"
TEXTS = ("Handle", "Num", "MNum", "Phase", "Class")  # marks are texts, whatever they look like


def seconds_of_package(frame):
    begin = time.process_time()
    mekbom.report(frame, TEMPLATE)
    return time.process_time() - begin


def seconds_of_program(program, data, output):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run([program, "report", "--data", data, "--template", TEMPLATE, "--no-config", "-o", output], check=True,
                   stderr=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True)
    parser.add_argument("--data", required=True)
    parser.add_argument("--runs", type=int, default=5)
    arguments = parser.parse_args()
    frame = pandas.read_csv(arguments.data, dtype=dict.fromkeys(TEXTS, str))
    package, program = [], []
    with tempfile.TemporaryDirectory() as folder:
        for _ in range(arguments.runs):
            package.append(seconds_of_package(frame))
            program.append(seconds_of_program(arguments.program, arguments.data, pathlib.Path(folder, "list.txt")))
    ratios = [one / other for one, other in zip(package, program)]
    print(json.dumps({"rows": len(frame), "package_seconds": round(statistics.median(package), 3),
                      "program_seconds": round(statistics.median(program), 3),
                      "ratio": round(statistics.median(ratios), 2)}))


if __name__ == "__main__":
    main()
