"""Writes a parts list of N rows by 14 columns, always the same one for the same N.

    python3 generate_parts.py 100000 > parts.csv
"""

import random
import sys

HEADER = ("Handle,Num,MNum,Material,Name,Length [mm],Weight [kg],Paint [m2],"
          "Quantity,Phase,Class,Coating,Thick [mm],Width [mm]")


def main():
    rows = int(sys.argv[1])
    rng = random.Random(1)
    marks = rows // 20 + 1
    out = sys.stdout
    out.write(HEADER + "\n")
    for i in range(rows):
        out.write(f"{i + 4096:X},{rng.randrange(marks) + 1},B{rng.randrange(marks) + 1},S{rng.randrange(8) + 1}35JR,"
                  f"HEA{(rng.randrange(60) + 1) * 10},{100 + rng.randrange(120000) / 10:.1f},"
                  f"{rng.randrange(1, 100000) / 100:.2f},{rng.randrange(1, 10000) / 1000:.3f},"
                  f"{rng.randrange(20) + 1},{rng.randrange(5) + 1},{rng.randrange(10) + 1},C{rng.randrange(4) + 1},"
                  f"{rng.randrange(40) + 1},{rng.randrange(400) + 50}\n")


if __name__ == "__main__":
    main()
