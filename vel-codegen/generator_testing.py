"""What the tests of the generators share: a generator is run as a program of its own, so what the build sees is tested."""

import os
import subprocess
import sys
import tempfile
import unittest


class GeneratorTest(unittest.TestCase):
    generator = None  # the program's path

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.table = os.path.join(self.folder.name, "table.tsv")
        self.header = os.path.join(self.folder.name, "out", "Header.h")
        self.source = os.path.join(self.folder.name, "out", "Source.cpp")

    def run_generator(self, content, table=None):
        """`content`, bytes or text, becomes the table; None leaves it as it is."""
        if content is not None:
            with open(self.table, "wb") as file:
                file.write(content if isinstance(content, bytes) else content.encode("utf-8"))
        return subprocess.run(
            [sys.executable, "-B", self.generator, table or self.table, "--header", self.header,
             "--source", self.source],
            capture_output=True, check=False)

    def generate(self, content):
        """(header, source)"""
        result = self.run_generator(content)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        with open(self.header, encoding="utf-8") as header, open(self.source, encoding="ascii") as source:
            return header.read(), source.read()

    def assert_refused(self, content, *faults):
        """Each fault is (line, part of its text); these are all faults, in this order, and nothing is written."""
        result = self.run_generator(content)
        lines = result.stderr.decode("utf-8").splitlines()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(lines), len(faults), lines)
        for got, (line, text) in zip(lines, faults):
            self.assertTrue(got.startswith("%s:%d: error: " % (self.table, line)), got)
            self.assertIn(text, got)
        self.assertFalse(os.path.exists(self.header))
        self.assertFalse(os.path.exists(self.source))
