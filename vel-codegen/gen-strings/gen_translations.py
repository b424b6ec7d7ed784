#!/usr/bin/env python3
"""Keeps the translations (.ts) of the table of texts in step with it, and makes those of the pseudo-locales.

usage: gen_translations.py pseudo TABLE CODE OUT.ts    writes the translations of ga_IE or ar_YE, made by rule
       gen_translations.py check TABLE FILE.ts...      lists what is missing, stale or wrong; exit status 1 if any is
       gen_translations.py update TABLE FILE.ts...     adds new texts to the files as unfinished and drops stale ones

A message has the key as its context and the English text as its source. README.md beside this file tells more.
"""

import argparse
import collections
import os
import sys
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import escape

from gen_strings import PLACE, read_table
from tables import write  # gen_strings tells where

# Letters that still read as themselves, so that an untranslated text stands out and a cut one shows.
ACCENTED = str.maketrans("AaBbCcDdEeFfGgHhIiJjKkLlMmNnOoPpQqRrSsTtUuVvWwXxYyZz",
                         "ÅåƁƀÇçÐðÉéƑƒĜĝĤĥÎîĴĵĶķĻļṀṁÑñÖöÞþǪǫŔŕŠšŢţÛûṼṽŴŵẊẋÝýŽž")
RIGHT_TO_LEFT_OVERRIDE = "\u202e"
POP_DIRECTION = "\u202c"


def accented(english):
    """ga_IE: accents and brackets. "%1 more" is "[%1 ṁöŕé]"; places hold no letters and survive."""
    return "[" + english.translate(ACCENTED) + "]"


def reversed_direction(english):
    """ar_YE: the English text set from right to left; its order in memory is unchanged, so places survive."""
    return RIGHT_TO_LEFT_OVERRIDE + english + POP_DIRECTION


PSEUDO = {"ga_IE": accented, "ar_YE": reversed_direction}


def places(text):
    """How often each place stands in a text: {"1": 1, "2": 1} for "%1 & %2"."""
    return collections.Counter(PLACE.findall(text))


def read_translations(path):
    """(language, {(key, english): translation}); an unfinished message has the empty text."""
    root = ElementTree.parse(path).getroot()
    messages = {}
    for context in root.iter("context"):
        key = context.findtext("name") or ""
        for message in context.iter("message"):
            translation = message.find("translation")
            done = translation is not None and translation.get("type") is None
            messages[(key, message.findtext("source") or "")] = (translation.text or "") if done else ""
    return root.get("language") or "", messages


def translation_text(language, entries, messages):
    """The file as this program writes it: one context a key, in the order of the table."""
    out = ['<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
           '<TS version="2.1" sourcelanguage="en_US" language="%s">\n' % language]
    for entry in entries:
        text = messages.get((entry.key, entry.english), "")
        out.append("<context>\n    <name>%s</name>\n    <message>\n        <source>%s</source>\n"
                   % (entry.key, escape(entry.english)))
        if text:
            out.append("        <translation>%s</translation>\n" % escape(text))
        else:
            out.append('        <translation type="unfinished"></translation>\n')
        out.append("    </message>\n</context>\n")
    out.append("</TS>\n")
    return "".join(out)


def faults_of(path, entries):
    """What is wrong with a file of translations, as texts."""
    try:
        language, messages = read_translations(path)
    except (OSError, ElementTree.ParseError) as error:
        return [str(error)]
    faults = []
    code = os.path.splitext(os.path.basename(path))[0]
    if language != code:
        faults.append("the language is '%s', the file's name says '%s'" % (language, code))
    for entry in entries:
        text = messages.pop((entry.key, entry.english), None)
        if text is None:
            faults.append("%s \"%s\" is missing" % (entry.key, entry.english))
        elif not text.strip():
            faults.append("%s is not translated" % entry.key)
        elif places(text) != places(entry.english):
            faults.append("%s has other places than \"%s\"" % (entry.key, entry.english))
    faults.extend("%s \"%s\" is no text of the table" % stale for stale in messages)
    return faults


def update(path, entries):
    language = os.path.splitext(os.path.basename(path))[0]
    messages = read_translations(path)[1] if os.path.exists(path) else {}
    write(path, translation_text(language, entries, messages))


def main(arguments):
    parser = argparse.ArgumentParser(description="Translations of the string table.")
    parser.add_argument("mode", choices=("pseudo", "check", "update"))
    parser.add_argument("table")
    parser.add_argument("files", nargs="+", metavar="FILE", help="for pseudo: the code and the file to write")
    options = parser.parse_args(arguments)
    try:
        entries, faults = read_table(options.table)
    except OSError as error:
        print("%s:1: error: %s" % (options.table, error.strerror), file=sys.stderr)
        return 1
    if faults:
        for line, text in faults:
            print("%s:%d: error: %s" % (options.table, line, text), file=sys.stderr)
        return 1
    if options.mode == "pseudo":
        if len(options.files) != 2 or options.files[0] not in PSEUDO:
            parser.error("pseudo takes one of %s and the file to write" % ", ".join(sorted(PSEUDO)))
        code, path = options.files
        messages = {(entry.key, entry.english): PSEUDO[code](entry.english) for entry in entries}
        write(path, translation_text(code, entries, messages))
        return 0
    if options.mode == "update":
        for path in options.files:
            update(path, entries)
        return 0
    found = [(path, fault) for path in options.files for fault in faults_of(path, entries)]
    for path, fault in found:
        print("%s: error: %s" % (path, fault), file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
