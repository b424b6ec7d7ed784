#!/usr/bin/env python3
"""Runs typedtable on dates as people write them. usage: typedtable_dates_test.py PROGRAM EXAMPLES_FOLDER"""

import csv
import datetime
import os
import sys
import unittest

from typedtable_program import EXAMPLES, Program, run

MONTHS = os.path.join(EXAMPLES, "data", "seattle-months.csv")
GERMAN = ["Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober", "November",
          "Dezember"]


def print_of(*arguments, stdin=None):
    result = run(*arguments, stdin=stdin)
    assert result.returncode == 0, result.stderr.decode()
    return result.stdout.decode()


def report_of(text):
    """The lines of the table of dates, split at their columns."""
    lines = text.split("\n")
    start = next(i for i, line in enumerate(lines) if line.startswith("dates "))
    end = next(i for i in range(start, len(lines) + 1) if i == len(lines) or not lines[i])
    return [[cell.strip() for cell in line.split("  ") if cell.strip()] for line in lines[start + 1:end]]


def types_of(text):
    lines = text.split("\n")[3:]
    return {line.split()[0]: line.split()[1] for line in lines[:lines.index("")]}


class Dates(Program):
    def column(self, cells, *arguments):
        rows = "".join('"%s",1\n' % cell for cell in cells)
        return print_of(self.write("when,n\n" + rows), *arguments)

    def test_finds_the_dates_of_a_file(self):
        text = print_of(MONTHS, "--dates-in", "en_US", "--rows", "2")
        self.assertEqual(types_of(text), {"month": "DATE", "precipitation": "REAL", "warmest": "REAL",
                                          "coldest": "REAL"})
        self.assertEqual(report_of(text), [["month", "(own styles)", "48", "0", "-", "-"]])
        self.assertTrue(text.endswith("2012-01-01          173.3     12.8     -3.3\n"
                                      "2012-02-01           92.3     16.1     -2.2\n"), text)

    def test_leaves_texts_alone_without_the_option(self):
        self.assertEqual(types_of(print_of(MONTHS))["month"], "STRING")

    def test_groups_by_what_it_read(self):
        sums = {}
        with open(MONTHS, newline="") as file:
            for row in csv.DictReader(file):
                date = datetime.datetime.strptime(row["month"], "%b %d %Y")
                sums[date.year] = sums.get(date.year, 0) + float(row["precipitation"])
        text = print_of(MONTHS, "--dates-in", "en_US", "--group-by", "month:year", "--sum", "precipitation")
        lines = [line.split() for line in text.split("\n")[1:-2]]
        self.assertEqual([line[0] for line in lines], [f"{year}-01-01" for year in sums])
        for line, total in zip(lines, sums.values()):
            self.assertAlmostEqual(float(line[2]), total)

    def test_prints_in_the_words_of_a_locale(self):
        text = print_of(MONTHS, "--dates-in", "en_US", "--dates-as", "d. MMMM yyyy", "--locale", "de_DE",
                        "--where", "coldest < 99")
        dates = [line.split("  ")[0] for line in text.split("\n")[1:-2]]
        self.assertEqual(dates, [f"1. {GERMAN[i % 12]} {2012 + i // 12}" for i in range(48)])

    def test_prints_dates_of_every_task_by_the_pattern(self):
        path = self.write("when,n\n2012-01-31,1\n2012-02-01T06:30,2\n")
        self.assert_prints("when              n\n31/01/2012 00:00  1\n01/02/2012 06:30  2\n2 rows\n", path, "--sort", "when",
                           "--dates-as", "dd/MM/yyyy HH:mm")
        self.assert_prints("min(when)         max(when)\n31/01/2012 00:00  01/02/2012 06:30\n2 rows\n", path, "--min",
                           "when", "--max", "when", "--dates-as", "dd/MM/yyyy HH:mm")
        self.assertIn("1 period from January to January",
                      print_of(path, "--group-by", "when:year", "--dates-as", "MMMM"))
        self.assertIn("janvier", print_of(path, "--dates-as=MMMM", "--locale", "fr_FR"))

    def test_tells_day_first_from_month_first_with_both_counts(self):
        text = self.column(["01/02/2020", "13/02/2020", "05/06/2020"], "--dates-in", "en_US")
        self.assertEqual(report_of(text), [["when", "dd/MM/yyyy", "3", "0", "3", "2"]])
        self.assertIn("2020-02-01  1\n2020-02-13  1\n2020-06-05  1\n", text)

        text = self.column(["01/02/2020", "02/13/2020", "05/06/2020"], "--dates-in", "en_US")
        self.assertEqual(report_of(text)[0][2:], ["3", "0", "2", "3"])
        self.assertIn("2020-01-02  1\n2020-02-13  1\n2020-05-06  1\n", text)

    def test_cells_that_disagree_are_counted_and_read_by_their_own_pattern(self):
        text = self.column(["01/14/2020", "02/15/2020", "16/03/2020", "2020-04-17"], "--dates-in", "en_US")
        self.assertEqual(report_of(text)[0][2:], ["2", "2", "1", "2"])
        self.assertIn("2020-01-14  1\n2020-02-15  1\n2020-03-16  1\n2020-04-17  1\n", text)

    def test_cells_that_disagree_are_told_of_with_every_task(self):
        path = self.write("when\n01/14/2020\n02/15/2020\n2020-04-17\n")
        result = run(path, "--dates-in", "en_US", "--sort", "when")
        self.assertEqual(result.returncode, 0)
        self.assertEqual(result.stdout.decode(), "when\n2020-01-14\n2020-02-15\n2020-04-17\n3 rows\n")
        self.assertEqual(result.stderr.decode(),
                         path + ': column "when": 1 of 3 cells are not written as MM/dd/yyyy\n')
        self.assertEqual(run(path, "--dates-in", "en_US").stderr, b"")

    def test_what_is_ambiguous_is_read_as_the_locale_has_it(self):
        cells = ["01/02/2020", "03/04/2020"]
        self.assertIn("2020-01-02  1\n2020-03-04  1\n", self.column(cells, "--dates-in", "en_US"))
        text = self.column(cells, "--dates-in", "en_GB")
        self.assertIn("2020-02-01  1\n2020-04-03  1\n", text)
        self.assertEqual(report_of(text)[0][2:], ["2", "0", "2", "2"])

    def test_reads_the_words_of_a_locale(self):
        text = self.column(["2. Januar 2020", "15. März 2021", "5.1.2020", "", " "], "--dates-in", "de_DE")
        self.assertEqual(types_of(text)["when"], "DATE")
        self.assertIn("2020-01-02  1\n2021-03-15  1\n2020-01-05  1\n%null%      1\n%null%      1\n", text)
        self.assertEqual(report_of(text)[0][2:4], ["3", "0"])
        self.assertIn("2021-03-15", self.column(["15 mars 2021"], "--dates-in", "fr_FR"))
        self.assertIn("2021-03-15", self.column(["2021年3月15日"], "--dates-in", "ja_JP"))

    def test_reads_times_of_day(self):
        text = self.column(["2020-01-02 10:30 PM", "Jan 5, 2020"], "--dates-in", "en_US")
        self.assertEqual(types_of(text)["when"], "DATETIME")
        self.assertIn("2020-01-02 22:30:00  1\n2020-01-05 00:00:00  1\n", text)

    def test_a_column_with_anything_else_stays_text(self):
        for cells in (["Jan 1 2000", "unknown"], ["Jan 1 2000", "Feb 30 2000"], ["007", "008"], ["10:30 PM"],
                      ["January"], ["May 2020"], ["12-Jan"], ["Jan 1 2000", "7"]):
            text = self.column(cells, "--dates-in", "en_US")
            self.assertEqual(types_of(text)["when"], "STRING", cells)
            self.assertNotIn("day first", text)

    def test_types_that_are_known_stay(self):
        text = print_of(self.write("a,b\n2020-01-02,20200102\n"), "--dates-in", "en_US")
        self.assertEqual(types_of(text), {"a": "DATE", "b": "INTEGER"})
        self.assertNotIn("day first", text)

    def test_reads_standard_input(self):
        text = print_of("-", "--dates-in", "en_US", "--sort", "d", stdin=b"d\nFeb 1 2000\nJan 1 2000\n")
        self.assertEqual(text, "d\n2000-01-01\n2000-02-01\n2 rows\n")

    def test_tells_the_order_of_a_locale(self):
        self.assert_prints("en_US: month, day, year (M/d/yyyy)\n", "--date-order", "en_US")
        self.assert_prints("de_DE: day, month, year (dd.MM.yyyy)\n", "--date-order", "de_DE")
        self.assert_prints("ja_JP: year, month, day (yyyy/MM/dd)\n", "--date-order=ja_JP")

    def test_refuses(self):
        path = self.write("a\nJan 1 2000\n")
        self.assert_refuses('--dates-in: "zz_QQ" is not a known locale, as de_DE is', path, "--dates-in", "zz_QQ")
        self.assert_refuses('--date-order: "zz_QQ" is not a known locale, as de_DE is', "--date-order", "zz_QQ")
        self.assert_refuses('--locale: "zz_QQ" is not a known locale, as sv_SE is', path, "--dates-as", "yyyy",
                            "--locale", "zz_QQ")
        self.assert_refuses('--dates-as: "jj" is not a pattern of dates, as "d. MMMM yyyy" is', path, "--dates-as",
                            "jj")
        self.assert_refuses("--dates-in is given twice", path, "--dates-in", "de_DE", "--dates-in", "de_DE")
        self.assert_refuses("--dates-as: the value is empty", path, "--dates-as", "")
        self.assert_refuses("--date-order stands alone", path, "--date-order", "de_DE")
        self.assert_refuses("--locale needs --sort, --distinct, --find, --where, --min, --max, --dates-as or --format", path,
                            "--locale", "de_DE", "--dates-in", "de_DE")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
