"""gdb pretty printers for TString, DateTime, DataValue and names made of text components.

    (gdb) source tools/gdb/velcoredata_gdb.py

    $1 = "text"                                TString, TStringCore
    $2 = 2021-03-04 12:34:56.5000              DateTime
    $3 = Real 1.5 (5, 2)                       DataValue, and likewise %all% Integer, String "a", Date 2021-03-04
    $4 = [schema].[table]                      QualifiedName: any class of that name with a list of TString inside

Nothing is called in the program that is looked at, so a core file will do. Strings and tuples inside a value need the
library's debug information; without it their address is shown.
"""

import re
import struct

import gdb
import gdb.printing

TICKS_A_DAY = 864000000
UNIX_EPOCH_DAY = 2440587
FIRST_CALENDAR_DAY = 1830692  # 0300-03-02; below it the calendar has no answer
TYPES = ["Integer", "Real", "String", "DateTime", "Boolean", "Date", "Tuple", "Spatial", "Unknown", "Binary", "Time", "Table"]
MARKERS = ["", "%null%", "%all%", "%wildcard%", "%skipped%", "%no-access%", "%ragged%", "%error%", "%many-values%",
           "%missing%"]
LONGEST_TEXT = 2000  # code units
LONGEST_LIST = 100


def quoted(text):
    out = []
    for c in text:
        if c in '"\\':
            out.append("\\" + c)
        elif c == "\n":
            out.append("\\n")
        elif c == "\t":
            out.append("\\t")
        elif ord(c) < 32 or 0xD800 <= ord(c) < 0xE000:
            out.append("\\x%04X" % ord(c))
        else:
            out.append(c)
    return '"' + "".join(out) + '"'


def read_memory(address, count):
    return bytes(gdb.selected_inferior().read_memory(address, count)) if count else b""


def text_of(value):
    """The text of a TString or TStringCore: its QString is a block, a pointer and a length."""
    core = value["m_core"] if any(f.name == "m_core" for f in value.type.strip_typedefs().fields()) else value
    data = core["m_text"]["d"]
    length = int(data["size"])
    if length < 0 or length > 1 << 31:
        return "<not initialised>"
    shown = min(length, LONGEST_TEXT)
    text = read_memory(int(data["ptr"]), 2 * shown).decode("utf-16-le", "surrogatepass")
    return text if shown == length else text + "..."


def civil_of_days(days):
    """Year, month and day of a number of days since 1970-01-01, on the proleptic Gregorian calendar."""
    days += 719468
    era, of_era = divmod(days, 146097)
    year = (of_era - of_era // 1460 + of_era // 36524 - of_era // 146096) // 365
    of_year = of_era - (365 * year + year // 4 - year // 100)
    month = (5 * of_year + 2) // 153
    day = of_year - (153 * month + 2) // 5 + 1
    month += 3 if month < 10 else -9
    return year + 400 * era + (1 if month <= 2 else 0), month, day


def date_text(representation, with_time=True):
    day, ticks = divmod(representation, TICKS_A_DAY)
    if day < FIRST_CALENDAR_DAY:
        return "representation %d" % representation
    text = "%04d-%02d-%02d" % civil_of_days(day - UNIX_EPOCH_DAY)
    if with_time:
        seconds, fraction = divmod(ticks, 10000)
        text += " %02d:%02d:%02d.%04d" % (seconds // 3600, seconds // 60 % 60, seconds % 60, fraction)
    return text


def time_text(microseconds):
    seconds, fraction = divmod(microseconds, 1000000)
    return "%02d:%02d:%02d.%06d" % (seconds // 3600, seconds // 60 % 60, seconds % 60, fraction)


def shared_object(payload, class_name):
    """The object behind a payload, which points to the counted base at its start."""
    return gdb.Value(payload).cast(gdb.lookup_type(class_name).pointer()).dereference()


def vector_items(value):
    """The items of a std::vector or a boost small_vector, at most LONGEST_LIST."""
    kind = value.type.strip_typedefs()
    names = {field.name for field in kind.fields()}
    if "_M_impl" in names or str(kind).startswith("std::vector"):
        first, last = value["_M_impl"]["_M_start"], value["_M_impl"]["_M_finish"]
        count = int(last - first)
    else:
        holder = value["m_holder"]
        count = int(holder["m_size"])
        item = kind.template_argument(0)
        first = gdb.Value(int(holder["m_start"])).cast(item.pointer())
    return [first[i] for i in range(min(count, LONGEST_LIST))], count


def tuple_text(value, depth):
    if depth > 8:
        return "(...)"
    items, count = vector_items(value["m_values"])
    texts = [value_text(item, depth + 1) for item in items]
    return "(" + ", ".join(texts + (["..."] if count > len(items) else [])) + ")"


def bytes_text(value):
    first, last = value["m_bytes"]["_M_impl"]["_M_start"], value["m_bytes"]["_M_impl"]["_M_finish"]
    count = int(last - first)
    shown = read_memory(int(first), min(count, 32))
    return "%d bytes %s%s" % (count, shown.hex(" "), "..." if count > 32 else "")


def payload_text(kind, head, payload, depth):
    if kind == "Integer":
        return str(payload - (1 << 64) if payload >> 63 else payload)
    if kind == "Real":
        text = repr(struct.unpack("<d", struct.pack("<Q", payload))[0])
        precision, scale = struct.unpack("<bb", struct.pack("<H", head >> 16 & 0xFFFF))
        return text if (precision, scale) == (-1, -1) else "%s (%d, %d)" % (text, precision, scale)
    if kind == "Boolean":
        return "true" if payload & 0xFF else "false"
    if kind == "Date":
        return date_text(payload, with_time=False)
    if kind == "DateTime":
        return date_text(payload)
    if kind == "Time":
        return time_text(payload)
    if payload == 0:
        return "empty"
    try:
        if kind == "String":
            return quoted(text_of(shared_object(payload, "StringWithCollation")["m_string"]))
        if kind == "Tuple":
            return tuple_text(shared_object(payload, "Tuple"), depth)
        if kind == "Binary":
            return bytes_text(shared_object(payload, "BinaryDataValue"))
    except gdb.error as error:
        return "at 0x%x (%s)" % (payload, error)
    return "at 0x%x" % payload


def value_text(value, depth=0):
    head, payload = int(value["m_head"]), int(value["m_payload"])
    kind, marker = head & 0xFF, head >> 8 & 0xFF
    name = TYPES[kind] if kind < len(TYPES) else "type %d" % kind
    if marker:
        return "%s %s" % (MARKERS[marker] if marker < len(MARKERS) else "marker %d" % marker, name)
    return "%s %s" % (name, payload_text(name, head, payload, depth))


def find_components(value, depth=0):
    """The first list of TString inside a value, through base classes, members and counted pointers."""
    kind = value.type.strip_typedefs()
    if depth > 6 or kind.code != gdb.TYPE_CODE_STRUCT:
        return None
    name = str(kind)
    if re.match(r"(std::vector|boost::container::small_vector)<TString\b", name):
        return value
    if name.startswith("RefCntPtr<"):
        pointer = value["m_object"]
        return find_components(pointer.dereference(), depth + 1) if int(pointer) else None
    for field in kind.fields():
        if hasattr(field, "bitpos") and not field.artificial:
            found = find_components(value[field], depth + 1)
            if found is not None:
                return found
    return None


def name_text(value):
    """[a].[b]: every ] inside a component is doubled."""
    components = find_components(value)
    if components is None:
        return "<no components>"
    items, count = vector_items(components)
    parts = ["[" + text_of(item).replace("]", "]]") + "]" for item in items]
    return ".".join(parts + (["..."] if count > len(items) else []))


class Printer:
    def __init__(self, text):
        self.text = text

    def __call__(self, value):
        return PrintedValue(self.text, value)


class PrintedValue:
    def __init__(self, text, value):
        self.text = text
        self.value = value

    def to_string(self):
        try:
            return self.text(self.value)
        except (gdb.error, gdb.MemoryError, OverflowError) as error:
            return "<unreadable: %s>" % error


def build():
    collection = gdb.printing.RegexpCollectionPrettyPrinter("velcoredata")
    for name, text in [("TString", lambda v: quoted(text_of(v))),
                       ("TStringCore", lambda v: quoted(text_of(v))),
                       ("DateTime", lambda v: date_text(int(v["m_value"]))),
                       ("DataValue", value_text),
                       ("QualifiedName", name_text)]:
        collection.add_printer(name, "^%s$" % name, Printer(text))
    return collection


gdb.printing.register_pretty_printer(None, build(), replace=True)
