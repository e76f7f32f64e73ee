"""Holds the README's snippets against the programs they are about.

    python3 check_readme.py README.md EmbedEngine.cpp path/to/EmbedEngine path/to/mekbom

C++ blocks must stand in the source, line by line; text blocks must be what the example prints, "..." standing for lines
left out, and blocks of CSV lines of the shipped export; console blocks are runs of mekbom in the README's folder, each
"$ mekbom ..." followed by what it prints, standard error last.
"""

import pathlib
import re
import shlex
import subprocess
import sys


def blocks(text, language):
    return re.findall(rf"^```{language}\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)


def stands_in(block, lines):
    """Whether the block's parts between "..." stand in `lines` in their order, each part unbroken."""
    parts = [part for part in re.split(r"(?:^|\n)\.\.\.(?:\n|$)", block.rstrip("\n")) if part]
    start = 0
    for part in parts:
        wanted = part.split("\n")
        places = (i for i in range(start, len(lines) - len(wanted) + 1) if lines[i:i + len(wanted)] == wanted)
        place = next(places, None)
        if place is None:
            return False
        start = place + len(wanted)
    return bool(parts)


def run(command, folder=None):
    """The lines of standard output, then those of standard error."""
    done = subprocess.run(command, check=True, cwd=folder, capture_output=True, encoding="utf-8")
    return (done.stdout + done.stderr).splitlines()


def untrue_runs(block, mekbom, folder):
    """The runs of a console block that print something else."""
    runs = re.findall(r"^\$ mekbom (.*)\n((?:(?!\$ ).*\n)*)", block, re.MULTILINE)
    return [f"$ mekbom {arguments}\n{shown}" for arguments, shown in runs
            if not stands_in(shown, run([mekbom, *shlex.split(arguments)], folder))]


def main():
    readme, source, embed, mekbom = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    text = readme.read_text(encoding="utf-8")
    code = [line.strip() for line in source.read_text(encoding="utf-8").splitlines()]
    export = (source.parent / "export.csv").read_text(encoding="utf-8").splitlines()
    printed = run([embed])

    wrong = [block for block in blocks(text, "cpp")
             if not stands_in("\n".join(line.strip() for line in block.splitlines()), code)]
    wrong += [block for block in blocks(text, "text") if not stands_in(block, printed)]
    wrong += [block for block in blocks(text, "csv") if not stands_in(block, export)]
    wrong += [untrue for block in blocks(text, "console") for untrue in untrue_runs(block, mekbom, readme.parent)]
    for block in wrong:
        print(f"{readme}: no longer true:\n{block}")
    found = all(blocks(text, language) for language in ("cpp", "text", "csv", "console"))
    sys.exit(0 if found and not wrong else 1)


if __name__ == "__main__":
    main()
