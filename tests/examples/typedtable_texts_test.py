#!/usr/bin/env python3
"""Compares what typedtable says with its translations. usage: typedtable_texts_test.py EXAMPLES_FOLDER"""

import ast
import collections
import glob
import os
import re
import sys
import unittest
import xml.etree.ElementTree as ElementTree

FOLDER = os.path.join(sys.argv[1], "typedtable")
LITERAL = re.compile(r'\bText\(\s*((?:"(?:[^"\\\n]|\\.)*"\s*)+)')
PIECE = re.compile(r'"(?:[^"\\\n]|\\.)*"')
PLACE = re.compile(r"%[1-9]")
LANGUAGES = ["de_DE", "es_ES", "fr_FR", "ja_JP"]


def texts_of(source):
    """The English texts of a source: the literals behind "Text(", neighbours joined, comments left out."""
    source = re.sub(r"^\s*//.*$", "", source, flags=re.MULTILINE)
    return ["".join(ast.literal_eval(piece) for piece in PIECE.findall(found)) for found in LITERAL.findall(source)]


def all_texts():
    texts = set()
    for path in glob.glob(os.path.join(FOLDER, "*.cpp")) + glob.glob(os.path.join(FOLDER, "*.h")):
        with open(path, encoding="utf-8") as file:
            texts.update(texts_of(file.read()))
    return texts


def translations(language):
    root = ElementTree.parse(os.path.join(FOLDER, "translations", language + ".ts")).getroot()
    assert root.get("language") == language
    assert [context.findtext("name") for context in root.iter("context")] == ["typedtable"]
    return [(message.findtext("source"), message.find("translation")) for message in root.iter("message")]


class Texts(unittest.TestCase):
    maxDiff = None

    def test_finds_the_texts_of_a_source(self):
        self.assertEqual(texts_of('Text("a"); x(Text("b %1", n)) Text(\n  "c "\n "d") NoText("e") Text("\\"f\\"")'),
                         ["a", "b %1", "c d", '"f"'])
        self.assertEqual(texts_of('/// Text("a")\nText(name)'), [])
        self.assertGreater(len(all_texts()), 60)

    def test_every_text_has_one_translation_in_every_language(self):
        for language in LANGUAGES:
            found = collections.Counter(source for source, _ in translations(language))
            self.assertEqual(sorted(all_texts() - set(found)), [], language + " lacks")
            self.assertEqual(sorted(set(found) - all_texts()), [], language + " has, and nobody says it")
            self.assertEqual([source for source, count in found.items() if count > 1], [], language + " has twice")

    def test_translations_are_finished_and_have_the_same_places(self):
        for language in LANGUAGES:
            for source, translation in translations(language):
                self.assertIsNone(translation.get("type"), (language, source))
                self.assertTrue(translation.text and translation.text.strip(), (language, source))
                self.assertEqual(sorted(PLACE.findall(translation.text)), sorted(PLACE.findall(source)),
                                 (language, source))

    def test_options_keep_their_names(self):
        for language in LANGUAGES:
            for source, translation in translations(language):
                self.assertEqual(sorted(re.findall(r"--[a-z-]+", translation.text)),
                                 sorted(re.findall(r"--[a-z-]+", source)), (language, source))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
