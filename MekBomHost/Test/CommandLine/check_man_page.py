#!/usr/bin/env python3
"""Has formatters of manual pages read that of mekbom, and says what they complain of.

    python3 check_man_page.py path/to/mekbom

Ends with status 77 where neither mandoc nor groff is installed.
"""

import re
import shutil
import subprocess
import sys

FORMATTERS = {
    "mandoc": ["-T", "lint", "-W", "warning"],
    "groff": ["-man", "-Tutf8", "-ww"],
}
MUST_SHOW = ["mekbom report [OPTIONS]", "--output-encoding", "EXIT STATUS", "m²", "mekbom diff revision-a.csv"]


def complaints_of(formatter, page):
    """What the formatter finds wrong with the page, or in what it makes of it."""
    done = subprocess.run([formatter, *FORMATTERS[formatter]], input=page, capture_output=True)
    if formatter == "mandoc":
        return done.stdout.decode() + done.stderr.decode()
    shown = re.sub("\x1b\\[[0-9;]*m|.\b", "", done.stdout.decode())  # without bold and underlined
    missing = [text for text in MUST_SHOW if text not in shown]
    return done.stderr.decode() + "".join(f"the page does not show {text}\n" for text in missing)


def main():
    formatters = [name for name in FORMATTERS if shutil.which(name)]
    if not formatters:
        print("skipped: neither mandoc nor groff is installed")
        return 77
    page = subprocess.run([sys.argv[1], "help", "--man"], capture_output=True, check=True).stdout
    failed = False
    for formatter in formatters:
        complaints = complaints_of(formatter, page)
        failed = failed or bool(complaints)
        print(f"{formatter}: {complaints or 'accepts the page'}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
