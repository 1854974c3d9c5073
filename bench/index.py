#!/usr/bin/env -S python3 -B
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""What `nascor-cli index`, `due` and `search` take beside `rows` of the same documents.

    bench/index.py BUILD/bin FOLDER [ROUNDS]

FOLDER is for a clinic of 100,000 documents, made if it is missing, and for its index. Medians of elapsed and of processor time, by
turns in one run. Without a second core free, making an index takes its processor time.
"""

import os
import statistics
import subprocess
import sys

from turns import Runs, memory, run

DOCUMENTS = 100_000
CHANGED = 50


def moved(files, source, target):
    for name in files:
        os.makedirs(os.path.dirname(f"{target}/{name}"), exist_ok=True)
        os.rename(f"{source}/{name}", f"{target}/{name}")


def without(index):
    for end in ("", "-wal", "-shm"):
        if os.path.exists(index + end):
            os.remove(index + end)


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    program, folder = f"{sys.argv[1]}/nascor-cli", sys.argv[2]
    rounds = int(sys.argv[3]) if len(sys.argv) == 4 else 9
    documents, index, aside = f"{folder}/clinic", f"{folder}/clinic.sqlite", f"{folder}/aside"
    if not os.path.exists(documents):
        subprocess.run([f"{sys.argv[1]}/nascor-clinic", str(DOCUMENTS), "--out", documents], check=True)
    part = sorted(os.listdir(documents))[DOCUMENTS // 2000]
    names = [f"{part}/{name}" for name in sorted(os.listdir(f"{documents}/{part}"))]
    some, others = names[:CHANGED], names[CHANGED:2 * CHANGED]
    make = [program, "index", documents, "--db", index]
    works = {
        "rows": [program, "rows", documents],
        "made anew": make,
        "nothing changed": make,
        f"{CHANGED} new and {CHANGED} gone": make,
        "due": [program, "due", "--db", index, "--from", "2026-11-22", "--ac-below", "-2"],
        "search": [program, "search", "0012345", "--db", index],
    }
    taken = {name: Runs() for name in works}
    moved(some, documents, aside)
    for _ in range(rounds):
        without(index)
        for name, command in works.items():
            if "gone" in name:
                moved(some, aside, documents)
                moved(others, documents, aside)
                some, others = others, some
            run(command, runs=taken[name])
    moved(some, aside, documents)
    first = taken["rows"]
    print(f"{DOCUMENTS} documents, medians of {rounds}: elapsed, to that of rows, of the processors, to that of rows")
    for name, runs in taken.items():
        elapsed = statistics.median(runs.elapsed)
        print(f"  {name:<22} {1000 * elapsed:7.0f} ms  {elapsed / statistics.median(first.elapsed):5.2f}"
              f"  {1000 * runs.median():7.0f} ms  {runs.median() / first.median():5.2f}")
    without(index)
    print(f"  memory: {memory(make):.1f} MiB, and {os.path.getsize(index) / 1e6:.0f} MB on disk")


main()
