#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""manual_test.py FOLDER PROGRAM...: the manual pages and completions in FOLDER say what the programs say of themselves."""
import pathlib
import re
import subprocess
import sys
import unittest

folder = pathlib.Path(sys.argv[1])
programs = [pathlib.Path(path) for path in sys.argv[2:]]


def said(*arguments):
    return subprocess.run(arguments, stdout=subprocess.PIPE, check=True, text=True).stdout


def page(name):
    """The text of a manual page, without its macros, in one line."""
    source = (folder / f"{name}.1").read_text()
    lines = [line for line in source.split("\n") if not re.match(r"\.(nf|fi|TP|PP|SH|SS|TH|nh|ad)", line)]
    text = " ".join(lines)
    for code, meaning in (("\\fB", ""), ("\\fI", ""), ("\\fR", ""), ("\\&", ""), ("\\-", "-"), ("\\e", "\\")):
        text = text.replace(code, meaning)
    return " ".join(text.split())


def completed(shell, name, *words):
    """What a shell offers for the last word."""
    if shell == "bash":
        script = """. "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); "_${1//-/_}" 2>/dev/null; printf '%s\\n' "${COMPREPLY[@]}" """
        out = said("bash", "-c", script, "bash", folder / f"{name}.bash", name, *words)
        return set(out.split())
    script = f"source {folder}/{name}.fish; complete -C '{' '.join((name, *words))}'"
    return {line.split("\t")[0] for line in said("fish", "--no-config", "-c", script).splitlines()}


class Manual(unittest.TestCase):
    def test_holds_every_line_of_help(self):
        program = next(each for each in programs if each.name == "nascor-cli")
        help_of = {"": said(program, "--help")}
        commands = re.findall(r"^  ([a-z-]+)  ", help_of[""].split("Options:")[0], re.MULTILINE)
        self.assertGreater(len(commands), 20)
        for command in commands:
            if command != "help":
                help_of[command] = said(program, command, "--help")
        text = page("nascor-cli")
        for command, lines in help_of.items():
            for line in lines.splitlines():
                # The manual says "-h" and what is no medical device once.
                if line.startswith(("  --help", "Not a medical device")) or line.endswith(":"):
                    continue
                # What help lays out in two columns stands in two lines of the page.
                for part in re.split(r"(?<=\S)  +", line.removeprefix("usage: ").strip()):
                    with self.subTest(command=command):
                        self.assertIn(" ".join(part.split()), text)

    def test_holds_every_option_of_the_application(self):
        for program in programs:
            if program.name != "nascor":
                continue
            text = page("nascor")
            options = re.findall(r"^  (?:-., )?(--[a-z-]+)", said(program, "--help"), re.MULTILINE)
            self.assertGreater(len(options), 10)
            for option in options:
                self.assertIn(option + " ", text)
                self.assertIn(option, completed("bash", "nascor", "--"))

    def test_is_typeset_without_a_word(self):
        for path in folder.glob("*.1"):
            run = subprocess.run(["groff", "-man", "-Tutf8", "-ww", path], stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=True)
            self.assertEqual(run.stderr, b"")
            self.assertIn(b"Nascor", run.stdout)


class Completion(unittest.TestCase):
    def test_is_alike_in_bash_and_fish(self):
        for words, offered in (
            (("re",), {"report", "recover", "reference"}),
            (("rows", "--fi"), {"--files-from", "--file", "--fixed"}),
            (("rows", "--format", ""), {"csv", "jsonl"}),
            (("server", "e"), {"echo"}),
            (("help", "ro"), {"rows"}),
            (("report", f"{folder}/nascor-cli.b"), {f"{folder}/nascor-cli.bash"}),
        ):
            for shell in ("bash", "fish"):
                with self.subTest(shell=shell, words=words):
                    self.assertEqual(completed(shell, "nascor-cli", *words), offered)

    def test_takes_a_value_behind_an_equals_sign(self):
        self.assertEqual(completed("bash", "nascor-cli", "rows", "--format", "=", "j"), {"jsonl"})

    def test_can_be_read_by_zsh(self):
        for path in folder.glob("_*"):
            self.assertTrue(path.read_text().startswith(f"#compdef {path.name[1:]}\n"))
            subprocess.run(["zsh", "-n", path], check=True)


unittest.main(argv=sys.argv[:1])
