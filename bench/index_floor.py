#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""index_floor.py INDEX: the least that SQLite takes for an index, beside reading any document.

Copies the tables of an index that `nascor-cli index` has made into a new file by one statement each, and builds the index of
texts anew: no value is bound, and none is computed. Prints processor time, the median of five.
"""

import os
import resource
import sqlite3
import statistics
import sys
import tempfile


def spent():
    usage = resource.getrusage(resource.RUSAGE_SELF)
    return usage.ru_utime + usage.ru_stime


def copied(index, folder):
    made = os.path.join(folder, "copy.sqlite")
    copy = sqlite3.connect(made, isolation_level=None)
    copy.execute("PRAGMA journal_mode = WAL")
    copy.execute("PRAGMA synchronous = NORMAL")
    copy.execute("PRAGMA cache_size = -8192")
    copy.execute("ATTACH ? AS made", (index,))
    for (statement,) in copy.execute("SELECT sql FROM made.sqlite_schema WHERE sql IS NOT NULL AND name NOT LIKE 'texts_%'").fetchall():
        copy.execute(statement)
    before = spent()
    copy.execute("BEGIN")
    copy.execute("INSERT INTO documents SELECT * FROM made.documents ORDER BY id")
    copy.execute("INSERT INTO rows SELECT * FROM made.rows")
    copy.execute("INSERT INTO texts (rowid, reference_id, path) SELECT id, reference_id, path FROM documents")
    copy.execute("COMMIT")
    taken = spent() - before
    copy.close()
    for name in os.listdir(folder):
        os.remove(os.path.join(folder, name))
    return taken


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.split("\n", maxsplit=1)[0])
    with tempfile.TemporaryDirectory() as folder:
        print(f"{statistics.median(copied(sys.argv[1], folder) for _ in range(5)):.2f} s")


main()
