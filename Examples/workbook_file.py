"""Writes workbooks (.xlsx) of plain cells: texts, numbers and errors, as spreadsheet programs store them.

    with WorkbookFile("parts.xlsx") as workbook:
        workbook.add_sheet("Parts", [["Mark", "Weight [kg]"], ["B1", 134.4], ["B2", "#DIV/0!"]])

Rows may come one at a time, as many as there are; of texts, each different one stays in memory.
"""

import zipfile
from xml.sax.saxutils import escape

XML = '<?xml version="1.0" encoding="UTF-8"?>\n'
MAIN = 'xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"'
RELATIONS = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PACKAGE = "http://schemas.openxmlformats.org/package/2006/relationships"


def relations(targets):
    """What a part refers to: its targets by their kinds, numbered from 1."""
    entries = (f'<Relationship Id="rId{number}" Type="{RELATIONS}/{kind}" Target="{target}"/>'
               for number, (target, kind) in enumerate(targets.items(), start=1))
    return f'{XML}<Relationships xmlns="{PACKAGE}">{"".join(entries)}</Relationships>'


class WorkbookFile:
    def __init__(self, path):
        self.archive = zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=1)
        self.sheets = []
        self.texts = {}     # each with its number

    def __enter__(self):
        return self

    def __exit__(self, *_):
        with self.archive.open("xl/sharedStrings.xml", "w", force_zip64=True) as file:
            file.write(f"{XML}<sst {MAIN}>".encode())
            for text in self.texts:
                file.write(f'<si><t xml:space="preserve">{escape(text)}</t></si>'.encode())
            file.write(b"</sst>")
        sheets = "".join(f'<sheet name="{escape(name)}" sheetId="{number}" r:id="rId{number}"/>'
                         for number, name in enumerate(self.sheets, start=1))
        self.archive.writestr("xl/workbook.xml",
                              f'{XML}<workbook {MAIN} xmlns:r="{RELATIONS}"><sheets>{sheets}</sheets></workbook>')
        targets = {f"worksheets/sheet{number}.xml": "worksheet" for number in range(1, len(self.sheets) + 1)}
        self.archive.writestr("xl/_rels/workbook.xml.rels",
                              relations({**targets, "sharedStrings.xml": "sharedStrings"}))
        self.archive.writestr("_rels/.rels", relations({"xl/workbook.xml": "officeDocument"}))
        self.archive.close()

    def add_sheet(self, name, rows):
        """Each row is a list of texts and numbers; of empty texts there is no cell."""
        self.sheets.append(name)
        with self.archive.open(f"xl/worksheets/sheet{len(self.sheets)}.xml", "w", force_zip64=True) as file:
            file.write(f"{XML}<worksheet {MAIN}><sheetData>".encode())
            for number, row in enumerate(rows, start=1):
                cells = "".join(self.cell(chr(ord("A") + column), number, value)
                                for column, value in enumerate(row) if value != "")
                file.write(f'<row r="{number}">{cells}</row>'.encode())
            file.write(b"</sheetData></worksheet>")

    def cell(self, column, row, value):
        if not isinstance(value, str):
            return f'<c r="{column}{row}"><v>{value}</v></c>'
        if value.startswith("#"):
            return f'<c r="{column}{row}" t="e"><v>{value}</v></c>'
        return f'<c r="{column}{row}" t="s"><v>{self.texts.setdefault(value, len(self.texts))}</v></c>'
