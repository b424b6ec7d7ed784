#!/usr/bin/env python3
"""Runs the commands of docs/guides/typedtable.md, and compares the man page with --help.

usage: typedtable_guide_test.py PROGRAM EXAMPLES_FOLDER"""

import os
import re
import shlex
import subprocess
import sys
import unittest

from typedtable_program import EXAMPLES, PROGRAM, run

ROOT = os.path.dirname(os.path.abspath(EXAMPLES))
GUIDE = os.path.join(ROOT, "docs", "guides", "typedtable.md")
MAN = os.path.join(EXAMPLES, "typedtable", "typedtable.1")
BLOCK = re.compile(r"^```console\n(.*?)^```$", re.MULTILINE | re.DOTALL)
OPTION = re.compile(r"(?<![\w-])--[a-z][a-z-]*")


def steps_of(text):
    """The commands of the blocks with what is printed below each."""
    steps = []
    for block in BLOCK.findall(text):
        for line in block.splitlines(keepends=True):
            if line.startswith("$ "):
                steps.append([line[2:].strip(), ""])
            else:
                steps[-1][1] += line
    return steps


def printed_by(command):
    """Standard output, then standard error."""
    words = shlex.split(command)
    assert words[0] == "typedtable", command
    result = subprocess.run([os.path.abspath(PROGRAM), *words[1:]], capture_output=True, timeout=120, cwd=ROOT)
    return (result.stdout + result.stderr).decode()


def read(path):
    with open(path, encoding="utf-8") as text:
        return text.read()


class Guide(unittest.TestCase):
    maxDiff = None

    def test_steps_of_a_text(self):
        self.assertEqual(steps_of("a\n```console\n$ typedtable x\n1\n\n2\n$ typedtable y\n```\n```\n$ no\n```\n"),
                         [["typedtable x", "1\n\n2\n"], ["typedtable y", ""]])

    def test_every_command_prints_what_the_guide_says(self):
        steps = steps_of(read(GUIDE))
        self.assertGreater(len(steps), 10)
        for command, expected in steps:
            with self.subTest(command=command):
                self.assertEqual(printed_by(command), expected)

    def test_the_guide_walks_through_every_file(self):
        commands = " ".join(command for command, _ in steps_of(read(GUIDE)))
        for name in os.listdir(os.path.join(EXAMPLES, "data")):
            if name.endswith(".csv"):
                self.assertIn("examples/data/" + name, commands)


class ManPage(unittest.TestCase):
    def options_of_man(self):
        return set(OPTION.findall(self.plain_man()))

    def plain_man(self):
        return re.sub(r"\\f[A-Z]", "", read(MAN)).replace("\\-", "-")

    def test_help_and_man_page_have_the_same_options(self):
        options = set(OPTION.findall(run("--help").stdout.decode()))
        self.assertGreater(len(options), 25)
        self.assertEqual(sorted(options - self.options_of_man()), [], "missing in the man page")
        self.assertEqual(sorted(self.options_of_man() - options), [], "missing in --help")

    def test_the_program_knows_every_option_and_the_help_has_all_of_them(self):
        for option in sorted(self.options_of_man() - {"--help"}):
            self.assertNotIn(b"unknown option", run(option).stderr, option)
        known = set()
        for name in os.listdir(os.path.join(EXAMPLES, "typedtable")):
            if name.endswith(".cpp") and name != "Usage.cpp":
                known.update(re.findall(r'"(--[a-z-]+)"', read(os.path.join(EXAMPLES, "typedtable", name))))
        self.assertEqual(sorted(known - self.options_of_man()), [])

    def test_each_option_has_a_paragraph_of_its_own(self):
        heads = set(OPTION.findall("\n".join(re.findall(r"^\.TP\n(.*)$", self.plain_man(), re.MULTILINE))))
        self.assertEqual(sorted(self.options_of_man() - heads), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
