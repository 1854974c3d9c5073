# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Runs of programs, by turns: the processor time and the elapsed time of each. Their memory, and their instructions."""

import os
import statistics
import subprocess
import sys
import time


class Runs:
    """What the runs of one command took, in seconds."""

    def __init__(self):
        self.processor, self.elapsed = [], []

    def median(self):
        return statistics.median(self.processor)

    def least(self):
        return min(self.processor)


class Started:
    """A command that runs. `source` is a path for its standard input, or a command whose output goes there."""

    def __init__(self, command, source=None, target="/dev/null"):
        self.command, self.feeder = command, None
        if isinstance(source, list):
            self.feeder = subprocess.Popen(source, stdout=subprocess.PIPE)
            given = self.feeder.stdout.fileno()
        else:
            given = os.open(source or "/dev/null", os.O_RDONLY)
        taken = os.open(target, os.O_WRONLY | os.O_CREAT | os.O_TRUNC)
        self.process = os.posix_spawn(
            command[0], command, os.environ,
            file_actions=[(os.POSIX_SPAWN_DUP2, given, 0), (os.POSIX_SPAWN_DUP2, taken, 1),
                          (os.POSIX_SPAWN_OPEN, 2, "/dev/null", os.O_WRONLY, 0)])
        if self.feeder:
            self.feeder.stdout.close()
        else:
            os.close(given)
        os.close(taken)

    def is_over(self):
        return os.waitid(os.P_PID, self.process, os.WEXITED | os.WNOWAIT | os.WNOHANG) is not None

    def wait(self):
        """The seconds of the processor."""
        _, status, used = os.wait4(self.process, 0)
        if self.feeder:
            self.feeder.wait()
        # 1: a damaged document among the others.
        if os.waitstatus_to_exitcode(status) not in (0, 1):
            sys.exit(f"{self.command} ended with {status}")
        return used.ru_utime + used.ru_stime


def run(command, source=None, target="/dev/null", runs=None):
    """Runs a command once."""
    start = time.monotonic()
    processor = Started(command, source, target).wait()
    if runs:
        runs.processor.append(processor)
        runs.elapsed.append(time.monotonic() - start)


def memory(command, source=None):
    """The most MiB that one run held, looked at every millisecond: what the system tells at the end counts this program's too."""
    most, started = 0, Started(command, source)
    while not started.is_over():
        with open(f"/proc/{started.process}/status", encoding="ascii") as status:
            said = status.read().split("VmHWM:")
        with open(f"/proc/{started.process}/comm", encoding="ascii") as name:
            is_itself = os.path.basename(command[0]).startswith(name.read().strip())
        if len(said) == 2 and is_itself:
            most = max(most, int(said[1].split()[0]) / 1024)
        time.sleep(0.001)
    started.wait()
    return most


def by_turns(rounds, commands, source=None):
    """Runs of each of `commands`, which are name: command, one after the other in each round."""
    all_runs = {name: Runs() for name in commands}
    for _ in range(rounds):
        for name, command in commands.items():
            run(command, source, runs=all_runs[name])
    return all_runs


def instructions(command, source):
    """The instructions of one run, counted by callgrind."""
    counted = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", *command]
    feeder = subprocess.Popen(source, stdout=subprocess.PIPE)
    said = subprocess.run(counted, stdin=feeder.stdout, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                          text=True, check=False).stderr
    feeder.wait()
    return next(int(line.split()[-1]) for line in said.splitlines() if "Collected" in line)
