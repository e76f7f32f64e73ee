#!/usr/bin/env python3
"""Writes hall.csv, the parts list of a portal-frame hall, from its geometry and the masses of its profiles.

    python3 Examples/generate_hall.py            writes hall.csv beside this file
    python3 Examples/generate_hall.py --check    exit status 1 when the file is not what would be written

The hall: 8 frames 6 m apart, 24 m wide, 6 m to the eaves, roof at 6 degrees. Frames 1 and 8 are lighter, and posts
stand under their rafters; bays 1 and 7 carry the wind bracing. Plan, columns as C, gable posts as G:

    frame    1   2   3   4   5   6   7   8
             C---C---C---C---C---C---C---C    eaves
             G                           G
             G                           G    ridge
             G                           G
             C---C---C---C---C---C---C---C    eaves

Every member and plate is a row of its own, as a model holds them; bolts are one row per group. Marks follow from what
a part is: equal parts carry equal marks, and so do equal assemblies. Lengths are whole millimetres, weights whole 10
grams, surfaces whole 10 cm2, as a shop would write them, and taken before notches and holes are cut.
"""

import csv
import io
import math
import pathlib
import sys
from collections import Counter
from typing import NamedTuple

# Geometry, in mm.
SPAN, BAY, FRAMES, EAVES = 24000, 6000, 8, 6000
SLOPE = math.radians(6)
PURLIN_LINES = 6        # on each side of the ridge
RAIL_LINES = 3          # on every wall
POST_SPACING = BAY      # gable posts, between the corner columns
GABLE_OVERHANG = 150    # of the purlins
GAP = 10                # between the ends of members in line
STEEL = 7.85e-6         # kg per mm3


class Section(NamedTuple):
    """A profile: kg and m2 per metre; depth, width, web and flange in mm (0 where no part is cut to them)."""
    name: str
    mass: float
    surface: float
    h: float = 0
    b: float = 0
    tw: float = 0
    tf: float = 0


# Nominal values of the European section tables.
IPE240 = Section("IPE240", 30.7, 0.922, 240, 120, 6.2, 9.8)
IPE360 = Section("IPE360", 57.1, 1.353, 360, 170, 8.0, 12.7)
IPE450 = Section("IPE450", 77.6, 1.605, 450, 190, 9.4, 14.6)
HEA200 = Section("HEA200", 42.3, 1.136, 190, 200, 6.5, 10.0)
SHS120 = Section("SHS120*4", 14.4, 0.470, 120, 120)


def cold_formed(name, strip, thick):
    """A section bent from a strip: its mass and surface are those of the strip."""
    return Section(name, strip * thick * 1000 * STEEL, 2 * strip / 1000)


def round_bar(diameter):
    return Section(f"R{diameter}", math.pi / 4 * diameter ** 2 * 1000 * STEEL, math.pi * diameter / 1000)


Z200 = cold_formed("Z200*2", strip=372, thick=2.0)      # web 200, flanges 70 and 62, lips 20
Z150 = cold_formed("Z150*1.5", strip=302, thick=1.5)    # web 150, flanges 60 and 52, lips 20


class Part(NamedTuple):
    """A member or plate as the shop makes it. Two parts with the same values are the same part and share a mark."""
    role: str
    name: str
    material: str
    coating: str
    length: int
    weight: float
    paint: float
    thick: object = ""      # plates only
    width: object = ""      # plates only
    hand: str = ""          # "mirrored" where the holes are on the other side


class Bolts(NamedTuple):
    """A bolt group; bolts are counted, not weighed."""
    role: str
    name: str
    standard: str
    grade: str
    diameter: int
    length: int


PRIMER, ZINC = "Primer 80 um", "Hot-dip galvanized"

ANCHOR_M24 = Bolts("Anchor bolts", "Anchor M24*600", "DIN 976-1", "8.8", 24, 600)
ANCHOR_M20 = Bolts("Anchor bolts", "Anchor M20*500", "DIN 976-1", "8.8", 20, 500)
HV_M20 = Bolts("Frame bolts", "HV M20*75", "EN 14399-4", "10.9", 20, 75)
HV_M16 = Bolts("Frame bolts", "HV M16*60", "EN 14399-4", "10.9", 16, 60)
M16_LONG = Bolts("Eaves bolts", "M16*60", "EN ISO 4017", "8.8", 16, 60)
M16_SHORT = Bolts("Eaves bolts", "M16*50", "EN ISO 4017", "8.8", 16, 50)
POST_M16 = M16_SHORT._replace(role="Post bolts")
PURLIN_M12 = Bolts("Purlin bolts", "M12*35", "EN ISO 4017", "8.8", 12, 35)
RAIL_M12 = PURLIN_M12._replace(role="Rail bolts")


def member(role, section, length, material="S355J2", coating=PRIMER, hand=""):
    metres = round(length) / 1000
    return Part(role, section.name, material, coating, round(length), round(section.mass * metres, 2),
                round(section.surface * metres, 3), hand=hand)


def plate(role, thick, width, length, material="S355J2"):
    width, length = round(width), round(length)
    surface = 2 * (width * length + thick * (width + length)) / 1e6
    weight = thick * width * length * STEEL
    return Part(role, f"PL{thick}*{width}", material, PRIMER, length, round(weight, 2), round(surface, 3), thick, width)


class PartsList:
    """The rows in the making. Marks are given in order of first use, one series for each prefix."""

    def __init__(self):
        self.rows = []
        self.marks = {}
        self.series = Counter()
        self.made = Counter()       # assemblies by mark

    def mark(self, prefix, content):
        if (prefix, content) not in self.marks:
            self.series[prefix] += 1
            self.marks[prefix, content] = f"{prefix}{self.series[prefix]}"
        return self.marks[prefix, content]

    def add(self, cells):
        self.rows.append({"%Handle": f"{0x2A0 + len(self.rows):X}", **cells})

    def assembly(self, prefix, name, phase, group, parts):
        """One shop unit, its main part first."""
        mnum = self.mark(prefix, tuple(parts))
        self.made[mnum] += 1
        weight = sum(part.weight for part in parts)
        for index, part in enumerate(parts):
            self.add({
                "%MNum": mnum, "%MName": name, "%IsMP": int(index == 0), "%AssemblyWeight [kg]": f"{weight:.2f}",
                "%PNum": self.mark("p" if part.thick else "m", part), "%Role": part.role, "%Name": part.name,
                "%Material": part.material, "%Coating": part.coating, "%Phase": phase, "%Class": group,
                "%Quantity": 1, "%Length [mm]": part.length, "%Thick [mm]": part.thick, "%Width [mm]": part.width,
                "%Weight [kg]": f"{part.weight:.2f}", "%Paint [m2]": f"{part.paint:.3f}", "%ShopConnection": "Shop"})

    def bolts(self, bolts, quantity, phase):
        self.add({
            "%Role": bolts.role, "%Material": bolts.grade, "%Coating": ZINC, "%Phase": phase, "%Class": "Bolts",
            "%Quantity": quantity, "%Length [mm]": bolts.length, "%BoltName": bolts.name, "%Standard": bolts.standard,
            "%Diameter [mm]": bolts.diameter, "%ShopConnection": "Site"})

    def finish(self):
        """Fills in what only the whole list tells: how many assemblies carry a mark."""
        for row in self.rows:
            if "%MNum" in row:
                row["%MQuantity"] = self.made[row["%MNum"]]
        return self.rows


ROOF_AT_EAVES = EAVES + IPE360.h / 2 / math.cos(SLOPE)   # outer face of the rafters, the same for every frame
RAIL_CLEAT = plate("Rail cleat", 8, 100, 140, "S235JR")
PURLIN_CLEAT = plate("Purlin cleat", 8, 120, 180, "S235JR")


def stiffener(section):
    return plate("Stiffener", 12, (section.b - section.tw) / 2, section.h - 2 * section.tf)


def rafter_length(column, end_plate, apex_plate):
    return (SPAN / 2 - column.h / 2) / math.cos(SLOPE) - end_plate - apex_plate


def add_frame(hall, phase):
    """Two columns IPE450, two rafters IPE360 with haunches at the eaves."""
    column = [member("Column", IPE450, ROOF_AT_EAVES - 25), plate("Base plate", 25, 260, 520),
              plate("Cap plate", 12, IPE450.b, IPE450.h)]
    column += 2 * [stiffener(IPE450)] + RAIL_LINES * [RAIL_CLEAT]
    # One length of IPE360, cut corner to corner, makes two haunches.
    offcut = IPE360._replace(name="1/2 IPE360", mass=IPE360.mass / 2, surface=IPE360.surface / 2)
    rafter = [member("Rafter", IPE360, rafter_length(IPE450, 20, 20)), member("Haunch", offcut, SPAN / 10),
              plate("End plate", 20, 200, 750), plate("Apex plate", 20, 200, 460)]
    rafter += 2 * [stiffener(IPE360)] + PURLIN_LINES * [PURLIN_CLEAT]

    for _ in ("left", "right"):     # the right half is the left one turned round, so the marks are the same
        hall.assembly("C", "Column", phase, "Frame", column)
        hall.bolts(ANCHOR_M24, 4, phase)
        hall.bolts(M16_LONG, 4, phase)
        hall.bolts(RAIL_M12, 4 * RAIL_LINES, phase)
    for _ in ("left", "right"):
        hall.assembly("R", "Rafter", phase, "Frame", rafter)
        hall.bolts(HV_M20, 10, phase)
        hall.bolts(PURLIN_M12, 4 * PURLIN_LINES, phase)
    hall.bolts(HV_M20, 8, phase)


def add_gable_frame(hall, phase, front):
    """Corner columns HEA200 with rails along both faces, rafters IPE240, posts IPE240 under them."""
    rafter = [member("Rafter", IPE240, rafter_length(HEA200, 15, 15)), plate("End plate", 15, 160, 320),
              plate("Apex plate", 15, 160, 320)] + PURLIN_LINES * [PURLIN_CLEAT]
    for left in (True, False):
        hand = "" if left == front else "mirrored"      # front left and back right are the same column
        hall.assembly("C", "Corner column", phase, "Frame",
                      [member("Column", HEA200, ROOF_AT_EAVES - 20, hand=hand), plate("Base plate", 20, 300, 300),
                       plate("Cap plate", 12, HEA200.b, HEA200.h)] + 2 * RAIL_LINES * [RAIL_CLEAT])
        hall.bolts(ANCHOR_M20, 4, phase)
        hall.bolts(M16_SHORT, 4, phase)
        hall.bolts(RAIL_M12, 2 * 2 * RAIL_LINES, phase)
    for _ in ("left", "right"):
        hall.assembly("R", "Gable rafter", phase, "Frame", rafter)
        hall.bolts(HV_M16, 4, phase)
        hall.bolts(PURLIN_M12, 2 * PURLIN_LINES, phase)
    hall.bolts(HV_M16, 4, phase)
    for x in range(POST_SPACING, SPAN, POST_SPACING):
        add_gable_post(hall, phase, min(x, SPAN - x))


def add_gable_post(hall, phase, from_eaves):
    underside = ROOF_AT_EAVES + from_eaves * math.tan(SLOPE) - IPE240.h / math.cos(SLOPE)
    hall.assembly("G", "Gable post", phase, "Gable",
                  [member("Gable post", IPE240, underside - 2 * 15), plate("Base plate", 15, 200, 300),
                   plate("Top plate", 15, IPE240.b, IPE240.h)] + RAIL_LINES * [RAIL_CLEAT])
    hall.bolts(ANCHOR_M20, 2, phase)
    hall.bolts(POST_M16, 2, phase)
    hall.bolts(RAIL_M12, 4 * RAIL_LINES, phase)


def add_bay(hall, phase, end_bay):
    """What runs between two frames. Purlins of the end bays reach past the gable."""
    purlin = BAY - GAP / 2 + GABLE_OVERHANG if end_bay else BAY - GAP
    for _ in range(2 * PURLIN_LINES):
        hall.assembly("PU", "Purlin", phase, "Envelope", [member("Purlin", Z200, purlin, "S350GD", "Z275")])
    add_rails(hall, phase, 2 * RAIL_LINES)
    end_plate = plate("End plate", 10, 150, 150, "S235JR")
    for _ in ("left", "right"):
        hall.assembly("EB", "Eaves beam", phase, "Frame",
                      [member("Eaves beam", SHS120, BAY - GAP - 2 * 10, "S235JRH"), end_plate, end_plate])


def add_rails(hall, phase, count):
    """Along the walls and across the gables: the frames stand as far apart as the posts."""
    for _ in range(count):
        hall.assembly("RL", "Wall rail", phase, "Envelope", [member("Rail", Z150, BAY - GAP, "S350GD", "Z275")])


def add_bracing(hall, phase):
    """Crossed rods: four panels in the roof, one in either wall; 100 mm of thread past each end."""
    roof = math.hypot(BAY, POST_SPACING / math.cos(SLOPE)) + 2 * 100
    wall = math.hypot(BAY, EAVES) + 2 * 100
    for count, place, diameter, length in ((2 * SPAN // POST_SPACING, "Roof", 24, roof), (2 * 2, "Wall", 30, wall)):
        for _ in range(count):
            hall.assembly("BR", f"{place} bracing", phase, "Bracing",
                          [member("Bracing rod", round_bar(diameter), length, coating=ZINC)])


def build_hall():
    hall = PartsList()
    for frame in range(1, FRAMES + 1):
        phase = 1 if 2 * frame <= FRAMES else 2     # the front half is erected first
        if frame in (1, FRAMES):
            add_gable_frame(hall, phase, frame == 1)
            add_rails(hall, phase, RAIL_LINES * SPAN // POST_SPACING)
        else:
            add_frame(hall, phase)
        if frame < FRAMES:                          # the bay behind this frame
            end_bay = frame in (1, FRAMES - 1)
            add_bay(hall, phase if 2 * frame < FRAMES else 2, end_bay)
            if end_bay:
                add_bracing(hall, phase)
    return hall.finish()


COLUMNS = ["%Handle", "%MNum", "%MName", "%MQuantity", "%AssemblyWeight [kg]", "%IsMP", "%PNum", "%Role", "%Name",
           "%Material", "%Coating", "%Phase", "%Class", "%Quantity", "%Length [mm]", "%Width [mm]", "%Thick [mm]",
           "%Weight [kg]", "%Paint [m2]", "%BoltName", "%Standard", "%Diameter [mm]", "%ShopConnection"]


def as_csv(rows):
    text = io.StringIO()
    writer = csv.DictWriter(text, COLUMNS, restval="", lineterminator="\n")
    writer.writeheader()
    writer.writerows(rows)
    return text.getvalue()


def main(arguments):
    path = pathlib.Path(__file__).with_name("hall.csv")
    text = as_csv(build_hall())
    if arguments == ["--check"]:
        if path.is_file() and path.read_bytes() == text.encode():
            return 0
        print(f"{path} is not what {pathlib.Path(__file__).name} writes", file=sys.stderr)
        return 1
    if arguments:
        print(__doc__, file=sys.stderr)
        return 2
    path.write_bytes(text.encode())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
