#!/usr/bin/env python3
"""Turns the table of feature flags into C++: the enumeration FeatureFlagId and the rows of the catalogue.

usage: gen_features.py TABLE --header CoredataFeatureFlagIds.h --source CoredataFeatureFlagIds.cpp

TABLE is UTF-8, tab separated; README.md beside this file describes its columns. Every fault of the table is
printed as `file:line: error: text`, nothing is written then, and the exit status is 1.
"""

import argparse
import datetime
import os
import re
import sys
import unicodedata

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir))
from tables import generate, literal, read_rows  # noqa: E402

COLUMNS = ("id", "maturity", "default", "team", "scrumAlias", "tfsId", "removalDate", "toggle", "name", "description")
ID = re.compile(r"[1-9][0-9]{0,9}")
# The enumerators of FeatureMaturity with their numbers.
MATURITIES = {"Unclassified": 0, "Development": 1, "Trial": 2, "Released": 3, "Settled": 4}
DEFAULTS = {"on": "true", "off": "false"}
WORK_ITEM = re.compile(r"[0-9]*")
DATE = re.compile(r"([0-9]{4})-([0-9]{1,2})-([0-9]{1,2})")
TOGGLES = ("", "none", "restart")
NAME = re.compile(r"[A-Z][A-Za-z0-9]*(_[A-Za-z0-9]+)*")


class Flag:
    """One line of the table, checked."""

    def __init__(self, line, cells):
        self.line = line
        (number, self.maturity, default, self.team, self.scrum_alias, self.tfs_id, self.removal_date, self.toggle,
         self.name, self.description) = cells
        self.number = check_id(number)
        check_word("maturity", self.maturity, MATURITIES)
        check_word("default", default, DEFAULTS)
        self.default = DEFAULTS[default]
        for column, text in (("team", self.team), ("scrumAlias", self.scrum_alias), ("description", self.description)):
            check_text(column, text)
        if not WORK_ITEM.fullmatch(self.tfs_id):
            raise ValueError("tfsId '%s' is not a number" % self.tfs_id)
        check_date(self.removal_date)
        check_word("toggle", self.toggle, TOGGLES)
        if not NAME.fullmatch(self.name):
            raise ValueError("'%s' is not a name: upper camel case in ASCII letters and digits, parts joined with '_'"
                             % self.name)


def check_id(text):
    """The number, or ValueError."""
    if not ID.fullmatch(text) or int(text) > 0xFFFFFFFF:
        raise ValueError("'%s' is not an id: decimal, 1 to 4294967295, without leading zeros" % text)
    return int(text)


def check_word(column, text, words):
    if text not in words:
        raise ValueError("unknown %s '%s': expected one of %s"
                         % (column, text, ", ".join(word or "nothing" for word in words)))


def check_text(column, text):
    if not text:
        raise ValueError("the %s is empty" % column)
    if text != text.strip():
        raise ValueError("blanks around the %s" % column)
    for char in text:
        if unicodedata.category(char) in ("Cc", "Cf", "Zl", "Zp"):
            raise ValueError("control character U+%04X in the %s" % (ord(char), column))


def check_date(text):
    """Empty, or a day of the calendar; months and days may have one digit."""
    parts = DATE.fullmatch(text)
    if text and not parts:
        raise ValueError("removalDate '%s' is not of the form year-month-day" % text)
    if parts:
        try:
            datetime.date(*map(int, parts.groups()))
        except ValueError as error:
            raise ValueError("removalDate '%s': %s" % (text, error)) from error


def read_table(path):
    """(flags in the order of the table, faults as (line, text))."""
    rows, faults = read_rows(path, COLUMNS)
    flags = []
    flag_of_number, flag_of_folded_name = {}, {}
    for line, cells in rows:
        try:
            flag = Flag(line, cells)
        except ValueError as error:
            faults.append((line, str(error)))
            continue
        same_id = flag_of_number.setdefault(flag.number, flag)
        if same_id is not flag:
            faults.append((line, "duplicate id %d of %s, also of %s on line %d"
                           % (flag.number, flag.name, same_id.name, same_id.line)))
        same_name = flag_of_folded_name.setdefault(flag.name.lower(), flag)
        if same_name is not flag:
            faults.append((line, "duplicate name %s, also %s on line %d, as case does not count"
                           % (flag.name, same_name.name, same_name.line)))
        flags.append(flag)
    return flags, faults


def header_text(flags, table):
    out = ["""\
// Generated from %s by gen_features.py: change the table, not this file.

#pragma once

#include <cstdint>

/// The feature switches of the platform, one enumerator a flag, named as the flag. The numbers are fixed by the table
/// and range over all 32 bits; 0, FeatureFlagId(), stands for no such flag. Any 32-bit number may be cast to a
/// FeatureFlagId and kept in a set of flags, whether the catalogue has it or not.
///
///   FeatureFlags::IsOn(FeatureFlagId::WriteMarksForESV)  // false by default
enum class FeatureFlagId : std::uint32_t
{
""" % table]
    for flag in flags:
        out.append("    %s = %du,  ///< %s\n" % (flag.name, flag.number, flag.description.replace("\\", "\\\\")))
    out.append("};\n")
    return "".join(out)


def row_text(flag):
    texts = (flag.team, flag.scrum_alias, flag.tfs_id, flag.removal_date, flag.toggle, flag.name, flag.description)
    return "    {%du, FeatureMaturity::%s, %s, %s},\n" % (flag.number, flag.maturity, flag.default,
                                                         ", ".join(map(literal, texts)))


def source_text(flags, table):
    return """\
// Generated from %s by gen_features.py: change the table, not this file.

#include "main/utility/FeatureRows.h"

namespace detail {

namespace {

constexpr FeatureRow rows[] = {
%s};

}  // namespace

std::span<FeatureRow const> FeatureRows() noexcept
{
    return rows;
}

}  // namespace detail
""" % (table, "".join(map(row_text, flags)))


def main(arguments):
    parser = argparse.ArgumentParser(description="Generates the feature catalogue of the library.")
    parser.add_argument("table")
    parser.add_argument("--header", required=True, help="the public header CoredataFeatureFlagIds.h")
    parser.add_argument("--source", required=True, help="the source CoredataFeatureFlagIds.cpp")
    options = parser.parse_args(arguments)
    return generate(options.table, read_table, ((options.header, header_text), (options.source, source_text)))


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
