#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""dask-rows.py FOLDER [DOCUMENTS [OPTION...]]: the rows of a folder on standard output, made by the workers of a Dask cluster, in
parts of so many documents, 1,000 if none is said. DASK_SCHEDULER_ADDRESS names the cluster; without it there is one on this machine.
Each worker needs nascor-cli and the folder, by the same name. The bytes are those of `nascor-cli rows FOLDER --file path OPTION...`;
the status is 1 where that is, and 2 where rows are missing. The parts of a worker that is lost are made by the others."""
import collections
import os
import subprocess
import sys

from distributed import Client


def documents(folder):
    """The paths that `rows` takes of a folder, in the order of their bytes."""
    def refuse(error):
        raise error

    found = []
    for place, folders, files in os.walk(os.fsencode(folder), onerror=refuse):
        folders[:] = [name for name in folders if not name.startswith(b".")]
        names = [name for name in files if name.endswith(b".nascor") and not name.startswith(b".")]
        paths = [os.path.join(place, name) for name in names]
        found += [path for path in paths if os.path.isfile(path) or os.path.islink(path)]
    return sorted(found)


def rows(paths, folder, options):
    """Runs on a worker: rows, sentences about bad documents, and the status."""
    command = ["nascor-cli", "rows", "--files-from", "-", "--null", "--file", "path", "--no-header", *options]
    done = subprocess.run(command, input=b"\0".join(paths), capture_output=True, cwd=folder)
    if done.returncode not in (0, 1):
        raise RuntimeError(f"nascor-cli ended with {done.returncode}: {os.fsdecode(done.stderr)}")
    return done.stdout, done.stderr, done.returncode


def main(folder, part="1000", *options):
    header = subprocess.run(["nascor-cli", "rows", "--files-from", "/dev/null", "--file", "path", *options])
    if header.returncode != 0:
        return header.returncode
    paths, part, status = documents(folder), int(part), 0
    waiting = collections.deque()

    def write_first():
        out, said, its_status = waiting.popleft().result()
        sys.stdout.buffer.write(out)
        sys.stderr.buffer.write(said)
        return its_status

    with Client() as cluster:
        # Bounds what workers hold that is not yet written.
        ahead = max(16, 4 * sum(cluster.ncores().values()))
        for first in range(0, len(paths), part):
            waiting.append(cluster.submit(rows, paths[first:first + part], os.getcwd(), options, pure=False, retries=2))
            if len(waiting) == ahead:
                status = max(status, write_first())
        while waiting:
            status = max(status, write_first())
    sys.stdout.flush()
    return status


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit("usage: dask-rows.py FOLDER [DOCUMENTS [OPTION...]]")
    try:
        sys.exit(main(*sys.argv[1:]))
    except Exception as error:
        print(f"dask-rows.py: not all rows were made: {error}", file=sys.stderr)
        sys.exit(2)
