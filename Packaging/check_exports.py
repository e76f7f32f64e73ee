#!/usr/bin/env python3
"""Holds what shared libraries export against the list of it.

    python3 check_exports.py exports.txt FOLDER LIBRARY...

FOLDER has the libraries: for MekRoots libMekRoots.so. Ends with status 77 where nm is missing.
"""

import pathlib
import re
import shutil
import subprocess
import sys

# _ZN9VorString4findEPKwi, _ZTV9VorString, _Z18vor_odbc_getDefaultRK9VorStringRi: the first name with its length.
MANGLED = re.compile(r"_Z(?:GV|T[A-Z])*Z?N?[KVr]*(\d+)(\w+)")


def name_in(symbol):
    """The class or function that a symbol belongs to; the symbol itself where it is a C function, or unknown."""
    mangled = MANGLED.match(symbol)
    return mangled.group(2)[:int(mangled.group(1))] if mangled else symbol


def exported_by(library):
    """The names that a library defines for others."""
    lines = subprocess.run(["nm", "-D", "--defined-only", "-j", library], check=True, capture_output=True,
                           encoding="utf-8").stdout.splitlines()
    return {name_in(line.split("@")[0]) for line in lines if line}


def listed_in(text):
    """The names of each library: {"MekUnits": {"MEKUnit", ...}}."""
    names = {}
    for line in text.splitlines():
        if line and not line.startswith("#"):
            library, name = line.split()
            names.setdefault(library, set()).add(name)
    return names


def main():
    listed = listed_in(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    folder = pathlib.Path(sys.argv[2])
    expected = {name: listed[name] for name in sys.argv[3:]}
    if shutil.which("nm") is None:
        print("skipped: nm is not installed")
        return 77
    differences = []
    for name in expected:
        exported = exported_by(folder / f"lib{name}.so")
        differences += [f"{name} exports {extra}, which the list lacks" for extra in sorted(exported - expected[name])]
        differences += [f"{name} does not export {lost}" for lost in sorted(expected[name] - exported)]
    print("\n".join(differences) or f"{sum(map(len, expected.values()))} names are exported, as listed")
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main())
