#!/usr/bin/env python3
"""Has shells complete command lines of mekbom by what it prints for them, and compares what they offer.

    python3 check_completion.py path/to/mekbom

Ends with status 77 where none of the shells is installed.
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

# What is typed before the cursor, and what is offered; None where names of files are.
CASES = {
    "mekbom de": ["demo", "describe"],
    "mekbom units ": ["convert", "read"],
    "mekbom units convert --suppress-zero-": ["--suppress-zero-feet", "--suppress-zero-inch"],
    "mekbom report --check": ["--check-totals"],
    "mekbom help --c": ["--completion"],
    "mekbom report --data ": None,
}

BASH = r"""
source "$1"; shift
COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
_mekbom; printf '%s\n' "${COMPREPLY[@]}"
"""
# The function that zsh would call, with those that it calls for the offers printing them.
ZSH = r"""
completed() { source "$SCRIPT" }
_describe() { for offer in ${(P)2}; do [[ $offer == $PREFIX* ]] && print -r -- ${offer%%:*}; done }
_files() { : }
words=("$@"); CURRENT=$#; PREFIX=${@[-1]}
completed
"""
FISH = r"""source $argv[1]; complete -C "$argv[2]" """


def command_for(shell, script, line):
    words = line.split(" ")
    if shell == "bash":
        return ["bash", "--norc", "-c", BASH, "bash", script, *words]
    if shell == "zsh":
        return ["env", f"SCRIPT={script}", "zsh", "-f", "-c", ZSH, "zsh", *words]
    return ["fish", "--no-config", "-c", FISH, script, line]


def offered_by(shell, script, line):
    """The words that the shell offers, without their meanings."""
    done = subprocess.run(command_for(shell, script, line), capture_output=True, encoding="utf-8")
    if done.stderr:
        return done.stderr.splitlines()
    return sorted(offer.split("\t")[0] for offer in done.stdout.splitlines() if offer)


def complaints_of(shell, mekbom, folder):
    script = folder / f"mekbom.{shell}"
    script.write_bytes(subprocess.run([mekbom, "help", "--completion", shell], check=True, capture_output=True).stdout)
    for line, expected in CASES.items():
        offered = offered_by(shell, str(script), line)
        if expected is None and not any(offer in ("convert", "read", "demo") for offer in offered):
            continue
        if offered != expected:
            yield f"{shell}: '{line}' offers {offered}, expected {expected}"


def main():
    shells = [shell for shell in ("bash", "zsh", "fish") if shutil.which(shell)]
    if not shells:
        print("skipped: neither bash nor zsh nor fish is installed")
        return 77
    with tempfile.TemporaryDirectory() as folder:
        complaints = [line for shell in shells for line in complaints_of(shell, sys.argv[1], pathlib.Path(folder))]
    print("\n".join(complaints) or f"{len(CASES)} lines were completed by {', '.join(shells)}")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
