"""What Scripts/bench.py measured, as Markdown tables, and whether it keeps within the bounds the engine is held to."""

import math
from pathlib import Path

LIMIT_AHEAD = "limit, rows fetched ahead"

# The two sets of rows, and how the engine's rows hold equal texts of a column in each.
ROUND_LENGTHS = "round lengths"
FULL_LENGTHS = "full lengths"
TEXTS = {ROUND_LENGTHS: "shared", FULL_LENGTHS: "own"}
MOST_TIMES_LIMIT = {"shared": 4, "own": 5}

# The lists of InputsBench.cpp.
DIALECTS = {
    "Plain": "commas and decimal points",
    "German": "semicolons, decimal commas, Windows-1252",
    "Unsettled": "commas, whole numbers alone",
}
ORDINARY_DIALECTS = ("Plain", "German")  # in the other one the search for a sign goes through all of the head in vain
RECOGNISED_ROWS = 20_000  # the length of list that is held to the bound below: shorter ones take no time anyway
MOST_TO_RECOGNISE = 2  # per cent of reading a list of which all is said

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
SLOWEST_GROWTH = 4  # times n log n from a size to the next: data that leave the caches cost 3, a square 6 and more


def processor_name():
    info = Path("/proc/cpuinfo")
    lines = info.read_text(encoding="utf-8").splitlines() if info.exists() else []
    return next((line.partition(":")[2].strip() for line in lines if line.startswith("model name")), "unknown")


def number(value):
    """Three significant digits, no exponent."""
    return f"{value:.0f}" if value >= 100 else f"{value:.3g}"


def table(header, rows):
    lines = [header, ["---"] + ["---:"] * (len(header) - 1)] + rows
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def geometric_mean(values):
    return math.exp(sum(math.log(value) for value in values) / len(values))


def milliseconds(evaluate, name):
    return [evaluate[size][name]["milliseconds"] for size in evaluate]


def ratios(evaluate, slower, faster):
    return [a / b for a, b in zip(milliseconds(evaluate, slower), milliseconds(evaluate, faster))]


def peers(evaluate):
    programs = next(iter(evaluate.values()))
    return [name for name in programs if not name.startswith("limit") and name != "engine"]


def label(evaluate, name):
    return name if name.startswith("limit") else next(iter(evaluate.values()))[name]["program"]


def evaluate_table(lengths, evaluate):
    sizes = [f"{size} rows" for size in evaluate]
    header = [f"milliseconds, {lengths}, {TEXTS[lengths]} texts", *sizes, "to the engine"]
    rows = []
    for name in ["limit", LIMIT_AHEAD, "engine", *peers(evaluate)]:
        to_engine = ratios(evaluate, name, "engine")
        rows.append([label(evaluate, name), *map(number, milliseconds(evaluate, name)),
                     " / ".join(map(number, to_engine))])
    return table(header, rows)


def engine_table(lengths, evaluate):
    sizes = list(evaluate)
    engine = [evaluate[size]["engine"] for size in sizes]
    rows = [
        ["evaluate, ns per row", *(number(e["milliseconds"] * 1e6 / n) for e, n in zip(engine, sizes))],
        ["free the result, ns per row", *(number(e["freeMilliseconds"] * 1e6 / n) for e, n in zip(engine, sizes))],
        ["bytes of the result per details row", *(number(e["resultBytes"]) for e in engine)],
        ["bytes of a loaded row", *(number(e["rowBytes"]) for e in engine)],
    ]
    return table([f"the engine, {lengths}, {TEXTS[lengths]} texts"] + [f"{size} rows" for size in sizes], rows)


def share_table(share):
    rows = [
        ["computed, its names looked up in the row", *(number(s["computeNanoseconds"]) for s in share.values())],
        ["computed, shown and appended to the row, over a plain length there",
         *(number(s["formulaNanoseconds"]) for s in share.values())],
        ["a plain length there over none", *(number(s["columnNanoseconds"]) for s in share.values())],
    ]
    return table(["the line's formula, ns per row"] + [f"{size} rows" for size in share], rows)


def shapes_of(shapes):
    """Of each shape that is compared with the plain one, its results at all sizes."""
    return [lines for lines in zip(*shapes.values()) if lines[0]["allowed"]]


def shapes_table(shapes):
    rows = []
    for lines in shapes_of(shapes):
        rows.append([f"{lines[0]['program']}: {lines[0]['difference']}",
                     " / ".join(number(line["milliseconds"] * 1e6 / line["rows"]) for line in lines),
                     " / ".join(f"{line['toPlain']:.2f}" for line in lines),
                     " / ".join(f"{line['allowed']:.2f}" for line in lines),
                     "met" if all(line["toPlain"] <= line["allowed"] for line in lines) else "MISSED"])
    return table([f"shape, {' / '.join(map(str, shapes))} rows", "ns per row", "to plain", "at most", ""], rows)


def extremes_table(shapes):
    rows = [[f"{line['program']}: {line['difference']}", number(line["milliseconds"]), number(line["tuples"])]
            for line in next(iter(shapes.values())) if not line["allowed"]]
    return table(["extreme shape", "milliseconds", "tuples"], rows)


def threads_table(threads):
    rows = [[str(line["rows"]), number(line["reportsPerSecond"]),
             f"{line['reportsPerSecond'] / threads[0]['reportsPerSecond']:.2f}",
             number(line["processorMillisecondsOfEvaluation"]), number(line["locksPerRow"]),
             number(line["locksWaitedFor"])] for line in threads]
    return table(["threads, each with reports of its own", "reports per second", "to one thread",
                  "ms of processor time to evaluate one", "locks per row", "locks waited for"], rows)


def formulas_of(results):
    """Name to nanoseconds, of programs that were not skipped."""
    return {line["name"]: line["ns"] for line in results["formulas"] if "ns" in line and "formula" not in line}


def formulas_table(results):
    found = formulas_of(results)
    rows = [[name, number(ns), number(ns / found["engine"])] for name, ns in sorted(found.items(), key=lambda i: i[1])]
    return table(["one formula, parsed and evaluated", "ns", "to the engine"], rows)


def jobs_of(job, lengths):
    return {line["name"]: line for line in job["programs"][lengths] if "seconds" in line}


def job_table(job, lengths):
    found = jobs_of(job, lengths)
    rows = [[name, number(line["seconds"]), number(line["peak_mib"]),
             number(line["seconds"] / found["mekbom"]["seconds"])] for name, line in found.items()]
    return table([f"file of {job['rows']} rows to report, {lengths}", "seconds", "peak MiB", "to mekbom"], rows)


def formats_table(inputs):
    plain = inputs["formats"][0]
    measures = ("seconds", "processor_seconds", "peak_mib")
    rows = [[line["name"], number(line["megabytes"]), *(number(line[measure]) for measure in measures),
             " / ".join(number(line[measure] / plain[measure]) for measure in measures)] for line in inputs["formats"]]
    return table([f"file of {inputs['rows']} rows to report", "MB of the file", "seconds", "processor seconds",
                  "peak MiB", "all three to plain CSV"], rows)


def percent_to_recognise(line):
    return 100 * (line["recognised"] / line["forced"] - 1)


def recognition_table(recognition):
    rows = [[DIALECTS[line["name"]], str(line["rows"]), number(line["recognised"] / line["rows"]),
             number(line["forced"] / line["rows"]), f"{percent_to_recognise(line):.2f}"] for line in recognition]
    return table(["instructions to read a row", "rows", "how it is written is recognised", "said by options",
                  "per cent to recognise it"], rows)


def outputs_of(outputs):
    return {line["name"]: line for line in outputs["formats"]}


def outputs_table(outputs):
    found = outputs_of(outputs)
    measures = ("seconds", "processor_seconds", "peak_mib")
    rows = [[name, number(line["file_mib"]), *(number(line[measure]) for measure in measures),
             " / ".join(number(line[measure] / found["text"][measure]) for measure in measures)]
            for name, line in found.items()]
    return table([f"list of {outputs['rows']} rows as", "MiB written", "seconds", "processor seconds", "peak MiB",
                  "all three to text"], rows)


def curves_of(results):
    """Benchmark to {size: ns per iteration}; the last argument is the size."""
    curves = {}
    for line in results["curves"]:
        family, _, size = line["name"].rpartition("/")
        curves.setdefault(family, {})[int(size)] = line["cpu_time"] * NANOSECONDS[line["time_unit"]]
    return {family: dict(sorted(curve.items())) for family, curve in curves.items()}


def worst_growth(curve):
    """The largest growth from one size to the next, as a multiple of what n log n allows."""
    sizes = list(curve)
    return max(curve[b] / curve[a] / (b * math.log2(b) / (a * max(math.log2(a), 1))) for a, b in zip(sizes, sizes[1:]))


def curves_table(results):
    rows = [[family, " / ".join(map(str, curve)), " / ".join(map(number, curve.values())), number(worst_growth(curve))]
            for family, curve in curves_of(results).items()]
    return table(["benchmark", "sizes", "ns", "growth to n log n"], rows)


def at_most(what, value, bound):
    return {"what": what, "measured": value, "bound": f"at most {bound}", "isMet": value <= bound}


def at_least(what, value, bound):
    return {"what": what, "measured": value, "bound": f"at least {bound}", "isMet": value >= bound}


def ratio_bounds(lengths, evaluate):
    """How the engine must compare with the limit, and at every size with each peer."""
    most = MOST_TIMES_LIMIT[TEXTS[lengths]]
    found = [at_most(f"engine to limit, {lengths}, geometric mean",
                     geometric_mean(ratios(evaluate, "engine", "limit")), most)]
    for name in peers(evaluate):
        ratio, size = min(zip(ratios(evaluate, name, "engine"), evaluate))
        wanted = 3 if name == "SQLite" else 1
        found.append(at_least(f"{name} to engine, {lengths}, at worst {size} rows", ratio, wanted))
    return found


def engine_bounds(evaluate):
    sizes = list(evaluate)
    engine = [evaluate[size]["engine"] for size in sizes]
    per_row = [time / size for time, size in zip(milliseconds(evaluate, "engine"), sizes)]
    free = max(e["freeMilliseconds"] * 1e6 / size for e, size in zip(engine, sizes))
    return [
        at_most(f"time per row at {sizes[-1]} to that at {sizes[0]}", per_row[-1] / per_row[0], 4),
        at_most("bytes of the result per details row", max(e["resultBytes"] for e in engine), 1200),
        at_most("bytes of a loaded row", max(e["rowBytes"] for e in engine), 1100),
        at_most("free the result, ns per row", free, 700),
    ]


def shapes_bounds(shapes):
    """The shape that is furthest from what it may take, or nearest to it."""
    worst = max((line for lines in shapes_of(shapes) for line in lines),
                key=lambda line: line["toPlain"] / line["allowed"])
    return [at_most(f"to plain by what is allowed, at worst {worst['program']}, {worst['rows']} rows",
                    worst["toPlain"] / worst["allowed"], 1)]


def threads_bounds(threads):
    one, two = threads[0], threads[1]
    return [at_least("reports per second of two threads to one", two["reportsPerSecond"] / one["reportsPerSecond"], 1.9),
            at_most("processor time per report of two threads to one",
                    two["processorMillisecondsOfEvaluation"] / one["processorMillisecondsOfEvaluation"], 1.1)]


def formulas_bounds(results):
    found = formulas_of(results)
    fastest = min((ns for name, ns in found.items() if name not in ("engine", "limit")), default=math.inf)
    return [at_most("formula: engine to limit", found["engine"] / found["limit"], 2),
            at_least("formula: fastest peer to engine", fastest / found["engine"], 1.5)]


def job_bounds(job, lengths):
    found = jobs_of(job, lengths)
    mekbom = found.pop("mekbom")
    wanted = {"sqlite3": 3.5, "pandas": 2.2}
    bounds_found = [at_least(f"whole job, {lengths}: {name} to mekbom", other["seconds"] / mekbom["seconds"],
                             wanted.get(name, 2)) for name, other in found.items()]
    if "pandas" in found:
        bounds_found.append(at_most(f"whole job, {lengths}: peak memory to that of pandas",
                                    mekbom["peak_mib"] / found["pandas"]["peak_mib"], 0.8))
    return bounds_found


def inputs_bounds(recognition):
    bounded = (line for line in recognition
               if line["rows"] == RECOGNISED_ROWS and line["name"] in ORDINARY_DIALECTS)
    worst = max(bounded, key=percent_to_recognise)
    return [at_most(f"recognise how {RECOGNISED_ROWS} rows are written, per cent of reading them, at worst "
                    + DIALECTS[worst["name"]], percent_to_recognise(worst), MOST_TO_RECOGNISE)]


def outputs_bounds(outputs):
    found = outputs_of(outputs)
    pandas = found.pop("pandas, xlsx", None)
    workbook = found.pop("xlsx")
    text = found.pop("text")
    seconds = "processor_seconds"
    bounds_found = [at_most(f"{name} to text", line[seconds] / text[seconds], 3) for name, line in found.items()]
    if pandas:
        bounds_found.append(at_least("workbook: pandas' writer to mekbom", pandas[seconds] / workbook[seconds], 5))
    return bounds_found


def bounds(results):
    found = []
    if "evaluate" in results:
        reports = results["evaluate"]["reports"]
        for lengths, evaluate in reports.items():
            found += ratio_bounds(lengths, evaluate)
        found += engine_bounds(reports[ROUND_LENGTHS])
        formula = max(share["computeNanoseconds"] for share in results["evaluate"]["formula share"].values())
        found.append(at_most("compute a formula per row, ns", formula, 25))
    if "shapes" in results:
        found += shapes_bounds(results["shapes"])
    if "threads" in results:
        found += threads_bounds(results["threads"])
    if "formulas" in results:
        found += formulas_bounds(results)
    if "job" in results:
        for lengths in TEXTS:
            found += job_bounds(results["job"], lengths)
    if results.get("inputs", {}).get("recognition"):
        found += inputs_bounds(results["inputs"]["recognition"])
    if "outputs" in results:
        found += outputs_bounds(results["outputs"])
    if "curves" in results:
        growths = {family: worst_growth(curve) for family, curve in curves_of(results).items()}
        worst = max(growths, key=growths.get)
        found.append(at_most(f"growth to n log n, at worst {worst}", growths[worst], SLOWEST_GROWTH))
    return found


def bounds_table(results):
    rows = [[bound["what"], number(bound["measured"]), bound["bound"], "met" if bound["isMet"] else "MISSED"]
            for bound in results["bounds"]]
    return table(["bound", "measured", "wanted", ""], rows)


def all_tables(results):
    machine = results["machine"]
    parts = [f"{machine['processor']}, {machine['processors']} processors, {machine['system']}, {machine['compiler']}"]
    if "evaluate" in results:
        for lengths, evaluate in results["evaluate"]["reports"].items():
            parts += [evaluate_table(lengths, evaluate), engine_table(lengths, evaluate)]
        parts.append(share_table(results["evaluate"]["formula share"]))
    if "shapes" in results:
        parts += [shapes_table(results["shapes"]), extremes_table(results["shapes"])]
    if "threads" in results:
        parts.append(threads_table(results["threads"]))
    if "formulas" in results:
        parts.append(formulas_table(results))
    if "job" in results:
        parts += [job_table(results["job"], lengths) for lengths in TEXTS]
    if "inputs" in results:
        parts.append(formats_table(results["inputs"]))
        if results["inputs"]["recognition"]:
            parts.append(recognition_table(results["inputs"]["recognition"]))
    if "outputs" in results:
        parts.append(outputs_table(results["outputs"]))
    if "curves" in results:
        parts.append(curves_table(results))
    return "\n\n".join([*parts, bounds_table(results)])
