#!/usr/bin/env python3
"""Tests of gen_strings.py, run as a program of its own: what the build sees is what is tested."""

import os
import re
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir))
from generator_testing import GeneratorTest  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
HEAD = b"key\tid\tenglish\n"


class StringsTest(GeneratorTest):
    generator = os.path.join(HERE, "gen_strings.py")


class GoodTables(StringsTest):
    def test_fixed_id_is_kept_and_other_id_is_crc32_of_the_key(self):
        header, _ = self.generate(HEAD + b'IDS_A\t0x12C45CA4\t"Automatic"\nIDS_AGG_DAY\t\t"Day"\n')
        self.assertIn("IDS_A = 0x12C45CA4,", header)
        self.assertIn("IDS_AGG_DAY = 0x93D0C039,", header)

    def test_ids_do_not_move_when_keys_are_added(self):
        numbers = re.compile(r"(IDS_\w+) = (0x[0-9A-F]{8}),")
        before = dict(numbers.findall(self.generate(HEAD + b'IDS_B\t\t"b"\n')[0]))
        after = dict(numbers.findall(self.generate(HEAD + b'IDS_A\t\t"a"\nIDS_B\t\t"other"\nIDS_C\t\t"c"\n')[0]))
        self.assertEqual(after["IDS_B"], before["IDS_B"])

    def test_both_maps_have_each_key_once_and_the_empty_text_for_the_rest(self):
        _, source = self.generate(HEAD + b'IDS_A\t\t"a text"\nIDP_B\t\t"b text"\n')
        for expected in ('"IDS_A"', '"a text"sv', '"IDP_B"', '"b text"sv', '""', '""sv'):
            self.assertEqual(source.count("return %s;" % expected), 1)

    def test_texts_become_literals_of_their_utf8_bytes(self):
        cases = {
            '", "': '", "',
            r'"a \"b\" \\ c\nd\te"': r'"a \"b\" \\ c\012d\011e"',
            '"\u00e910"': r'"\303\25110"',
            '"\U0001f600"': r'"\360\237\230\200"',
            '"%1 and %2"': '"%1 and %2"',
            '"100%"': '"100%"',
        }
        for quoted, expected in cases.items():
            with self.subTest(quoted):
                _, source = self.generate(HEAD + ("IDS_A\t\t%s\n" % quoted).encode("utf-8"))
                self.assertIn("return %ssv;" % expected, source)

    def test_comments_empty_lines_and_carriage_returns_are_skipped(self):
        header, _ = self.generate(b"# about\r\n\r\n" + HEAD + b'# more\n\nIDS_A\t\t"a"\r\n')
        self.assertEqual(len(re.findall(r"= 0x", header)), 1)

    def test_same_table_gives_same_files(self):
        table = HEAD + b'IDS_B\t\t"b"\nIDS_A\t\t"a"\n'
        self.assertEqual(self.generate(table), self.generate(table))

    def test_the_table_of_the_library_is_accepted(self):
        result = self.run_generator(None, os.path.join(HERE, "strings.tsv"))
        self.assertEqual((result.returncode, result.stderr), (0, b""))


class BadTables(StringsTest):
    def test_duplicate_key(self):
        self.assert_refused(HEAD + b'IDS_A\t\t"a"\nIDS_B\t\t"b"\nIDS_A\t\t"c"\n',
                            (4, "duplicate key IDS_A, first on line 2"))

    def test_duplicate_fixed_id(self):
        self.assert_refused(HEAD + b'IDS_A\t0x00000001\t"a"\nIDS_B\t0x00000001\t"b"\n',
                            (3, "duplicate id 0x00000001 of IDS_B, also of IDS_A on line 2"))

    def test_fixed_id_that_meets_a_derived_one(self):
        self.assert_refused(HEAD + b'IDS_AGG_DAY\t\t"Day"\nIDS_B\t0x93D0C039\t"b"\n',
                            (3, "duplicate id 0x93D0C039 of IDS_B, also of IDS_AGG_DAY on line 2"))

    def test_zero_id(self):
        self.assert_refused(HEAD + b'IDS_A\t0x00000000\t"a"\n', (2, "stands for no key"))

    def test_number_of_columns(self):
        self.assert_refused(HEAD + b'IDS_A\t"a"\nIDS_B\nIDS_C\t\t"c"\t\n',
                            (2, "expected 3 columns (key, id, english), found 2"),
                            (3, "found 1"),
                            (4, "found 4"))

    def test_header_line(self):
        self.assert_refused(b'IDS_A\t\t"a"\n', (1, "expected the header line"))
        self.assert_refused(b"# only a comment\n", (2, "expected the header line"))
        self.assert_refused(b"", (1, "expected the header line"))
        self.assert_refused(b"\xef\xbb\xbf" + HEAD, (1, "expected the header line"))

    def test_table_without_keys(self):
        self.assert_refused(HEAD, (2, "no rows"))

    def test_bytes_that_are_not_utf8(self):
        self.assert_refused(HEAD + b'IDS_A\t\t"a"\nIDS_B\t\t"caf\xe9"\n', (3, "not UTF-8: byte 0xE9 at column 12"))
        self.assert_refused(HEAD + b'IDS_A\t\t"\xed\xa0\x80"\n', (2, "not UTF-8"))  # a surrogate

    def test_key_form(self):
        for key in (b"", b"ids_a", b"IDS_", b"IDS_A__B", b"IDX_A", b"IDS_A B", b"IDS_\xc3\x84"):
            with self.subTest(key):
                self.assert_refused(HEAD + key + b'\t\t"a"\n', (2, "is not a key"))

    def test_id_form(self):
        for number in (b"1", b"0x1", b"0x12c45ca4", b"0X12C45CA4", b"0x112C45CA4", b" "):
            with self.subTest(number):
                self.assert_refused(HEAD + b"IDS_A\t" + number + b'\t"a"\n', (2, "is not an id"))

    def test_text_form(self):
        cases = {
            b"a": "double quotes",
            b'"': "double quotes",
            b'"a': "double quotes",
            b'"a" ': "double quotes",
            b'""': "is empty",
            b'"a"b"': "double quote inside",
            b'"a\\"': "unknown escape",
            b'"\\x"': "unknown escape",
            b'"a\x00b"': "control character U+0000",
            b'"a\x7fb"': "control character U+007F",
            b'"%2"': "place %1 is missing",
            b'"%1 %4"': "place %2 is missing",
        }
        for quoted, fault in cases.items():
            with self.subTest(quoted):
                self.assert_refused(HEAD + b"IDS_A\t\t" + quoted + b"\n", (2, fault))

    def test_all_faults_are_listed(self):
        self.assert_refused(HEAD + b'bad\t\t"a"\nIDS_A\t\t"a"\nIDS_A\t\t"a"\nIDS_B\t\ta\n',
                            (2, "is not a key"), (4, "duplicate key"), (5, "double quotes"))

    def test_table_that_is_not_there(self):
        result = self.run_generator(None)
        self.assertEqual(result.returncode, 1)
        self.assertIn(("%s:1: error: " % self.table).encode(), result.stderr)

    def test_a_refused_table_leaves_earlier_output_alone(self):
        before = self.generate(HEAD + b'IDS_A\t\t"a"\n')
        result = self.run_generator(HEAD + b"bad\n")
        self.assertEqual(result.returncode, 1)
        with open(self.header, encoding="utf-8") as header, open(self.source, encoding="ascii") as source:
            self.assertEqual((header.read(), source.read()), before)


if __name__ == "__main__":
    unittest.main()
