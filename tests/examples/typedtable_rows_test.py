#!/usr/bin/env python3
"""Sorts, filters and sums up with typedtable. usage: typedtable_rows_test.py PROGRAM EXAMPLES_FOLDER

Expected orders come from the sort keys below: the three levels of the root collation for the characters that the files
have, and the Swedish letters at the end of the alphabet.
"""

import csv
import math
import sys
import unicodedata
import unittest

from typedtable_program import AIRPORTS, WEATHER, Program, print_table, run

# --- collation, once more ---------------------------------------------------------------------------------------------

ORDER = " _-,;:!?.'\"()[]{}@*/\\&#%`^+<=>|~$0123456789abcdefghijklmnopqrstuvwxyz"
ACCENTS = "\u0301\u0300\u0306\u0302\u030c\u030a\u0308"  # acute grave breve circumflex caron ring diaeresis
SWEDISH = {"a\u030a": (1, 0), "a\u0308": (2, 0), "o\u0308": (3, 0), "o\u0302": (3, 9)}  # behind z; o^ as an o" apart


def key(text, strength=3, word_sort=False, swedish=False):
    """Texts compare under a collation as their keys do."""
    primary, secondary, tertiary = [], [], []
    decomposed = unicodedata.normalize("NFD", text)
    i = 0
    while i < len(decomposed):
        character = decomposed[i]
        pair = decomposed[i:i + 2].lower()
        i += 1
        if word_sort and character in "-'":
            continue
        if swedish and pair in SWEDISH:
            weight, accent = SWEDISH[pair]
            primary.append(len(ORDER) + weight)
            secondary += [0] + ([accent] if accent else [])
            tertiary += [character.isupper()]
            i += 1
        elif character in ACCENTS:
            secondary.append(1 + ACCENTS.index(character))
        else:
            primary.append(ORDER.index(character.lower()))
            secondary.append(0)
            tertiary.append(character.isupper())
    return (primary, secondary, tertiary)[:strength]


def binary(text):
    return text.encode("utf-16-be")


# --- tables ------------------------------------------------------------------------------------------------------------

def read(path):
    with open(path, newline="", encoding="utf-8") as text:
        return list(csv.DictReader(text))


def number(text):
    return "%.15g" % float(text)


def listing(rows, numbers, count):
    """Rows as typedtable prints them; `numbers` are the columns of numbers, `count` the last line."""
    titles = list(rows[0])
    lines = [[number(row[name]) if name in numbers else row[name] for name in titles] for row in rows]
    lines = [[cell if len(cell) <= 40 else cell[:37] + "..." for cell in line] for line in lines]
    return print_table(titles, [name in numbers for name in titles], lines) + count + "\n"


AIRPORT_NUMBERS = ("latitude", "longitude")
WEATHER_NUMBERS = ("precipitation", "temp_max", "temp_min", "wind")


class Sort(Program):
    def test_airports_by_name_under_many_collations(self):
        rows = read(AIRPORTS)
        en = "LEN_RUS"
        for options, order in (
                ([], key),
                (["--collation", "LROOT"], key),
                (["--collation", en + "_S2"], lambda text: key(text, 2)),
                (["--collation", en + "_S1"], lambda text: key(text, 1)),
                (["--collation", en + "_WO"], lambda text: key(text, word_sort=True)),
                (["--collation", "binary"], binary),
                (["--locale", "en-US"], key),
                (["--locale", "sv_SE", "--ignore-case", "--ignore-accents", "--word-sort"],
                 lambda text: key(text, 1, True, True))):
            with self.subTest(options=options):
                self.assert_prints(listing(sorted(rows, key=lambda row: order(row["name"])), AIRPORT_NUMBERS,
                                           "3376 rows"),
                                   AIRPORTS, "--sort", "name", *options)

    def test_the_first_rows_of_an_order(self):
        rows = sorted(read(AIRPORTS), key=lambda row: key(row["city"], 2))
        for count in (1, 7, 500, 2000, 3375):
            with self.subTest(count=count):
                self.assert_prints(listing(rows[:count], AIRPORT_NUMBERS, f"3376 rows, the first {count} shown"),
                                   AIRPORTS, "--sort", "city", "--collation", "LEN_RUS_S2", "--rows", str(count))
        self.assert_prints("iata  name  city  state  country  latitude  longitude\n3376 rows, the first 0 shown\n",
                           AIRPORTS, "--sort", "city", "--rows", "0")

    def test_numbers_and_dates_of_the_weather(self):
        rows = read(WEATHER)
        for column in ("temp_min", "date"):
            order = float if column in WEATHER_NUMBERS else str
            with self.subTest(column=column):
                self.assert_prints(listing(sorted(rows, key=lambda row: order(row[column])), WEATHER_NUMBERS,
                                           "2922 rows"), WEATHER, "--sort", column)

    def test_every_type_with_nulls_first(self):
        columns = {"i": ["10", "9", "-1"], "r": ["0.5", "-2", "1e3"], "b": ["true", "false", "true"],
                   "d": ["2020-02-01", "1999-12-31", "2020-01-31"],
                   "t": ["2020-01-01T10:00", "2020-01-01", "2020-01-01 09:59:59.5"], "s": ["b", "B", "a"]}
        orders = {"i": [2, 1, 0], "r": [1, 0, 2], "b": [1, 0, 2], "d": [1, 2, 0], "t": [1, 2, 0], "s": [2, 0, 1]}
        for name, values in columns.items():
            path = self.write(f"n,{name}\n" + "".join(f"{i},{value}\n" for i, value in enumerate(values)) + "3,\n4,\n")
            for more in ([], ["--sql-nulls"]):
                result = run(path, "--sort", name, *more)
                self.assertEqual(result.stderr, b"")
                lines = result.stdout.decode().splitlines()
                with self.subTest(type=name):
                    self.assertEqual([int(line.split()[0]) for line in lines[1:-1]], [3, 4] + orders[name])
                    self.assertEqual(lines[1].split()[1], "%null%")

    def test_swedish_and_accents(self):
        words = ["zebra", "\u00f6l", "\u00e5ka", "\u00e4rlig", "apa", "\u00c5ka", "oil", "cot\u00e9", "cote", "c\u00f4te"]
        path = self.write("word\n" + "".join(word + "\n" for word in words))
        for options, order in ((["--locale", "sv_SE"], lambda word: key(word, swedish=True)),
                               (["--locale", "en_US"], key),
                               (["--locale", "en_US", "--ignore-case"], lambda word: key(word, 2))):
            with self.subTest(options=options):
                self.assert_prints(print_table(["word"], [False], [[word] for word in sorted(words, key=order)]) +
                                   "10 rows\n", path, "--sort", "word", *options)


class Find(Program):
    def test_airports(self):
        rows = read(AIRPORTS)
        texts = ("iata", "name", "city", "state", "country")
        for pattern, options, fold in (
                ("o'hare", ["--locale", "en_US", "--ignore-case"], str.lower),
                ("lafayette", ["--collation", "LEN_RUS_S2"], str.lower),
                ("Lafayette", [], str),
                ("LAF", ["--collation", "binary"], str),
                ("park", ["--locale", "en_US", "--ignore-case", "--ignore-accents"], str.lower)):
            found = [row for row in rows if any(fold(pattern) in fold(row[name]) for name in texts)]
            self.assertGreater(len(found), 0)
            with self.subTest(pattern=pattern):
                self.assert_prints(listing(found, AIRPORT_NUMBERS, f"{len(found)} of 3376 rows"),
                                   AIRPORTS, "--find", pattern, *options)

    def test_accents_and_expansions(self):
        path = self.write("n,word\n1,Stra\u00dfe\n2,R\u00e9sum\u00e9\n3,\n4,nothing\n")
        ignoring = ["--locale", "de_DE", "--ignore-case", "--ignore-accents"]
        for pattern, options, found in (("resume", ignoring, [2]), ("STRASSE", ignoring, [1]), ("resume", [], []),
                                        ("R\u00e9", [], [2]), ("e", ignoring, [1, 2])):
            with self.subTest(pattern=pattern, options=options):
                result = run(path, "--find", pattern, *options)
                lines = result.stdout.decode().splitlines()
                self.assertEqual([int(line.split()[0]) for line in lines[1:-1]], found)
                self.assertEqual(lines[-1], f"{len(found)} of 4 rows")

    def test_together_with_a_condition_and_an_order(self):
        rows = [row for row in read(AIRPORTS) if "park" in row["name"].lower() and float(row["latitude"]) > 45]
        rows.sort(key=lambda row: key(row["state"]))
        self.assert_prints(listing(rows, AIRPORT_NUMBERS, f"{len(rows)} of 3376 rows"),
                           AIRPORTS, "--find", "PARK", "--where", "latitude > 45", "--sort", "state", "--collation",
                           "LEN_RUS_S2")


class Where(Program):
    def test_weather(self):
        rows = read(WEATHER)
        for condition, holds in (
                ("temp_max > 35", lambda row: float(row["temp_max"]) > 35),
                ("temp_max >= 35.6", lambda row: float(row["temp_max"]) >= 35.6),
                ("temp_max = 12.8", lambda row: float(row["temp_max"]) == 12.8),
                ("temp_min<=-10", lambda row: float(row["temp_min"]) <= -10),
                ("weather = 'snow'", lambda row: row["weather"] == "snow"),
                ("weather < \"fog\"", lambda row: row["weather"] < "fog"),
                ("date = #2014-02-28#", lambda row: row["date"] == "2014-02-28"),
                ("date < 2012-01-04", lambda row: row["date"] < "2012-01-04"),
                ("date > #2015-12-30 12:00#", lambda row: row["date"] > "2015-12-30"),
                ("precipitation != 0", lambda row: float(row["precipitation"]) != 0)):
            found = [row for row in rows if holds(row)]
            self.assertGreater(len(found), 0)
            with self.subTest(condition=condition):
                self.assert_prints(listing(found, WEATHER_NUMBERS, f"{len(found)} of 2922 rows"),
                                   WEATHER, "--where", condition)

    def test_texts_under_a_collation(self):
        path = self.write("w\nRain\nrain\nr\u00e4in\nsun\n")
        for options, found in (([], ["rain"]), (["--collation", "LEN_RUS_S2"], ["Rain", "rain"]),
                               (["--locale", "en_US", "--ignore-case", "--ignore-accents"], ["Rain", "rain", "r\u00e4in"])):
            self.assert_prints(print_table(["w"], [False], [[word] for word in found]) + f"{len(found)} of 4 rows\n",
                               path, "--where", "w = 'rain'", *options)

    def test_nulls_in_both_semantics(self):
        path = self.write("n,b\n-1,true\n,false\n0,\n")
        for condition, plain, sql in (("n < 0", "-1 %null%", "-1"), ("n = 0", "0", "0"), ("n != 0", "-1 %null%", "-1"),
                                      ("n >= -1.5", "-1 0", "-1 0"), ("n = null", "%null%", ""),
                                      ("n != null", "-1 0", ""), ("n > null", "-1 0", ""),
                                      ("b = false", "%null%", "%null%"), ("b < true", "%null% 0", "%null%")):
            for options, expected in (([], plain), (["--sql-nulls"], sql)):
                with self.subTest(condition=condition, options=options):
                    result = run(path, "--where", condition, *options)
                    lines = result.stdout.decode().splitlines()
                    self.assertEqual(" ".join(line.split()[0] for line in lines[1:-1]), expected)

    def test_only_the_first_rows(self):
        found = [row for row in read(WEATHER) if float(row["temp_max"]) > 30]
        self.assert_prints(listing(found[:3], WEATHER_NUMBERS, f"{len(found)} of 2922 rows, the first 3 shown"),
                           WEATHER, "--where", "temp_max > 30", "--rows", "3")

    def test_a_column_with_a_sign_in_its_name(self):
        path = self.write("a<b\n1\n2\n")
        self.assert_prints("a<b\n  2\n1 of 2 rows\n", path, "--where", '"a<b" > 1')


class QualifiedNames(Program):
    """A column may be given as [COLUMN] or [SOURCE].[COLUMN]: every option does what it does with the bare name."""

    def setUp(self):
        super().setUp()
        with open(WEATHER, encoding="utf-8") as file:
            text = file.read().replace("temp_max", "temp max", 1)
        self.weather = self.write(text, "weather.csv")

    def test_every_option(self):
        for bare, qualified in (
                (["--sum", "temp max", "--mean=wind"], ["--sum", "[weather].[temp max]", "--mean=[wind]"]),
                (["--min", "date", "--max", "temp max"], ["--min", "[date]", "--max", "[weather].[temp max] "]),
                (["--sort", "temp max", "--rows", "9"], ["--sort", "[weather].[temp max]", "--rows", "9"]),
                (["--distinct", "weather", "--count"], ["--distinct", "[weather].[weather]", "--count"]),
                (["--group-by", "date:year", "--max", "temp max"],
                 ["--group-by", "[weather].[date]:year", "--max", "[temp max]"]),
                (["--where", "temp max > 30"], ["--where", "[weather].[temp max] > 30"]),
                (["--where", "weather = 'sun'", "--mean", "wind"], ["--where", "[weather]='sun'", "--mean", "[wind]"])):
            expected = run(self.weather, *bare)
            self.assertEqual(expected.returncode, 0, expected.stderr)
            with self.subTest(options=qualified):
                self.assert_prints(expected.stdout.decode(), self.weather, *qualified)

    def test_titles_show_the_bare_name(self):
        path = self.write("a,b\n1,2\n3,4\n")
        self.assert_prints("sum(a)  max(b)\n     4       4\n2 rows\n", path, "--sum", "[t].[a]", "--max", "[b]")

    def test_names_with_signs(self):
        path = self.write('a<b,"c]d",[e],f:g\n1,2,3,2020-02-03\n2,3,4,2021-02-03\n')
        self.assert_prints("sum(c]d)\n       3\n1 of 2 rows\n", path, "--where", "[a<b] > 1", "--sum", "[c]]d]")
        self.assert_prints("sum([e])\n       7\n2 rows\n", path, "--sum", "[[e]]]")
        self.assert_prints(run(path, "--group-by", "f:g:year").stdout.decode(), path, "--group-by", "[f:g]:year")
        self.assert_refuses(f'{path}: no column is named "e"', path, "--sum", "[e]")
        self.assert_refuses('--group-by: "[f:g]" is not COLUMN:PERIOD', path, "--group-by", "[f:g]")

    def test_standard_input_is_a_data_source(self):
        self.assert_prints("sum(a)\n     3\n2 rows\n", "-", "--sum", "[stdin].[a]", stdin=b"a\n1\n2\n")

    def test_another_data_source(self):
        for arguments in (["--sum", "[sales].[wind]"], ["--sort", "[sales].[wind]"], ["--distinct", "[sales].[wind]"],
                          ["--where", "[sales].[wind] > 1"], ["--group-by", "[sales].[date]:year"]):
            self.assert_refuses(f'{self.weather}: no data source is named "sales"; that of the file is "weather"',
                                self.weather, *arguments)
        self.assert_refuses(f'{self.weather}: no column is named "rain"', self.weather, "--sum", "[weather].[rain]")

    def test_what_is_no_qualified_name(self):
        for text, error in (("[weather].temp max", "expected '['"), ("[weather]..[wind]", "expected '['"),
                            ("[", "dangling '['"), ("[weather].[", "dangling '['"), ("[wind", "mismatched brackets"),
                            ("[wind]]", "mismatched brackets"), ("[weather][wind]", "expected '.'"),
                            ("[weather].", "dangling '.'")):
            shown = f"Qualified Name Parse Error --- Invalid input: {error} --- Input: {text}"
            for option, value in (("--sum", text), ("--mean", text), ("--min", text), ("--max", text), ("--sort", text),
                                  ("--distinct", text), ("--group-by", text + ":year"), ("--where", text + " > 3")):
                # An open bracket takes everything behind it.
                at_end = {"--group-by": ":year", "--where": " > 3"}.get(option, "")
                input_shown = shown + (at_end if error == "mismatched brackets" else "")
                if error == "dangling '['" and at_end:
                    input_shown = (f"Qualified Name Parse Error --- Invalid input: mismatched brackets --- Input: "
                                   f"{text}{at_end}")
                with self.subTest(option=option, value=value):
                    self.assert_refuses(f"{option}: {input_shown}", self.weather, option, value)
        self.assert_refuses('--sum: "[a].[b].[c]" has 3 parts; a column is [COLUMN] or [SOURCE].[COLUMN]',
                            self.weather, "--sum", "[a].[b].[c]")
        # Line ends and the like are shown on one line.
        self.assert_refuses("--sum: Qualified Name Parse Error --- Invalid input: expected '.' --- Input: [a]\\n.[b]",
                            self.weather, "--sum", "[a]\n.[b]")

    def test_the_error_in_the_language_of_the_user(self):
        result = run(self.weather, "--language", "de", "--sum", "[weather].wind")
        self.assertEqual(result.stderr.decode(), "typedtable: --sum: Qualified Name Parse Error --- Ungültige Eingabe: "
                                                 "„[“ erwartet --- Input: [weather].wind\n")
        self.assertEqual(result.returncode, 2)


class Sums(Program):
    def summary(self, rows, count):
        numbers = {name: [float(row[name]) for row in rows] for name in WEATHER_NUMBERS}
        cells = {"sum(precipitation)": number(math.fsum(numbers["precipitation"])),
                 "mean(wind)": number(math.fsum(numbers["wind"]) / len(rows)),
                 "min(temp_min)": number(min(numbers["temp_min"])), "max(temp_max)": number(max(numbers["temp_max"])),
                 "min(date)": min(row["date"] for row in rows), "max(weather)": max(row["weather"] for row in rows),
                 "count": str(len(rows))}
        return print_table(list(cells), [True] * 4 + [False] * 2 + [True], [list(cells.values())]) + count + "\n"

    def test_weather_and_a_part_of_it(self):
        items = ["--sum", "precipitation", "--mean", "wind", "--min", "temp_min", "--max", "temp_max", "--min", "date",
                 "--max", "weather", "--count"]
        rows = read(WEATHER)
        self.assert_prints(self.summary(rows, "2922 rows"), WEATHER, *items)
        part = [row for row in rows if row["weather"] == "rain" and row["location"] == "Seattle"]
        self.assert_prints(self.summary(part, f"{len(part)} of 2922 rows"), WEATHER, *items, "--where",
                           "weather = 'rain'", "--find", "Seattle")

    def test_nulls_in_both_semantics(self):
        path = self.write("i,r,s\n1,0.5,b\n,,\n3,1,a\n")
        items = ["--sum", "i", "--mean", "i", "--min", "r", "--max", "s", "--count"]
        self.assert_prints("sum(i)  mean(i)  min(r)  max(s)  count\n     4        2     0.5  b           3\n3 rows\n",
                           path, *items)
        self.assert_prints("sum(i)  mean(i)  min(r)  max(s)  count\n"
                           "%null%   %null%  %null%  %null%      3\n3 rows\n", path, *items, "--sql-nulls")
        path = self.write("d,n\n2020-01-01,1\n2020-05-05,\n2021-01-01,2\n")
        self.assert_prints("d:year      year  sum(n)\n2020-01-01  2020  %null%\n2021-01-01  2021       2\n"
                           "2 periods from 2020-01-01 to 2021-01-01\n",
                           path, "--group-by", "d:year", "--sum", "n", "--sql-nulls")

    def test_no_rows(self):
        path = self.write("i\n1\n")
        self.assert_prints("sum(i)  mean(i)  count\n%null%   %null%      0\n0 of 1 row\n",
                           path, "--sum", "i", "--mean", "i", "--count", "--where", "i > 1")

    def test_groups_of_a_part(self):
        rows = [row for row in read(WEATHER) if float(row["temp_max"]) > 30]
        years = sorted({row["date"][:4] for row in rows})
        lines = [[f"{year}-01-01", year, str(sum(row["date"].startswith(year) for row in rows))] for year in years]
        self.assert_prints(print_table(["date:year", "year", "count"], [False, False, True], lines) +
                           "4 periods from 2012-01-01 to 2015-01-01\n",
                           WEATHER, "--group-by", "date:year", "--where", "temp_max > 30")


class Distinct(Program):
    def groups(self, rows, column, order):
        found = {}
        for row in rows:
            found.setdefault(repr(order(row[column])), (order(row[column]), row[column], []))[2].append(row)
        return sorted(found.values(), key=lambda group: group[0])

    def test_cities_by_equality_of_the_collation(self):
        rows = read(AIRPORTS)
        counts = set()
        for options, order in (([], key), (["--collation", "LEN_RUS_S2"], lambda text: key(text, 2)),
                               (["--collation", "LEN_RUS_S1_WO"], lambda text: key(text, 1, True)),
                               (["--collation", "binary"], binary)):
            groups = self.groups(rows, "city", order)
            counts.add(len(groups))
            lines = [[first, str(len(members))] for _, first, members in groups]
            with self.subTest(options=options):
                self.assert_prints(print_table(["city", "count"], [False, True], lines) +
                                   f"{len(groups)} different values in 3376 rows\n",
                                   AIRPORTS, "--distinct", "city", *options)
        self.assertGreater(len(counts), 1)

    def test_with_aggregates(self):
        lines = [[first, number(math.fsum(float(row["temp_max"]) for row in members) / len(members)), str(len(members))]
                 for _, first, members in self.groups(read(WEATHER), "weather", key)]
        self.assert_prints(print_table(["weather", "mean(temp_max)", "count"], [False, True, True], lines) +
                           "5 different values in 2922 rows\n",
                           WEATHER, "--distinct", "weather", "--mean", "temp_max", "--count")

    def test_numbers_nulls_and_signed_zeros(self):
        path = self.write("r\n0.0\n-0.0\n1\n\n0.5\n1.0\n")
        self.assert_prints("     r  count\n%null%      1\n     0      2\n   0.5      1\n     1      2\n"
                           "4 different values in 6 rows\n", path, "--distinct", "r")

    def test_the_first_spelling_names_a_group(self):
        path = self.write("w\nRESUME\nresume\nr\u00e9sum\u00e9\n")
        self.assert_prints("w       count\nRESUME      3\n1 value in 3 rows\n",
                           path, "--distinct", "w", "--locale", "fr_FR", "--ignore-case", "--ignore-accents")


class Explain(Program):
    SAMPLES = ["Zebra", "r\u00e9sum\u00e9", "co-op", "\u00d6l", "item 10", "cote", "we'll", "Coop", "\u00e5ka", "resume",
               "item 2", "zebra", "c\u00f4te", "apple", "coop", "Resume", "\u00c4rger", "well", "cot\u00e9", "oil"]

    def test_collations(self):
        for name, language, region, flags, word_sort, description, order in (
                ("LEN_RUS_S2", "English (en)", "United States", "0x1: ignore case", "no", "en_US",
                 lambda text: key(text, 2)),
                ("LEN_RUS", "English (en)", "United States", "0x0", "no", "en_US", key),
                ("LSV_RSE_S1_WO", "Swedish (sv)", "Sweden", "0x3: ignore case, ignore accents", "yes", "sv_SE",
                 lambda text: key(text, 1, True, True)),
                ("LROOT", "none", "none", "0x0", "no", "root", key),
                ("binary", "binary", "none", "0x0", "no", "BINARY", binary)):
            text = ""
            last = None
            for word in sorted(self.SAMPLES, key=order):
                text += (" = " if order(word) == last else "\n  ") + word
                last = order(word)
            with self.subTest(name=name):
                self.assert_prints(f"collation    {name}\nlanguage     {language}\nregion       {region}\n"
                                   f"flags        {flags}\nword sort    {word_sort}\n"
                                   f"description  charset=0x0 {description} ({name})\n"
                                   f"sample order, equal words on one line:{text}\n", "--explain-collation", name)


class Locales(Program):
    TITLES = ["lcid", "locale", "name", "short date"]

    def test_all(self):
        result = run("--list-locales")
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        *lines, count = result.stdout.decode().splitlines()
        self.assertEqual(lines[0].split()[:3], self.TITLES[:3])
        lcids = [int(line[:6], 16) for line in lines[1:]]
        self.assertGreater(len(lcids), 150)
        self.assertEqual(lcids, sorted(set(lcids)))
        self.assertEqual(count, f"{len(lcids)} of {len(lcids)} locales")
        self.total = len(lcids)

    def test_patterns(self):
        self.test_all()
        swedish = [["0x041D", "sv_SE", "Swedish (Sweden)", "yyyy-MM-dd"],
                   ["0x081D", "sv_FI", "Swedish (Finland)", "yyyy-MM-dd"]]
        left = [False] * 4
        for pattern, rows in (("swedish", swedish), ("^SV_", swedish), ("SWED.*land", swedish[1:]), ("no such", [])):
            expected = print_table(self.TITLES, left, rows) + f"{len(rows)} of {self.total} locales\n"
            with self.subTest(pattern=pattern):
                self.assert_prints(expected, "--list-locales", pattern)
                self.assert_prints(expected, "--list-locales=" + pattern)


class Refusals(Program):
    def test_collations(self):
        for name in ("BINARY", "len_rus_s2", "FOO", "LEN_S9", "LEN_F", "S2", "L", "LXX", "L" + "X" * 300, "\u00e9"):
            error = f'"{name}" is not the name of a collation, as LEN_RUS_S2 is'
            with self.subTest(name=name):
                self.assert_refuses(error, "--explain-collation", name)
                self.assert_refuses(error, AIRPORTS, "--sort", "name", "--collation", name)
        for name in ("C", "xx_YY", "a b", "nonsense", "x" * 300):
            self.assert_refuses(f'--locale: "{name}" is not a known locale, as sv_SE is',
                                AIRPORTS, "--sort", "name", "--locale", name)

    def test_columns_and_types(self):
        path = self.write("i,b,d,s\n1,true,2020-01-01,x\n")
        numbers = self.write("i\n1\n", "numbers.csv")
        for arguments, error in (
                ([path, "--sort", "x"], 'no column is named "x"'),
                ([path, "--distinct", "x"], 'no column is named "x"'),
                ([path, "--sum", "x"], 'no column is named "x"'),
                ([path, "--where", "x = 1"], 'no column is named "x"'),
                ([path, "--sum", "b"], '--sum: column "b" is BOOLEAN, not a number'),
                ([path, "--mean", "s"], '--mean: column "s" is STRING, not a number'),
                ([path, "--where", "s = 1"],
                 '--where: column "s" is STRING and does not compare with the INTEGER 1'),
                ([path, "--where", "i = '1'"],
                 '--where: column "i" is INTEGER and does not compare with the STRING 1'),
                ([path, "--where", "d > true"],
                 '--where: column "d" is DATE and does not compare with the BOOLEAN true'),
                ([path, "--where", "b = 0.5"],
                 '--where: column "b" is BOOLEAN and does not compare with the REAL 0.5'),
                ([numbers, "--find", "x"], "--find: no column is STRING")):
            with self.subTest(arguments=arguments):
                self.assert_refuses(f"{arguments[0]}: {error}", *arguments)
        path = self.write("i\n9223372036854775807\n1\n")
        self.assert_refuses(f"{path}: a sum of integers is beyond 64 bits", path, "--sum", "i")

    def test_options(self):
        sort = [AIRPORTS, "--sort", "name"]
        literal = "is no number, date, true, false or null, nor a text in quotes"
        for arguments, error in (
                ([*sort, "--sort", "city"], "--sort is given twice"),
                ([AIRPORTS, "--sort"], "--sort needs a value"),
                ([AIRPORTS, "--find="], "--find: the value is empty"),
                ([*sort, "--collation", "LEN", "--locale", "en"],
                 "--collation and --locale both name a collation: give one of them"),
                ([*sort, "--collation", "LEN", "--ignore-case"],
                 "--ignore-case goes with --locale; the name behind --collation says it all"),
                ([*sort, "--ignore-accents"], "--ignore-accents needs --locale"),
                ([*sort, "--word-sort"], "--word-sort needs --locale"),
                ([*sort, "--locale", "en", "--word-sort", "--word-sort"], "--word-sort is given twice"),
                ([*sort, "--locale", "en", "--word-sort=yes"], "--word-sort takes no value"),
                ([AIRPORTS, "--collation", "LEN"], "--collation needs --sort, --distinct, --find, --where, --min or --max"),
                ([AIRPORTS, "--sum", "latitude", "--locale", "en"],
                 "--locale needs --sort, --distinct, --find, --where, --min, --max, --dates-as or --format"),
                ([AIRPORTS, "--sql-nulls"], "--sql-nulls needs --where, --sort, --sum, --mean, --min or --max"),
                ([AIRPORTS, "--count", "--sql-nulls"],
                 "--sql-nulls needs --where, --sort, --sum, --mean, --min or --max"),
                ([AIRPORTS, "--group-by", "a:year", "--distinct", "b"],
                 "--group-by and --distinct both gather rows: give one of them"),
                ([*sort, "--group-by", "a:year"], "--sort shows rows and --group-by shows groups: give one of them"),
                ([*sort, "--distinct", "city"], "--sort shows rows and --distinct shows groups: give one of them"),
                ([*sort, "--max", "city"], "--sort shows rows and --max shows one line: give one of them"),
                ([AIRPORTS, "--rows", "3", "--distinct", "city"],
                 "--rows shows rows and --distinct shows groups: give one of them"),
                ([AIRPORTS, "--rows", "3", "--count"], "--rows shows rows and --count shows one line: give one of them"),
                ([*sort, "--fiscal-start", "4"], "--fiscal-start needs --group-by"),
                ([AIRPORTS, "--where", "latitude"],
                 '--where: "latitude" is not COLUMN, one of = != < <= > >=, and a literal'),
                ([AIRPORTS, "--where", "name = rain"], f'--where: "rain" {literal}'),
                ([AIRPORTS, "--where", "name = "], f'--where: "" {literal}'),
                ([AIRPORTS, "--where", "name == 3"], f'--where: "= 3" {literal}'),
                ([AIRPORTS, "--explain-collation", "LEN"], "--explain-collation stands alone"),
                (["--explain-collation=LEN", "--count"], "--explain-collation stands alone"),
                (["--explain-collation"], "--explain-collation needs a value"),
                ([AIRPORTS, "--list-locales"], "--list-locales stands alone"),
                (["--list-locales", "sv", AIRPORTS], "--list-locales stands alone"),
                (["--list-locales", "--count"], "--list-locales stands alone"),
                (["--list-locales=sv", "--list-locales"], "--list-locales is given twice"),
                (["--list-locales", "("], '--list-locales: "(" is not a regular expression')):
            with self.subTest(arguments=arguments):
                self.assert_refuses(error, *arguments)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
