"""What the generators share: reading a table, writing C++ literals and files.

A table is UTF-8, tab separated, under a header line; empty lines and lines that start with '#' are skipped. Lines count
from 1. A fault is (line, text).
"""

import os
import sys


def read_rows(path, columns):
    """(rows as (line, cells), faults). Every row has as many cells as there are columns."""
    with open(path, "rb") as file:
        lines = file.read().split(b"\n")
    rows, faults = [], []
    header_fault = "expected the header line '%s'" % "<tab>".join(columns)
    header_seen = False
    for line, raw in enumerate(lines, 1):
        try:
            text = raw.decode("utf-8").rstrip("\r")
        except UnicodeDecodeError as error:
            faults.append((line, "not UTF-8: byte 0x%02X at column %d" % (raw[error.start], error.start + 1)))
            continue
        if not text.strip() or text.startswith("#"):
            continue
        cells = text.split("\t")
        if not header_seen:
            header_seen = True
            if tuple(cells) != tuple(columns):
                faults.append((line, header_fault))
            continue
        if len(cells) != len(columns):
            faults.append((line, "expected %d columns (%s), found %d" % (len(columns), ", ".join(columns), len(cells))))
            continue
        rows.append((line, cells))
    if not header_seen:
        faults.append((len(lines), header_fault))
    elif not rows and not faults:
        faults.append((len(lines), "the table has no rows"))
    return rows, faults


def literal(text):
    """A C++ narrow literal of the text's UTF-8 bytes; three-digit octal escapes never run into what follows."""
    out = []
    for byte in text.encode("utf-8"):
        char = chr(byte)
        if char in '"\\':
            out.append("\\" + char)
        elif 0x20 <= byte < 0x7F:
            out.append(char)
        else:
            out.append("\\%03o" % byte)
    return '"' + "".join(out) + '"'


def write(path, text):
    """Puts the whole file in place at once, so that an interrupted build leaves no half of it."""
    os.makedirs(os.path.dirname(path) or ".", exist_ok=True)
    temporary = path + ".new"
    with open(temporary, "w", encoding="utf-8", newline="\n") as file:
        file.write(text)
    os.replace(temporary, path)


def generate(table, read_table, outputs):
    """Reads a table and writes its outputs, (path, text of the entries and the table's name). The exit status: 1, with
    every fault printed as `file:line: error: text` and nothing written, if the table has any."""
    try:
        entries, faults = read_table(table)
    except OSError as error:
        print("%s:1: error: %s" % (table, error.strerror), file=sys.stderr)
        return 1
    for line, text in sorted(faults, key=lambda fault: fault[0]):
        print("%s:%d: error: %s" % (table, line, text), file=sys.stderr)
    if faults:
        return 1
    for path, text_of in outputs:
        write(path, text_of(entries, os.path.basename(table)))
    return 0
