#!/usr/bin/env -S python3 -B
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""What `nascor-cli rows` and `calc` take beside programs that do the least that is possible.

    bench/clinic.py BUILD/bin FOLDER [ROUNDS]

FOLDER is for what is read, and made if it is missing: a table of 1,000,000 rows and a clinic of 10,000 documents. Times are
medians of processor time, by turns in one run, but those of --jobs, which are the least elapsed ones.
"""

import os
import subprocess
import sys

from turns import by_turns, memory, run

COLUMNS = "efw_3_g,westerway_bpd_z,westerway_hc_z,westerway_ac_z,westerway_fl_z"
ROWS = 1_000_000
DOCUMENTS = 10_000


def write_table(path):
    """Ages and lengths as machines print them."""
    with open(path, "w", encoding="ascii") as table:
        table.write("id,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm\n")
        for i in range(ROWS):
            week = 12.0 + (i * 7919 % 2800) / 100.0
            table.write(f"P{i:06},{week:.2f},{2.4 * week:.1f},{8.6 * week:.1f},{8.4 * week:.1f},{1.8 * week:.1f}\n")


def compare(rounds, commands, source=None):
    """Prints the processor time of each, also as a ratio to the first, and its memory."""
    all_runs = by_turns(rounds, commands, source)
    first = next(iter(all_runs.values()))
    for name, runs in all_runs.items():
        print(f"  {name:<24} {1000 * runs.median():8.0f} ms  {runs.median() / first.median():5.2f}"
              f"  {memory(commands[name], source):6.1f} MiB", flush=True)
    return all_runs


def different_lines(one, other):
    with open(one, encoding="ascii") as first, open(other, encoding="ascii") as second:
        return sum(a != b for a, b in zip(first, second, strict=True))


def calc(programs, folder, rounds):
    table = f"{folder}/table.csv"
    if not os.path.exists(table):
        write_table(table)
    commands = {
        "digits by hand": [f"{programs}/plain-table", "digits"],
        "from_chars and to_chars": [f"{programs}/plain-table", "library"],
        "nascor-cli calc": [f"{programs}/nascor-cli", "calc", "--columns", COLUMNS, "--fixed"],
    }
    print(f"calc of {ROWS} rows")
    compare(rounds, commands, table)
    for place, command in enumerate(commands.values()):
        run(command, table, f"{folder}/calc-{place}.csv")
    for place, name in enumerate(list(commands)[:2]):
        count = different_lines(f"{folder}/calc-{place}.csv", f"{folder}/calc-2.csv")
        print(f"  lines of nascor-cli calc that differ from {name}: {count}")


def rows(programs, folder, rounds):
    documents = f"{folder}/clinic"
    if not os.path.exists(documents):
        subprocess.run([f"{programs}/nascor-clinic", str(DOCUMENTS), "--out", documents], check=True)
    print(f"reading {DOCUMENTS} documents", flush=True)
    subprocess.run([f"{programs}/bench-reading", documents, str(rounds)], check=True)
    commands = {f"--jobs {jobs}": [f"{programs}/nascor-cli", "rows", documents, "--jobs", str(jobs)]
                for jobs in (1, 2)}
    print("nascor-cli rows of the same")
    one, two = (min(runs.elapsed) for runs in compare(rounds, commands).values())
    print(f"  least elapsed time {1000 * one:.0f} and {1000 * two:.0f} ms: {one / two:.2f} times faster")


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    programs, folder = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) == 4 else 15
    os.makedirs(folder, exist_ok=True)
    calc(programs, folder, rounds)
    rows(programs, folder, rounds)
    print("in memory", flush=True)
    subprocess.run([f"{programs}/bench-memory", str(rounds)], check=True)


main()
