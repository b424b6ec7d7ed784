#!/usr/bin/env python3
"""Tests of gen_translations.py and of the translations themselves."""

import glob
import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

from gen_strings import read_table  # noqa: E402
from gen_translations import read_translations  # noqa: E402

TOOL = os.path.join(HERE, "gen_translations.py")
TABLE = os.path.join(HERE, "strings.tsv")
LANGUAGES = ("de_DE", "en_GB", "es_ES", "fr_CA", "fr_FR", "it_IT", "ja_JP", "ko_KR", "pt_BR", "zh_CN", "zh_TW")
HEAD = "key\tid\tenglish\n"
FILE = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="%s">
%s</TS>
"""
MESSAGE = ("<context><name>%s</name><message><source>%s</source>"
           "<translation>%s</translation></message></context>\n")


class ToolTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.table = self.put("texts.tsv", HEAD + 'IDS_A\t\t"a & %1"\nIDS_B\t\t"b"\n')

    def put(self, name, text):
        path = os.path.join(self.folder.name, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def put_messages(self, name, *messages):
        return self.put(name + ".ts", FILE % (name, "".join(MESSAGE % message for message in messages)))

    def run_tool(self, *arguments):
        result = subprocess.run([sys.executable, "-B", TOOL, *arguments], capture_output=True, check=False)
        return result.returncode, result.stderr.decode("utf-8").splitlines()


class Check(ToolTest):
    def faults(self, *messages):
        code, lines = self.run_tool("check", self.table, self.put_messages("xx_XX", *messages))
        self.assertEqual(code, 1 if lines else 0)
        return [line.split(": error: ")[1] for line in lines]

    def test_whole_file_has_no_faults(self):
        self.assertEqual(self.faults(("IDS_A", "a &amp; %1", "%1 + a"), ("IDS_B", "b", "B")), [])

    def test_lists_every_fault(self):
        self.assertEqual(self.faults(("IDS_A", "a &amp; %1", "x")),
                         ['IDS_A has other places than "a & %1"', 'IDS_B "b" is missing'])
        self.assertEqual(self.faults(("IDS_A", "a &amp; %1", "%1 %1"), ("IDS_B", "b", " ")),
                         ['IDS_A has other places than "a & %1"', "IDS_B is not translated"])
        self.assertEqual(self.faults(("IDS_A", "a &amp; %1", "%1"), ("IDS_B", "b", "c"), ("IDS_C", "c", "d")),
                         ['IDS_C "c" is no text of the table'])
        self.assertEqual(self.faults(("IDS_A", "a &amp; %1", "%1"), ("IDS_B", "B", "c")),
                         ['IDS_B "b" is missing', 'IDS_B "B" is no text of the table'])

    def test_unfinished_message_is_not_translated(self):
        path = self.put("xx_XX.ts", FILE % ("xx_XX", MESSAGE % ("IDS_A", "a &amp; %1", "%1") + (
            '<context><name>IDS_B</name><message><source>b</source>'
            '<translation type="unfinished">x</translation></message></context>')))
        self.assertIn("IDS_B is not translated", self.run_tool("check", self.table, path)[1][0])

    def test_language_that_is_not_the_name_of_the_file(self):
        path = self.put("yy_YY.ts", FILE % ("xx_XX", ""))
        self.assertIn("the language is 'xx_XX', the file's name says 'yy_YY'",
                      self.run_tool("check", self.table, path)[1][0])

    def test_file_that_is_not_there_or_no_xml(self):
        self.assertEqual(self.run_tool("check", self.table, os.path.join(self.folder.name, "no.ts"))[0], 1)
        self.assertEqual(self.run_tool("check", self.table, self.put("bad.ts", "<TS>"))[0], 1)

    def test_table_with_faults_or_without_file(self):
        path = self.put_messages("xx_XX")
        self.assertEqual(self.run_tool("check", self.put("bad.tsv", "no\n"), path)[0], 1)
        self.assertEqual(self.run_tool("check", os.path.join(self.folder.name, "no.tsv"), path)[0], 1)


class Update(ToolTest):
    def test_adds_new_texts_as_unfinished_drops_stale_ones_and_keeps_the_rest(self):
        path = self.put_messages("xx_XX", ("IDS_C", "c", "x"), ("IDS_A", "a &amp; %1", "&lt;%1>"))
        self.assertEqual(self.run_tool("update", self.table, path), (0, []))
        self.assertEqual(read_translations(path),
                         ("xx_XX", {("IDS_A", "a & %1"): "<%1>", ("IDS_B", "b"): ""}))
        with open(path, "rb") as file:
            first = file.read()
        self.assertEqual(self.run_tool("update", self.table, path), (0, []))
        with open(path, "rb") as file:
            self.assertEqual(file.read(), first)

    def test_makes_a_file_that_is_not_there(self):
        path = os.path.join(self.folder.name, "zz_ZZ.ts")
        self.assertEqual(self.run_tool("update", self.table, path), (0, []))
        self.assertEqual(read_translations(path)[0], "zz_ZZ")


class Pseudo(ToolTest):
    def messages(self, code):
        path = os.path.join(self.folder.name, code + ".ts")
        self.assertEqual(self.run_tool("pseudo", self.table, code, path), (0, []))
        self.assertEqual(self.run_tool("check", self.table, path), (0, []))
        return read_translations(path)[1]

    def test_ga_ie_has_accents_and_brackets(self):
        self.assertEqual(self.messages("ga_IE"), {("IDS_A", "a & %1"): "[å & %1]", ("IDS_B", "b"): "[ƀ]"})

    def test_ar_ye_runs_from_right_to_left(self):
        self.assertEqual(self.messages("ar_YE"),
                         {("IDS_A", "a & %1"): "\u202ea & %1\u202c", ("IDS_B", "b"): "\u202eb\u202c"})

    def test_other_codes_are_refused(self):
        self.assertEqual(self.run_tool("pseudo", self.table, "de_DE", "out.ts")[0], 2)
        self.assertEqual(self.run_tool("pseudo", self.table, "ga_IE")[0], 2)


class Translations(unittest.TestCase):
    """The files beside this one."""

    # Texts that a language spells as English does; names of the product; texts without words.
    SAME = {
        "": {"rgb (%1,%2,%3)", "rgba (%1,%2,%3,%4)", "5", "W42", "2015", "2015-W42-4", "2015-W42", ", ",
             "Veltria 10", "Veltria 20"},
        "de_DE": {"Q4", "2015 Q4", "Orange", "Orange-Gold", "Winter", "Beige"},
        "fr_FR": {"Orange", "Beige"},
        "fr_CA": {"Orange", "Beige"},
        "it_IT": {"Beige"},
        "ja_JP": {"Q4", "2015 Q4"},
    }

    def setUp(self):
        self.entries, faults = read_table(TABLE)
        self.assertEqual(faults, [])
        self.files = {os.path.splitext(os.path.basename(path))[0]: read_translations(path)[1]
                      for path in glob.glob(os.path.join(HERE, "translations", "*.ts"))}

    def test_there_is_one_file_a_language(self):
        self.assertEqual(sorted(self.files), sorted(LANGUAGES))

    def test_every_text_is_translated_and_keeps_its_places(self):
        paths = glob.glob(os.path.join(HERE, "translations", "*.ts"))
        result = subprocess.run([sys.executable, "-B", TOOL, "check", TABLE, *paths], capture_output=True, check=False)
        self.assertEqual((result.returncode, result.stderr.decode()), (0, ""))
        for messages in self.files.values():
            self.assertEqual(len(messages), 224)

    def test_nothing_is_left_in_english(self):
        for language, messages in self.files.items():
            if language != "en_GB":
                same = {english for (_, english), text in messages.items() if text == english}
                self.assertEqual(same - self.SAME[""] - self.SAME.get(language, set()), set(), language)

    def test_british_english_differs_in_spelling_alone(self):
        messages = self.files["en_GB"]
        self.assertEqual(messages[("IDS_PALETTE_COLORBLIND_10_0", "Color Blind")], "Colour Blind")
        for text in messages.values():
            self.assertNotIn("Gray", text)
            self.assertNotRegex(text, r"olor\b")

    def test_palettes_that_a_user_picks_from_a_list_have_different_names(self):
        for language, messages in self.files.items():
            names = [text for (key, _), text in messages.items()
                     if key.startswith("IDS_PALETTE_") and "_TOOLTIP_" not in key]
            self.assertEqual(len(names), len(set(names)), language)

    def test_colours_with_different_english_names_have_different_names(self):
        for language, messages in self.files.items():
            english_of = {}
            for (key, english), text in messages.items():
                if "_TOOLTIP_" in key:
                    self.assertEqual(english_of.setdefault(text, english), english, language)

    def test_texts_have_no_stray_blanks_or_controls(self):
        for language, messages in self.files.items():
            for (key, english), text in messages.items():
                self.assertTrue(text.isprintable() or "\u00a0" in text, (language, key))
                if english == english.strip():
                    self.assertEqual(text, text.strip(), (language, key))


if __name__ == "__main__":
    unittest.main()
