"""Writes a parts list of N rows by 14 columns, always the same one for the same arguments.

    python3 generate_parts.py 100000 > parts.csv                     lengths with one decimal
    python3 generate_parts.py 100000 --full-lengths > parts.csv      lengths with all their digits

Lengths with all digits are those of the other list with a random rest below a tenth, as geometry gives them. One row in
a thousand is of the same mark and material as the row before it, and longer by less than counts as a difference.
"""

import argparse
import random
import sys

HEADER = ("Handle,Num,MNum,Material,Name,Length [mm],Weight [kg],Paint [m2],"
          "Quantity,Phase,Class,Coating,Thick [mm],Width [mm]")
NEARLY_EQUAL = 7e-7  # mm; doubles closer than 1e-6 compare equal


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("rows", type=int)
    parser.add_argument("--full-lengths", action="store_true")
    return parser.parse_args()


def main():
    arguments = read_arguments()
    rows = arguments.rows
    rng = random.Random(1)
    rests = random.Random(2)
    marks = rows // 20 + 1
    before = None  # mark, material and length of the row before
    out = sys.stdout
    out.write(HEADER + "\n")
    for i in range(rows):
        position, mark, material, profile = (rng.randrange(count) + 1 for count in (marks, marks, 8, 60))
        length = 100 + rng.randrange(120000) / 10
        length_text = f"{length:.1f}"
        if arguments.full_lengths:
            length += rests.random() / 10
            if i % 1000 == 999:
                mark, material, length = before[0], before[1], before[2] + NEARLY_EQUAL
            before = mark, material, length
            length_text = repr(length)
        out.write(f"{i + 4096:X},{position},B{mark},S{material}35JR,HEA{profile * 10},{length_text},"
                  f"{rng.randrange(1, 100000) / 100:.2f},{rng.randrange(1, 10000) / 1000:.3f},"
                  f"{rng.randrange(20) + 1},{rng.randrange(5) + 1},{rng.randrange(10) + 1},C{rng.randrange(4) + 1},"
                  f"{rng.randrange(40) + 1},{rng.randrange(400) + 50}\n")


if __name__ == "__main__":
    main()
