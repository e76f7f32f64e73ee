"""What the Python programs of the comparison have in common: their arguments, and how they tell their times."""

import argparse
import json
import time


def measure(program, load, make_report):
    """Loads the rows named by --data, makes the report --runs times and prints the times of all runs but the first.

    load(path) -> rows; make_report(rows) -> the text.
    """
    parser = argparse.ArgumentParser()
    parser.add_argument("--data", required=True)
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--text")
    arguments = parser.parse_args()
    rows = load(arguments.data)
    milliseconds = []
    for _ in range(arguments.runs):
        start = time.perf_counter()
        text = make_report(rows)
        milliseconds.append((time.perf_counter() - start) * 1000)
    if arguments.text:
        with open(arguments.text, "w", encoding="utf-8") as file:
            file.write(text)
    print(json.dumps({"program": program, "rows": len(rows), "milliseconds": milliseconds[1:]}))
