#!/usr/bin/env python3
"""Turns the table of texts into C++: the enumeration CoreData::StringId and the two maps over it.

usage: gen_strings.py TABLE --header StringIds.h --source StringTable.cpp

TABLE is UTF-8, tab separated; README.md beside this file describes its columns. Every fault of the table is
printed as `file:line: error: text`, nothing is written then, and the exit status is 1.
"""

import argparse
import os
import re
import sys
import zlib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir))
from tables import generate, literal, read_rows  # noqa: E402

COLUMNS = ("key", "id", "english")
KEY = re.compile(r"ID[SP](_[A-Z0-9]+)+")
FIXED_ID = re.compile(r"0x[0-9A-F]{8}")
PLACE = re.compile(r"%([1-9])")
ESCAPES = {"\\": "\\", '"': '"', "n": "\n", "t": "\t"}


class Entry:
    """One line of the table: the key, its 32-bit number and its English text."""

    def __init__(self, line, key, number, english):
        self.line = line
        self.key = key
        self.number = number
        self.english = english


def derived_id(key):
    """The number of a key without a fixed one: CRC-32 of its ASCII text, a function of the key alone."""
    return zlib.crc32(key.encode("ascii"))


def unquote(text):
    """The text inside the quotes, or ValueError with the reason."""
    if len(text) < 2 or not text.startswith('"') or not text.endswith('"'):
        raise ValueError("the English text must stand in double quotes")
    out = []
    chars = iter(text[1:-1])
    for char in chars:
        if char == '"':
            raise ValueError('a double quote inside the text is written \\"')
        if char == "\\":
            escaped = next(chars, "")
            if escaped not in ESCAPES or not escaped:
                raise ValueError("unknown escape '\\%s'" % escaped)
            char = ESCAPES[escaped]
        elif ord(char) < 0x20 or ord(char) == 0x7F:
            raise ValueError("control character U+%04X in the text" % ord(char))
        out.append(char)
    return "".join(out)


def check_places(english):
    """A text with %2 has %1 too, and so on: arguments are filled in from the lowest place."""
    places = {int(digit) for digit in PLACE.findall(english)}
    for number in range(1, max(places, default=0)):
        if number not in places:
            raise ValueError("place %%%d is missing" % number)


def parse_row(columns):
    """(key, fixed number or None, English text) of one row, or ValueError with the reason."""
    key, number, quoted = columns
    if not KEY.fullmatch(key):
        raise ValueError("'%s' is not a key: IDS_ or IDP_ and upper-case words joined with '_'" % key)
    if number and not FIXED_ID.fullmatch(number):
        raise ValueError("'%s' is not an id: 0x and eight upper-case hexadecimal digits" % number)
    english = unquote(quoted)
    if not english:
        raise ValueError("the English text of %s is empty" % key)
    check_places(english)
    return key, int(number, 16) if number else None, english


def read_table(path):
    """(entries in the order of the table, faults as (line, text)); lines count from 1."""
    rows, faults = read_rows(path, COLUMNS)
    entries = []
    line_of_key, entry_of_number = {}, {}
    for line, columns in rows:
        try:
            key, number, english = parse_row(columns)
        except ValueError as error:
            faults.append((line, str(error)))
            continue
        if key in line_of_key:
            faults.append((line, "duplicate key %s, first on line %d" % (key, line_of_key[key])))
            continue
        line_of_key[key] = line
        entry = Entry(line, key, derived_id(key) if number is None else number, english)
        if entry.number == 0:
            faults.append((line, "id 0x00000000 of %s stands for no key: give it another id" % key))
            continue
        other = entry_of_number.setdefault(entry.number, entry)
        if other is not entry:
            faults.append((line, "duplicate id 0x%08X of %s, also of %s on line %d"
                           % (entry.number, key, other.key, other.line)))
            continue
        entries.append(entry)
    return entries, faults


def comment(text):
    """The text as it reads in a one-line comment: control characters and a closing backslash spelled out."""
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t")


def header_text(entries, table):
    out = ["""\
// Generated from %s by gen_strings.py: change the table, not this file.

#pragma once

#include <cstdint>

namespace CoreData {

/// The keys of the library's string table, one enumerator a key, named as the key: what LookupTStrExported takes.
/// The numbers are stable: a number is fixed by the table or derived from the key's text (CRC-32), so new keys never
/// move old ones. 0 is no key. Any other 32-bit number may be cast to a StringId; its text is empty.
///
///   CoreData::LookupTStrExported(CoreData::StringId::IDS_AGG_WEEK)  // "Week Number"
enum class StringId : std::uint32_t
{
""" % table]
    for entry in entries:
        out.append("    %s = 0x%08X,  ///< \"%s\"\n" % (entry.key, entry.number, comment(entry.english)))
    out.append("""\
};

}  // namespace CoreData
""")
    return "".join(out)


def tree(entries, value, suffix=""):
    """A switch over the sparse numbers, in rising order: compilers make a balanced decision tree of it."""
    out = ["    switch (id) {\n"]
    for entry in sorted(entries, key=lambda entry: entry.number):
        out.append("    case StringId::%s:\n        return %s;\n" % (entry.key, literal(value(entry)) + suffix))
    out.append("    }\n    return \"\"%s;\n" % suffix)
    return "".join(out)


def source_text(entries, table):
    return """\
// Generated from %s by gen_strings.py: change the table, not this file.

#include "main/core/StringTable.h"

#include <string_view>

using namespace std::string_view_literals;

namespace CoreData::detail {

char const * StringTableKey(StringId id) noexcept
{
%s}

std::string_view StringTableEnglish(StringId id) noexcept
{
%s}

char const * StringTableFile() noexcept
{
    return __FILE__;
}

}  // namespace CoreData::detail
""" % (table, tree(entries, lambda entry: entry.key), tree(entries, lambda entry: entry.english, "sv"))


def main(arguments):
    parser = argparse.ArgumentParser(description="Generates the string table of the library.")
    parser.add_argument("table")
    parser.add_argument("--header", required=True, help="the public header StringIds.h")
    parser.add_argument("--source", required=True, help="the source StringTable.cpp")
    options = parser.parse_args(arguments)
    return generate(options.table, read_table, ((options.header, header_text), (options.source, source_text)))


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
