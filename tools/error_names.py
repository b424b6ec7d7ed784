#!/usr/bin/env python3
"""Holds the error names of the sources against the tests. usage: error_names.py [TOP]

An error's name ends in its 32-bit code, `_0x` and eight hexadecimal digits; the macros of velsys/ThrowSite.h take the
code alone. Prints one line for each

  - code that stands at two places that raise,
  - code that no test and no acceptance table names, unless the list at the end of docs/error-codes.md ("No test can
    raise") holds it with a reason,
  - entry of that list which a test names after all, or which the sources lack.

Exits with 1 if it printed any.
"""

import collections
import os
import re
import sys

COMMENT = re.compile(r"/\*.*?\*/|//[^\n]*", re.S)
MACRO = re.compile(r"\bVELTRIA_(?:THROW_NAMED|THROW|FAIL|ASSERT_TEXT|ASSERT)\s*\(")
CODE = re.compile(r"\b0x([0-9A-Fa-f]{8})\b")
NAME = re.compile(r'"[^"\n]*_0x([0-9A-Fa-f]{8})"')
SOURCES = ("main", "platform", "include")
HEADING = "## No test can raise"


def files(top, folders, endings):
    for folder in folders:
        for path, _, names in sorted(os.walk(os.path.join(top, folder))):
            for name in sorted(names):
                if name.endswith(endings):
                    yield os.path.join(path, name)


def read(path):
    with open(path, encoding="utf-8", errors="replace") as file:
        return file.read()


def arguments(text, start):
    """The text from behind an opening parenthesis to the one that closes it."""
    depth, quote, at = 1, "", start
    while at < len(text) and depth:
        c = text[at]
        if quote:
            at += c == "\\"
            quote = "" if c == quote else quote
        elif c == '"':
            quote = c
        elif c in "()":
            depth += 1 if c == "(" else -1
        at += 1
    return text[start:at - 1]


def raised(top):
    """Code -> places that raise it. A name and a code in one statement are one place."""
    places = collections.defaultdict(list)
    for path in files(top, SOURCES, (".cpp", ".h")):
        if path.endswith("ThrowSite.h"):
            continue
        text = COMMENT.sub(lambda m: "\n" * m.group().count("\n"), read(path))
        short = os.path.relpath(path, top)
        for macro in MACRO.finditer(text):
            codes = CODE.findall(arguments(text, macro.end()))
            if codes:
                places[codes[-1].upper()].append(f"{short}:{text.count(chr(10), 0, macro.start()) + 1}")
        for name in NAME.finditer(text):
            places[name.group(1).upper()].append(f"{short}:{text.count(chr(10), 0, name.start()) + 1}")
    return places


def check(top):
    places = raised(top)
    tested = set()
    for path in files(top, ("tests",), (".cpp", ".h", ".inc", ".py", ".tsv")):
        tested.update(code.upper() for code in re.findall(r"0x([0-9A-Fa-f]{8})", read(path)))
    documented = os.path.join(top, "docs", "error-codes.md")
    text = read(documented) if os.path.exists(documented) else ""
    excused = {code.upper() for code in re.findall(r"0x([0-9A-Fa-f]{8})", text.partition(HEADING)[2])}
    faults = [f"{', '.join(where)}: one code at {len(where)} places: 0x{code}"
              for code, where in sorted(places.items()) if len(where) > 1]
    faults += [f"{where[0]}: no test names 0x{code}"
               for code, where in sorted(places.items()) if code not in tested | excused]
    faults += [f"docs/error-codes.md: 0x{code} has a test" for code in sorted(excused & tested)]
    faults += [f"docs/error-codes.md: the sources do not raise 0x{code}" for code in sorted(excused - set(places))]
    return faults


if __name__ == "__main__":
    found = check(sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), ".."))
    print("\n".join(found) if found else "every error name is raised at one place and named by a test")
    sys.exit(1 if found else 0)
