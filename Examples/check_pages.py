#!/usr/bin/env python3
"""Works through pages of Docs as their readers would, and says what is not true in them.

    python3 Examples/check_pages.py path/to/mekbom PAGE...

A block of text under a line that ends in a file's name, as in "`list.json`:", is that file; "`teile.csv`, in
Windows-1252:" names its encoding, and "`parts.xlsx`, sheet `Parts`:" is a sheet of a workbook, written down as CSV.
Console blocks are runs of mekbom in the folder of these files, each "$ mekbom ..." followed by what it prints, standard
error last; "..." stands for lines left out, and "> FILE" at the end of a run writes that file. A run that fails must show
why. Other blocks of JSON are parts of a template above them. Every template must pass mekbom check without an error and
without a warning; a file of JSON that begins with a bracket is a parts list.

MEK_REWRITE_CASES=1 in the environment writes what is printed into the page instead. Read the difference.
"""

import csv
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

from check_readme import stands_in
from workbook_file import WorkbookFile

BLOCK = re.compile(r"(?:`([\w-]+\.\w+)`(?:, in ([\w-]+)|, sheet `(\w+)`)?:\n\n)?^```(\w+)\n(.*?)^```$",
                   re.MULTILINE | re.DOTALL)
RUN = re.compile(r"^(\$ mekbom .*\n)((?:(?!\$ ).*\n)*)", re.MULTILINE)


def run(mekbom, folder, line):
    """What the run of a line such as "$ mekbom demo > list.txt" shows, and whether it succeeded."""
    arguments, output = re.fullmatch(r"\$ mekbom (.*?)(?: > ([\w.-]+))?\n?", line).groups()
    done = subprocess.run([mekbom, *shlex.split(arguments)], cwd=folder, capture_output=True, encoding="utf-8")
    if output:
        (folder / output).write_text(done.stdout, encoding="utf-8")
    return ("" if output else done.stdout) + done.stderr, done.returncode == 0


def value_of(cell):
    """A number where the cell is one, as a spreadsheet program takes it."""
    try:
        return float(cell) if "." in cell else int(cell)
    except ValueError:
        return cell


class Page:
    """One page, worked through from top to bottom. `untrue` are its blocks that do not hold, `text` is what it should be."""

    def __init__(self, mekbom, path, folder):
        self.mekbom = mekbom
        self.folder = folder
        self.templates = []
        self.workbooks = {}     # by their names, the rows of each sheet
        self.untrue = []
        self.text = BLOCK.sub(self.read_block, path.read_text(encoding="utf-8"))

    def read_block(self, block):
        file, encoding, sheet, language, text = block.groups()
        if sheet:
            self.add_sheet(file, sheet, text)
        elif file:
            (self.folder / file).write_text(text, encoding=encoding or "utf-8")
        if language == "console":
            return block[0].replace(text, RUN.sub(self.read_run, text))
        if file and language == "json" and not text.startswith("["):
            self.templates.append(text)
            found = run(self.mekbom, self.folder, f"$ mekbom check {file}")[0]
            if re.search(r" (error|warning) MB", found):
                self.untrue.append(text + found)
        elif not file and language == "json" and not any(stands_in(stripped(text), stripped(template).split("\n"))
                                            for template in self.templates):
            self.untrue.append(text)
        return block[0]

    def add_sheet(self, file, name, text):
        rows = [[value_of(cell) for cell in row] for row in csv.reader(text.splitlines())]
        sheets = self.workbooks.setdefault(file, {})
        sheets[name] = rows
        with WorkbookFile(self.folder / file) as workbook:
            for sheet, cells in sheets.items():
                workbook.add_sheet(sheet, cells)

    def read_run(self, shown):
        command, wanted = shown.groups()
        printed, succeeded = run(self.mekbom, self.folder, command)
        tells_failure = succeeded or printed.splitlines()[-1] in wanted
        if tells_failure and (stands_in(wanted, printed.splitlines()) if wanted else not printed):
            return shown[0]
        self.untrue.append(shown[0] + "\nbut it prints\n" + printed)
        return command + printed


def stripped(text):
    return "\n".join(line.strip() for line in text.rstrip("\n").split("\n"))


def main(mekbom, *paths):
    mekbom = pathlib.Path(mekbom).resolve()
    wrong = 0
    for path in map(pathlib.Path, paths):
        with tempfile.TemporaryDirectory() as folder:
            page = Page(mekbom, path, pathlib.Path(folder))
        if os.environ.get("MEK_REWRITE_CASES") == "1":
            path.write_text(page.text, encoding="utf-8")
        for block in page.untrue:
            print(f"{path}: not true:\n{block}")
        wrong += len(page.untrue)
    return 1 if wrong else 0


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
