"""Tests of tools/include_rooms.py on small made-up trees."""

import os
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "tools"))
from include_rooms import check


class IncludeRooms(unittest.TestCase):
    def faults(self, files):
        with tempfile.TemporaryDirectory() as top:
            for path, includes in files.items():
                full = os.path.join(top, path)
                os.makedirs(os.path.dirname(full), exist_ok=True)
                with open(full, "w", encoding="utf-8") as file:
                    file.write("".join(f"#include {include}\n" for include in includes))
            return check(top)

    def test_a_header_and_its_source_are_one_room(self):
        self.assertEqual(self.faults({
            "include/velcoredata/data/A.h": [],
            "include/velcoredata/data/B.h": ['"velcoredata/data/A.h"'],
            "main/data/A.cpp": ['"velcoredata/data/A.h"', '"velcoredata/data/B.h"'],
        }), ["circle of includes: data/A, data/B"])

    def test_a_private_header_may_be_the_inner_half_of_one_room(self):
        halves = {
            "include/velcoredata/data/A.h": [],
            "main/data/A.cpp": ['"velcoredata/data/A.h"', '"main/data/AInside.h"'],
            "main/data/AInside.h": ['"velcoredata/data/A.h"'],
            "main/data/AText.cpp": ['"main/data/AInside.h"'],
        }
        self.assertEqual(self.faults(halves), [])
        self.assertEqual(self.faults({**halves, "main/data/AInside.cpp": []}),
                         ["circle of includes: data/A, data/AInside"])

    def test_inner_halves_make_no_circle_between_rooms(self):
        self.assertEqual(self.faults({
            "include/velcoredata/data/A.h": [],
            "include/velcoredata/data/B.h": [],
            "main/data/A.cpp": ['"velcoredata/data/A.h"', '"main/data/AInside.h"'],
            "main/data/B.cpp": ['"velcoredata/data/B.h"', '"main/data/BInside.h"'],
            "main/data/AInside.h": ['"velcoredata/data/A.h"', '"velcoredata/data/B.h"'],
            "main/data/BInside.h": ['"velcoredata/data/B.h"', '"velcoredata/data/A.h"'],
        }), ["circle of includes: data/A, data/B"])

    def test_a_circle_through_three_headers_is_found(self):
        self.assertEqual(self.faults({
            "include/velcoredata/data/A.h": ['"velcoredata/core/B.h"'],
            "include/velcoredata/core/B.h": ['"velcoredata/string/C.h"'],
            "include/velcoredata/string/C.h": ['"velcoredata/data/A.h"'],
            "include/velcoredata/string/D.h": ['"velcoredata/data/A.h"'],
        }), ["circle of includes: core/B, data/A, string/C"])

    def test_a_source_for_the_upper_half_cuts_the_circle(self):
        self.assertEqual(self.faults({
            "include/velcoredata/data/A.h": [],
            "include/velcoredata/core/B.h": ['"velcoredata/data/A.h"'],
            "main/data/A.cpp": ['"velcoredata/data/A.h"'],
            "main/data/AText.cpp": ['"velcoredata/data/A.h"', '"velcoredata/core/B.h"'],
        }), [])

    def test_layers_include_downwards_only(self):
        self.assertEqual(self.faults({
            "platform/velsys/include/velsys/A.h": [],
            "platform/velcoreplatform/src/B.cpp": ['"velsys/A.h"'],
            "platform/velcoreplatform/include/velcoreplatform/B.h": [],
            "platform/velsys/src/C.cpp": ['"velcoreplatform/B.h"'],
        }), ["platform/velsys/src/C.cpp: velsys may not include velcoreplatform (velcoreplatform/B.h)"])

    def test_public_headers_keep_private_and_foreign_ones_out(self):
        self.assertEqual(len(self.faults({
            "include/velcoredata/data/A.h": ['"main/data/B.h"', "<unicode/ucol.h>", "<boost/xpressive/xpressive.hpp>",
                                             "<boost/spirit/include/karma.hpp>", "<tbb/concurrent_queue.h>",
                                             "<QtCore/private/qlocale_p.h>", "<vector>", "<boost/any.hpp>"],
            "main/data/B.h": [],
        })), 6)

    def test_icu_belongs_to_two_layers(self):
        self.assertEqual(self.faults({
            "platform/velicu/src/A.cpp": ["<unicode/ucol.h>"],
            "platform/nls/src/A.cpp": ["<unicode/uloc.h>"],
            "main/data/B.cpp": ["<unicode/ucol.h>"],
        }), ["main/data/B.cpp: ICU belongs to velicu and nls (unicode/ucol.h)"])

    def test_xpressive_stands_in_one_source(self):
        self.assertEqual(self.faults({"main/core/A.cpp": ["<boost/xpressive/xpressive.hpp>"]}), [])
        self.assertEqual(len(self.faults({
            "main/core/A.cpp": ["<boost/xpressive/xpressive.hpp>"],
            "main/core/B.cpp": ["<boost/xpressive/xpressive.hpp>"],
        })), 1)

    def test_includes_in_comments_do_not_count(self):
        self.assertEqual(self.faults({
            "include/velcoredata/data/A.h": ['"velcoredata/data/B.h"'],
            "include/velcoredata/data/B.h": ["<vector>\n// #include \"velcoredata/data/A.h\"\n/*\n#include "
                                             "\"velcoredata/data/A.h\"\n*/"],
        }), [])


    def test_the_steps_that_the_architecture_draws_are_held_to_the_includes(self):
        files = {
            "include/velcoredata/data/A.h": [],
            "include/velcoredata/data/B.h": ['"velcoredata/data/A.h"'],
            "main/data/B.cpp": ['"velcoredata/data/B.h"', '"main/data/BInside.h"'],
            "main/data/BInside.h": ['"velcoredata/data/B.h"', '"velcoredata/data/E.h"'],
            "include/velcoredata/data/E.h": [],
            "platform/velsys/include/velsys/C.h": [],
        }
        with tempfile.TemporaryDirectory() as top:
            for path, includes in files.items():
                full = os.path.join(top, path)
                os.makedirs(os.path.dirname(full), exist_ok=True)
                with open(full, "w", encoding="utf-8") as file:
                    file.write("".join(f"#include {include}\n" for include in includes))
            with open(os.path.join(top, "ARCHITECTURE.md"), "w", encoding="utf-8") as file:
                file.write("data/X > data/Y\n```rooms\ndata/B > data/A, data/E, velsys/C\ndata/A > data/D\n```\n")
            self.assertEqual(check(top), ["ARCHITECTURE.md:3: data/B does not include velsys/C",
                                          "ARCHITECTURE.md:4: no room data/D"])


if __name__ == "__main__":
    unittest.main()
