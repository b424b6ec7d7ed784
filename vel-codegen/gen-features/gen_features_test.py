#!/usr/bin/env python3
"""Tests of gen_features.py, run as a program of its own: what the build sees is what is tested."""

import os
import re
import unittest

from gen_features import COLUMNS, MATURITIES
from generator_testing import GeneratorTest  # gen_features tells where
from make_up_features import made_up_table

HERE = os.path.dirname(os.path.abspath(__file__))
HEAD = "\t".join(COLUMNS) + "\n"
GOOD = {"id": "7", "maturity": "Trial", "default": "on", "team": "A team", "scrumAlias": "ATeam", "tfsId": "789291",
        "removalDate": "2019-11-5", "toggle": "none", "name": "GoodFlag", "description": "What it does."}


def row(**cells):
    return "\t".join({**GOOD, **cells}.values()) + "\n"


class FeaturesTest(GeneratorTest):
    generator = os.path.join(HERE, "gen_features.py")


class GoodTables(FeaturesTest):
    def test_a_row_becomes_an_enumerator_and_a_row(self):
        header, source = self.generate(HEAD + row())
        self.assertIn("    GoodFlag = 7u,  ///< What it does.\n", header)
        self.assertIn('{7u, FeatureMaturity::Trial, true, "A team", "ATeam", "789291", "2019-11-5", "none", '
                      '"GoodFlag", "What it does."},', source)

    def test_each_column_may_take_every_word_of_its_own(self):
        for column, texts in {"maturity": list(MATURITIES), "toggle": ["", "none", "restart"],
                              "tfsId": ["", "0", "000000", "789291"],
                              "removalDate": ["", "2019-11-5", "2019-1-05", "3000-01-01", "2024-02-29"],
                              "id": ["1", "4294967295", "2147483648"],
                              "name": ["A", "DummyFeature3_Enabled", "PDF_V2", "Ab1"]}.items():
            for text in texts:
                with self.subTest(column=column, text=text):
                    self.assertIn(text, self.generate(HEAD + row(**{column: text}))[1])
        self.assertIn("Trial, false, ", self.generate(HEAD + row(default="off"))[1])

    def test_texts_become_literals_of_their_utf8_bytes(self):
        header, source = self.generate(HEAD + row(description='"é" \\ 😀', team="a b"))
        self.assertIn(r'"\"\303\251\" \\ \360\237\230\200"', source)
        self.assertIn('///< "é" \\\\ 😀\n', header)

    def test_comments_empty_lines_and_carriage_returns_are_skipped(self):
        header, _ = self.generate("# about\r\n\r\n" + HEAD + "# more\n\n" + row().replace("\n", "\r\n"))
        self.assertEqual(len(re.findall(r"= \d+u,", header)), 1)

    def test_a_thousand_rows_come_out_in_their_order(self):
        table = made_up_table()
        header, source = self.generate(table)
        cells = [line.split("\t") for line in table.splitlines()[1:]]
        self.assertEqual(len(cells), 1015)
        self.assertEqual(sum(line[2] == "on" for line in cells), 673)
        self.assertEqual(re.findall(r"^    (\w+) = (\d+)u,", header, re.M), [(line[8], line[0]) for line in cells])
        rows = re.findall(r'^    {(\d+)u, FeatureMaturity::(\w+), (true|false), (".*")},$', source, re.M)
        self.assertEqual([found[:3] for found in rows],
                         [(line[0], line[1], "true" if line[2] == "on" else "false") for line in cells])
        for found, line in zip(rows, cells):
            texts = [self.text_of(text) for text in re.findall(r'"((?:[^"\\]|\\.)*)"', found[3])]
            self.assertEqual(texts, line[3:])

    @staticmethod
    def text_of(literal):
        """The text of a C++ narrow literal."""
        def unescaped(match):
            escape = match.group(1)
            return bytes([int(escape, 8)]) if escape[0] in b"0123" else escape
        return re.sub(rb"\\([0-3][0-7]{2}|.)", unescaped, literal.encode("ascii")).decode("utf-8")

    def test_the_made_up_table_is_the_same_every_time_and_its_lookups_are_unambiguous(self):
        self.assertEqual(made_up_table(), made_up_table())
        cells = [line.split("\t") for line in made_up_table().splitlines()[1:]]
        self.assertEqual(len({line[0] for line in cells}), 1015)
        self.assertEqual(len({line[8].lower() for line in cells}), 1015)

    def test_the_table_of_the_library_is_accepted(self):
        result = self.run_generator(None, os.path.join(HERE, "CoredataFeatureFlagIds.tsv"))
        self.assertEqual((result.returncode, result.stderr), (0, b""))


class BadTables(FeaturesTest):
    def test_duplicate_id(self):
        self.assert_refused(HEAD + row() + row(id="8", name="B") + row(name="C"),
                            (4, "duplicate id 7 of C, also of GoodFlag on line 2"))

    def test_duplicate_name(self):
        self.assert_refused(HEAD + row() + row(id="8"),
                            (3, "duplicate name GoodFlag, also GoodFlag on line 2"))

    def test_names_that_differ_in_case_only(self):
        self.assert_refused(HEAD + "# about\n" + row() + row(id="8", name="GOODFlag") + row(id="9", name="Goodflag"),
                            (4, "duplicate name GOODFlag, also GoodFlag on line 3, as case does not count"),
                            (5, "duplicate name Goodflag, also GoodFlag on line 3"))

    def test_dates(self):
        for date in ("2019-11", "2019-11-5 ", "19-11-05", "2019/11/05", "5.11.2019", "2019-011-5", "soon", "2019-11-5-1"):
            with self.subTest(date):
                self.assert_refused(HEAD + row(removalDate=date), (2, "is not of the form year-month-day"))
        for date in ("2019-13-1", "2019-0-1", "2019-2-29", "2019-4-31", "2019-1-0", "0000-1-1"):
            with self.subTest(date):
                self.assert_refused(HEAD + row(removalDate=date), (2, "removalDate '%s': " % date))

    def test_maturity(self):
        for word in ("", "5", "1", "trial", "Trial ", "Ready"):
            with self.subTest(word):
                self.assert_refused(HEAD + row(maturity=word),
                                    (2, "unknown maturity '%s': expected one of Unclassified, Development, Trial, "
                                        "Released, Settled" % word))

    def test_other_words(self):
        for column, word in (("default", ""), ("default", "true"), ("default", "On"), ("toggle", "reboot"),
                             ("toggle", "None")):
            with self.subTest(column=column, word=word):
                self.assert_refused(HEAD + row(**{column: word}), (2, "unknown %s '%s'" % (column, word)))

    def test_id_form(self):
        for number in ("", "0", "007", "+7", "-7", "0x7", "4294967296", "99999999999", "7 ", "٧"):
            with self.subTest(number):
                self.assert_refused(HEAD + row(id=number), (2, "'%s' is not an id" % number))

    def test_name_form(self):
        for name in ("", "dummy", "1st", "Two Words", "Two-Words", "Ünder", "A__B", "A_", "_A", "A\u200b"):
            with self.subTest(name):
                self.assert_refused(HEAD + row(name=name), (2, "'%s' is not a name" % name))

    def test_work_item_form(self):
        for text in ("TFS1", "-1", " ", "12 34", "١"):
            with self.subTest(text):
                self.assert_refused(HEAD + row(tfsId=text), (2, "tfsId '%s' is not a number" % text))

    def test_free_texts(self):
        for column in ("team", "scrumAlias", "description"):
            for text, fault in (("", "is empty"), (" a", "blanks around"), ("a ", "blanks around"),
                                ("a\x00b", "control character U+0000"), ("a\x7fb", "control character U+007F"),
                                ("a\u2028b", "control character U+2028"), ("a\u202eb", "control character U+202E")):
                with self.subTest(column=column, text=text):
                    self.assert_refused(HEAD + row(**{column: text}), (2, fault))

    def test_number_of_columns(self):
        self.assert_refused(HEAD + "7\n" + row().replace("\n", "\t\n"),
                            (2, "expected 10 columns"), (3, "found 11"))

    def test_header_line(self):
        self.assert_refused(row(), (1, "expected the header line"))
        self.assert_refused("", (1, "expected the header line"))
        self.assert_refused("\ufeff" + HEAD, (1, "expected the header line"))

    def test_table_without_rows(self):
        self.assert_refused(HEAD, (2, "no rows"))

    def test_bytes_that_are_not_utf8(self):
        self.assert_refused(HEAD.encode() + row().encode() + b"8\t\xff\n", (3, "not UTF-8: byte 0xFF at column 3"))

    def test_all_faults_are_listed_in_the_order_of_the_lines(self):
        self.assert_refused(HEAD.encode() + row().encode() + row(maturity="x").encode() + b"\xff\n" + row().encode(),
                            (3, "unknown maturity"), (4, "not UTF-8"), (5, "duplicate id"), (5, "duplicate name"))

    def test_table_that_is_not_there(self):
        result = self.run_generator(None)
        self.assertEqual(result.returncode, 1)
        self.assertIn(("%s:1: error: " % self.table).encode(), result.stderr)

    def test_a_refused_table_leaves_earlier_output_alone(self):
        before = self.generate(HEAD + row())
        result = self.run_generator(HEAD + row(id="0"))
        self.assertEqual(result.returncode, 1)
        with open(self.header, encoding="utf-8") as header, open(self.source, encoding="ascii") as source:
            self.assertEqual((header.read(), source.read()), before)


if __name__ == "__main__":
    unittest.main()
