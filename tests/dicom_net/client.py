# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Runs the command line's `server`, and what the tests of it share."""

import pathlib
import subprocess
import sys
import tempfile
import time
import unittest

CLI, SAMPLES = sys.argv[1], pathlib.Path(sys.argv[2])


class Outcome:
    def __init__(self, result, seconds):
        self.status, self.out, self.err, self.seconds = result.returncode, result.stdout, result.stderr, seconds


def run(*words, environment=None):
    """No command may take longer than this, whatever its server does."""
    began = time.monotonic()
    result = subprocess.run([CLI, *map(str, words)], stdin=subprocess.DEVNULL, capture_output=True, text=True,
                            timeout=20, env=environment)
    return Outcome(result, time.monotonic() - began)


def server(action, port, *words, called="PACS", environment=None):
    return run("server", action, *words, "--host", "127.0.0.1", "--port", port, "--called", called,
               environment=environment)


class Case(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def reports(self, sample="singleton"):
        """The reports of a sample, as files."""
        folder = self.folder / "sent"
        written = run("export", "--format", "sr", "--out", folder, SAMPLES / f"{sample}.nascor")
        self.assertEqual(written.status, 0, written.err)
        return sorted(folder.glob(f"{sample} *.dcm"))

    def fails(self, outcome, sentence):
        """Ended by itself, with status 1 and that sentence."""
        self.assertEqual(outcome.status, 1, outcome.err)
        self.assertIn(sentence, outcome.err)
        self.assertEqual(outcome.err.count("\n"), len(outcome.err.splitlines()))


def main():
    unittest.main(argv=sys.argv[:1])
