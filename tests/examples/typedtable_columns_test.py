#!/usr/bin/env python3
"""Runs typedtable with --cast, --format and --as. usage: typedtable_columns_test.py PROGRAM EXAMPLES_FOLDER"""

import sys
import unittest

from typedtable_program import Program, run

TYPES = "integer, real, date, datetime, string, spatial"


class Casts(Program):
    def test_errors_and_nulls_are_counted_apart(self):
        path = self.write("id,n\n007,1\n008,x\n009,\n010,2.9\n011,y\n012,\"a\nb\"\n013,z\n")
        self.assert_prints(f"""\
{path}: 7 rows, 2 columns

column  type     nulls  errors
id      STRING       0       0
n       INTEGER      1       4

column  line  offending cell
n          3  x
n          6  y
n          7  a\\nb

id         n
007        1
008  %error%
009   %null%
010        2
011  %error%
""", path, "--cast", "n:integer")

    def test_the_cell_that_made_a_column_text_is_shown(self):
        path = self.write("n,d\n1,Jan 1 2000\n2,x\n3 EUR,y\n4 EUR,z\n")
        self.assertIn("\nn       STRING      0\nd       STRING      0\n\ncolumn  line  offending cell\n"
                      "n          4  3 EUR\n\n", run(path).stdout.decode())
        # Not in front of other tables, and not if the texts are dates.
        self.assertEqual(run(path, "--count").stderr, b"")
        dates = self.write("d\n2000-01-01\nFeb 2 2000\n")
        self.assertIn("offending", run(dates).stdout.decode())
        self.assertNotIn("offending", run(dates, "--dates-in", "en_US").stdout.decode())

    def test_every_type(self):
        path = self.write("a,b,c,d,e,f\n007,1.9,1e3,Jan 5 2012,2012-01-31T06:30,5\n")
        self.assert_prints(f"""\
{path}: 1 row, 6 columns

column  type      nulls  errors
a       INTEGER       0       0
b       INTEGER       0       0
c       REAL          0       0
d       DATE          0       0
e       DATETIME      0       0
f       STRING        0       0

a  b     c  d           e                    f
7  1  1000  2012-01-05  2012-01-31 06:30:00  5
""", path, "--cast", "a:integer", "--cast", "b:INTEGER", "--cast=c:real", "--cast", "d:Date", "--cast", "[e]:datetime",
                           "--cast", "f:string")

    def test_shapes(self):
        path = self.write('g\n"POINT (1 2)"\n\nnowhere\n"{""type"":""Point"",""coordinates"":[3,4]}"\n')
        # Text that is no shape is a null, as the cast has it, and is shown none the less.
        self.assert_prints(f"""\
{path}: 4 rows, 1 column

column  type     nulls  errors
g       SPATIAL      2       0

column  line  offending cell
g          4  nowhere

g
POINT (1 2)
%null%
%null%
SRID=4326;POINT (3 4)
""", path, "--cast", "g:spatial")

    def test_shapes_without_bounds(self):
        deep = "GEOMETRYCOLLECTION(" * 10000 + "POINT(1 2)" + ")" * 10000
        cells = [deep, "POINT(1e999 2)", "POLYGON((1 1))", "POINT(nan 2)"]
        result = run(self.write("g\n" + "".join(f'"{cell}"\n' for cell in cells)), "--cast", "g:spatial")
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertIn(b"\ng       SPATIAL      4       0\n", result.stdout)
        self.assertIn(b"\ng          2  GEOMETRYCOLLECTION(GEOMETRYCOLLECTION...\n", result.stdout)

    def test_shapes_are_sorted_gathered_and_compared(self):
        path = self.write("g\nPOINT (2 1)\n\nPOINT (1 2)\nPOINT(2 1)\n")
        cast = ["--cast", "g:spatial"]
        lines = run(path, *cast, "--distinct", "g").stdout.decode().splitlines()
        # The order of shapes is the library's own.
        self.assertEqual(sorted(lines[1:-1]), ["%null%           1", "POINT (1 2)      1", "POINT (2 1)      2"])
        self.assertEqual((lines[0], lines[-1]), ("g            count", "3 different values in 4 rows"))
        self.assertEqual(run(path, *cast, "--where", "g != null", "--count").stdout, b"count\n    3\n3 of 4 rows\n")
        self.assert_refuses(f'{path}: --sum: column "g" is SPATIAL, not a number', path, *cast, "--sum", "g")
        self.assert_refuses(f'{path}: --group-by: column "g" is SPATIAL, not DATE or DATETIME', path, *cast,
                            "--group-by", "g:year")

    def test_the_other_tasks_use_the_type_and_warn(self):
        path = self.write("n,s\n10,a\nx,b\n9,c\n")
        for arguments, expected in (
                (["--sum", "n", "--mean", "n", "--min", "n", "--max", "n", "--count"],
                 "sum(n)  mean(n)  min(n)  max(n)  count\n    19      9.5       9      10      3\n3 rows\n"),
                (["--sum", "n", "--sql-nulls"], " sum(n)\n%error%\n3 rows\n"),
                (["--where", "n > 9"], " n  s\n10  a\n1 of 3 rows\n"),
                (["--where", "n != 9"], " n  s\n10  a\n1 of 3 rows\n"),
                (["--where", "n < 10"], "n  s\n9  c\n1 of 3 rows\n"),
                (["--where", "n = null"], "n  s\n0 of 3 rows\n"),
                (["--sort", "n"], "      n  s\n      9  c\n     10  a\n%error%  b\n3 rows\n"),
        ):
            result = run(path, "--cast", "n:integer", *arguments)
            self.assertEqual((result.returncode, result.stdout.decode()), (0, expected))
            self.assertEqual(result.stderr.decode(),
                             f'{path}: column "n": 1 of 3 cells are no INTEGER, the first on line 3: "x"\n')

    def test_long_cells_are_cut(self):
        path = self.write("n\n" + "é" * 100000 + "\n")
        result = run(path, "--cast", "n:real", "--count")
        self.assertEqual(result.stderr.decode(),
                         f'{path}: column "n": 1 of 1 cells are no REAL, the first on line 2: "{"é" * 100}..."\n')

    def test_casts_go_before_dates(self):
        path = self.write("d\nJan 1 2000\n")
        self.assertIn("d       STRING      0       0\n",
                      run(path, "--dates-in", "en_US", "--cast", "d:string").stdout.decode())

    def test_refuses(self):
        path = self.write("n,n:m\n1,2\n")
        for text in ("n", "n=real", ":real", "[n:real", "[n:real]"):
            result = run(path, "--cast", text)
            self.assertEqual((result.returncode, result.stdout), (2, b""), text)
        self.assert_refuses('--cast: "n" is not COLUMN:TYPE', path, "--cast", "n")
        for name in ("boolean", "number", "", "m", "tuple"):
            self.assert_refuses(f'--cast: "{name}" is not a type: {TYPES}', path, "--cast", "n:" + name)
        self.assert_refuses(f'{path}: no column is named "x"', path, "--cast", "x:real")
        self.assert_refuses(f'{path}: --cast: column "n" is given twice', path, "--cast", "n:real", "--cast", "n:date")
        self.assert_refuses("--cast needs a value", path, "--cast")
        self.assert_refuses("--cast: the value is empty", path, "--cast=")
        self.assert_refuses(f'{path}: no data source is named "x"; that of the file is "t"', path, "--cast",
                            "[x].[n]:real")
        self.assertEqual(run(path, "--cast", "n:m:real").returncode, 0)
        self.assert_refuses(f'--cast: „x“ ist kein Typ: {TYPES}', path, "--cast", "n:x", "--language", "de")


class Formats(Program):
    NUMBERS = "n,r\n1234567,1234.567\n-5,-0.5\n0,-0.004\n,\n"

    def column(self, name, encoded, *arguments):
        result = run(self.write(self.NUMBERS), "--sort", "n" if name == "n" else "r", "--format",
                     f"{name}={encoded}", *arguments)
        self.assertEqual((result.returncode, result.stderr), (0, b""), encoded)
        titles, *rows, _ = result.stdout.decode().splitlines()
        return [row[:titles.index("n") + 1].strip() if name == "n" else row[titles.index("n") + 1:].strip()
                for row in rows]

    def test_integers(self):
        for encoded, expected in (
                ("n0", ["%null%", "-5", "0", "1234567"]),
                ("n#,##0", ["%null%", "-5", "0", "1,234,567"]),
                ("n#,##0.00;(#,##0.00)", ["%null%", "(5.00)", "0.00", "1,234,567.00"]),
                ("n!de_DE!#,##0.0", ["%null%", "-5,0", "0,0", "1.234.567,0"]),
                ("n#,##0,K", ["%null%", "0K", "0K", "1,235K"]),
                ("n0,,.00M", ["%null%", "0.00M", "0.00M", "1.23M"]),
                ('c"$"#,##0;"$"#,##0-', ["%null%", "$5-", "$0", "$1,234,567"]),
                ('c"$"0;"$"-0', ["%null%", "$-5", "$0", "$1234567"]),
                ('c0" kr";0-" kr"', ["%null%", "5- kr", "0 kr", "1234567 kr"]),
                ("p0%", ["%null%", "-500%", "0%", "123456700%"]),
                ("e0.00e+00", ["%null%", "-5.00e+00", "0.00e+00", "1.23e+06"]),
                ("*Percent", ["%null%", "-500.00%", "0.00%", "123,456,700.00%"]),
                ("*Scientific", ["%null%", "-5.00e+00", "0.00e+00", "1.23e+06"]),
        ):
            with self.subTest(encoded=encoded):
                self.assertEqual(self.column("n", encoded), expected)

    def test_reals(self):
        self.assertEqual(self.column("r", "n#,##0.00;(#,##0.00)"), ["%null%", "(0.50)", "0.00", "1,234.57"])
        self.assertEqual(self.column("r", "p0.0%"), ["%null%", "-50.0%", "-0.4%", "123456.7%"])
        self.assertEqual(self.column("r", "n!fr_FR!0.0"), ["%null%", "-0,5", "0,0", "1234,6"])
        self.assertEqual(self.column("r", "n#,##0.0", "--locale", "de_DE"), ["%null%", "-0,5", "0,0", "1.234,6"])

    def test_integers_keep_their_digits(self):
        path = self.write("n\n9007199254740993\n-9223372036854775808\n")
        self.assert_prints("                         n\n-9,223,372,036,854,775,808\n     9,007,199,254,740,993\n2 rows\n",
                           path, "--sort", "n", "--format", "n=n#,##0")

    def test_groups_of_india(self):
        path = self.write("n\n123456789\n")
        self.assert_prints("              n\n12,34,56,789.00\n1 row\n", path, "--sort", "n", "--format", "n=N16393%")

    def test_formats_of_a_locale(self):
        path = self.write("n\n1234.5\n-3\n")
        for encoded, low, high in (("C1033%", "-$3.00", "$1,234.50"), ("C1031%", "-3,00 \u20ac", "1.234,50 \u20ac"),
                                   ("N1033%", "-3.00", "1,234.50"), ("N", "-3.00", "1,234.50")):
            width = len(high)
            self.assert_prints(f"{'n':>{width}}\n{low:>{width}}\n{high}\n2 rows\n", path, "--sort", "n", "--format",
                               "n=" + encoded)

    def test_sums_take_the_format_and_counts_do_not(self):
        path = self.write("k,n\na,1000\na,2000\n")
        self.assert_prints(" sum(n)  mean(n)  count\n3,000.0  1,500.0      2\n2 rows\n",
                           path, "--sum", "n", "--mean", "n", "--count", "--format", "n=n#,##0.0")

    def test_the_first_rows_take_it_too(self):
        path = self.write("n\n1000\n")
        self.assertTrue(run(path, "--format", "n=n#,##0").stdout.endswith(b"\n    n\n1,000\n"))

    def test_names_with_an_equals_sign(self):
        path = self.write("a=b\n1000\n")
        self.assertTrue(run(path, "--format", "[a=b]=n#,##0").stdout.endswith(b"\n  a=b\n1,000\n"))

    def test_numbers_at_the_edge(self):
        path = self.write("r\n1.7976931348623157e308\ninf\n5e-324\n")
        result = run(path, "--cast", "r:real", "--rows", "9", "--format", "r=p0%")
        self.assertEqual(result.returncode, 0)
        self.assertIn(str(int(sys.float_info.max) * 100)[:37] + "...", result.stdout.decode())
        self.assertIn("\n" + " " * 37 + "inf\n", result.stdout.decode())

    def test_refuses(self):
        path = self.write("n,s\n1,a\n")
        for text in ("", "0.00", "n", "x0", "nabc", "p", "p0.0", "e", "e0.0", "L", "S1033%", "Thh:mm", "*", "*Nothing",
                     "n!", "C999999%", "N70000%"):
            with self.subTest(text=text):
                self.assert_refuses(f'--format: "{text}" is not a number format, as "n#,##0.00" is', path, "--format",
                                    "n=" + text)
        for text in ("n", "=n0", "n:0", "[n=n0"):
            result = run(path, "--format", text)
            self.assertEqual((result.returncode, result.stdout), (2, b""), text)
        self.assert_refuses('--format: "n:0" is not COLUMN=FORMAT', path, "--format", "n:0")
        self.assert_refuses("--format: a format has 100001 bytes, more than 1000", path, "--format",
                            "n=n" + "0" * 100000)
        self.assertEqual(run(path, "--format", "n=n0." + "0" * 990).returncode, 0)
        self.assert_refuses(f'{path}: no column is named "x"', path, "--format", "x=n0")
        self.assert_refuses(f'{path}: --format: column "s" is STRING, not a number', path, "--format", "s=n0")
        self.assert_refuses(f'{path}: --format: column "n" is given twice', path, "--format", "n=n0", "--format",
                            "n=p0%")
        self.assert_refuses('--locale: "zz_QQ" is not a known locale, as de_DE is', path, "--format", "n=n0",
                            "--locale", "zz_QQ")


class Forms(Program):
    TABLE = 'i,r,b,d,t,s\n1,0.1,true,2012-01-31,2012-01-31T06:30:00.5,"a""b%"\n,3,,,,\n'

    def test_values(self):
        self.assert_prints("""\
[i] datatype="integer"
[r] datatype="real"
[b] datatype="boolean"
[d] datatype="date"
[t] datatype="datetime"
[s] charset="0" collation="LROOT" datatype="string"
1,0.10000000000000001,true,#2012-01-31#,#2012-01-31 06:30:00.500#,"a\\"b\\%"
%null%,3.,%null%,%null%,%null%,%null%
""", self.write(self.TABLE), "--as", "values")

    def test_literals(self):
        self.assert_prints("""\
[i],[r],[b],[d],[t],[s]
1,0.10000000000000001,true,#2012-01-31#,#2012-01-31 06:30:00.500#,"a""b%"
NULL,3.,NULL,NULL,NULL,NULL
""", self.write(self.TABLE), "--as", "literals")

    def test_wkt(self):
        path = self.write('g,n\n"POINT(1 2)",x\n,2\n')
        result = run(path, "--cast", "g:spatial", "--cast", "n:integer", "--as", "wkt")
        self.assertEqual(result.stdout.decode(), '[g] datatype="spatial"\n[n] datatype="integer"\n'
                                                 "POINT (1 2),%error%\n%null%,2\n")
        literals = run(path, "--cast", "g:spatial", "--cast", "n:integer", "--as", "literals")
        self.assertEqual(literals.stdout.decode(), '[g],[n]\n"POINT (1 2)",%error%\nNULL,2\n')
        values = run(path, "--cast", "g:spatial", "--as", "values").stdout.decode().splitlines()
        self.assertRegex(values[2], r'^[0-9]+,"x"$')  # the hash of the shape

    def test_rows_are_sorted_and_counted_off(self):
        self.assert_prints("[a]]b]\n1\n2\n", self.write("a]b\n2\n3\n1\n"), "--as", "literals", "--rows", "2", "--sort",
                           "a]b")

    def test_no_rows(self):
        self.assert_prints('[a] charset="0" collation="LROOT" datatype="string"\n', self.write("a\n"), "--as", "values")

    def test_warnings_go_to_standard_error(self):
        path = self.write("n\nx\n")
        result = run(path, "--cast", "n:real", "--as", "values")
        self.assertEqual(result.stdout.decode(), '[n] datatype="real"\n%error%\n')
        self.assertIn(b"1 of 1 cells are no REAL", result.stderr)

    def test_refuses(self):
        path = self.write("n\n1\n")
        self.assert_refuses('--as: "json" is none of values, literals and wkt', path, "--as", "json")
        self.assert_refuses("--as is given twice", path, "--as", "wkt", "--as", "wkt")
        self.assert_refuses(f"{path}: --as wkt: no column is SPATIAL; --cast COLUMN:spatial makes one", path, "--as",
                            "wkt")
        self.assert_refuses("--format is for tables and --as writes none: give one of them", path, "--as", "values",
                            "--format", "n=n0")
        self.assert_refuses("--dates-as is for tables and --as writes none: give one of them", path, "--as", "values",
                            "--dates-as", "yyyy")
        self.assert_refuses("--as shows rows and --count shows one line: give one of them", path, "--as", "values",
                            "--count")
        self.assert_refuses("--as shows rows and --distinct shows groups: give one of them", path, "--as", "values",
                            "--distinct", "n")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
