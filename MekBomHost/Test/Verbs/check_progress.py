#!/usr/bin/env python3
"""Watches mekbom on a pseudo terminal while it waits for a parts list that comes slowly.

    python3 check_progress.py path/to/mekbom

Ends with status 77 where there are no pseudo terminals.
"""

import os
import signal
import subprocess
import sys
import time

ROWS = "".join(f"P{i},HEA200,10.5\n" for i in range(8192)).encode()
ERASE = "\r\x1b[K"
LINE = " rows read" + ERASE[1:]


def watch(mekbom, seconds, end=None, environment=None):
    """What standard error shows of a run whose rows come in pieces for so long, its output and its status."""
    master, slave = os.openpty()
    with subprocess.Popen([mekbom, "report", "--data", "-", "--to", "csv"], stdin=subprocess.PIPE,
                          stdout=subprocess.PIPE, stderr=slave,
                          env={**os.environ, "TERM": "xterm", **(environment or {})}) as run:
        os.close(slave)
        run.stdin.write(b"PNum,Name,Weight\n")
        begin = time.monotonic()
        while time.monotonic() < begin + seconds:
            run.stdin.write(ROWS)
            run.stdin.flush()
            time.sleep(0.1)
        if end:
            run.send_signal(end)
        output = run.communicate()[0]
    shown = b""
    try:
        while piece := os.read(master, 65536):
            shown += piece
    except OSError:     # the end, where the other side is closed
        pass
    os.close(master)
    return shown.decode(), output, run.returncode


def main(mekbom):
    try:
        os.close(os.openpty()[0])
    except (AttributeError, OSError):
        print("skipped: there are no pseudo terminals")
        return 77
    faults = []
    shown, output, status = watch(mekbom, 3)
    if LINE not in shown:
        faults.append(f"no progress within three seconds: {shown!r}")
    if shown.count(LINE) > 10:
        faults.append(f"progress is shown too often: {shown!r}")
    if ERASE not in shown or LINE in shown[shown.rindex(ERASE):] or "mekbom: note: " not in shown[shown.rindex(ERASE):]:
        faults.append(f"the line is not gone before the notes: {shown!r}")
    if status != 0 or output.count(b"\n") < 8192 or b"rows read" in output:
        faults.append(f"the list is not what it should be: status {status}")
    shown, _, status = watch(mekbom, 3, end=signal.SIGINT)
    if status != -signal.SIGINT or not shown.endswith(ERASE):
        faults.append(f"a signal leaves the line behind: status {status}, {shown!r}")
    for seconds, environment in ((0.5, None), (2.5, {"TERM": "dumb"})):
        shown, _, _ = watch(mekbom, seconds, environment=environment)
        if LINE in shown:
            faults.append(f"progress after {seconds} s with {environment}: {shown!r}")
    print("\n".join(faults) or "progress is shown, and taken away again")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
