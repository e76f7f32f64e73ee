"""Tests of the Python package. MEKBOM_LIBRARY names the library, MEKBOM_SHARE the folder with the shipped lists.

    python3 test_mekbom.py [PROGRAM]      PROGRAM is mekbom, whose lists are compared
"""

import contextlib
import datetime
import decimal
import io
import json
import math
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import threading
import unittest

import mekbom

try:
    import pandas
except ImportError:
    pandas = None

PROGRAM = sys.argv.pop(1) if len(sys.argv) > 1 and not sys.argv[1].startswith("-") else None

ROWS = [{"Handle": "2A0", "Name": "HEA200", "Material": "S355", "Length": 6000.0, "Weight": 253.8},
        {"Handle": "2A1", "Name": "IPE360", "Material": "S235", "Length": 1524, "Weight": 87.0}]

BEAMS = {"title": "Beams", "equalLines": "count", "sections": [
    {"type": "kReportHeader", "children": [
        {"type": "kGroupHeader", "tuples": [{"token": "%GroupBy:%Material"}, {"token": "%SortAscBy:%Material"},
                                            {"token": "%Material"}],
         "children": [{"type": "kDetails", "tuples": [{"token": "%Name"}, {"token": "%Weight"}]}]},
        {"type": "kGroupFooter", "label": "Total", "tuples": [{"token": "%SumBy:%Weight"}]}]},
    {"type": "kReportFooter", "label": "All", "tuples": [{"token": "%SumBy:%Weight"}]}]}


def values_of(rows, **options):
    """The values of the ordinary lines of rows with a name and a weight."""
    return [line.values[1:] for line in mekbom.report(rows, BEAMS, **options).lines if line.role == "line"]


class ReportTest(unittest.TestCase):
    def test_lines_have_values_texts_and_handles(self):
        report = mekbom.report(ROWS, BEAMS)
        self.assertEqual("Beams", report.title)
        self.assertEqual(["Material", "Name", "Weight [kg]"], [column.heading for column in report.columns])
        self.assertEqual(7, len(report.lines))
        header, line, footer = report.lines[:3]
        self.assertEqual(("header", 1, ["S235", None, None]), (header.role, header.level, header.values))
        self.assertEqual(("line", [None, "IPE360", 87.0], ["2A1"]), (line.role, line.values, line.handles))
        self.assertEqual(("footer", "Total", [None, None, "87"]), (footer.role, footer.label, footer.shown))
        self.assertEqual(340.8, report.lines[-1].values[2])
        self.assertEqual(["2A1", "2A0"], report.handles(len(report.lines) - 1))
        self.assertEqual(["2A1", "2A0"], report.handles(-1))
        with self.assertRaises(IndexError):
            report.handles(len(report.lines))

    def test_lines_are_a_sequence(self):
        lines = mekbom.report([{"Name": f"P{i}", "Weight": i} for i in range(10000)], BEAMS).lines
        self.assertEqual(10003, len(lines))
        self.assertEqual([line.line for line in lines], list(range(10003)))
        self.assertEqual(lines[4097], lines[-5906])
        self.assertEqual([5000, 5001], [line.line for line in lines[5000:5002]])
        with self.assertRaises(IndexError):
            lines[10003]

    def test_units_and_other_options_are_those_of_the_program(self):
        report = mekbom.report(ROWS, BEAMS, unit={"weight": "lb/1"}, where="%Weight > 100 kg")
        line = next(line for line in report.lines if line.role == "line")
        self.assertEqual("Weight [lb]", report.columns[2].heading)
        self.assertEqual("559.5", line.shown[2])
        self.assertAlmostEqual(253.8 / 0.45359237, line.values[2])

    def test_a_report_outlives_its_session_and_others(self):
        line = mekbom.report(ROWS, BEAMS).lines
        mekbom.report(ROWS[:1], BEAMS, units="imperial")
        self.assertEqual(340.8, line[-1].values[2])

    def test_each_format_is_written(self):
        report = mekbom.report(ROWS, BEAMS)
        self.assertEqual(b"PK", report.to_bytes("xlsx")[:2])
        self.assertEqual("mekbom-list", json.loads(report.to_bytes("json"))["format"])
        self.assertTrue(str(report).startswith("Beams\n"))
        with tempfile.TemporaryDirectory() as folder:
            for name in "list.txt", "list.csv", "list.html", "list.xlsx", "list.json":
                report.write(pathlib.Path(folder, name))
                self.assertGreater(os.path.getsize(os.path.join(folder, name)), 50)
            self.assertEqual(5, len(os.listdir(folder)))
            with self.assertRaisesRegex(mekbom.ReportError, "pdf"):
                report.write(pathlib.Path(folder, "list.pdf"))
            self.assertEqual(5, len(os.listdir(folder)))

    def test_a_list_may_be_chosen_by_its_columns(self):
        self.assertEqual("Cutting list", mekbom.report(ROWS).title)
        self.assertEqual("Parts list", mekbom.report(ROWS, "parts-list").title)

    def test_rows_that_are_merged_away_are_told(self):
        template = {**BEAMS, "equalLines": "merge"}
        report = mekbom.report([{"Handle": "1", "Name": "A", "Weight": 5}, {"Handle": "2", "Name": "A", "Weight": 5}],
                               template, allow=["MB307"])
        line = next(line for line in report.lines if line.role == "line")
        self.assertEqual((["1"], ["2"]), (line.handles, line.merged_handles))

    def test_reports_are_made_on_several_threads(self):
        results = []
        options = [{"unit": {"weight": "kg/1"}}, {"unit": {"weight": "lb/1"}}] * 4
        threads = [threading.Thread(target=lambda option=option: results.append(
            (option["unit"]["weight"], mekbom.report(ROWS, BEAMS, **option).lines[-1].shown[2]))) for option in options]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual([("kg/1", "340.8")] * 4 + [("lb/1", "751.3")] * 4, sorted(results))


class ValueTest(unittest.TestCase):
    def test_numbers_keep_all_their_digits(self):
        self.assertEqual([["A", 0.1 + 0.2]], values_of([{"Name": "A", "Weight": 0.1 + 0.2}]))

    def test_nothing_is_none_or_nan_or_empty(self):
        for nothing in None, math.nan, "":
            self.assertEqual([["A", None]], values_of([{"Name": "A", "Weight": nothing}]))

    def test_rows_may_lack_headings(self):
        rows = [{"Name": "A"}, {"Weight": 5, "Material": "S235"}]
        self.assertEqual([["A", None], [None, 5]], values_of(rows))

    def test_texts_may_carry_units(self):
        self.assertEqual([["A", 45.359237]], values_of([{"Name": "A", "Weight": "100 lb"}]))

    def test_numbers_are_texts_where_texts_are_meant(self):
        self.assertEqual([["12", 1], ["12345678901234567890", 1]],
                         values_of([{"Name": 12, "Weight": 1}, {"Name": 12345678901234567890, "Weight": 1}]))

    def test_whole_numbers_are_never_changed(self):
        largest_exact = 2**53
        self.assertEqual([[str(largest_exact), 1], [str(largest_exact + 1), 1]],
                         values_of([{"Name": largest_exact, "Weight": 1}, {"Name": largest_exact + 1, "Weight": 1}]))

    def test_other_values_are_their_texts(self):
        rows = [{"Name": datetime.date(2026, 11, 22), "Weight": decimal.Decimal("2.5")}]
        self.assertEqual([["2026-11-22", 2.5]], values_of(rows))

    def test_what_is_no_text_is_refused_with_its_place(self):
        for text in "A\0B", "\ud800":
            with self.assertRaisesRegex(ValueError, 'column "Name", row 2'):
                values_of([{"Name": "A", "Weight": 1}, {"Name": text, "Weight": 1}])


class MistakeTest(unittest.TestCase):
    def test_a_cell_that_is_no_number_is_told_with_its_row(self):
        with self.assertRaises(mekbom.ReportError) as raised:
            mekbom.report([*ROWS, {"Name": "RHS", "Weight": "heavy"}], BEAMS)
        self.assertEqual("error", raised.exception.findings[0].severity)
        self.assertIn('rows: row 3: column "Weight": found "heavy"', str(raised.exception))

    def test_options_are_checked(self):
        with self.assertRaisesRegex(mekbom.ReportError, '"unit"'):
            mekbom.report(ROWS, BEAMS, untis="metric")
        with self.assertRaisesRegex(mekbom.ReportError, "parsecs"):
            mekbom.report(ROWS, BEAMS, unit={"length": "parsecs"})

    def test_parts_and_templates_of_other_types_are_refused(self):
        with self.assertRaises(TypeError):
            mekbom.report([1, 2], BEAMS)
        with self.assertRaises(FileNotFoundError):
            mekbom.report(ROWS, "no-such-list.json")

    def test_a_list_of_nothing_is_empty(self):
        self.assertEqual([], list(mekbom.report([], BEAMS).lines))

    def test_what_are_no_rows_of_texts_and_numbers_is_refused(self):
        for parts in [{1: "A"}], {"Name": ["A"]}, [{"Name": b"A"}]:
            with self.assertRaises(TypeError):
                mekbom.report(parts, BEAMS)
        with self.assertRaisesRegex(mekbom.ReportError, "rows without a column"):
            mekbom.report([{}, {}], BEAMS)
        with self.assertRaisesRegex(ValueError, "zero"):
            mekbom.report(ROWS, BEAMS).to_bytes("text\0")

    def test_check_finds_mistakes_without_parts(self):
        self.assertEqual([], [str(finding) for finding in mekbom.check("cutting-list")])
        findings = mekbom.check({"sections": [{"type": "kDetails", "tuples": [{"token": "%Nmae"}]}]})
        self.assertIn("%Nmae", findings[0].message)
        self.assertEqual("template", findings[0].source)

    def test_warnings_stand_beside_a_report(self):
        template = {key: value for key, value in BEAMS.items() if key != "equalLines"}
        self.assertIn("MB106", [finding.code for finding in mekbom.report(ROWS, template).findings])

    def test_describe_tells_what_there_is(self):
        self.assertIn("%Weight", [entry.get("token") for entry in mekbom.describe("tokens")])
        self.assertIn("xlsx", mekbom.describe("formats"))
        with self.assertRaises(ValueError):
            mekbom.describe("colours")


class ProgressTest(unittest.TestCase):
    def test_progress_is_told(self):
        steps = []
        mekbom.report(ROWS, BEAMS, progress=lambda step, rows: steps.append(step))
        self.assertEqual({"reading", "evaluating"}, set(steps))

    def test_a_report_can_be_stopped(self):
        with self.assertRaises(mekbom.Stopped):
            mekbom.report(ROWS, BEAMS, progress=lambda step, rows: step != "evaluating")

    def test_what_progress_raises_is_raised(self):
        def fail(step, rows):
            raise KeyboardInterrupt

        with self.assertRaises(KeyboardInterrupt):
            mekbom.report(ROWS, BEAMS, progress=fail)


@unittest.skipIf(pandas is None, "pandas is not installed")
class FrameTest(unittest.TestCase):
    def test_a_frame_gives_what_its_rows_give(self):
        frame = pandas.DataFrame(ROWS)
        self.assertEqual(str(mekbom.report(ROWS, BEAMS)).splitlines(), str(mekbom.report(frame, BEAMS)).splitlines())

    def test_every_dtype_is_read(self):
        frame = pandas.DataFrame({
            "Name": pandas.Categorical(["A", "B", None]), "Weight": pandas.array([1, None, 3], dtype="Int64"),
            "Length": pandas.Series([1.5, None, 2], dtype="float32"), "PNum": pandas.array(["x", None, "z"], "string"),
            "Phase": [1, 2, 3]})
        template = {"columns": [], "sections": [{"type": "kDetails", "tuples": [
            {"token": token} for token in ("%Name", "%Weight", "%Length", "%PNum", "%Phase")]}]}
        self.assertEqual([["A", 1, 1.5, "x", "1"], ["B", None, None, None, "2"], [None, 3, 2, "z", "3"]],
                         [line.values for line in mekbom.report(frame, template).lines])

    def test_numbers_that_lie_apart_are_read(self):
        rows = pandas.DataFrame([[1.5, 2.5], [3.5, 4.5]], columns=["Length", "Weight"])  # kept row by row
        template = {"sections": [{"type": "kDetails", "tuples": [{"token": "%Length"}, {"token": "%Weight"}]}]}
        for frame in rows, pandas.concat([rows, rows])[::3], rows.astype(">f8"), rows.astype("float16"):
            with self.subTest(frame):
                self.assertEqual(frame.values.tolist(), [line.values for line in mekbom.report(frame, template).lines])

    def test_headings_of_a_frame_are_texts(self):
        with self.assertRaisesRegex(TypeError, "0"):
            mekbom.report(pandas.DataFrame([[1, 2]]), BEAMS)

    def test_sparse_columns_are_read(self):
        frame = pandas.DataFrame({"Name": ["A", "B"], "Weight": pandas.arrays.SparseArray([1.5, 0])})
        self.assertEqual([["A", 1.5], ["B", 0]], values_of(frame))

    def test_two_columns_of_one_heading_are_refused(self):
        with self.assertRaisesRegex(ValueError, "same heading"):
            mekbom.report(pandas.DataFrame([[1, 2]], columns=["Name", "Name"]), BEAMS)

    def test_lines_become_a_frame_that_adds_up(self):
        frame = mekbom.report(ROWS, BEAMS).to_dataframe()
        self.assertEqual(["Material", "Name", "Weight [kg]"], list(frame.columns))
        self.assertEqual([["S235", "IPE360", 87.0], ["S355", "HEA200", 253.8]], frame.values.tolist())
        self.assertEqual(340.8, frame["Weight [kg]"].sum())

    def test_lines_behind_a_group_do_not_get_its_values(self):
        rows = [{"Name": "A", "Material": "S355", "Weight": 1}, {"Name": "B", "Weight": 2}]
        frame = mekbom.report(rows, BEAMS).to_dataframe()
        self.assertEqual([[None, "B", 2.0], ["S355", "A", 1.0]], frame.values.tolist())

    def test_feet_and_inches_become_feet(self):
        template = {"sections": [{"type": "kDetails", "tuples": [{"token": "%Name"}, {"token": "%Length"}]}]}
        frame = mekbom.report(ROWS[1:], template, units="imperial").to_dataframe()
        self.assertEqual(["Name", "Length [ft]"], list(frame.columns))
        self.assertEqual(5, frame["Length [ft]"][0])

    def test_an_empty_report_is_an_empty_frame(self):
        frame = mekbom.report(ROWS, BEAMS, where="%Weight > 1 t").to_dataframe()
        self.assertEqual((0, 3), frame.shape)


class DocsTest(unittest.TestCase):
    def test_the_manual_shows_what_happens(self):
        text = (pathlib.Path(__file__).parents[2] / "Docs" / "PYTHON.md").read_text(encoding="utf-8")
        blocks = re.findall(r"```python\n(.*?)```", text, re.DOTALL)
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            exec("\n".join(blocks), {})
        shown = re.findall(r"^# (.*)$", "\n".join(blocks), re.MULTILINE)
        self.assertEqual(3, len(shown))
        self.assertEqual(shown, printed.getvalue().splitlines()[-len(shown):])


@unittest.skipIf(PROGRAM is None, "the program is not named")
class ProgramTest(unittest.TestCase):
    def test_lists_are_those_of_the_program(self):
        data = pathlib.Path(os.environ["MEKBOM_SHARE"], "hall.csv")
        for name in mekbom._report._library.SHIPPED_LISTS:
            for options, arguments in ({}, []), ({"units": "imperial"}, ["--units", "imperial"]):
                printed = subprocess.run([PROGRAM, "report", "--data", data, "--template", name, "--no-config", *arguments],
                                         check=True, capture_output=True, text=True).stdout
                self.assertEqual(printed, str(mekbom.report(data, name, **options)), name)

    def test_it_is_of_the_same_version(self):
        printed = subprocess.run([PROGRAM, "--version"], check=True, capture_output=True, text=True).stdout
        self.assertIn(mekbom.version(), printed)


if __name__ == "__main__":
    unittest.main()
