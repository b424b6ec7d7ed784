#!/usr/bin/env python3
"""Streams a million rows through typedtable. usage: typedtable_stream_test.py PROGRAM plain|sanitized

Memory is measured in a plain program only: a sanitizer has its own.
"""

import os
import pty
import re
import resource
import subprocess
import sys
import tempfile
import unittest

PROGRAM, KIND = sys.argv[1:3]
ROWS = 1_000_000
MOST_MEMORY_KIB = 64 * 1024


class Stream(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.file = tempfile.NamedTemporaryFile("w", suffix=".csv", encoding="utf-8")
        cls.file.write("when,n,name\n")
        cls.file.writelines(f"{1900 + i % 200}-{1 + i % 12:02}-{1 + i % 28:02},{i},name of row {i}\n"
                            for i in range(ROWS))
        cls.file.flush()

    @classmethod
    def tearDownClass(cls):
        cls.file.close()

    def test_groups_in_bounded_memory_without_progress_off_a_terminal(self):
        result = subprocess.run([PROGRAM, self.file.name, "--group-by", "when:year", "--count", "--sum", "n"],
                                capture_output=True, timeout=300)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        lines = result.stdout.decode().splitlines()
        self.assertEqual(len(lines), 202)
        # Row i lies in the year 1900 + i % 200: 5,000 rows a year, whose numbers rise by 200.
        for year, line in enumerate(lines[1:-1]):
            first, last = year, ROWS - 200 + year
            self.assertEqual(line.split(), [f"{1900 + year}-01-01", str(1900 + year), "5000",
                                            str((first + last) * 5000 // 2)])
        if KIND == "plain":
            self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss, MOST_MEMORY_KIB)

    def test_sorts_and_filters_in_bounded_memory_where_few_rows_are_shown(self):
        for arguments, first, last in (
                (["--sort", "name", "--collation", "LEN_RUS_S2", "--rows", "2"], "0", "1000000 rows, the first 2 shown"),
                (["--where", "n >= 999998"], "999998", "2 of 1000000 rows"),
                (["--find", "ROW 77777", "--locale", "en_US", "--ignore-case", "--rows", "2"], "77777",
                 "11 of 1000000 rows, the first 2 shown")):
            result = subprocess.run([PROGRAM, self.file.name, *arguments], capture_output=True, timeout=300)
            self.assertEqual((result.returncode, result.stderr), (0, b""))
            lines = result.stdout.decode().splitlines()
            self.assertEqual((len(lines), lines[1].split()[1], lines[-1]), (4, first, last))
            if KIND == "plain":
                self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss, MOST_MEMORY_KIB)

    def test_shows_progress_on_a_terminal_and_wipes_it(self):
        ours, theirs = pty.openpty()
        process = subprocess.Popen([PROGRAM, self.file.name, "--group-by", "when:year"], stdout=subprocess.PIPE,
                                   stderr=theirs)
        os.close(theirs)
        shown = b""
        while True:
            try:
                part = os.read(ours, 4096)
            except OSError:  # the other side is closed
                break
            if not part:
                break
            shown += part
        os.close(ours)
        output = process.stdout.read()
        process.stdout.close()
        self.assertEqual(process.wait(timeout=300), 0)
        self.assertNotIn(b"\n", shown)
        for doing in (b"typed", b"grouped"):
            self.assertIn(b"\r65,536 rows " + doing, shown)
            self.assertIn(b"\r983,040 rows " + doing, shown)
        self.assertRegex(shown, re.compile(rb"\r +\r$"))
        self.assertNotIn(b"\r", output)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
