"""Holds the README's snippets against the programs they are about.

    python3 check_readme.py README.md EmbedEngine.cpp path/to/EmbedEngine path/to/mekbom

C++ blocks must stand in the source, line by line; text blocks must be what one of the programs prints, "..." standing for
lines left out; console blocks are runs of mekbom, each "$ mekbom ..." followed by what it prints.
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
    start = 0
    for part in block.rstrip("\n").split("\n...\n"):
        wanted = part.split("\n")
        places = (i for i in range(start, len(lines) - len(wanted) + 1) if lines[i:i + len(wanted)] == wanted)
        place = next(places, None)
        if place is None:
            return False
        start = place + len(wanted)
    return True


def run(command):
    return subprocess.run(command, check=True, capture_output=True, encoding="utf-8").stdout.splitlines()


def untrue_runs(block, mekbom):
    """The runs of a console block that print something else."""
    runs = re.findall(r"^\$ mekbom (.*)\n((?:(?!\$ ).*\n)*)", block, re.MULTILINE)
    return [f"$ mekbom {arguments}\n{shown}" for arguments, shown in runs
            if not stands_in(shown, run([mekbom, *shlex.split(arguments)]))]


def main():
    readme, source, embed, mekbom = sys.argv[1:]
    here = pathlib.Path(__file__).parent
    text = pathlib.Path(readme).read_text(encoding="utf-8")
    code = [line.strip() for line in pathlib.Path(source).read_text(encoding="utf-8").splitlines()]
    hall = [mekbom, "report", "--data", here / "hall.csv", "--template", here / "Templates/cutting-list.json"]
    printed = [run(command) for command in ([embed], hall)]

    wrong = [block for block in blocks(text, "cpp")
             if not stands_in("\n".join(line.strip() for line in block.splitlines()), code)]
    wrong += [block for block in blocks(text, "text") if not any(stands_in(block, lines) for lines in printed)]
    wrong += [untrue for block in blocks(text, "console") for untrue in untrue_runs(block, mekbom)]
    for block in wrong:
        print(f"{readme}: no longer true:\n{block}")
    found = all(blocks(text, language) for language in ("cpp", "text", "console"))
    sys.exit(0 if found and not wrong else 1)


if __name__ == "__main__":
    main()
