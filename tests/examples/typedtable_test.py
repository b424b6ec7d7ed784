#!/usr/bin/env python3
"""Runs typedtable as its user does. usage: typedtable_test.py PROGRAM EXAMPLES_FOLDER

Expected group tables come from this file's own calendar arithmetic over Python's datetime.
"""

import csv
import datetime
import math
import os
import subprocess
import sys
import unittest

from typedtable_program import EXAMPLES, PROGRAM, WEATHER, Program, print_table, run

DAY = datetime.timedelta(days=1)


# --- the calendar, once more -----------------------------------------------------------------------------------------

def months_back(date, months):
    count = date.year * 12 + date.month - 1 - months
    return datetime.date(count // 12, count % 12 + 1, 1)


def iso_year_start(year):
    return datetime.date.fromisocalendar(year, 1, 1)


def start_and_name(date, period, fiscal=1, week=None):
    iso_year, iso_week, _ = date.isocalendar()
    in_fiscal = (date.month - fiscal) % 12
    fiscal_year = date.year + (1 if fiscal != 1 and date.month >= fiscal else 0)
    prefix = "FY" if fiscal != 1 else ""
    if period == "year":
        return months_back(date, in_fiscal), f"{prefix}{fiscal_year:04}"
    if period == "quarter":
        return months_back(date, in_fiscal % 3), f"{prefix}{fiscal_year:04} Q{in_fiscal // 3 + 1}"
    if period == "month":
        return date.replace(day=1), f"{date.year:04}-{date.month:02}"
    if period == "day":
        return date, None
    if period == "iso-year":
        return iso_year_start(iso_year), f"{iso_year:04}"
    if period == "iso-quarter":
        quarter = min((iso_week - 1) // 13, 3)
        return iso_year_start(iso_year) + 91 * quarter * DAY, f"{iso_year:04}-Q{quarter + 1}"
    first = week or (2 if period == "iso-week" else 1)  # 1 = Sunday
    start = date - (date.isoweekday() % 7 + 1 - first) % 7 * DAY
    return start, f"{iso_year:04}-W{iso_week:02}" if period == "iso-week" and first == 2 else None


def periods_between(first, last, period):
    """From one start of a period to another one, both counted."""
    if period in ("year", "quarter", "month"):
        months = (last.year - first.year) * 12 + last.month - first.month
        return months // {"year": 12, "quarter": 3, "month": 1}[period] + 1
    if period == "iso-year":
        return last.isocalendar()[0] - first.isocalendar()[0] + 1
    if period == "iso-quarter":
        def number(date):
            year, week, _ = date.isocalendar()
            return year * 4 + (week - 1) // 13
        return number(last) - number(first) + 1
    return (last - first).days // (1 if period == "day" else 7) + 1


def expected_groups(rows, column, period, items, fiscal=1, week=None):
    """`rows`: dictionaries of texts; `items`: pairs of option and column, None for a count."""
    groups = {}
    for row in rows:
        key = start_and_name(datetime.date.fromisoformat(row[column][:10]), period, fiscal, week)
        groups.setdefault(key, []).append(row)
    has_names = next(iter(groups))[1] is not None
    titles = [f"{column}:{period}"] + ([period] if has_names else [])
    titles += [option if name is None else f"{option}({name})" for option, name in items]
    right = [False] * (2 if has_names else 1)
    right += [option == "count" or name != column for option, name in items]
    table = []
    for (start, name), members in sorted(groups.items()):
        line = [start.isoformat()] + ([name] if has_names else [])
        for option, column_of_item in items:
            if option == "count":
                line.append(str(len(members)))
                continue
            texts = [row[column_of_item] for row in members if row[column_of_item]]
            if not texts:
                line.append("%null%")
            elif column_of_item == column:
                line.append({"min": min, "max": max}[option](texts))
            else:
                numbers = [float(text) for text in texts]
                total = math.fsum(numbers)
                line.append("%.15g" % {"sum": total, "mean": total / len(numbers), "min": min(numbers),
                                       "max": max(numbers)}[option])
        table.append(line)
    first, last = min(groups)[0], max(groups)[0]
    count = periods_between(first, last, period)
    empty = count - len(groups)
    span = f"{count} period{'' if count == 1 else 's'} from {first} to {last}"
    return print_table(titles, right, table) + span + (f", {empty} of them without rows" if empty else "") + "\n"


class Schema(Program):
    def test_weather(self):
        self.assert_prints(f"""\
{WEATHER}: 2922 rows, 7 columns

column         type    nulls
location       STRING      0
date           DATE        0
precipitation  REAL        0
temp_max       REAL        0
temp_min       REAL        0
wind           REAL        0
weather        STRING      0

location  date        precipitation  temp_max  temp_min  wind  weather
Seattle   2012-01-01              0      12.8         5   4.7  drizzle
Seattle   2012-01-02           10.9      10.6       2.8   4.5  rain
""", WEATHER, "--rows", "2")

    def test_shows_five_rows_unless_told_otherwise(self):
        self.assertEqual(len(run(WEATHER).stdout.splitlines()), 2 + 8 + 1 + 6)
        self.assertEqual(len(run(WEATHER, "--rows=0").stdout.splitlines()), 2 + 8)
        self.assertEqual(len(run(WEATHER, "--rows", "7").stdout.splitlines()), 2 + 8 + 1 + 8)

    EVERY_TYPE = ("i,r,b,d,t,s,none\r\n"
                  "1,1,true,2012-02-29,2012-02-29,\"say \"\"so\"\"\",\r\n"
                  ",-2.5e-3,FALSE,,2012-02-29T23:59:59.25,\"two\r\nlines, one cell\",\r\n"
                  "-3,,,1999-12-31,,,\r\n")
    EVERY_TYPE_PRINTED = """\
{}: 3 rows, 7 columns

column  type      nulls
i       INTEGER       1
r       REAL          1
b       BOOLEAN       1
d       DATE          1
t       DATETIME      1
s       STRING        1
none    STRING        3

     i        r  b       d           t                         s                       none
     1        1  true    2012-02-29  2012-02-29 00:00:00       say "so"                %null%
%null%  -0.0025  false   %null%      2012-02-29 23:59:59.2500  two\\r\\nlines, one cell  %null%
    -3   %null%  %null%  1999-12-31  %null%                    %null%                  %null%
"""

    def test_every_type_with_quotes_and_nulls(self):
        path = self.write(self.EVERY_TYPE)
        self.assert_prints(self.EVERY_TYPE_PRINTED.format(path), path)

    def test_byte_order_mark(self):
        path = self.write(b"\xEF\xBB\xBF" + self.EVERY_TYPE.encode())
        self.assert_prints(self.EVERY_TYPE_PRINTED.format(path), path)

    def test_standard_input(self):
        self.assert_prints(self.EVERY_TYPE_PRINTED.format("standard input"), "-", stdin=self.EVERY_TYPE.encode())

    def test_standard_input_from_the_middle_of_a_file(self):
        path = self.write("skipped\na\n1\n")
        with open(path, "rb") as text:
            os.lseek(text.fileno(), len("skipped\n"), os.SEEK_SET)
            result = subprocess.run([PROGRAM, "-", "--rows=0"], stdin=text, capture_output=True, timeout=60)
        self.assertEqual(result.stdout.decode().splitlines()[0], "standard input: 1 row, 1 column")

    def test_header_alone(self):
        path = self.write("a,b")
        self.assert_prints(f"{path}: 0 rows, 2 columns\n\ncolumn  type    nulls\na       STRING      0\n"
                           "b       STRING      0\n", path)

    def test_column_without_a_name(self):
        path = self.write("a,\n1,2\n")
        self.assert_prints(f"{path}: 1 row, 2 columns\n\ncolumn    type     nulls\na         INTEGER      0\n"
                           "column 2  INTEGER      0\n\na  column 2\n1         2\n", path)

    def test_help(self):
        for arguments in (["--help"], ["--nonsense", "--help"], ["missing.csv", "--help"]):
            result = run(*arguments)
            self.assertEqual((result.returncode, result.stderr), (0, b""))
            self.assertTrue(result.stdout.startswith(b"usage: typedtable FILE"))


class Groups(Program):
    def weather(self):
        with open(WEATHER, newline="", encoding="utf-8") as text:
            return list(csv.DictReader(text))

    def test_every_period_of_the_weather(self):
        items = [("sum", "precipitation"), ("mean", "wind"), ("min", "temp_min"), ("max", "temp_max"), ("count", None),
                 ("min", "date"), ("max", "date")]
        arguments = [word for option, column in items for word in (["--" + option] + ([column] if column else []))]
        cases = [(period, {}) for period in ("year", "quarter", "month", "week", "day", "iso-year", "iso-quarter",
                                             "iso-week")]
        cases += [(period, {"fiscal": month}) for period in ("year", "quarter") for month in range(1, 13)]
        cases += [(period, {"week": day}) for period in ("week", "iso-week") for day in range(1, 8)]
        rows = self.weather()
        for period, settings in cases:
            options = {"fiscal": "--fiscal-start", "week": "--week-start"}
            more = [word for key, value in settings.items() for word in (options[key], str(value))]
            with self.subTest(period=period, **settings):
                self.assert_prints(expected_groups(rows, "date", period, items, **settings),
                                   WEATHER, "--group-by", "date:" + period, *arguments, *more)

    def test_one_quarter_checked_by_hand(self):
        """Lines `2015-1[012]-` of weather.csv: the sum of the third cells is 878.4, the largest fourth cell 23.9."""
        result = run(WEATHER, "--group-by", "date:quarter", "--fiscal-start", "4", "--sum", "precipitation", "--max",
                     "temp_max")
        lines = result.stdout.decode().splitlines()
        self.assertEqual(lines[0], "date:quarter  quarter    sum(precipitation)  max(temp_max)")
        self.assertEqual(lines[-2], "2015-10-01    FY2016 Q3               878.4           23.9")
        self.assertEqual(lines[-1], "16 periods from 2012-01-01 to 2015-10-01")

    def test_times_and_gaps(self):
        days = ["2015-12-31 23:59:59.9999", "2016-01-03T00:00", "2016-01-04", "2020-12-31 12:00", "2021-01-01 12:00",
                "2020-02-29 00:00", "1999-12-31 00:00:01", "0400-01-03", "9999-12-31 23:59:59"]
        path = self.write("when,n\n" + "".join(f"{day},{number}\n" for number, day in enumerate(days)))
        rows = [{"when": day, "n": str(number)} for number, day in enumerate(days)]
        for period in ("year", "quarter", "month", "week", "day", "iso-year", "iso-quarter", "iso-week"):
            with self.subTest(period=period):
                self.assert_prints(expected_groups(rows, "when", period, [("count", None), ("sum", "n")]),
                                   path, "--group-by", "when:" + period, "--count", "--sum", "n")

    def test_rows_without_a_date_and_nulls(self):
        path = self.write("d,i,r\n2020-05-01,1,\n,5,2.5\n2020-07-01,,\n,,1\n2020-05-31,2,\n")
        self.assert_prints("""\
d:month     month    sum(i)  mean(r)  min(i)  count
%null%      %null%        5     1.75       5      2
2020-05-01  2020-05       3   %null%       1      2
2020-07-01  2020-07  %null%   %null%  %null%      1
3 periods from 2020-05-01 to 2020-07-01, 1 of them without rows
""",
                           path, "--group-by", "d:month", "--sum", "i", "--mean", "r", "--min", "i", "--count")

    def test_no_rows_and_no_dates(self):
        path = self.write("d,i\n2020-05-01,1\n")
        self.assert_prints("d:day       count\n2020-05-01      1\n1 period from 2020-05-01 to 2020-05-01\n",
                           path, "--group-by", "d:day")

    def test_column_names_with_colons(self):
        path = self.write("a:b\n2020-05-01\n")
        self.assert_prints("a:b:year    year  count\n2020-01-01  2020      1\n1 period from 2020-01-01 to 2020-01-01\n",
                           path, "--group-by", "a:b:year")

    def test_a_pipe_is_read_twice(self):
        with open(WEATHER, "rb") as text:
            weather = text.read()
        expected = run(WEATHER, "--group-by", "date:year").stdout
        for path in ("-", "/dev/stdin"):
            result = run(path, "--group-by", "date:year", stdin=weather)
            self.assertEqual((result.returncode, result.stdout), (0, expected), result.stderr)

    def test_standard_input_from_the_middle_of_a_file_is_read_twice(self):
        path = self.write("skipped\na\n2020-05-01\n")
        with open(path, "rb") as text:
            os.lseek(text.fileno(), len("skipped\n"), os.SEEK_SET)
            result = subprocess.run([PROGRAM, "-", "--group-by", "a:day"], stdin=text, capture_output=True, timeout=60)
        self.assertEqual(result.stdout.decode(),
                         "a:day       count\n2020-05-01      1\n1 period from 2020-05-01 to 2020-05-01\n")


class Refusals(Program):
    def test_files(self):
        self.assert_refuses("no/such.csv: No such file or directory", "no/such.csv")
        self.assert_refuses(f"{self.folder}: is a folder, not a file", self.folder)
        for text in ("", "\n\r\n", "\ufeff"):
            path = self.write(text)
            self.assert_refuses(f"{path}: the file is empty: no header", path)
        self.assert_refuses("standard input: the file is empty: no header", "-", stdin=b"")

    @unittest.skipIf(os.geteuid() == 0, "root reads everything")
    def test_file_without_permission(self):
        path = self.write("a\n1\n")
        os.chmod(path, 0)
        self.assert_refuses(f"{path}: Permission denied", path)

    def test_bad_text(self):
        for text, error in ((b"a,b\n1,2\n3\n", "line 3: 1 cell where the header has 2"),
                            (b"a,b\r\n1,2,3\r\n", "line 2: 3 cells where the header has 2"),
                            (b"a\n\"b\nc\n", "line 2: a quote is never closed"),
                            (b"a\n\"b\"c\n", "line 2: text behind a closing quote"),
                            (b"a\ncaf\xE9\n", "line 2: text that is not UTF-8"),
                            (b"a\nb\0\n", "line 2: a zero byte: this is not a text file")):
            path = self.write(text)
            with self.subTest(text=text):
                self.assert_refuses(f"{path}: {error}", path)
                self.assert_refuses(f"{path}: {error}", path, "--group-by", "a:year")

    def test_a_device_without_end(self):
        self.assert_refuses("/dev/zero: line 1: a zero byte: this is not a text file", "/dev/zero")
        self.assert_refuses("/dev/zero: line 1: a zero byte: this is not a text file", "/dev/zero", "--group-by", "a:day")

    def test_columns(self):
        self.assert_refuses(f'{WEATHER}: no column is named "day"', WEATHER, "--group-by", "day:year")
        self.assert_refuses(f'{WEATHER}: no column is named "rain"', WEATHER, "--group-by", "date:year", "--sum", "rain")
        self.assert_refuses(f'{WEATHER}: --group-by: column "location" is STRING, not DATE or DATETIME',
                            WEATHER, "--group-by", "location:year")
        self.assert_refuses(f'{WEATHER}: --sum: column "date" is DATE, not a number',
                            WEATHER, "--group-by", "date:year", "--sum", "date")
        self.assert_refuses(f'{WEATHER}: --mean: column "weather" is STRING, not a number',
                            WEATHER, "--group-by", "date:year", "--mean", "weather")
        self.assert_refuses(f'{WEATHER}: no column is named "two\\nlines"', WEATHER, "--group-by", "two\nlines:year")
        path = self.write("d,d,n\n2020-01-01,2020-01-01,1\n")
        self.assert_refuses(f'{path}: more than one column is named "d"', path, "--group-by", "d:year")

    def test_values(self):
        path = self.write("d,n\n2020-01-01,9223372036854775807\n2020-01-02,1\n")
        self.assert_refuses(f"{path}: a sum of integers is beyond 64 bits", path, "--group-by", "d:year", "--sum", "n")
        path = self.write("d\n2020-01-01\n0400-01-01\n")
        self.assert_refuses(f"{path}: line 3: the week of 0400-01-01 begins before the year 400, where the calendar ends",
                            path, "--group-by", "d:week")
        self.assert_refuses(f"{path}: line 3: the year of 0400-01-01 begins before the year 400, where the calendar ends",
                            path, "--group-by", "d:year", "--fiscal-start", "4")

    def test_options(self):
        periods = "year, quarter, month, week, day, iso-year, iso-quarter, iso-week"
        group = ["--group-by", "date:year"]
        for arguments, error in (
                ([], "no file is given; typedtable --help shows the usage"),
                ([""], "a file name is empty"),
                ([WEATHER, WEATHER], f'more than one file: "{WEATHER}" and "{WEATHER}"'),
                ([WEATHER, "--frob"], 'unknown option "--frob"; typedtable --help lists them'),
                ([WEATHER, "-x"], 'unknown option "-x"; typedtable --help lists them'),
                ([WEATHER, "--rows"], "--rows needs a value"),
                ([WEATHER, "--rows", "--count"], "--rows needs a value"),
                ([WEATHER, "--rows", "many"], '--rows: "many" is not a number from 0 to 1000000'),
                ([WEATHER, "--rows", "-1"], '--rows: "-1" is not a number from 0 to 1000000'),
                ([WEATHER, "--rows", "5x"], '--rows: "5x" is not a number from 0 to 1000000'),
                ([WEATHER, "--rows="], '--rows: "" is not a number from 0 to 1000000'),
                ([WEATHER, "--rows", "1000001"], '--rows: "1000001" is not a number from 0 to 1000000'),
                ([WEATHER, "--rows", "99999999999"], '--rows: "99999999999" is not a number from 0 to 1000000'),
                ([WEATHER, "--rows", "1", "--rows", "1"], "--rows is given twice"),
                ([WEATHER, *group, *group], "--group-by is given twice"),
                ([WEATHER, *group, "--rows", "3"], "--rows shows rows and --group-by shows groups: give one of them"),
                ([WEATHER, *group, "--count=3"], "--count takes no value"),
                ([WEATHER, "--group-by", "date"], '--group-by: "date" is not COLUMN:PERIOD'),
                ([WEATHER, "--group-by", ":year"], '--group-by: ":year" is not COLUMN:PERIOD'),
                ([WEATHER, "--group-by", "date:"], f'--group-by: "" is not a period: {periods}'),
                ([WEATHER, "--group-by", "date:decade"], f'--group-by: "decade" is not a period: {periods}'),
                ([WEATHER, *group, "--fiscal-start", "0"], '--fiscal-start: "0" is not a number from 1 to 12'),
                ([WEATHER, *group, "--fiscal-start", "13"], '--fiscal-start: "13" is not a number from 1 to 12'),
                ([WEATHER, "--group-by", "date:week", "--week-start", "8"],
                 '--week-start: "8" is not a number from 1 to 7'),
                ([WEATHER, "--fiscal-start", "4"], "--fiscal-start needs --group-by"),
                ([WEATHER, "--week-start", "4"], "--week-start needs --group-by"),
                ([WEATHER, *group, "--week-start", "1"], "--week-start moves weeks, not years"),
                ([WEATHER, *group, "--sum"], "--sum needs a value"),
        ) + tuple(
            ([WEATHER, "--group-by", "date:" + period, "--fiscal-start", "4"],
             f"--fiscal-start moves years and quarters, not {period}s")
            for period in ("month", "week", "day", "iso-year", "iso-quarter", "iso-week")
        ):
            with self.subTest(arguments=arguments):
                self.assert_refuses(error, *arguments)

    def test_arguments_behind_two_dashes_are_files(self):
        self.assert_refuses("--rows: No such file or directory", "--", "--rows")
        self.assert_refuses("--help: No such file or directory", "--", "--help")

    def test_full_disk(self):
        with open("/dev/full", "wb") as full:
            result = run(WEATHER, stdout=full)
        self.assertEqual(result.returncode, 2)
        self.assertEqual(result.stderr.decode(), "typedtable: standard output cannot be written\n")


class Demo(unittest.TestCase):
    def test_demo_runs(self):
        result = subprocess.run([os.path.join(EXAMPLES, "demo.sh")], capture_output=True, timeout=120,
                                env=dict(os.environ, TYPEDTABLE=PROGRAM))
        # The one thing that is said beside the tables: some cells do not cast.
        self.assertRegex(result.stderr, rb'^examples/data/airports\.csv: column "iata": 3374 of 3376 cells .*\n$')
        self.assertEqual(result.returncode, 0)
        self.assertIn(b"2015-10-01    FY2016 Q3               878.4           23.9\n", result.stdout)
        self.assertIn(b"$ typedtable examples/data/weather.csv --where 'temp_max > 35' --sort temp_max\n", result.stdout)
        self.assertIn(b"\n8 of 2922 rows\n", result.stdout)
        self.assertIn(b"\n3376 rows, the first 10 shown\n", result.stdout)
        self.assertIn(b"\n  Coop = coop\n", result.stdout)
        self.assertIn(b"\n[shape] datatype=\"spatial\"\n", result.stdout)
        self.assertIn(b"\n[location],[date],[precipitation],[temp_max],[temp_min],[wind],[weather]\n", result.stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
