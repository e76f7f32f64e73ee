#!/usr/bin/env python3
"""Opens pages of lists in a headless Chromium and uses them as a reader would: searches, sorts, closes groups, prints.

    check_pages.py MEKBOM EXAMPLES [REAL_DATA]

Ends with 77, which counts as skipped, where there is no Chromium. What text there is on printed sheets is looked at only
where pdftotext is.
"""

import json
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest

from browser import Browser, find_browser

SKIPPED = 77
SHAPES = pathlib.Path(__file__).resolve().parents[2] / "Reports" / "Shapes"
PROGRAM, EXAMPLES, *REAL_DATA = sys.argv[1:]

# The rows that are seen, as texts of their cells joined by "|".
ROWS = """[...document.querySelectorAll('.list tbody tr')].filter(row => row.checkVisibility())
    .map(row => [...row.cells].map(cell => cell.textContent.trim()).join('|').replace(/\\|+$/, ''))"""
STATUS = "document.querySelector('.status').textContent"

MARKS = """PNum,Name,Material,Quantity,Length [mm],Weight [kg]
B10,HEA200,S355,1,1828.8,100
B2,HEA200,S355,2,152.4,1000
B1,IPE360,S235,1,12192,9.5
b3,IPE360,S235,1,,-20
"""
BY_PROFILE = {
    "title": "</script><script>alert(1)</script>",
    "equalLines": "keep",
    "columns": [{"token": "%Name", "label": "Profile"}, {"token": "%PNum", "label": "Mark"},
                {"token": "%Length", "label": "Length"}, {"token": "%Weight", "label": "<i>Weight</i>"}],
    "sections": [
        {"type": "kReportHeader", "children": [
            {"type": "kGroupHeader", "tuples": [{"token": "%GroupBy:%Name"}, {"token": "%SortAscBy:%Name"},
                                                {"token": "%Name"}],
             "children": [{"type": "kDetails", "tuples": [{"token": "%PNum"}, {"token": "%Length"},
                                                          {"token": "%Weight"}]}]},
            {"type": "kGroupFooter", "label": "Sum", "tuples": [{"token": "%SumBy:%Weight"}]}]},
        {"type": "kReportFooter", "label": "Total", "tuples": [{"token": "%SumBy:%Weight"}]}],
}


class Lists:
    """Pages that the program writes, in a folder of their own."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def write(self, name, *arguments):
        path = self.folder / (name + ".html")
        run = subprocess.run([PROGRAM, "report", *map(str, arguments), "-o", path], capture_output=True, encoding="utf-8")
        if run.returncode != 0:
            raise RuntimeError(run.stderr)
        return path

    def file(self, name, text):
        path = self.folder / name
        path.write_text(text, encoding="utf-8")
        return path

    def of_lines(self, number):
        rows = "".join(f"P{i},PL{i % 7},S235,{i % 5 + 1},{i * 7919 % 10007},1\n" for i in range(number))
        data = self.file("long.csv", MARKS.splitlines()[0] + "\n" + rows)
        return self.write("long", "--data", data, "--template", "parts-list")

    def by_profile(self, *options, template=None):
        return self.write("marks", "--data", self.file("marks.csv", MARKS), "--allow", "MB209", "--template",
                          self.file("list.json", json.dumps(template or BY_PROFILE)), *options)


class PageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="mekbom-pages-")
        self.addCleanup(folder.cleanup)
        self.lists = Lists(folder.name)

    def open(self, path, **options):
        self.page = BROWSER.open(path, **options)
        return self.page

    def rows(self):
        return self.page.evaluate(ROWS)

    def marks(self):
        return [row.split("|")[1] for row in self.rows() if re.match(r"\|[Bb]\d", row)]

    def status(self):
        return self.page.evaluate(STATUS)

    def search(self, text, column=-1):
        self.page.evaluate(f"""(() => {{ const [text, column] = document.querySelectorAll('.tools input, .tools select');
            column.value = {column}; text.value = ''; text.focus(); }})()""")
        self.page.type(text)
        self.page.evaluate("new Promise(resolve => setTimeout(resolve, 200))")  # a search waits for the next letter

    def sort_by(self, column):
        self.page.click(f".list thead th:nth-child({column}) button")


class ReadingTest(PageTest):
    def test_a_page_loads_nothing_and_nobody_complains(self):
        page = self.open(self.lists.by_profile())
        self.assertEqual("4 lines.", self.status())
        self.assertEqual([], page.complaints())
        self.assertEqual(1, len(page.requests()))

    def test_texts_of_the_list_are_shown_as_they_are(self):
        page = self.open(self.lists.by_profile())
        self.assertEqual(BY_PROFILE["title"], page.evaluate("document.title"))
        self.assertEqual(BY_PROFILE["title"], page.evaluate("document.querySelector('h1').textContent"))
        self.assertEqual("<i>Weight</i> [kg]", page.evaluate("document.querySelector('th:nth-child(4)').textContent"))

    def test_the_page_follows_the_reader_into_the_dark_and_paper_does_not(self):
        colour = "getComputedStyle(document.body).backgroundColor"
        light = self.open(self.lists.by_profile()).evaluate(colour)
        page = self.open(self.lists.by_profile(), dark=True)
        self.assertNotEqual(light, page.evaluate(colour))
        page.call("Emulation.setEmulatedMedia", media="print",
                  features=[{"name": "prefers-color-scheme", "value": "dark"}])
        self.assertEqual(light, page.evaluate(colour))

    def test_a_phone_needs_no_scrolling_across(self):
        for path in (self.lists.by_profile(), self.lists.write("hall", "--data", "hall", "--template", "cutting-list")):
            page = self.open(path, width=390, height=844)
            self.assertLessEqual(page.evaluate("document.scrollingElement.scrollWidth"), 390)
        label = "getComputedStyle(document.querySelector('tbody td:nth-child(3)'), '::before').content"
        self.assertEqual('"Length [mm]"', page.evaluate(label))

    def roles(self, path, width):
        nodes = self.open(path, width=width).call("Accessibility.getFullAXTree")["nodes"]
        return [node["role"]["value"] for node in nodes if not node["ignored"]]

    def test_readers_of_screens_find_a_table(self):
        for width in (390, 1200):
            roles = self.roles(self.lists.by_profile(), width)
            for role in ("table", "row", "cell", "rowheader", "status", "searchbox"):
                self.assertIn(role, roles, width)
            self.assertEqual(4, roles.count("columnheader"), width)

    def test_readers_of_screens_find_one_in_a_long_list_too(self):
        roles = self.roles(self.lists.of_lines(2500), 1200)
        self.assertEqual(1, roles.count("table"))
        self.assertEqual(8, roles.count("columnheader"))
        self.assertGreater(roles.count("row"), 100)  # at least those of the body that is laid out


class SearchTest(PageTest):
    def test_found_lines_stand_with_their_groups_and_totals_say_of_what_they_are(self):
        self.open(self.lists.by_profile())
        self.search("b2")
        self.assertEqual(["HEA200", "|B2|152.4|1000", "Sum|||1100", "Total|||1089.5"], self.rows())
        self.assertEqual("1 of 4 lines shown; totals are of all lines.", self.status())
        label = "getComputedStyle(document.querySelector('tr.f0 th'), '::after').content"
        self.assertEqual('" (all lines)"', self.page.evaluate(label))

    def test_a_line_is_found_by_its_group_too(self):
        self.open(self.lists.by_profile())
        self.search("ipe b")
        self.assertEqual(["B1", "b3"], self.marks())

    def test_totals_find_no_lines(self):
        self.open(self.lists.by_profile())
        self.search("1089.5")
        self.assertEqual([], self.rows())
        self.assertEqual("0 of 4 lines shown; totals are of all lines.", self.status())

    def test_one_column_can_be_searched(self):
        self.open(self.lists.by_profile())
        self.search("100", column=3)
        self.assertEqual(["B10", "B2"], self.marks())
        self.search("1", column=1)
        self.assertEqual(["B10", "B1"], self.marks())


class SortTest(PageTest):
    def test_lines_are_sorted_within_their_groups_and_come_back(self):
        self.open(self.lists.by_profile())
        before = self.rows()
        self.sort_by(2)
        self.assertEqual(["B2", "B10", "B1", "b3"], self.marks())
        self.assertEqual("4 lines; sorted by Mark.", self.status())
        self.sort_by(2)
        self.assertEqual(["B10", "B2", "b3", "B1"], self.marks())
        self.sort_by(2)
        self.assertEqual(before, self.rows())

    def test_groups_are_sorted_by_their_totals_and_stay_whole(self):
        self.open(self.lists.by_profile())
        self.sort_by(4)
        self.assertEqual(["IPE360", "|b3||-20", "|B1|12192|9.5", "Sum|||-10.5", "HEA200", "|B10|1828.8|100",
                          "|B2|152.4|1000", "Sum|||1100", "Total|||1089.5"], self.rows())

    def test_feet_and_inches_are_sorted_as_lengths_and_what_is_missing_comes_last(self):
        self.open(self.lists.by_profile("--units", "imperial"))
        self.sort_by(3)
        self.assertEqual(["B2", "B10", "B1", "b3"], self.marks())
        self.sort_by(3)
        self.assertEqual(["B10", "B2", "B1", "b3"], self.marks())

    def test_the_keyboard_sorts_and_the_heading_says_how(self):
        page = self.open(self.lists.by_profile())
        heading = "document.querySelector('.list thead th:nth-child(2)')"
        page.evaluate(heading + ".firstChild.focus()")
        for order in ("ascending", "descending", None):
            page.press("Enter")
            self.assertEqual(order, page.evaluate(heading + ".getAttribute('aria-sort')"))

    def test_a_search_stays_as_it_is(self):
        self.open(self.lists.by_profile())
        self.search("b1")
        self.sort_by(2)
        self.assertEqual(["B10", "B1"], self.marks())
        self.assertEqual("2 of 4 lines shown; sorted by Mark; totals are of all lines.", self.status())


class GroupTest(PageTest):
    def test_a_closed_group_keeps_its_heading_and_its_total(self):
        page = self.open(self.lists.by_profile())
        page.click(".fold")
        self.assertEqual(["HEA200", "Sum|||1100"], self.rows()[:2])
        self.assertEqual("2 of 4 lines shown; 1 of 2 groups closed; totals are of all lines.", self.status())
        self.assertEqual("false", page.evaluate("document.querySelector('.fold').getAttribute('aria-expanded')"))
        page.click(".fold")
        self.assertEqual("4 lines.", self.status())

    def test_all_groups_close_and_open(self):
        page = self.open(self.lists.by_profile())
        page.click(".tools button")
        self.assertEqual([], self.marks())
        page.evaluate("document.querySelector('.tools button').focus()")
        page.press("Enter")
        self.assertEqual(4, len(self.marks()))

    def test_a_search_opens_what_it_finds(self):
        page = self.open(self.lists.by_profile())
        page.click(".tools button")
        self.search("b2")
        self.assertEqual(["B2"], self.marks())

    def test_a_list_without_groups_has_nothing_to_close(self):
        page = self.open(self.lists.write("bolts", "--data", "hall", "--template", "bolt-list"))
        self.assertTrue(page.evaluate("document.querySelector('.tools button').hidden"))
        self.assertEqual([], page.complaints())


class LongListTest(PageTest):
    def test_every_line_is_there_whatever_is_laid_out(self):
        page = self.open(self.lists.of_lines(20000))
        self.assertEqual("20000 lines.", self.status())
        self.sort_by(5)
        lengths = page.evaluate("""[...document.querySelectorAll('tbody tr:not([class])')]
            .map(row => Number(row.cells[4].textContent))""")
        self.assertEqual(sorted(i * 7919 % 10007 for i in range(20000)), sorted(lengths))
        self.assertEqual(sorted(lengths), lengths)
        self.search("p777 ")
        self.assertEqual("11 of 20000 lines shown; sorted by Length [mm]; totals are of all lines.", self.status())


class PaperTest(PageTest):
    def printed(self, path):
        pdf = path.with_suffix(".pdf")
        page = self.open(path)
        page.pdf(pdf)
        return pdf

    def texts(self, pdf):
        if not shutil.which("pdftotext"):
            self.skipTest("no pdftotext: apt-get install poppler-utils")
        text = subprocess.run(["pdftotext", "-layout", pdf, "-"], check=True, capture_output=True, encoding="utf-8").stdout
        return text.split("\f")[:-1]

    def test_a_long_list_takes_several_sheets(self):
        pdf = self.printed(self.lists.write("parts", "--data", "hall", "--template", "assembly-list"))
        self.assertGreater(len(re.findall(rb"/Type\s*/Page\b", pdf.read_bytes())), 1)

    def test_headings_stand_on_every_sheet_of_the_list(self):
        sheets = self.texts(self.printed(self.lists.write("parts", "--data", "hall", "--template", "assembly-list")))
        for number, sheet in enumerate(sheets, 1):
            self.assertRegex(sheet, f"{number} ?/ ?{len(sheets)}")
            self.assertIn("Assembly list", sheet)
            if "by group" not in sheets[number - 2] and number < len(sheets):
                self.assertIn("Profile", sheet)

    def test_page_sections_stand_on_every_sheet(self):
        header, footer = BY_PROFILE["sections"]
        page = [dict(header, type="kPageHeader"), dict(footer, type="kPageFooter")]
        template = dict(BY_PROFILE, sections=[{"type": "kReportHeader", "children": page}])
        rows = "".join(f"B{i},HEA200,S355,1,{i},1\n" for i in range(200))
        data = self.lists.file("many.csv", MARKS.splitlines()[0] + "\n" + rows)
        sheets = self.texts(self.printed(self.lists.write(
            "many", "--data", data, "--allow", "MB209", "--template", self.lists.file("page.json", json.dumps(template)))))
        self.assertGreater(len(sheets), 2)
        for sheet in sheets:
            self.assertIn("Of the whole list, not of this page", sheet)


class ShapesTest(PageTest):
    """The lists of one peculiarity each, of which JSON has the same texts."""

    def shapes(self):
        for command in sorted(SHAPES.glob("*/command.txt")):
            words = shlex.split(command.read_text(encoding="utf-8").replace("{here}", str(command.parent)))
            outputs = [self.lists.folder / f"list.{ending}" for ending in ("html", "json", "csv")]
            run = subprocess.run([PROGRAM, *words, *(word for path in outputs for word in ("-o", path))],
                                 capture_output=True, encoding="utf-8", check=False)
            self.assertIn(run.returncode, (0, 1), run.stderr)
            yield command.parent.name, outputs[0], json.loads(outputs[1].read_text(encoding="utf-8"))

    def shown(self, node):
        """All texts and labels of the lines in it."""
        for section in (node, node.get("header", {}), node.get("footer", {})):
            yield from [text for text in (section.get("label"), *section.get("shown", [])) if text]
        for inside in node.get("groups") or node.get("lines") or []:
            yield from self.shown(inside)

    def test_a_page_shows_what_json_has(self):
        cells = """[...document.querySelectorAll('.list tr:not(.on-paper) > :not([scope=col])')]
            .map(cell => cell.textContent)"""
        number = 0
        for name, path, document in self.shapes():
            page = self.open(path)
            self.assertEqual([], page.complaints(), name)
            self.assertEqual(1, len(page.requests()), name)
            texts = sorted(text.strip() for text in self.shown(document))
            texts = [re.sub("[\x00-\x08\x0b-\x1f]", "\ufffd", text) for text in texts]
            self.assertEqual(texts, sorted(text.strip() for text in page.evaluate(cells) if text), name)
            number += 1
        self.assertGreater(number, 5)


class RealDataTest(PageTest):
    @unittest.skipUnless(REAL_DATA and REAL_DATA[0], "no real data")
    def test_every_list_of_the_frame_is_a_page(self):
        frame = pathlib.Path(REAL_DATA[0]) / "steel-frame.csv"
        for template in ("cutting-list", "assembly-list", "bolt-list", "parts-list"):
            for units in ("metric", "imperial"):
                page = self.open(self.lists.write("frame", "--data", frame, "--template", template, "--units", units,
                                                  "--input-unit", "%Paint=m2"))
                self.assertEqual([], page.complaints())
                self.assertRegex(self.status(), r"^\d+ lines\.$")
                before = self.rows()
                for column in range(1, page.evaluate("document.querySelectorAll('thead th').length") + 1):
                    self.sort_by(column)
                    self.assertEqual(sorted(before), sorted(self.rows()))


if __name__ == "__main__":
    program = find_browser()
    if program is None:
        print("skipped: no Chromium to open pages with: apt-get install chromium")
        sys.exit(SKIPPED)
    with Browser(program) as BROWSER:
        unittest.main(argv=sys.argv[:1], verbosity=1)
