#!/usr/bin/env python3
"""Checks the includes of the source tree. usage: include_rooms.py [TOP]

A room is a header with its source: include/velcoredata/data/X.h, main/data/X.h and main/data/X.cpp are the room
data/X; platform/velsys/include/velsys/X.h and platform/velsys/src/X.cpp are velsys/X. A private header H.h without
a source, that completes a room's public header for its source (H.h includes X.h, X.cpp includes H.h), is the inner
half of that room. Prints one line for each

  - circle of includes between rooms,
  - include of a layer that the including layer does not link,
  - private header (main/...) included by a public one,
  - step of ARCHITECTURE.md (blocks fenced as `rooms`, lines `room > room, room`) that the includes do not bear out,
  - foreign header where it may not stand: in public headers ICU, Boost.Xpressive, Boost.Spirit, oneTBB and Qt's
    private ones; ICU anywhere but in the sources of velicu and nls; Xpressive and Spirit in more than one source.

Exits with 1 if it printed any.
"""

import os
import re
import sys

# Layer -> layers whose headers it may include besides its own.
BELOW = {
    "velsys": set(),
    "velcoreplatform": {"velsys"},
    "velicu": {"velsys", "velcoreplatform"},
    "velgeo": {"velsys", "velcoreplatform"},
    "velnls": {"velsys", "velcoreplatform", "velicu", "velgeo"},
    "velcoredata": {"velsys", "velcoreplatform", "velicu", "velgeo", "velnls"},
}
LAYER_OF_FOLDER = {"velsys": "velsys", "velcoreplatform": "velcoreplatform", "velicu": "velicu", "velgeo": "velgeo",
                   "nls": "velnls"}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.M)
COMMENT = re.compile(r'/\*.*?\*/', re.S)
FOREIGN = {
    "ICU": re.compile(r"^unicode/"),
    "Boost.Xpressive": re.compile(r"^boost/xpressive"),
    "Boost.Spirit": re.compile(r"^boost/spirit"),
    "oneTBB": re.compile(r"^(oneapi/)?tbb/"),
    "a private header of Qt": re.compile(r"/private/|_p\.h$"),
}
ONE_SOURCE = ("Boost.Xpressive", "Boost.Spirit")


class File:
    def __init__(self, path):
        self.path = path
        parts = path.split("/")
        self.public = False
        if parts[0] == "include":
            self.layer, inner, self.public = "velcoredata", parts[2:], True
        elif parts[0] == "main":
            self.layer, inner = "velcoredata", parts[1:]
        else:
            self.layer = LAYER_OF_FOLDER.get(parts[1], parts[1])
            self.public = parts[2] == "include"
            inner = [self.layer] + parts[4 if self.public else 3:]
        self.room = os.path.splitext("/".join(inner))[0]


def source_files(top):
    for root in ("include", "main", "platform"):
        for folder, _, names in os.walk(os.path.join(top, root)):
            for name in sorted(names):
                if name.endswith((".h", ".cpp", ".inc")):
                    yield File(os.path.relpath(os.path.join(folder, name), top).replace(os.sep, "/"))


def resolve(spelling, file, by_path):
    """The file of this tree that an include names, or None for a foreign or generated one."""
    first = spelling.split("/")[0]
    folder = next((f for f, layer in LAYER_OF_FOLDER.items() if layer == first), None)
    candidates = [os.path.normpath(os.path.join(os.path.dirname(file.path), spelling)), spelling, "include/" + spelling]
    if folder:
        candidates.append(f"platform/{folder}/include/{spelling}")
    return next((by_path[c] for c in candidates if c in by_path), None)


def merge_inner_halves(files, edges, file_edges):
    """Edges between rooms once each inner half is counted to its room; an inner half of two rooms stays apart."""
    with_source = {file.room for file in files if file.path.endswith(".cpp")}
    public = {file.room for file in files if file.public}
    outer = {}
    for room in edges:
        if room in with_source or room in public:
            continue
        rooms = {f.room for f, targets in file_edges.items()
                 if f.path.endswith(".cpp") and room in targets and f.room in edges[room] and f.room in public}
        if len(rooms) == 1:
            outer[room] = rooms.pop()
    merged = {}
    for room, targets in edges.items():
        here = outer.get(room, room)
        merged.setdefault(here, set()).update(outer.get(t, t) for t in targets)
        merged[here].discard(here)
    return merged


def circles(edges):
    """Strongly connected groups of more than one room (Tarjan's algorithm, without recursion)."""
    index, low, stack, on_stack, groups = {}, {}, [], set(), []
    for start in sorted(edges):
        if start in index:
            continue
        work = [(start, iter(sorted(edges[start])))]
        index[start] = low[start] = len(index)
        stack.append(start)
        on_stack.add(start)
        while work:
            room, targets = work[-1]
            for target in targets:
                if target not in index:
                    index[target] = low[target] = len(index)
                    stack.append(target)
                    on_stack.add(target)
                    work.append((target, iter(sorted(edges.get(target, ())))))
                    break
                if target in on_stack:
                    low[room] = min(low[room], index[target])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[room])
                if low[room] == index[room]:
                    group = []
                    while not group or group[-1] != room:
                        group.append(stack.pop())
                        on_stack.discard(group[-1])
                    if len(group) > 1:
                        groups.append(sorted(group))
    return groups


def drawn_steps(top):
    """(line, room, rooms it calls) for each line of the `rooms` blocks of ARCHITECTURE.md."""
    path = os.path.join(top, "ARCHITECTURE.md")
    if not os.path.exists(path):
        return
    inside = False
    with open(path, encoding="utf-8") as text:
        for number, line in enumerate(text, 1):
            if line.startswith("```"):
                inside = line.strip() == "```rooms"
            elif inside and line.strip():
                room, _, called = line.partition(">")
                yield number, room.strip(), [name.strip() for name in called.split(",")]


def check(top):
    files = list(source_files(top))
    by_path = {file.path: file for file in files}
    edges = {file.room: set() for file in files}
    file_edges = {file: set() for file in files}
    sources_of = {name: [] for name in ONE_SOURCE}
    faults = []
    for file in files:
        with open(os.path.join(top, file.path), encoding="utf-8") as source:
            text = COMMENT.sub("", source.read())
        for quoted, angled in INCLUDE.findall(text):
            spelling = quoted or angled
            target = resolve(spelling, file, by_path)
            if target:
                if target.room != file.room:
                    edges[file.room].add(target.room)
                    file_edges[file].add(target.room)
                if target.layer != file.layer and target.layer not in BELOW.get(file.layer, set()):
                    faults.append(f"{file.path}: {file.layer} may not include {target.layer} ({spelling})")
                if file.public and not target.public:
                    faults.append(f"{file.path}: a public header includes a private one ({spelling})")
                continue
            kind = next((name for name, pattern in FOREIGN.items() if pattern.search(spelling)), None)
            if kind is None:
                continue
            if file.public:
                faults.append(f"{file.path}: a public header includes {kind} ({spelling})")
            elif kind == "ICU" and not file.path.startswith(("platform/velicu/", "platform/nls/")):
                faults.append(f"{file.path}: ICU belongs to velicu and nls ({spelling})")
            elif kind in ONE_SOURCE and file.path not in sources_of[kind]:
                sources_of[kind].append(file.path)
    for kind, paths in sources_of.items():
        if len(paths) > 1:
            faults.append(f"{kind} belongs in one source: {', '.join(paths)}")
    merged = merge_inner_halves(files, edges, file_edges)
    for number, room, called in drawn_steps(top):
        for name in [room] + called:
            if name not in edges:
                faults.append(f"ARCHITECTURE.md:{number}: no room {name}")
        faults += [f"ARCHITECTURE.md:{number}: {room} does not include {name}"
                   for name in called
                   if room in edges and name in edges and name not in edges[room] | merged.get(room, set())]
    for group in circles(merged):
        faults.append("circle of includes: " + ", ".join(group))
    return faults


if __name__ == "__main__":
    found = check(sys.argv[1] if len(sys.argv) > 1 else ".")
    for fault in found:
        print(fault)
    sys.exit(1 if found else 0)
