"""What the tests of typedtable share. Their first two arguments are PROGRAM EXAMPLES_FOLDER."""

import os
import subprocess
import sys
import tempfile
import unittest

PROGRAM, EXAMPLES = sys.argv[1:3]
WEATHER = os.path.join(EXAMPLES, "data", "weather.csv")
AIRPORTS = os.path.join(EXAMPLES, "data", "airports.csv")


def run(*arguments, stdin=None, stdout=subprocess.PIPE):
    return subprocess.run([PROGRAM, *arguments], stdout=stdout, stderr=subprocess.PIPE, input=stdin, timeout=120)


def print_table(titles, right, rows):
    widths = [max(len(row[i]) for row in [titles] + rows) for i in range(len(titles))]
    return "".join("  ".join(cell.rjust(width) if on_right else cell.ljust(width)
                             for cell, width, on_right in zip(row, widths, right)).rstrip() + "\n"
                   for row in [titles] + rows)


class Program(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def write(self, text, name="t.csv"):
        path = os.path.join(self.folder, name)
        with open(path, "wb") as out:
            out.write(text if isinstance(text, bytes) else text.encode())
        return path

    def assert_prints(self, expected, *arguments, stdin=None):
        result = run(*arguments, stdin=stdin)
        self.assertEqual(result.stderr.decode(), "")
        self.assertEqual(result.stdout.decode(), expected)
        self.assertEqual(result.returncode, 0)

    def assert_refuses(self, expected, *arguments, stdin=None):
        result = run(*arguments, stdin=stdin)
        self.assertEqual(result.stderr.decode(), "typedtable: " + expected + "\n")
        self.assertEqual(result.stdout.decode(), "")
        self.assertEqual(result.returncode, 2)
