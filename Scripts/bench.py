"""Runs the benchmarks of a build on the same rows, prints tables with medians and ratios, and writes them as JSON.

    python3 Scripts/bench.py --build build/bench [--sizes 10000,100000,1000000]
                             [--sections evaluate,shapes,threads,formulas,job,inputs,outputs,curves]
                             [--rounds 3] [--json build/bench/bench.json] [--document Docs/PERFORMANCE.md]

Reports are compared on two sets of rows, named in bench_tables.TEXTS. All programs get the same environment, in which
freed memory stays in the process. Each is started --rounds times for each size, at a million rows once less, the
programs taking turns; each start makes several reports and tells the times of all but the first. With --document the
tables replace those in that file, between the two comments that mark them.
"""

import argparse
import json
import os
import platform
import re
import subprocess
import sys
from pathlib import Path
from statistics import median

import bench_tables

ROOT = Path(__file__).resolve().parent.parent
COMPARISON = ROOT / "MekBomEngine/Bench/Comparison"
GENERATOR = ROOT / "MekBomHost/Bench/generate_parts.py"
WHOLE_JOB = ROOT / "MekBomHost/Bench/whole_job.py"
INPUT_FORMATS = ROOT / "MekBomHost/Bench/input_formats.py"
OUTPUTS = ROOT / "MekBomHost/Bench/outputs.py"
SECTIONS = ["evaluate", "shapes", "threads", "formulas", "job", "inputs", "outputs", "curves"]

# Fresh pages are dear on virtual machines: nothing is given back to the system, and what is asked for comes in plenty.
MEMORY_STAYS = {
    "MALLOC_TRIM_THRESHOLD_": str(64 << 30),
    "MALLOC_MMAP_THRESHOLD_": str(64 << 30),
    "MALLOC_TOP_PAD_": str(64 << 20),
}
ONE_THREAD = {"OMP_NUM_THREADS": "1", "OPENBLAS_NUM_THREADS": "1"}
NO_CONFIGURATION = {"XDG_CONFIG_HOME": os.devnull}  # of the user's own: what is measured is the same for everybody
ENVIRONMENT = {**os.environ, **MEMORY_STAYS, **ONE_THREAD, **NO_CONFIGURATION, "PYTHONDONTWRITEBYTECODE": "1"}


# What must not grow faster than n log n: with the length of texts and formulas, the number of rows, tuples, sections,
# levels and columns.
CURVES = {
    "MekRoots/MekRootsBench": "CopyTexts|AppendCharacters|CompareTextsNaturally|SplitList|InsertTokens|AppendTexts",
    "ExpressionEvaluator/ExpressionEvaluatorBench": "FormulaLength|LookUpAmongVariables",
    "MekBomEngine/MekBomEngineBench":
        "TupleOfManyRows|TupleAmongMany|CompareWithNextRow|CompareByManyTokens|UsedTokensOf.*|Display.*|Evaluate.+",
}


def run(command):
    """The standard output of a program; ends this one when it fails."""
    result = subprocess.run([str(part) for part in command], env=ENVIRONMENT, stdout=subprocess.PIPE, text=True,
                            check=False)
    if result.returncode != 0:
        sys.exit(f"bench.py: {' '.join(map(str, command))} ended with {result.returncode}")
    return result.stdout


def run_json_lines(command):
    return [json.loads(line) for line in run(command).splitlines()]


def succeeds(command):
    try:
        return subprocess.run(command, capture_output=True, check=False).returncode == 0
    except OSError:
        return False


def python_with_pandas():
    """Debian's Python has it, which need not be the one that runs this script."""
    pythons = ("python3", "/usr/bin/python3")
    return next((python for python in pythons if succeeds([python, "-c", "import pandas"])), None)


def report_programs(build, texts):
    """Name to command of the programs that make the compared report; those that cannot run are named on stderr."""
    folder = build / "MekBomEngine/Bench"
    programs = {
        "limit": [folder / "LimitReport"],
        bench_tables.LIMIT_AHEAD: [folder / "LimitReport", "--rows-ahead", "12"],
        "engine": [folder / "EngineReport", "--texts", texts],
    }
    if (folder / "SqliteReport").exists():
        programs["SQLite"] = [folder / "SqliteReport"]
    else:
        print("SQLite is skipped: libsqlite3-dev was not installed when the benchmarks were built", file=sys.stderr)
    peers = build.resolve() / "peers"
    for name, package, script in (("DuckDB", "@duckdb/node-api", "duckdb_report.mjs"),
                                  ("Polars", "nodejs-polars", "polars_report.mjs")):
        if succeeds(["node", "-e", f"require('{peers}/node_modules/{package}')"]):
            programs[name] = ["node", COMPARISON / script, "--modules", peers]
            programs[f"{name}, 2 threads"] = [*programs[name], "--threads", 2]
        else:
            print(f"{name} is skipped: npm has not installed {package}, or not for this machine", file=sys.stderr)
    if python_with_pandas():
        programs["pandas"] = [python_with_pandas(), COMPARISON / "pandas_report.py"]
    else:
        print("pandas is skipped: python3-pandas is not installed", file=sys.stderr)
    return programs


def generate_rows(build, lengths, size):
    """The file of one of the sets of rows that bench_tables.TEXTS names."""
    options = ["--full-lengths"] if lengths == bench_tables.FULL_LENGTHS else []
    path = build / f"parts-{size}{''.join(options)}.csv"
    if not path.exists():
        path.write_text(run([sys.executable, GENERATOR, size, *options]), encoding="utf-8")
    return path


def runs_per_start(size):
    """Small reports are made more often; the first is discarded."""
    return {10_000: 30, 100_000: 8}.get(size, 3)


def rounds_at(size, rounds):
    """One less where a round takes a minute."""
    return max(rounds - 1, 1) if size >= 1_000_000 else rounds


def check_texts(build, programs, data):
    """Ends this program unless the engine's text is the limit's, and the others' the same but for rounding."""
    expected = build / "limit.txt"
    found = build / "found.txt"
    run(programs["limit"] + ["--data", data, "--runs", 1, "--text", expected])
    for name, command in programs.items():
        run(command + ["--data", data, "--runs", 1, "--text", found])
        if name == "engine":
            run(["cmp", expected, found])
        elif not name.startswith("limit"):
            run([sys.executable, COMPARISON / "check_text.py", expected, found])
    expected.unlink()
    found.unlink()


def merged(lines):
    """The results of a program's starts as one: medians of all lists, and of all numbers."""
    result = {"program": lines[0]["program"]}
    for key in lines[0].keys() - {"program", "rows"}:
        values = [line[key] for line in lines]
        result[key] = median(sum(values, []) if isinstance(values[0], list) else values)
    return result


def compare_programs(build, programs, lengths, size, rounds):
    """Name to merged results."""
    data = generate_rows(build, lengths, size)
    print(f"{lengths}, {size} rows: checking the texts", file=sys.stderr)
    check_texts(build, programs, data)
    lines = {name: [] for name in programs}
    for number in range(1, rounds + 1):
        print(f"{lengths}, {size} rows: round {number} of {rounds}", file=sys.stderr)
        for name, command in programs.items():
            lines[name] += run_json_lines(command + ["--data", data, "--runs", runs_per_start(size)])
    return {name: merged(found) for name, found in lines.items()}


def compare_reports(build, sizes, rounds):
    """For each set of rows and each size the results of all programs."""
    results = {}
    for lengths, texts in bench_tables.TEXTS.items():
        programs = report_programs(build, texts)
        results[lengths] = {size: compare_programs(build, programs, lengths, size, rounds_at(size, rounds))
                            for size in sizes}
    return results


def formula_share(build, size, rounds):
    """What a row pays for its formula: from round lengths alone, since computing takes no longer with full ones."""
    data = generate_rows(build, bench_tables.ROUND_LENGTHS, size)
    print(f"{size} rows: the formula's share", file=sys.stderr)
    command = [build / "MekBomEngine/Bench/FormulaShare", "--data", data, "--runs", 2 * runs_per_start(size) - 2]
    return merged([line for _ in range(rounds) for line in run_json_lines(command)])


def compare_shapes(build, sizes):
    """Shape by shape, each by turns with the plain one."""
    results = {}
    # Of the usual sizes the one that fills the caches and takes minutes: a million rows of each shape take half an hour.
    for size in [size for size in sizes if size == 100_000] or sizes:
        print(f"{size} rows: shapes", file=sys.stderr)
        runs = 15 if size < 100_000 else 5 if size < 1_000_000 else 1
        results[size] = run_json_lines([build / "MekBomEngine/Bench/ShapesBench", size, "--json", "--runs", runs])
    return results


def compare_threads(build):
    """One thread that makes reports, then two."""
    print("threads", file=sys.stderr)
    return run_json_lines([build / "MekBomEngine/Bench/ManyReports", 2, 20_000, 15])


def compare_formulas(build):
    program = build / "ExpressionEvaluator/FormulaComparison"
    print("formulas", file=sys.stderr)
    return run_json_lines([program])


def compare_jobs(build, size, rounds):
    """For each set of rows the lines of whole_job.py."""
    python = python_with_pandas() or sys.executable
    results = {}
    for lengths in bench_tables.TEXTS:
        print(f"{lengths}, {size} rows: the whole job", file=sys.stderr)
        results[lengths] = run_json_lines([python, WHOLE_JOB, "--program", build / "MekBomHost/mekbom", "--data",
                                           generate_rows(build, lengths, size), "--runs", rounds_at(size, rounds) + 1])
    return results


def compare_formats(build, size, rounds):
    """The lines of input_formats.py."""
    print(f"{size} rows: formats of parts lists", file=sys.stderr)
    return run_json_lines([sys.executable, INPUT_FORMATS, "--program", build / "MekBomHost/mekbom", "--data",
                           generate_rows(build, bench_tables.ROUND_LENGTHS, size), "--folder", build / "inputs",
                           "--runs", rounds_at(size, rounds) + 1])


def instructions_of_reading(build, benchmark):
    """How many instructions a benchmark of InputsBench.cpp takes to read its list once."""
    output = build / "callgrind.out"
    result = subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={output}", "--collect-atstart=no",
                             "--toggle-collect=*readParts*", build / "MekBomHost/MekBomHostBench",
                             f"--benchmark_filter=^{benchmark}$", "--benchmark_min_time=0.000001"],
                            env=ENVIRONMENT, capture_output=True, text=True, check=True)
    output.unlink(missing_ok=True)
    collected = int(re.search(r"Collected : (\d+)", result.stderr)[1])
    if collected == 0:
        sys.exit(f"bench.py: {benchmark} counted nothing; has readParts() another name?")
    return collected


def recognition(build):
    """Instructions of reading a list whose dialect is recognised, and of one whose dialect is said; None where nothing
    counts them."""
    if not succeeds(["valgrind", "--version"]):
        print("what recognising takes is skipped: valgrind is not installed", file=sys.stderr)
        return None
    print("recognising how a list is written", file=sys.stderr)
    return [{"name": name, "rows": rows,
             "recognised": instructions_of_reading(build, f"BM_{name}Recognised/{rows}"),
             "forced": instructions_of_reading(build, f"BM_{name}Forced/{rows}")}
            for name in bench_tables.DIALECTS for rows in (1_000, 20_000)]


def compare_outputs(build, size, rounds):
    """The lines of outputs.py."""
    print(f"{size} rows: outputs", file=sys.stderr)
    return run_json_lines([sys.executable, OUTPUTS, "--program", build / "MekBomHost/mekbom", "--data",
                           generate_rows(build, bench_tables.ROUND_LENGTHS, size), "--runs", rounds_at(size, rounds) + 1])


def run_curves(build):
    """Benchmarks of single operations, each with a series of sizes."""
    results = []
    for program, benchmarks in CURVES.items():
        print(program, file=sys.stderr)
        output = run([build / program, "--benchmark_format=json", "--benchmark_min_time=0.1",
                      f"--benchmark_filter=BM_({benchmarks})/"])
        results += json.loads(output)["benchmarks"]
    return results


def machine():
    compiler = subprocess.run(["c++", "--version"], stdout=subprocess.PIPE, text=True, check=False).stdout
    return {"processor": bench_tables.processor_name(), "processors": os.cpu_count(), "system": platform.platform(),
            "compiler": compiler.splitlines()[0] if compiler else "unknown"}


def replace_figures(document, tables):
    text = document.read_text(encoding="utf-8")
    before, start, rest = text.partition("<!-- figures -->\n")
    _, end, after = rest.partition("<!-- end of figures -->\n")
    if not start or not end:
        sys.exit(f"bench.py: {document} has no place for figures")
    document.write_text(f"{before}{start}\n{tables}\n\n{end}{after}", encoding="utf-8")


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, required=True)
    parser.add_argument("--sizes", default="10000,100000,1000000")
    parser.add_argument("--sections", default=",".join(SECTIONS))
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--json", type=Path)
    parser.add_argument("--document", type=Path)
    arguments = parser.parse_args()
    arguments.sizes = [int(size) for size in arguments.sizes.split(",")]
    arguments.sections = arguments.sections.split(",")
    if not set(arguments.sections) <= set(SECTIONS):
        parser.error(f"--sections: expected some of {','.join(SECTIONS)}")
    return arguments


def run_sections(build, sections, sizes, rounds):
    measure = {
        "evaluate": lambda: {
            "reports": compare_reports(build, sizes, rounds),
            "formula share": {size: formula_share(build, size, rounds_at(size, rounds)) for size in sizes},
        },
        "shapes": lambda: compare_shapes(build, sizes),
        "threads": lambda: compare_threads(build),
        "formulas": lambda: compare_formulas(build),
        "job": lambda: {"rows": max(sizes), "programs": compare_jobs(build, max(sizes), rounds)},
        "inputs": lambda: {"rows": max(sizes), "formats": compare_formats(build, max(sizes), rounds),
                           "recognition": recognition(build)},
        "outputs": lambda: {"rows": max(sizes), "formats": compare_outputs(build, max(sizes), rounds)},
        "curves": lambda: run_curves(build),
    }
    return {section: measure[section]() for section in SECTIONS if section in sections}


def main():
    arguments = read_arguments()
    results = run_sections(arguments.build, arguments.sections, arguments.sizes, arguments.rounds)
    results["machine"] = machine()
    results["bounds"] = bench_tables.bounds(results)
    path = arguments.json or arguments.build / "bench.json"
    path.write_text(json.dumps(results, indent=1) + "\n", encoding="utf-8")
    print(f"Written to {path}", file=sys.stderr)
    tables = bench_tables.all_tables(results)
    print(tables)
    if arguments.document:
        replace_figures(arguments.document, tables)


if __name__ == "__main__":
    main()
