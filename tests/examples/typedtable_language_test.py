#!/usr/bin/env python3
"""Runs typedtable in the languages it speaks. usage: typedtable_language_test.py PROGRAM EXAMPLES_FOLDER"""

import os
import shutil
import subprocess
import unittest

from typedtable_program import PROGRAM, WEATHER, Program, run

TABLE = "d,s,n\n2024-01-31,a,1\n2024-03-01,b,2\n2024-03-02,a,\n"


class Languages(Program):
    def says(self, *arguments, cwd=None, program=PROGRAM):
        result = subprocess.run([os.path.abspath(program), *arguments], capture_output=True, timeout=120, cwd=cwd)
        return result.returncode, result.stdout.decode(), result.stderr.decode()

    def test_headings_and_counts(self):
        path = self.write(TABLE)
        self.assert_prints(f"""\
{path}: 3 Zeilen, 3 Spalten

Spalte  Typ      Nullwerte
d       DATE             0
s       STRING           0
n       INTEGER          1
""", path, "--rows", "0", "--language", "de_DE")
        self.assert_prints("""\
d:month     mes      suma(n)
2024-01-01  2024-01        1
2024-03-01  2024-03        2
3 periodos de 2024-01-01 a 2024-03-01, 1 de ellos sin filas
""", path, "--group-by", "d:month", "--sum", "n", "--language=es_ES")
        self.assert_prints("""\
s  nombre
a       2
b       1
2 valeurs différentes dans 3 lignes
""", "--language", "fr_FR", path, "--distinct", "s")
        self.assert_prints("""\
最大(n)
      2
3 行中 2 行
""", path, "--max", "n", "--where", "n > 0", "--language", "ja_JP")

    def test_wide_letters_take_two_columns(self):
        self.assert_prints("d:day       件数\n2024-01-31     1\n2024-03-01     1\n2024-03-02     1\n"
                           "2024-01-31 から 2024-03-02 まで 32 期間、うち 29 期間は行なし\n",
                           self.write(TABLE), "--group-by", "d:day", "--language", "ja")

    def test_messages(self):
        path = self.write(TABLE)
        for language, expected in (("de_DE", "keine Spalte heißt „x“"),
                                   ("es_ES", "ninguna columna se llama «x»"),
                                   ("fr_FR", "aucune colonne ne s’appelle «\u00a0x\u00a0»"),
                                   ("ja_JP", "「x」という名前の列はありません"),
                                   ("en_US", 'no column is named "x"')):
            self.assert_refuses(f"{path}: {expected}", path, "--sort", "x", "--language", language)
        broken = self.write("a,b\n1\n", "broken.csv")
        self.assert_refuses(f"{broken}: Zeile 2: 1 Zelle, die Kopfzeile hat 2", broken, "--language", "de")
        # Also of options that stand in front.
        self.assert_refuses("unbekannte Option „--what“; typedtable --help führt sie auf", "--what", "--language", "de")
        self.assert_refuses("--language steht zweimal da", path, "--language", "de", "--language", "fr")
        self.assert_refuses("--explain-collation steht allein", path, "--explain-collation", "binary", "--language=de")

    def test_explains_and_lists(self):
        code, out, err = self.says("--explain-collation", "LSV_RSE_S1", "--language", "de_DE")
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(out.splitlines()[0], "Sortierung      LSV_RSE_S1")
        self.assertIn("Schalter        0x3: ohne Groß- und Kleinschreibung, ohne Akzente\n", out)
        code, out, err = self.says("--list-locales", "schwed", "--language", "de_DE")
        self.assertEqual((code, err), (0, ""))
        self.assertIn("Schwedisch (Finnland)", out)
        self.assertTrue(out.splitlines()[-1].endswith("Gebietsschemas"))
        self.assertEqual(self.says("--list-locales", "swed", "--language", "de_DE")[1].splitlines()[-1][:2], "0 ")

    def test_other_regions_take_the_texts_of_their_language(self):
        path = self.write("a\n1\n")
        for language, expected in (("de_AT", "1 Zeile, 1 Spalte"), ("de", "1 Zeile, 1 Spalte"),
                                   ("de-CH", "1 Zeile, 1 Spalte"), ("es_MX", "1 fila, 1 columna"),
                                   ("fr_CA", "1 ligne, 1 colonne"), ("ja", "1 行, 1 列"),
                                   ("en_GB", "1 row, 1 column"), ("en", "1 row, 1 column")):
            code, out, err = self.says(path, "--language", language)
            self.assertEqual((code, out.splitlines()[0], err), (0, f"{path}: {expected}", ""), language)

    def test_english_stands_for_languages_without_texts(self):
        path = self.write("a\n1\n")
        for language, name in (("sv_SE", "Swedish (Sweden)"), ("ko_KR", "Korean (South Korea)")):
            code, out, err = self.says(path, "--language", language)
            self.assertEqual((code, out.splitlines()[0]), (0, f"{path}: 1 row, 1 column"))
            self.assertEqual(err, f"typedtable: there are no texts in {name}; these are in English\n")

    def test_what_is_no_language_is_refused(self):
        for language in ("xx", "xx_YY", "nonsense", "\u00e9", "a b"):
            self.assert_refuses(f'--language: "{language}" is not a known language, as de_DE is',
                                WEATHER, "--language", language)
        self.assert_refuses("--language needs a value", WEATHER, "--language")
        self.assert_refuses("--language needs a value", WEATHER, "--language", "--rows")
        self.assert_refuses("--language: the value is empty", WEATHER, "--language=")

    def test_help_is_english(self):
        self.assertEqual(run("--help", "--language", "de_DE").stdout, run("--help").stdout)
        self.assertEqual(run("--help", "--language", "xx").returncode, 0)
        self.assertIn(b"--language LANG", run("--help").stdout)

    def test_a_name_behind_the_end_of_options_is_no_language(self):
        self.assert_refuses('more than one file: "--language" and "de"', "--", "--language", "de")

    def test_messages_of_the_library(self):
        path = self.write("n\n1\n")
        expected = run(path, "--collation", "LEN_RUS_S2", "--sort", "n").returncode
        self.assertEqual(expected, 0)
        code, _, err = self.says("--explain-collation", "CU_LEN", "--language", "de_DE")
        self.assertEqual((code, err), (2, "typedtable: „CU_LEN“ ist kein Name einer Sortierung wie LEN_RUS_S2\n"))

    def test_archives_of_the_working_directory_come_first(self):
        path = self.write("a\n1\n")
        spanish = os.path.join(os.path.dirname(PROGRAM), "res", "es_ES", "vellangres.rcc")
        target = os.path.join(self.folder, "res", "de_DE")
        os.makedirs(target)
        shutil.copy(spanish, target)
        out = self.says(path, "--language", "de_DE", cwd=self.folder)[1]
        self.assertEqual(out.splitlines()[0], f"{path}: 1 fila, 1 columna")

    def test_damaged_and_missing_archives_leave_english(self):
        path = self.write("a\n1\n")
        target = os.path.join(self.folder, "res", "de_DE")
        os.makedirs(target)
        with open(os.path.join(os.path.dirname(PROGRAM), "res", "de_DE", "vellangres.rcc"), "rb") as file:
            whole = file.read()
        for damaged in (b"", b"nothing", whole[:len(whole) // 2], whole[:20] + b"\xff" * 40 + whole[60:]):
            with open(os.path.join(target, "vellangres.rcc"), "wb") as file:
                file.write(damaged)
            code, out, err = self.says(path, "--language", "de_DE", cwd=self.folder)
            self.assertEqual((code, out.splitlines()[0]), (0, f"{path}: 1 row, 1 column"))
            self.assertEqual(err, "typedtable: there are no texts in German (Germany); these are in English\n")
        # A program without its folder.
        program = os.path.join(self.folder, "typedtable")
        shutil.copy(PROGRAM, program)
        code, out, err = self.says(path, "--language", "fr_FR", program=program)
        self.assertEqual((code, out.splitlines()[0]), (0, f"{path}: 1 row, 1 column"))
        self.assertIn("no texts in French (France)", err)


if __name__ == "__main__":
    unittest.main(argv=["typedtable_language_test.py"])
